#include "geometry/pose.h"
#include "view3d/scene/scenery_kit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr Color kGlass{74, 88, 100};
constexpr Color kFrame{232, 228, 218};
constexpr Color kDoor{92, 64, 46};
constexpr Color kBrick{150, 84, 66};
constexpr Color kPlinth{128, 122, 114};
constexpr Color kTimber{78, 56, 42};
constexpr Color kSteel{116, 118, 120};

/// A flat patch on a wall, a little before it.
void addPatch(const SceneryKit& kit, const Facade& wall, double from, double to, double bottom,
              double top, Color color, double before) {
  const Vec3 out = cross(wall.right, {0, 0, 1});
  const auto at = [&](double along, double up) {
    return wall.corner + along * wall.right + Vec3{0, 0, up} + before * out;
  };
  kit.b.quad(at(from, bottom), at(to, bottom), at(to, top), at(from, top), color);
}

std::array<Facade, 4> wallsOf(double w, double d, double bottom, double top, int rows) {
  const double x = w / 2;
  const double y = d / 2;
  return {{{{-x, -y, bottom}, {1, 0, 0}, w, top - bottom, rows},
           {{x, -y, bottom}, {0, 1, 0}, d, top - bottom, rows},
           {{x, y, bottom}, {-1, 0, 0}, w, top - bottom, rows},
           {{-x, y, bottom}, {0, -1, 0}, d, top - bottom, rows}}};
}

void addDoor(const SceneryKit& kit, const Facade& wall, double middle, double width,
             double height) {
  addPatch(kit, wall, middle - width / 2, middle + width / 2, 0, height, kDoor, 0.6 * kit.u);
}

void addChimney(const SceneryKit& kit, double x, double y, double bottom, double top) {
  const double s = 5 * kit.u;
  kit.b.box({x - s, y - s, bottom}, {x + s, y + s, top}, kBrick, {60, 52, 48});
}

/// A tower with a pointed roof.
void addSpire(const SceneryKit& kit, double x, double size, double walls, double top, Color roof) {
  const double s = size / 2;
  kit.b.box({x - s, -s, 0}, {x + s, s, walls}, kit.look.wall);
  const Polygon foot{{x - s, -s}, {x + s, -s}, {x + s, s}, {x - s, s}};
  const double t = 0.02 * size;
  kit.b.skirt(foot, walls, {{x - t, -t}, {x + t, -t}, {x + t, t}, {x - t, t}}, top, roof);
  if (!kit.fine)
    return;
  for (Facade wall : wallsOf(size, size, walls - size * 0.6, walls, 1)) {
    wall.corner.x += x;
    addPatch(kit, wall, size * 0.38, size * 0.62, size * 0.1, size * 0.45, kGlass, 0.5 * kit.u);
  }
}

} // namespace

double chance(const SceneryKit& kit, std::uint32_t salt) {
  std::uint32_t n = kit.variant * 2654435761U + salt * 40503U + 12345U;
  n ^= n >> 15;
  n *= 2246822519U;
  n ^= n >> 13;
  return (n & 0xffffU) / 65536.0;
}

void addWindows(const SceneryKit& kit, const Facade& wall) {
  if (!kit.fine || wall.rows < 1)
    return;
  const double storey = wall.height / wall.rows;
  const double width = std::min(10 * kit.u, storey * 0.5);
  const int columns = static_cast<int>(wall.width / (2.3 * width));
  for (int row = 0; row < wall.rows; ++row)
    for (int i = 0; i < columns; ++i) {
      const double middle = wall.width * (i + 0.5) / columns;
      const double sill = storey * (row + 0.32);
      const double lintel = storey * (row + 0.8);
      const double edge = width * 0.12;
      addPatch(kit, wall, middle - width / 2 - edge, middle + width / 2 + edge, sill - edge,
               lintel + edge, kFrame, 0.25 * kit.u);
      addPatch(kit, wall, middle - width / 2, middle + width / 2, sill, lintel, kGlass,
               0.5 * kit.u);
    }
}

