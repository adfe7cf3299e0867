#include "catalog/track_catalog.h"
#include "editing/placing/placing.h"
#include "editing/selection/plan_index.h"
#include "editing/track/piece_outline.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace trassix {
namespace {

using Positions = std::vector<std::size_t>;

TEST(PlanIndex, FindsWhatLiesUnderAPointOrInABox) {
  Plan plan = Plan().place("24188").place("24188", {94, -94, 90}).place("24130", {1000, 0, 0});
  plan.place("74861", {0, 1000, 0}).place("24188", {3000, 0, 0});
  plan.layout.ensureLevel(2);
  plan.layout.editSettings().levels[1].height = 90;
  plan.layout.editPiece(1)->level = 2; // lies above the later piece
  plan.layout.edit().pieces.back().cat = "out of print";
  const PlanIndex index(plan.layout);
  EXPECT_EQ(index.hits({94, 0}, 0), (Positions{0, 1}));
  EXPECT_EQ(index.hits({20, 18.6}, 0), Positions{0}); // half of the bed is 18.7 wide
  EXPECT_EQ(index.hits({20, 18.8}, 0), Positions{});
  EXPECT_EQ(index.hits({20, 20.6}, 2), Positions{0});
  EXPECT_EQ(index.hits({3000, 0}, 0).size(), 1u); // can be picked though nobody knows its shape
  EXPECT_EQ(index.definition(plan.layout.pieces().size() - 1), nullptr);

  EXPECT_EQ(index.inBox({1150, -10, 1170, 0}, false), Positions{});  // beside the curve
  EXPECT_EQ(index.inBox({1100, 10, 1110, 20}, false), Positions{2}); // all within its bed
  EXPECT_EQ(index.inBox({970, -30, 1220, 80}, true), Positions{2});
  EXPECT_EQ(index.inBox({970, -30, 1170, 80}, true), Positions{});
  EXPECT_EQ(index.inBox({20, 1030, 21, 1031}, false), Positions{3}); // between tracks in the pit
  plan.layout.editSettings().levels[1].visible = false;
  EXPECT_EQ(PlanIndex(plan.layout).hits({94, 0}, 0), Positions{1});
  plan.layout.editPiece(2)->level = plan.layout.editPiece(1)->level = 1;
  EXPECT_EQ(PlanIndex(plan.layout).hits({94, 0}, 0), (Positions{1, 0}));
  plan.layout.editPiece(1)->z = 80; // leads over the later piece
  plan.layout.editPiece(2)->grade = 2;
  EXPECT_EQ(PlanIndex(plan.layout).hits({94, 0}, 0), (Positions{0, 1}));
}

TEST(PlanIndex, AgreesWithPlainLoops) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::mt19937 random(4711);
  const auto any = [&random](double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(random);
  };
  std::size_t found = 0;
  for (int round = 0; round < 20; ++round) {
    Layout layout;
    layout.ensureLevel();
    for (int i = 0; i < 150; ++i)
      addPiece(layout, *catalog.at(static_cast<std::int32_t>(any(0, catalog.count() - 0.5))),
               {any(-1000, 1000), any(-1000, 1000), any(0, 360)}, 1, 0);
    const PlanIndex index(layout);
    const auto plain = [&layout](auto test) {
      Positions positions;
      for (std::size_t i = 0; i < layout.pieces().size(); ++i)
        if (const PlacedPiece& piece = layout.pieces()[i];
            test(outlineOf(definitionOf(piece)), poseOf(piece)))
          positions.push_back(i);
      return positions;
    };
    for (int i = 0; i < 200; ++i) {
      const Point at{any(-1200, 1200), any(-1200, 1200)};
      const double tolerance = i % 3 == 0 ? 0 : any(0, 40);
      Positions expected = plain([&](const PieceOutline& outline, const Pose& pose) {
        return covers(outline, pose, at, tolerance);
      });
      std::reverse(expected.begin(), expected.end());
      ASSERT_EQ(index.hits(at, tolerance), expected);
      const Box box{at.x, at.y, at.x + any(0, 900), at.y + any(0, 900)};
      for (const bool whole : {false, true}) {
        expected = plain([&](const PieceOutline& outline, const Pose& pose) {
          return whole ? liesIn(outline, pose, box) : touches(outline, pose, box);
        });
        ASSERT_EQ(index.inBox(box, whole), expected);
        found += expected.size();
      }
    }
  }
  EXPECT_GT(found, 10000u);
}

} // namespace
} // namespace trassix
