#include "catalog/scenery_catalog.h"

#include <algorithm>
#include <unordered_map>

namespace trassix {

namespace {

/// Lengths in mm of the straight that a system is built around and of its long one.
struct TrackGrid {
  double single = 0;
  double doubled = 0;
};

/// Items of the grid are drawn for H0 on lengths of 180 and 360.
constexpr double kSingleGridLimit = 270;

TrackGrid gridOf(TrackSystem system) {
  switch (system) {
  case TrackSystem::CTrack:
  case TrackSystem::TrixCTrack:
    return {188.3, 360};
  case TrackSystem::Gauge1:
    return {300, 600};
  default:
    return gaugeOf(system) == Gauge::Z ? TrackGrid{110, 220} : TrackGrid{180, 360};
  }
}

} // namespace

Gauge gaugeOf(TrackSystem system) {
  switch (system) {
  case TrackSystem::ZTrack:
  case TrackSystem::RokuhanZ:
  case TrackSystem::MinitrixN:
  case TrackSystem::KatoN:
    return Gauge::Z;
  case TrackSystem::Gauge1:
    return Gauge::Gauge1;
  default:
    return Gauge::H0;
  }
}

std::string_view categoryName(SceneryCategory category) {
  constexpr std::array<std::string_view, kSceneryCategoryCount> kNames{
      "Buildings", "Platforms", "Signals", "Roads",      "Bridges",    "Tunnels and walls",
      "Catenary",  "Trees",     "Terrain", "Turntables", "Roundhouses"};
  return kNames.at(static_cast<std::size_t>(category));
}

Footprint SceneryDef::footprint(TrackSystem system) const {
  const auto only = std::ranges::find_if(sizes, [](const auto& size) { return size.has_value(); });
  const auto& own = sizes[static_cast<std::size_t>(gaugeOf(system))];
  Footprint size = own ? *own : only == sizes.end() ? Footprint{} : **only;
  if (onTrackGrid) {
    const TrackGrid grid = gridOf(system);
    const auto& h0 = sizes[static_cast<std::size_t>(Gauge::H0)];
    size.width = h0 && h0->width > kSingleGridLimit ? grid.doubled : grid.single;
  }
  return size;
}

const SceneryDef* findScenery(std::string_view key) {
  static const auto byKey = [] {
    std::unordered_map<std::string_view, const SceneryDef*> index;
    for (const SceneryDef& item : sceneryItems()) {
      index.emplace(item.key, &item);
    }
    return index;
  }();
  const auto found = byKey.find(key);
  return found == byKey.end() ? nullptr : found->second;
}

} // namespace trassix
