#include "view3d/scene/scenery_kit.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr Color kMast{138, 142, 140};
constexpr Color kBlack{40, 42, 44};
constexpr Color kWhite{236, 234, 226};
constexpr Color kRed{188, 44, 36};
constexpr Color kAsphalt{98, 98, 98};
constexpr Color kPaving{176, 170, 158};
constexpr Color kTimber{112, 88, 66};

/// Roads lie a little above the ground so that nothing shines through.
double roadTop(const SceneryKit& kit) {
  return std::max(kit.h, 0.8 * kit.u);
}

void addPatch(const SceneryKit& kit, double x0, double y0, double x1, double y1, double z,
              Color color) {
  kit.b.area({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}}, z, color);
}

void addMast(const SceneryKit& kit, double radius, double height, Color color = kMast) {
  kit.b.cone({}, radius, height, radius * 0.75, kit.fine ? 8 : 4, color);
}

void addRoadway(const SceneryKit& kit, Color surface) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  kit.b.box({-x, -y, 0}, {x, y, roadTop(kit)}, shaded(surface, 0.85), surface);
}

/// A striped bar along x.
void addStripes(const SceneryKit& kit, double from, double to, double y, double z, double size) {
  const int parts = kit.fine ? 8 : 4;
  for (int i = 0; i < parts; ++i)
    kit.b.bar({from + (to - from) * i / parts, y, z}, {from + (to - from) * (i + 1) / parts, y, z},
              size, i % 2 == 0 ? kRed : kWhite);
}

} // namespace

void addPlatform(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double edge = std::min(4 * kit.u, y * 0.3);
  kit.b.box({-x, -y, 0}, {x, y, kit.h}, {150, 144, 134}, kPaving);
  for (const double side : {-1.0, 1.0}) {
    const double out = side * y;
    const double in = side * (y - edge);
    addPatch(kit, -x, std::min(out, in), x, std::max(out, in), kit.h + 0.15 * kit.u,
             {206, 202, 192});
    const double line = side * (y - 1.6 * edge);
    addPatch(kit, -x, line - 0.4 * kit.u, x, line + 0.4 * kit.u, kit.h + 0.15 * kit.u, kWhite);
  }
}

void addPlatformRoof(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const int columns = std::max(2, static_cast<int>(kit.w / (85 * kit.u)));
  for (int i = 0; i < columns; ++i) {
    const double at = -x + kit.w * (i + 0.5) / columns;
    kit.b.bar({at, 0, 0}, {at, 0, kit.h * 0.82}, 3 * kit.u, {88, 104, 96});
    for (const double side : {-1.0, 1.0})
      kit.b.bar({at, 0, kit.h * 0.66}, {at, side * y * 0.7, kit.h * 0.88}, 2 * kit.u,
                {88, 104, 96});
  }
  for (const double side : {-1.0, 1.0}) { // both halves slope towards the middle
    const Vec3 a{-side * x, side * y, kit.h};
    const Vec3 b{side * x, side * y, kit.h};
    const Vec3 c{side * x, 0, kit.h * 0.84};
    const Vec3 d{-side * x, 0, kit.h * 0.84};
    kit.b.quad(b, a, d, c, {124, 120, 112});
    kit.b.quad(c, d, a, b, {172, 162, 140});
  }
}

void addStairs(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double wall = 2 * kit.u;
  addPatch(kit, -x, -y, x, y, 0.6 * kit.u, kPaving);
  for (const double side : {-1.0, 1.0})
    kit.b.box({-x, side > 0 ? y - wall : -y, 0}, {x, side > 0 ? y : -y + wall, kit.h}, kPaving);
  kit.b.box({-x, -y + wall, 0}, {-x + wall, y - wall, kit.h}, kPaving);
  const int steps = 6;
  for (int i = 0; i < steps; ++i) // darker the deeper they lead
    addPatch(kit, -x + wall + (kit.w - wall) * i / steps, -y + wall,
             -x + wall + (kit.w - wall) * (i + 1) / steps, y - wall, 0.9 * kit.u,
             shaded(kPaving, 0.25 + 0.7 * i / steps));
}

void addLightSignal(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  const bool low = kit.h < 25 * kit.u;
  const double head = low ? kit.h : std::min(kit.h * 0.36, 24 * kit.u);
  kit.b.box({-r * 0.7, -r * 0.7, 0}, {r * 0.7, r * 0.7, 2 * kit.u}, kPaving);
  if (!low)
    addMast(kit, r * 0.22, kit.h - head * 0.5);
  kit.b.box({-r * 0.5, -r * 0.8, kit.h - head}, {r * 0.1, r * 0.8, kit.h}, kBlack);
  const double lamp = std::min(r * 0.3, head * 0.14);
  const Color lights[] = {kRed, {230, 180, 60}, {70, 170, 90}};
  for (std::size_t i = 0; i < 3; ++i) {
    const double z = kit.h - head * (0.2 + 0.3 * static_cast<double>(i));
    kit.b.quad({-r * 0.55, lamp, z - lamp}, {-r * 0.55, -lamp, z - lamp},
               {-r * 0.55, -lamp, z + lamp}, {-r * 0.55, lamp, z + lamp}, lights[i]);
  }
}