void addWalls(const SceneryKit& kit, double w, double d, double bottom, double top, int rows) {
  kit.b.box({-w / 2, -d / 2, bottom}, {w / 2, d / 2, top}, kit.look.wall);
  for (const Facade& wall : wallsOf(w, d, bottom, top, rows))
    addWindows(kit, wall);
}

void addRoof(const SceneryKit& kit, const PitchedRoof& roof) {
  const double x = roof.w / 2 + roof.overhang;
  const double y = roof.d / 2 + roof.overhang;
  const double drop = roof.overhang * (roof.ridge - roof.eaves) / (roof.d / 2);
  const double low = roof.eaves - drop;
  const double end = roof.hip ? std::max(0.0, x - y) : x;
  const Vec3 left{-end, 0, roof.ridge};
  const Vec3 right{end, 0, roof.ridge};
  const std::array<Vec3, 4> eaves{{{-x, -y, low}, {x, -y, low}, {x, y, low}, {-x, y, low}}};
  const Color color = kit.look.roof;
  const Color under = shaded(color, 0.6);
  kit.b.quad(eaves[0], eaves[1], right, left, color);
  kit.b.quad(eaves[2], eaves[3], left, right, color);
  kit.b.quad(eaves[3], eaves[2], eaves[1], eaves[0], under);
  if (roof.hip) {
    kit.b.triangle(eaves[1], eaves[2], right, color);
    kit.b.triangle(eaves[3], eaves[0], left, color);
    return;
  }
  const double gx = roof.w / 2;
  const double gy = roof.d / 2;
  for (const double side : {-1.0, 1.0})
    kit.b.triangle({side * gx, -side * gy, roof.eaves}, {side * gx, side * gy, roof.eaves},
                   {side * gx, 0, roof.ridge}, kit.look.wall);
}

void addHouse(const SceneryKit& kit) {
  const double out = 4 * kit.u;
  const double w = kit.w - 2 * out;
  const double d = kit.d - 2 * out;
  const double eaves = kit.h * (0.42 + 0.08 * std::min(kit.look.storeys, 4));
  SceneryKit own = kit;
  own.look.wall = shaded(kit.look.wall, 0.94 + 0.12 * chance(kit, 1));
  own.look.roof = shaded(kit.look.roof, 0.9 + 0.2 * chance(kit, 2));
  addWalls(own, w, d, 0, eaves, kit.look.storeys);
  kit.b.box({-w / 2 - 0.6 * kit.u, -d / 2 - 0.6 * kit.u, 0},
            {w / 2 + 0.6 * kit.u, d / 2 + 0.6 * kit.u, 5 * kit.u}, kPlinth);
  addDoor(own, wallsOf(w + 1.2 * kit.u, d + 1.2 * kit.u, 0, eaves, 1)[0],
          w * (0.35 + 0.3 * chance(kit, 3)), 12 * kit.u, std::min(24 * kit.u, eaves * 0.6));
  addRoof(own, {w, d, eaves, kit.h * 0.94, out, kit.look.storeys > 2});
  addChimney(own, w * (chance(kit, 4) < 0.5 ? -0.22 : 0.22), d * 0.12, eaves, kit.h);
}

void addTimberHouse(const SceneryKit& kit) {
  addHouse(kit);
  if (!kit.fine)
    return;
  const double w = kit.w - 8 * kit.u;
  const double d = kit.d - 8 * kit.u;
  const double eaves = kit.h * (0.42 + 0.08 * std::min(kit.look.storeys, 4));
  for (const Facade& wall : wallsOf(w, d, 0, eaves, 1)) {
    const double beam = 2.2 * kit.u;
    const int posts = std::max(2, static_cast<int>(wall.width / (24 * kit.u)));
    for (int i = 0; i <= posts; ++i) {
      const double x = beam / 2 + (wall.width - beam) * i / posts;
      addPatch(kit, wall, x - beam / 2, x + beam / 2, eaves * 0.3, eaves, kTimber, 0.8 * kit.u);
    }
    for (const double z : {0.3, 0.62, 0.96})
      addPatch(kit, wall, 0, wall.width, eaves * z, eaves * z + beam, kTimber, 0.9 * kit.u);
  }
}

