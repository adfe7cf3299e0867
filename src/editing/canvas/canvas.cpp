#include "editing/canvas/canvas.h"

#include "editing/canvas/article_places.h"
#include "editing/canvas/canvas_tools.h"
#include "editing/canvas/carry_tool.h"
#include "editing/canvas/grade_painter.h"
#include "editing/canvas/placing_offer.h"
#include "editing/canvas/selection_commands.h"
#include "editing/placing/runs.h"
#include "editing/selection/content_box.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kDragThresholdPx = 3;
constexpr double kWheelIn = 1.15;
constexpr double kWheelOut = 0.8695652173913044; // 1 / 1.15
constexpr double kWheelRounding = 1e-9;          ///< by which fractions of a notch may miss it
constexpr double kTurn = 15.0;                   ///< of the selection by one notch, degrees
constexpr double kFineTurn = 5.0;

bool beyondThreshold(Point a, Point b) {
  return std::abs(a.x - b.x) > kDragThresholdPx || std::abs(a.y - b.y) > kDragThresholdPx;
}

} // namespace

Canvas::Canvas(Workspace& workspace)
    : site_(std::make_unique<ToolSite>(workspace)), articles_(std::make_unique<ArticlePlaces>()),
      grades_(std::make_unique<GradePlaces>()), offer_(std::make_unique<PlacingOffer>(*site_)),
      base_(makeTool(ToolMode::Select, *site_)) {
  site_->carry = [this](const Carried& what) { carry(what, last_, false); };
}

Canvas::~Canvas() = default;

Canvas::Input::~Input() {
  if (--canvas_.inputDepth_ == 0)
    canvas_.retired_.clear();
}

ViewTransform& Canvas::view() {
  return site_->view;
}

const ViewTransform& Canvas::view() const {
  return site_->view;
}

void Canvas::resize(SizePx size) {
  site_->size = size;
}

CanvasTool& Canvas::tool() const {
  return carry_ ? *carry_ : *base_;
}

void Canvas::press(Button button, const PointerInput& input) {
  const Input working(*this);
  pointAt(input);
  if (button == Button::Right) {
    if (carry_ || gesture_ != Gesture::None)
      cancel();
    else
      tool().contextMenu(input);
    afterInput();
    return;
  }
  if (gesture_ != Gesture::None) {
    if (button != button_)
      return;
    cancel(); // its release went elsewhere
  }
  button_ = button;
  dropped_ = false;
  pressed_ = input;
  originAtPress_ = site_->view.origin();
  if (button == Button::Middle || space_) {
    gesture_ = Gesture::Pan;
  } else if (input.ctrl) {
    gesture_ = Gesture::PanPending;
  } else {
    gesture_ = Gesture::Pending;
    tool().press(input);
  }
  afterInput();
}

void Canvas::move(const PointerInput& input) {
  const Input working(*this);
  pointAt(input);
  switch (gesture_) {
  case Gesture::None:
    tool().hover(input);
    break;
  case Gesture::Pending:
    if (!beyondThreshold(input.px, pressed_.px) && !carry_)
      break;
    gesture_ = Gesture::Drag;
    [[fallthrough]];
  case Gesture::Drag:
    tool().drag(input);
    break;
  case Gesture::PanPending:
    if (!beyondThreshold(input.px, pressed_.px))
      break;
    gesture_ = Gesture::Pan;
    [[fallthrough]];
  case Gesture::Pan:
    pan(input);
    break;
  }
  site_->workspace.setPointer(pointer());
  afterInput();
}

void Canvas::release(Button button, const PointerInput& input) {
  const Input working(*this);
  pointAt(input);
  if (button == Button::Right || (gesture_ != Gesture::None && button != button_))
    return;
  const Gesture gesture = gesture_;
  dropped_ = carrying();
  gesture_ = Gesture::None;
  switch (gesture) {
  case Gesture::PanPending: // a click with Ctrl after all
    tool().press(pressed_);
    tool().release(input, false);
    break;
  case Gesture::Pending:
    tool().release(input, false);
    break;
  case Gesture::Drag:
    tool().release(input, true);
    break;
  case Gesture::None:
    // A carry that began in another window with the button down ends with its release here.
    if (carry_)
      carry_->release(input, true);
    break;
  case Gesture::Pan: // the last moves may not have been told
    pan(input);
    break;
  }
  afterInput();
}

