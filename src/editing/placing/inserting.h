// Putting a piece into finished track: the joint opens and one side makes room.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/joining/snapping.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace trassix {

/// Where a carried piece would go into finished track.
struct InsertSpot {
  std::int32_t piece = -1;     ///< id of the piece that the carried one goes on from
  std::int32_t connector = -1; ///< its joined end
  std::int32_t enter = -1;     ///< end of the carried piece that joins there
  std::int32_t exit = -1;      ///< end of the carried piece where the track goes on
  Pose pose;                   ///< where the carried piece would lie if the far side moves

  bool operator==(const InsertSpot&) const = default;
};

inline constexpr double kInsertReach = 12.0;   ///< mm between the carried end and the joint
inline constexpr double kInsertFacing = 135.0; ///< degrees the headings must differ at least

/// The joint nearest to an end of the carried piece, of the same system on both sides and in line
/// with it, so that the piece's main way through it continues the track. Empty when the carried
/// piece snaps to an open end: that comes first.
std::optional<InsertSpot> findInsertSpot(const Layout& layout, const SnapIndex& index,
                                         const PieceDef& carried, const Pose& pose);

/// The slope with which the piece would lie there, since both sides keep their heights; none where
/// the track is level.
std::optional<double> insertedSlope(const Layout& layout, const PieceDef& piece,
                                    const InsertSpot& spot);

/// Opens the joint, puts the piece in and moves the side with less track as one rigid body, all as
/// one undo step. Refused when both sides hang together elsewhere, or when a helix or tunnel would
/// have to move.
EditResult insertPiece(Layout& layout, std::string_view article, const InsertSpot& spot);

} // namespace trassix