void addSemaphore(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) / 2;
  const double top = kit.h * 0.93;
  kit.b.box({-r * 0.5, -r * 0.5, 0}, {r * 0.5, r * 0.5, 3 * kit.u}, kPaving);
  for (const double y : {-1.2 * kit.u, 1.2 * kit.u}) // a lattice mast
    kit.b.bar({0, y, 0}, {0, y * 0.6, kit.h}, 1.1 * kit.u, kMast);
  const int rungs = kit.fine ? 8 : 3;
  for (int i = 1; i < rungs; ++i)
    kit.b.bar({0, -kit.u, kit.h * i / rungs}, {0, kit.u, kit.h * (i + 0.6) / rungs}, 0.7 * kit.u,
              kMast);
  const double reach = std::max(kit.d / 2, 6 * kit.u);
  const double arm = 2.2 * kit.u;
  for (int i = 0; i < std::max(1, kit.look.storeys); ++i) {
    const double z = top - i * kit.h * 0.2;
    kit.b.box({-1.6 * kit.u, -reach * 0.2, z - arm}, {-0.8 * kit.u, reach, z + arm}, kRed, kRed);
    kit.b.quad({-1.7 * kit.u, reach * 0.85, z - arm * 0.6}, {-1.7 * kit.u, 0, z - arm * 0.6},
               {-1.7 * kit.u, 0, z + arm * 0.6}, {-1.7 * kit.u, reach * 0.85, z + arm * 0.6},
               kWhite);
  }
}

void addSignalGantry(const SceneryKit& kit) {
  const double t = 3 * kit.u;
  const double x = kit.w / 2 - t;
  const double beam = kit.h * 0.74;
  for (const double side : {-x, x})
    kit.b.bar({side, 0, 0}, {side, 0, beam}, t * 1.4, kMast);
  for (const double y : {-t, t}) {
    kit.b.bar({-x, y, beam}, {x, y, beam}, t * 0.6, kMast);
    kit.b.bar({-x, y, beam + 2 * t}, {x, y, beam + 2 * t}, t * 0.6, kMast);
  }
  for (const double at : {-0.5, 0.5}) {
    const double middle = at * x;
    kit.b.box({middle - 5 * kit.u, -2 * t, beam}, {middle + 5 * kit.u, -t, kit.h}, kBlack);
    kit.b.quad({middle - 2 * kit.u, -2.1 * t, kit.h - 8 * kit.u},
               {middle + 2 * kit.u, -2.1 * t, kit.h - 8 * kit.u},
               {middle + 2 * kit.u, -2.1 * t, kit.h - 4 * kit.u},
               {middle - 2 * kit.u, -2.1 * t, kit.h - 4 * kit.u}, kRed);
  }
}

void addBoardSign(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  kit.b.bar({0, 0, 0}, {0, 0, kit.h * 0.6}, std::min(x, y), kMast);
  kit.b.box({-x, -y, kit.h * 0.55}, {x, y, kit.h}, kWhite);
}

void addBuffer(const SceneryKit& kit) {
  const TrackSection section = trackSection(kit.system);
  MeshBuilder& b = kit.b;
  // The model's front is at x = 0, the item's middle.
  addBufferStop(b, section.gauge, 0, section.railTop);
}

void addLineMast(const SceneryKit& kit) {
  const double t = std::min(kit.w, kit.d) * 0.25;
  kit.b.box({-1.4 * t, -1.4 * t, 0}, {1.4 * t, 1.4 * t, 2 * kit.u}, kPaving);
  kit.b.bar({0, 0, 0}, {0, 0, kit.h}, t, kMast);
  const double reach = 24 * kit.u; // to the middle of the track
  for (const double z : {0.8, 0.97})
    kit.b.bar({0, 0, kit.h * z}, {0, -reach, kit.h * 0.83}, t * 0.4, kMast);
  kit.b.bar({0, -reach, kit.h * 0.83}, {0, -reach, kit.h * 0.76}, t * 0.4, {120, 84, 60});
}

