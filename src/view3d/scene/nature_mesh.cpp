#include "geometry/pose.h"
#include "view3d/scene/scenery_kit.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr Color kTrunk{92, 72, 54};
constexpr Color kLeaves{96, 124, 62};
constexpr Color kNeedles{58, 88, 60};
constexpr Color kWater{70, 104, 126};

Color leaves(const SceneryKit& kit, Color color, std::uint32_t salt) {
  return shaded(mixed(color, {146, 138, 72}, 0.25 * chance(kit, salt)),
                0.88 + 0.24 * chance(kit, salt + 1));
}

void addTrunk(const SceneryKit& kit, double x, double y, double radius, double height) {
  kit.b.cone({x, y, 0}, radius, height, radius * 0.7, kit.fine ? 6 : 3, kTrunk);
}

struct Tree {
  double x = 0;
  double y = 0;
  double width = 0;
  double depth = 0;
  double height = 0;
  std::uint32_t salt = 0;
};

void addLeafTree(const SceneryKit& kit, const Tree& tree) {
  const Color color = leaves(kit, kLeaves, tree.salt);
  const double r = tree.width / 2;
  const double s = tree.depth / 2;
  addTrunk(kit, tree.x, tree.y, 0.07 * r + 0.4 * kit.u, tree.height * 0.4);
  const double crown = tree.height * 0.7;
  const Vec3 middle{tree.x, tree.y, tree.height - crown / 2};
  if (!kit.fine)
    return kit.b.blob(middle, {r, s, crown / 2}, 6, color);
  kit.b.blob(middle + Vec3{0, 0, crown * 0.1}, {0.74 * r, 0.74 * s, crown * 0.4}, 10, color);
  for (std::uint32_t i = 0; i < 4; ++i) {
    const double t = kPi / 2 * i + 2 * chance(kit, tree.salt + 3);
    const double size = 0.48 + 0.1 * chance(kit, tree.salt + 5 + i);
    kit.b.blob(middle + Vec3{0.48 * r * std::cos(t), 0.48 * s * std::sin(t),
                             crown * (0.12 * chance(kit, tree.salt + 9 + i) - 0.16)},
               {size * r, size * s, size * crown * 0.55}, 8,
               shaded(color, 0.92 + 0.16 * chance(kit, tree.salt + 13 + i)));
  }
}

void addNeedleTree(const SceneryKit& kit, const Tree& tree) {
  const Color color = leaves(kit, kNeedles, tree.salt);
  const double r = std::min(tree.width, tree.depth) / 2;
  addTrunk(kit, tree.x, tree.y, r * 0.1, tree.height * 0.2);
  const int tiers = kit.fine ? 4 : 2;
  const double foot = tree.height * 0.1;
  for (int i = 0; i < tiers; ++i) {
    const double from = foot + (tree.height - foot) * 0.8 * i / tiers;
    const double size = r * (1 - 0.8 * i / tiers);
    const double top = i + 1 == tiers ? tree.height : from + (tree.height - foot) * 1.45 / tiers;
    kit.b.cone({tree.x, tree.y, from}, size, std::min(top, tree.height) - from, 0, kit.fine ? 9 : 6,
               shaded(color, 0.9 + 0.06 * i));
  }
}

} // namespace

void addBush(const SceneryKit& kit) {
  const Color color = leaves(kit, kLeaves, 1);
  const int sides = kit.fine ? 10 : 6;
  kit.b.blob({0, 0, kit.h * 0.42}, {kit.w / 2, kit.d / 2, kit.h * 0.58}, sides, color);
  if (kit.fine)
    kit.b.blob({kit.w * 0.18, kit.d * 0.12, kit.h * 0.6}, {kit.w * 0.28, kit.d * 0.28, kit.h * 0.4},
               8, shaded(color, 1.08));
}

void addHedge(const SceneryKit& kit) {
  const Color color = leaves(kit, {84, 108, 58}, 1);
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const Polygon foot{{-x, -y * 0.85}, {x, -y * 0.85}, {x, y * 0.85}, {-x, y * 0.85}};
  const Polygon middle{{-x, -y}, {x, -y}, {x, y}, {-x, y}};
  const Polygon top{{-x, -y * 0.6}, {x, -y * 0.6}, {x, y * 0.6}, {-x, y * 0.6}};
  kit.b.skirt(foot, 0, middle, kit.h * 0.6, color);
  kit.b.skirt(middle, kit.h * 0.6, top, kit.h, shaded(color, 1.06));
  kit.b.area(top, kit.h, shaded(color, 1.12));
}

void addBroadleaf(const SceneryKit& kit) {
  addLeafTree(kit, {0, 0, kit.w, kit.d, kit.h, 1});
}

void addConifer(const SceneryKit& kit) {
  addNeedleTree(kit, {0, 0, kit.w, kit.d, kit.h, 1});
}

void addPoplar(const SceneryKit& kit) {
  addTrunk(kit, 0, 0, kit.w * 0.08, kit.h * 0.2);
  kit.b.blob({0, 0, kit.h * 0.55}, {kit.w / 2, kit.d / 2, kit.h * 0.45}, kit.fine ? 10 : 6,
             leaves(kit, {104, 128, 66}, 1));
}

