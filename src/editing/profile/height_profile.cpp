#include "editing/profile/height_profile.h"

#include "document/layout.h"
#include "editing/canvas/canvas_tool.h"
#include "editing/canvas/record_pictures.h"
#include "editing/elevation/grades.h"
#include "editing/elevation/way_handles.h"
#include "editing/profile/profile_marks.h"
#include "editing/profile/profile_painter.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "geometry/lengths.h"
#include "host/workspace.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kReachPx = 8;
constexpr double kDragThresholdPx = 3;
constexpr double kStep = 1; ///< mm
constexpr double kFineStep = 0.1;
constexpr double kLargeStep = 10;
constexpr double kWheel = 1.25;

/// Why the plan is refused; empty when it is not.
std::string problemOf(const HeightPlan& plan) {
  if (!plan.refusal)
    return {};
  return joinTexts({plan.refusal->text,
                    plan.gap ? tr("With \"Spread over loops\" the rest of the loop takes it up.")
                             : std::string()},
                   " ");
}

double rounded(double height, double step) {
  return std::round(height / step) * step;
}

} // namespace

HeightProfile::HeightProfile(Workspace& workspace) : workspace_(workspace) {
  view_.setExaggeration(workspace.switches().heightScale);
  renew();
}

HeightProfile::~HeightProfile() = default;

void HeightProfile::repaint() {
  workspace_.repaint();
}

void HeightProfile::resize(SizePx size) {
  view_.resize(size);
  view_.fit(content_);
}

void HeightProfile::renew() {
  cancel();
  const Layout& layout = workspace_.layout();
  const std::vector<std::int32_t> selected = selectedPieces(layout);
  const std::int32_t before = choice_.piece;
  if (selected != selected_ || layout.findPiece(before) == nullptr)
    choice_ = choiceThrough(layout, selected);
  selected_ = selected;
  const bool other = content_.stretchOf(choice_.piece) == content_.way.stretches.size();
  follow();
  if (other || content_.empty()) {
    view_.showAll();
    chosen_.reset();
  }
  if (chosen_ && *chosen_ > content_.way.stretches.size())
    chosen_.reset();
  pointed_.reset();
  view_.fit(content_);
}

void HeightProfile::planReplaced() {
  selected_.clear();
  choice_ = {};
  content_ = {};
  renew();
}

void HeightProfile::follow() {
  const Layout& layout = workspace_.layout();
  if (crossingsOf_ != layout.contentStamp()) {
    crossings_ = trackCrossings(layout);
    crossingsOf_ = layout.contentStamp();
  }
  content_ = profileOf(layout, choice_, crossings_);
  knees_ = kneesOn(layout, content_.way);
}

std::optional<std::size_t> HeightProfile::handleAt(Point px) const {
  std::optional<std::size_t> found;
  double nearest = kReachPx;
  for (const ProfileHandle& handle : handles()) {
    const double distance = std::hypot(handle.px.x - px.x, handle.px.y - px.y);
    if (distance < nearest) {
      nearest = distance;
      found = handle.joint;
    }
  }
  return found;
}

std::optional<std::size_t> HeightProfile::branchAt(Point px) const {
  const ProfileScale plot = view_.scale();
  for (const ProfileMark& mark : content_.marks) {
    const Point at = markPlace(plot, mark);
    if (mark.branches && std::hypot(at.x - px.x, at.y - px.y) < kMarkRadiusPx + 2)
      return mark.stretch;
  }
  return std::nullopt;
}

void HeightProfile::takeBranch(std::size_t stretch) {
  takeNextBranch(workspace_.layout(), choice_, content_.way, stretch);
  const std::int32_t piece = content_.way.stretches[stretch].piece;
  follow();
  pointed_.reset();
  if (chosen_)
    chosen_ = content_.stretchOf(piece);
  view_.fit(content_);
  repaint();
}

// The mouse

void HeightProfile::press(const PointerInput& input) {
  if (gesture_ != Gesture::None)
    cancel();
  problem_.clear();
  pressed_ = last_ = input;
  pulled_ = handleAt(input.px);
  if (pulled_)
    chosen_ = pulled_;
  gesture_ = content_.empty() ? Gesture::None : Gesture::Pending;
  repaint();
}

void HeightProfile::move(const PointerInput& input) {
  if (gesture_ == Gesture::None) {
    last_ = input;
    const std::optional<std::size_t> joint = handleAt(input.px);
    const ProfileScale plot = view_.scale();
    const bool onTrack = !content_.empty() && input.px.x >= plot.low.x && input.px.x <= plot.high.x;
    const std::int32_t piece =
        onTrack ? content_.way.stretches[content_.stretchAt(plot.alongAt(input.px.x))].piece : -1;
    if (joint != pointed_)
      repaint();
    pointed_ = joint;
    workspace_.point(pointedPiece_ = piece);
    return;
  }
  if (gesture_ == Gesture::Pending) {
    if (std::hypot(input.px.x - pressed_.px.x, input.px.y - pressed_.px.y) <= kDragThresholdPx)
      return;
    gesture_ = pulled_ ? Gesture::Pull : Gesture::Pan;
  }
  if (gesture_ == Gesture::Pull)
    pull(input);
  else
    view_.pan(content_, {input.px.x - last_.px.x, input.px.y - last_.px.y});
  last_ = input;
  workspace_.setHint(hint());
  repaint();
}

