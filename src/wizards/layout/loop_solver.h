// Which straights make a loop around a table.
#pragma once

#include "wizards/layout/axis_sums.h"
#include "wizards/layout/steps.h"
#include "wizards/layout/table_path.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace trassix {

/// A loop by what its sides and lines are; lines are those of the outer track's middle.
struct LoopPlan {
  std::vector<Micrometres> straights; ///< by sides of the path
  std::vector<Micrometres> lines;     ///< y of a level side, x of an upright one
  Micrometres station = 0;            ///< length of main line that it takes up, 0 for none
  int pieces = 0;                     ///< in all straights and the station
  std::vector<const PieceDef*> kinds; ///< the straights it may be made of

  Micrometres total() const;
  bool sameAs(const LoopPlan& other) const {
    return straights == other.straights && station == other.station && kinds == other.kinds;
  }
};

/// The way and what its sides can be made of.
class LoopSolver {
 public:
  /// `straights`: those to be used, each length once.
  LoopSolver(const LayoutTask& task, const TablePath& path, const StationThroat& throat,
             std::vector<PlainStraight> straights);
  LoopSolver(const LoopSolver&) = delete;
  LoopSolver& operator=(const LoopSolver&) = delete;

  const StraightRuns& runs() const { return runs_; }
  const StationLengths* station() const { return station_ ? &*station_ : nullptr; }

  /// Whether a loop is refused although it closes.
  using Accept = std::function<bool(const LoopPlan&)>;

  /// The longest loop of at most this total that is accepted. One that closes exactly comes before
  /// those that do within the play.
  Steps longest(Micrometres mostTotal, Accept accept, std::optional<LoopPlan>& found);

  /// The one with the longest station, and of those the longest loop.
  Steps longestStation(Micrometres mostTotal, Accept accept, std::optional<LoopPlan>& found);

  /// The one of the fewest pieces, at most `most`, whose sides are all at most one shortest
  /// straight (of all that there are: `play`) off those of `model`.
  Steps fewest(const LoopPlan& model, Micrometres play, int most, Accept accept,
               std::optional<LoopPlan>& found);

  /// Whether lines of any kind leave room for it, if straights came in all lengths.
  bool hasRoom();

 private:
  struct Offsets;
  struct Pair;
  struct Window {
    Micrometres low = 0;
    Micrometres high = 0;
  };

  std::vector<std::size_t> leftTurns() const;
  std::vector<std::vector<Micrometres>> offsets(int grid) const;
  Axis axisOf(bool level, const std::vector<Micrometres>& offsets, Micrometres misfit,
              const std::vector<Window>* windows) const;
  std::vector<Pair> pairsOf(int grid, Micrometres misfitX, Micrometres misfitY,
                            const std::vector<Window>* windows) const;
  LoopPlan planOf(const Pair& pair, const AxisSums& level, const AxisSums& upright) const;
  Steps longestOf(const std::vector<const Pair*>& pairs, Micrometres mostTotal, long& tries,
                  long share, std::optional<LoopPlan>& found) const;
  Steps longestOfMany(const std::vector<Pair>& pairs, Micrometres mostTotal, Accept accept,
                      std::optional<LoopPlan>& found) const;
  Micrometres stockTotal() const;
  Steps fewestValues(const std::vector<Window>& windows,
                     std::vector<std::vector<AxisSearch::Value>>& values) const;

  const LayoutTask& task_;
  const TablePath& path_;
  const StationThroat& throat_;
  std::vector<PlainStraight> straights_;
  StraightRuns runs_;
  std::optional<StationLengths> station_;
  std::vector<std::unique_ptr<SideSums>> sides_;
  std::size_t stationSide_ = 0;
  // As the last loop was found:
  bool stationApart_ = true; ///< sides that face the station keep clear of all of it
  bool near_ = true;         ///< the end of an aisle stays near to its edge
};

} // namespace trassix
