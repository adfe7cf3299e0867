#include "editing/canvas/scenery/scenery_drawing.h"

#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace trassix {

namespace {

constexpr int kRound = 20; ///< corners of what is round

std::vector<Point> corners(const Patch& p) {
  return {{p.left, p.top}, {p.right, p.top}, {p.right, p.bottom}, {p.left, p.bottom}};
}

/// The smaller side of what the points cover.
double thickness(const std::vector<Point>& points) {
  const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(points, {}, &Point::y);
  return std::min(right.x - left.x, bottom.y - top.y);
}

double reach(const std::vector<Point>& points) {
  const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(points, {}, &Point::y);
  return std::max(right.x - left.x, bottom.y - top.y);
}

} // namespace

std::vector<Point> SceneryDrawing::scaled(const std::vector<Point>& points) const {
  std::vector<Point> mm;
  mm.reserve(points.size());
  for (const Point& p : points)
    mm.push_back({p.x * w_, p.y * d_});
  return mm;
}

SceneryMark& SceneryDrawing::mark(SceneryMark::Kind kind, Material material) {
  SceneryMark& added = picture_.marks.emplace_back();
  added.kind = kind;
  added.layer = layer_;
  added.material = material;
  added.alpha = alpha_;
  return added;
}

/// Round in mm, whatever the sides of the item are.
std::vector<Point> SceneryDrawing::circle(Point centre, double radius, int points) const {
  std::vector<Point> outline;
  const double r = radius * std::min(w_, d_);
  for (int i = 0; i < points; ++i) {
    const double t = 2 * kPi * i / points;
    outline.push_back({centre.x + r * std::cos(t) / w_, centre.y + r * std::sin(t) / d_});
  }
  return outline;
}

void SceneryDrawing::cast(double height, const Patch& foot, bool round) {
  std::vector<Point> outline = corners(foot);
  if (round) {
    outline.clear();
    for (int i = 0; i < kRound; ++i) {
      const double t = 2 * kPi * i / kRound;
      outline.push_back({(foot.left + foot.right + (foot.right - foot.left) * std::cos(t)) / 2,
                         (foot.top + foot.bottom + (foot.bottom - foot.top) * std::sin(t)) / 2});
    }
  }
  cast(height, outline);
}

void SceneryDrawing::cast(double height, const std::vector<Point>& foot) {
  picture_.height = height;
  picture_.shadow = layer_;
  picture_.foot = scaled(foot);
}

void SceneryDrawing::spanTrack() {
  constexpr std::uint8_t kFaint = 60;
  const std::size_t count = picture_.marks.size();
  for (std::size_t i = 0; i < count; ++i) {
    SceneryMark again = picture_.marks[i];
    again.layer = SceneryLayer::Over;
    again.alpha = kFaint;
    picture_.marks.push_back(std::move(again));
  }
}

void SceneryDrawing::area(const std::vector<Point>& outline, Material material, double shade) {
  SceneryMark& added = mark(SceneryMark::Kind::Area, material);
  added.points = scaled(outline);
  added.shade = shade;
  added.least = picture_.marks.size() == 1 ? 0 : thickness(added.points);
}

void SceneryDrawing::patch(const Patch& patch, Material material, double shade) {
  area(corners(patch), material, shade);
}

void SceneryDrawing::disc(Point centre, double radius, Material material, double shade) {
  area(circle(centre, radius, kRound), material, shade);
}

void SceneryDrawing::ellipse(const Patch& patch, Material material, double shade) {
  std::vector<Point> outline;
  for (int i = 0; i < 2 * kRound; ++i) {
    const double t = kPi * i / kRound;
    outline.push_back({(patch.left + patch.right + (patch.right - patch.left) * std::cos(t)) / 2,
                       (patch.top + patch.bottom + (patch.bottom - patch.top) * std::sin(t)) / 2});
  }
  area(outline, material, shade);
}

void SceneryDrawing::slope(const std::vector<Point>& outline, Material material, Point fall) {
  area(outline, material);
  SceneryMark& added = picture_.marks.back();
  const double length = std::hypot(fall.x, fall.y);
  added.fall = {fall.x / length, fall.y / length};
}

void SceneryDrawing::line(const std::vector<Point>& points, Material material, double width) {
  SceneryMark& added = mark(SceneryMark::Kind::Lines, material);
  added.points = scaled(points);
  added.starts = {0};
  added.width = width * unit_;
  added.least = picture_.marks.size() == 1 ? 0 : reach(added.points) / 3;
}

void SceneryDrawing::strokes(const std::vector<Point>& ends, Material material, double width,
                             double least) {
  SceneryMark& added = mark(SceneryMark::Kind::Lines, material);
  added.points = scaled(ends);
  for (std::size_t i = 0; i < ends.size(); i += 2)
    added.starts.push_back(i);
  added.width = width * unit_;
  added.least = least * unit_;
}

void SceneryDrawing::frame(const Patch& p, Material material, double width) {
  std::vector<Point> outline = corners(p);
  outline.push_back(outline.front());
  line(outline, material, width);
}

void SceneryDrawing::ring(Point centre, double radius, Material material, double width) {
  std::vector<Point> outline = circle(centre, radius, kRound);
  outline.push_back(outline.front());
  line(outline, material, width);
}

void SceneryDrawing::gable(const Patch& p, Material material, bool ridgeAlong) {
  const double x = (p.left + p.right) / 2;
  const double y = (p.top + p.bottom) / 2;
  patch(p, material);
  if (ridgeAlong) {
    slope(corners({p.left, p.top, p.right, y}), material, {0, -1});
    slope(corners({p.left, y, p.right, p.bottom}), material, {0, 1});
    line({{p.left, y}, {p.right, y}}, Material::Ink);
  } else {
    slope(corners({p.left, p.top, x, p.bottom}), material, {-1, 0});
    slope(corners({x, p.top, p.right, p.bottom}), material, {1, 0});
    line({{x, p.top}, {x, p.bottom}}, Material::Ink);
  }
  frame(p);
}

