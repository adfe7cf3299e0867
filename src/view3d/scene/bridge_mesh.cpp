#include "view3d/scene/bridge_mesh.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr Color kSteel{112, 88, 76};
constexpr Color kDeck{92, 90, 88};

/// Both sides of a bridge, with the depth of its members.
struct Sides {
  MeshBuilder& builder;
  const BridgeShape& bridge;
  double member = 0;

  void bar(double x0, double z0, double x1, double z1, double thickness) const {
    for (const double y : {-bridge.halfWidth, bridge.halfWidth})
      builder.bar({x0, y, z0}, {x1, y, z1}, thickness, kSteel);
  }
  void across(double x, double z, double thickness) const {
    builder.bar({x, -bridge.halfWidth, z}, {x, bridge.halfWidth, z}, thickness, kSteel);
  }
};

void addPlates(const Sides& sides, bool fine) {
  const BridgeShape& b = sides.bridge;
  const double t = sides.member / 2;
  for (const double y : {-b.halfWidth, b.halfWidth})
    sides.builder.box({0, y - t, -b.deck}, {b.length, y + t, b.height}, kSteel);
  const int panels = std::max(2, static_cast<int>(b.length / (3 * b.deck)));
  for (int i = 0; fine && i <= panels; ++i) {
    const double x = t + (b.length - 2 * t) * i / panels;
    for (const double y : {-b.halfWidth, b.halfWidth})
      sides.builder.box({x - t, y - 2 * t, -b.deck}, {x + t, y + 2 * t, b.height * 0.85},
                        shaded(kSteel, 0.9));
  }
}

void addTruss(const Sides& sides, bool fine) {
  const BridgeShape& b = sides.bridge;
  const int panels = std::max(4, 2 * static_cast<int>(b.length / b.height + 0.5));
  const double panel = b.length / panels;
  sides.bar(0, 0, b.length, 0, sides.member);
  sides.bar(panel, b.height, b.length - panel, b.height, sides.member);
  sides.bar(0, 0, panel, b.height, sides.member);
  sides.bar(b.length - panel, b.height, b.length, 0, sides.member);
  for (int i = 1; i < panels; ++i) {
    const double x = i * panel;
    sides.bar(x, 0, x, b.height, sides.member * 0.7);
    if (i + 1 < panels) {
      const bool up = i < panels / 2;
      sides.bar(x, up ? b.height : 0, x + panel, up ? 0 : b.height, sides.member * 0.6);
    }
    if (fine || i == 1 || i == panels - 1)
      sides.across(x, b.height, sides.member * 0.7);
  }
}

void addArch(const Sides& sides, bool fine) {
  const BridgeShape& b = sides.bridge;
  const int parts = fine ? 16 : 8;
  const auto rise = [&](double x) {
    const double t = 2 * x / b.length - 1;
    return b.height * (1 - t * t);
  };
  sides.bar(0, 0, b.length, 0, sides.member);
  for (int i = 0; i < parts; ++i) {
    const double from = b.length * i / parts;
    const double to = b.length * (i + 1) / parts;
    sides.bar(from, rise(from), to, rise(to), sides.member * 1.2);
    if (i == 0 || (!fine && i % 2 == 1))
      continue;
    sides.bar(from, 0, from, rise(from), sides.member * 0.5);
    if (rise(from) > 0.7 * b.height)
      sides.across(from, rise(from), sides.member * 0.7);
  }
}

} // namespace

void addBridge(MeshBuilder& builder, const BridgeShape& bridge, bool fine) {
  const Sides sides{builder, bridge, std::max(bridge.halfWidth * 0.1, 0.5)};
  const double y = bridge.halfWidth;
  builder.box({0, -y, -bridge.deck}, {bridge.length, y, 0}, kDeck);
  builder.area({{0, -y}, {bridge.length, -y}, {bridge.length, y}, {0, y}}, -bridge.deck, kDeck,
               false);
  if (bridge.kind == BridgeKind::Truss)
    addTruss(sides, fine);
  else if (bridge.kind == BridgeKind::Arch)
    addArch(sides, fine);
  else
    addPlates(sides, fine);
}

} // namespace trassix
