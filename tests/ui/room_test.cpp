// Room to plan: panels folded away, levels at hand, and what is found again at the next start.
#include "document/record_kinds.h"
#include "frame_test.h"
#include "host/command_ids.h"

#include <wx/choice.h>
#include <wx/splitter.h>

namespace trassix::test {
namespace {

template <class Window>
Window& named(const char* name) {
  return dynamic_cast<Window&>(*wxWindow::FindWindowByName(name));
}

TEST_F(FrameTest, SidePanelsFoldAndAllIsFoundAsItWasAtTheNextStart) {
  startLaidOut();
  const std::tuple<const char*, const char*, int, int> kSides[] = {
      {"palette", "outerSplitter", wxMOD_NONE, 235},
      {"properties", "innerSplitter", wxMOD_SHIFT, 280},
  };
  const int room = frame().canvasPanel().GetSize().x;
  for (const auto& [panel, splitter, modifiers, width] : kSides) {
    auto& sash = named<wxSplitterWindow>(splitter);
    const auto isShown = [name = panel] { return named<wxWindow>(name).IsShown(); };
    const auto doubleClickSash = [&] {
      doubleClick({sash, {sash.GetSashPosition() + sash.GetSashSize() / 2, 300}});
    };
    pressKey(WXK_F9, modifiers);
    EXPECT_TRUE(waitUntil("folded", [&] { return !isShown(); })) << panel;
    EXPECT_TRUE(waitUntil("the plan has the room", [&, width = width] {
      return frame().canvasPanel().GetSize().x >= room + width - 10;
    })) << panel;
    doubleClickSash();
    EXPECT_TRUE(waitUntil("back",
                          [&, width = width] {
                            return isShown() && named<wxWindow>("palette").GetSize().x >= 235 &&
                                   frame().canvasPanel().GetSize().x == room;
                          }))
        << panel << named<wxWindow>(panel).GetSize().x;
  }
  doubleClick({named<wxSplitterWindow>("outerSplitter"), {237, 300}});
  waitUntil("folded", [] { return !named<wxWindow>("palette").IsShown(); });
  frame().canvasPanel().SetFocus();
  typeText("24188"); // the palette comes back for it
  waitUntil("the search is there",
            [] { return findNamed("search") && findNamed("search")->HasFocus(); });
  pressKey(WXK_F9);
  auto& systems = named<wxChoice>("systems");
  systems.SetSelection(3);
  wxCommandEvent chosen(wxEVT_CHOICE, systems.GetId());
  chosen.SetInt(3);
  systems.ProcessWindowEvent(chosen);
  frame().SetSize(1111, 777);
  waitUntil("resized", [this] { return frame().GetSize() == wxSize(1111, 777); });
  finish();

  start();
  EXPECT_TRUE(waitUntil("as it was", [this] {
    return frame().GetSize() == wxSize(1111, 777) && !named<wxWindow>("palette").IsShown() &&
           named<wxWindow>("properties").IsShown();
  }));
  pressKey(WXK_F9);
  waitUntil("the palette is back", [] { return findNamed("systems") != nullptr; });
  EXPECT_EQ(named<wxChoice>("systems").GetSelection(), 3);
}

TEST_F(FrameTest, LevelsAreSwitchedOnThePlan) {
  startLaidOut();
  placePiece();
  Level upper;
  upper.id = 2;
  upper.height = 100;
  plan().editSettings().levels.push_back(upper);
  frame().workspace().changed();
  wxWindow& switcher = *findNamed("levelSwitcher");
  const auto& settings = plan().settings();
  const std::pair<wxPoint, std::function<bool()>> kClicks[] = {
      {{70, 12}, [&] { return settings.activeLevel == 2; }},
      {{12, 36}, [&] { return !settings.levels[0].visible; }},
      {{12, 36}, [&] { return settings.levels[0].visible; }},
      {{70, 36}, [&] { return settings.activeLevel == 1; }},
  };
  for (const auto& [at, holds] : kClicks) {
    EXPECT_FALSE(holds());
    click({switcher, at});
    EXPECT_TRUE(waitUntil("switched by one click", holds));
    EXPECT_TRUE(frame().canvasPanel().HasFocus());
  }
}

TEST_F(FrameTest, AnEmptyPlanOffersASample) {
  startLaidOut();
  const auto welcomes = [] { return findNamed("welcome") != nullptr; };
  ASSERT_TRUE(welcomes());
  dialogs.drive("Open a Sample", [](wxDialog&) { pressKey(WXK_RETURN); });
  click(*findNamed("welcome"));
  EXPECT_TRUE(waitUntil("the sample is open", [this] { return pieces() > 10; }));
  EXPECT_TRUE(frame().dirty() && frame().workspace().plan().file().empty());
  EXPECT_FALSE(welcomes());
  put(wxID_NEW, {{"Unsaved Changes", wxID_NO}});
  EXPECT_TRUE(welcomes());
  placePiece();
  EXPECT_FALSE(welcomes());
}

} // namespace
} // namespace trassix::test
