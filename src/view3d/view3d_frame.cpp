#include "view3d/view3d_frame.h"

#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"
#include "app/services/text_file.h"
#include "document/layout.h"
#include "document/open_plan.h"
#include "host/command_ids.h"
#include "host/workspace.h"
#include "measures/measure_format.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/save_box.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"
#include "view3d/scene/glb_writer.h"
#include "view3d/track_gl_canvas.h"

#include <wx/app.h>
#include <wx/choicdlg.h>
#include <wx/choice.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/mstream.h>
#include <wx/sizer.h>
#include <wx/slider.h>
#include <wx/stattext.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace trassix {

namespace {

const std::string kTopic = "view3DWindow";
const wxSize kUsualSize(1100, 760);
constexpr int kCutSteps = 200;
constexpr int kSpeeds[] = {20, 40, 60, 100, 160}; // km/h
constexpr int kUsualSpeed = 2;
constexpr int kLargestPicture = 4; // times the window

enum Id : int {
  kSavePicture = wxID_HIGHEST + 1,
  kExportGltf,
  kLookAll,
  kLookTop,
  kLookFront,
  kLookSide,
  kLookOblique,
  kShowScenery,
  kShowSupports,
  kShowLabels,
  kShowGradeColors,
  kChooseLevels,
  kCutAt,
  kRideAlong,
};

} // namespace

/// A command of this window: in a menu, in the tool bar, or both.
struct View3DFrame::Row {
  enum class Menu : std::uint8_t { File, Edit, View, None };

  int id;
  Menu menu;
  const char* text;
  const char* tool; ///< null when it is none
  const char* help;
  void (*perform)(View3DFrame&);
  bool SceneView::*shows = nullptr; ///< of a check command
};

// clang-format off
const View3DFrame::Row View3DFrame::kRows[] = {
    {kSavePicture, Row::Menu::File, wxTRANSLATE("&Save Picture...\tCtrl+S"), nullptr,
     wxTRANSLATE("Write the picture as a PNG file, up to four times as large as the window"),
     [](View3DFrame& frame) { frame.savePicture(); }},
    {kExportGltf, Row::Menu::File, wxTRANSLATE("&Export glTF..."), nullptr,
     wxTRANSLATE("Write what is shown as a 3D model that other programs open"),
     [](View3DFrame& frame) { frame.exportGltf(); }},
    {wxID_CLOSE, Row::Menu::File, wxTRANSLATE("&Close\tCtrl+W"), nullptr,
     wxTRANSLATE("Close this window; the plan stays open"),
     [](View3DFrame& frame) { frame.Close(); }},
    {kUndo, Row::Menu::Edit, wxTRANSLATE("&Undo\tCtrl+Z"), nullptr,
     wxTRANSLATE("Take the last change of the plan back"),
     [](View3DFrame& frame) { frame.passOn(kUndo); }},
    {kRedo, Row::Menu::Edit, wxTRANSLATE("&Redo\tCtrl+Y"), nullptr,
     wxTRANSLATE("Make the change that was taken back again"),
     [](View3DFrame& frame) { frame.passOn(kRedo); }},
    {kLookAll, Row::Menu::View, wxTRANSLATE("&Whole Layout\tHome"), wxTRANSLATE("Fit"),
     wxTRANSLATE("All of the layout, from where it is looked at (Home)"),
     [](View3DFrame& frame) { frame.canvas_->fit(); }},
    {kLookTop, Row::Menu::View, wxTRANSLATE("From &Above\t1"), nullptr,
     wxTRANSLATE("From above, as on the plan (1)"),
     [](View3DFrame& frame) { frame.canvas_->look(CameraView::Top); }},
    {kLookFront, Row::Menu::View, wxTRANSLATE("From the &Front\t2"), nullptr,
     wxTRANSLATE("From the front edge (2)"),
     [](View3DFrame& frame) { frame.canvas_->look(CameraView::Front); }},
    {kLookSide, Row::Menu::View, wxTRANSLATE("From the &Side\t3"), nullptr,
     wxTRANSLATE("From the right side (3)"),
     [](View3DFrame& frame) { frame.canvas_->look(CameraView::Side); }},
    {kLookOblique, Row::Menu::View, wxTRANSLATE("&Obliquely\t4"), nullptr,
     wxTRANSLATE("Obliquely from above (4)"),
     [](View3DFrame& frame) { frame.canvas_->look(CameraView::Oblique); }},
    {kShowScenery, Row::Menu::View, wxTRANSLATE("S&cenery"), wxTRANSLATE("Scenery"),
     wxTRANSLATE("Houses, trees and all other scenery"), nullptr, &SceneView::scenery},
    {kShowSupports, Row::Menu::View, wxTRANSLATE("Su&pports"), wxTRANSLATE("Supports"),
     wxTRANSLATE("What raised track stands on"), nullptr, &SceneView::supports},
    {kShowLabels, Row::Menu::View, wxTRANSLATE("&Labels"), wxTRANSLATE("Labels"),
     wxTRANSLATE("The labels of the plan"), nullptr, &SceneView::labels},
    {kShowGradeColors, Row::Menu::View, wxTRANSLATE("&Grades"), wxTRANSLATE("Grades"),
     wxTRANSLATE("Colours between the rails, by how steep the track is"), nullptr,
     &SceneView::grades},
    {kChooseLevels, Row::Menu::View, wxTRANSLATE("Le&vels..."), wxTRANSLATE("Levels"),
     wxTRANSLATE("Which levels are shown in this window"),
     [](View3DFrame& frame) { frame.chooseLevels(); }},
    {kRideAlong, Row::Menu::View, wxTRANSLATE("&Ride Along\tCtrl+R"), wxTRANSLATE("Ride Along"),
     wxTRANSLATE("Along the track from the selected piece, with the eyes of the driver"),
     [](View3DFrame& frame) { frame.rideAlong(); }},
};
// clang-format on

