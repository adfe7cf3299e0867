#pragma once

#include "editing/canvas/canvas_tool.h"

#include <optional>

namespace trassix {

/// The measuring tape: two clicks, or a drag, lay down a length. Points near a track end take the
/// end itself.
class MeasureTool : public CanvasTool {
 public:
  using CanvasTool::CanvasTool;

  void hover(const PointerInput& input) override;
  void press(const PointerInput& input) override;
  void drag(const PointerInput& input) override;
  void release(const PointerInput& input, bool dragged) override;
  bool key(const KeyInput& input) override;
  void cancel() override;
  void paint(Surface& surface) const override;
  std::string hint() const override;
  CursorShape cursor() const override { return CursorShape::Cross; }

 private:
  Point caught(Point world);

  Point pressedAt_;
  std::optional<Point> from_;
  Point to_;
};

} // namespace trassix
