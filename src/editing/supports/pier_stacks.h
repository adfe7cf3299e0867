// What piers are put together from. Heights in mm.
#pragma once

#include "catalog/track_system.h"
#include "editing/supports/supports.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace trassix {

class Layout;

/// The heights of a set of piers that lifts track from the board, ascending: by joints of usual
/// straights, eased at both ends. Those of Gauge 1 are as much higher as its trains.
std::span<const double> pierSeries(TrackSystem system);

/// Piers of equal height that make any pier higher, one on the other.
double pierStep(TrackSystem system);

/// A pier of the series, on pieces of equal height where that is not enough, and what is left as
/// a shim.
struct PierStack {
  double base = 0; ///< height of the series; 0 for none
  int steps = 0;   ///< pieces of `pierStep` each
  double shim = 0; ///< what no pier makes up; in tenths

  bool operator==(const PierStack&) const = default;
};

/// The next lower pier that there is and a shim for the rest.
PierStack stackFor(TrackSystem system, double height);

/// Heights that need no shim up to this one, ascending.
std::vector<double> stackHeights(TrackSystem system, double most);

/// What all supports of a plan take, as rows of equal parts.
struct SupportPart {
  enum class Kind : std::uint8_t { Pier, Step, Shim, Portal };

  Kind kind = Kind::Pier;
  TrackSystem system{};
  double height = 0; ///< of one; of a portal frame over its foot
  int count = 0;

  bool operator==(const SupportPart&) const = default;
};

/// Piers by height, then steps, shims and frames; by system. Rods come with their helices.
std::vector<SupportPart> supportParts(const Layout& layout, const SupportPlan& supports);

/// "Pier 45.0 mm".
std::string nameOf(const SupportPart& part, std::int32_t units);

} // namespace trassix
