#include "document/plan_content.h"
#include "editing/canvas/article_places.h"
#include "editing/canvas/canvas.h"
#include "editing/canvas/canvas_tool.h"
#include "editing/canvas/carried_painter.h"
#include "editing/canvas/carry_tool.h"
#include "editing/canvas/grade_painter.h"
#include "editing/canvas/layout_painter.h"
#include "editing/canvas/placing_offer.h"
#include "editing/canvas/stamp_mixer.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "host/plan_preview.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace trassix {

void Canvas::setTheme(const PlanTheme& theme) {
  site_->setTheme(theme);
}

const PlanTheme& Canvas::theme() const {
  return site_->theme();
}

PaintOptions Canvas::paintOptions(const Box& part) const {
  const EditorSwitches& switches = site_->workspace.switches();
  PaintOptions options;
  options.grid = switches.grid;
  options.labels = switches.labels;
  options.rails = switches.rails;
  options.grades = switches.grades;
  if (switches.grades)
    options.crossings = site_->crossings();
  options.leftOut = tool().lifted();
  options.scaleBar = false;
  options.selection = switches.grades; // their colours hide any other mark
  options.part = part;
  options.theme = &site_->theme();
  options.articles = articles_.get();
  options.gradePlaces = grades_.get();
  return options;
}

void Canvas::paintPlan(Surface& surface, const Box& part) {
  LayoutPainter(surface, site_->size, site_->view, paintOptions(part))
      .paint(site_->layout(), site_->planIndex());
}

void Canvas::paintSelection(Surface& surface, const Box& part) {
  if (site_->workspace.switches().grades)
    return;
  PaintOptions options = paintOptions(part);
  options.selection = true;
  LayoutPainter(surface, site_->size, site_->view, options)
      .paintSelection(site_->layout(), site_->planIndex());
}

void Canvas::paintOverlay(Surface& surface, bool withBody) {
  PaintOptions options;
  options.grades = site_->workspace.switches().grades;
  options.theme = &site_->theme();
  LayoutPainter fixed(surface, site_->size, site_->view, options);
  fixed.paintScaleBar(site_->layout().settings().units);
  fixed.paintLegend(site_->layout());
  if (const PlanPreview* preview = site_->workspace.preview())
    paintPreview(surface, *preview);
  if (!carry_)
    offer_->paint(surface);
  if (withBody)
    paintBody(surface);
  tool().paint(surface);
}

void Canvas::paintPreview(Surface& surface, const PlanPreview& preview) {
  if (!preview.inGradeColors()) {
    CarriedPainter(surface, site_->view, site_->layout(), site_->theme(), true)
        .paint(preview.records());
    if (!site_->workspace.switches().grades)
      return;
  }
  std::vector<GradePainter::Track> track;
  for (const PlacedPiece& piece : preview.records().pieces)
    if (const PieceDef* definition = definitionOf(piece))
      track.push_back({&piece, definition});
  GradePainter(surface, site_->view, site_->layout(), site_->theme()).paintColors(std::move(track));
}

std::uint64_t Canvas::contentStamp() {
  const EditorSwitches& switches = site_->workspace.switches();
  const Layout& layout = site_->layout();
  StampMixer mixer(layout.documentStamp(), site_->size.width, site_->size.height);
  mixer.add(std::uint64_t{switches.grid} | std::uint64_t{switches.labels} << 1U |
            std::uint64_t{switches.rails} << 2U | std::uint64_t{switches.grades} << 3U);
  if (switches.grades)
    mixer.add(layout.selectionStamp());
  mixer.add(std::uint64_t{reinterpret_cast<std::uintptr_t>(&site_->theme())});
  for (const std::int32_t id : tool().lifted())
    mixer.add(static_cast<std::uint64_t>(id));
  return mixer.stamp();
}

std::uint64_t Canvas::selectionStamp() {
  return StampMixer(contentStamp(), site_->layout().selectionStamp()).stamp();
}

std::optional<Canvas::Body> Canvas::body() const {
  const std::optional<CarriedBody> carried = tool().body();
  if (!carried)
    return std::nullopt;
  const Point at = site_->view.toScreen({carried->pose.x, carried->pose.y});
  StampMixer mixer(site_->layout().revision(), carries_, carried->grasp.x, carried->grasp.y,
                   carried->pose.heading, site_->view.zoom());
  mixer.add(std::uint64_t{carried->fits});
  if (carried->fits) { // where it is to lie exactly
    mixer.add(at.x);
    mixer.add(at.y);
  }
  return Body{mixer.stamp(), at};
}

void Canvas::paintBody(Surface& surface) const {
  tool().paintBody(surface);
}

bool Canvas::anySelected() const {
  return !site_->workspace.switches().grades && hasSelection(site_->layout());
}

} // namespace trassix
