#include "ui/main_frame.h"

#include "app/services/app_prefs.h"
#include "app/services/frame_trace.h"
#include "app/services/standard_folders.h"
#include "app/services/user_paths.h"
#include "editing/measure_format.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "ui/canvas_panel.h"
#include "ui/choice_dialog.h"
#include "ui/command_ids.h"
#include "ui/command_table.h"
#include "ui/experience_dialog.h"
#include "ui/help_dialog.h"
#include "ui/palette_panel.h"
#include "ui/properties_panel.h"
#include "ui/utf8.h"

#include <wx/clipbrd.h>
#include <wx/display.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/printdlg.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/statusbr.h>
#include <wx/textdlg.h>
#include <wx/toolbar.h>

#include <utility>

namespace trassix {

namespace {

constexpr int kPaletteWidth = 235;
constexpr int kPaletteMinWidth = 150;
constexpr int kPropertiesWidth = 280;
constexpr int kInnerMinWidth = 200;
constexpr int kMarginMm = 15;
constexpr double kZoomInStep = 1.25;
constexpr double kZoomOutStep = 0.8;

enum StatusField { kHintField, kPiecesField, kPointerField };

wxSplitterWindow* makeSplitter(wxWindow* parent, const wxString& name) {
  return new wxSplitterWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                              wxSP_NOBORDER | wxSP_3DSASH | wxSP_LIVE_UPDATE, name);
}

} // namespace

MainFrame::MainFrame() : wxFrame(nullptr, wxID_ANY, kBaseTitle, wxDefaultPosition, {1400, 900}) {
  FrameTrace::write("A: wxFrame base constructed");
  buildMenuBar();
  FrameTrace::write("B: MenuBar done");
  buildToolBar();
  FrameTrace::write("C: ToolBar done");
  buildPanels();
  FrameTrace::write("D: Panels done");
  buildStatusBar();
  FrameTrace::write("E: StatusBar done");
  fitToDisplay();
  FrameTrace::write("F: MainFrame constructor complete");

  pageSetup_.SetPrintData(printData_);
  pageSetup_.SetMarginTopLeft({kMarginMm, kMarginMm});
  pageSetup_.SetMarginBottomRight({kMarginMm, kMarginMm});
  bindCommands();
  // Without a focus the keys of the menus would wait for the first click.
  canvas_->SetFocus();
  readPreferences();
}

MainFrame::~MainFrame() = default;

void MainFrame::buildMenuBar() {
  SetMenuBar(makeMenuBar());
}

void MainFrame::buildToolBar() {
  fillToolBar(*CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NOICONS));
}

void MainFrame::buildPanels() {
  FrameTrace::write("BuildPanels: start");
  auto* root = new wxPanel(this);
  FrameTrace::write("BuildPanels: root panel created");
  auto* outer = makeSplitter(root, "outerSplitter");
  palette_ =
      new PalettePanel(outer, {[this](std::string_view article) { canvas_->dragPiece(article); },
                               [this](std::string_view article) { placeFromPalette(article); },
                               [this](std::string_view key) { canvas_->dragScenery(key); },
                               [this](std::string_view key) { canvas_->pickUpScenery(key); },
                               [this](const Block& block) { canvas_->pickUpBlock(block); },
                               [this] { return layout_.settings().units; }});
  palette_->SetMinSize({kPaletteMinWidth, -1});
  FrameTrace::write("BuildPanels: palette created");
  auto* inner = makeSplitter(outer, "innerSplitter");
  FrameTrace::write("BuildPanels: splitter created");
  canvas_ = new CanvasPanel(inner, *this);
  FrameTrace::write("BuildPanels: canvas created");
  properties_ = new PropertiesPanel(inner, *this);
  FrameTrace::write("BuildPanels: properties created");
  inner->SetMinimumPaneSize(kInnerMinWidth);
  inner->SetSashGravity(1.0);
  inner->SplitVertically(canvas_, properties_, -kPropertiesWidth);
  outer->SetMinimumPaneSize(kPaletteMinWidth);
  outer->SetSashGravity(0.0);
  outer->SplitVertically(palette_, inner, kPaletteWidth);
  FrameTrace::write("BuildPanels: split done");
  FrameTrace::write("BuildPanels: adding to sizer");
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  sizer->Add(outer, wxSizerFlags(1).Expand());
  FrameTrace::write("BuildPanels: outerSplit added");
  root->SetSizer(sizer);
  FrameTrace::write("BuildPanels: sizer set");
  root->Layout();
  FrameTrace::write("BuildPanels: layout done");
  MigrateLegacyUserFiles();
  palette_->populate();
  FrameTrace::write("BuildPanels: palette populated");
  refreshTitle();
}

