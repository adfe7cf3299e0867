#include "editing/canvas/fake_host.h"
#include "editing/canvas/recording_surface.h"
#include "editing/elevation/way_handles.h"
#include "editing/helix/helix_edits.h"
#include "editing/profile/height_profile.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <tuple>

namespace trassix {
namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::Not;
using testing::Pointwise;

std::vector<double> heightsOf(const Layout& layout, std::int32_t piece) {
  std::vector<double> heights;
  const TrainWay way = wayThrough(layout, piece);
  for (std::size_t joint = 0; joint <= way.stretches.size(); ++joint)
    heights.push_back(heightOfJoint(way, joint));
  return heights;
}

enum class Do { Pull, LiftAll, TakeOut };

TEST(HeightProfile, JointsBendTheWayBetweenTheKneesBesideThem) {
  const Layout line = Plan().place("24188").extend("24188", 3).layout;
  // A square ring of curves by 90 degrees, level at first.
  const Layout ring = Plan().place("24130").extend("24130", 11).layout;
  const auto onRing = [](double start, double middle) {
    std::vector<double> heights;
    for (int joint = 0; joint <= 12; ++joint)
      heights.push_back(start + (middle - start) * (6 - std::abs(joint - 6)) / 6);
    return heights;
  };
  struct Step {
    Do what;
    std::size_t joint;
    double height;
    std::vector<double> heights;
  };
  const std::tuple<const char*, Layout, std::vector<Step>> cases[] = {
      {"open line",
       line,
       {{Do::Pull, 2, 20, {0, 10, 20, 10, 0}},
        {Do::Pull, 1, 0, {0, 0, 20, 10, 0}},
        {Do::Pull, 4, 8, {0, 0, 20, 14, 8}},
        {Do::TakeOut, 4, 0, {0, 0, 20, 14, 8}},
        {Do::TakeOut, 1, 0, {0, 10, 20, 14, 8}},
        {Do::LiftAll, 3, 15, {1, 11, 21, 15, 9}},
        {Do::Pull, 0, 31, {31, 26, 21, 15, 9}}}},
      {"once round",
       ring,
       {{Do::Pull, 6, 30, onRing(0, 30)},
        {Do::Pull, 12, 12, onRing(12, 30)},
        {Do::TakeOut, 0, 0, onRing(30, 30)},
        {Do::Pull, 0, 5, onRing(5, 5)}}},
  };
  for (const auto& [name, plan, steps] : cases) {
    SCOPED_TRACE(name);
    Layout layout = plan;
    for (const Step& step : steps) {
      const TrainWay way = wayThrough(layout, 1);
      const HeightPlan heights =
          step.what == Do::Pull      ? planJointHeight(layout, way, step.joint, step.height)
          : step.what == Do::LiftAll ? planLiftAll(layout, way, step.joint, step.height)
                                     : planWithoutKnee(layout, way, step.joint);
      ASSERT_TRUE(heights.possible()) << heights.refusal->text;
      applyHeights(layout, heights);
      EXPECT_THAT(heightsOf(layout, 1), Pointwise(DoubleNear(1e-6), step.heights)) << step.joint;
      EXPECT_LT(largestPlay(layout).step, 1e-6);
    }
  }
}

TEST(HeightProfile, BranchesAreChosenBySelectionAndClick) {
  // The seed is a straight between two turnouts that both open away from it.
  Plan plan = Plan().place("24188").extend("24611").extend("24188").at(2, 2).extend("24172");
  plan.at(1, 0).extend("24612").extend("24188").at(5, 2).extend("24172");
  const Layout& layout = plan.layout;
  const auto ends = [&](const WayChoice& choice) {
    const TrainWay way = wayOf(layout, choice);
    return std::pair(way.start().piece, way.end().piece);
  };
  const std::tuple<std::vector<std::int32_t>, std::pair<int, int>> selections[] = {
      {{1}, {6, 3}}, {{1, 4}, {6, 4}}, {{1, 4, 7}, {7, 4}}, {{4, 6}, {6, 4}}, {{}, {-1, -1}}};
  for (const auto& [selected, expected] : selections) {
    const WayChoice choice = choiceThrough(layout, selected);
    EXPECT_EQ(choice.piece == -1 ? std::pair(-1, -1) : ends(choice), expected) << selected.size();
  }
  WayChoice choice = choiceThrough(layout, std::vector<std::int32_t>{1});
  for (const auto& [turnout, expected] :
       {std::pair(2, std::pair(6, 4)), {5, {7, 4}}, {2, {7, 3}}, {1, {7, 3}}}) {
    const TrainWay way = wayOf(layout, choice);
    const auto at = std::ranges::find(way.stretches, turnout, &WayStretch::piece);
    takeNextBranch(layout, choice, way, static_cast<std::size_t>(at - way.stretches.begin()));
    EXPECT_EQ(ends(choice), expected) << turnout;
  }
  // Lines of a crossing that is selected itself have no end in common.
  const Layout cross = Plan().place("24640").extend("24188").at(1, 3).extend("24188").layout;
  choice = choiceThrough(cross, std::vector<std::int32_t>{1});
  for (const std::int32_t end : {2, 3, 2}) {
    EXPECT_EQ(wayOf(cross, choice).end().piece, end);
    takeNextBranch(cross, choice, wayOf(cross, choice), 0);
  }
  choice = choiceThrough(cross, std::vector<std::int32_t>{1, 3});
  EXPECT_EQ(wayOf(cross, choice).end().piece, 3);
}

/// The profile of a plan in which a piece is selected, handled by its joints.
struct Script {
  struct Following : HeightProfile, PlanObserver {
    explicit Following(Workspace& workspace) : HeightProfile(workspace), PlanObserver(workspace) {}
    void planChanged() override { renew(); }
  };
  test::FakeHost host;
  Following profile{host.workspace};
  Point last; ///< of the pointer

