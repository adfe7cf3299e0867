#include "editing/canvas/scenery/scenery_painter.h"

#include "document/plan_content.h"
#include "editing/scenery/scenery_footprint.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace trassix {

namespace {

constexpr double kLeastPx = 2; ///< smaller details are left out
constexpr double kFinestPx = 1;
constexpr double kSun = 0.6;              ///< of how much roofs differ by the light
constexpr int kLights = 4;                ///< grades of light on each side
constexpr Point kToSun{-0.6, -0.8};       ///< on the screen
constexpr double kShadowPerHeight = 0.36; ///< its length
constexpr double kLongestShadow = 60;     ///< mm in H0; longer ones hide the plan
constexpr std::uint8_t kBeneathAlpha = 80;

Rgba shaded(Color color, double shade, std::uint8_t alpha) {
  constexpr double kMost = 0.42;
  const double part = std::min(std::abs(shade), 1.0) * kMost;
  const double end = shade > 0 ? 255 : 0;
  const auto mix = [&](int from) {
    return static_cast<std::uint8_t>(std::lround(from + (end - from) * part));
  };
  return {mix(color.r), mix(color.g), mix(color.b), alpha};
}

bool isUpright(std::span<const Point> points) {
  constexpr double kNothing = 1e-3; // px
  for (std::size_t i = 0; i + 1 < points.size(); ++i)
    if (std::abs(points[i].x - points[i + 1].x) > kNothing &&
        std::abs(points[i].y - points[i + 1].y) > kNothing)
      return false;
  return true;
}

/// What a convex outline covers while it moves by `by`.
std::vector<Point> swept(std::span<const Point> outline, Point by) {
  std::vector<Point> all(outline.begin(), outline.end());
  for (const Point& p : outline)
    all.push_back({p.x + by.x, p.y + by.y});
  std::ranges::sort(all, [](Point a, Point b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
  std::vector<Point> hull;
  const auto chain = [&hull](Point p, std::size_t keep) {
    const auto turnsIn = [&hull, p] {
      const Point a = hull[hull.size() - 2];
      const Point b = hull.back();
      return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x) <= 0;
    };
    while (hull.size() > keep && turnsIn())
      hull.pop_back();
    hull.push_back(p);
  };
  for (const Point& p : all)
    chain(p, 1);
  const std::size_t lower = hull.size();
  for (auto p = all.rbegin() + 1; p != all.rend(); ++p)
    chain(*p, lower);
  hull.pop_back();
  return hull;
}

} // namespace

namespace {

constexpr std::array<double, 3> kUnits{1, 0.4, 2.7}; ///< by Gauge

} // namespace

Rgba sceneryColor(const PlanTheme& theme, const SceneryMark& mark, double heading) {
  double shade = mark.shade;
  if (mark.fall.x != 0 || mark.fall.y != 0) {
    const double turned = toRadians(heading);
    const Point fall{mark.fall.x * std::cos(turned) - mark.fall.y * std::sin(turned),
                     mark.fall.x * std::sin(turned) + mark.fall.y * std::cos(turned)};
    const double light = fall.x * kToSun.x + fall.y * kToSun.y;
    shade += kSun * std::round(light * kLights) / kLights;
  }
  const bool fine = mark.kind == SceneryMark::Kind::Lines && mark.width == 0;
  return shaded(theme.material(mark.material), shade,
                fine ? static_cast<std::uint8_t>(mark.alpha * 3 / 5) : mark.alpha);
}

std::array<Point, 3> shadowTips(const SceneryPicture& picture) {
  const double reach = std::min(picture.height * kShadowPerHeight, kLongestShadow);
  std::array<Point, 3> tips;
  for (std::size_t i = 0; i < tips.size(); ++i) {
    const double length = reach * (1 - 0.16 * static_cast<double>(i));
    tips[i] = {-kToSun.x * length, -kToSun.y * length};
  }
  return tips;
}

double sceneryUnit(TrackSystem system) {
  return kUnits[static_cast<std::size_t>(gaugeOf(system))];
}

double sceneryUnit(const SceneryDef& item, const Footprint& size) {
  for (std::size_t i = 0; i < kUnits.size(); ++i)
    if (item.sizes[i] && item.sizes[i]->depth == size.depth)
      return kUnits[i];
  return kUnits[0];
}

SceneryPainter::Item SceneryPainter::itemOf(const Layout& layout, const SceneryItem& item) {
  const SceneryDef* definition = findScenery(item.item);
  const double unit = sceneryUnit(planSystem(layout));
  static constexpr SceneryDef kUnknown{};
  return {
      sceneryPictureOf(definition ? *definition : kUnknown, sceneryFootprint(layout, item), unit),
      {item.x, item.y, item.heading}};
}

SceneryPainter::Place::Place(const Item& item, const ViewTransform& view)
    : at(view.toScreen({item.pose.x, item.pose.y})),
      c(std::cos(toRadians(item.pose.heading)) * view.zoom()),
      s(std::sin(toRadians(item.pose.heading)) * view.zoom()) {}

PointRuns& SceneryPainter::runsOf(const Style& style) {
  for (std::size_t i = 0; i < used_; ++i)
    if (batches_[i].style == style)
      return batches_[i].runs;
  if (used_ == batches_.size())
    batches_.emplace_back();
  batches_[used_].style = style;
  return batches_[used_++].runs;
}

SceneryPainter::Style SceneryPainter::styleOf(const Item& item, const SceneryMark& mark) const {
  const bool lines = mark.kind == SceneryMark::Kind::Lines;
  const auto width = lines || !theme_.fills ? std::max(mark.width * view_.zoom(), kFinestPx) : 0.0;
  const auto finish = [&](Rgba color) {
    if (item.faded)
      color = theme_.faded(color);
    if (item.beneath)
      color.a = std::min(color.a, kBeneathAlpha);
    return Style{color, width, item.beneath && width > 0};
  };
  if (!theme_.fills)
    return finish(opaque(theme_.material(Material::Ink)));
  return finish(sceneryColor(theme_, mark, item.pose.heading));
}

/// Points that lie closer together than can be seen are left out.
void SceneryPainter::add(Style style, const Place& place, std::span<const Point> local,
                         bool closed) {
  constexpr double kApartPx = 0.8;
  constexpr std::size_t kFew = 8;
  run_.clear();
  for (std::size_t i = 0; i < local.size(); ++i) {
    const Point px = place.px(local[i]);
    const bool keep = local.size() <= kFew || run_.empty() || (!closed && i + 1 == local.size()) ||
                      std::abs(px.x - run_.back().x) + std::abs(px.y - run_.back().y) > kApartPx;
    if (keep)
      run_.push_back(px);
  }
  if (closed && !theme_.fills)
    run_.push_back(run_.front());
  style.upright = isUpright(run_);
  std::ranges::copy(run_, runsOf(style).add(run_.size()).begin());
}

void SceneryPainter::gather(const Item& item, const Place& place, const SceneryMark& mark) {
  if (mark.least * view_.zoom() < kLeastPx && mark.least > 0)
    return;
  const Style style = styleOf(item, mark);
  const std::span<const Point> points = mark.points;
  if (mark.kind == SceneryMark::Kind::Area)
    return add(style, place, points, true);
  for (std::size_t i = 0; i < mark.starts.size(); ++i) {
    const std::size_t from = mark.starts[i];
    const std::size_t to = i + 1 < mark.starts.size() ? mark.starts[i + 1] : points.size();
    add(style, place, points.subspan(from, to - from), false);
  }
}

void SceneryPainter::flush() {
  // In an order that does not depend on what else is in view: parts of a picture have to fit.
  const auto rank = [](const Batch& batch) {
    const auto& [color, width, dashed, upright] = batch.style;
    return std::tuple(width, color.r, color.g, color.b, color.a, dashed, upright);
  };
  std::ranges::sort(batches_.begin(), batches_.begin() + static_cast<std::ptrdiff_t>(used_), {},
                    rank);
  for (std::size_t i = 0; i < used_; ++i) {
    Batch& batch = batches_[i];
    const auto& [color, width, dashed, upright] = batch.style;
    if (width == 0)
      surface_.polygons(batch.runs, color);
    else
      surface_.polylines(batch.runs,
                         {color, width, dashed ? Stroke::Style::Dashed : Stroke::Style::Solid});
    batch.runs.clear();
  }
  used_ = 0;
}

void SceneryPainter::paintShadows(std::span<const Item> items, SceneryLayer layer) {
  if (theme_.shadow.a == 0)
    return;
  constexpr std::size_t kSoft = std::tuple_size_v<decltype(shadowTips({}))>;
  for (std::size_t i = 0; i < kSoft; ++i) {
    PointRuns& runs = runsOf({withAlpha(theme_.shadow, theme_.shadow.a / kSoft)});
    for (const Item& item : items) {
      const SceneryPicture& picture = *item.picture;
      const Point tip = shadowTips(picture)[i];
      const Point by{tip.x * view_.zoom(), tip.y * view_.zoom()};
      if (picture.shadow != layer || item.beneath || std::hypot(by.x, by.y) < kLeastPx)
        continue;
      const Place place(item, view_);
      std::vector<Point> foot;
      for (const Point& p : picture.foot)
        foot.push_back(place.px(p));
      const std::vector<Point> shadow = swept(foot, by);
      std::ranges::copy(shadow, runs.add(shadow.size()).begin());
    }
    flush();
  }
}

void SceneryPainter::paint(std::span<const Item> items, SceneryLayer layer) {
  paintShadows(items, layer);
  // The first mark of each, then the second, and so on: few colours at a time, and what belongs to
  // one item still lies in its order.
  std::vector<std::size_t> next(items.size(), 0);
  std::vector<Place> places;
  for (const Item& item : items)
    places.emplace_back(item, view_);
  for (bool more = true; more; flush()) {
    more = false;
    for (std::size_t i = 0; i < items.size(); ++i) {
      const std::vector<SceneryMark>& marks = items[i].picture->marks;
      while (next[i] < marks.size() && marks[next[i]].layer != layer)
        ++next[i];
      if (next[i] == marks.size())
        continue;
      gather(items[i], places[i], marks[next[i]++]);
      more = true;
    }
  }
}

void SceneryPainter::paint(const Item& item) {
  for (const SceneryLayer layer :
       {SceneryLayer::Ground, SceneryLayer::Standing, SceneryLayer::Over})
    paint({&item, 1}, layer);
}

} // namespace trassix
