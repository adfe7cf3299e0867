#include "geometry/pose.h"
#include "view3d/scene/scenery_kit.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr Color kSteel{112, 116, 118};
constexpr Color kPaint{96, 116, 104};
constexpr Color kConcrete{166, 162, 154};
constexpr Color kCoal{44, 42, 42};
constexpr Color kBrick{150, 88, 70};
constexpr Color kTimber{120, 92, 66};

int roundness(const SceneryKit& kit) {
  return kit.fine ? 20 : 8;
}

/// Posts at the corners of a rectangle.
void addPosts(const SceneryKit& kit, double x, double y, double top, double thickness,
              Color color) {
  for (const double px : {-x, x})
    for (const double py : {-y, y})
      kit.b.bar({px, py, 0}, {px, py, top}, thickness, color);
}

} // namespace

void addGantryCrane(const SceneryKit& kit) {
  const double t = 5 * kit.u;
  const double x = kit.w / 2 - t;
  const double y = kit.d / 2 - t;
  const double beam = kit.h * 0.8;
  addPosts(kit, x * 0.5, y, beam, t, kPaint);
  for (const double px : {-x * 0.5, x * 0.5})
    kit.b.box({px - t, -kit.d / 2, beam}, {px + t, kit.d / 2, beam + 2 * t}, kPaint);
  for (const double py : {-y, y})
    kit.b.box({-x, py - t, 0}, {x, py + t, t}, kSteel);
  kit.b.box({-x * 0.55, -3 * t, beam + 2 * t}, {x * 0.55, 3 * t, kit.h}, {180, 146, 58});
  kit.b.bar({0, 0, beam}, {0, 0, kit.h * 0.45}, 0.8 * kit.u, kSteel);
  kit.b.box({-2 * t, -2 * t, kit.h * 0.38}, {2 * t, 2 * t, kit.h * 0.45}, kSteel);
}

void addWaterTower(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  const int sides = roundness(kit);
  kit.b.cone({}, r * 0.72, kit.h * 0.58, r * 0.58, sides, kBrick);
  kit.b.cone({0, 0, kit.h * 0.52}, r * 0.6, kit.h * 0.1, r, sides, shaded(kSteel, 0.8));
  kit.b.cone({0, 0, kit.h * 0.62}, r, kit.h * 0.24, r, sides, {128, 136, 130});
  kit.b.cone({0, 0, kit.h * 0.86}, r * 1.0, kit.h * 0.14, 0, sides, {92, 74, 66});
}

void addWaterCrane(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) * 0.16;
  const double y = -kit.d / 2 + 2 * r;
  kit.b.cone({0, y, 0}, 2 * r, kit.h * 0.06, 2 * r, 10, kConcrete);
  kit.b.cone({0, y, 0}, r, kit.h * 0.85, r * 0.8, 10, kPaint);
  kit.b.bar({0, y, kit.h * 0.82}, {0, kit.d / 2, kit.h * 0.9}, 1.4 * r, kPaint);
  kit.b.bar({0, kit.d / 2 - r, kit.h * 0.9}, {0, kit.d / 2 - r, kit.h * 0.68}, 1.4 * r, kPaint);
  kit.b.cone({0, y, kit.h * 0.85}, r * 0.9, kit.h * 0.15, 0, 8, kPaint);
}

void addCoalStage(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double stage = kit.h * 0.22;
  kit.b.box({-x, -y, 0}, {x, y, stage}, kTimber, shaded(kTimber, 0.8));
  for (const double at : {-0.55, 0.05, 0.6})
    kit.b.cone({at * x, 0, stage}, y * 0.7, kit.h * 0.2, y * 0.15, kit.fine ? 9 : 6, kCoal);
  const double mast = -x * 0.85;
  kit.b.cone({mast, 0, stage}, 4 * kit.u, kit.h * 0.7, 3 * kit.u, 8, kPaint);
  kit.b.bar({mast, 0, kit.h * 0.85}, {mast + kit.w * 0.3, 0, kit.h * 0.98}, 3 * kit.u, kPaint);
  kit.b.box({mast - 8 * kit.u, -7 * kit.u, kit.h * 0.6},
            {mast + 4 * kit.u, 7 * kit.u, kit.h * 0.82}, {150, 132, 92});
}

void addBunker(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  addPosts(kit, x * 0.85, y * 0.85, kit.h * 0.45, 10 * kit.u, kConcrete);
  const Polygon wide{{-x, -y}, {x, -y}, {x, y}, {-x, y}};
  const Polygon narrow{
      {-x * 0.5, -y * 0.5}, {x * 0.5, -y * 0.5}, {x * 0.5, y * 0.5}, {-x * 0.5, y * 0.5}};
  kit.b.skirt(narrow, kit.h * 0.34, wide, kit.h * 0.5, shaded(kConcrete, 0.85));
  kit.b.prism(wide, kit.h * 0.5, kit.h * 0.86, kConcrete, kCoal);
  kit.b.box({-x * 0.4, -y * 0.5, kit.h * 0.86}, {x * 0.4, y * 0.5, kit.h}, {142, 116, 96},
            {96, 84, 80});
}

