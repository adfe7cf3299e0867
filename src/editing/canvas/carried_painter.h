#pragma once

#include "document/layout.h"
#include "editing/canvas/piece_painter.h"

namespace trassix {

/// Draws records that are not on the plan, such as those that hang on the pointer or that a dialog
/// offers: track as it would lie, everything else as outlines.
class CarriedPainter {
 public:
  /// `layout` is the plan under them, `fits` whether they are where they belong.
  CarriedPainter(Surface& surface, const ViewTransform& view, const Layout& layout, bool fits);

  /// The records where the motion brings them.
  void paint(const PlanContent& records, const RigidMotion& motion = {});

 private:
  // One for each kind of record.
  void draw(const Shape& shape) { outline(shape.points); }
  void draw(const Helix& helix);
  void draw(const Tunnel&) {} // shows by its track
  void draw(const SceneryItem& item);
  void draw(const PlacedPiece& piece);
  void draw(const Measurement& tape);
  void draw(const Label& label);
  void outline(const std::vector<Point>& points);

  Surface& surface_;
  const ViewTransform& view_;
  const Layout& layout_;
  PiecePainter pieces_;
  PieceLook look_;
  Stroke stroke_;
};

} // namespace trassix
