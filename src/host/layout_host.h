#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// What the mouse does on the plan. The values are part of the frame's contract.
enum class ToolMode : std::int32_t { Select = 0, Measure = 3, Polygon = 4 };

/// What becomes of the polygon that is drawn.
struct PolygonUse {
  enum class Kind : std::uint8_t { Shape, Baseboard, LevelOutline };

  Kind kind = Kind::Shape;
  std::int32_t level = -1; ///< whose outline it becomes
};

/// Switches that belong to the window, not to the document.
struct EditorSwitches {
  bool snap = true;
  bool grid = true;
  bool labels = true; ///< article labels and join dots
  bool rails = true;
  ToolMode mode = ToolMode::Select;
  PolygonUse polygonUse;
};

/// A Yes/No question before something is lost; No is the default.
struct Question {
  std::string title;
  std::string text;
  bool warning = false; ///< warning icon instead of the question mark
};

/// One row of a context menu; an empty text is a separator.
struct MenuRow {
  std::string text;
  std::string keys; ///< shown at the right, for example "Del"
  bool enabled = true;
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

/// The window as the canvas, its tools, panels and dialogs see it. Every change of the document
/// goes through `changed`, so that title, tally and pictures can never disagree.
class LayoutHost {
 public:
  virtual ~LayoutHost() = default;

  virtual Layout& layout() = 0;
  virtual const EditorSwitches& switches() const = 0;

  /// The document was changed (done, undone or redone): marks it unsaved and refreshes everything.
  virtual void changed() = 0;
  virtual void selectionChanged() = 0;
  /// Only the picture is out of date.
  virtual void repaint() = 0;
  /// The first status-bar field: what the mouse and keys do now.
  virtual void setHint(const std::string& hint) = 0;
  /// The pointer's place on the plan in mm.
  virtual void setPointer(Point world) = 0;
  /// Leaves the measuring or polygon mode, as the tool bar shows it.
  virtual void setToolMode(ToolMode mode) = 0;

  virtual void show(const Notice& notice) = 0;
  virtual bool confirm(const Question& question) = 0;
  virtual std::optional<std::size_t> choose(const Choice& choice) = 0;
  /// A line of text from the user; empty when cancelled.
  virtual std::optional<std::string> askText(const std::string& title, const std::string& prompt,
                                             const std::string& value) = 0;
  virtual void popupMenu(const std::vector<MenuRow>& rows) = 0;
  virtual void editShape(std::int32_t shape) = 0;
  /// The frame's own command: asks its questions, then deletes the selection.
  virtual void deleteSelection() = 0;

  virtual void putClipboard(const std::string& text) = 0;
  virtual std::string clipboard() = 0;
};

} // namespace trassix
