// What a user wants of the heights of the selected track, while its dialog is open.
#pragma once

#include "document/records_fwd.h"
#include "editing/elevation/grade_edits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class PlanPreview;

/// Every entry says at once what would come of it, and `plan` is that; nothing is changed. Of
/// height, rise and grade the last one that was typed holds, and the others follow it.
class ElevationForm {
 public:
  enum class Task : std::uint8_t { Climb, Grade, Raise, Level, Ease, EndHeight };
  static constexpr std::size_t kTasks = 6;
  enum class Field : std::uint8_t { Height, Rise, Percent, Degrees, Limit, Length };
  static constexpr std::size_t kFields = 6;
  enum class Switch : std::uint8_t {
    Eased,
    SteepThenLevel,
    OpenRun,
    PieceAlone,
    TiltAlone,
    Spread
  };
  static constexpr std::size_t kSwitches = 6;

  /// The layout must outlive the form and stay as it is.
  explicit ElevationForm(const Layout& layout);

  Task task() const { return task_; }
  void setTask(Task task);

  /// The ends that the selected track has towards the rest, or all when it has none.
  std::vector<std::string> endNames() const;
  std::size_t from() const { return from_; }
  std::size_t to() const { return to_; }
  void setFrom(std::size_t end);
  void setTo(std::size_t end);
  void turnRound();
  /// Where a train can go from one to the other, the shortest way first.
  std::vector<std::string> wayNames() const;
  std::size_t way() const { return way_; }
  void setWay(std::size_t way);

  /// What the task has use for.
  bool usesTo() const;
  bool uses(Field field) const;
  bool uses(Switch which) const;

  void enter(Field field, std::string_view text);
  const std::string& text(Field field) const { return texts_[index(field)]; }
  void set(Switch which, bool on);
  bool isOn(Switch which) const { return switches_[static_cast<std::size_t>(which)]; }

  /// Why it cannot be done, empty when it can.
  std::string problem() const;
  /// What would come of it.
  std::string summary() const;
  bool ready() const;
  const HeightPlan& plan() const { return plan_; }

  /// The way from one end to the other as it is and as it would be; empty when there is none.
  TrainWay wayNow() const { return ways_.empty() ? TrainWay() : ways_[way_]; }
  TrainWay wayPlanned() const;
  /// The way's track as it would be, with both ends named.
  PlanContent picture() const;
  void showOn(PlanPreview& preview) const;

 private:
  static std::size_t index(Field field) { return static_cast<std::size_t>(field); }
  void chooseEnds();
  void findWays();
  void compute();
  void computeClimb();
  void computeGrade();
  void computeLift();
  void follow(double rise, double slope);
  void showFigure(Field field, const std::string& text);
  double read(Field field, std::string_view text);
  double startHeight() const;
  TrackEnd fromEnd() const;
  std::vector<std::int32_t> graded() const;
  LoopRule loops() const;
  PlacedPiece laid(const PlacedPiece& piece) const;

  const Layout& layout_;
  std::int32_t units_;
  std::vector<std::int32_t> selected_;
  std::vector<TrackEnd> ends_;
  std::vector<TrainWay> ways_;
  std::size_t from_ = 0;
  std::size_t to_ = 0;
  std::size_t way_ = 0;
  Task task_ = Task::Climb;
  std::optional<Field> typed_; ///< of height, rise and grade; none: as the track lies
  double value_ = 0;           ///< of what was typed: mm, or a slope
  double length_ = 0;
  double limit_ = kSteepestSlope;
  std::array<std::string, kFields> texts_;
  std::array<std::string, kFields> problems_;
  std::array<bool, kSwitches> switches_{};
  HeightPlan plan_;
};

} // namespace trassix
