#pragma once

#include "editing/arranging/corner_edits.h"
#include "editing/canvas/gesture.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// A handle of an outline: on a corner, or in the middle of an edge, where a new corner can be
/// pulled out.
struct CornerHandle {
  std::size_t corner = 0; ///< of an edge the one that it begins at
  bool onEdge = false;

  bool operator==(const CornerHandle&) const = default;
};

/// The handles of an outline that is being edited, as they are used by tools: a corner is dragged,
/// chosen by a click and then removed by Del; a handle on an edge is dragged or double-clicked to
/// add one.
class CornerEditor {
 public:
  explicit CornerEditor(ToolSite& site) : site_(site) {}

  /// Of what the handles are; none for nothing.
  void edit(const std::optional<Outlined>& what);

  /// True when another handle than before is under the pointer.
  bool hover(const PointerInput& input);
  void leave() { pointed_.reset(); }
  /// A drag that begins on a handle; null when there is none.
  std::unique_ptr<Gesture> grab(const PointerInput& input);
  /// These are false when they are not meant for a handle.
  bool click(const PointerInput& input);
  bool doubleClick(const PointerInput& input);
  bool removeChosen();

  /// Rows of the context menu for the place.
  std::vector<MenuRow> menu(Point at);

  void paint(Surface& surface) const;
  std::string hint() const; ///< empty with no handle under the pointer and no corner chosen

 private:
  const std::vector<Point>* corners() const;
  std::optional<CornerHandle> handleAt(Point world) const;
  std::optional<std::size_t> chosenCorner() const;
  void askPlace(std::size_t corner);

  ToolSite& site_;
  std::optional<Outlined> what_;
  std::optional<CornerHandle> pointed_;
  std::optional<std::size_t> chosen_;
};

} // namespace trassix
