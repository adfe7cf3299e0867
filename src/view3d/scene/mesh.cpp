#include "view3d/scene/mesh.h"

#include "geometry/pose.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kLeastArea = 1e-4; // mm2: smaller triangles are not there

Vec3 positionOf(const MeshVertex& vertex) {
  return {vertex.position[0], vertex.position[1], vertex.position[2]};
}

std::uint8_t channel(double value) {
  return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
}

} // namespace

std::size_t Mesh::triangles() const {
  std::size_t count = 0;
  for (const std::vector<std::uint32_t>& list : indices)
    count += list.size() / 3;
  return count;
}

MeshBuilder::MeshBuilder(Mesh& mesh, const MeshFrame& frame)
    : mesh_(mesh), frame_(frame), cos_(std::cos(toRadians(frame.turn))),
      sin_(std::sin(toRadians(frame.turn))) {}

MeshBuilder MeshBuilder::within(Vec3 origin) const {
  return MeshBuilder(mesh_, {inScene(origin), frame_.turn, frame_.slope});
}

Vec3 MeshBuilder::inScene(Vec3 local) const {
  return frame_.origin + Vec3{local.x * cos_ - local.y * sin_, local.x * sin_ + local.y * cos_,
                              local.z + frame_.slope * local.x};
}

std::uint32_t MeshBuilder::add(Vec3 position, Vec3 normal, Color color) {
  const auto number = static_cast<std::uint32_t>(mesh_.vertices.size());
  const auto f = [](double value) { return static_cast<float>(value); };
  mesh_.vertices.push_back({{f(position.x), f(position.y), f(position.z)},
                            {f(normal.x), f(normal.y), f(normal.z)},
                            {color.r, color.g, color.b, 255}});
  return number;
}

bool MeshBuilder::face(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
  const Vec3 at = positionOf(mesh_.vertices[a]);
  const Vec3 normal = cross(positionOf(mesh_.vertices[b]) - at, positionOf(mesh_.vertices[c]) - at);
  if (lengthOf(normal) < 2 * kLeastArea)
    return false;
  std::vector<std::uint32_t>& list = mesh_.indices[static_cast<std::size_t>(finish_)];
  list.insert(list.end(), {a, b, c});
  return true;
}

void MeshBuilder::triangle(Vec3 a, Vec3 b, Vec3 c, Color color) {
  a = inScene(a);
  b = inScene(b);
  c = inScene(c);
  const Vec3 normal = unit(cross(b - a, c - a));
  const std::uint32_t first = add(a, normal, color);
  add(b, normal, color);
  add(c, normal, color);
  if (!face(first, first + 1, first + 2))
    mesh_.vertices.resize(first);
}

void MeshBuilder::quad(Vec3 a, Vec3 b, Vec3 c, Vec3 d, Color color) {
  a = inScene(a);
  b = inScene(b);
  c = inScene(c);
  d = inScene(d);
  const Vec3 normal = unit(cross(c - a, d - b));
  const std::uint32_t first = add(a, normal, color);
  add(b, normal, color);
  add(c, normal, color);
  add(d, normal, color);
  const bool one = face(first, first + 1, first + 2);
  const bool other = face(first, first + 2, first + 3);
  if (!one && !other)
    mesh_.vertices.resize(first);
}

void MeshBuilder::area(const Polygon& outline, double z, Color color, bool up) {
  const bool flipped = (signedArea(outline) > 0) != up;
  const auto at = [&](std::size_t i) { return Vec3{outline[i].x, outline[i].y, z}; };
  for (const auto& [a, b, c] : fillOutline(outline))
    flipped ? triangle(at(a), at(c), at(b), color) : triangle(at(a), at(b), at(c), color);
}

void MeshBuilder::prism(const Polygon& outline, double bottom, double top, Color side, Color lid) {
  skirt(outline, bottom, outline, top, side);
  area(outline, top, lid);
}

void MeshBuilder::skirt(const Polygon& lower, double bottom, const Polygon& upper, double top,
                        Color color) {
  const bool outwards = signedArea(lower) > 0;
  for (std::size_t i = 0; i < lower.size(); ++i) {
    std::size_t from = i;
    std::size_t to = (i + 1) % lower.size();
    if (!outwards)
      std::swap(from, to);
    quad({lower[from].x, lower[from].y, bottom}, {lower[to].x, lower[to].y, bottom},
         {upper[to].x, upper[to].y, top}, {upper[from].x, upper[from].y, top}, color);
  }
}

void MeshBuilder::box(Vec3 least, Vec3 most, Color color) {
  box(least, most, color, color);
}

void MeshBuilder::box(Vec3 least, Vec3 most, Color side, Color lid) {
  prism({{least.x, least.y}, {most.x, least.y}, {most.x, most.y}, {least.x, most.y}}, least.z,
        most.z, side, lid);
}

