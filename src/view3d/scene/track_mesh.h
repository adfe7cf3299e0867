// Track as a solid. Lengths in mm.
#pragma once

#include "catalog/piece_def.h"
#include "document/records_fwd.h"
#include "editing/supports/supports.h"
#include "view3d/scene/mesh.h"

namespace trassix {

class Layout;

/// How far away a mesh is meant to be looked at from.
enum class Detail : std::uint8_t { Near, Far };

/// Where the parts of track lie above its height, which is its underside.
struct TrackSection {
  double bedHalf = 0; ///< half the width of the bed at its foot
  double bedTop = 0;
  double railFoot = 0;
  double railTop = 0; ///< the top of the rails
  double gauge = 0;
  double railWidth = 0;
};
TrackSection trackSection(TrackSystem system);

/// A piece with whatever carries or covers it that is its own: a bridge, the pit of a turntable,
/// the ring deck of a helix. One of an unknown article is a marked block.
void addTrack(Mesh& mesh, const Layout& layout, const PlacedPiece& piece, Detail detail);

/// A strip between the rails in the colour of the piece's grade; nothing for level track.
void addGradeStrip(Mesh& mesh, const PlacedPiece& piece);

void addSupport(Mesh& mesh, const Support& support, Detail detail);

/// Stands at the origin, for trains that come along x; `railFoot` and `railTop` above it.
void addBufferStop(MeshBuilder& builder, double gauge, double railFoot, double railTop);

/// A frame of the scene about a pose of the plan.
MeshFrame frameAt(const Pose& pose, double height);

/// A turntable about the origin of its frame, its bridge along x.
struct TurntableShape {
  double pitRadius = 0;
  double outerRadius = 0;
  TrackSection section;
};
void addTurntable(MeshBuilder& builder, const TurntableShape& shape, Detail detail);

} // namespace trassix
