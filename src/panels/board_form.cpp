#include "panels/board_form.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/shape.h"
#include "document/undo_scope.h"
#include "editing/levels/level_edits.h"
#include "editing/selection/content_box.h"
#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kSame = 0.001; // mm: plans are saved with four decimals

std::vector<Point> movedTo(std::vector<Point> outline, Point by) {
  for (Point& p : outline)
    p = {p.x + by.x, p.y + by.y};
  return outline;
}

bool sameOutline(const std::vector<Point>& a, const std::vector<Point>& b) {
  return std::ranges::equal(a, b, [](Point one, Point other) {
    return std::abs(one.x - other.x) < kSame && std::abs(one.y - other.y) < kSame;
  });
}

/// The shape chosen last, or a usual one, with measures for every kind.
LastShape startingShape(const Layout& layout) {
  constexpr double kArmShare = 0.3;
  LastShape shape = layout.settings().lastShape;
  if (!boardProblem(shape, kMillimetres).empty())
    shape = usualBoard(BoardKind::Rectangle);
  if (static_cast<BoardKind>(shape.kind) == BoardKind::Rectangle) {
    LastShape angled = shape;
    angled.kind = static_cast<std::int32_t>(BoardKind::U);
    if (!boardProblem(angled, kMillimetres).empty()) {
      shape.w2 = std::round(shape.w * kArmShare);
      shape.h2 = std::round(shape.h * kArmShare);
    }
  }
  return shape;
}

} // namespace

BoardForm::BoardForm(const Layout& layout) : layout_(layout), shape_(selectedShape(layout)) {
  const LastShape start = startingShape(layout);
  for (const double length : {start.w, start.h, start.w2, start.h2})
    measures_.emplace_back(length, layout.settings().units, -kFarthest, kFarthest);
  choice_ = static_cast<Choice>(start.kind);
  const std::vector<Point>& present = layout.settings().baseboard;
  if (present.empty())
    return;
  // A file does not tell which way round the shape lies.
  for (const bool mirrored : {false, true})
    for (int quarters = 0; quarters < 4; ++quarters) {
      orientation_ = {mirrored, quarters};
      if (sameOutline(present, movedTo(oriented(boardOutline(start)), topLeft(present))))
        return;
    }
  orientation_ = {};
  free_ = present;
  choice_ = Choice::Free;
}

void BoardForm::choose(Choice choice) {
  if (choice != choice_)
    orientation_ = {};
  choice_ = choice;
}

void BoardForm::mirror() {
  if (choice_ == Choice::Free)
    free_ = turnedOver(free_);
  else if (choice_ != Choice::Rectangle)
    // Turned over after its turns: the same as before them, with the turns the other way round.
    orientation_ = {!orientation_.mirrored, (4 - orientation_.quarters) % 4};
}

void BoardForm::turn() {
  if (choice_ == Choice::Free)
    free_ = turnedRight(free_);
  else if (choice_ == Choice::Rectangle)
    std::swap(measures_[0], measures_[1]);
  else
    orientation_.quarters = (orientation_.quarters + 1) % 4;
}

std::vector<Point> BoardForm::oriented(std::vector<Point> outline) const {
  if (orientation_.mirrored)
    outline = turnedOver(outline);
  for (int i = 0; i < orientation_.quarters; ++i)
    outline = turnedRight(outline);
  return outline;
}

Point BoardForm::orient(Point p) const {
  if (orientation_.mirrored)
    p.x = -p.x;
  for (int i = 0; i < orientation_.quarters; ++i)
    p = {-p.y, p.x};
  return p;
}

std::vector<Point> BoardForm::drawnOutline() const {
  const std::optional<LastShape> chosen = shape();
  return chosen ? oriented(boardOutline(*chosen)) : std::vector<Point>{};
}

std::vector<BoardDimension> BoardForm::dimensions() const {
  const std::optional<LastShape> chosen = shape();
  if (!chosen)
    return {};
  std::vector<BoardDimension> all = boardDimensions(*chosen, units());
  // The directions turn as they are; the places come back to where the outline lies.
  std::vector<Point> corners = boardOutline(*chosen);
  std::ranges::transform(corners, corners.begin(), [this](Point p) { return orient(p); });
  const Point corner = topLeft(corners);
  for (BoardDimension& dimension : all) {
    for (Point* end : {&dimension.from, &dimension.to}) {
      const Point at = orient(*end);
      *end = {at.x - corner.x, at.y - corner.y};
    }
    dimension.outward = orient(dimension.outward);
  }
  return all;
}

std::string BoardForm::measureName(std::size_t measure) const {
  const std::optional<LastShape> chosen = shape();
  return chosen ? boardMeasureNames(static_cast<BoardKind>(chosen->kind)).at(measure)
                : std::string();
}

void BoardForm::takeShape() {
  if (shape_ == nullptr)
    return;
  free_ = shape_->points;
  shapeTaken_ = true;
  choice_ = Choice::Free;
}

std::optional<LastShape> BoardForm::shape() const {
  if (choice_ == Choice::Free || choice_ == Choice::None)
    return {};
  return LastShape{static_cast<std::int32_t>(choice_), measures_[0].mm(), measures_[1].mm(),
                   measures_[2].mm(), measures_[3].mm()};
}

std::int32_t BoardForm::units() const {
  return layout_.settings().units;
}

std::string BoardForm::problem() const {
  const std::optional<LastShape> chosen = shape();
  if (!chosen)
    return choice_ == Choice::Free && free_.empty()
               ? tr("Draw the outline on the plan, or take that of a selected shape.")
               : std::string();
  for (std::size_t i = 0; i < kMeasures; ++i)
    if (!measureName(i).empty() && !measures_[i].problem().empty())
      return tr("%1%: %2%", {measureName(i), measures_[i].problem()});
  const std::string problem = boardProblem(*chosen, units());
  return problem.empty() ? outlineProblem(placed(*chosen)) : problem;
}

Point BoardForm::placeOf(const LastShape& shape) const {
  if (!layout_.settings().baseboard.empty())
    return topLeft(layout_.settings().baseboard);
  const std::optional<Box> content = contentBox(layout_);
  if (!content)
    return {};
  const bool lengthwise = orientation_.quarters % 2 == 0;
  const double width = lengthwise ? shape.w : shape.h;
  const double depth = lengthwise ? shape.h : shape.w;
  return {std::round((content->minX + content->maxX - width) / 2),
          std::round((content->minY + content->maxY - depth) / 2)};
}

std::vector<Point> BoardForm::placed(const LastShape& shape) const {
  return movedTo(oriented(boardOutline(shape)), placeOf(shape));
}

std::vector<Point> BoardForm::outline() const {
  if (choice_ == Choice::None || !problem().empty())
    return {};
  if (const std::optional<LastShape> chosen = shape())
    return placed(*chosen);
  return free_;
}

bool BoardForm::apply(Layout& layout) const {
  if (!problem().empty())
    return false;
  if (choice_ == Choice::Free && shapeTaken_) {
    const std::vector<Point> wanted = free_; // the shape goes
    UndoScope step(layout);
    useAsBaseboard(layout, shape_->id);
    setBaseboard(layout, wanted, layout.settings().lastShape);
    return step.keep();
  }
  const LastShape last = shape().value_or(layout.settings().lastShape);
  const std::vector<Point> wanted = outline();
  // A board read from a file is rounded: what is the same to the eye stays.
  if (last == layout.settings().lastShape && sameOutline(wanted, layout.settings().baseboard))
    return false;
  return setBaseboard(layout, wanted, last);
}

} // namespace trassix
