#include "editing/elevation/train_way.h"
#include "editing/profile/height_profile.h"
#include "editing/selection/selection.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "support/plan.h"

#include <wx/choice.h>

namespace trassix::test {
namespace {

TEST_F(FrameTest, AHandleOfTheHeightProfileIsPulledWithTheMouse) {
  startLaidOut();
  plan() = Plan().place("24188", {300, 300, 0}).extend("24188", 3).layout;
  selectOnly(plan(), 1);
  Workspace& workspace = frame().workspace();
  workspace.changed();
  put(kHeightProfile);
  waitUntil("the profile has the focus", [] {
    wxWindow* shown = findNamed("heightProfile");
    return shown && shown->HasFocus() && shown->GetClientSize().y > 100;
  });
  wxWindow& window = *findNamed("heightProfile");
  const auto spot = [&](std::size_t joint, int up) {
    HeightProfile same(workspace);
    same.resize({static_cast<double>(window.GetClientSize().x),
                 static_cast<double>(window.GetClientSize().y)});
    const std::vector<ProfileHandle> handles = same.handles();
    const auto handle = std::ranges::find(handles, joint, &ProfileHandle::joint);
    return Spot(window, {static_cast<int>(handle->px.x), static_cast<int>(handle->px.y) - up});
  };
  const auto height = [this](std::size_t stretch) {
    return wayThrough(plan(), 1).stretches[stretch].to;
  };
  const PlanContent before = plan().content();

  moveMouse(spot(2, 0));
  pressMouse(spot(2, 0));
  moveMouse(spot(2, 20));
  waitUntil("the plan shows it", [&] { return workspace.preview() != nullptr; });
  pressKey(WXK_ESCAPE);
  waitUntil("nothing is shown any more", [&] { return workspace.preview() == nullptr; });
  releaseMouse();
  settle();
  pressMouse(spot(2, 0));
  moveMouse(spot(2, 20));
  waitUntil("the plan shows it again", [&] { return workspace.preview() != nullptr; });
  wxActivateEvent left(wxEVT_ACTIVATE, false);
  frame().ProcessWindowEvent(left);
  EXPECT_TRUE(workspace.preview() == nullptr && !window.HasCapture());
  releaseMouse();
  settle();
  EXPECT_EQ(plan().content(), before);
  EXPECT_TRUE(window.HasFocus());

  drag(spot(2, 0), {spot(2, 20), spot(2, 40)});
  waitUntil("the track climbs", [&] { return height(1) > 15; });
  EXPECT_NEAR(height(0), height(1) / 2, 1e-6);
  EXPECT_NEAR(height(3), 0, 1e-6);
  put(kUndo);
  EXPECT_EQ(plan().content(), before);

  doubleClick(spot(2, 0));
  waitUntil("a height can be typed", [] { return findNamed("heightEntry") != nullptr; });
  typeText("25");
  pressKey(WXK_RETURN);
  waitUntil("it is done", [&] { return std::abs(height(1) - 25) < 1e-6; });
  waitUntil("the keys are back", [&] { return window.HasFocus(); });
  pressKey(WXK_UP, wxMOD_CONTROL);
  waitUntil("all is lifted", [&] { return std::abs(height(3) - 1) < 1e-6; });
  pressKey(WXK_DELETE);
  waitUntil("the knee is gone", [&] { return std::abs(height(1) - 1) < 1e-6; });
  EXPECT_EQ(pieces(), 4u);

  moveMouse(spot(3, 30));
  waitUntil("the piece is marked on the plan", [&] { return workspace.pointed() >= 3; });
  moveMouse(onPlan({350, 300}));
  moveMouse(onPlan({394, 300}));
  waitUntil("the piece is marked in the profile", [&] { return workspace.pointed() == 1; });

  // How it is shown is kept while the panel is away.
  EditorSwitches switches = workspace.switches();
  switches.heightScale = 5;
  workspace.setSwitches(switches);
  put(kHeightProfile);
  waitUntil("the profile is gone", [] { return findNamed("heightProfile") == nullptr; });
  put(kHeightProfile);
  waitUntil("it is back as it was", [] {
    const auto* scale = static_cast<wxChoice*>(findNamed("exaggeration"));
    return scale != nullptr && scale->GetStringSelection() == "Heights 5 to 1";
  });
}

} // namespace
} // namespace trassix::test
