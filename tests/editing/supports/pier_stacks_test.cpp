#include "catalog/helix_kits.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/hump.h"
#include "editing/helix/helix_edits.h"
#include "editing/supports/pier_stacks.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <map>
#include <tuple>

namespace trassix {
namespace {

using testing::ElementsAre;
using Kind = SupportPart::Kind;

TEST(PierStacks, TakeTheNextLowerPierAndAShim) {
  const std::tuple<TrackSystem, double, PierStack> cases[] = {
      {TrackSystem::CTrack, 105, {105, 0, 0}},      {TrackSystem::CTrack, 80, {80, 0, 0}},
      {TrackSystem::CTrack, 79.9, {72, 0, 7.9}},    {TrackSystem::KTrack, 3.5, {0, 0, 3.5}},
      {TrackSystem::MTrack, 110, {80, 1, 0}},       {TrackSystem::CTrack, 135, {105, 1, 0}},
      {TrackSystem::CTrack, 136, {105, 1, 1}},      {TrackSystem::CTrack, 180, {87, 3, 3}},
      {TrackSystem::ZTrack, 32, {32, 0, 0}},        {TrackSystem::ZTrack, 44, {32, 1, 0}},
      {TrackSystem::ZTrack, 33, {32, 0, 1}},        {TrackSystem::Gauge1, 200, {200, 0, 0}},
      {TrackSystem::Gauge1, 262.6, {262.5, 0, 0.1}}};
  for (const auto& [system, height, stack] : cases) {
    const PierStack made = stackFor(system, height);
    EXPECT_NEAR(made.base + made.steps * pierStep(system) + made.shim, height, 0.05) << height;
    EXPECT_EQ(made, stack) << height << ": " << made.base << " " << made.steps << " " << made.shim;
  }
}

/// Sixteen straights of 180 mm, level, with a level deck before and behind.
Layout sixteen() {
  return Plan().place("2200").extend("2200", 33).layout;
}

std::vector<double> risesOf(const Layout& layout, double limit, bool series) {
  HumpTask task;
  task.way = wayThrough(layout, layout.pieces().front().id);
  task.first = 16;
  task.last = 18;
  task.to = 34;
  task.height = 105;
  task.limit = limit;
  task.shortest = 16 * 180;
  if (series)
    task.allowed.assign(35, stackHeights(TrackSystem::KTrack, 105));
  const HumpPlan plan = planHump(layout, task);
  std::vector<double> rises;
  for (std::size_t i = 0; plan.possible() && i < 16; ++i)
    rises.push_back(plan.heights[i + 1] - plan.heights[i]);
  return rises;
}

TEST(PierStacks, LeadTrackUpAsTheSetIsMeant) {
  EXPECT_THAT(risesOf(sixteen(), 0.05, true),
              ElementsAre(4, 6, 8, 9, 9, 9, 9, 9, 9, 8, 7, 6, 5, 4, 2, 1));
  EXPECT_TRUE(risesOf(sixteen(), 0.045, true).empty()); // 9 on 180 is 5 percent
  double before = 0;
  double sum = 0;
  for (const double rise : risesOf(sixteen(), 0.05, false)) {
    EXPECT_LE(rise, 9);
    EXPECT_LE(std::abs(rise - before), 4.5 + 1e-9);
    before = rise;
    sum += rise;
  }
  EXPECT_NEAR(sum, 105, 1e-6);
  EXPECT_LE(before, 4.5 + 1e-9);
}

/// Straights of an article whose joints lie at these heights.
Layout atHeights(const char* article, const std::vector<double>& heights) {
  Plan plan;
  plan.place(article).extend(article, static_cast<int>(heights.size()) - 2);
  for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
    PlacedPiece& piece = plan.layout.edit().pieces[i];
    const PieceDef& definition = cataloguePiece(piece.cat);
    lay(piece, layTowards(piece, definition, 0, 1, heights[i],
                          (heights[i + 1] - heights[i]) / definition.length));
  }
  return std::move(plan.layout);
}

TEST(SupportParts, CountWhatRaisedTrackStandsOn) {
  const auto levelled = [](Layout layout, double height) {
    for (PlacedPiece& piece : layout.edit().pieces)
      piece.z = height;
    return layout;
  };
  const auto onHill = [](Layout layout, double hill) {
    layout.edit().shapes.push_back(
        {9, {{-99, -99}, {999, -99}, {999, 99}, {-99, 99}}, {}, 255, false, 1, hill, "", false});
    return layout;
  };
  const auto crossedFlat = [](double height) { // 12 degrees, far flatter than any span reaches
    Plan plan;
    plan.place("24188").extend("24188", 8);
    plan.place("24188", {300, -120, 12}).extend("24188", 5);
    for (std::size_t i = 0; i < 9; ++i)
      plan.layout.edit().pieces[i].z = height;
    return std::move(plan.layout);
  };
  using Parts = std::map<std::pair<Kind, double>, int>;
  const Layout three = Plan().place("24188").extend("24188", 2).layout;
  const Layout bridge = Plan().place("24188").extend("74636").extend("24188").layout;
  const Parts none;
  const std::tuple<const char*, Layout, Parts> cases[] = {
      {"on the board", three, none},
      {"hardly raised", levelled(three, 3), none},
      {"too low for a pier", levelled(three, 3.5), {{{Kind::Shim, 3.5}, 4}}},
      {"of the series", levelled(three, 45), {{{Kind::Pier, 45}, 4}}},
      {"with a shim", levelled(three, 50), {{{Kind::Pier, 45}, 4}, {{Kind::Shim, 5}, 4}}},
      {"with a shim of tenths",
       levelled(three, 80.4),
       {{{Kind::Pier, 80}, 4}, {{Kind::Shim, 0.4}, 4}}},
      {"a hair too high", levelled(three, 80.04), {{{Kind::Pier, 80}, 4}}},
      {"a step more", levelled(three, 110), {{{Kind::Pier, 80}, 4}, {{Kind::Step, 30}, 4}}},
      {"two steps and a shim",
       levelled(three, 141),
       {{{Kind::Pier, 80}, 4}, {{Kind::Step, 30}, 8}, {{Kind::Shim, 1}, 4}}},
      {"arch bridge", levelled(bridge, 90), {{{Kind::Pier, 87}, 4}, {{Kind::Shim, 3}, 4}}},
      {"longer than a span",
       levelled(Plan().place("24360").extend("24188").layout, 80),
       {{{Kind::Pier, 80}, 3}}},
      {"turnout", levelled(Plan().place("24611").layout, 63), {{{Kind::Pier, 63}, 3}}},
      {"Z", levelled(Plan().place("8500").extend("8500").layout, 32), {{{Kind::Pier, 32}, 3}}},
      {"Z with a step",
       levelled(Plan().place("8500").extend("8500").layout, 44),
       {{{Kind::Pier, 32}, 3}, {{Kind::Step, 12}, 3}}},
      {"Gauge 1",
       levelled(Plan().place("59058").extend("59058").layout, 178),
       {{{Kind::Pier, 157.5}, 3}, {{Kind::Shim, 20.5}, 3}}},
      {"a ramp of the set",
       atHeights("2200", {0, 4, 10, 18}),
       {{{Kind::Pier, 4}, 1}, {{Kind::Pier, 10}, 1}, {{Kind::Pier, 18}, 1}}},
      {"an even ramp",
       atHeights("2200", {0, 5, 10, 15, 20}),
       {{{Kind::Pier, 4}, 1},
        {{Kind::Shim, 1}, 1},
        {{Kind::Pier, 10}, 2},
        {{Kind::Shim, 5}, 1},
        {{Kind::Pier, 18}, 1},
        {{Kind::Shim, 2}, 1}}},
      {"on a hill", onHill(levelled(three, 75), 30), {{{Kind::Pier, 45}, 4}}},
      {"two systems",
       [&] {
         Plan plan;
         plan.layout = levelled(three, 45);
         plan.place("2200", {0, 900, 0}).extend("2200");
         for (std::size_t i = 3; i < 5; ++i)
           plan.layout.edit().pieces[i].z = 54;
         return plan.layout;
       }(),
       {{{Kind::Pier, 45}, 4}, {{Kind::Pier, 54}, 3}}},
      {"a helix",
       [] {
         Layout layout;
         HelixWish wish = usualHelix(*findHelixKit(kDefaultHelixKit));
         placeHelix(layout, wish.plan, 1);
         return layout;
       }(),
       {}},
  };
  for (const auto& [what, layout, parts] : cases) {
    Parts counted;
    int frames = 0;
    for (const SupportPart& part : supportParts(layout, supportsOf(layout))) {
      counted[{part.kind, part.height}] += part.count;
      frames += part.kind == Kind::Portal ? part.count : 0;
    }
    EXPECT_EQ(counted, parts) << what;
    EXPECT_EQ(frames, 0) << what;
  }
  int frames = 0;
  for (const SupportPart& part : supportParts(crossedFlat(100), supportsOf(crossedFlat(100))))
    frames += part.kind == Kind::Portal ? part.count : 0;
  EXPECT_GE(frames, 1);
}

} // namespace
} // namespace trassix
