#include "host/plan_preview.h"

#include "document/plan_changes.h"
#include "document/record_kinds.h"
#include "editing/elevation/propagation.h"
#include "host/workspace.h"

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

/// The plan without its history, which no preview needs.
Layout scratchOf(const Layout& layout) {
  Layout scratch;
  scratch.edit() = layout.content();
  scratch.editSettings() = layout.settings();
  std::int32_t largest = 0;
  forEachKind(layout.content(), [&largest](const auto& records) {
    for (const auto& record : records)
      largest = std::max(largest, record.id);
  });
  scratch.setNextPieceId(largest + 1);
  return scratch;
}

/// Joints are not drawn, and nearly every edit of track changes some of what it is joined to.
bool onlyJointsDiffer(const Layout& layout, const PlacedPiece& now) {
  const PlacedPiece* piece = layout.findPiece(now.id);
  if (piece == nullptr)
    return false;
  PlacedPiece likewise = *piece;
  likewise.joints = now.joints;
  return sameButSelected(likewise, now);
}
bool onlyJointsDiffer(const Layout&, const auto&) {
  return false;
}

} // namespace

PlanPreview::PlanPreview(Workspace& workspace)
    : workspace_(workspace), before_(std::exchange(workspace.preview_, this)),
      records_(std::make_unique<PlanContent>()) {}

PlanPreview::~PlanPreview() {
  workspace_.preview_ = before_;
  workspace_.repaint();
}

void PlanPreview::show(PlanContent records) {
  *records_ = std::move(records);
  workspace_.repaint();
}

void PlanPreview::showNothing() {
  show({});
}

void PlanPreview::showHeights(const HeightPlan& plan) {
  PlanContent shown;
  for (const PieceHeight& height : plan.pieces)
    if (const PlacedPiece* piece = workspace_.layout().findPiece(height.piece)) {
      shown.pieces.push_back(*piece);
      lay(shown.pieces.back(), height);
    }
  inGradeColors_ = true;
  show(std::move(shown));
}

void PlanPreview::showEdit(const std::function<void(Layout&)>& edit) {
  const Layout& layout = workspace_.layout();
  Layout scratch = scratchOf(layout);
  edit(scratch);
  const PlanChanges changes = changesBetween(layout.content(), scratch.content());
  PlanContent shown;
  forEachKind(scratch.content(), [&](const auto& now) {
    using Records = std::remove_cvref_t<decltype(now)>;
    const ChangedIds& ids = changes.of(Records::value_type::kKind);
    for (const auto& record : now)
      if (std::ranges::binary_search(ids.added, record.id) ||
          (std::ranges::binary_search(ids.changed, record.id) && !onlyJointsDiffer(layout, record)))
        recordsOf<Records>(shown).push_back(record);
  });
  show(std::move(shown));
}

} // namespace trassix
