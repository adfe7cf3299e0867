#pragma once

#include "catalog/piece_def.h"
#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"

#include <optional>
#include <span>
#include <vector>

namespace trassix {

struct PlanTheme;

/// How one piece of track is to be drawn.
struct PieceLook {
  Rgba bed;
  bool rails = true;
  bool sleepers = true;
  bool beneath = false;       ///< lies under a hill or a higher deck: dashed and lighter
  bool faded = false;         ///< on another level than the active one
  int climb = 0;              ///< of a ramp: 1 up to its second end, -1 to its first
  std::optional<Rgba> accent; ///< edge and centre line of a selected, hovered or carried piece
};

/// The look of a piece that is being carried, `snapped` when it would join something where it is.
PieceLook carriedLook(const PlanTheme& theme, bool snapped);

/// Draws single pieces of track: as a line from afar, as bed and rails from nearer, with sleepers
/// from close up. Keeps its room for points.
class PiecePainter {
 public:
  PiecePainter(Surface& surface, const ViewTransform& view, const PlanTheme& theme);

  /// What is drawn of a piece at this scale.
  struct Shape {
    const TrackGeometry& geometry;
    const TrackLines& lines;
    const TrackDetails* details; ///< null where they are too small
  };
  Shape shapeOf(const PieceDef& definition) const;

  /// A piece where it lies.
  struct Piece {
    Shape shape;
    Pose pose;
    PieceLook look;
  };

  // Many pieces at one go: first all beds, so that joined ones read as one, then what lies on them.
  void paintBeds(std::span<const Piece> pieces);
  /// Sleepers and rails.
  void paintRails(std::span<const Piece> pieces);
  /// The edge and the centre line in the colour of the accent, of those that have one.
  void paintAccents(std::span<const Piece> pieces);

  void paint(const PieceDef& definition, const Pose& pose, const PieceLook& look);

  /// Points of the piece's frame in pixels; good until the next call.
  const std::vector<Point>& toScreen(const std::vector<Point>& local, const Pose& pose);

 private:
  void toScreen(std::span<const Point> local, const Pose& pose, std::span<Point> px) const;
  /// The same on whole pixels of the display: beds that meet share their corners.
  void onPixels(std::span<const Point> local, const Pose& pose, std::span<Point> px) const;
  /// Points of a turnout, girders, buffers.
  void paintDetails(std::span<const Piece> pieces);
  void paintClimbs(std::span<const Piece> pieces);
  bool showsPoints(const Piece& piece) const;
  bool fromAfar(const TrackGeometry& geometry) const;
  void addLines(const std::vector<std::vector<Point>>& lines, const Pose& pose);
  void addPairs(const std::vector<Point>& ends, const Pose& pose);

  /// Draws what `add` gathers in `runs_` of all pieces for which `styleOf` tells the same.
  template <class StyleOf, class Add, class Draw>
  void together(std::span<const Piece> pieces, StyleOf styleOf, Add add, Draw draw);

  Surface& surface_;
  const ViewTransform& view_;
  const PlanTheme& theme_;
  double tolerance_; ///< mm, within which chords look like curves
  std::vector<Point> buffer_;
  PointRuns runs_;
};

} // namespace trassix
