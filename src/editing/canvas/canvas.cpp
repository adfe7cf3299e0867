#include "editing/canvas/canvas.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/carry_block_tool.h"
#include "editing/canvas/carry_piece_tool.h"
#include "editing/canvas/carry_scenery_tool.h"
#include "editing/canvas/measure_tool.h"
#include "editing/canvas/polygon_tool.h"
#include "editing/canvas/select_tool.h"
#include "editing/content_box.h"

#include <bit>
#include <cmath>

namespace trassix {

namespace {

constexpr double kDragThresholdPx = 3;
constexpr double kWheelIn = 1.15;
constexpr double kWheelOut = 0.8695652173913044; // 1 / 1.15
constexpr double kWheelRounding = 1e-9;          ///< by which fractions of a notch may miss it

bool beyondThreshold(Point a, Point b) {
  return std::abs(a.x - b.x) > kDragThresholdPx || std::abs(a.y - b.y) > kDragThresholdPx;
}

/// The tools of the modes: the one place that a new one is listed in.
std::unique_ptr<CanvasTool> makeTool(ToolMode mode, ToolSite& site) {
  switch (mode) {
  case ToolMode::Measure:
    return std::make_unique<MeasureTool>(site);
  case ToolMode::Polygon:
    return std::make_unique<PolygonTool>(site);
  case ToolMode::Select:
    break;
  }
  return std::make_unique<SelectTool>(site);
}

} // namespace

Canvas::Canvas(LayoutHost& host) : site_(host), base_(makeTool(ToolMode::Select, site_)) {
  site_.carryBlock = [this](Block block) { carryBlock(std::move(block), last_, false); };
}

Canvas::~Canvas() = default;

void Canvas::press(Button button, const PointerInput& input) {
  const Input working(*this);
  last_ = input;
  if (button == Button::Right) {
    if (carry_ || gesture_ != Gesture::None)
      cancel();
    else
      tool().contextMenu(input);
    afterInput();
    return;
  }
  pressed_ = input;
  originAtPress_ = site_.view.origin();
  if (button == Button::Middle || (space_ && !carry_)) {
    gesture_ = Gesture::Pan;
  } else if (input.ctrl && !carry_) {
    gesture_ = Gesture::PanPending;
  } else {
    gesture_ = Gesture::Pending;
    tool().press(input);
  }
  afterInput();
}

void Canvas::move(const PointerInput& input) {
  const Input working(*this);
  last_ = input;
  site_.host.setPointer(input.world);
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
    site_.view.panTo({originAtPress_.x + input.px.x - pressed_.px.x,
                      originAtPress_.y + input.px.y - pressed_.px.y});
    site_.host.repaint();
    break;
  }
  afterInput();
}

void Canvas::release(Button button, const PointerInput& input) {
  const Input working(*this);
  last_ = input;
  if (button == Button::Right)
    return;
  const Gesture gesture = gesture_;
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
  case Gesture::Pan:
    break;
  }
  afterInput();
}

void Canvas::doubleClick(const PointerInput& input) {
  const Input working(*this);
  last_ = input;
  gesture_ = Gesture::None;
  tool().doubleClick(input);
  afterInput();
}

void Canvas::wheel(const PointerInput& input, double notches) {
  const Input working(*this);
  last_ = input;
  if (notches == 0)
    return;
  const bool whole = std::abs(notches) >= 1;
  if (!tool().takesWheel(input)) {
    wheelRest_ = 0;
    const double step = notches > 0 ? kWheelIn : kWheelOut;
    site_.view.zoomAbout(whole ? step : std::pow(kWheelIn, notches), input.px);
    site_.host.repaint();
  } else {
    // Turning back counts from the start.
    if (whole || wheelRest_ * notches < 0)
      wheelRest_ = 0;
    wheelRest_ += whole ? std::copysign(1.0, notches) : notches;
    if (const double step = std::round(wheelRest_); std::abs(wheelRest_) >= 1 - kWheelRounding) {
      wheelRest_ -= step;
      tool().wheel(input, step > 0 ? 1 : -1);
    }
  }
  afterInput();
}

bool Canvas::key(const KeyInput& input) {
  const Input working(*this);
  if (input.key == Key::Escape && (carry_ || gesture_ != Gesture::None)) {
    cancel();
    return true;
  }
  const bool used = tool().key(input);
  afterInput();
  return used;
}

void Canvas::retire(std::unique_ptr<CanvasTool>& tool) {
  // A tool may well end its own mode, or put a question during which it is cancelled.
  if (tool && inputDepth_ > 0)
    retired_.push_back(std::move(tool));
  tool.reset();
}