void MainFrame::buildStatusBar() {
  wxStatusBar* bar = CreateStatusBar(3);
  const wxString widestCount = "Pieces: 000000";
  const wxString widestPlace = "x: -00000.00  y: -00000.00 mm";
  const int widths[] = {-1, bar->GetTextExtent(widestCount).x + 24,
                        bar->GetTextExtent(widestPlace).x + 24};
  bar->SetStatusWidths(3, widths);
  SetStatusText(_("Ready"), kHintField);
  SetStatusText(_("Pieces: 0"), kPiecesField);
  SetStatusText("x: 0  y: 0 mm", kPointerField);
}

void MainFrame::fitToDisplay() {
  const int display = wxDisplay::GetFromWindow(this);
  const wxRect area =
      wxDisplay(display == wxNOT_FOUND ? 0u : static_cast<unsigned>(display)).GetClientArea();
  const wxSize size(std::min(GetSize().x, area.width), std::min(GetSize().y, area.height));
  SetSize(size);
  const wxPoint place(area.x + (area.width - size.x) / 2, area.y + (area.height - size.y) / 2);
  // Some window managers lose a place that is given before the window is there.
  Bind(wxEVT_SHOW, [this, place, moved = false](wxShowEvent& event) mutable {
    event.Skip();
    if (!std::exchange(moved, true))
      Move(place);
  });
}

void MainFrame::readPreferences() {
  readPrefsOrMigrate(appPrefs(), StandardFolders::prefsFile(), StandardFolders::legacyPrefsFile());
  layout_.editSettings().units = appPrefs().units;
  showUnits();
  if (!appPrefs().asked)
    askExperienceOnceRunning();
}

void MainFrame::bindCommands() {
  for (const Command& command : commands()) {
    if (command.action)
      Bind(
          wxEVT_MENU, [this, &command](wxCommandEvent&) { run(command); }, command.id);
    Bind(
        wxEVT_UPDATE_UI,
        [this, &command](wxUpdateUIEvent& event) {
          event.Enable(commandEnabled(command, layout_));
        },
        command.id);
  }
  Bind(wxEVT_CLOSE_WINDOW, &MainFrame::onClose, this);
  Bind(wxEVT_CHAR_HOOK, &MainFrame::onCharHook, this);
}

void MainFrame::run(const Command& command) {
  // What is under way is broken off first: it may hold the mouse, which a dialog needs, or parts of
  // the plan that will not be there afterwards. To undo it is to break it off.
  if (command.hand == Command::Hand::Empties && canvas_->canvas().wantsCapture()) {
    canvas_->canvas().cancel();
    canvas_->update();
    if (command.id == kUndo)
      return;
  }
  (this->*command.action)();
}

void MainFrame::onCharHook(wxKeyEvent& event) {
  // Controls may be typed into, so they keep these keys.
  const Command* command = commandOfPlainKey(event.GetKeyCode());
  if (command && (event.GetModifiers() & ~wxMOD_SHIFT) == 0 &&
      !dynamic_cast<wxControl*>(FindFocus()))
    run(*command);
  else
    event.Skip();
}

void MainFrame::onClose(wxCloseEvent& event) {
  if (event.CanVeto() && !promptUnsaved()) {
    event.Veto();
    return;
  }
  canvas_->canvas().cancel();
  Destroy();
}

void MainFrame::refreshTitle() {
  wxString title = kBaseTitle;
  if (!currentName_.empty())
    title += " - " + currentName_;
  else if (!currentPath_.empty())
    title += " - " + fromUtf8(currentPath_.stem().u8string());
  if (dirty_)
    title += " *";
  SetTitle(title);
}

// What canvas, panels and dialogs see.

void MainFrame::tellAll() {
  canvas_->update();
  refreshProperties();
  showPieceCount();
}

void MainFrame::refreshProperties() {
  if (properties_)
    properties_->recompute();
}

void MainFrame::changed() {
  dirty_ = true;
  refreshTitle();
  tellAll();
}

void MainFrame::selectionChanged() {
  canvas_->update();
  if (properties_)
    properties_->selectionChanged();
}

void MainFrame::repaint() {
  canvas_->update();
}

void MainFrame::setHint(const std::string& hint) {
  const wxString text = wxGetTranslation(fromUtf8(hint));
  if (GetStatusBar() && GetStatusBar()->GetStatusText(kHintField) != text)
    SetStatusText(text, kHintField);
}

void MainFrame::setPointer(Point world) {
  const std::int32_t units = layout_.settings().units;
  const double unit = millimetresPer(units);
  const int decimals = units == kMillimetres ? 0 : units == kCentimetres ? 1 : 2;
  SetStatusText(wxString::Format("x: %.*f  y: %.*f %s", decimals, world.x / unit, decimals,
                                 world.y / unit, unitName(units)),
                kPointerField);
}

void MainFrame::setToolMode(ToolMode mode) {
  switches_.mode = mode;
  GetToolBar()->ToggleTool(kMeasure, mode == ToolMode::Measure);
  GetToolBar()->ToggleTool(kPolygon, mode == ToolMode::Polygon);
  canvas_->canvas().modeChanged();
  canvas_->update();
}