void addTowerMast(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  for (const double px : {-x, x})
    for (const double py : {-y, y})
      kit.b.bar({px, py, 0}, {px * 0.25, py * 0.25, kit.h}, 1.6 * kit.u, kMast);
  const int rungs = kit.fine ? 7 : 3;
  for (int i = 1; i < rungs; ++i) {
    const double z = kit.h * i / rungs;
    const double share = 1 - 0.75 * i / rungs;
    for (const double side : {-1.0, 1.0}) {
      kit.b.bar({-x * share, side * y * share, z}, {x * share, side * y * share, z}, kit.u, kMast);
      kit.b.bar({side * x * share, -y * share, z}, {side * x * share, y * share, z}, kit.u, kMast);
    }
  }
}

void addPortalMast(const SceneryKit& kit) {
  const double x = kit.w / 2 - 3 * kit.u;
  for (const double side : {-x, x})
    kit.b.bar({side, 0, 0}, {side, 0, kit.h}, 5 * kit.u, kMast);
  for (const double z : {0.72, 0.86})
    kit.b.bar({-x, 0, kit.h * z}, {x, 0, kit.h * z}, 2 * kit.u, kMast);
  const int fields = kit.fine ? 12 : 6;
  for (int i = 0; i < fields; ++i) {
    const double from = -x + 2 * x * i / fields;
    const double to = -x + 2 * x * (i + 1) / fields;
    kit.b.bar({from, 0, kit.h * (i % 2 == 0 ? 0.72 : 0.86)},
              {to, 0, kit.h * (i % 2 == 0 ? 0.86 : 0.72)}, 1.2 * kit.u, kMast);
  }
  for (int i = 0; i < 4; ++i) {
    const double at = -x + 2 * x * (i + 0.5) / 4;
    kit.b.bar({at, 0, kit.h * 0.72}, {at, 0, kit.h * 0.62}, kit.u, {120, 84, 60});
  }
}

void addLamp(const SceneryKit& kit) {
  addMast(kit, std::max(kit.w * 0.16, 0.5 * kit.u), kit.h * 0.9, {76, 88, 82});
  kit.b.cone({0, 0, kit.h * 0.86}, kit.w * 0.2, kit.h * 0.1, kit.w * 0.45, kit.fine ? 8 : 4,
             {244, 228, 176});
  kit.b.cone({0, 0, kit.h * 0.96}, kit.w * 0.5, kit.h * 0.04, 0, kit.fine ? 8 : 4, {76, 88, 82});
}

void addYardLight(const SceneryKit& kit) {
  addTowerMast(kit);
  for (const double side : {-1.0, 1.0})
    kit.b.box({side * kit.w * 0.2 - 3 * kit.u, -4 * kit.u, kit.h - 5 * kit.u},
              {side * kit.w * 0.2 + 3 * kit.u, 4 * kit.u, kit.h}, {244, 228, 176}, kMast);
}

void addTelegraphPole(const SceneryKit& kit) {
  addMast(kit, kit.w * 0.25, kit.h, kTimber);
  for (const double z : {0.84, 0.93}) {
    kit.b.bar({0, -kit.d / 2, kit.h * z}, {0, kit.d / 2, kit.h * z}, kit.w * 0.25, kTimber);
    for (const double y : {-0.42, -0.2, 0.2, 0.42})
      kit.b.bar({0, y * kit.d, kit.h * z}, {0, y * kit.d, kit.h * (z + 0.035)}, kit.w * 0.2,
                kWhite);
  }
}

void addLevelCrossing(const SceneryKit& kit) {
  // The road leads across the track, which runs along x.
  const TrackSection s = trackSection(kit.system);
  const double half = kit.w * 0.28;
  const double y = kit.d / 2;
  const double bed = std::min(s.bedHalf, y * 0.6);
  const bool twin = kit.d > kit.w;
  const double track = twin ? kit.d * 0.185 + bed : bed;
  for (const double side : {-1.0, 1.0}) {
    const double out = side * y;
    const double in = side * track;
    if (side < 0)
      kit.b.quad({-half, out, 0.6 * kit.u}, {half, out, 0.6 * kit.u}, {half, in, s.railTop * 0.94},
                 {-half, in, s.railTop * 0.94}, kAsphalt);
    else
      kit.b.quad({half, out, 0.6 * kit.u}, {-half, out, 0.6 * kit.u}, {-half, in, s.railTop * 0.94},
                 {half, in, s.railTop * 0.94}, kAsphalt);
    for (const double x : {-half, half})
      kit.b.triangle({x, out, 0}, {x, in, 0}, {x, in, s.railTop * 0.94}, shaded(kAsphalt, 0.8));
    const double bar = side * (track + 7 * kit.u);
    const double post = side * (half + 5 * kit.u);
    kit.b.box({post - 2 * kit.u, bar - 2 * kit.u, 0}, {post + 2 * kit.u, bar + 2 * kit.u, kit.h},
              kMast);
    addStripes(kit, post, -side * half * 0.9, bar, std::max(kit.h * 0.9, s.railTop * 1.4),
               1.6 * kit.u);
  }
  if (const double between = track - 2 * bed; twin && between > 0)
    kit.b.box({-half, -between, 0}, {half, between, s.railTop * 0.94}, kAsphalt);
  const double inner = s.gauge / 2 - 1.5 * s.railWidth; // planks between and beside the rails
  for (const double middle : {twin ? -kit.d * 0.185 : 0.0, twin ? kit.d * 0.185 : 0.0})
    kit.b.box({-half, middle - inner, s.bedTop}, {half, middle + inner, s.railTop * 0.94}, kTimber);
}

