#include "editing/canvas/carried_painter.h"

#include "document/record_kinds.h"
#include "editing/canvas/plan_colors.h"
#include "editing/elevation/end_heights.h"

namespace trassix {

CarriedPainter::CarriedPainter(Surface& surface, const ViewTransform& view, const Layout& layout,
                               bool fits)
    : site_{surface, {}, view, layout}, look_{carriedLook(fits), {}} {
  look_.edge = {*look_.track.accent, 1.5, Stroke::Style::Dashed};
}

void CarriedPainter::paint(const PlanContent& records, const RigidMotion& motion) {
  forEachKind(records, [&](const auto& kind) {
    for (const auto& record : kind)
      paintOne(record, motion);
  });
}

void CarriedPainter::paintGrades(const PlanContent& records) {
  CarriedLook look = look_;
  for (const PlacedPiece& piece : records.pieces) {
    const Rgba color = plan_colors::gradeColor(gradeBand(slopeOf(piece)));
    look.track.accent = color;
    look.track.bed = {color.r, color.g, color.b, 90};
    paintCarried(site_, piece, look);
  }
}

void CarriedPainter::paintSelection(const RigidMotion& motion) {
  forEachSelectable(site_.layout.content(), [&](const auto& kind) {
    for (const auto& record : kind)
      if (record.sel)
        paintOne(record, motion);
  });
}

void CarriedPainter::paintOne(auto record, const RigidMotion& motion) {
  moveRecord(record, motion);
  paintCarried(site_, record, look_);
}

} // namespace trassix