View3DFrame::View3DFrame(wxWindow* parent, Workspace& workspace)
    : wxFrame(parent, wxID_ANY, _("3D View"), wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE, "view3DFrame"),
      workspace_(workspace) {
  SetExtraStyle(GetExtraStyle() | wxWS_EX_BLOCK_EVENTS); // keys and menus are not the main window's
  SetIcons(static_cast<wxTopLevelWindow*>(parent)->GetIcons());
  if (TrackGLCanvas::isPossible())
    makeCanvas();
  if (canvas_ != nullptr && canvas_->problem().empty()) {
    build();
  } else {
    auto* text = new wxStaticText(
        this, wxID_ANY,
        (canvas_ ? canvas_->problem() : _("This display has no OpenGL.")) + "\n\n" +
            _("There is no 3D picture without it. The plan itself needs none."),
        wxDefaultPosition, wxDefaultSize, wxALIGN_CENTRE_HORIZONTAL, "noGL");
    if (canvas_ != nullptr)
      canvas_->Destroy();
    canvas_ = nullptr;
    auto* middle = new wxBoxSizer(wxVERTICAL);
    middle->AddStretchSpacer();
    middle->Add(text, wxSizerFlags().Centre().Border(wxALL, FromDIP(20)));
    middle->AddStretchSpacer();
    SetSizer(middle);
  }
  place();
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) {
    remember();
    if (canvas_)
      canvas_->leavePlan(); // it may go before the toolkit gets round to this window
    Destroy();
  });
}

void View3DFrame::makeCanvas() {
  canvas_ = new TrackGLCanvas(this, workspace_, [this] {
    follow();
    if (canvas_->isToBeReplaced())
      CallAfter([this] {
        canvas_->leavePlan();
        canvas_->Destroy();
        makeCanvas();
        SendSizeEvent();
        canvas_->SetFocus();
      });
  });
}

void View3DFrame::build() {
  auto* file = new wxMenu;
  auto* edit = new wxMenu;
  auto* view = new wxMenu;
  wxToolBar* bar = CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NOICONS);
  for (const Row& row : kRows) {
    const wxItemKind kind = row.shows ? wxITEM_CHECK : wxITEM_NORMAL;
    const wxString help = wxGetTranslation(row.help);
    (row.menu == Row::Menu::File   ? file
     : row.menu == Row::Menu::Edit ? edit
                                   : view)
        ->Append(row.id, wxGetTranslation(row.text), help, kind);
    if (row.tool)
      bar->AddTool(row.id, wxGetTranslation(row.tool), wxNullBitmap, help, kind);
    if (row.id == kLookAll || row.id == kChooseLevels)
      bar->AddSeparator();
    Bind(
        wxEVT_MENU, [this, &row](wxCommandEvent&) { run(row); }, row.id);
  }
  auto* menus = new wxMenuBar;
  menus->Append(file, _("&File"));
  menus->Append(edit, _("&Edit"));
  menus->Append(view, _("&View"));
  SetMenuBar(menus);
  speed_ = new wxChoice(bar, wxID_ANY);
  for (const int speed : kSpeeds)
    speed_->Append(wxString::Format(_("%d km/h"), speed));
  speed_->SetSelection(kUsualSpeed);
  speed_->SetToolTip(_("How fast the prototype would ride"));
  speed_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) {
    canvas_->setRideSpeed(speed());
    canvas_->SetFocus();
  });
  bar->AddControl(speed_);
  bar->AddSeparator();
  bar->AddTool(kCutAt, _("Cut"), wxNullBitmap,
               _("Leaves out what is above a height, to look into hidden stations"), wxITEM_CHECK);
  height_ =
      new wxSlider(bar, wxID_ANY, kCutSteps / 2, 0, kCutSteps, wxDefaultPosition,
                   FromDIP(wxSize(140, -1)), wxSL_HORIZONTAL, wxDefaultValidator, "cutHeight");
  height_->SetToolTip(_("The height at which it is cut"));
  bar->AddControl(height_);
  Bind(
      wxEVT_MENU, [this](wxCommandEvent&) { cut(); }, kCutAt);
  height_->Bind(wxEVT_SLIDER, [this](wxCommandEvent&) {
    GetToolBar()->ToggleTool(kCutAt, true);
    cutBefore_ = true;
    cut();
  });
  bar->Realize();
  SetMinClientSize({bar->GetBestSize().x, -1}); // none of its controls is beyond reach
  CreateStatusBar(2);
  const int widths[] = {-1, FromDIP(160)};
  GetStatusBar()->SetStatusWidths(2, widths);
  SetStatusBarPane(-1); // the menus' help would cover the hint
  follow();
  canvas_->SetFocus();
}