void addFruitTree(const SceneryKit& kit) {
  addLeafTree(kit, {0, 0, kit.w, kit.d, kit.h, 7});
  for (std::uint32_t i = 0; kit.fine && i < 10; ++i) { // apples
    const double t = 2 * kPi * chance(kit, 40 + i);
    const double up = kit.h * (0.45 + 0.35 * chance(kit, 60 + i));
    kit.b.blob({0.42 * kit.w * std::cos(t), 0.42 * kit.d * std::sin(t), up},
               {1.4 * kit.u, 1.4 * kit.u, 1.4 * kit.u}, 4, {178, 52, 40});
  }
}

void addLogs(const SceneryKit& kit) {
  const double r = std::min(kit.d / 6, kit.h / 4);
  const Color bark{116, 88, 62};
  for (int row = 0; row < 2; ++row)
    for (int i = 0; i < 3 - row; ++i) {
      const double y = (i - (2 - row) / 2.0) * 2 * r;
      const double z = r + row * 1.8 * r;
      constexpr int kSides = 8;
      for (int k = 0; k < kSides; ++k) {
        const auto at = [&](double x, int side) {
          const double t = 2 * kPi * side / kSides;
          return Vec3{x, y + r * std::cos(t), z + r * std::sin(t)};
        };
        kit.b.quad(at(-kit.w / 2, k), at(-kit.w / 2, k + 1), at(kit.w / 2, k + 1), at(kit.w / 2, k),
                   bark);
        kit.b.triangle({kit.w / 2, y, z}, at(kit.w / 2, k), at(kit.w / 2, k + 1), {206, 176, 128});
        kit.b.triangle({-kit.w / 2, y, z}, at(-kit.w / 2, k + 1), at(-kit.w / 2, k),
                       {206, 176, 128});
      }
    }
}

void addForest(const SceneryKit& kit) {
  kit.b.area({{-kit.w / 2, -kit.d / 2},
              {kit.w / 2, -kit.d / 2},
              {kit.w / 2, kit.d / 2},
              {-kit.w / 2, kit.d / 2}},
             0.6 * kit.u, {104, 112, 70});
  const double apart = (kit.fine ? 36 : 60) * kit.u;
  const int columns = std::clamp(static_cast<int>(kit.w / apart), 1, 12);
  const int rows = std::clamp(static_cast<int>(kit.d / apart), 1, 12);
  SceneryKit far = kit;
  far.fine = false;
  for (int row = 0; row < rows; ++row)
    for (int i = 0; i < columns; ++i) {
      const auto salt = static_cast<std::uint32_t>(100 + 50 * (row * columns + i));
      const double cellW = kit.w / columns;
      const double cellD = kit.d / rows;
      const double size = std::min(cellW, cellD) * (0.85 + 0.1 * chance(kit, salt));
      const double roomX = (cellW - size) / 2;
      const double roomY = (cellD - size) / 2;
      const Tree tree{-kit.w / 2 + cellW * (i + 0.5) + roomX * (2 * chance(kit, salt + 1) - 1),
                      -kit.d / 2 + cellD * (row + 0.5) + roomY * (2 * chance(kit, salt + 2) - 1),
                      size,
                      size,
                      kit.h * (0.6 + 0.4 * chance(kit, salt + 3)),
                      salt + 4};
      chance(kit, salt + 30) < 0.6 ? addNeedleTree(far, tree) : addLeafTree(far, tree);
    }
}

void addPond(const SceneryKit& kit) {
  const int sides = kit.fine ? 40 : 16;
  const auto ring = [&](double share) {
    Polygon points;
    for (int i = 0; i < sides; ++i) {
      const double t = 2 * kPi * i / sides;
      const double r = share * (0.92 + 0.08 * std::sin(3 * t + 6 * chance(kit, 1)));
      points.push_back({r * kit.w / 2 * std::cos(t), r * kit.d / 2 * std::sin(t)});
    }
    return points;
  };
  kit.b.skirt(ring(1), 0.2 * kit.u, ring(0.9), 1.2 * kit.u, {134, 126, 96});
  kit.b.setFinish(Finish::Glossy);
  kit.b.area(ring(0.9), 1.2 * kit.u, kWater);
  kit.b.setFinish(Finish::Matte);
}

void addField(const SceneryKit& kit) {
  const int strips = std::max(2, static_cast<int>(kit.d / (kit.fine ? 12 * kit.u : 40 * kit.u)));
  const Color crop = mixed({170, 156, 84}, {128, 146, 76}, chance(kit, 1));
  for (int i = 0; i < strips; ++i) {
    const double from = -kit.d / 2 + kit.d * i / strips;
    const double to = -kit.d / 2 + kit.d * (i + 1) / strips;
    kit.b.area({{-kit.w / 2, from}, {kit.w / 2, from}, {kit.w / 2, to}, {-kit.w / 2, to}},
               0.5 * kit.u, shaded(crop, i % 2 == 0 ? 1.0 : 0.92));
  }
}

} // namespace trassix
