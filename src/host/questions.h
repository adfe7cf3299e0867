#pragma once

#include "editing/edit_result.h"
#include "geometry/point.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

class Layout;
class Workspace;
struct HeightPlan;
struct HelixWish;
struct LongWork;
struct Shape;
struct ShapeAnswer;

/// A Yes/No question before something is lost; No is the default.
struct Question {
  std::string title;
  std::string text;
  bool warning = false; ///< warning icon instead of the question mark
};

/// One row of a context menu; an empty text is a separator.
struct MenuRow {
  std::string text;
  std::string keys;         ///< shown at the right, for example "Del"
  std::string problem = {}; ///< why it cannot be taken; empty when it can
  std::function<void()> action;
  std::string submenu =
      {}; ///< neighbouring rows with the same text here stand in a menu of that name
};

/// Choosing one of several rows, with the highlighted one shown on the plan meanwhile.
struct Choice {
  std::string title;
  std::string line; ///< one line above the rows
  std::vector<std::string> rows;
  std::vector<std::string> notes; ///< a line for each row, shown under them while it is highlighted
  std::string accept;             ///< label of the button that takes the row
  std::function<void(std::size_t)> highlighted;
  Point about = {}; ///< where on the plan that is, in mm
};

/// What is told and asked in boxes of their own, over the window.
class Questions {
 public:
  virtual ~Questions() = default;

  virtual void show(const Notice& notice) = 0;
  virtual bool confirm(const Question& question) = 0;
  /// The chosen row; none when cancelled.
  virtual std::optional<std::size_t> choose(const Choice& choice) = 0;
  /// A line of text from the user; none when cancelled.
  virtual std::optional<std::string> askText(const std::string& title, const std::string& prompt,
                                             const std::string& value) = 0;
  virtual void popupMenu(const std::vector<MenuRow>& rows) = 0;
  /// The shape as the user wants it; none when cancelled.
  virtual std::optional<ShapeAnswer> askShape(const Layout& layout, const Shape& shape) = 0;
  /// What is to become of the heights of the selected track; none when cancelled.
  virtual std::optional<HeightPlan> askHeights(Workspace& workspace) = 0;
  /// A helix as the user wants it, beginning with `from`: a new one, or what the one with this id
  /// is to become. None when cancelled.
  virtual std::optional<HelixWish> askHelix(Workspace& workspace, const HelixWish& from,
                                            std::int32_t helix = -1) = 0;
  /// Does all of the work before it returns, while the window lives on but takes no input; shows
  /// how far it is when it takes longer than a moment. False when the user cancelled it. What a
  /// step throws ends the work and is thrown from here.
  virtual bool finish(const LongWork& work) = 0;
};

} // namespace trassix