void addShell(const SceneryKit& kit) {
  const double t = 5 * kit.u;
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double top = kit.h * 0.6;
  kit.b.box({-x, -y, 0}, {x, -y + t, top * 0.7}, kBrick);
  kit.b.box({-x, y - t, 0}, {x, y, top}, kBrick);
  kit.b.box({-x, -y + t, 0}, {-x + t, y - t, top}, kBrick);
  kit.b.box({x - t, -y + t, 0}, {x, y - t, top * 0.85}, kBrick);
  kit.b.box({-x + t, -y + t, 0}, {x - t, y - t, 2 * kit.u}, kPlinth);
  for (int i = 0; i <= 5; ++i) { // rafters
    const double at = -x + t + (kit.w - 2 * t) * i / 5;
    kit.b.bar({at, -y + t, top * 0.7}, {at, 0, kit.h - t}, 2.5 * kit.u, {190, 150, 96});
    kit.b.bar({at, 0, kit.h - t}, {at, y - t, top}, 2.5 * kit.u, {190, 150, 96});
  }
}

void addFlats(const SceneryKit& kit) {
  const double top = kit.h * 0.96;
  addWalls(kit, kit.w, kit.d, 0, top, kit.look.storeys);
  kit.b.box({-kit.w / 2, -kit.d / 2, top}, {kit.w / 2, kit.d / 2, kit.h},
            shaded(kit.look.wall, 0.8), kit.look.roof);
  addDoor(kit, wallsOf(kit.w, kit.d, 0, top, 1)[0], kit.w / 2, 16 * kit.u, 24 * kit.u);
}

void addStation(const SceneryKit& kit) {
  SceneryKit middle = kit;
  middle.w = kit.w * 0.45;
  addHouse(middle);
  SceneryKit wing = kit;
  wing.look.storeys = 1;
  const double d = kit.d * 0.72;
  const double eaves = kit.h * 0.4;
  kit.b.box({-kit.w / 2, -d / 2, 0}, {kit.w / 2, d / 2, eaves}, kit.look.wall);
  for (const Facade& wall : wallsOf(kit.w, d, 0, eaves, kit.look.storeys > 2 ? 2 : 1))
    addWindows(kit, wall);
  addRoof(wing, {kit.w - 6 * kit.u, d, eaves, kit.h * 0.62, 3 * kit.u, true});
  for (const double side : {-1.0, 1.0}) // awnings, since either side may be the platform's
    kit.b.box({-kit.w * 0.42, side > 0 ? d / 2 : -kit.d / 2, 26 * kit.u},
              {kit.w * 0.42, side > 0 ? kit.d / 2 : -d / 2, 28 * kit.u}, kSteel, {120, 110, 100});
}

void addShelter(const SceneryKit& kit) {
  const double t = 2 * kit.u;
  const double x = kit.w / 2 - t;
  const double y = kit.d / 2 - t;
  const double top = kit.h * 0.8;
  kit.b.box({-x, y - t, 0}, {x, y, top}, kit.look.wall);
  for (const double side : {-1.0, 1.0})
    kit.b.box({side > 0 ? x - t : -x, -y * 0.4, 0}, {side > 0 ? x : -x + t, y, top}, kit.look.wall);
  kit.b.quad({-x - t, -y - t, top}, {x + t, -y - t, top}, {x + t, y + t, kit.h},
             {-x - t, y + t, kit.h}, kit.look.roof);
  kit.b.quad({-x - t, y + t, kit.h}, {x + t, y + t, kit.h}, {x + t, -y - t, top},
             {-x - t, -y - t, top}, shaded(kit.look.roof, 0.6));
  kit.b.box({-x * 0.8, y - 4 * t, 0}, {x * 0.8, y - 2 * t, 5 * kit.u}, kTimber);
}

