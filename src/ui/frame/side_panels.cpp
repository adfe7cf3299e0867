#include "ui/frame/side_panels.h"

#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"
#include "ui/widgets/sash_rule.h"

#include <wx/splitter.h>

#include <algorithm>

namespace trassix {

namespace {

const std::string kTopic = "sidePanels";
constexpr int kFolded = 1; ///< px; splitters know no narrower pane
constexpr int kPulled = 24;

} // namespace

struct SidePanels::Side {
  wxSplitterWindow* splitter;
  wxWindow* panel;
  bool EditorSwitches::*shown;
  int width;
  int least;
  bool left;
  bool folded = false;

  int sash(int room) const {
    if (folded)
      return left ? kFolded : room - kFolded - splitter->GetSashSize();
    return left ? width : room - width;
  }
  int paneAt(int sash) const { return left ? sash : splitter->GetClientSize().x - sash; }
  void remember() const {
    // Not worth a word when it fails.
    ProgramMemory(StandardFolders::memoryFile())
        .remember(kTopic, [name = panel->GetName().utf8_string(), this](auto& panels) {
          panels[name] = {{"width", panel->ToDIP(width)}, {"folded", folded}};
        });
  }
};

SidePanels::SidePanels(Workspace& workspace) : PlanObserver(workspace), workspace_(workspace) {}

SidePanels::~SidePanels() = default;

void SidePanels::add(wxSplitterWindow& splitter, wxWindow& panel, bool EditorSwitches::*shown,
                     int width, int least) {
  const bool left = splitter.GetWindow1() == &panel;
  sides_.push_back(std::make_unique<Side>(Side{&splitter, &panel, shown, width, least, left}));
  Side& side = *sides_.back();
  bool folded = false;
  const auto panels = ProgramMemory(StandardFolders::memoryFile()).recall(kTopic);
  const std::string name = panel.GetName().utf8_string();
  if (panels && panels->contains(name) && panels->at(name).is_object()) {
    folded = valueIn<bool>(panels->at(name), "folded").value_or(false);
    const auto kept = valueIn<std::int16_t>(panels->at(name), "width");
    side.width = std::max(kept ? panel.FromDIP(int{*kept}) : width, least);
  }
  splitter.SetMinimumPaneSize(least);
  splitter.SetSashGravity(left ? 0.0 : 1.0);
  keepSash(splitter, [&side](int room) { return side.sash(room); });
  bind(side);
  if (folded) {
    fold(side, true);
    EditorSwitches switches = workspace_.switches();
    switches.*shown = false;
    workspace_.setSwitches(switches);
  }
}

void SidePanels::bind(Side& side) {
  const auto flip = [this, &side](bool shown) {
    EditorSwitches switches = workspace_.switches();
    switches.*(side.shown) = shown;
    workspace_.setSwitches(switches);
  };
  // Events of splitters inside one come by at it too.
  side.splitter->Bind(wxEVT_SPLITTER_DOUBLECLICKED, [&side, flip](wxSplitterEvent& event) {
    if (event.GetEventObject() != side.splitter)
      return event.Skip();
    event.Veto(); // the splitter's own way would leave no sash
    flip(side.folded);
  });
  side.splitter->Bind(wxEVT_SPLITTER_SASH_POS_CHANGING, [&side, flip](wxSplitterEvent& event) {
    event.Skip();
    const int pane = side.paneAt(event.GetSashPosition());
    if (event.GetEventObject() != side.splitter || (side.folded && pane < kPulled))
      return;
    side.width = std::max(pane, side.least);
    if (side.folded)
      flip(true);
  });
  side.splitter->Bind(wxEVT_SPLITTER_SASH_POS_CHANGED, [&side](wxSplitterEvent& event) {
    event.Skip();
    if (event.GetEventObject() == side.splitter && !side.folded)
      side.remember();
  });
}

void SidePanels::switchesChanged() {
  for (const auto& side : sides_) {
    const bool away = !(workspace_.switches().*(side->shown));
    if (away == side->folded)
      continue;
    fold(*side, away);
    side->remember();
  }
}

void SidePanels::fold(Side& side, bool away) {
  wxWindow* focused = wxWindow::FindFocus();
  side.folded = away;
  side.panel->SetMinSize({away ? kFolded : side.least, -1});
  side.splitter->SetMinimumPaneSize(away ? kFolded : side.least);
  side.panel->Show(!away);
  side.splitter->SetSashPosition(side.sash(side.splitter->GetClientSize().x));
  if (!away || !focused || !side.panel->IsDescendant(focused))
    return;
  // Keys go on working on the plan.
  if (wxWindow* canvas = wxWindow::FindWindowByName("canvas", wxGetTopLevelParent(side.panel)))
    canvas->SetFocus();
}

} // namespace trassix
