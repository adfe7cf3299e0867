#pragma once

#include "editing/elevation/crossings.h"
#include "editing/elevation/propagation.h"
#include "editing/elevation/way_choice.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace trassix {

class Layout;

/// Something that stands along the way.
struct ProfileMark {
  enum class Kind : std::uint8_t { Turnout, Crossing, Bridge, Tunnel, Helix };

  Kind kind = Kind::Turnout;
  std::size_t stretch = 0; ///< the first one of it
  double from = 0;         ///< mm of way
  double to = 0;
  bool branches = false; ///< a train could take another way there
};

/// Other track that leads over the way or under it.
struct ProfileCrossing {
  TrackCrossing crossing;
  double along = 0;  ///< mm of way
  bool over = false; ///< it leads over the way
};

/// What the height profile shows of a plan: a way and what stands along it. Lengths in mm.
struct ProfileContent {
  TrainWay way;
  std::vector<double> along; ///< distance of each joint from the start
  bool round = false;        ///< the end is the start again
  std::vector<ProfileMark> marks;
  std::vector<ProfileCrossing> crossings;

  bool empty() const { return way.empty(); }
  double length() const { return along.empty() ? 0 : along.back(); }
  /// The stretch at a distance; the first or last one beyond the ends.
  std::size_t stretchAt(double distance) const;
  /// Number of the stretch through the piece; as many as there are when there is none.
  std::size_t stretchOf(std::int32_t piece) const;
};

/// `crossings` are those of the plan.
ProfileContent profileOf(const Layout& layout, const WayChoice& choice,
                         std::span<const TrackCrossing> crossings);

/// Height of the track of a way as long as the content's, there.
double heightAt(const TrainWay& way, const ProfileContent& content, double distance);

/// How long the way is, what it climbs, and its steepest grade.
std::string summaryOf(const ProfileContent& content, const TrainWay& way, std::int32_t units);

/// The crossing once the heights are as planned.
TrackCrossing crossingAfter(const Layout& layout, const TrackCrossing& crossing,
                            const HeightPlan& plan);

} // namespace trassix