void addHall(const SceneryKit& kit) {
  const double out = 3 * kit.u;
  const double w = kit.w - 2 * out;
  const double d = kit.d - 2 * out;
  const double eaves = kit.h * 0.66;
  kit.b.box({-w / 2, -d / 2, 0}, {w / 2, d / 2, eaves}, kit.look.wall);
  for (const Facade& wall : wallsOf(w, d, 0, eaves, 1))
    if (kit.fine) {
      const int doors = std::max(1, static_cast<int>(wall.width / (60 * kit.u)));
      for (int i = 0; i < doors; ++i)
        addDoor(kit, wall, wall.width * (i + 0.5) / doors, wall.width / doors * 0.45, eaves * 0.7);
    }
  addRoof(kit, {w, d, eaves, kit.h, out});
}

void addLocoShed(const SceneryKit& kit) {
  addHall(kit);
  const double out = 3 * kit.u;
  const double w = kit.w - 2 * out;
  const double d = kit.d - 2 * out;
  const int roads = std::max(1, static_cast<int>(std::lround(kit.d / (75 * kit.u))));
  const double gate = std::min(kit.h * 0.62, 75 * kit.u);
  for (const Facade& wall : {wallsOf(w, d, 0, gate, 1)[1], wallsOf(w, d, 0, gate, 1)[3]})
    for (int i = 0; i < roads; ++i) {
      const double middle = wall.width * (i + 0.5) / roads;
      const double half = std::min(wall.width / roads * 0.4, 26 * kit.u);
      addPatch(kit, wall, middle - half, middle + half, 0, gate, {58, 66, 58}, 0.9 * kit.u);
    }
  // Smoke leaves by a raised part of the roof.
  kit.b.box({-w * 0.38, -d * 0.05, kit.h * 0.86}, {w * 0.38, d * 0.05, kit.h}, kSteel,
            shaded(kit.look.roof, 0.8));
}

void addTrainShed(const SceneryKit& kit) {
  const int parts = kit.fine ? 16 : 8;
  const double spring = kit.h * 0.3;
  const auto at = [&](double x, int i, double in) {
    const double t = kPi * i / parts;
    return Vec3{x, -std::cos(t) * (kit.d / 2 - in), spring + std::sin(t) * (kit.h - spring - in)};
  };
  const double x = kit.w / 2;
  for (int i = 0; i < parts; ++i) {
    const Color color = i % 4 < 2 ? Color{150, 160, 164} : Color{108, 112, 110};
    kit.b.quad(at(-x, i, 0), at(x, i, 0), at(x, i + 1, 0), at(-x, i + 1, 0), color);
    kit.b.quad(at(-x, i + 1, 2), at(x, i + 1, 2), at(x, i, 2), at(-x, i, 2), shaded(color, 0.7));
  }
  const int columns = std::max(3, static_cast<int>(kit.w / (70 * kit.u)));
  for (int i = 0; i <= columns; ++i)
    for (const double y : {-kit.d / 2 + 2 * kit.u, kit.d / 2 - 2 * kit.u}) {
      const double along = -x + 2 * kit.u + (kit.w - 4 * kit.u) * i / columns;
      kit.b.bar({along, y, 0}, {along, y, spring}, 4 * kit.u, {84, 92, 86});
    }
}

void addSawTooth(const SceneryKit& kit) {
  const double eaves = kit.h * 0.62;
  addWalls(kit, kit.w, kit.d, 0, eaves, 2);
  const int teeth = std::max(2, static_cast<int>(kit.w / (60 * kit.u)));
  for (int i = 0; i < teeth; ++i) {
    const double from = -kit.w / 2 + kit.w * i / teeth;
    const double to = -kit.w / 2 + kit.w * (i + 1) / teeth;
    const double y = kit.d / 2;
    kit.b.quad({from, y, kit.h}, {from, -y, kit.h}, {to, -y, eaves}, {to, y, eaves}, kit.look.roof);
    kit.b.quad({from, y, eaves}, {from, -y, eaves}, {from, -y, kit.h}, {from, y, kit.h}, kGlass);
    kit.b.triangle({from, -y, eaves}, {to, -y, eaves}, {from, -y, kit.h}, kit.look.wall);
    kit.b.triangle({to, y, eaves}, {from, y, eaves}, {from, y, kit.h}, kit.look.wall);
  }
}