/// A command of the main window, which knows what it means there.
void View3DFrame::passOn(int command) {
  wxCommandEvent event(wxEVT_MENU, command);
  GetParent()->GetEventHandler()->ProcessEvent(event);
}

void View3DFrame::run(const Row& row) {
  if (row.shows)
    flip(row.shows);
  else
    row.perform(*this);
  follow();
}

void View3DFrame::flip(bool SceneView::*which) {
  SceneView view = canvas_->view();
  view.*which = !(view.*which);
  canvas_->setView(view);
}

void View3DFrame::chooseLevels() {
  SceneView view = canvas_->view();
  const std::vector<Level>& levels = workspace_.layout().settings().levels;
  wxArrayString names;
  wxArrayInt shown;
  for (std::size_t i = 0; i < levels.size(); ++i) {
    names.Add(fromUtf8(levels[i].name));
    if (levelShown(workspace_.layout(), levels[i].id, view))
      shown.Add(static_cast<int>(i));
  }
  wxMultiChoiceDialog dialog(this, _("Levels shown in this window:"), _("Levels"), names);
  dialog.SetSelections(shown);
  if (dialog.ShowModal() != wxID_OK)
    return;
  const wxArrayInt chosen = dialog.GetSelections();
  for (std::size_t i = 0; i < levels.size(); ++i)
    view.levels[levels[i].id] = chosen.Index(static_cast<int>(i)) != wxNOT_FOUND;
  canvas_->setView(view);
}

void View3DFrame::cut() {
  SceneView view = canvas_->view();
  view.cut.reset();
  if (GetToolBar()->GetToolState(kCutAt)) {
    const Scene::Bounds bounds = canvas_->scene().bounds();
    const double range = bounds.most.z - bounds.least.z;
    if (!std::exchange(cutBefore_, true) && range > 0)
      height_->SetValue(static_cast<int>(kCutSteps * (belowDecks() - bounds.least.z) / range));
    view.cut = bounds.least.z + range * height_->GetValue() / kCutSteps;
  }
  canvas_->setView(view);
  canvas_->SetFocus();
  follow();
}

/// So that the lowest deck that hides something goes; half way up where there is none.
double View3DFrame::belowDecks() {
  constexpr double kThick = 15;
  const Scene& scene = canvas_->scene();
  std::optional<double> lowest;
  for (const auto& [key, batch] : scene.batches)
    if (key.group == SceneGroup::Plates && batch.least.z > kThick)
      lowest = std::min(lowest.value_or(batch.least.z), batch.least.z);
  const Scene::Bounds bounds = scene.bounds();
  return lowest ? *lowest - kThick : (bounds.least.z + bounds.most.z) / 2;
}

double View3DFrame::speed() const {
  return kSpeeds[std::max(speed_->GetSelection(), 0)];
}

void View3DFrame::rideAlong() {
  if (canvas_->isRiding())
    canvas_->endRide();
  else if (!canvas_->startRide(speed()))
    wxMessageBox(_("Select a piece of track first: the ride starts on it."), _("Ride Along"),
                 wxOK | wxICON_INFORMATION, this);
}

void View3DFrame::savePicture() {
  canvas_->haltRide(true);
  askForPicture();
  canvas_->haltRide(false);
}

void View3DFrame::askForPicture() {
  const wxSize size = canvas_->GetClientSize() * canvas_->pixelScale();
  wxArrayString sizes;
  for (int times = 1; times <= kLargestPicture; ++times)
    sizes.Add(wxString::Format(_("%d x %d pixels"), size.x * times, size.y * times));
  wxSingleChoiceDialog dialog(this, _("Size of the picture:"), _("Save Picture"), sizes);
  dialog.SetSelection(1);
  if (dialog.ShowModal() != wxID_OK)
    return;
  const auto file = askWhereToSave(this, {_("Save Picture"), "picture3D", _("Layout.png"),
                                          _("PNG pictures (*.png)|*.png"), ".png"});
  if (file)
    writePicture(*file, dialog.GetSelection() + 1);
}