void addSandTower(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  addPosts(kit, r * 0.7, r * 0.7, kit.h * 0.66, r * 0.14, kSteel);
  kit.b.cone({0, 0, kit.h * 0.5}, r * 0.15, kit.h * 0.16, r * 0.8, roundness(kit), kSteel);
  kit.b.cone({0, 0, kit.h * 0.66}, r * 0.8, kit.h * 0.24, r * 0.8, roundness(kit), {170, 160, 130});
  kit.b.cone({0, 0, kit.h * 0.9}, r * 0.85, kit.h * 0.1, 0, roundness(kit), kSteel);
}

void addAshPit(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double top = std::max(kit.h, 0.6 * kit.u);
  kit.b.box({-x, -y, 0}, {x, y, top}, kConcrete);
  kit.b.area(
      {{-x * 0.94, -y * 0.4}, {x * 0.94, -y * 0.4}, {x * 0.94, y * 0.4}, {-x * 0.94, y * 0.4}},
      top + 0.2 * kit.u, kCoal);
}

void addPump(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  kit.b.box({-x, -y, 0}, {x, y, 3 * kit.u}, kConcrete);
  addPosts(kit, x * 0.7, y * 0.1, kit.h * 0.88, 3 * kit.u, kSteel);
  kit.b.box({-x, -y, kit.h * 0.88}, {x, y, kit.h}, {196, 190, 176}, {176, 62, 46});
  for (const double at : {-0.3, 0.3})
    kit.b.box({at * x - 4 * kit.u, -3 * kit.u, 3 * kit.u},
              {at * x + 4 * kit.u, 3 * kit.u, kit.h * 0.42}, {176, 62, 46}, {228, 224, 212});
}

void addFactoryChimney(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  const int sides = roundness(kit);
  kit.b.box({-r, -r, 0}, {r, r, kit.h * 0.08}, kBrick, shaded(kBrick, 0.8));
  kit.b.cone({0, 0, kit.h * 0.08}, r * 0.82, kit.h * 0.86, r * 0.5, sides, kBrick);
  kit.b.cone({0, 0, kit.h * 0.94}, r * 0.62, kit.h * 0.06, r * 0.58, sides, shaded(kBrick, 0.7));
}

void addTank(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  const int sides = roundness(kit);
  kit.b.cone({}, r, kit.h * 0.86, r, sides, {206, 204, 196});
  kit.b.cone({0, 0, kit.h * 0.86}, r, kit.h * 0.14, r * 0.12, sides, {188, 188, 182});
  kit.b.bar({r * 0.96, 0, 0}, {r * 0.96, 0, kit.h * 0.9}, 2 * kit.u, kSteel);
}

void addGasholder(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  const int posts = kit.fine ? 12 : 8;
  kit.b.cone({}, r * 0.9, kit.h * 0.6, r * 0.9, roundness(kit), {122, 128, 120});
  kit.b.cone({0, 0, kit.h * 0.6}, r * 0.9, kit.h * 0.08, r * 0.1, roundness(kit), {134, 140, 132});
  for (int i = 0; i < posts; ++i) {
    const auto at = [&](int post, double z) {
      const double t = 2 * kPi * post / posts;
      return Vec3{r * 0.97 * std::cos(t), r * 0.97 * std::sin(t), z};
    };
    kit.b.bar(at(i, 0), at(i, kit.h), 3 * kit.u, kSteel);
    for (const double z : {0.5, 0.97})
      kit.b.bar(at(i, kit.h * z), at(i + 1, kit.h * z), 2 * kit.u, kSteel);
  }
}

void addSilo(const SceneryKit& kit) {
  const double r = std::min(kit.w / 4, kit.d / 2);
  for (const double x : {-kit.w / 2 + r, kit.w / 2 - r})
    kit.b.cone({x, 0, 0}, r, kit.h * 0.82, r, roundness(kit), {198, 192, 178});
  kit.b.box({-kit.w * 0.46, -r * 0.6, kit.h * 0.82}, {kit.w * 0.46, r * 0.6, kit.h},
            {160, 152, 138}, {112, 100, 92});
}

void addLoadingRamp(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double level = kit.w * 0.65 - x;
  kit.b.box({-x, -y, 0}, {level, y, kit.h}, {140, 132, 122}, {166, 160, 148});
  kit.b.quad({level, -y, kit.h}, {x, -y, 0}, {x, y, 0}, {level, y, kit.h}, {166, 160, 148});
  kit.b.triangle({level, -y, 0}, {x, -y, 0}, {level, -y, kit.h}, {140, 132, 122});
  kit.b.triangle({x, y, 0}, {level, y, 0}, {level, y, kit.h}, {140, 132, 122});
}

} // namespace trassix
