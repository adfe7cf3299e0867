#pragma once

#include "catalog/scenery_catalog.h"
#include "editing/canvas/canvas_tool.h"

#include <string_view>

namespace trassix {

/// A scenery item that hangs on the pointer until it is dropped or discarded.
class CarrySceneryTool : public CanvasTool {
 public:
  CarrySceneryTool(ToolSite& site, std::string_view key, bool held);

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

  const SceneryDef* definition_;
  Pose pose_;
  bool armed_;
  bool done_;
};

} // namespace trassix
