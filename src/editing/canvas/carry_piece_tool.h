#pragma once

#include "catalog/piece_def.h"
#include "editing/canvas/canvas_tool.h"

#include <string>
#include <string_view>

namespace trassix {

/// A catalogue piece that hangs on the pointer until it is dropped or discarded. The mouse wheel and R
/// turn it; the preview stands where it would land.
class CarryPieceTool : public CanvasTool {
public:
  /// `held`: the mouse button is already down and its release drops the piece.
  CarryPieceTool(ToolSite& site, std::string_view article, bool held);

  void press(const PointerInput& input) override;
  void hover(const PointerInput& input) override;
  void drag(const PointerInput& input) override { hover(input); }
  void release(const PointerInput& input, bool dragged) override;
  bool wheel(const PointerInput& input, int direction) override;
  bool key(const KeyInput& input) override;
  void cancel() override { done_ = true; }
  bool finished() const override { return done_; }
  bool carries() const override { return true; }
  void paint(Surface& surface) const override;
  std::string hint() const override;
  CursorShape cursor() const override { return CursorShape::Move; }

private:
  void turn(double degrees);
  void search();

  std::string article_;
  const PieceDef* definition_;
  Pose pose_;
  SnapResult snap_;
  bool armed_;
  bool done_ = false;
};

} // namespace trassix
