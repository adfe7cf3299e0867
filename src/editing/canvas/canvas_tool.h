#pragma once

#include "editing/canvas/canvas_input.h"
#include "editing/canvas/carried.h"
#include "editing/canvas/placing_choice.h"
#include "editing/canvas/plan_clipboard.h"
#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "editing/elevation/crossings.h"
#include "editing/joining/snapping.h"
#include "editing/selection/plan_index.h"
#include "host/questions.h"
#include "host/workspace.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace trassix {

struct PlanTheme;
const PlanTheme& screenTheme();

/// What a tool works on: the open plan, the view, and the indices derived from the plan.
class ToolSite {
 public:
  explicit ToolSite(Workspace& shared) : workspace(shared) {}

  Workspace& workspace;
  ViewTransform view;
  PlanClipboard clipboard;
  PlacingChoice choice;
  std::function<void(const Carried&)> carry; ///< hangs something on the pointer
  SizePx size;                               ///< of the canvas, px

  Layout& layout() const { return workspace.layout(); }
  const PlanTheme& theme() const { return *theme_; }
  void setTheme(const PlanTheme& theme) { theme_ = &theme; }
  Questions& questions() const { return workspace.questions(); }

  /// Derived from the plan as it is now; rebuilt only when it has changed.
  const PlanIndex& planIndex();
  const SnapIndex& snapIndex();
  const std::vector<TrackCrossing>& crossings();

  /// True for a point of the canvas, false beside it.
  bool holds(Point px) const {
    return px.x >= 0 && px.y >= 0 && px.x < size.width && px.y < size.height;
  }

  /// Tells the window what an edit did: a refusal in words, or that the plan has changed and what
  /// there is to remark.
  void report(const EditResult& result);
  void report(const ChangeResult& result);
  /// The same of an edit that went on from the selection, perhaps out of view: the view follows.
  void reportExtension(const EditResult& result);

  /// Starts the view over at the scale of small gauges. Where nothing of the plan would show, it
  /// pans as little as brings something in.
  void resetViewForSmall();

  /// "Lands on ..." for a hint, for those of the levels that are hidden or not the active one.
  std::string landingHint(const std::set<std::int32_t>& levels) const;

  /// Millimetres that `px` pixels cover.
  double mm(double px) const { return px / view.zoom(); }

 private:
  const PlanTheme* theme_ = &screenTheme();
  PlanIndex planIndex_;
  SnapIndex snapIndex_;
  std::vector<TrackCrossing> crossings_;
  std::optional<std::uint64_t> crossingsStamp_;
};

/// A hint of several phrases, with room between them; empty ones are left out.
std::string hintOf(std::initializer_list<std::string> phrases);

/// What a tool carries as one rigid body, by the place of one of its points.
struct CarriedBody {
  Pose pose;
  Point grasp;       ///< tells bodies of the same records apart: where it is held, mm
  bool fits = false; ///< looks as if it were where it belongs
};

/// What the mouse and keys do on the plan. The canvas holds one active tool and forwards to it; the
/// drag threshold and panning are the canvas's own.
class CanvasTool {
 public:
  explicit CanvasTool(ToolSite& site) : site_(site) {}
  virtual ~CanvasTool() = default;

  virtual void press(const PointerInput&) {}
  /// The pointer moved with no button down.
  virtual void hover(const PointerInput&) {}
  /// The pointer moved with the left button down, beyond the drag threshold since the press.
  virtual void drag(const PointerInput&) {}
  virtual void release(const PointerInput&, bool /*dragged*/) {}
  virtual void doubleClick(const PointerInput&) {}
  virtual void contextMenu(const PointerInput&) {}
  virtual bool key(const KeyInput&) { return false; }
  /// The pointer, with nothing under way, left the plan.
  virtual void leave() {}
  /// Esc, a lost capture or another tool: leaves everything as it was before the gesture.
  virtual void cancel() {}

  /// Pieces (sorted ids) that the tool draws itself at another place.
  virtual std::span<const std::int32_t> lifted() const { return {}; }
  /// What is carried, and its picture, which is under that of `paint`.
  virtual std::optional<CarriedBody> body() const { return std::nullopt; }
  virtual void paintBody(Surface&) const {}
  virtual void paint(Surface&) const {}
  virtual std::string hint() const = 0;
  virtual CursorShape cursor() const { return CursorShape::Arrow; }

 protected:
  ToolSite& site_;
};

} // namespace trassix
