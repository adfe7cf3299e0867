#include "ui/docks/profile_panel.h"

#include "editing/profile/height_profile.h"
#include "host/workspace.h"
#include "ui/canvas/gc_surface.h"
#include "ui/canvas/toolkit_input.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dcbuffer.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <functional>

namespace trassix {

namespace {

/// Where a height is typed, over its handle. It goes when the focus does.
class HeightEntry : public wxTextCtrl {
 public:
  /// `enter` gives true when the text was taken; `ended` is called once, and may destroy this.
  HeightEntry(wxWindow* parent, const wxString& text, std::function<bool(const wxString&)> enter,
              std::function<void(bool byKey)> ended)
      : wxTextCtrl(parent, wxID_ANY, text, wxDefaultPosition, parent->FromDIP(wxSize(96, -1)),
                   wxTE_PROCESS_ENTER, wxDefaultValidator, "heightEntry"),
        enter_(std::move(enter)), ended_(std::move(ended)) {
    Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) {
      if (enter_(GetValue()))
        ended_(true);
      else
        SelectAll();
    });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
      if (event.GetKeyCode() == WXK_ESCAPE)
        ended_(true);
      else
        event.Skip();
    });
    Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
      event.Skip();
      ended_(false);
    });
  }

 private:
  std::function<bool(const wxString&)> enter_;
  std::function<void(bool)> ended_;
};

/// The picture: turns the toolkit's events into plain input for `HeightProfile` and shows what it
/// draws.
class ProfileWindow : public wxWindow, private PlanObserver {
 public:
  ProfileWindow(wxWindow* parent, Workspace& workspace, std::function<void()> shown)
      : wxWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE, "heightProfile"),
        PlanObserver(workspace), workspace_(workspace), profile_(workspace),
        shown_(std::move(shown)) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Bind(wxEVT_PAINT, &ProfileWindow::onPaint, this);
    for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MOTION})
      Bind(type, &ProfileWindow::onMouse, this);
    Bind(wxEVT_RIGHT_DOWN, [this](wxMouseEvent&) { cancel(); });
    Bind(wxEVT_MOUSEWHEEL, [this](wxMouseEvent& event) {
      if (event.GetWheelAxis() == wxMOUSE_WHEEL_VERTICAL)
        profile_.wheel(inputOf(event), static_cast<double>(event.GetWheelRotation()) /
                                           std::max(event.GetWheelDelta(), 1));
    });
    Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
      profile_.leave();
      event.Skip();
    });
    // Before menus and docks take them. While the mouse is held some toolkits go straight to the
    // window.
    Bind(wxEVT_CHAR_HOOK, &ProfileWindow::onKey, this);
    Bind(wxEVT_KEY_DOWN, &ProfileWindow::onKey, this);
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { profile_.cancel(); });
    wxGetTopLevelParent(this)->Bind(wxEVT_ACTIVATE, &ProfileWindow::onActivate, this);
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
      const wxSize size = GetClientSize();
      profile_.resize({size.x / pixelScale(), size.y / pixelScale()});
      event.Skip();
    });
    for (const auto& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS})
      Bind(type, [this](wxFocusEvent& event) {
        profile_.focus(event.GetEventType() == wxEVT_SET_FOCUS);
        event.Skip();
      });
  }
  ~ProfileWindow() override {
    if (HasCapture())
      ReleaseMouse();
    workspace_.point(-1);
  }

  HeightProfile& profile() { return profile_; }

 private:
  void planChanged() override { renew(); }
  void selectionChanged() override { renew(); }
  void planReplaced() override {
    profile_.planReplaced();
    syncCapture();
  }
  void unitsChanged() override { Refresh(false); }
  void switchesChanged() override { profile_.switchesChanged(); }
  void pictureChanged() override { Refresh(false); }
  void pointedChanged() override { Refresh(false); }

  void renew() {
    profile_.renew();
    syncCapture();
  }
  void cancel() {
    profile_.cancel();
    syncCapture();
  }

  void onActivate(wxActivateEvent& event) {
    // A handle that is held would keep the mouse from the window that the user went to.
    if (!event.GetActive() && profile_.wantsCapture())
      cancel();
    event.Skip();
  }

  double pixelScale() const { return FromDIP(1000) / 1000.0; }
  PointerInput inputOf(const wxMouseEvent& event) const {
    PointerInput input;
    input.px = {event.GetX() / pixelScale(), event.GetY() / pixelScale()};
    input.ctrl = event.ControlDown();
    input.shift = event.ShiftDown();
    return input;
  }

  void syncCapture() {
    if (profile_.wantsCapture() && !HasCapture())
      CaptureMouse();
    else if (!profile_.wantsCapture() && HasCapture())
      ReleaseMouse();
  }

  void onMouse(wxMouseEvent& event) {
    const PointerInput input = inputOf(event);
    if (event.LeftDClick() && openEntry(profile_.entryAt(input.px)))
      return syncCapture();
    if (event.ButtonDown() || event.LeftDClick()) {
      SetFocus();
      profile_.press(input);
    } else if (event.ButtonUp()) {
      if (HasCapture())
        ReleaseMouse();
      profile_.release(input);
    } else {
      profile_.move(input);
    }
    syncCapture();
    SetCursor(wxCursor(stockCursor(profile_.cursor())));
    workspace_.setHint(profile_.hint());
  }

  void onKey(wxKeyEvent& event) {
    const Key key = plainKey(event.GetKeyCode());
    if (event.AltDown() || FindFocus() != this)
      return event.Skip();
    if (key == Key::Enter && !event.HasModifiers() && openEntry(profile_.entry()))
      return;
    if (profile_.key({key, event.ShiftDown(), event.ControlDown()}))
      return syncCapture();
    if (key == Key::Tab && !event.ControlDown())
      Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                 : wxNavigationKeyEvent::IsForward);
    else
      event.Skip();
  }

  bool openEntry(const std::optional<HeightProfile::Entry>& at) {
    if (!at || entry_)
      return at.has_value();
    entry_ = new HeightEntry(
        this, fromUtf8(at->text),
        [this](const wxString& text) { return profile_.enter(toUtf8(text)).empty(); },
        [this](bool byKey) { closeEntry(byKey); });
    const wxSize size = entry_->GetSize();
    const wxSize room = GetClientSize() - size;
    entry_->Move(
        std::clamp(static_cast<int>(at->px.x * pixelScale()) - size.x / 2, 0, std::max(room.x, 0)),
        std::clamp(static_cast<int>(at->px.y * pixelScale()) - size.y - FromDIP(10), 0,
                   std::max(room.y, 0)));
    entry_->SetFocus();
    entry_->SelectAll();
    return true;
  }

  void closeEntry(bool byKey) {
    if (!entry_)
      return;
    HeightEntry* closing = std::exchange(entry_, nullptr);
    closing->Hide();
    if (byKey)
      SetFocus();
    CallAfter([closing] { closing->Destroy(); }); // its own event is going on
  }

  void onPaint(wxPaintEvent&) {
    wxAutoBufferedPaintDC dc(this);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
    if (!context)
      return;
    context->Scale(pixelScale(), pixelScale());
    GcSurface surface(*context, pixelScale() * GetContentScaleFactor());
    profile_.paint(surface, systemTheme());
    shown_();
  }

  Workspace& workspace_;
  HeightProfile profile_;
  std::function<void()> shown_; ///< called when another picture was shown
  HeightEntry* entry_ = nullptr;
};

