// Along the track with the eyes of a driver. Lengths in mm.
#pragma once

#include "catalog/track_system.h"
#include "view3d/scene/vec3.h"

#include <cstdint>

namespace trassix {

class Layout;

/// Which way to go where a turnout leaves one.
enum class RideBranch : std::uint8_t { Straight, Left, Right };

struct RideView {
  Vec3 eye;
  Vec3 forward;    ///< of length 1
  double dark = 0; ///< 1 in a tunnel, less near its ends, where daylight comes in
};

/// The way a train goes at this speed of its prototype, in mm a second.
double modelSpeed(TrackSystem system, double kilometresPerHour);

/// A place on the track and a direction. It keeps ids only, so that the plan may be edited
/// meanwhile; when its piece goes, the ride is over.
class TrackRide {
 public:
  /// From the middle of a piece towards its first way's end. Over at once where there is no way.
  TrackRide(const Layout& layout, std::int32_t piece);

  /// Goes on by so much, backwards for a negative way. False when it came to an open end, a buffer
  /// or a turntable, and stays there.
  bool advance(const Layout& layout, double way);
  /// At the next turnout that leaves a choice, as the eyes see it; then straight on again.
  void choose(RideBranch branch) { branch_ = branch; }
  RideBranch chosen() const { return branch_; }
  /// To where it came from.
  void turnRound(const Layout& layout);

  bool isOver(const Layout& layout) const;
  std::int32_t piece() const { return piece_; }
  RideView view(const Layout& layout) const;

 private:
  double length(const Layout& layout) const;
  double reach(const Layout& layout) const; ///< how far it may go on its piece
  double slope(const Layout& layout) const; ///< of its piece, the way it goes
  double tilt(const Layout& layout) const;  ///< of the view
  double darkness(const Layout& layout) const;
  bool cross(const Layout& layout);
  void enter(const Layout& layout, std::int32_t piece, std::int32_t connector);

  std::int32_t piece_ = -1;
  std::int32_t from_ = -1; ///< the connectors between which it is on its way; -1 at a buffer
  std::int32_t to_ = -1;
  double along_ = 0; ///< from the end `from_`
  RideBranch branch_ = RideBranch::Straight;
};

} // namespace trassix
