#include "editing/canvas/carried_painter.h"

#include "catalog/helix_kits.h"
#include "editing/canvas/layout_painter.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/picking.h"

namespace trassix {

CarriedPainter::CarriedPainter(Surface& surface, const ViewTransform& view, const Layout& layout,
                               bool fits)
    : surface_(surface), view_(view), layout_(layout), pieces_(surface, view),
      look_(carriedLook(fits)), stroke_{*look_.accent, 1.5, Stroke::Style::Dashed} {}

void CarriedPainter::paint(const PlanContent& records, const RigidMotion& motion) {
  forEachKind(records, [&](const auto& kind) {
    for (auto record : kind) {
      moveRecord(record, motion);
      draw(record);
    }
  });
}

void CarriedPainter::draw(const Helix& helix) {
  surface_.circle(view_.toScreen({helix.cx, helix.cy}), helixHalfSize(helix.variant) * view_.zoom(),
                  {}, stroke_);
}

void CarriedPainter::draw(const SceneryItem& item) {
  outline(sceneryOutline(layout_, item));
}

void CarriedPainter::draw(const PlacedPiece& piece) {
  if (const PieceDef* definition = definitionOf(piece))
    pieces_.paint(trackGeometryOf(*definition), poseOf(piece), look_);
}

void CarriedPainter::draw(const Measurement& tape) {
  paintTape(surface_, view_, tape.from, tape.to, layout_.settings().units, true);
}

void CarriedPainter::draw(const Label& label) {
  surface_.text(label.text, view_.toScreen({label.x, label.y}), 0,
                {stroke_.color, labelTextSize(1 / view_.zoom()), true});
}

void CarriedPainter::outline(const std::vector<Point>& points) {
  surface_.polygon(view_.toScreen(points), {}, stroke_);
}

} // namespace trassix
