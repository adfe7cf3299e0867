// The frame's commands on the document, the view and the program.
#include "app/desktop/standard_folders.h"
#include "app/services/app_prefs.h"
#include "editing/placing/placing.h"
#include "editing/selection/selection.h"
#include "host/command_ids.h"
#include "measures/measure_format.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/dialogs/experience_dialog.h"
#include "ui/frame/main_frame.h"
#include "ui/help/help_dialog.h"
#include "ui/palette/palette_panel.h"

#include <wx/menu.h>
#include <wx/printdlg.h>
#include <wx/toolbar.h>

namespace trassix {

namespace {

constexpr double kZoomInStep = 1.25;
constexpr double kZoomOutStep = 0.8;

} // namespace

void MainFrame::placeFromPalette(std::string_view article) {
  if (selectedPieces(plan_.layout()).empty()) {
    canvas_->pickUpPiece(article);
    return;
  }
  const EditResult result = extendSelected(plan_.layout(), article);
  canvas_->canvas().site().reportExtension(result);
  if (!result.changed() && !result.refusal)
    SetStatusText(_("The selected piece has no free end to go on from"), kHintField);
}

void MainFrame::undo() {
  const PlanContent before = plan_.layout().content();
  if (!plan_.layout().undo())
    return;
  const bool visible = plan_.layout().content() != before;
  deselectHidden(plan_.layout());
  changed();
  if (!visible)
    SetStatusText(_("Nothing to be seen: levels and the baseboard are not undone"), kHintField);
}

void MainFrame::redo() {
  if (!plan_.layout().redo())
    return;
  deselectHidden(plan_.layout());
  changed();
}

void MainFrame::deleteSelection() {
  if (const std::optional<Notice> refusal = lockGuard(plan_.layout(), "delete")) {
    show(*refusal);
    return;
  }
  if (selectionHasGrades(plan_.layout()) &&
      !confirm({"Delete", "Selection includes graded pieces. Delete?"}))
    return;
  if (!trassix::deleteSelection(plan_.layout()))
    return;
  selectionChanged();
  changed();
}

void MainFrame::selectEverything() {
  selectAll(plan_.layout());
  selectionChanged();
}

void MainFrame::zoomIn() {
  canvas_->canvas().zoomAboutCentre(kZoomInStep);
}
void MainFrame::zoomOut() {
  canvas_->canvas().zoomAboutCentre(kZoomOutStep);
}
void MainFrame::zoomToFit() {
  canvas_->canvas().fit();
}

bool MainFrame::menuChecked(int id) const {
  return GetMenuBar()->IsChecked(id);
}

void MainFrame::toggleGrid() {
  switches_.grid = menuChecked(kShowGrid);
  canvas_->update();
}

void MainFrame::toggleSnap() {
  switches_.snap = menuChecked(kSnap);
}

void MainFrame::toggleRails() {
  switches_.rails = menuChecked(kShowRails);
  canvas_->update();
}

void MainFrame::toggleLabels() {
  wxToolBar* bar = GetToolBar();
  switches_.labels = !bar->GetToolState(kHideLabels);
  bar->FindById(kHideLabels)->SetLabel(switches_.labels ? _("Hide Labels") : _("Show Labels"));
  bar->Realize();
  canvas_->update();
}

void MainFrame::toggleMeasure() {
  toggleMode(kMeasure, ToolMode::Measure);
}
void MainFrame::togglePolygon() {
  toggleMode(kPolygon, ToolMode::Polygon);
}

void MainFrame::toggleMode(int tool, ToolMode mode) {
  if (!GetToolBar()->GetToolState(tool)) {
    setToolMode(ToolMode::Select);
    return;
  }
  plan_.layout().clearSelection();
  selectionChanged();
  setToolMode(mode);
}

void MainFrame::unitsMm() {
  setUnits(kMillimetres);
}
void MainFrame::unitsCm() {
  setUnits(kCentimetres);
}
void MainFrame::unitsInch() {
  setUnits(kInches);
}

void MainFrame::setUnits(std::int32_t units) {
  plan_.layout().editSettings().units = units;
  appPrefs().units = units;
  writePrefs(appPrefs(), StandardFolders::prefsFile());
  showUnits();
  tellAll();
}

void MainFrame::showUnits() {
  const std::int32_t units = plan_.layout().settings().units;
  GetMenuBar()->Check(kUnitsMm + (units >= kMillimetres && units <= kInches ? units : 0), true);
  palette_->unitsChanged();
  setPointer(canvas_->canvas().pointer());
}

void MainFrame::options() {
  askExperience(this);
  refreshProperties();
}

void MainFrame::showHelp(HelpTopic topic) {
  if (!help_)
    help_ = new HelpDialog(this);
  help_->showPage(topic);
}

void MainFrame::help() {
  showHelp(HelpTopic::Plan);
}

void MainFrame::layoutWizardHelp() {
  showHelp(HelpTopic::Wizards);
}

void MainFrame::validate() {
  show({"Validate", "Validation not yet implemented."});
}

void MainFrame::layoutProperties() {
  show({"Properties", "Layout properties not yet implemented."});
}

void MainFrame::pageSetup() {
  pageSetup_.SetPrintData(printData_);
  wxPageSetupDialog dialog(this, &pageSetup_);
  if (dialog.ShowModal() != wxID_OK)
    return;
  pageSetup_ = dialog.GetPageSetupData();
  printData_ = pageSetup_.GetPrintData();
}

} // namespace trassix