void MeshBuilder::bar(Vec3 from, Vec3 to, double thickness, Color color) {
  const Vec3 axis = unit(to - from);
  const Vec3 aside = std::abs(axis.z) > 0.99 ? Vec3{1, 0, 0} : Vec3{0, 0, 1};
  const Vec3 u = (thickness / 2) * unit(cross(axis, aside));
  const Vec3 v = (thickness / 2) * unit(cross(axis, u));
  const std::array<Vec3, 4> rim{u + v, v - u, Vec3{} - u - v, u - v};
  for (std::size_t i = 0; i < rim.size(); ++i) {
    const Vec3 a = rim[i];
    const Vec3 b = rim[(i + 1) % rim.size()];
    quad(from + a, from + b, to + b, to + a, color);
  }
  quad(to + rim[0], to + rim[1], to + rim[2], to + rim[3], color);
}

void MeshBuilder::cone(Vec3 foot, double radius, double height, double upperRadius, int sides,
                       Color color) {
  const auto at = [&](double r, double z, int i) {
    const double t = 2 * kPi * i / sides;
    return foot + Vec3{r * std::cos(t), r * std::sin(t), z};
  };
  const auto normal = [&](int i) {
    const double t = 2 * kPi * (i + frame_.turn / 360 * sides) / sides;
    return unit({height * std::cos(t), height * std::sin(t), radius - upperRadius});
  };
  std::uint32_t before = 0;
  for (int i = 0; i <= sides; ++i) { // smooth: neighbouring sides share their vertices
    const std::uint32_t here = add(inScene(at(radius, 0, i)), normal(i), color);
    add(inScene(at(upperRadius, height, i)), normal(i), color);
    if (i > 0) {
      face(before, here, here + 1);
      face(before, here + 1, before + 1);
    }
    before = here;
  }
  for (int i = 1; i + 1 < sides && upperRadius > 0; ++i)
    triangle(at(upperRadius, height, 0), at(upperRadius, height, i), at(upperRadius, height, i + 1),
             color);
}

void MeshBuilder::blob(Vec3 middle, Vec3 radii, int sides, Color color) {
  const int rows = std::max(3, sides / 2);
  const auto ball = [&](int row, int i) {
    const double up = kPi * row / rows - kPi / 2;
    const double t = 2 * kPi * i / sides;
    return Vec3{std::cos(up) * std::cos(t), std::cos(up) * std::sin(t), std::sin(up)};
  };
  const auto first = static_cast<std::uint32_t>(mesh_.vertices.size());
  for (int row = 0; row <= rows; ++row)
    for (int i = 0; i <= sides; ++i) {
      const Vec3 p = ball(row, i);
      const Vec3 local{p.x / radii.x, p.y / radii.y, p.z / radii.z};
      const Vec3 normal =
          unit({local.x * cos_ - local.y * sin_, local.x * sin_ + local.y * cos_, local.z});
      // Light falls from above: what looks down is darker, which makes leaves look like leaves.
      add(inScene(middle + Vec3{p.x * radii.x, p.y * radii.y, p.z * radii.z}), normal,
          shaded(color, 0.88 + 0.14 * p.z));
    }
  const auto ring = static_cast<std::uint32_t>(sides + 1);
  for (std::uint32_t row = 0; row < static_cast<std::uint32_t>(rows); ++row)
    for (std::uint32_t i = 0; i + 1 < ring; ++i) {
      const std::uint32_t a = first + row * ring + i;
      face(a, a + 1, a + ring + 1);
      face(a, a + ring + 1, a + ring);
    }
}

std::vector<std::array<std::size_t, 3>> fillOutline(const Polygon& outline) {
  std::vector<std::size_t> left(outline.size());
  for (std::size_t i = 0; i < left.size(); ++i)
    left[i] = i;
  const double side = signedArea(outline) > 0 ? 1 : -1;
  const auto turn = [&](std::size_t a, std::size_t b, std::size_t c) {
    const Point p = outline[a];
    const Point q = outline[b];
    const Point r = outline[c];
    return side * ((q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x));
  };
  const auto isEar = [&](std::size_t at) {
    const std::size_t a = left[(at + left.size() - 1) % left.size()];
    const std::size_t b = left[at];
    const std::size_t c = left[(at + 1) % left.size()];
    return turn(a, b, c) >= 0 && std::ranges::none_of(left, [&](std::size_t p) {
             const bool corner =
                 outline[p] == outline[a] || outline[p] == outline[b] || outline[p] == outline[c];
             return !corner && turn(a, b, p) >= 0 && turn(b, c, p) >= 0 && turn(c, a, p) >= 0;
           });
  };
  std::vector<std::array<std::size_t, 3>> triangles;
  for (std::size_t at = 0, tried = 0; left.size() >= 3;) {
    at %= left.size();
    // Where no corner can be cut off the outline crosses itself: any is taken, so that it ends.
    if (!isEar(at) && ++tried < left.size()) {
      ++at;
      continue;
    }
    tried = 0;
    triangles.push_back(
        {left[(at + left.size() - 1) % left.size()], left[at], left[(at + 1) % left.size()]});
    left.erase(left.begin() + static_cast<std::ptrdiff_t>(at));
  }
  return triangles;
}

Color shaded(Color color, double factor) {
  return {channel(color.r * factor), channel(color.g * factor), channel(color.b * factor)};
}

Color mixed(Color a, Color b, double share) {
  const auto mix = [share](std::uint8_t x, std::uint8_t y) { return channel(x + (y - x) * share); };
  return {mix(a.r, b.r), mix(a.g, b.g), mix(a.b, b.b)};
}

} // namespace trassix