void Canvas::pan(const PointerInput& input) {
  site_->view.panTo({originAtPress_.x + input.px.x - pressed_.px.x,
                     originAtPress_.y + input.px.y - pressed_.px.y});
  viewChanged();
}

void Canvas::doubleClick(const PointerInput& input) {
  // A click that let go of something was not the first half of a double-click, and with Ctrl or
  // Space held each press is one of its own.
  if (carry_ || dropped_ || input.ctrl || space_)
    return press(Button::Left, input);
  const Input working(*this);
  pointAt(input);
  gesture_ = Gesture::None;
  tool().doubleClick(input);
  afterInput();
}

void Canvas::wheel(const PointerInput& input, double notches) {
  const Input working(*this);
  pointAt(input);
  if (notches == 0)
    return;
  const bool whole = std::abs(notches) >= 1;
  if (!carry_ && !wheelTurnsSelection(input)) {
    wheelRest_ = 0;
    const double step = notches > 0 ? kWheelIn : kWheelOut;
    site_->view.zoomAbout(whole ? step : std::pow(kWheelIn, notches), input.px);
    viewChanged();
  } else {
    // Turning back counts from the start.
    if (whole || wheelRest_ * notches < 0)
      wheelRest_ = 0;
    wheelRest_ += whole ? std::copysign(1.0, notches) : notches;
    if (const double step = std::round(wheelRest_); std::abs(wheelRest_) >= 1 - kWheelRounding) {
      wheelRest_ -= step;
      const int direction = step > 0 ? 1 : -1;
      if (carry_)
        carry_->wheel(input, direction);
      else
        turnSelection(*site_, direction * (input.shift ? kFineTurn : kTurn));
    }
  }
  afterInput();
}

bool Canvas::wheelTurnsSelection(const PointerInput& input) const {
  // Not under a drag, which has taken up the selection as it was.
  return input.ctrl && (gesture_ == Gesture::None || gesture_ == Gesture::PanPending) &&
         selectionBox(site_->layout());
}

void Canvas::setSpace(bool down) {
  if (space_ == down)
    return;
  space_ = down;
  renewHint();
}

void Canvas::leave() {
  const Input working(*this);
  if (wantsCapture())
    return;
  tool().leave();
  afterInput();
}

bool Canvas::key(const KeyInput& input) {
  const Input working(*this);
  if (input.key == Key::Escape && (carry_ || gesture_ != Gesture::None)) {
    if (carry_)
      site_->choice.forget();
    cancel();
    return true;
  }
  const bool used = tool().key(input);
  afterInput();
  return used;
}

void Canvas::retire(std::unique_ptr<CanvasTool> tool) {
  // A tool may well end its own mode, or put a question during which it is cancelled.
  if (tool && inputDepth_ > 0)
    retired_.push_back(std::move(tool));
}

void Canvas::cancel() {
  if (gesture_ == Gesture::Pan) {
    site_->view.panTo(originAtPress_);
    viewChanged();
  }
  gesture_ = Gesture::None;
  tool().cancel();
  retire(std::move(carry_));
  site_->workspace.repaint();
  afterInput();
}

bool Canvas::wantsCapture() const {
  return carry_ || gesture_ != Gesture::None;
}

void Canvas::startCarry(std::unique_ptr<CarryTool> carry, const PointerInput& at) {
  cancel();
  ++carries_;
  carry_ = std::move(carry);
  carry_->hover(at);
  afterInput();
}

void Canvas::carry(const Carried& what, const PointerInput& at, bool held) {
  if (auto tool = makeCarryTool(*site_, what, held, carry_.get()))
    startCarry(std::move(tool), at);
}

bool Canvas::goOnWith(const Carried& what) {
  const auto* piece = std::get_if<CarriedPiece>(&what);
  if (piece == nullptr || selectedPieces(site_->layout()).empty())
    return false;
  const ExtensionWish wish = site_->choice.wishFor(piece->article);
  const Run run = placeRun(site_->layout(), piece->article, piece->count, wish,
                           [&] { return extendSelected(site_->layout(), piece->article, wish); });
  site_->reportExtension(run.result);
  if (run.count == 0 && !run.result.refusal)
    site_->workspace.setHint(tr("The selected piece has no free end to go on from"));
  else if (run.count > 0 && run.count < piece->count)
    site_->workspace.setHint(
        tr("Placed %1% of %2%: there is no free end to go on from", {run.count, piece->count}));
  return true;
}

