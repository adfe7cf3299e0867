#pragma once

#include "editing/canvas/canvas_input.h"
#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "geometry/box.h"
#include "host/editor_switches.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class ArticlePlaces;
class CanvasTool;
class CarryTool;
class GradePlaces;
class PlacingOffer;
class PlanPreview;
class ToolSite;
class Workspace;
struct Carried;
struct PlanTheme;
struct Offer;
struct PaintOptions;

/// The plan as the user handles it, without a window: the view, panning, zooming, and one active
/// tool to which everything else goes. The window feeds it plain input and paints what it draws.
class Canvas {
 public:
  explicit Canvas(Workspace& workspace);
  ~Canvas();

  enum class Button : std::uint8_t { Left, Middle, Right };

  /// One of the program's themes, which live as long as the process.
  void setTheme(const PlanTheme& theme);
  const PlanTheme& theme() const;

  ViewTransform& view();
  const ViewTransform& view() const;
  void resize(SizePx size);
  /// The middle of what is in view, mm.
  Point centre() const;

  void press(Button button, const PointerInput& input);
  void move(const PointerInput& input);
  void release(Button button, const PointerInput& input);
  /// The second press of a double-click with the left button.
  void doubleClick(const PointerInput& input);
  /// `notches` is signed. Of a whole notch or more only the sign counts; touchpads send fractions,
  /// which zoom in proportion and add up to the steps of everything else.
  void wheel(const PointerInput& input, double notches);
  /// The pointer left the canvas.
  void leave();
  /// Where the pointer is on the plan, or left it, mm; the plan's origin before it came.
  Point pointer() const { return last_.world; }
  bool key(const KeyInput& input);
  void setSpace(bool down);
  /// Esc or a lost capture: ends whatever is under way and leaves no ghost.
  void cancel();
  /// True while a press, a pan or something carried needs the mouse captured.
  bool wantsCapture() const;

  /// Hangs something on the pointer; ends another carry first. `held`: the mouse button is down and
  /// letting go drops it. What the catalogues do not know and empty blocks are not carried.
  void carry(const Carried& what, const PointerInput& at, bool held);
  /// Goes on from the selected track with a piece; false when it is none or no track is selected.
  bool goOnWith(const Carried& what);
  bool carrying() const { return carry_ != nullptr; }

  /// What the palette would do; none while the keys go elsewhere.
  void offer(std::optional<Offer> what);
  /// Turns what is offered round to its next way, or with -1 the one before.
  bool flipOffered(int step);

  /// Scrolls the plan when something carried rests at the canvas's edge; false when it need not.
  bool scrollAtEdge();

  /// Takes up the tool of the window's current mode.
  void modeChanged();
  void documentReplaced();

  /// About the pointer while something is carried, else about the middle.
  void zoomStep(double factor);
  void fit();
  void fitSelection();
  /// Brings a box (mm) into the middle, or only if it is out of view.
  void show(const Box& box, bool inTheMiddle);
  void resetView();
  void resetViewForSmall();

  // From the bottom to the top: the plan as such, what is selected on it, and what changes with
  // every mouse move. `part` is what of it has to be drawn, px.
  void paintPlan(Surface& surface, const Box& part);
  void paintSelection(Surface& surface, const Box& part);
  void paintOverlay(Surface& surface, bool withBody = true);
  /// Stay the same as long as `paintPlan` would draw the same, and `paintSelection` on it, but for
  /// the view.
  std::uint64_t contentStamp();
  std::uint64_t selectionStamp();
  bool anySelected() const;
  /// What is carried as one body: `paintBody` draws the same, only elsewhere, as long as `stamp`
  /// stays the same.
  struct Body {
    std::uint64_t stamp = 0;
    Point at; ///< of a point that goes with it, px
  };
  std::optional<Body> body() const;
  void paintBody(Surface& surface) const;

  std::string hint() const;
  /// Tells the window the hint again, after something outside changed what the mouse would do.
  void renewHint();
  CursorShape cursor() const;
  ToolSite& site() { return *site_; }

 private:
  CanvasTool& tool() const;
  void startCarry(std::unique_ptr<CarryTool> carry, const PointerInput& at);
  bool wheelTurnsSelection(const PointerInput& input) const;
  void afterInput();
  void pointAt(const PointerInput& input);
  void pan(const PointerInput& input);
  void viewChanged();
  void paintPreview(Surface& surface, const PlanPreview& preview);
  /// Tools move the view as well.
  void followView();
  PaintOptions paintOptions(const Box& part) const;

  /// Around everything that lets a tool work.
  class Input {
   public:
    explicit Input(Canvas& canvas) : canvas_(canvas) { ++canvas_.inputDepth_; }
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

   private:
    Canvas& canvas_;
  };

  void retire(std::unique_ptr<CanvasTool> tool);

  enum class Gesture : std::uint8_t { None, Pending, Drag, PanPending, Pan };

  std::unique_ptr<ToolSite> site_;
  std::unique_ptr<ArticlePlaces> articles_;
  std::unique_ptr<GradePlaces> grades_;
  std::unique_ptr<PlacingOffer> offer_;
  ViewTransform told_; ///< the view for which the window knows the pointer's place
  std::unique_ptr<CanvasTool> base_;
  std::unique_ptr<CarryTool> carry_;
  /// Tools that were put away while one of their functions ran, until it is back.
  std::vector<std::unique_ptr<CanvasTool>> retired_;
  int inputDepth_ = 0;
  std::uint64_t carries_ = 0; ///< begun so far
  ToolMode mode_ = ToolMode::Select;
  Gesture gesture_ = Gesture::None;
  Button button_ = Button::Left; ///< that began the gesture
  bool dropped_ = false;         ///< the last click let go of something carried
  PointerInput pressed_;
  Point originAtPress_;
  bool space_ = false;
  double wheelRest_ = 0; ///< notches on the way to the next step
  PointerInput last_;
  bool pointed_ = false; ///< whether `last_` came from the pointer
};

} // namespace trassix
