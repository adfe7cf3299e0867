#pragma once

#include "ui/docks/docked_panel.h"

#include <array>
#include <functional>
#include <vector>

class wxKeyEvent;
class wxSplitterWindow;

namespace trassix {

class DockTabs;

/// Panels under the canvas and beside it, which keeps what it shows at its place. A side without a
/// panel has no windows at all, so the canvas stands in the window's splitter as if there were no
/// docks. F6 and Shift+F6 go from the canvas through the docks and the windows named to `goOnTo`,
/// Ctrl+PageUp and Ctrl+PageDown
/// through the tabs of one, Esc goes back to the canvas.
class DockArea {
 public:
  /// Where the canvas stands, in a splitter. Called once.
  void surround(CanvasPanel& canvas, Workspace& workspace);
  /// F6 comes there as well, while the window is shown.
  void goOnTo(wxWindow& window) { others_.push_back(&window); }
  /// Called whenever a panel was shown, or hidden, or brought to the front.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

  /// In front and with the focus; it is made when it is not there.
  wxWindow& show(const DockedPanel& panel);
  void hide(const DockedPanel& panel);
  /// Hides the panel when it is in front of its dock, else shows it.
  void toggle(const DockedPanel& panel);
  bool shown(const DockedPanel& panel) const;

 private:
  /// A side while something is docked there; the splitter holds the canvas, or what has it inside.
  struct Dock {
    wxSplitterWindow* splitter = nullptr;
    DockTabs* tabs = nullptr;
    int size = 0; ///< px, as the user left it; kept while the dock is closed
  };

  Dock& dockOf(const DockedPanel& panel) { return docks_[static_cast<std::size_t>(panel.side)]; }
  const Dock& dockOf(const DockedPanel& panel) const {
    return docks_[static_cast<std::size_t>(panel.side)];
  }
  void open(DockSide side);
  void close(Dock& dock);
  /// The canvas cannot move while it holds the mouse.
  void letGoOfTheMouse();
  void onKey(wxKeyEvent& event);
  void focusNext(int by);
  void told();

  CanvasPanel* canvas_ = nullptr;
  Workspace* workspace_ = nullptr;
  std::function<void()> changed_;
  std::array<Dock, 2> docks_;
  std::vector<wxWindow*> others_;
};

} // namespace trassix
