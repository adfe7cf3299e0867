// Where a carried piece would join.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "editing/joining/end_grid.h"
#include "editing/track/connector_geometry.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace trassix {

inline constexpr double kSnapDistance = 25.0; ///< mm, inclusive
inline constexpr double kSnapFacing = 20.0;   ///< degrees the headings must differ at least

struct SnapResult {
  bool snapped = false;
  std::int32_t target = -1; ///< id of the piece snapped to
  std::int32_t targetConnector = -1;
  std::int32_t newConnector = -1; ///< connector of the carried piece
  Pose pose;                      ///< where the carried piece is to be placed
  double distance = 0;            ///< mm between the two ends before the snap

  bool operator==(const SnapResult&) const = default;
};

/// The free connector of a candidate nearest to one of the carried piece's own, at most 25.0 mm
/// away, of the same track system, headings at least 20 degrees apart. Ties keep the pair met first
/// (candidate order, then its connectors, then the carried piece's).
SnapResult FindSnap(const PieceDef& carried, const Pose& pose,
                    std::span<const PlacedPiece> candidates);

/// The ends of a piece that is not on the plan.
std::vector<PlacedEnd> endsOfCarried(const PieceDef& carried, const Pose& pose);

/// The motion that lays one end on the other, facing it.
RigidMotion motionOnto(const PlacedEnd& own, const PlacedEnd& target);

struct IncompatibleContact {
  TrackSystem carried = TrackSystem::CTrack;
  TrackSystem other = TrackSystem::CTrack;

  bool operator==(const IncompatibleContact&) const = default;
};

/// The first pair of ends within reach of each other whose systems differ, over all pieces, hidden
/// levels and joined ends included.
std::optional<IncompatibleContact> FindIncompatibleContact(const PieceDef& carried,
                                                           const Pose& pose,
                                                           std::span<const PlacedPiece> pieces);

/// The same searches over a whole plan through a grid of connectors: the same results, ties
/// included, at a cost that does not depend on the plan's size. Valid for the document stamp it was
/// built at; pieces that do not show attract no snap.
class SnapIndex {
 public:
  SnapIndex();
  explicit SnapIndex(const Layout& layout);
  ~SnapIndex();
  SnapIndex(SnapIndex&&) noexcept;
  SnapIndex& operator=(SnapIndex&&) noexcept;

  std::uint64_t stamp() const;

  SnapResult findSnap(const PieceDef& carried, const Pose& pose) const;

  /// The same search for the ends of a group of pieces that is being moved, given where they would
  /// be: never to the group's own ends (`group`: sorted ids), while an end of the rest that is
  /// joined to the group counts as free, because the move opens it.
  std::optional<EndContact> findGroupSnap(std::span<const PlacedEnd> ends,
                                          std::span<const std::int32_t> group) const;

  /// Every end of the group that would lie on a free end of the rest, close enough to be joined but
  /// for its height; where there are several on one that it would be joined with.
  std::vector<EndContact> findMeetings(std::span<const PlacedEnd> ends,
                                       std::span<const std::int32_t> group) const;

  /// The nearest joined end of the same system within `reach` mm (at most the snap distance) whose
  /// heading differs by at least `facing` degrees, of visible pieces; of the two ends of a joint
  /// the one that faces `own` better.
  std::optional<EndContact> findJoint(const PlacedEnd& own, double reach, double facing) const;

  std::optional<IncompatibleContact> findIncompatibleContact(const PieceDef& carried,
                                                             const Pose& pose) const;

 private:
  struct Data;
  std::unique_ptr<Data> data_;
};

} // namespace trassix