void addRoundhouse(const SceneryKit& kit) {
  // The doors are the narrow side, towards the turntable, at the back of the footprint.
  const double front = kit.w * 0.55 / 2;
  const double back = kit.w / 2;
  const double y = kit.d / 2;
  const double eaves = kit.h * 0.78;
  const Polygon plan{{front, y}, {-front, y}, {-back, -y}, {back, -y}};
  kit.b.skirt(plan, 0, plan, eaves, kit.look.wall);
  const Polygon ridge{{front * 0.8, y * 0.2},
                      {-front * 0.8, y * 0.2},
                      {-back * 0.62, -y * 0.45},
                      {back * 0.62, -y * 0.45}};
  kit.b.skirt(plan, eaves, ridge, kit.h * 0.94, kit.look.roof);
  kit.b.area(ridge, kit.h * 0.94, shaded(kit.look.roof, 0.85));
  const int stalls = 3;
  const Facade doors{{front, y, 0}, {-1, 0, 0}, 2 * front, eaves, 1};
  for (int i = 0; i < stalls; ++i) {
    const double width = 2 * front / stalls;
    addPatch(kit, doors, width * (i + 0.12), width * (i + 0.88), 0, eaves * 0.85, {66, 84, 70},
             0.8 * kit.u);
    const double x = back * 1.2 * ((i + 0.5) / stalls - 0.5);
    kit.b.box({x - 3 * kit.u, -y * 0.15, kit.h * 0.9}, {x + 3 * kit.u, -y * 0.05, kit.h}, kSteel);
  }
  addWindows(kit, {{-back, -y, 0}, {1, 0, 0}, kit.w, eaves, 1});
}

void addSignalBox(const SceneryKit& kit) {
  const double w = kit.w - 8 * kit.u;
  const double d = kit.d - 8 * kit.u;
  const double floor = kit.h * 0.42;
  const double eaves = kit.h * 0.76;
  kit.b.box({-w * 0.46, -d * 0.46, 0}, {w * 0.46, d * 0.46, floor}, kBrick);
  kit.b.box({-w / 2, -d / 2, floor}, {w / 2, d / 2, eaves}, kit.look.wall);
  for (const Facade& wall : wallsOf(w, d, floor, eaves, 1)) // glass all round
    addPatch(kit, wall, wall.width * 0.04, wall.width * 0.96, (eaves - floor) * 0.4,
             (eaves - floor) * 0.9, kGlass, 0.5 * kit.u);
  addRoof(kit, {w, d, eaves, kit.h, 4 * kit.u, true});
}

void addBridgeBox(const SceneryKit& kit) {
  const double floor = kit.h * 0.52;
  const double eaves = kit.h * 0.82;
  const double leg = 7 * kit.u;
  for (const double x : {-kit.w / 2 + leg, kit.w / 2 - leg})
    for (const double y : {-kit.d / 2 + leg, kit.d / 2 - leg})
      kit.b.bar({x, y, 0}, {x, y, floor}, leg, kSteel);
  kit.b.box({-kit.w / 2, -kit.d / 2, floor - 5 * kit.u}, {kit.w / 2, kit.d / 2, floor}, kSteel);
  const double w = kit.w - 8 * kit.u;
  const double d = kit.d - 8 * kit.u;
  addWalls(kit, w, d, floor, eaves, 1);
  addRoof(kit, {w, d, eaves, kit.h, 4 * kit.u, true});
}

