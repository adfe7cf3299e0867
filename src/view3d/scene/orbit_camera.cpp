#include "view3d/scene/orbit_camera.h"

#include "geometry/pose.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kFieldOfView = 40; // degrees, from top to bottom
constexpr double kNearest = 20;     // mm of distance
constexpr double kFarthest = 1e6;
constexpr double kLowest = -10; // degrees of pitch
constexpr double kFitRoom = 1.16;

double halfTangent() {
  static const double tangent = std::tan(toRadians(kFieldOfView / 2));
  return tangent;
}

std::array<Vec3, 8> cornersOf(const Scene::Bounds& bounds) {
  std::array<Vec3, 8> corners;
  for (std::size_t i = 0; i < corners.size(); ++i)
    corners[i] = {(i & 1U) != 0 ? bounds.most.x : bounds.least.x,
                  (i & 2U) != 0 ? bounds.most.y : bounds.least.y,
                  (i & 4U) != 0 ? bounds.most.z : bounds.least.z};
  return corners;
}

} // namespace

Matrix4 product(const Matrix4& a, const Matrix4& b) {
  Matrix4 c{};
  for (std::size_t column = 0; column < 4; ++column)
    for (std::size_t row = 0; row < 4; ++row)
      for (std::size_t k = 0; k < 4; ++k)
        c[column * 4 + row] += a[k * 4 + row] * b[column * 4 + k];
  return c;
}

ViewVolume::ViewVolume(const Matrix4& all) {
  for (std::size_t i = 0; i < planes_.size(); ++i) {
    const double sign = i % 2 == 0 ? 1 : -1;
    const auto at = [&](std::size_t column) {
      return all[column * 4 + 3] + sign * all[column * 4 + i / 2];
    };
    planes_[i] = {{at(0), at(1), at(2)}, at(3)};
  }
}

bool ViewVolume::meets(Vec3 least, Vec3 most) const {
  return std::ranges::all_of(planes_, [&](const Plane& plane) {
    const Vec3 in = plane.inwards;
    const Vec3 farthest{in.x > 0 ? most.x : least.x, in.y > 0 ? most.y : least.y,
                        in.z > 0 ? most.z : least.z};
    return dot(in, farthest) + plane.offset >= 0;
  });
}

Vec3 OrbitCamera::forward() const {
  const double y = toRadians(yaw);
  const double p = toRadians(pitch);
  return {-std::sin(y) * std::cos(p), std::cos(y) * std::cos(p), -std::sin(p)};
}

Vec3 OrbitCamera::right() const {
  return {std::cos(toRadians(yaw)), std::sin(toRadians(yaw)), 0};
}

Vec3 OrbitCamera::up() const {
  return cross(right(), forward());
}

Matrix4 OrbitCamera::view() const {
  const Vec3 r = right();
  const Vec3 u = up();
  const Vec3 f = forward();
  const Vec3 e = eye();
  return {r.x, u.x, -f.x, 0, r.y,        u.y,        -f.y,      0,
          r.z, u.z, -f.z, 0, -dot(r, e), -dot(u, e), dot(f, e), 1};
}

Matrix4 OrbitCamera::projection(const Scene::Bounds& bounds) const {
  double least = 1e30;
  double most = -1e30;
  for (const Vec3 corner : cornersOf(bounds)) {
    const double depth = dot(corner - eye(), forward());
    least = std::min(least, depth);
    most = std::max(most, depth);
  }
  // Frame and legs of the board, and the floor around it.
  const double around = 1000 + 3 * lengthOf(bounds.most - bounds.least);
  most += around;
  const double top = 1 / halfTangent();
  const double aspect = width / height;
  if (orthographic) {
    least -= around;
    const double half = distance * halfTangent();
    return {1 / (half * aspect),
            0,
            0,
            0,
            0,
            1 / half,
            0,
            0,
            0,
            0,
            -2 / (most - least),
            0,
            0,
            0,
            -(most + least) / (most - least),
            1};
  }
  least = std::max({least - 1, distance / 200, 5.0});
  most = std::max(most, least + 1);
  return {top / aspect,
          0,
          0,
          0,
          0,
          top,
          0,
          0,
          0,
          0,
          (most + least) / (least - most),
          -1,
          0,
          0,
          2 * most * least / (least - most),
          0};
}

