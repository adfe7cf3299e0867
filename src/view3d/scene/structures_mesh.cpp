#include "geometry/pose.h"
#include "view3d/scene/bridge_mesh.h"
#include "view3d/scene/scenery_kit.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace trassix {

namespace {

constexpr Color kSteel{118, 122, 120};
constexpr Color kStone{150, 142, 130};
constexpr Color kConcrete{172, 168, 160};
constexpr Color kDark{26, 26, 28};
constexpr Color kAsphalt{98, 98, 98};

/// A bridge over a span along x, its deck where track lies that leads over it.
void addSpan(const SceneryKit& kit, BridgeKind kind, double height) {
  const double depth = std::min(kit.h * 0.3, 8 * kit.u);
  MeshBuilder local = kit.b.within({-kit.w / 2, 0, depth});
  addBridge(local, {kind, kit.w, kit.d / 2 - kit.u, height - depth, depth}, kit.fine);
}

/// An arch as a line from its left foot over the top to its right foot.
std::vector<Point> archLine(double half, double spring, double crown, int parts) {
  std::vector<Point> line{{-half, 0}};
  for (int i = 0; i <= parts; ++i) {
    const double t = kPi * i / parts;
    line.push_back({-half * std::cos(t), spring + (crown - spring) * std::sin(t)});
  }
  line.push_back({half, 0});
  return line;
}

/// An upright wall along x with an arched opening through it about x = `middle`.
struct ArchedWall {
  double left = 0;
  double right = 0;
  double middle = 0;
  double half = 0;
  double spring = 0;
  double crown = 0;
  double top = 0;
};

void addArchedWall(const SceneryKit& kit, const ArchedWall& wall, double depth, Color color) {
  const std::vector<Point> arch = archLine(wall.half, wall.spring, wall.crown, kit.fine ? 14 : 6);
  const double y = depth / 2;
  const auto above = [&](double x) { return std::clamp(wall.middle + x, wall.left, wall.right); };
  for (const double side : {-1.0, 1.0}) {
    const auto face = [&](Vec3 a, Vec3 b, Vec3 c, Vec3 d) {
      side < 0 ? kit.b.quad(a, b, c, d, color) : kit.b.quad(d, c, b, a, color);
    };
    const double at = side * y;
    face({wall.left, at, 0}, {wall.middle - wall.half, at, 0},
         {wall.middle - wall.half, at, wall.top}, {wall.left, at, wall.top});
    face({wall.middle + wall.half, at, 0}, {wall.right, at, 0}, {wall.right, at, wall.top},
         {wall.middle + wall.half, at, wall.top});
    for (std::size_t i = 0; i + 1 < arch.size(); ++i)
      face({above(arch[i].x), at, arch[i].y}, {above(arch[i + 1].x), at, arch[i + 1].y},
           {above(arch[i + 1].x), at, wall.top}, {above(arch[i].x), at, wall.top});
  }
  for (std::size_t i = 0; i + 1 < arch.size(); ++i) // the inside of the arch
    kit.b.quad({above(arch[i].x), -y, arch[i].y}, {above(arch[i].x), y, arch[i].y},
               {above(arch[i + 1].x), y, arch[i + 1].y}, {above(arch[i + 1].x), -y, arch[i + 1].y},
               shaded(color, 0.7));
  kit.b.quad({wall.left, -y, wall.top}, {wall.right, -y, wall.top}, {wall.right, y, wall.top},
             {wall.left, y, wall.top}, shaded(color, 1.08));
  kit.b.quad({wall.left, y, 0}, {wall.left, -y, 0}, {wall.left, -y, wall.top},
             {wall.left, y, wall.top}, color);
  kit.b.quad({wall.right, -y, 0}, {wall.right, y, 0}, {wall.right, y, wall.top},
             {wall.right, -y, wall.top}, color);
}

} // namespace

