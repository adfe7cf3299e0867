#include "view3d/scene/scene.h"

#include "document/layout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

Vec3 positionOf(const Mesh& mesh, std::uint32_t vertex) {
  const std::array<float, 3>& p = mesh.vertices[vertex].position;
  return {p[0], p[1], p[2]};
}

/// How far along the ray a triangle is met; none beside it.
std::optional<double> meet(Vec3 origin, Vec3 direction, Vec3 a, Vec3 b, Vec3 c) {
  const Vec3 u = b - a;
  const Vec3 v = c - a;
  const Vec3 p = cross(direction, v);
  const double size = dot(u, p);
  if (size == 0)
    return std::nullopt;
  const Vec3 from = origin - a;
  const double s = dot(from, p) / size;
  const Vec3 q = cross(from, u);
  const double t = dot(direction, q) / size;
  const double distance = dot(v, q) / size;
  if (s < 0 || t < 0 || s + t > 1 || distance <= 0)
    return std::nullopt;
  return distance;
}

bool meetsBox(Vec3 origin, Vec3 direction, const SceneBatch& batch) {
  double from = 0;
  double to = 1e30;
  const auto clip = [&](double start, double step, double least, double most) {
    if (step == 0)
      return start >= least && start <= most;
    const auto [near, far] = std::minmax({(least - start) / step, (most - start) / step});
    from = std::max(from, near);
    to = std::min(to, far);
    return from <= to;
  };
  return clip(origin.x, direction.x, batch.least.x, batch.most.x) &&
         clip(origin.y, direction.y, batch.least.y, batch.most.y) &&
         clip(origin.z, direction.z, batch.least.z, batch.most.z);
}

} // namespace

std::size_t Scene::triangles(Detail detail) const {
  std::size_t count = 0;
  for (const auto& [key, batch] : batches)
    count += batch.mesh(detail).triangles();
  return count;
}

Scene::Bounds Scene::bounds() const {
  std::optional<Bounds> all;
  for (const auto& [key, batch] : batches) {
    const Vec3 least{batch.least.x, batch.least.y,
                     key.group == SceneGroup::Board ? 0 : batch.least.z};
    if (!all)
      all = Bounds{least, batch.most};
    all->least = {std::min(all->least.x, least.x), std::min(all->least.y, least.y),
                  std::min(all->least.z, least.z)};
    all->most = {std::max(all->most.x, batch.most.x), std::max(all->most.y, batch.most.y),
                 std::max(all->most.z, batch.most.z)};
  }
  return all.value_or(Bounds{});
}

bool levelShown(const Layout& layout, std::int32_t level, const SceneView& view) {
  const auto chosen = view.levels.find(level);
  return chosen == view.levels.end() ? layout.levelVisible(level) : chosen->second;
}

bool isShown(const Layout& layout, const SceneKey& key, const SceneBatch& batch,
             const SceneView& view) {
  if (!levelShown(layout, batch.level, view) || (view.cut && batch.least.z > *view.cut))
    return false;
  switch (key.group) {
  case SceneGroup::Scenery:
    return view.scenery;
  case SceneGroup::Supports:
  case SceneGroup::Posts:
    return view.supports;
  case SceneGroup::Grades:
    return view.grades;
  default:
    return true;
  }
}

std::optional<SceneHit> hitOf(const Layout& layout, const Scene& scene, const SceneView& view,
                              Vec3 origin, Vec3 direction) {
  std::optional<SceneHit> nearest;
  for (const auto& [key, batch] : scene.batches) {
    if (!isShown(layout, key, batch, view) || !meetsBox(origin, direction, batch))
      continue;
    for (const std::vector<std::uint32_t>& list : batch.fine.indices)
      for (std::size_t i = 0; i + 2 < list.size(); i += 3) {
        const auto distance =
            meet(origin, direction, positionOf(batch.fine, list[i]),
                 positionOf(batch.fine, list[i + 1]), positionOf(batch.fine, list[i + 2]));
        if (!distance || (nearest && nearest->distance <= *distance))
          continue;
        const Vec3 at = origin + *distance * direction;
        if (!view.cut || at.z <= *view.cut)
          nearest = SceneHit{key, at, *distance};
      }
  }
  return nearest;
}

} // namespace trassix