void Canvas::cancel() {
  if (gesture_ == Gesture::Pan)
    site_.view.panTo(originAtPress_);
  gesture_ = Gesture::None;
  tool().cancel();
  retire(carry_);
  site_.host.repaint();
  afterInput();
}

bool Canvas::wantsCapture() const {
  return carry_ || gesture_ != Gesture::None;
}

void Canvas::startCarry(std::unique_ptr<CanvasTool> carry, const PointerInput& at) {
  cancel();
  carry_ = std::move(carry);
  carry_->hover(at);
  afterInput();
}

void Canvas::carryPiece(std::string_view article, const PointerInput& at, bool held) {
  if (const PieceDef* definition = TrackCatalog::instance().find(article))
    startCarry(std::make_unique<CarryPieceTool>(site_, *definition, held), at);
}

void Canvas::carryScenery(std::string_view key, const PointerInput& at, bool held) {
  if (const SceneryDef* definition = findScenery(key))
    startCarry(std::make_unique<CarrySceneryTool>(site_, *definition, held), at);
}

void Canvas::carryBlock(Block block, const PointerInput& at, bool held) {
  if (!block.empty())
    startCarry(std::make_unique<CarryBlockTool>(site_, std::move(block), held), at);
}

void Canvas::afterInput() {
  if (carry_ && carry_->finished()) {
    retire(carry_);
    site_.host.repaint();
  }
  site_.host.setHint(hint());
}

void Canvas::modeChanged() {
  const ToolMode mode = site_.host.switches().mode;
  if (mode == mode_)
    return;
  cancel();
  mode_ = mode;
  retire(base_);
  base_ = makeTool(mode, site_);
  afterInput();
  site_.host.repaint();
}

void Canvas::documentReplaced() {
  cancel();
  retire(base_);
  base_ = makeTool(mode_, site_);
}

Point Canvas::centre() const {
  return site_.view.toWorld({site_.size.width / 2, site_.size.height / 2});
}

void Canvas::zoomAboutCentre(double factor) {
  const auto half = [](double length) { return std::floor(length / 2); };
  site_.view.zoomAbout(factor, {half(site_.size.width), half(site_.size.height)});
  site_.host.repaint();
}

void Canvas::fit() {
  // An empty plan has nothing to fit: the start view shows a table's worth of room instead.
  if (const std::optional<Box> box = contentBox(site_.layout()))
    site_.view.fit(*box, site_.size.width, site_.size.height);
  else
    site_.view.reset();
  site_.host.repaint();
}

void Canvas::resetView() {
  site_.view.reset();
  site_.host.repaint();
}

void Canvas::resetViewForSmall() {
  site_.view.resetForSmall();
  site_.host.repaint();
}

PaintOptions Canvas::paintOptions() const {
  const EditorSwitches& switches = site_.host.switches();
  PaintOptions options;
  options.grid = switches.grid;
  options.labels = switches.labels;
  options.rails = switches.rails;
  options.leftOut = tool().lifted();
  return options;
}

void Canvas::paintPlan(Surface& surface) {
  LayoutPainter(surface, site_.size, site_.view, paintOptions())
      .paint(site_.layout(), site_.planIndex());
}

void Canvas::paintOverlay(Surface& surface) {
  tool().paint(surface);
}

std::uint64_t Canvas::planStamp() {
  std::uint64_t stamp = 1469598103934665603u; // FNV-1a over everything paintPlan depends on
  const auto mix = [&stamp](std::uint64_t value) { stamp = (stamp ^ value) * 1099511628211u; };
  const EditorSwitches& switches = site_.host.switches();
  mix(site_.layout().revision());
  mix(std::bit_cast<std::uint64_t>(site_.view.zoom()));
  mix(std::bit_cast<std::uint64_t>(site_.view.origin().x));
  mix(std::bit_cast<std::uint64_t>(site_.view.origin().y));
  mix(std::bit_cast<std::uint64_t>(site_.size.width));
  mix(std::bit_cast<std::uint64_t>(site_.size.height));
  mix((switches.grid ? 1u : 0u) | (switches.labels ? 2u : 0u) | (switches.rails ? 4u : 0u));
  for (const std::int32_t id : tool().lifted())
    mix(static_cast<std::uint64_t>(id));
  return stamp;
}

std::string Canvas::hint() const {
  if (gesture_ == Gesture::Pan)
    return "Panning: let go to stay here, Esc to go back";
  return tool().hint();
}

CursorShape Canvas::cursor() const {
  if (gesture_ == Gesture::Pan)
    return CursorShape::Hand;
  return tool().cursor();
}

} // namespace trassix
