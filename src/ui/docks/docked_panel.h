#pragma once

#include <cstdint>

class wxWindow;

namespace trassix {

class CanvasPanel;
class Workspace;

enum class DockSide : std::uint8_t { Under, Beside };

/// A panel that can be docked about the canvas. Its own header declares the row, and a command that
/// names it shows, fronts and hides the panel.
struct DockedPanel {
  const char* title; ///< marked for translation
  DockSide side;
  /// Makes the panel when it is shown; hiding it destroys it. What is to be there the next time is
  /// kept elsewhere.
  wxWindow* (*make)(wxWindow* parent, Workspace& workspace, CanvasPanel& canvas);
};

} // namespace trassix
