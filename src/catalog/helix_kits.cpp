#include "catalog/helix_kits.h"

#include "catalog/plain_track.h"
#include "catalog/scenery_catalog.h"

#include <array>
#include <cmath>
#include <unordered_map>
#include <vector>

namespace trassix {

namespace {

struct HelixSystem {
  TrackSystem system = TrackSystem::CTrack;
  const char* suffix = "";
  int firstRadius = 1; ///< what the system calls its smallest radius
  double slimmest = 0; ///< spacing of its double track, mm
  double widest = 0;
};

// From its fourth radius on C-Track is made for the slim spacing.
constexpr std::array<HelixSystem, 6> kSystems{{{TrackSystem::CTrack, "", 1, 64.3, 77.5},
                                               {TrackSystem::TrixCTrack, "_trix", 1, 64.3, 77.5},
                                               {TrackSystem::KTrack, "_k", 1, 64.6, 64.6},
                                               {TrackSystem::MTrack, "_m", 0, 74, 77.4},
                                               {TrackSystem::ZTrack, "_z", 1, 25, 25},
                                               {TrackSystem::Gauge1, "_1", 1, 125, 125}}};

/// Two tracks lie so many spacings apart.
constexpr double kLeastApart = 0.95;
constexpr double kMostApart = 1.5;

constexpr int kLeastHalfTurns = 2;
constexpr int kMostHalfTurns = 24;
constexpr double kOrdinaryTurns = 2.5;

/// Half a roadbed, what vehicles lean out, and the posts beside them.
double besideOuterTrack(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 6 + 2 + 10;
  case Gauge::Gauge1:
    return 31.5 + 31 + 10;
  case Gauge::H0:
    break;
  }
  return 20 + 10 + 10;
}

struct NamedCurve {
  const PieceDef* piece = nullptr;
  int number = 0;
};

HelixKit makeKit(const HelixSystem& of, NamedCurve inner, NamedCurve outer, int halfTurns) {
  const std::string whole = std::to_string(halfTurns / 2);
  const char* half = halfTurns % 2 == 0 ? "0" : "5";
  const std::string first = std::to_string(inner.number);
  const std::string second = std::to_string(outer.number);
  HelixKit kit;
  kit.system = of.system;
  kit.inner = inner.piece;
  kit.outer = outer.piece;
  kit.turns = halfTurns / 2.0;
  kit.outerSize = kit.outermost().radius + besideOuterTrack(of.system);
  kit.key.append("helix_").append(whole).append("_").append(half).append("_r").append(first);
  kit.radii.append("R").append(first);
  if (outer.piece != nullptr) {
    kit.key.append("r").append(second);
    kit.radii.append("/R").append(second);
  }
  kit.key.append(of.suffix);
  kit.name.append("Helix ").append(kit.radii).append(", ").append(whole);
  if (halfTurns % 2 != 0)
    kit.name.append(".5");
  kit.name.append(halfTurns == 2 ? " turn" : " turns");
  if (kit.key == "helix_2_5_r1r2")
    kit.key = kDefaultHelixKit;
  return kit;
}

void addKits(const HelixSystem& of, std::vector<HelixKit>& kits) {
  std::vector<NamedCurve> curves;
  for (const auto& [radius, piece] : plainCurvesByRadius(of.system))
    curves.push_back({piece, of.firstRadius + static_cast<int>(curves.size())});
  const auto add = [&](NamedCurve inner, NamedCurve outer) {
    for (int halfTurns = kLeastHalfTurns; halfTurns <= kMostHalfTurns; ++halfTurns)
      kits.push_back(makeKit(of, inner, outer, halfTurns));
  };
  for (const NamedCurve& curve : curves)
    add(curve, {});
  for (std::size_t i = 1; i < curves.size(); ++i) {
    const double apart = curves[i].piece->radius - curves[i - 1].piece->radius;
    if (apart >= kLeastApart * of.slimmest && apart <= kMostApart * of.widest)
      add(curves[i - 1], curves[i]);
  }
}

struct Kits {
  std::vector<HelixKit> list;
  std::unordered_map<std::string_view, const HelixKit*> byKey;

  Kits() {
    for (const HelixSystem& system : kSystems)
      addKits(system, list);
    for (const HelixKit& kit : list)
      byKey.emplace(kit.key, &kit);
  }
};

const Kits& kits() {
  static const Kits all;
  return all;
}

} // namespace

std::span<const HelixKit> helixKits() {
  return kits().list;
}

const HelixKit* findHelixKit(std::string_view key) {
  const auto found = kits().byKey.find(key);
  return found == kits().byKey.end() ? nullptr : found->second;
}

std::vector<const HelixKit*> helixSizes(TrackSystem system) {
  std::vector<const HelixKit*> sizes;
  for (const HelixKit& kit : helixKits())
    if (kit.system == system && kit.turns == kOrdinaryTurns)
      sizes.push_back(&kit);
  return sizes;
}

const HelixKit& withTurns(const HelixKit& kit, double turns) {
  const HelixKit* nearest = &kit;
  for (const HelixKit& other : helixKits())
    if (other.inner == kit.inner && other.outer == kit.outer &&
        std::abs(other.turns - turns) < std::abs(nearest->turns - turns))
      nearest = &other;
  return *nearest;
}

double helixHalfSize(std::string_view key) {
  const HelixKit* known = findHelixKit(key);
  return known == nullptr ? kUnknownHelixHalfSize : known->outerSize;
}

} // namespace trassix