double OrbitCamera::mmPerPixel(Vec3 at) const {
  const double depth = orthographic ? distance : dot(at - eye(), forward());
  return std::max(depth, 1.0) * halfTangent() * 2 / height;
}

std::optional<OrbitCamera::Pixel> OrbitCamera::project(Vec3 at) const {
  const Vec3 from = at - eye();
  const double depth = orthographic ? distance : dot(from, forward());
  if (depth <= 0)
    return std::nullopt;
  const double scale = height / (2 * halfTangent() * depth);
  return Pixel{width / 2 + dot(from, right()) * scale, height / 2 - dot(from, up()) * scale};
}

OrbitCamera::Ray OrbitCamera::ray(Pixel pixel) const {
  const double scale = 2 * halfTangent() / height;
  const Vec3 aside = scale * ((pixel.x - width / 2) * right() + (height / 2 - pixel.y) * up());
  if (orthographic) // from far enough behind that nothing is left out
    return {eye() + distance * aside - kFarthest * forward(), forward()};
  return {eye(), unit(forward() + aside)};
}

double OrbitCamera::mmPerPixel(Vec3 least, Vec3 most) const {
  const Vec3 from = eye();
  const Vec3 nearest{std::clamp(from.x, least.x, most.x), std::clamp(from.y, least.y, most.y),
                     std::clamp(from.z, least.z, most.z)};
  return mmPerPixel(from + lengthOf(nearest - from) * forward());
}

void OrbitCamera::orbit(Vec3 about, double byYaw, double byPitch) {
  const auto inView = [this](Vec3 v) {
    return Vec3{dot(v, right()), dot(v, up()), dot(v, forward())};
  };
  const Vec3 before = inView(target - about);
  yaw = std::remainder(yaw + byYaw, 360.0);
  pitch = std::clamp(pitch + byPitch, kLowest, 90.0);
  if (byPitch != 0)
    orthographic = false;
  target = about + before.x * right() + before.y * up() + before.z * forward();
}

void OrbitCamera::pan(Vec3 at, double dx, double dy) {
  const double scale = mmPerPixel(at);
  target = target - (dx * scale) * right() + (dy * scale) * up();
}

void OrbitCamera::zoom(Vec3 at, double factor) {
  const double wanted = std::clamp(distance / factor, kNearest, kFarthest);
  const double share = wanted / distance;
  target = at + share * (target - at);
  distance = wanted;
}

void OrbitCamera::fit(const Scene::Bounds& bounds) {
  constexpr int kRounds = 6; // each centres what perspective shifted
  const double tall = halfTangent() / kFitRoom;
  const double wide = tall * width / height;
  target = 0.5 * (bounds.least + bounds.most);
  for (int round = 0; round < kRounds; ++round) {
    double needed = kNearest;
    for (const Vec3 corner : cornersOf(bounds)) {
      const Vec3 from = corner - target;
      const double nearer = orthographic ? 0 : -dot(from, forward());
      needed = std::max({needed, std::abs(dot(from, right())) / wide + nearer,
                         std::abs(dot(from, up())) / tall + nearer});
    }
    distance = std::min(needed, kFarthest);
    Pixel least{1e30, 1e30};
    Pixel most{-1e30, -1e30};
    for (const Vec3 corner : cornersOf(bounds))
      if (const auto at = project(corner)) {
        least = {std::min(least.x, at->x), std::min(least.y, at->y)};
        most = {std::max(most.x, at->x), std::max(most.y, at->y)};
      }
    if (least.x <= most.x)
      pan(target, (width - least.x - most.x) / 2, (height - least.y - most.y) / 2);
  }
}

void OrbitCamera::standAt(Vec3 eye, Vec3 forward) {
  orthographic = false;
  yaw = toDegrees(std::atan2(-forward.x, forward.y));
  pitch = toDegrees(std::asin(std::clamp(-forward.z, -1.0, 1.0)));
  distance = kNearest;
  target = eye + distance * forward;
}

void OrbitCamera::look(CameraView from, const Scene::Bounds& bounds) {
  constexpr double kFlat = 12; // degrees: a little from above, so that the board is seen
  constexpr double kOblique = 35;
  orthographic = from == CameraView::Top;
  yaw = from == CameraView::Side ? 90 : from == CameraView::Oblique ? 30 : 0;
  pitch = from == CameraView::Top ? 90 : from == CameraView::Oblique ? kOblique : kFlat;
  fit(bounds);
}

} // namespace trassix