void MainFrame::show(const Notice& notice) {
  const long icon = notice.icon == Notice::Icon::Error     ? wxICON_ERROR
                    : notice.icon == Notice::Icon::Warning ? wxICON_EXCLAMATION
                                                           : wxICON_INFORMATION;
  wxMessageBox(fromUtf8(notice.text), fromUtf8(notice.title), static_cast<int>(wxOK | icon), this);
}

bool MainFrame::confirm(const Question& question) {
  int style = wxYES_NO | (question.warning ? wxICON_WARNING : wxICON_QUESTION);
  if (!question.defaultYes)
    style |= wxNO_DEFAULT;
  return wxMessageBox(fromUtf8(question.text), fromUtf8(question.title), style, this) == wxYES;
}

std::optional<std::size_t> MainFrame::choose(const Choice& choice) {
  ChoiceDialog dialog(this, choice);
  if (dialog.ShowModal() != wxID_OK)
    return {};
  return dialog.chosen();
}

std::optional<std::string> MainFrame::askText(const std::string& title, const std::string& prompt,
                                              const std::string& value) {
  wxTextEntryDialog dialog(this, fromUtf8(prompt), fromUtf8(title), fromUtf8(value));
  if (dialog.ShowModal() != wxID_OK)
    return {};
  return toUtf8(dialog.GetValue());
}

void MainFrame::popupMenu(const std::vector<MenuRow>& rows) {
  wxMenu menu;
  std::function<void()> chosen;
  wxMenu* submenu = nullptr;
  std::string submenuName;
  for (const MenuRow& row : rows) {
    if (row.text.empty()) {
      menu.AppendSeparator();
      continue;
    }
    if (row.submenu != submenuName) {
      submenuName = row.submenu;
      submenu = submenuName.empty() ? nullptr : new wxMenu;
      if (submenu)
        menu.AppendSubMenu(submenu, wxGetTranslation(fromUtf8(submenuName)));
    }
    // The keys are shown in the text: as an accelerator the menu would take them over.
    wxString text = wxGetTranslation(fromUtf8(row.text));
    if (!row.keys.empty())
      text += "   (" + wxGetTranslation(fromUtf8(row.keys)) + ")";
    wxMenuItem* item = (submenu ? *submenu : menu).Append(wxID_ANY, text);
    item->Enable(row.enabled);
    menu.Bind(
        wxEVT_MENU, [&chosen, &row](wxCommandEvent&) { chosen = row.action; }, item->GetId());
  }
  canvas_->PopupMenu(&menu);
  if (chosen)
    chosen();
}

void MainFrame::editShape(std::int32_t) {}

void MainFrame::putClipboard(const std::string& text) {
  if (!wxTheClipboard->Open())
    return;
  wxTheClipboard->SetData(new wxTextDataObject(fromUtf8(text)));
  wxTheClipboard->Close();
}

std::string MainFrame::clipboard() {
  wxTextDataObject text;
  if (!wxTheClipboard->Open())
    return {};
  const bool found = wxTheClipboard->IsSupported(wxDF_UNICODETEXT) && wxTheClipboard->GetData(text);
  wxTheClipboard->Close();
  return found ? toUtf8(text.GetText()) : std::string();
}

void MainFrame::showPieceCount() {
  SetStatusText(wxString::Format(_("Pieces: %zu"), layout_.pieces().size()), kPiecesField);
}

void MainFrame::placeFromPalette(std::string_view article) {
  if (selectedPieces(layout_).empty()) {
    canvas_->pickUpPiece(article);
    return;
  }
  const EditResult result = extendSelected(layout_, article);
  if (result.refusal)
    show(*result.refusal);
  if (!result.changed())
    return;
  selectionChanged();
  changed();
}

// Commands on the document and the view.

void MainFrame::undo() {
  if (layout_.undo())
    changed();
}

void MainFrame::redo() {
  if (layout_.redo())
    changed();
}

void MainFrame::deleteSelection() {
  if (const std::optional<Notice> refusal = lockGuard(layout_, "delete")) {
    show(*refusal);
    return;
  }
  if (selectionHasGrades(layout_) &&
      !confirm({"Delete", "Selection includes graded pieces. Delete?", true, false}))
    return;
  if (!trassix::deleteSelection(layout_))
    return;
  selectionChanged();
  changed();
}

void MainFrame::selectEverything() {
  selectAll(layout_);
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
  layout_.clearSelection();
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
  layout_.editSettings().units = units;
  appPrefs().units = units;
  writePrefs(appPrefs(), StandardFolders::prefsFile());
  palette_->unitsChanged();
  tellAll();
}

void MainFrame::showUnits() {
  const std::int32_t units = layout_.settings().units;
  GetMenuBar()->Check(kUnitsMm + (units >= kMillimetres && units <= kInches ? units : 0), true);
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
