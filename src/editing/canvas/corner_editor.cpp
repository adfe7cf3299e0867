#include "editing/canvas/corner_editor.h"

#include "editing/canvas/plan_theme.h"
#include "geometry/lengths.h"
#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kReachPx = 7;
constexpr double kCornerPx = 4.5;
constexpr double kEdgePx = 3;
constexpr double kRoomPx = 30; ///< an edge that is shorter shows no handle

Point middleOfEdge(const std::vector<Point>& corners, std::size_t first) {
  const Point a = corners[first];
  const Point b = corners[(first + 1) % corners.size()];
  return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

double edgeLength(const std::vector<Point>& corners, std::size_t first) {
  const Point a = corners[first];
  const Point b = corners[(first + 1) % corners.size()];
  return std::hypot(b.x - a.x, b.y - a.y);
}

bool within(Point a, Point b, double reach) {
  return std::hypot(a.x - b.x, a.y - b.y) <= reach;
}

/// Pulls one corner, a new one with `adding`.
class CornerGesture : public Gesture {
 public:
  CornerGesture(ToolSite& site, const Outlined& what, std::vector<Point> corners,
                std::size_t corner)
      : Gesture(site), what_(what), corners_(std::move(corners)), corner_(corner) {}

  void drag(const PointerInput& input) override {
    corners_[corner_] = input.world;
    problem_ = outlineProblem(corners_);
    site_.workspace.repaint();
  }
  void drop() override { site_.report(setCorners(site_.layout(), what_, corners_)); }
  void paint(Surface& surface) const override {
    const std::vector<Point> px = site_.view.toScreen(corners_);
    const Rgba color = problem_.empty() ? site_.theme().selected : site_.theme().openEnd;
    surface.polygon(px, {}, Stroke{color, 2});
    surface.circle(px[corner_], kCornerPx, color, Stroke{site_.theme().paper, 1.5});
  }
  std::string hint() const override {
    if (!problem_.empty())
      return problem_;
    const std::int32_t units = site_.layout().settings().units;
    return hintOf({tr("Corner at %1%, %2%", {formatLength(corners_[corner_].x, units),
                                             formatLength(corners_[corner_].y, units)}),
                   tr("Esc: leave it")});
  }
  CursorShape cursor() const override { return CursorShape::Move; }

 private:
  Outlined what_;
  std::vector<Point> corners_;
  std::size_t corner_;
  std::string problem_;
};

} // namespace

void CornerEditor::edit(const std::optional<Outlined>& what) {
  if (what == what_)
    return;
  what_ = what;
  chosen_.reset();
  pointed_.reset();
}

const std::vector<Point>* CornerEditor::corners() const {
  return what_ ? cornersOf(site_.layout(), *what_) : nullptr;
}

std::optional<std::size_t> CornerEditor::chosenCorner() const {
  const std::vector<Point>* present = corners();
  return present != nullptr && chosen_ && *chosen_ < present->size() ? chosen_ : std::nullopt;
}

std::optional<CornerHandle> CornerEditor::handleAt(Point world) const {
  const std::vector<Point>* present = corners();
  if (present == nullptr)
    return {};
  for (std::size_t i = 0; i < present->size(); ++i)
    if (within((*present)[i], world, site_.mm(kReachPx)))
      return CornerHandle{i, false};
  for (std::size_t i = 0; i < present->size(); ++i)
    if (edgeLength(*present, i) >= site_.mm(kRoomPx) &&
        within(middleOfEdge(*present, i), world, site_.mm(kReachPx)))
      return CornerHandle{i, true};
  return {};
}

bool CornerEditor::hover(const PointerInput& input) {
  const std::optional<CornerHandle> before = pointed_;
  pointed_ = handleAt(input.world);
  return pointed_ != before;
}

std::unique_ptr<Gesture> CornerEditor::grab(const PointerInput& input) {
  const std::optional<CornerHandle> handle = handleAt(input.world);
  if (!handle || input.alt || input.ctrl)
    return nullptr;
  std::vector<Point> pulled = *corners();
  const std::size_t corner = handle->corner + (handle->onEdge ? 1 : 0);
  if (handle->onEdge)
    pulled.insert(pulled.begin() + static_cast<std::ptrdiff_t>(corner),
                  middleOfEdge(*corners(), handle->corner));
  chosen_ = corner;
  return std::make_unique<CornerGesture>(site_, *what_, std::move(pulled), corner);
}