void addFootbridge(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double floor = kit.h * 0.78;
  const double stair = kit.w * 0.2;
  kit.b.box({-x + stair, -y * 0.5, floor - 3 * kit.u}, {x - stair, y * 0.5, floor}, kSteel,
            {140, 116, 90});
  for (const double side : {-1.0, 1.0}) {
    kit.b.bar({side * (x - stair), 0, 0}, {side * (x - stair), 0, floor}, 5 * kit.u, kSteel);
    const double in = side * (x - stair);
    const double out = side * x;
    const auto step = [&](double share, double width) {
      return Vec3{in + (out - in) * share, width, floor * (1 - share)};
    };
    const Vec3 a = step(0, -y * 0.5);
    const Vec3 b = step(1, -y * 0.5);
    const Vec3 c = step(1, y * 0.5);
    const Vec3 d = step(0, y * 0.5);
    side > 0 ? kit.b.quad(a, b, c, d, {140, 116, 90}) : kit.b.quad(d, c, b, a, {140, 116, 90});
    side > 0 ? kit.b.quad(d, c, b, a, kSteel) : kit.b.quad(a, b, c, d, kSteel);
    for (const double rail : {-y * 0.5, y * 0.5}) {
      kit.b.bar({-side * (x - stair), rail, kit.h}, {in, rail, kit.h}, 1.5 * kit.u, kSteel);
      kit.b.bar({in, rail, kit.h}, {out, rail, kit.h - floor}, 1.5 * kit.u, kSteel);
    }
  }
}

void addRoadBridge(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double floor = kit.h * 0.86;
  const double pier = 14 * kit.u;
  for (const double side : {-1.0, 1.0})
    kit.b.box({side > 0 ? x - pier : -x, -y, 0}, {side > 0 ? x : -x + pier, y, floor - 8 * kit.u},
              kStone);
  kit.b.box({-x, -y, floor - 8 * kit.u}, {x, y, floor}, kConcrete, kAsphalt);
  kit.b.area({{-x, -y}, {x, -y}, {x, y}, {-x, y}}, floor - 8 * kit.u, shaded(kConcrete, 0.6),
             false);
  for (const double side : {-1.0, 1.0})
    kit.b.box({-x, side > 0 ? y - 3 * kit.u : -y, floor}, {x, side > 0 ? y : -y + 3 * kit.u, kit.h},
              kConcrete);
}

void addGirderBridge(const SceneryKit& kit) {
  addSpan(kit, BridgeKind::Girder, kit.h);
}

void addTrussBridge(const SceneryKit& kit) {
  addSpan(kit, BridgeKind::Truss, kit.h);
}

void addArchBridge(const SceneryKit& kit) {
  addSpan(kit, BridgeKind::Arch, kit.h);
}

void addDeckTruss(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d * 0.36;
  const double deck = 6 * kit.u;
  const double low = kit.h * 0.08;
  kit.b.box({-x, -kit.d / 2, kit.h - deck}, {x, kit.d / 2, kit.h}, kSteel, {126, 104, 80});
  const int panels = 8;
  for (const double side : {-y, y}) {
    kit.b.bar({-x, side, low}, {x, side, low}, 3 * kit.u, kSteel);
    for (int i = 0; i < panels; ++i) {
      const double from = -x + kit.w * i / panels;
      const double to = -x + kit.w * (i + 1) / panels;
      kit.b.bar({from, side, i % 2 == 0 ? low : kit.h - deck},
                {to, side, i % 2 == 0 ? kit.h - deck : low}, 2.4 * kit.u, kSteel);
      kit.b.bar({to, side, low}, {to, side, kit.h - deck}, 2 * kit.u, kSteel);
    }
  }
}

void addViaduct(const SceneryKit& kit) {
  const int arches = std::max(1, static_cast<int>(std::lround(kit.w / (180 * kit.u))));
  const double bay = kit.w / arches;
  const double top = kit.h * 0.93;
  for (int i = 0; i < arches; ++i) {
    const double left = -kit.w / 2 + bay * i;
    addArchedWall(kit, {left, left + bay, left + bay / 2, bay * 0.38, top * 0.42, top * 0.86, top},
                  kit.d * 0.86, kStone);
  }
  for (const double side : {-1.0, 1.0})
    kit.b.box({-kit.w / 2, side > 0 ? kit.d * 0.44 : -kit.d / 2, top - 4 * kit.u},
              {kit.w / 2, side > 0 ? kit.d / 2 : -kit.d * 0.44, kit.h}, shaded(kStone, 1.06));
}

