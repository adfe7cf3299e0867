#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/canvas/corner_editor.h"
#include "editing/canvas/gesture.h"
#include "editing/placing/flipping.h"
#include "editing/selection/open_ends.h"
#include "editing/selection/picking.h"

#include <memory>
#include <optional>
#include <string>

namespace trassix {

/// The ordinary tool: selecting, and shaping what is selected.
class SelectTool : public CanvasTool {
 public:
  explicit SelectTool(ToolSite& site) : CanvasTool(site), corners_(site) {}

  void press(const PointerInput& input) override;
  void hover(const PointerInput& input) override;
  void drag(const PointerInput& input) override;
  void release(const PointerInput& input, bool dragged) override;
  void doubleClick(const PointerInput& input) override;
  void contextMenu(const PointerInput& input) override;
  bool key(const KeyInput& input) override;
  void cancel() override;
  void leave() override;
  std::span<const std::int32_t> lifted() const override;
  std::optional<CarriedBody> body() const override;
  void paintBody(Surface& surface) const override;
  void paint(Surface& surface) const override;
  std::string hint() const override;
  CursorShape cursor() const override;

 private:
  std::vector<Pick> picksAt(Point world);
  CornerEditor& corners();
  bool anySelected(const std::vector<Pick>& picks) const;
  /// Other pictures mark what is under the pointer here.
  void tellPointed();
  void click(const PointerInput& input);
  void select(const Pick& pick);
  void toggle(const Pick& pick);
  void startGesture(const PointerInput& input);
  bool nudge(const KeyInput& input);
  /// Turns the only selected piece round to its next way.
  bool flipSelected(int step);
  void chooseEnd(TrackEnd end);
  /// Goes to the next open end, the view following.
  bool goToOpenEnd(int step);
  /// Asks before the selection, going by `step`, leaves graded track.
  bool mayLeave(Point step);

  PointerInput pressed_;
  const Pick* hovered() const { return under_.empty() ? nullptr : &under_.front(); }

  std::vector<Pick> under_;         ///< the pointer, topmost first
  std::optional<TrackEnd> pointed_; ///< an open end there
  std::unique_ptr<Gesture> gesture_;
  /// Of the selected shape; told of it when the mouse or a key comes.
  CornerEditor corners_;
  Flip flip_; ///< the last one, and the revision after it
  std::uint64_t flippedTo_ = 0;
  std::uint64_t nudgedTo_ = 0; ///< revision after the last nudge: a run of nudges is one undo step
};

} // namespace trassix
