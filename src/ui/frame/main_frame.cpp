#include "ui/frame/main_frame.h"

#include "app/desktop/frame_trace.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/app_prefs.h"
#include "editing/canvas/canvas_tool.h"
#include "host/command_ids.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command_bars.h"
#include "ui/commands/command_table.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/experience_dialog.h"
#include "ui/docks/dock_area.h"
#include "ui/frame/plan_drop.h"
#include "ui/frame/program_icon.h"
#include "ui/frame/side_panels.h"
#include "ui/frame/status_line.h"
#include "ui/frame/window_place.h"
#include "ui/frame/window_title.h"
#include "ui/palette/palette_panel.h"
#include "ui/properties/properties_panel.h"
#include "ui/widgets/remembered_look.h"
#include "ui/widgets/sash_rule.h"
#include "ui/widgets/utf8.h"

#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/toolbar.h>

namespace trassix {

namespace {

const wxSize kSize(1400, 900);
constexpr int kPaletteWidth = 235;
constexpr int kPaletteMinWidth = 150;
constexpr int kPropertiesWidth = 280;
constexpr int kInnerMinWidth = 200;

} // namespace

MainFrame::MainFrame()
    : wxFrame(nullptr, wxID_ANY, WindowTitle::kBase, wxDefaultPosition, kSize),
      questions_(*this, [this](Point world) { return canvas_->onScreen(world); }),
      workspace_(plan_, questions_, clipboard_) {
  SetSize(FromDIP(kSize)); // pixels grow with the display's resolution
  FrameTrace::write("A: wxFrame base constructed");
  SetIcons(programIcon());
  title_ = std::make_unique<WindowTitle>(*this, workspace_);
  docks_ = std::make_unique<DockArea>();
  bars_ = std::make_unique<CommandBars>(*this, workspace_, *docks_);
  bars_->buildMenuBar();
  FrameTrace::write("B: MenuBar done");
  bars_->buildToolBar();
  FrameTrace::write("C: ToolBar done");
  buildPanels();
  FrameTrace::write("D: Panels done");
  status_ = std::make_unique<StatusLine>(*this, workspace_);
  FrameTrace::write("E: StatusBar done");
  placeWindow(*this, kSize);
  FrameTrace::write("F: MainFrame constructor complete");

  desk_.reset(new Desk{*this, workspace_, *canvas_, *palette_, *docks_,
                       PlanFiles(*this, workspace_, *canvas_)});
  bindCommands();
  SetDropTarget(new PlanDrop(*this, desk_->files));
  // Tools that cannot be used yet look so from the start and are laid out once only.
  GetToolBar()->UpdateWindowUI();
  // Without a focus the keys of the menus would wait for the first click.
  canvas_->SetFocus();
  readPreferences();
}

MainFrame::~MainFrame() {
  root_->Destroy(); // the panels follow the workspace, which goes before the toolkit's children
}

void MainFrame::buildPanels() {
  FrameTrace::write("BuildPanels: start");
  root_ = new wxPanel(this);
  FrameTrace::write("BuildPanels: root panel created");
  auto* outer = makeSplitter(root_, "outerSplitter");
  palette_ =
      new PalettePanel(outer, workspace_,
                       {[this](const Carried& what) { canvas_->drag(what); },
                        [this](const Carried& what) { canvas_->use(what); },
                        [this](const std::optional<Offer>& what) { canvas_->canvas().offer(what); },
                        [this](int step) { return canvas_->canvas().flipOffered(step); }});
  palette_->SetMinSize(FromDIP(wxSize(kPaletteMinWidth, -1)));
  FrameTrace::write("BuildPanels: palette created");
  auto* inner = makeSplitter(outer, "innerSplitter");
  FrameTrace::write("BuildPanels: splitter created");
  canvas_ = new CanvasPanel(inner, workspace_);
  FrameTrace::write("BuildPanels: canvas created");
  docks_->surround(*canvas_, workspace_);
  docks_->goOnTo(*palette_);
  properties_ = new PropertiesPanel(inner, workspace_);
  docks_->goOnTo(*properties_);
  FrameTrace::write("BuildPanels: properties created");
  inner->SplitVertically(canvas_, properties_, -FromDIP(kPropertiesWidth));
  outer->SplitVertically(palette_, inner, FromDIP(kPaletteWidth));
  sides_ = std::make_unique<SidePanels>(workspace_);
  sides_->add(*inner, *properties_, &EditorSwitches::properties, FromDIP(kPropertiesWidth),
              FromDIP(kInnerMinWidth));
  sides_->add(*outer, *palette_, &EditorSwitches::palette, FromDIP(kPaletteWidth),
              FromDIP(kPaletteMinWidth));
  FrameTrace::write("BuildPanels: split done");
  FrameTrace::write("BuildPanels: adding to sizer");
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  sizer->Add(outer, wxSizerFlags(1).Expand());
  FrameTrace::write("BuildPanels: outerSplit added");
  root_->SetSizer(sizer);
  FrameTrace::write("BuildPanels: sizer set");
  root_->Layout();
  FrameTrace::write("BuildPanels: layout done");
  MigrateLegacyUserFiles();
  palette_->populate();
  FrameTrace::write("BuildPanels: palette populated");
  refreshTitle();
}

void MainFrame::readPreferences() {
  readPrefsOrMigrate(appPrefs(), StandardFolders::prefsFile(), StandardFolders::legacyPrefsFile());
  workspace_.setUnits(appPrefs().units);
  workspace_.setSwitches(rememberedLook(workspace_.switches()));
  if (!appPrefs().asked)
    askExperienceOnceRunning();
}

void MainFrame::bindCommands() {
  for (const Command* command : commands()) {
    if (command->available())
      Bind(
          wxEVT_MENU, [this, command](wxCommandEvent&) { run(*command); }, command->id);
    Bind(
        wxEVT_UPDATE_UI,
        [this, command](wxUpdateUIEvent& event) {
          const char* why = whyUnusable(*command, canvas_->canvas().site());
          event.Enable(why == nullptr);
          bars_->tellUnusable(*command, why);
        },
        command->id);
  }
  Bind(wxEVT_CLOSE_WINDOW, &MainFrame::onClose, this);
  Bind(wxEVT_CHAR_HOOK, &MainFrame::onCharHook, this);
  // Some toolkits pass the hook over while the mouse is captured, as it is under something carried.
  canvas_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    canvas_->HasCapture() ? onCharHook(event) : event.Skip();
  });
  // While something is carried the search would not hear of Enter either.
  canvas_->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
    event.Skip(canvas_->HasCapture() || !palette_->takeDigit(event));
  });
  // Other programs may have put something on the clipboard, and so may a field of this window.
  const auto look = [this] { canvas_->canvas().site().clipboard.look(clipboard_); };
  Bind(wxEVT_ACTIVATE, [this, look](wxActivateEvent& event) {
    event.Skip();
    if (event.GetActive())
      CallAfter(look);
  });
  Bind(wxEVT_MENU_OPEN, [look](wxMenuEvent& event) {
    event.Skip();
    if (!event.IsPopup())
      look();
  });
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
  command.perform(*desk_);
}