void addChurch(const SceneryKit& kit) {
  const double tower = std::min(kit.d * 0.5, kit.w * 0.3);
  const double nave = kit.w - tower * 0.9;
  const double eaves = std::min(kit.h * 0.3, kit.d * 0.75);
  const double middle = kit.w / 2 - nave / 2;
  const double d = kit.d * 0.86;
  kit.b.box({middle - nave / 2, -d / 2, 0}, {kit.w / 2, d / 2, eaves}, kit.look.wall);
  const double ridge = eaves + d * 0.6;
  for (const double side : {-1.0, 1.0}) {
    const double y = side * (d / 2 + 2 * kit.u);
    const Vec3 a{side < 0 ? middle - nave / 2 : kit.w / 2, y, eaves};
    const Vec3 b{side < 0 ? kit.w / 2 : middle - nave / 2, y, eaves};
    kit.b.quad(a, b, {b.x, 0, ridge}, {a.x, 0, ridge}, kit.look.roof);
  }
  kit.b.triangle({kit.w / 2, -d / 2, eaves}, {kit.w / 2, d / 2, eaves}, {kit.w / 2, 0, ridge},
                 kit.look.wall);
  for (const double side : {-1.0, 1.0}) { // tall windows along the nave
    const Facade wall{
        {side < 0 ? middle - nave / 2 : kit.w / 2, side * d / 2, 0}, {-side, 0, 0}, nave, eaves, 1};
    for (int i = 0; kit.fine && i < 4; ++i)
      addPatch(kit, wall, nave * (0.2 + 0.2 * i) - 0.03 * nave,
               nave * (0.2 + 0.2 * i) + 0.03 * nave, eaves * 0.25, eaves * 0.82, kGlass,
               0.5 * kit.u);
  }
  addSpire(kit, -kit.w / 2 + tower / 2, tower, kit.h * 0.58, kit.h, shaded(kit.look.roof, 0.7));
}

void addTownHall(const SceneryKit& kit) {
  SceneryKit body = kit;
  body.h = kit.h * 0.62;
  addHouse(body);
  const double size = std::min(kit.w, kit.d) * 0.22;
  addSpire(kit, kit.look.storeys > 2 ? 0 : kit.w / 2 - size * 0.6, size, kit.h * 0.78, kit.h,
           {78, 104, 92});
}

void addCastle(const SceneryKit& kit) {
  const double r = std::min(kit.w, kit.d) * 0.14;
  const double x = kit.w / 2 - r;
  const double y = kit.d / 2 - r;
  const double wall = kit.h * 0.35;
  const double t = r * 0.5;
  kit.b.box({-x, -y - t / 2, 0}, {x, -y + t / 2, wall}, kit.look.wall);
  kit.b.box({-x, y - t / 2, 0}, {x * 0.3, y + t / 2, wall * 0.8}, kit.look.wall);
  kit.b.box({-x - t / 2, -y, 0}, {-x + t / 2, y, wall}, kit.look.wall);
  kit.b.box({x - t / 2, -y, 0}, {x + t / 2, y * 0.4, wall * 0.6}, kit.look.wall);
  const int sides = kit.fine ? 14 : 8;
  kit.b.cone({-x, -y, 0}, r, kit.h, r * 0.92, sides, kit.look.wall);
  kit.b.cone({x, -y, 0}, r, kit.h * 0.55, r * 0.95, sides, kit.look.wall);
  kit.b.cone({-x, y, 0}, r * 0.8, kit.h * 0.45, r * 0.75, sides, shaded(kit.look.wall, 0.9));
}

void addMill(const SceneryKit& kit) {
  SceneryKit house = kit;
  house.d = kit.d * 0.8;
  addTimberHouse(house);
  const double r = kit.h * 0.3;
  const double y = house.d / 2 + kit.d * 0.05;
  constexpr int kBlades = 12;
  for (int i = 0; i < kBlades; ++i) {
    const double t = 2 * kPi * i / kBlades;
    const double s = 2 * kPi * (i + 1) / kBlades;
    const Vec3 rim{r * std::cos(t), y, r + r * std::sin(t)};
    kit.b.bar({0, y, r}, rim, 3 * kit.u, kTimber);
    kit.b.bar(rim, {r * std::cos(s), y, r + r * std::sin(s)}, 5 * kit.u, kTimber);
  }
}

} // namespace trassix
