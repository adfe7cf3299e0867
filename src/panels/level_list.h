#pragma once

#include "editing/levels/level_edits.h"
#include "panels/length_entry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// The levels of a plan while they are being edited; the plan itself changes only by `apply`.
/// Levels are told by their place in the list. A level that records name but the plan lacks is
/// listed too.
class LevelList {
 public:
  struct Row {
    Level level;      ///< still with its name before; the height is the last good one
    std::string name; ///< as it is typed
    LengthEntry height;
  };

  /// The layout must outlive the list.
  explicit LevelList(const Layout& layout);

  std::int32_t units() const; ///< in which the plan shows lengths

  std::size_t size() const { return rows_.size(); }
  const Row& row(std::size_t place) const { return rows_.at(place); }
  std::size_t active() const { return active_; }

  /// The active level is where new things go, so it is shown as well.
  void setActive(std::size_t place);

  /// Hiding the active level makes the next visible one active. Returns why it is refused: one
  /// level always stays visible.
  std::string setVisible(std::size_t place, bool visible);

  void enterName(std::size_t place, std::string_view name);
  void enterHeight(std::size_t place, std::string_view height);
  void setTrackColor(std::size_t place, bool own, Color color);

  void setOutline(std::size_t place, const std::vector<Point>& outline);
  bool baseboardThere() const;
  void outlineFromBaseboard(std::size_t place);
  bool shapeThere() const;
  void outlineFromShape(std::size_t place);

  /// Appends a level with a free id and name, higher than the highest one. Returns its place.
  std::size_t add();

  bool canRemove() const { return rows_.size() > 1; }

  /// What stands on the level, together with what comes there from levels removed before.
  std::size_t contentCount(std::size_t place) const;

  /// Why its content can move to another level but not be deleted; empty when it can.
  std::string contentLock(std::size_t place) const;

  /// What stands on it goes to the level at `heir`, a different place, or is deleted. Returns false
  /// and removes nothing when it is the only level or its content must not be deleted.
  bool remove(std::size_t place, std::optional<std::size_t> heir);

  /// Why the entries of this level are refused, the first reason in one sentence; empty when they
  /// are good.
  std::string problem(std::size_t place) const;
  /// The first level with a problem.
  std::optional<std::size_t> firstProblem() const;

  /// What is to be asked before `apply`: where track comes apart, since nothing between two levels
  /// can take up their difference. Empty when it does not.
  std::string openingQuestion() const;

  /// One undo step. Nothing changes when nothing was edited or something is refused.
  ChangeResult apply(Layout& layout) const;

 private:
  void append(const Level& level);
  bool nameTaken(const std::string& name, std::size_t except) const;
  LevelChange change() const;

  const Layout& layout_;
  std::vector<Row> rows_;
  LevelChange before_;
  std::size_t active_ = 0;
  std::int32_t nextId_ = 1;
  std::map<std::int32_t, std::optional<std::int32_t>> heirs_;
  std::int32_t shapeUser_ = -1; ///< id of the level that took the outline of the shape
};

} // namespace trassix
