// Buildings, signals, trees and all else that stands beside the track. Sizes in mm.
#pragma once

#include "catalog/track_system.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace trassix {

enum class Gauge : std::uint8_t { H0, Z, Gauge1 };

/// The gauge whose scenery suits a system; a system without pieces gets the nearest one.
Gauge gaugeOf(TrackSystem system);

/// In the order in which the palette shows them.
enum class SceneryCategory : std::uint8_t {
  Building,
  Platform,
  Signal,
  Road,
  Bridge,
  Tunnel,
  Catenary,
  Tree,
  Terrain,
  Turntable,
  Roundhouse,
};

inline constexpr std::size_t kSceneryCategoryCount = 11;

std::string_view categoryName(SceneryCategory category);

/// Width runs along the track or the street front, depth across it.
struct Footprint {
  double width = 0;
  double depth = 0;
  double height = 0;

  bool operator==(const Footprint&) const = default;
};

/// Outline of an item seen from above, within its footprint.
enum class SceneryForm : std::uint8_t { Rectangle, Ellipse };

struct SceneryDef {
  std::string_view key;
  std::string_view name;
  SceneryCategory category = SceneryCategory::Building;
  std::array<std::optional<Footprint>, 3> sizes; ///< by Gauge; at least one is set
  SceneryForm form = SceneryForm::Rectangle;
  bool onTrackGrid = false; ///< its width is that of one or two pieces of track

  bool madeFor(Gauge gauge) const { return sizes[static_cast<std::size_t>(gauge)].has_value(); }

  /// The size beside track of this system: that of its gauge, and on the system's own length of
  /// straight track where the item keeps to it. An article of one gauge only has the same size
  /// everywhere.
  Footprint footprint(TrackSystem system) const;
};

/// All items in their fixed order, grouped by category on the whole but not strictly.
std::span<const SceneryDef> sceneryItems();

/// Exact look-up by key; null on a miss.
const SceneryDef* findScenery(std::string_view key);

} // namespace trassix