class ProfilePanel : public wxPanel {
 public:
  ProfilePanel(wxWindow* parent, Workspace& workspace) : wxPanel(parent) {
    // First in the order of Tab, and so what the focus comes to.
    picture_ = new ProfileWindow(this, workspace, [this] { followPicture(); });
    summary_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    auto* spread = new wxCheckBox(this, wxID_ANY, _("Spread over &loops"), wxDefaultPosition,
                                  wxDefaultSize, 0, wxDefaultValidator, "spreadOverLoops");
    spread->SetToolTip(_("Where track comes round to itself, the rest of the loop takes up what "
                         "is changed, over its whole length"));
    spread->SetValue(workspace.switches().spreadLoops);
    spread->Bind(wxEVT_CHECKBOX, [&workspace](wxCommandEvent& event) {
      EditorSwitches switches = workspace.switches();
      switches.spreadLoops = event.IsChecked();
      workspace.setSwitches(switches);
    });
    auto* exaggeration = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                                      0, wxDefaultValidator, "exaggeration");
    for (const double times : HeightProfile::kExaggerations)
      exaggeration->Append(times == 0 ? _("Heights fit")
                                      : wxString::Format(_("Heights %g to 1"), times));
    const auto* shown =
        std::ranges::find(HeightProfile::kExaggerations, workspace.switches().heightScale);
    exaggeration->SetSelection(static_cast<int>(shown - HeightProfile::kExaggerations));
    exaggeration->SetToolTip(_("How much larger heights are drawn than distances"));
    exaggeration->Bind(wxEVT_CHOICE, [&workspace](wxCommandEvent& event) {
      EditorSwitches switches = workspace.switches();
      switches.heightScale =
          HeightProfile::kExaggerations[static_cast<std::size_t>(event.GetSelection())];
      workspace.setSwitches(switches);
    });

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(summary_, wxSizerFlags(1).CentreVertical().Border(wxLEFT));
    row->Add(spread, wxSizerFlags().CentreVertical().Border(wxLEFT));
    row->Add(exaggeration, wxSizerFlags().CentreVertical().Border(wxLEFT));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(row, wxSizerFlags().Expand());
    sizer->Add(picture_, wxSizerFlags(1).Expand());
    SetSizer(sizer);
  }

 private:
  void followPicture() {
    const wxString text = fromUtf8(picture_->profile().summary());
    if (text != summary_->GetLabelText())
      summary_->SetLabelText(text);
    if (text != summary_->GetToolTipText())
      summary_->SetToolTip(text); // there is not always room for all of it
  }

  ProfileWindow* picture_;
  wxStaticText* summary_ = nullptr;
};

} // namespace

const DockedPanel kProfilePanel{
    wxTRANSLATE("Height Profile"), DockSide::Under,
    [](wxWindow* parent, Workspace& workspace, CanvasPanel&) -> wxWindow* {
      return new ProfilePanel(parent, workspace);
    }};

} // namespace trassix