LoopRule HeightProfile::loops() const {
  return workspace_.switches().spreadLoops ? LoopRule::Spread : LoopRule::Refuse;
}

HeightPlan HeightProfile::planFor(std::size_t joint, double height, bool all) const {
  const Layout& layout = workspace_.layout();
  return all ? planLiftAll(layout, content_.way, joint, height)
             : planJointHeight(layout, content_.way, joint, height, loops());
}

void HeightProfile::pull(const PointerInput& input) {
  if (!drag_) {
    drag_ = std::make_unique<Drag>(workspace_);
    drag_->height = heightOfJoint(content_.way, *pulled_);
  }
  const double pulled = (last_.px.y - input.px.y) / view_.scale().perRise;
  drag_->height += pulled * (input.shift ? kFineStep : 1);
  const double height = rounded(drag_->height, input.shift ? kFineStep : kStep);
  HeightPlan plan = planFor(*pulled_, height, input.ctrl);
  problem_ = problemOf(plan);
  drag_->plan = std::move(plan);
  drag_->shown = wayAfter(workspace_.layout(), content_.way, drag_->plan);
  knees_ = kneesOn(workspace_.layout(), drag_->shown);
  // What is pulled beyond the edge takes the picture along.
  view_.follow(heightOfJoint(drag_->shown, *pulled_));
  drag_->preview.showHeights(drag_->plan);
}

void HeightProfile::release(const PointerInput& input) {
  const Gesture ending = gesture_;
  if (ending == Gesture::Pull)
    pull(input);
  gesture_ = Gesture::None;
  if (ending == Gesture::Pull)
    return drop();
  if (const auto branch = branchAt(pressed_.px); ending == Gesture::Pending && !pulled_ && branch)
    takeBranch(*branch);
  repaint();
}

void HeightProfile::drop() {
  const HeightPlan plan = std::move(drag_->plan);
  drag_.reset();
  apply(plan);
}

bool HeightProfile::apply(const HeightPlan& plan, bool continued) {
  const ChangeResult result = applyHeights(workspace_.layout(), plan, continued);
  if (result)
    workspace_.changed();
  else
    knees_ = kneesOn(workspace_.layout(), content_.way);
  problem_ = problemOf(plan);
  workspace_.setHint(hint());
  repaint();
  return result.changed;
}

void HeightProfile::cancel() {
  gesture_ = Gesture::None;
  problem_.clear();
  if (drag_) {
    drag_.reset();
    knees_ = kneesOn(workspace_.layout(), content_.way);
  }
  repaint();
}

void HeightProfile::leave() {
  if (gesture_ != Gesture::None)
    return;
  pointed_.reset();
  // The pointer may be over the piece in another picture already.
  if (workspace_.pointed() == pointedPiece_)
    workspace_.point(-1);
  repaint();
}

void HeightProfile::wheel(const PointerInput& input, double notches) {
  if (content_.empty() || drag_)
    return;
  view_.zoom(content_, input.px.x, std::pow(kWheel, notches));
  repaint();
}

// Keys

void HeightProfile::focus(bool focused) {
  focused_ = focused;
  if (focused && !chosen_ && !content_.empty())
    chosen_ = 0;
  if (focused)
    workspace_.setHint(hint());
  repaint();
}

bool HeightProfile::goTo(std::size_t joint) {
  chosen_ = std::min(joint, content_.way.stretches.size());
  view_.keepInView(content_, content_.along[*chosen_]);
  workspace_.setHint(hint());
  repaint();
  return true;
}

bool HeightProfile::goToKnee(int step) {
  const std::size_t now = chosen_.value_or(0);
  const auto beyond = [&](std::size_t knee) { return step > 0 ? knee > now : knee < now; };
  if (step > 0) {
    const auto next = std::ranges::find_if(knees_, beyond);
    return next != knees_.end() && goTo(*next);
  }
  const auto next = std::find_if(knees_.rbegin(), knees_.rend(), beyond);
  return next != knees_.rend() && goTo(*next);
}

bool HeightProfile::nudge(double by, bool all) {
  const double height = heightOfJoint(content_.way, *chosen_);
  const double step = std::min(std::abs(by), kStep);
  const HeightPlan plan = planFor(*chosen_, rounded(height + by, step), all);
  const bool continued = nudgedTo_ == workspace_.layout().revision();
  if (apply(plan, continued))
    nudgedTo_ = workspace_.layout().revision();
  return true;
}

bool HeightProfile::takeOutKnee() {
  apply(planWithoutKnee(workspace_.layout(), content_.way, *chosen_, loops()));
  return true;
}