void SceneryDrawing::hip(const Patch& p, Material material) {
  // At half a right angle on the plan, as equal slopes meet.
  const double half = std::min((p.right - p.left) * w_, (p.bottom - p.top) * d_) / 2;
  const Point in{half / w_, half / d_};
  const Point a{p.left + in.x, p.top + in.y};
  const Point b{p.right - in.x, p.bottom - in.y};
  patch(p, material);
  slope({{p.left, p.top}, {p.right, p.top}, {b.x, a.y}, a}, material, {0, -1});
  slope({{p.left, p.bottom}, {p.right, p.bottom}, b, {a.x, b.y}}, material, {0, 1});
  slope({{p.left, p.top}, a, {a.x, b.y}, {p.left, p.bottom}}, material, {-1, 0});
  slope({{p.right, p.top}, {b.x, a.y}, b, {p.right, p.bottom}}, material, {1, 0});
  line({{p.left, p.top}, a}, Material::Ink);
  line({{p.right, p.top}, {b.x, a.y}}, Material::Ink);
  line({{p.left, p.bottom}, {a.x, b.y}}, Material::Ink);
  line({{p.right, p.bottom}, b}, Material::Ink);
  line({a, b}, Material::Ink);
  frame(p);
}

void SceneryDrawing::pavilion(const Patch& p, Material material) {
  const Point top{(p.left + p.right) / 2, (p.top + p.bottom) / 2};
  patch(p, material);
  slope({{p.left, p.top}, {p.right, p.top}, top}, material, {0, -1});
  slope({{p.left, p.bottom}, {p.right, p.bottom}, top}, material, {0, 1});
  slope({{p.left, p.top}, {p.left, p.bottom}, top}, material, {-1, 0});
  slope({{p.right, p.top}, {p.right, p.bottom}, top}, material, {1, 0});
  line({{p.left, p.top}, {p.right, p.bottom}}, Material::Ink);
  line({{p.right, p.top}, {p.left, p.bottom}}, Material::Ink);
  frame(p);
}

void SceneryDrawing::flat(const Patch& p, Material material) {
  const double x = across(4);
  const double y = deep(4);
  patch(p, material, 0.5);
  patch({p.left + x, p.top + y, p.right - x, p.bottom - y}, material);
  frame(p);
}

void SceneryDrawing::sawTooth(const Patch& p, int teeth) {
  patch(p, Material::FlatRoof);
  const double step = (p.right - p.left) / teeth;
  for (int i = 0; i < teeth; ++i) {
    const double x = p.left + i * step;
    slope(corners({x + step * 0.3, p.top, x + step, p.bottom}), Material::FlatRoof, {1, 0});
    patch({x, p.top, x + step * 0.3, p.bottom}, Material::Glass, 0.3);
    line({{x, p.top}, {x, p.bottom}}, Material::Ink);
  }
  frame(p);
}

void SceneryDrawing::barrel(const Patch& p, Material material, int ribs, bool along) {
  constexpr int kStrips = 6;
  patch(p, material);
  for (int i = 0; i < kStrips; ++i) {
    const double from = i / static_cast<double>(kStrips);
    const double to = (i + 1) / static_cast<double>(kStrips);
    const double side = (from + to - 1);
    const Patch strip = along ? Patch{p.left, p.top + (p.bottom - p.top) * from, p.right,
                                      p.top + (p.bottom - p.top) * to}
                              : Patch{p.left + (p.right - p.left) * from, p.top,
                                      p.left + (p.right - p.left) * to, p.bottom};
    slope(corners(strip), material, along ? Point{0, side} : Point{side, 0});
    SceneryMark& added = picture_.marks.back();
    added.fall = {added.fall.x * std::abs(side), added.fall.y * std::abs(side)};
  }
  hatch(p, ribs, !along, Material::Ink);
  frame(p);
}

void SceneryDrawing::cone(Point centre, double radius, Material material, int sides) {
  const std::vector<Point> rim = circle(centre, radius, sides);
  area(rim, material);
  for (std::size_t i = 0; i < rim.size(); ++i) {
    const Point a = rim[i];
    const Point b = rim[(i + 1) % rim.size()];
    slope({a, b, centre}, material,
          {((a.x + b.x) / 2 - centre.x) * w_, ((a.y + b.y) / 2 - centre.y) * d_});
  }
  std::vector<Point> edge = rim;
  edge.push_back(rim.front());
  line(edge, Material::Ink);
}

void SceneryDrawing::chimney(Point at) {
  const double x = across(4);
  const double y = deep(4);
  patch({at.x - x, at.y - y, at.x + x, at.y + y}, Material::Rust);
  patch({at.x - x / 2, at.y - y / 2, at.x + x / 2, at.y + y / 2}, Material::Coal);
}

void SceneryDrawing::hatch(const Patch& p, int count, bool along, Material material, double width) {
  std::vector<Point> ends;
  for (int i = 1; i <= count; ++i) {
    const double t = i / (count + 1.0);
    if (along) {
      const double y = p.top + (p.bottom - p.top) * t;
      ends.insert(ends.end(), {{p.left, y}, {p.right, y}});
    } else {
      const double x = p.left + (p.right - p.left) * t;
      ends.insert(ends.end(), {{x, p.top}, {x, p.bottom}});
    }
  }
  const double length = along ? (p.bottom - p.top) * d_ : (p.right - p.left) * w_;
  strokes(ends, material, width, length / (count + 1) / unit_ * 0.6);
}

} // namespace trassix
