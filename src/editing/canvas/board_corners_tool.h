#pragma once

#include "editing/canvas/corner_editor.h"

namespace trassix {

/// Moves, adds and removes corners of the baseboard or of a level's outline, which lie below
/// everything and are left alone otherwise.
class BoardCornersTool : public CanvasTool {
 public:
  explicit BoardCornersTool(ToolSite& site) : CanvasTool(site), corners_(site) {}

  void press(const PointerInput& input) override { pressed_ = input; }
  void hover(const PointerInput& input) override;
  void drag(const PointerInput& input) override;
  void release(const PointerInput& input, bool dragged) override;
  void doubleClick(const PointerInput& input) override { corners().doubleClick(input); }
  void contextMenu(const PointerInput& input) override;
  bool key(const KeyInput& input) override;
  void cancel() override { gesture_.reset(); }
  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  CornerEditor& corners();

  CornerEditor corners_;
  PointerInput pressed_;
  std::unique_ptr<Gesture> gesture_;
};

} // namespace trassix