void addStonePier(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const auto rectangle = [](double a, double b) {
    return Polygon{{-a, -b}, {a, -b}, {a, b}, {-a, b}};
  };
  kit.b.skirt(rectangle(x * 0.94, y * 0.94), 0, rectangle(x * 0.8, y * 0.72), kit.h * 0.9, kStone);
  kit.b.prism(rectangle(x, y), kit.h * 0.9, kit.h, shaded(kStone, 1.06), shaded(kStone, 1.1));
}

void addPortal(const SceneryKit& kit) {
  const double half = std::max(kit.w / 2 - 36 * kit.u, 29 * kit.u);
  const double crown = kit.h * 0.74;
  const ArchedWall wall{-kit.w / 2, kit.w / 2, 0, half, crown * 0.5, crown, kit.h * 0.92};
  addArchedWall(kit, wall, kit.d * 0.7, kit.look.wall);
  kit.b.box({-kit.w / 2, -kit.d / 2, kit.h * 0.9}, {kit.w / 2, kit.d / 2, kit.h},
            shaded(kit.look.wall, 1.1));
  const std::vector<Point> arch = archLine(half, wall.spring, crown, kit.fine ? 14 : 6);
  for (std::size_t i = 0; !kit.leadsOn && i + 1 < arch.size();
       ++i) { // the dark inside, seen from both ends
    const Vec3 a{};
    const Vec3 b{arch[i].x, 0, arch[i].y};
    const Vec3 c{arch[i + 1].x, 0, arch[i + 1].y};
    kit.b.triangle(a, c, b, kDark);
    kit.b.triangle(a, b, c, kDark);
  }
  for (std::size_t i = 1; kit.fine && i + 2 < arch.size(); ++i) { // the ring of stones
    const auto out = [&](std::size_t k, double by, double y) {
      const double t = std::atan2(arch[k].y - wall.spring, arch[k].x);
      return Vec3{arch[k].x + by * std::cos(t), y, arch[k].y + by * std::max(0.0, std::sin(t))};
    };
    const double y = -kit.d * 0.36;
    kit.b.quad(out(i, 0, y), out(i + 1, 0, y), out(i + 1, 5 * kit.u, y), out(i, 5 * kit.u, y),
               shaded(kit.look.wall, i % 2 == 0 ? 0.8 : 0.88));
    kit.b.quad(out(i, 5 * kit.u, -y), out(i + 1, 5 * kit.u, -y), out(i + 1, 0, -y), out(i, 0, -y),
               shaded(kit.look.wall, i % 2 == 0 ? 0.8 : 0.88));
  }
}

void addRetainingWall(const SceneryKit& kit) {
  const double x = kit.w / 2;
  const double y = kit.d / 2;
  const double cap = std::min(5 * kit.u, kit.h * 0.1);
  kit.b.box({-x, -y * 0.7, 0}, {x, y * 0.7, kit.h - cap}, kStone);
  kit.b.box({-x, -y, kit.h - cap}, {x, y, kit.h}, shaded(kStone, 1.1));
  const int buttresses = std::max(2, static_cast<int>(kit.w / (60 * kit.u)));
  for (int i = 0; i < buttresses; ++i) {
    const double at = -x + kit.w * (i + 0.5) / buttresses;
    kit.b.box({at - 4 * kit.u, -y, 0}, {at + 4 * kit.u, y, kit.h * 0.8}, shaded(kStone, 0.92));
  }
}

void addTurntableItem(const SceneryKit& kit) {
  const double outer = std::min(kit.w, kit.d) / 2;
  const TrackSection section = trackSection(kit.system);
  addTurntable(kit.b, {outer - section.gauge, outer, section},
               kit.fine ? Detail::Near : Detail::Far);
}

} // namespace trassix