void Canvas::offer(std::optional<Offer> what) {
  offer_->take(std::move(what));
  site_->workspace.repaint();
  renewHint();
}

bool Canvas::flipOffered(int step) {
  if (!offer_->flip(step))
    return false;
  site_->workspace.repaint();
  return true;
}

bool Canvas::scrollAtEdge() {
  constexpr double kEdgePx = 14;
  constexpr double kStepPx = 12;
  const auto towards = [](double at, double size) {
    return at < kEdgePx ? kStepPx : at > size - kEdgePx ? -kStepPx : 0.0;
  };
  if (!carry_ || gesture_ == Gesture::Pan || !site_->holds(last_.px))
    return false;
  const Point by{towards(last_.px.x, site_->size.width), towards(last_.px.y, site_->size.height)};
  if (by.x == 0 && by.y == 0)
    return false;
  const Point origin = site_->view.origin();
  site_->view.panTo({origin.x + by.x, origin.y + by.y});
  viewChanged();
  return true;
}

void Canvas::show(const Box& box, bool inTheMiddle) {
  const SizePx size = site_->size;
  if (!inTheMiddle && site_->view.holds(box, size.width, size.height))
    return;
  site_->view.centre(box, size.width, size.height);
  viewChanged();
}

void Canvas::pointAt(const PointerInput& input) {
  last_ = input;
  pointed_ = true;
}

void Canvas::viewChanged() {
  // The plan moved below the pointer.
  if (pointed_)
    last_.world = site_->view.toWorld(last_.px);
  told_ = site_->view;
  if (carry_)
    carry_->hover(last_);
  site_->workspace.setPointer(pointer());
  site_->workspace.repaint();
}

void Canvas::followView() {
  if (told_ != site_->view)
    viewChanged();
}

void Canvas::renewHint() {
  followView();
  site_->workspace.setHint(hint());
}

void Canvas::afterInput() {
  if (carry_ && carry_->finished()) {
    retire(std::move(carry_));
    site_->workspace.repaint();
  }
  renewHint();
}

void Canvas::modeChanged() {
  const ToolMode mode = site_->workspace.switches().mode;
  if (mode == mode_)
    return;
  cancel();
  mode_ = mode;
  retire(std::move(base_));
  base_ = makeTool(mode, *site_);
  afterInput();
  site_->workspace.repaint();
}

void Canvas::documentReplaced() {
  cancel();
  retire(std::move(base_));
  base_ = makeTool(mode_, *site_);
}

Point Canvas::centre() const {
  return site_->view.toWorld({site_->size.width / 2, site_->size.height / 2});
}

void Canvas::zoomStep(double factor) {
  if (carry_ && site_->holds(last_.px)) {
    site_->view.zoomAbout(factor, last_.px);
    return viewChanged();
  }
  const auto half = [](double length) { return std::floor(length / 2); };
  site_->view.zoomAbout(factor, {half(site_->size.width), half(site_->size.height)});
  viewChanged();
}

void Canvas::fit() {
  site_->view.fit(contentBox(site_->layout()).value_or(Box{}), site_->size.width,
                  site_->size.height);
  viewChanged();
}

void Canvas::fitSelection() {
  const std::optional<Box> box = selectedContentBox(site_->layout());
  if (!box)
    return;
  site_->view.fit(*box, site_->size.width, site_->size.height);
  viewChanged();
}

void Canvas::resetView() {
  site_->view.reset();
  viewChanged();
}

void Canvas::resetViewForSmall() {
  site_->resetViewForSmall();
  viewChanged();
}

std::string Canvas::hint() const {
  if (gesture_ == Gesture::Pan)
    return tr("Panning: let go to stay here, Esc to go back");
  if (space_ && gesture_ == Gesture::None)
    return hintOf({tr("Drag: pan"), tr("Wheel: zoom")});
  if (!carry_ && gesture_ == Gesture::None)
    if (std::string offered = offer_->hint(); !offered.empty())
      return offered;
  return tool().hint();
}

CursorShape Canvas::cursor() const {
  if (gesture_ == Gesture::Pan || (space_ && gesture_ == Gesture::None))
    return CursorShape::Hand;
  return tool().cursor();
}

} // namespace trassix