bool HeightProfile::key(const KeyInput& input) {
  if (input.key == Key::Escape && gesture_ != Gesture::None) {
    cancel();
    return true;
  }
  if (content_.empty() || drag_)
    return drag_ != nullptr;
  problem_.clear();
  const std::size_t now = chosen_.value_or(0);
  chosen_ = now;
  const double step = input.shift ? kFineStep : kStep;
  switch (input.key) {
  case Key::Left:
    return input.ctrl ? goToKnee(-1) : goTo(now == 0 ? 0 : now - 1);
  case Key::Right:
    return input.ctrl ? goToKnee(1) : goTo(now + 1);
  case Key::Tab:
    return goToKnee(input.shift ? -1 : 1);
  case Key::Home:
    return goTo(0);
  case Key::End:
    return goTo(content_.way.stretches.size());
  case Key::Up:
    return nudge(step, input.ctrl);
  case Key::Down:
    return nudge(-step, input.ctrl);
  case Key::PageUp:
    return nudge(kLargeStep, input.ctrl);
  case Key::PageDown:
    return nudge(-kLargeStep, input.ctrl);
  case Key::Delete:
  case Key::Backspace:
    return takeOutKnee();
  case Key::Space:
    if (now < content_.way.stretches.size())
      takeBranch(now);
    return true;
  default:
    return false;
  }
}

// Typed heights

std::optional<HeightProfile::Entry> HeightProfile::entryAt(Point px) {
  const auto joint = handleAt(px);
  if (!joint)
    return std::nullopt;
  cancel();
  chosen_ = joint;
  return entry();
}

std::optional<HeightProfile::Entry> HeightProfile::entry() const {
  if (!chosen_ || content_.empty())
    return std::nullopt;
  const double height = heightOfJoint(content_.way, *chosen_);
  return Entry{view_.scale().toScreen(content_.along[*chosen_], height),
               formatLength(height, workspace_.units())};
}

std::string HeightProfile::enter(std::string_view text) {
  const std::optional<Entry> shown = entry();
  if (!shown || shown->text == text)
    return {};
  const NumberInput height = readLength(text, workspace_.units(), -kFarthest, kFarthest);
  if (!height.good())
    return problem_ = height.problem;
  apply(planFor(*chosen_, height.value, false));
  return problem_;
}

void HeightProfile::switchesChanged() {
  problem_.clear();
  if (const double scale = workspace_.switches().heightScale; scale != view_.exaggeration()) {
    view_.setExaggeration(scale);
    view_.fit(content_);
  }
  repaint();
}

void HeightProfile::paint(Surface& surface, const PlanTheme& theme) {
  ProfilePicture picture{workspace_.layout(), content_, shownWay(), view_.scale(),
                         view_.size(),        theme,    knees_,     handles()};
  picture.plan = drag_ ? &drag_->plan : nullptr;
  picture.pointedJoint = drag_ ? pulled_ : pointed_;
  picture.chosenJoint = focused_ ? chosen_ : std::nullopt;
  picture.pointedPiece = workspace_.pointed();
  picture.problem = problem_;
  picture.focused = focused_;
  paintProfile(surface, picture);
}

std::string HeightProfile::hint() const {
  const std::int32_t units = workspace_.units();
  if (content_.empty())
    return tr("Select a piece of track to see the heights along its way");
  if (gesture_ == Gesture::Pull)
    return hintOf({formatLength(heightOfJoint(shownWay(), *pulled_), units), tr("Shift: finer"),
                   tr("Ctrl: lift all"), tr("Esc: leave it")});
  if (const auto joint = pointed_ ? pointed_ : focused_ ? chosen_ : std::nullopt)
    return hintOf({formatLength(heightOfJoint(content_.way, *joint), units),
                   tr("Drag or up and down: change the height (Shift: finer, Ctrl: lift all)"),
                   tr("Double-click or Enter: type it"), tr("Del: take the knee out")});
  if (branchAt(last_.px))
    return hintOf({tr("Click: take the other branch"), tr("Wheel: zoom"), tr("Drag: pan")});
  const std::size_t i = content_.stretchOf(workspace_.pointed());
  if (i == content_.way.stretches.size())
    return hintOf({tr("Wheel: zoom"), tr("Drag: pan")});
  const WayStretch& stretch = content_.way.stretches[i];
  const PlacedPiece& piece = *workspace_.layout().findPiece(stretch.piece);
  const double curve = curveResistance(*definitionOf(piece), stretch.enter, stretch.leave);
  const double percent = percentOf(std::abs(stretch.slope()));
  return hintOf({nameOf(workspace_.layout(), piece),
                 curve > 0
                     ? tr("%1% %%, with the curve like %2% %%",
                          {formatFixed(percent, 1), formatFixed(percent + percentOf(curve), 1)})
                     : tr("%1% %%", {formatFixed(percent, 1)}),
                 tr("Wheel: zoom"), tr("Drag: pan")});
}

std::string HeightProfile::summary() const {
  return summaryOf(content_, shownWay(), workspace_.units());
}

CursorShape HeightProfile::cursor() const {
  if (gesture_ == Gesture::Pan)
    return CursorShape::Hand;
  if (gesture_ == Gesture::Pull || pointed_)
    return CursorShape::UpDown;
  return branchAt(last_.px) ? CursorShape::Hand : CursorShape::Arrow;
}

} // namespace trassix
