#pragma once

#include "catalog/piece_def.h"
#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"

#include <optional>
#include <vector>

namespace trassix {

/// How one piece of track is to be drawn.
struct PieceLook {
  Rgba bed;
  bool rails = true;
  bool sleepers = true;
  bool covered = false;       ///< runs under a tunnel: dashed
  bool faded = false;         ///< on another level than the active one
  std::optional<Rgba> accent; ///< edge and centre line of a selected, hovered or carried piece
};

/// The look of a piece that is being carried, `snapped` when it would join something where it is.
PieceLook carriedLook(bool snapped);

/// Draws single pieces of track: as a line from afar, as bed and rails from nearer, with sleepers
/// from close up. Keeps its point buffers between pieces.
class PiecePainter {
 public:
  PiecePainter(Surface& surface, const ViewTransform& view) : surface_(surface), view_(view) {}

  /// The bed, drawn for all pieces before any rails so that joined beds read as one.
  void paintBed(const TrackGeometry& geometry, const Pose& pose, const PieceLook& look);
  /// Sleepers, rails and the accent.
  void paintRails(const TrackGeometry& geometry, const Pose& pose, const PieceLook& look);

  void paint(const TrackGeometry& geometry, const Pose& pose, const PieceLook& look);

  /// Points of the piece's frame in pixels; good until the next call.
  const std::vector<Point>& toScreen(const std::vector<Point>& local, const Pose& pose);

 private:
  /// The same on whole pixels of the display: beds that meet share their corners.
  const std::vector<Point>& onPixels(const std::vector<Point>& local, const Pose& pose);
  bool fromAfar(const TrackGeometry& geometry) const;

  Surface& surface_;
  const ViewTransform& view_;
  std::vector<Point> buffer_;
};

} // namespace trassix