bool CornerEditor::click(const PointerInput& input) {
  const std::optional<CornerHandle> handle = handleAt(input.world);
  const bool corner = handle && !handle->onEdge && !input.ctrl;
  if (chosen_ || corner)
    site_.workspace.repaint();
  chosen_ = corner ? std::optional(handle->corner) : std::nullopt;
  return handle.has_value() && !input.ctrl;
}

bool CornerEditor::doubleClick(const PointerInput& input) {
  const std::optional<CornerHandle> handle = handleAt(input.world);
  if (!handle || !handle->onEdge)
    return false;
  chosen_ = handle->corner + 1;
  site_.report(
      addCorner(site_.layout(), *what_, handle->corner, middleOfEdge(*corners(), handle->corner)));
  return true;
}

bool CornerEditor::removeChosen() {
  const std::optional<std::size_t> corner = chosenCorner();
  if (!corner)
    return false;
  chosen_.reset();
  site_.report(removeCorner(site_.layout(), *what_, *corner));
  return true;
}

void CornerEditor::askPlace(std::size_t corner) {
  const std::int32_t units = site_.layout().settings().units;
  const Point at = corners()->at(corner);
  std::string text = tr("%1%; %2%", {formatLength(at.x, units), formatLength(at.y, units)});
  for (;;) {
    const auto typed =
        site_.questions().askText(tr("Corner Position"), tr("X; Y on the plan:"), text);
    if (!typed)
      return;
    const std::size_t between = typed->find(';');
    const NumberInput x = readLength(typed->substr(0, between), units, -kFarthest, kFarthest);
    const NumberInput y =
        readLength(between == std::string::npos ? std::string() : typed->substr(between + 1), units,
                   -kFarthest, kFarthest);
    if (x.good() && y.good())
      return site_.report(moveCorner(site_.layout(), *what_, corner, {x.value, y.value}));
    site_.questions().show({tr("Corner Position"), x.good() ? y.problem : x.problem});
    text = *typed;
  }
}

std::vector<MenuRow> CornerEditor::menu(Point at) {
  const std::vector<Point>* present = corners();
  std::vector<MenuRow> rows;
  if (present == nullptr)
    return rows;
  if (const auto handle = handleAt(at); handle && !handle->onEdge) {
    const std::size_t corner = handle->corner;
    const std::string tooFew =
        present->size() > 3 ? std::string() : tr("An outline has three corners at least");
    rows.push_back({tr("Corner Position..."), "", {}, [this, corner] { askPlace(corner); }});
    rows.push_back({tr("Remove Corner"), "", tooFew, [this, corner] {
                      chosen_ = corner;
                      removeChosen();
                    }});
    return rows;
  }
  for (std::size_t i = 0; i < present->size(); ++i) {
    const Point a = (*present)[i];
    const Point b = (*present)[(i + 1) % present->size()];
    if (distanceToEdge(at, a, b) > site_.mm(kReachPx))
      continue;
    rows.push_back({tr("Add Corner Here"), "", {}, [this, i, on = nearestOnEdge(at, a, b)] {
                      chosen_ = i + 1;
                      site_.report(addCorner(site_.layout(), *what_, i, on));
                    }});
    break;
  }
  return rows;
}

void CornerEditor::paint(Surface& surface) const {
  const std::vector<Point>* present = corners();
  if (present == nullptr)
    return;
  for (std::size_t i = 0; i < present->size(); ++i) {
    if (edgeLength(*present, i) < site_.mm(kRoomPx))
      continue;
    const bool hot = pointed_ == CornerHandle{i, true};
    surface.circle(site_.view.toScreen(middleOfEdge(*present, i)), hot ? kCornerPx : kEdgePx,
                   site_.theme().paper, Stroke{site_.theme().hover, 1.5});
  }
  for (std::size_t i = 0; i < present->size(); ++i) {
    const bool hot = pointed_ == CornerHandle{i, false};
    surface.circle(site_.view.toScreen((*present)[i]), hot ? kReachPx : kCornerPx,
                   chosenCorner() == i ? site_.theme().selected : site_.theme().paper,
                   Stroke{site_.theme().selected, 1.5});
  }
}

std::string CornerEditor::hint() const {
  if (pointed_ && pointed_->onEdge)
    return hintOf({tr("Edge"), tr("Drag or double-click: new corner")});
  const std::optional<std::size_t> chosen = chosenCorner();
  const std::string remove = tr("Del: remove this corner");
  if (pointed_)
    return hintOf({tr("Corner"), tr("Drag: move it"),
                   chosen == pointed_->corner ? remove : tr("Click: choose it"),
                   tr("Right-click: by numbers")});
  return chosen ? hintOf({remove, tr("Esc: deselect")}) : std::string();
}

} // namespace trassix
