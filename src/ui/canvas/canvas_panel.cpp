#include "ui/canvas/canvas_panel.h"

#include "editing/canvas/canvas_tool.h"
#include "editing/selection/content_box.h"
#include "host/command_ids.h"
#include "ui/canvas/gc_surface.h"
#include "ui/canvas/level_switcher.h"
#include "ui/canvas/toolkit_input.h"
#include "ui/canvas/welcome.h"
#include "ui/widgets/system_theme.h"

#include <wx/dcbuffer.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

/// Where a piece appears that was picked up without pointing at the plan.
constexpr Point kPickUpPoint{300, 200};

/// How long something carried rests at the edge before the plan scrolls, and then for each step.
constexpr int kEdgeRestMs = 300;
constexpr int kEdgeScrollMs = 30;

/// After the last step of zooming, until the picture is sharp.
constexpr int kSharpMs = 25;

Key keyOf(const wxKeyEvent& event) {
  if (event.ControlDown()) {
    switch (event.GetKeyCode()) {
    case 'C':
      return Key::Copy;
    case 'X':
      return Key::Cut;
    case 'V':
      return Key::Paste;
    case 'D':
      return Key::Duplicate;
    default:
      return Key::Other;
    }
  }
  return plainKey(event.GetKeyCode());
}

} // namespace

CanvasPanel::CanvasPanel(wxWindow* parent, Workspace& workspace)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
              wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE, "canvas"),
      PlanObserver(workspace), canvas_(workspace) {
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  canvas_.setTheme(systemTheme());
  Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    canvas_.setTheme(systemTheme());
    Refresh(false);
  });
  Bind(wxEVT_PAINT, &CanvasPanel::onPaint, this);
  for (const auto& type :
       {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_UP,
        wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP, wxEVT_RIGHT_DCLICK, wxEVT_MOTION})
    Bind(type, &CanvasPanel::onMouse, this);
  Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
    canvas_.leave();
    event.Skip();
  });
  Bind(wxEVT_MOUSEWHEEL, &CanvasPanel::onWheel, this);
  Bind(wxEVT_KEY_DOWN, &CanvasPanel::onKeyDown, this);
  Bind(wxEVT_KEY_UP, &CanvasPanel::onKeyUp, this);
  Bind(wxEVT_MOUSE_CAPTURE_LOST, &CanvasPanel::onCaptureLost, this);
  Bind(wxEVT_SIZE, &CanvasPanel::onSize, this);
  wxAcceleratorEntry entries[] = {{wxACCEL_NORMAL, WXK_DELETE, kDeleteSelection},
                                  {wxACCEL_NORMAL, WXK_NUMPAD_DELETE, kDeleteSelection},
                                  {wxACCEL_NORMAL, WXK_BACK, kDeleteSelection}};
  SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(std::size(entries)), entries));
  Bind(
      wxEVT_MENU,
      [this](wxCommandEvent& event) {
        // A polygon under way takes its last point back instead.
        event.Skip(!canvas_.key({Key::Backspace}));
      },
      kDeleteSelection);
  Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
    holdSpace(false);
    event.Skip();
  });
  edgeTimer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
    if (!canvas_.carrying() || !canvas_.scrollAtEdge())
      edgeTimer_.Stop();
    else if (edgeTimer_.GetInterval() != kEdgeScrollMs)
      edgeTimer_.Start(kEdgeScrollMs);
  });
  sharpTimer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
    sharpen_ = true;
    Refresh(false);
  });
  wxGetTopLevelParent(this)->Bind(wxEVT_ACTIVATE, &CanvasPanel::onActivate, this);
  new LevelSwitcher(this, workspace);
  welcome_ = new Welcome(this);
}

double CanvasPanel::pixelScale() const {
  return FromDIP(1000) / 1000.0;
}

Point CanvasPanel::onCanvas(wxPoint px) const {
  return {px.x / pixelScale(), px.y / pixelScale()};
}

PointerInput CanvasPanel::inputAt(Point px) const {
  PointerInput input;
  input.px = px;
  input.world = canvas_.view().toWorld(input.px);
  input.ctrl = wxGetKeyState(WXK_CONTROL);
  input.shift = wxGetKeyState(WXK_SHIFT);
  input.alt = wxGetKeyState(WXK_ALT);
  return input;
}

PointerInput CanvasPanel::inputOf(const wxMouseEvent& event) const {
  PointerInput input = inputAt(onCanvas(event.GetPosition()));
  input.ctrl = event.ControlDown();
  input.shift = event.ShiftDown();
  input.alt = event.AltDown();
  return input;
}

bool CanvasPanel::invites() {
  const trassix::Layout& layout = canvas_.site().layout();
  return layout.pieceCount() == 0 && !contentBox(layout) && !canvas_.wantsCapture() &&
         canvas_.site().workspace.switches().mode == ToolMode::Select;
}

void CanvasPanel::update() {
  syncCapture();
  welcome_->Show(invites());
  if (const CursorShape wanted = canvas_.cursor(); wanted != cursorShown_) {
    cursorShown_ = wanted;
    SetCursor(wxCursor(stockCursor(wanted)));
  }
  Refresh(false);
}

