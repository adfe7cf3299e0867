#pragma once

#include "editing/canvas/canvas_tool.h"

#include <vector>

namespace trassix {

/// Draws a free polygon point by point. A corner by which the outline would cross itself is shown
/// in the colour of what cannot be, and a click does not take it.
class PolygonTool : public CanvasTool {
 public:
  using CanvasTool::CanvasTool;

  void hover(const PointerInput& input) override;
  void drag(const PointerInput& input) override { hover(input); }
  void release(const PointerInput& input, bool dragged) override;
  void doubleClick(const PointerInput& input) override;
  bool key(const KeyInput& input) override;
  void cancel() override;
  void paint(Surface& surface) const override;
  std::string hint() const override;
  CursorShape cursor() const override { return CursorShape::Cross; }

 private:
  void close();
  std::string nextStep() const;
  bool atFirst() const;
  /// The edge to the pointer would cross those before it.
  bool blocked() const;

  std::vector<Point> points_;
  Point pointer_;
};

} // namespace trassix