void addBarrier(const SceneryKit& kit) {
  const double x = -kit.w / 2 + 3 * kit.u;
  kit.b.box({x - 3 * kit.u, -3 * kit.u, 0}, {x + 3 * kit.u, 3 * kit.u, 14 * kit.u}, kMast);
  // Open: its end stands as high as the item.
  const int parts = kit.fine ? 8 : 4;
  const Vec3 foot{x, 0, 11 * kit.u};
  const Vec3 tip{kit.w / 2, 0, kit.h};
  for (int i = 0; i < parts; ++i)
    kit.b.bar(foot + (1.0 * i / parts) * (tip - foot),
              foot + (1.0 * (i + 1) / parts) * (tip - foot), 1.6 * kit.u,
              i % 2 == 0 ? kRed : kWhite);
}

void addRoad(const SceneryKit& kit) {
  addRoadway(kit, kit.look.wall);
  const double z = roadTop(kit) + 0.15 * kit.u;
  const double dash = 18 * kit.u;
  const int dashes = std::max(1, static_cast<int>(kit.w / (2 * dash)));
  for (int i = 0; i < dashes; ++i) {
    const double at = -kit.w / 2 + kit.w * (i + 0.5) / dashes;
    addPatch(kit, at - dash / 2, -0.7 * kit.u, at + dash / 2, 0.7 * kit.u, z, kWhite);
  }
  for (const double side : {-1.0, 1.0})
    addPatch(kit, -kit.w / 2, side * kit.d * 0.46 - 0.5 * kit.u, kit.w / 2,
             side * kit.d * 0.46 + 0.5 * kit.u, z, kWhite);
}

void addFarmTrack(const SceneryKit& kit) {
  addRoadway(kit, {150, 132, 102});
  for (const double side : {-1.0, 1.0})
    addPatch(kit, -kit.w / 2, side * kit.d * 0.24 - kit.d * 0.1, kit.w / 2,
             side * kit.d * 0.24 + kit.d * 0.1, roadTop(kit) + 0.15 * kit.u, {124, 106, 82});
}

void addPavement(const SceneryKit& kit) {
  addRoadway(kit, kPaving);
  const int slabs = kit.fine ? std::max(2, static_cast<int>(kit.w / (16 * kit.u))) : 0;
  for (int i = 1; i < slabs; ++i) {
    const double at = -kit.w / 2 + kit.w * i / slabs;
    addPatch(kit, at - 0.3 * kit.u, -kit.d / 2, at + 0.3 * kit.u, kit.d / 2,
             roadTop(kit) + 0.15 * kit.u, shaded(kPaving, 0.8));
  }
}

void addSquare(const SceneryKit& kit) {
  addRoadway(kit, {142, 134, 124});
  const int fields = kit.fine ? 8 : 2;
  for (int row = 0; row < fields; ++row)
    for (int i = row % 2; i < fields; i += 2)
      addPatch(kit, -kit.w / 2 + kit.w * i / fields, -kit.d / 2 + kit.d * row / fields,
               -kit.w / 2 + kit.w * (i + 1) / fields, -kit.d / 2 + kit.d * (row + 1) / fields,
               roadTop(kit) + 0.15 * kit.u, {150, 142, 130});
}

void addCarPark(const SceneryKit& kit) {
  addRoadway(kit, kAsphalt);
  const int places = std::max(2, static_cast<int>(kit.w / (30 * kit.u)));
  for (int i = 0; i <= places; ++i)
    for (const double side : {-1.0, 1.0}) {
      const double at = -kit.w / 2 + kit.u + (kit.w - 2 * kit.u) * i / places;
      const double out = side * kit.d * 0.49;
      const double in = side * kit.d * 0.2;
      addPatch(kit, at - 0.6 * kit.u, std::min(out, in), at + 0.6 * kit.u, std::max(out, in),
               roadTop(kit) + 0.15 * kit.u, kWhite);
    }
}

} // namespace trassix
