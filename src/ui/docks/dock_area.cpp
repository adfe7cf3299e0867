#include "ui/docks/dock_area.h"

#include "ui/canvas/canvas_panel.h"
#include "ui/docks/dock_tabs.h"
#include "ui/widgets/sash_rule.h"

#include <wx/app.h>
#include <wx/splitter.h>

#include <algorithm>
#include <vector>

namespace trassix {

namespace {

constexpr int kSizes[] = {250, 260}; ///< px at normal resolution, by side
constexpr int kMinSize = 100;

bool hasFocus(const wxWindow& window) {
  const wxWindow* focused = wxWindow::FindFocus();
  return focused && (focused == &window || window.IsDescendant(const_cast<wxWindow*>(focused)));
}

/// Of the second pane, whenever the user moves the sash.
void rememberSize(wxSplitterWindow& splitter, int& size) {
  splitter.Bind(wxEVT_SPLITTER_SASH_POS_CHANGING, [&](wxSplitterEvent& event) {
    event.Skip();
    if (event.GetEventObject() != &splitter)
      return; // of a splitter inside this one
    const wxSize room = splitter.GetClientSize();
    size =
        (splitter.GetSplitMode() == wxSPLIT_VERTICAL ? room.x : room.y) - event.GetSashPosition();
  });
}

} // namespace

void DockArea::surround(CanvasPanel& canvas, Workspace& workspace) {
  canvas_ = &canvas;
  workspace_ = &workspace;
  wxGetTopLevelParent(&canvas)->Bind(wxEVT_CHAR_HOOK, &DockArea::onKey, this);
}

bool DockArea::shown(const DockedPanel& panel) const {
  const Dock& dock = dockOf(panel);
  return dock.tabs && dock.tabs->has(panel);
}

wxWindow& DockArea::show(const DockedPanel& panel) {
  Dock& dock = dockOf(panel);
  if (!shown(panel)) {
    if (!dock.tabs)
      open(panel.side);
    try {
      dock.tabs->add(panel, panel.make(dock.tabs, *workspace_, *canvas_));
    } catch (...) {
      if (dock.tabs->empty())
        close(dock);
      canvas_->SetFocus();
      told();
      throw;
    }
  }
  dock.tabs->bringToFront(panel);
  told();
  wxWindow& page = *dock.tabs->page(panel);
  page.SetFocus();
  return page;
}

void DockArea::hide(const DockedPanel& panel) {
  if (!shown(panel))
    return;
  Dock& dock = dockOf(panel);
  wxWindow* focused = wxWindow::FindFocus();
  if (focused == nullptr || hasFocus(*dock.tabs))
    focused = canvas_;
  dock.tabs->remove(panel);
  if (dock.tabs->empty())
    close(dock);
  focused->SetFocus(); // the canvas has lost it when it moved
  told();
}

void DockArea::toggle(const DockedPanel& panel) {
  if (shown(panel) && dockOf(panel).tabs->front() == &panel)
    hide(panel);
  else
    show(panel);
}

void DockArea::open(DockSide side) {
  letGoOfTheMouse();
  Dock& dock = docks_[static_cast<std::size_t>(side)];
  if (dock.size == 0)
    dock.size = canvas_->FromDIP(kSizes[static_cast<std::size_t>(side)]);
  // The dock under the canvas goes along the one beside it as well.
  Dock& beside = docks_[static_cast<std::size_t>(DockSide::Beside)];
  wxWindow* inside = canvas_;
  if (side == DockSide::Under && beside.splitter)
    inside = beside.splitter;
  auto* outside = static_cast<wxSplitterWindow*>(inside->GetParent());

  dock.splitter =
      makeSplitter(outside, side == DockSide::Under ? "underSplitter" : "besideSplitter");
  outside->ReplaceWindow(inside, dock.splitter);
  inside->Reparent(dock.splitter);
  dock.tabs = new DockTabs(dock.splitter, [this](const DockedPanel& panel) { hide(panel); });
  dock.splitter->SetMinimumPaneSize(canvas_->FromDIP(kMinSize));
  dock.splitter->SetSashGravity(1.0);
  if (side == DockSide::Under)
    dock.splitter->SplitHorizontally(inside, dock.tabs, -dock.size);
  else
    dock.splitter->SplitVertically(inside, dock.tabs, -dock.size);
  keepSash(*dock.splitter, [&dock](int extent) { return extent - dock.size; });
  rememberSize(*dock.splitter, dock.size);
}

void DockArea::close(Dock& dock) {
  letGoOfTheMouse();
  wxWindow* inside = dock.splitter->GetWindow1();
  auto* outside = static_cast<wxSplitterWindow*>(dock.splitter->GetParent());
  dock.splitter->Unsplit(inside);
  inside->Reparent(outside);
  outside->ReplaceWindow(dock.splitter, inside);
  inside->Show();
  dock.splitter->Hide();
  wxTheApp->ScheduleForDestruction(dock.splitter); // the button that was pressed is in it
  dock.splitter = nullptr;
  dock.tabs = nullptr;
}

void DockArea::letGoOfTheMouse() {
  if (!canvas_->HasCapture())
    return;
  canvas_->canvas().cancel();
  canvas_->update();
}

void DockArea::onKey(wxKeyEvent& event) {
  const int by = event.GetKeyCode() == WXK_PAGEUP || event.ShiftDown() ? -1 : 1;
  if (event.GetKeyCode() == WXK_F6 && (event.GetModifiers() & ~wxMOD_SHIFT) == 0)
    return focusNext(by);
  for (const Dock& dock : docks_) {
    if (!dock.tabs || !hasFocus(*dock.tabs))
      continue;
    if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE)
      return canvas_->SetFocus();
    if ((event.GetKeyCode() == WXK_PAGEUP || event.GetKeyCode() == WXK_PAGEDOWN) &&
        event.GetModifiers() == wxMOD_CONTROL) {
      dock.tabs->turn(by);
      return dock.tabs->page(*dock.tabs->front())->SetFocus();
    }
  }
  event.Skip();
}

void DockArea::focusNext(int by) {
  std::vector<wxWindow*> stops{canvas_};
  std::size_t now = 0;
  for (const Dock& dock : docks_) {
    if (!dock.tabs)
      continue;
    if (hasFocus(*dock.tabs))
      now = stops.size();
    stops.push_back(dock.tabs->page(*dock.tabs->front()));
  }
  for (wxWindow* window : others_) {
    if (!window->IsShownOnScreen() || window->GetClientSize().x < 2)
      continue;
    if (hasFocus(*window))
      now = stops.size();
    stops.push_back(window);
  }
  const auto count = static_cast<int>(stops.size());
  stops[static_cast<std::size_t>((static_cast<int>(now) + by + count) % count)]->SetFocus();
}

void DockArea::told() {
  if (changed_)
    changed_();
}

} // namespace trassix
