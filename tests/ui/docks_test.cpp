#include "document/record_kinds.h"
#include "driver.h"
#include "editing/canvas/carried.h"
#include "frame_test.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/docks/dock_area.h"

#include <wx/splitter.h>

#include <stdexcept>
#include <tuple>

namespace trassix::test {
namespace {

template <char name>
wxWindow* makeField(wxWindow* parent, Workspace&, CanvasPanel&) {
  return new wxTextCtrl(parent, wxID_ANY, "", {}, {}, 0, wxDefaultValidator, wxString(name));
}
wxWindow* fail(wxWindow*, Workspace&, CanvasPanel&) {
  throw std::runtime_error("no panel");
}

const DockedPanel kUnder{"Heights", DockSide::Under, makeField<'u'>};
const DockedPanel kBeside{"Findings", DockSide::Beside, makeField<'b'>};
const DockedPanel kSecond{"Parts", DockSide::Beside, makeField<'s'>};
const DockedPanel kBroken{"Broken", DockSide::Under, fail};

wxSplitterWindow& splitter(const char* name) {
  return dynamic_cast<wxSplitterWindow&>(*findNamed(name));
}

void waitForFocus(const std::string& name) {
  waitUntil(name + " has the focus",
            [&] { return findNamed(name) && findNamed(name)->HasFocus(); });
}

TEST_F(FrameTest, ThePlanStaysWhereItIsWhateverIsDockedAboutIt) {
  startLaidOut();
  DockArea& docks = frame().docks();
  CanvasPanel& canvas = frame().canvasPanel();
  const auto place = [&canvas] {
    return std::tuple(canvas.GetScreenPosition(), canvas.canvas().view(),
                      splitter("innerSplitter").GetSashPosition());
  };
  const auto before = place();
  const wxSize whole = canvas.GetSize();
  for (const std::string order : {"ubub", "buub", "ubbu", "bubu"}) {
    for (const char side : order) {
      canvas.SetFocus();
      docks.toggle(side == 'u' ? kUnder : kBeside);
      waitUntil("the canvas has its place", [&] {
        return canvas.IsShownOnScreen() && place() == before &&
               (canvas.GetSize().x < whole.x) == docks.shown(kBeside) &&
               (canvas.GetSize().y < whole.y) == docks.shown(kUnder);
      });
      waitForFocus(docks.shown(side == 'u' ? kUnder : kBeside) ? std::string(1, side) : "canvas");
    }
    EXPECT_EQ(canvas.GetSize(), whole);
  }
  EXPECT_THROW(docks.show(kBroken), std::runtime_error);
  EXPECT_EQ(canvas.GetParent(), &splitter("innerSplitter"));

  canvas.pickUp(CarriedPiece{"24188"});
  docks.show(kUnder);
  EXPECT_FALSE(canvas.HasCapture()) << "the canvas moves, with the mouse held";
  canvas.pickUp(CarriedPiece{"24188"});
  click({canvas, {200, 200}});
  EXPECT_EQ(pieces(), 1u);
}

TEST_F(FrameTest, DocksFollowMouseAndKeys) {
  startLaidOut();
  DockArea& docks = frame().docks();
  docks.show(kBeside);
  waitUntil("the sash is there", [] { return splitter("besideSplitter").GetSashPosition() > 300; });
  wxSplitterWindow& panes = splitter("besideSplitter");
  drag({panes, {panes.GetSashPosition() + 2, 300}}, {{panes, {panes.GetSashPosition() - 70, 300}}});
  const int kept = panes.GetSashPosition();

  docks.show(kSecond);
  waitForFocus("s");
  pressKey(WXK_PAGEUP, wxMOD_CONTROL);
  waitForFocus("b");
  pressKey(WXK_ESCAPE);
  waitForFocus("canvas");
  docks.show(kUnder);
  for (const char* next : {"b", "palette", "properties", "canvas", "u"}) {
    pressKey(WXK_F6);
    waitUntil(next, [&] { return findNamed(next)->IsDescendant(wxWindow::FindFocus()); });
  }
  docks.hide(kUnder);
  click(*findLabelled("Parts"));
  waitUntil("the other tab is in front", [] { return findNamed("s") && !findNamed("b"); });
  docks.toggle(kBeside);
  EXPECT_NE(findNamed("b"), nullptr) << "brought to the front, not hidden";

  click(*findNamed("closeDocked"));
  waitUntil("the second tab is left", [&] { return !docks.shown(kBeside) && findNamed("s"); });
  click(*findNamed("closeDocked"));
  waitUntil("the dock is gone", [] { return findNamed("besideSplitter") == nullptr; });
  docks.show(kBeside);
  waitUntil("the dock has its size again",
            [&] { return splitter("besideSplitter").GetSashPosition() == kept; });
}

} // namespace
} // namespace trassix::test
