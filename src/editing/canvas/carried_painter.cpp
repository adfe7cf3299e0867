#include "editing/canvas/carried_painter.h"

#include "document/record_kinds.h"

#include <type_traits>

namespace trassix {

CarriedPainter::CarriedPainter(Surface& surface, const ViewTransform& view, const Layout& layout,
                               const PlanTheme& theme, bool fits)
    : site_{surface, {}, view, layout, theme}, look_{carriedLook(theme, fits), {}},
      piecePainter_(surface, view, theme) {
  look_.edge = {*look_.track.accent, 1.5, Stroke::Style::Dashed};
}

void CarriedPainter::paint(const PlanContent& records, const RigidMotion& motion) {
  forEachKind(records, [&](const auto& kind) {
    for (const auto& record : kind)
      paintOne(record, motion);
    paintTrack();
  });
}

void CarriedPainter::paintSelection(const RigidMotion& motion) {
  forEachSelectable(site_.layout.content(), [&](const auto& kind) {
    for (const auto& record : kind)
      if (record.sel)
        paintOne(record, motion);
    paintTrack();
  });
}

void CarriedPainter::paintOne(const auto& record, const RigidMotion& motion) {
  using Record = std::remove_cvref_t<decltype(record)>;
  if constexpr (Record::kKind == RecordKind::Piece) {
    if (const PieceDef* definition = definitionOf(record))
      track_.push_back({piecePainter_.shapeOf(*definition), motion(poseOf(record)), look_.track});
  } else {
    Record moved = record;
    moveRecord(moved, motion);
    paintCarried(site_, moved, look_);
  }
}

void CarriedPainter::paintTrack() {
  piecePainter_.paintBeds(track_);
  piecePainter_.paintRails(track_);
  piecePainter_.paintAccents(track_);
  track_.clear();
}

} // namespace trassix
