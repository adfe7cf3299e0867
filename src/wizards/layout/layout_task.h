// What a user asks of a layout that follows the edges of a table. Lengths in mm.
#pragma once

#include "catalog/track_system.h"
#include "geometry/polygons.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// What the best of several loops is. The last two choose among the loops whose every side is at
/// most one shortest straight off that of the longest run.
enum class LayoutPreference : std::uint8_t {
  LongestRun,
  LongestStation,
  FewestPieces,
  FewestKinds
};
inline constexpr std::size_t kLayoutPreferenceCount = 4;
std::string layoutPreferenceName(LayoutPreference preference);

enum class BridgeForm : std::uint8_t { Arch, Truss };
std::string bridgeFormName(BridgeForm form);

/// Side i of a table leads from corner i of its outline to the next one.
struct StationWish {
  std::size_t side = 0;
  int sidings = 1;         ///< 1 to kMostSidings, beside the main line
  double usableLength = 0; ///< at least, of each siding between its fouling points

  bool operator==(const StationWish&) const = default;
};
inline constexpr int kMostSidings = 6;

struct BridgeWish {
  std::size_t side = 0;
  BridgeForm form = BridgeForm::Arch;

  bool operator==(const BridgeWish&) const = default;
};

/// Articles with how many of them there are at home, counted as pieces.
using PieceStock = std::map<std::string, std::int32_t, std::less<>>;

struct LayoutTask {
  TrackSystem system = TrackSystem::CTrack;
  Polygon outline;         ///< of the table, in layout coordinates, either way round
  double distance = 0;     ///< least, from the bed's edge to the table's edge
  double radius = 0;       ///< of the corners; of two tracks that of the inner one
  double secondRadius = 0; ///< of the outer track, 0 for one track
  std::optional<StationWish> station;
  std::optional<BridgeWish> bridge;
  PieceStock stock;
  bool ownStockOnly = false;
  LayoutPreference preference = LayoutPreference::LongestRun;

  bool operator==(const LayoutTask&) const = default;

  int tracks() const { return secondRadius > 0 ? 2 : 1; }
};

inline constexpr std::size_t kMostTableCorners = 8;

/// From the bed's edge to the table's edge: 30 in H0, 12 in Z, 80 in Gauge 1.
double usualEdgeDistance(TrackSystem system);

/// Room for a train of an engine and four coaches, as far as the table has it.
double usualStationLength(TrackSystem system);

/// The systems that have pieces, in the order of the palette.
std::vector<TrackSystem> layoutSystems();

/// Corner radii of a system, sharpest first.
std::vector<double> cornerRadii(TrackSystem system);

/// Radii of an outer track around an inner one of this radius: those that are at least the system's
/// spacing larger. Empty where two tracks cannot be had.
std::vector<double> outerRadii(TrackSystem system, double radius);

/// Whether any two radii of the system make two tracks.
bool mayHaveTwoTracks(TrackSystem system);

/// Whether there are pieces for it; a layout of other systems is made without, and says so.
bool hasStationKit(TrackSystem system);
bool hasBridge(TrackSystem system, BridgeForm form);

/// A table that is sold or often built, its top left corner at the origin.
struct UsualTable {
  std::string name;
  Polygon outline;
};
std::vector<UsualTable> usualTables(TrackSystem system);

/// "Top", "Right, 2nd": a side by where it lies, for lists.
std::string tableSideName(const Polygon& outline, std::size_t side);

/// Without corners that repeat one another or lie on a straight edge.
Polygon withoutNeedlessCorners(const Polygon& outline);

/// Why no layout can follow this outline: not rectilinear (corners of 90 degrees, to 0.01 mm), more
/// than eight corners, or no outline at all. Empty when one can.
std::string tableProblem(const Polygon& outline);

/// What to begin with: the plan's own baseboard where one can follow it, else the first usual
/// table; the sharpest radius, one track, no station, no bridge.
LayoutTask usualLayoutTask(TrackSystem system, const Polygon& baseboard);

} // namespace trassix
