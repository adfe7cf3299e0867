#include "editing/canvas/canvas_tool.h"

#include "editing/selection/content_box.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

namespace trassix {

const PlanIndex& ToolSite::planIndex() {
  if (planIndex_.stamp() != layout().documentStamp())
    planIndex_ = PlanIndex(layout());
  return planIndex_;
}

const SnapIndex& ToolSite::snapIndex() {
  if (snapIndex_.stamp() != layout().documentStamp())
    snapIndex_ = SnapIndex(layout());
  return snapIndex_;
}

const std::vector<TrackCrossing>& ToolSite::crossings() {
  if (crossingsStamp_ != layout().documentStamp()) {
    crossings_ = trackCrossings(layout());
    crossingsStamp_ = layout().documentStamp();
  }
  return crossings_;
}

void ToolSite::report(const EditResult& result) {
  if (result.refusal)
    questions().show(*result.refusal);
  if (!result.changed())
    return;
  workspace.selectionChanged();
  workspace.changed();
  if (result.remark)
    questions().show(*result.remark);
}

void ToolSite::report(const ChangeResult& result) {
  if (result.refusal)
    questions().show(*result.refusal);
  if (result.changed)
    workspace.changed();
  if (result.remark)
    questions().show(*result.remark);
}

void ToolSite::reportExtension(const EditResult& result) {
  if (const std::optional<Box> box = result.changed() ? selectionBox(layout()) : std::nullopt)
    view.reveal(*box, size.width, size.height);
  report(result);
}

void ToolSite::resetViewForSmall() {
  view.resetForSmall();
  const double margin = ViewTransform::kRevealMarginPx;
  if (size.width <= 2 * margin || size.height <= 2 * margin)
    return;
  const auto boxOf = [this](Point low, Point high) {
    const Point from = view.toWorld(low);
    const Point to = view.toWorld(high);
    return Box{from.x, from.y, to.x, to.y};
  };
  const Box window = boxOf({0, 0}, {size.width, size.height});
  const Box room = boxOf({margin, margin}, {size.width - margin, size.height - margin});
  if (const std::optional<Box> content = nearestContent(layout(), window, room))
    view.reveal(*content, size.width, size.height);
}

std::string ToolSite::landingHint(const std::set<std::int32_t>& levels) const {
  std::string names;
  for (const std::int32_t id : levels) {
    const bool visible = layout().levelVisible(id);
    if (visible && id == layout().settings().activeLevel)
      continue;
    const Level* level = layout().findLevel(id);
    const std::string name = level != nullptr ? level->name : tr("Level %1%", {id});
    names += names.empty() ? "" : ", ";
    names += visible ? tr("%1% (not the active level)", {name}) : tr("%1% (hidden)", {name});
  }
  return names.empty() ? std::string() : tr("Lands on %1%", {names});
}

std::string hintOf(std::initializer_list<std::string> phrases) {
  return joinTexts(phrases, "    ");
}

} // namespace trassix