void CanvasPanel::syncCapture() {
  const bool wanted = canvas_.wantsCapture();
  if (wanted && !HasCapture())
    CaptureMouse();
  else if (!wanted && HasCapture())
    ReleaseMouse();
}

PointerInput CanvasPanel::inputAtPointer() const {
  return inputAt(onCanvas(ScreenToClient(wxGetMousePosition())));
}

void CanvasPanel::drag(const Carried& what) {
  canvas_.carry(what, inputAtPointer(), true);
  tookUp();
}

void CanvasPanel::pickUp(const Carried& what) {
  canvas_.carry(what, inputAt(kPickUpPoint), false);
  tookUp();
}

void CanvasPanel::use(const Carried& what) {
  if (!canvas_.goOnWith(what))
    pickUp(what);
}

wxPoint CanvasPanel::onScreen(Point world) const {
  const Point px = canvas_.view().toScreen(world);
  return ClientToScreen(wxPoint(static_cast<int>(px.x), static_cast<int>(px.y)));
}

void CanvasPanel::planReplaced() {
  canvas_.documentReplaced();
  update();
}

void CanvasPanel::selectionChanged() {
  canvas_.renewHint();
  update();
}

void CanvasPanel::switchesChanged() {
  canvas_.modeChanged();
  update();
}

void CanvasPanel::tookUp() {
  SetFocus();
  update();
}

void CanvasPanel::onMouse(wxMouseEvent& event) {
  const PointerInput input = inputOf(event);
  const auto button = event.GetButton() == wxMOUSE_BTN_RIGHT    ? Canvas::Button::Right
                      : event.GetButton() == wxMOUSE_BTN_MIDDLE ? Canvas::Button::Middle
                                                                : Canvas::Button::Left;
  if (event.LeftDClick())
    canvas_.doubleClick(input);
  else if (event.ButtonDown() || event.ButtonDClick()) {
    SetFocus();
    canvas_.press(button, input);
  } else if (event.ButtonUp()) {
    // Let go first: a drop may put a question, whose window needs the mouse.
    if (HasCapture())
      ReleaseMouse();
    canvas_.release(button, input);
  } else
    canvas_.move(input);
  syncCapture();
  watchEdge();
  if (canvas_.cursor() != cursorShown_)
    update();
}

void CanvasPanel::watchEdge() {
  if (!canvas_.carrying())
    edgeTimer_.Stop();
  else if (!edgeTimer_.IsRunning())
    edgeTimer_.Start(kEdgeRestMs);
}

void CanvasPanel::onWheel(wxMouseEvent& event) {
  if (event.GetWheelAxis() == wxMOUSE_WHEEL_VERTICAL)
    canvas_.wheel(inputOf(event), static_cast<double>(event.GetWheelRotation()) /
                                      std::max(event.GetWheelDelta(), 1));
}

void CanvasPanel::holdSpace(bool down) {
  canvas_.setSpace(down);
  if (canvas_.cursor() != cursorShown_)
    update();
}

void CanvasPanel::onKeyDown(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_SPACE)
    return holdSpace(true);
  if (!canvas_.key({keyOf(event), event.ShiftDown()}))
    event.Skip();
  syncCapture();
}

void CanvasPanel::onKeyUp(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_SPACE)
    holdSpace(false);
  else
    event.Skip();
}

void CanvasPanel::onCaptureLost(wxMouseCaptureLostEvent&) {
  canvas_.cancel();
}

void CanvasPanel::onActivate(wxActivateEvent& event) {
  // Something on the pointer would keep the mouse from the window that the user went to.
  if (!event.GetActive() && canvas_.wantsCapture())
    canvas_.cancel();
  event.Skip();
}

void CanvasPanel::onSize(wxSizeEvent& event) {
  const wxSize size = GetClientSize();
  canvas_.resize({size.x / pixelScale(), size.y / pixelScale()});
  Refresh(false);
  event.Skip();
}

void CanvasPanel::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  const wxSize size = GetClientSize();
  if (size.x <= 0 || size.y <= 0)
    return;
  // While the wheel turns the scaled picture will do, which is sharp again when it rests.
  const bool hurried = !std::exchange(sharpen_, false);
  const bool scaled = picture_.draw(dc, {size, GetContentScaleFactor(), pixelScale()}, hurried);
  // Only a further step of zooming puts it off.
  const double zoom = canvas_.view().zoom();
  if (scaled && (std::exchange(scaledTo_, zoom) != zoom || !sharpTimer_.IsRunning()))
    sharpTimer_.StartOnce(kSharpMs);
  const bool bodyDrawn = picture_.drawBody(dc);
  const std::unique_ptr<wxGraphicsContext> context(planRenderer().CreateContext(dc));
  context->Scale(pixelScale(), pixelScale());
  GcSurface surface(*context, pixelScale() * GetContentScaleFactor(), &picture_.texts());
  canvas_.paintOverlay(surface, !bodyDrawn);
  if (welcome_->IsShown())
    Welcome::paintWords(surface, {size.x / pixelScale(), size.y / pixelScale()});
}

} // namespace trassix
