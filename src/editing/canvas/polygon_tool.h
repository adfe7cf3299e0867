#pragma once

#include "editing/canvas/canvas_tool.h"

#include <vector>

namespace trassix {

/// Draws a free polygon point by point.
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

  std::vector<Point> points_;
  Point pointer_;
};

} // namespace trassix