void MainFrame::onCharHook(wxKeyEvent& event) {
  // Controls may be typed into, so they keep these keys.
  if (dynamic_cast<wxControl*>(FindFocus()))
    return event.Skip();
  const Command* plain = commandOfPlainKey(event.GetKeyCode());
  if (plain && (event.GetModifiers() & ~wxMOD_SHIFT) == 0)
    return run(*plain);
  if (const char* why = whyInVain(event))
    return workspace_.setHint(toUtf8(wxGetTranslation(why)));
  event.Skip();
}

const char* MainFrame::whyInVain(const wxKeyEvent& event) {
  // Modes have uses of their own for keys, and to undo while something is carried is to put it
  // back.
  Canvas& canvas = canvas_->canvas();
  if (workspace_.switches().mode != ToolMode::Select || canvas.wantsCapture())
    return nullptr;
  const Command* command = commandOfKeys(event);
  if (command && command->id == kPaste)
    canvas.site().clipboard.look(clipboard_);
  return command ? whyUnusable(*command, canvas.site()) : nullptr;
}

void MainFrame::onClose(wxCloseEvent& event) {
  if (event.CanVeto() && properties_)
    properties_->enterPending();
  if (event.CanVeto() && !promptUnsaved()) {
    event.Veto();
    return;
  }
  canvas_->canvas().cancel();
  rememberPlace(*this);
  desk_->files.rescue().end();
  Destroy();
}

void MainFrame::refreshProperties() {
  if (properties_)
    properties_->recompute();
}

bool MainFrame::loadLayout(const std::filesystem::path& path) {
  return desk_->files.load(path);
}

bool MainFrame::promptUnsaved() {
  return desk_->files.promptUnsaved();
}

PlanFiles& MainFrame::files() {
  return desk_->files;
}

void MainFrame::keepUnsaved() {
  if (properties_)
    properties_->enterPending();
  desk_->files.rescue().end();
}

void MainFrame::refreshTitle() {
  title_->refresh();
}

} // namespace trassix
