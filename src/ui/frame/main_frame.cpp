#include "ui/frame/main_frame.h"

#include "app/desktop/frame_trace.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/app_prefs.h"
#include "host/command_ids.h"
#include "measures/measure_format.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command_table.h"
#include "ui/dialogs/experience_dialog.h"
#include "ui/frame/program_icon.h"
#include "ui/palette/palette_panel.h"
#include "ui/properties/properties_panel.h"
#include "ui/widgets/sash_rule.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"

#include <wx/display.h>
#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

const wxSize kSize(1400, 900);
constexpr int kPaletteWidth = 235;
constexpr int kPaletteMinWidth = 150;
constexpr int kPropertiesWidth = 280;
constexpr int kInnerMinWidth = 200;
constexpr int kMarginMm = 15;
constexpr std::size_t kLongestTitle = 200; ///< in characters

wxSplitterWindow* makeSplitter(wxWindow* parent, const wxString& name) {
  return new wxSplitterWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                              wxSP_NOBORDER | wxSP_3DSASH | wxSP_LIVE_UPDATE, name);
}

/// The arrow for tools without room is laid out by the toolkit before it is shown, which is in
/// vain, so it appears where it was the last time. A change of a label has the bar laid out once
/// more.
void layOutAgain(wxToolBarToolBase& tool) {
  const wxString label = tool.GetLabel();
  tool.SetLabel(label + " ");
  tool.SetLabel(label);
}

} // namespace

MainFrame::MainFrame() : wxFrame(nullptr, wxID_ANY, kBaseTitle, wxDefaultPosition, kSize) {
  SetSize(FromDIP(kSize)); // pixels grow with the display's resolution
  FrameTrace::write("A: wxFrame base constructed");
  SetIcons(programIcon());
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
  // Tools that cannot be used yet look so from the start and are laid out once only.
  GetToolBar()->UpdateWindowUI();
  // Without a focus the keys of the menus would wait for the first click.
  canvas_->SetFocus();
  readPreferences();
}

MainFrame::~MainFrame() = default;

void MainFrame::buildMenuBar() {
  SetMenuBar(makeMenuBar());
}

void MainFrame::buildToolBar() {
  wxToolBar* bar = CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NOICONS);
  fillToolBar(*bar);
  Bind(wxEVT_SIZE, [this, bar, width = 0](wxSizeEvent& event) mutable {
    event.Skip();
    if (std::exchange(width, event.GetSize().x) != event.GetSize().x)
      CallAfter([bar] { layOutAgain(*bar->GetToolByPos(0)); });
  });
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
                               [this] { return plan_.layout().settings().units; }});
  palette_->SetMinSize(FromDIP(wxSize(kPaletteMinWidth, -1)));
  FrameTrace::write("BuildPanels: palette created");
  auto* inner = makeSplitter(outer, "innerSplitter");
  FrameTrace::write("BuildPanels: splitter created");
  canvas_ = new CanvasPanel(inner, *this);
  FrameTrace::write("BuildPanels: canvas created");
  properties_ = new PropertiesPanel(inner, *this);
  FrameTrace::write("BuildPanels: properties created");
  const int propertiesWidth = FromDIP(kPropertiesWidth);
  inner->SetMinimumPaneSize(FromDIP(kInnerMinWidth));
  inner->SetSashGravity(1.0);
  inner->SplitVertically(canvas_, properties_, -propertiesWidth);
  keepSash(*inner, [propertiesWidth](int width) { return width - propertiesWidth; });
  outer->SetMinimumPaneSize(FromDIP(kPaletteMinWidth));
  outer->SetSashGravity(0.0);
  outer->SplitVertically(palette_, inner, FromDIP(kPaletteWidth));
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
  const wxRect place = wxRect(size).CentreIn(area);
  SetSize(place);
#ifdef __WXGTK__
  // Its decorations come on top of its size and are taken off again.
  showWhole(*this);
  inPlace_ = false;
  Bind(wxEVT_SIZE, [this, place, client = GetClientSize()](wxSizeEvent& event) {
    event.Skip();
    if (inPlace_ || !IsShown() || GetSize() == place.GetSize())
      return;
    if (GetClientSize() != client)
      inPlace_ = true; // the window manager has a size of its own for it
    else
      CallAfter([this, place] { // it cannot become smaller before this size has settled
        SetSize(place);
        inPlace_ = true;
      });
  });
#endif
}

void MainFrame::readPreferences() {
  readPrefsOrMigrate(appPrefs(), StandardFolders::prefsFile(), StandardFolders::legacyPrefsFile());
  plan_.layout().editSettings().units = appPrefs().units;
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
          event.Enable(commandEnabled(command, plan_.layout()));
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
  // What is typed but not entered yet is meant to be saved, exported or undone too.
  if (properties_)
    properties_->enterPending();
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
  if (event.CanVeto() && properties_)
    properties_->enterPending();
  if (event.CanVeto() && !promptUnsaved()) {
    event.Veto();
    return;
  }
  canvas_->canvas().cancel();
  Destroy();
}

void MainFrame::refreshTitle() {
  wxString name = fromUtf8(plan_.name());
  if (name.empty() && !plan_.file().empty())
    name = fromUtf8(plan_.file().stem().u8string());
  wxString title = kBaseTitle;
  const wxString mark = plan_.unsaved() ? " *" : "";
  if (!name.empty()) {
    title += " - ";
    title += shortened(name, kLongestTitle - title.length() - mark.length());
  }
  SetTitle(title + mark);
}

} // namespace trassix
