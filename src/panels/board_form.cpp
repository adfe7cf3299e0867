#include "panels/board_form.h"

#include "document/layout.h"
#include "document/limits.h"
#include "editing/levels/level_edits.h"
#include "editing/selection/content_box.h"
#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

constexpr double kSame = 0.001; // mm: plans are saved with four decimals

Point topLeft(const std::vector<Point>& outline) {
  constexpr double kFar = std::numeric_limits<double>::max();
  Point corner{kFar, kFar};
  for (const Point& p : outline)
    corner = {std::min(corner.x, p.x), std::min(corner.y, p.y)};
  return corner;
}

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
  if (!present.empty() && !sameOutline(present, movedTo(boardOutline(start), topLeft(present)))) {
    free_ = present;
    choice_ = Choice::Free;
  }
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
  return {std::round((content->minX + content->maxX - shape.w) / 2),
          std::round((content->minY + content->maxY - shape.h) / 2)};
}

std::vector<Point> BoardForm::placed(const LastShape& shape) const {
  return movedTo(boardOutline(shape), placeOf(shape));
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
  if (choice_ == Choice::Free && shapeTaken_)
    return useAsBaseboard(layout, shape_->id);
  const LastShape last = shape().value_or(layout.settings().lastShape);
  const std::vector<Point> wanted = outline();
  // A board read from a file is rounded: what is the same to the eye stays.
  if (last == layout.settings().lastShape && sameOutline(wanted, layout.settings().baseboard))
    return false;
  return setBaseboard(layout, wanted, last);
}

} // namespace trassix