  Script(Layout plan, std::int32_t piece) {
    host.plan = std::move(plan);
    selectOnly(host.plan, piece);
    profile.resize({900, 220});
    profile.renew();
  }
  Point at(std::size_t joint) {
    for (const ProfileHandle& handle : profile.handles())
      if (handle.joint == joint)
        return handle.px;
    throw std::out_of_range("no handle");
  }
  /// Leaves the button down.
  void pull(std::size_t joint, double px, bool shift = false, bool ctrl = false) {
    const Point from = at(joint);
    profile.press({from, {}});
    profile.move({{from.x, from.y + px / 2}, {}, ctrl, shift});
    last = {from.x, from.y + px};
    profile.move({last, {}, ctrl, shift});
  }
};

TEST(HeightProfile, ADragIsShownLiveAndOneStepAndNothingAfterEsc) {
  for (const auto& [keys, mid, end] :
       {std::tuple("", 1.0, 0.0), {"shift", 0.1, 0.0}, {"ctrl", 1.0, 1.0}}) {
    SCOPED_TRACE(keys);
    const bool shift = keys == std::string("shift");
    const bool ctrl = keys == std::string("ctrl");
    Script script(Plan().place("24188").extend("24188", 3).layout, 1);
    const PlanContent before = script.host.plan.content();
    const double perPx = 120.0 / 170; // 220 px less the axes show the least range
    script.pull(2, -34, shift, ctrl);
    ASSERT_NE(script.host.workspace.preview(), nullptr);
    EXPECT_EQ(script.host.workspace.preview()->records().pieces.size(), 4u);
    EXPECT_NEAR(heightOfJoint(script.profile.shownWay(), 2), 34 * perPx * mid, 1);
    EXPECT_EQ(script.host.plan.content(), before);
    script.profile.key({Key::Escape});
    EXPECT_EQ(script.host.workspace.preview(), nullptr);
    EXPECT_TRUE(script.host.plan.content() == before && script.host.seen.changes == 0);

    script.pull(2, -34, shift, ctrl);
    const double height = heightOfJoint(script.profile.shownWay(), 2);
    script.profile.release({script.last, {}, ctrl, shift});
    EXPECT_NEAR(heightsOf(script.host.plan, 1)[0], height * end, 1e-6);
    EXPECT_GT(heightsOf(script.host.plan, 1)[2], 0);
    EXPECT_EQ(script.host.seen.changes, 1);
    script.host.plan.undo();
    EXPECT_EQ(script.host.plan.content(), before);
  }
}

TEST(HeightProfile, KeysDoAllThatTheMouseDoes) {
  Script script(Plan().place("24188").extend("24188", 3).layout, 1);
  const PlanContent before = script.host.plan.content();
  script.profile.focus(true);
  const std::tuple<KeyInput, int, std::vector<double>> presses[] = {
      {{Key::Right}, 2, {0, 0, 0, 0, 0}},
      {{Key::Up}, 10, {0, 5, 10, 5, 0}},
      {{Key::Down, true}, 20, {0, 4, 8, 4, 0}},
      {{Key::PageUp, false, true}, 1, {10, 14, 18, 14, 10}},
      {{Key::Tab, true}, 1, {10, 14, 18, 14, 10}},
      {{Key::Up}, 4, {14, 16, 18, 14, 10}},
      {{Key::Tab}, 1, {14, 16, 18, 14, 10}},
      {{Key::Delete}, 1, {14, 13, 12, 11, 10}}};
  for (const auto& [key, times, heights] : presses) {
    for (int i = 0; i < times; ++i)
      EXPECT_TRUE(script.profile.key(key));
    EXPECT_THAT(heightsOf(script.host.plan, 1), Pointwise(DoubleNear(1e-6), heights));
  }
  EXPECT_EQ(script.profile.enter("9 cm"), "");
  EXPECT_NE(script.profile.enter("high"), "");
  EXPECT_NEAR(heightsOf(script.host.plan, 1)[2], 90, 1e-6);
  script.profile.key({Key::End});
  EXPECT_FALSE(script.profile.key({Key::Tab})) << "the focus goes on";
  int steps = 0;
  for (; !(script.host.plan.content() == before) && script.host.plan.undo(); ++steps)
    ;
  EXPECT_EQ(steps, 3) << "a run of nudges, the knee, the typed height";
}

TEST(HeightProfile, ShowsTheRoomBetweenTracksAsItChanges) {
  Plan plan = Plan().place("24188").extend("24188", 3).place("24188", {376.6 + 90, -94, 90});
  plan.layout.editPiece(5)->z = 90;
  Script script(plan.layout, 1);
  const auto texts = [&script] {
    test::RecordingSurface surface;
    script.profile.paint(surface);
    return surface.texts;
  };
  EXPECT_THAT(texts(), Contains("70.0 mm"));
  script.pull(2, -20);
  EXPECT_THAT(texts(), Not(Contains("70.0 mm")));
  script.profile.cancel();
  script.profile.move({{script.at(1).x + 5, script.at(1).y}, {}});
  EXPECT_EQ(script.host.workspace.pointed(), 2);
}

TEST(HeightProfile, GoesUpHelices) {
  Layout layout = Plan().place("24188").layout;
  HelixPlan plan = usualHelix(*findHelixKit("helix_3_0_r1")).plan;
  plan.centre = {188.3, 360, 0};
  placeHelix(layout, plan, 1);
  const std::vector<double> heights = heightsOf(layout, 1);
  ASSERT_EQ(heights.size(), 2U + 36U);
  EXPECT_NEAR(heights.back(), 240, 1e-6);
  const ProfileContent content = profileOf(layout, {1, {}}, {});
  ASSERT_EQ(content.marks.size(), 1U);
  EXPECT_EQ(content.marks[0].kind, ProfileMark::Kind::Helix);
}

} // namespace
} // namespace trassix