void View3DFrame::exportGltf() {
  const auto file = askWhereToSave(
      this, {_("Export glTF"), "gltf", _("Layout.glb"), _("glTF models (*.glb)|*.glb"), ".glb"});
  if (file)
    writeGltf(*file);
}

void View3DFrame::writePicture(const std::filesystem::path& file, int times) {
  const wxImage picture = canvas_->picture(times);
  wxMemoryOutputStream png;
  if (!picture.IsOk() || !picture.SaveFile(png, wxBITMAP_TYPE_PNG)) {
    showFailure(this, _("Save Failed"), _("The display's driver gives no picture."), {});
    return;
  }
  std::string bytes(static_cast<std::size_t>(png.GetSize()), '\0');
  png.CopyTo(bytes.data(), bytes.size());
  write(file, bytes);
  canvas_->Refresh(false); // what was drawn last is a part of the picture
}

void View3DFrame::writeGltf(const std::filesystem::path& file) {
  write(file, glbOf(workspace_.layout(), canvas_->scene(), canvas_->view()));
}

void View3DFrame::write(const std::filesystem::path& file, const std::string& bytes) {
  FileReport report;
  const std::string message = writeBytes(file, bytes, &report);
  if (!message.empty())
    showFailure(this, _("Save Failed"), fromUtf8(message), report.reason);
}

/// What is shown, in menus, tool bar and status bar.
void View3DFrame::follow() {
  const SceneView& view = canvas_->view();
  for (const Row& row : kRows)
    if (row.shows) {
      GetMenuBar()->Check(row.id, view.*row.shows);
      GetToolBar()->ToggleTool(row.id, view.*row.shows);
    }
  GetToolBar()->ToggleTool(kCutAt, view.cut.has_value());
  SetStatusText(canvas_->hint(), 0);
  SetStatusText(view.cut ? wxString::Format(_("Cut at %s"),
                                            fromUtf8(formatLength(*view.cut, workspace_.units())))
                         : wxString(),
                1);
}

void View3DFrame::showAgain() {
  if (canvas_)
    canvas_->Refresh(false);
  Iconize(false);
  Show();
  Raise();
}

void View3DFrame::place() {
  const auto kept = ProgramMemory(StandardFolders::memoryFile())
                        .recall(kTopic)
                        .value_or(ProgramMemory::Section::object());
  const auto value = [&](const char* name) { return valueIn<std::int16_t>(kept, name); };
  const auto width = value("width");
  const auto height = value("height");
  wxSize size = FromDIP(width && height ? wxSize(*width, *height) : kUsualSize);
  const int display = wxDisplay::GetFromWindow(GetParent());
  const wxRect room =
      wxDisplay(display == wxNOT_FOUND ? 0U : static_cast<unsigned>(display)).GetClientArea();
  size.DecTo(room.GetSize());
  size.IncTo(FromDIP(wxSize(320, 240)));
  SetSize(size);
  showWhole(*this);
  const auto x = value("x");
  const auto y = value("y");
  const wxPoint corner = x && y ? FromDIP(wxPoint(*x, *y)) : wxPoint(-1, -1);
  if (x && y && wxDisplay::GetFromPoint(corner) != wxNOT_FOUND)
    Move(corner);
  else
    CentreOnParent();
  if (valueIn<bool>(kept, "maximized").value_or(false))
    Maximize();
}

void View3DFrame::remember() const {
  if (IsIconized())
    return;
  // Not worth a word when it fails.
  ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [this](auto& kept) {
    kept["maximized"] = IsMaximized();
    if (IsMaximized())
      return;
    const wxSize size = ToDIP(GetSize());
    const wxPoint corner = ToDIP(GetPosition());
    kept["width"] = size.x;
    kept["height"] = size.y;
    kept["x"] = corner.x;
    kept["y"] = corner.y;
  });
}

namespace {

/// Closed, and only waiting for the toolkit to get round to it.
bool isGoing(wxWindow* window) {
  return wxTheApp->IsScheduledForDestruction(window);
}

} // namespace

View3DWindow::~View3DWindow() {
  if (frame_ && !isGoing(frame_))
    delete frame_.get(); // at once: it follows the workspace
}

void View3DWindow::show(wxWindow& parent, Workspace& workspace) {
  if (!frame_ || isGoing(frame_))
    frame_ = new View3DFrame(&parent, workspace);
  frame_->showAgain();
}

} // namespace trassix
