#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/track/connector_geometry.h"

#include <string>

namespace trassix {

/// Something that hangs on the pointer until it is dropped or discarded. The mouse wheel and R turn
/// it; without a mouse the arrow keys move it and Enter drops it.
class CarryTool : public CanvasTool {
 public:
  /// `held`: the mouse button is already down and its release drops what is carried. Otherwise a
  /// click does, and the release that ends a double-click elsewhere does not.
  CarryTool(ToolSite& site, bool held) : CanvasTool(site), armed_(held) {}

  void press(const PointerInput& input) final;
  void hover(const PointerInput& input) final;
  void drag(const PointerInput& input) final { hover(input); }
  void release(const PointerInput& input, bool dragged) final;
  /// One notch of the wheel; `direction` is +1 or -1.
  void wheel(const PointerInput& input, int direction);
  bool key(const KeyInput& input) final;
  void cancel() final { done_ = true; }
  /// True once it was dropped or discarded.
  bool finished() const { return done_; }
  void keepHeading(const CarryTool& other) { pose_.heading = other.pose_.heading; }
  CursorShape cursor() const final { return CursorShape::Move; }

 protected:
  /// The pose has changed.
  virtual void posed() {}
  /// Goes on to another way of lying, forwards or back; false for what has only one.
  virtual bool turnRound(int /*step*/) { return false; }
  virtual EditResult drop() = 0;

  const Pose& pose() const { return pose_; }
  /// "Wheel or R: ..." for the end of a hint.
  static std::string turningHint();

 private:
  void moveTo(Point world);
  /// Drops it where it is, or discards it beside the plan.
  void settle();
  void turn(double degrees);

  Pose pose_;
  bool armed_;
  bool done_ = false;
};

} // namespace trassix
