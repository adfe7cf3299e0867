#include "host/workspace.h"

#include "document/open_plan.h"
#include "document/plan_content.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

#include <algorithm>
#include <utility>

namespace trassix {

PlanObserver::PlanObserver(Workspace& workspace) : workspace_(workspace) {
  workspace_.observers_.push_back(this);
}

PlanObserver::~PlanObserver() {
  std::erase(workspace_.observers_, this);
}

template <class... Parameters, class... Arguments>
void Workspace::tell(void (PlanObserver::*what)(Parameters...), const Arguments&... arguments) {
  // By index: who is told may bring observers along, which know the present state.
  for (std::size_t i = 0; i < observers_.size(); ++i)
    (observers_[i]->*what)(arguments...);
}

Layout& Workspace::layout() {
  return plan_.layout();
}

const Layout& Workspace::layout() const {
  return plan_.layout();
}

std::int32_t Workspace::units() const {
  return layout().settings().units;
}

void Workspace::changed() {
  plan_.noteChange();
  tell(&PlanObserver::planChanged);
}

void Workspace::selectionChanged() {
  tell(&PlanObserver::selectionChanged);
}

void Workspace::selectNothing() {
  layout().clearSelection();
  selectionChanged();
}

void Workspace::planReplaced() {
  // An outline that was going to be drawn belonged to the plan before.
  if (switches_.polygonUse.kind != PolygonUse::Kind::Shape)
    setToolMode(ToolMode::Select);
  layout().showCovered(switches_.hidden);
  tell(&PlanObserver::planReplaced);
  tell(&PlanObserver::unitsChanged);
}

void Workspace::fileChanged() {
  tell(&PlanObserver::fileChanged);
}

void Workspace::setUnits(std::int32_t units) {
  layout().editSettings().units = units;
  tell(&PlanObserver::unitsChanged);
}

void Workspace::setSwitches(const EditorSwitches& switches) {
  switches_ = switches;
  layout().showCovered(switches.hidden);
  if (!switches.hidden)
    deselectHidden(layout());
  tell(&PlanObserver::switchesChanged);
}

void Workspace::showSelected() {
  const auto unseen = [this](const PlacedPiece& piece) {
    return piece.sel && layout().isCovered(piece.id);
  };
  if (switches_.hidden || std::ranges::none_of(layout().pieces(), unseen))
    return;
  EditorSwitches shown = switches_;
  shown.hidden = true;
  setSwitches(shown);
  setHint(tr("Hidden track shows again: what is selected lies in a tunnel"));
}

void Workspace::setToolMode(ToolMode mode, const PolygonUse& use) {
  switches_.mode = mode;
  switches_.polygonUse = use;
  tell(&PlanObserver::switchesChanged);
}

void Workspace::repaint() {
  tell(&PlanObserver::pictureChanged);
}

void Workspace::show(const Box& part, bool inTheMiddle) {
  tell(&PlanObserver::shown, part, inTheMiddle);
}

void Workspace::point(std::int32_t piece) {
  if (std::exchange(pointed_, piece) != piece)
    tell(&PlanObserver::pointedChanged);
}

void Workspace::setHint(const std::string& hint) {
  tell(&PlanObserver::hintChanged, hint);
}

void Workspace::setPointer(Point world) {
  tell(&PlanObserver::pointerMoved, world);
}

} // namespace trassix
