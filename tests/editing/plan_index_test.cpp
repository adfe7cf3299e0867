#include "catalog/track_catalog.h"
#include "editing/piece_outline.h"
#include "editing/placing.h"
#include "editing/plan_index.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace trassix {
namespace {

using Positions = std::vector<std::size_t>;

TEST(PlanIndex, HitsAreTopFirstWithinTheBed) {
  Plan plan;
  plan.place("24188").place("24188", {94, -94, 90});
  plan.layout.ensureLevel(2);
  plan.layout.editSettings().levels[1].height = 90;
  plan.layout.editPiece(1)->level = 2; // lies above the later piece
  const auto hits = [&plan](Point at, double tolerance) {
    return PlanIndex(plan.layout).hits(at, tolerance);
  };
  EXPECT_EQ(hits({94, 0}, 0), (Positions{0, 1}));
  EXPECT_EQ(hits({20, 18.6}, 0), Positions{0}); // half of the bed is 18.7 wide
  EXPECT_EQ(hits({20, 18.8}, 0), Positions{});
  EXPECT_EQ(hits({20, 20.7}, 2), Positions{0});
  EXPECT_EQ(hits({-1.9, 0}, 2), Positions{0});
  plan.layout.editSettings().levels[1].visible = false;
  EXPECT_EQ(hits({94, 0}, 0), Positions{1});
}

TEST(PlanIndex, BoxesTouchOrEnclose) {
  Plan plan;
  plan.place("24130").place("74861", {0, 1000, 0});
  const PlanIndex index(plan.layout);
  // Within the rectangle around the curve, beyond its bed.
  EXPECT_EQ(index.inBox({150, -10, 170, 0}, false), Positions{});
  EXPECT_EQ(index.inBox({100, 10, 110, 20}, false), Positions{0}); // all within the bed
  EXPECT_EQ(index.inBox({-30, -30, 220, 80}, true), Positions{0});
  EXPECT_EQ(index.inBox({-30, -30, 170, 80}, true), Positions{});
  EXPECT_EQ(index.inBox({20, 1030, 21, 1031}, false), Positions{1}); // between tracks in the pit

  plan.layout.editPiece(1)->cat = "out of print";
  const PlanIndex unknown(plan.layout);
  EXPECT_EQ(unknown.hits({0, 0}, 0), Positions{0});
  EXPECT_EQ(unknown.definition(0), nullptr);
}

TEST(PlanIndex, AgreesWithPlainLoops) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::mt19937 random(4711);
  const auto any = [&random](double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(random);
  };
  std::size_t hits = 0;
  std::size_t boxed = 0;
  for (int round = 0; round < 20; ++round) {
    Layout layout;
    layout.ensureLevel();
    for (int i = 0; i < 150; ++i) {
      const auto pick = static_cast<std::int32_t>(any(0, catalog.count() - 0.5));
      dropPiece(layout, catalog.at(pick)->article,
                {any(-1000, 1000), any(-1000, 1000), any(0, 360)}, {}, false);
    }
    const PlanIndex index(layout);
    const auto plain = [&layout](auto test) {
      Positions found;
      for (std::size_t i = 0; i < layout.pieces().size(); ++i) {
        const PlacedPiece& piece = layout.pieces()[i];
        if (test(outlineOf(definitionOf(piece)), poseOf(piece)))
          found.push_back(i);
      }
      return found;
    };
    for (int i = 0; i < 200; ++i) {
      const Point at{any(-1200, 1200), any(-1200, 1200)};
      const double tolerance = i % 3 == 0 ? 0 : any(0, 40);
      Positions expected = plain([&](const PieceOutline& outline, const Pose& pose) {
        return covers(outline, pose, at, tolerance);
      });
      std::reverse(expected.begin(), expected.end());
      ASSERT_EQ(index.hits(at, tolerance), expected);
      hits += expected.size();

      const Box box{at.x, at.y, at.x + any(0, 900), at.y + any(0, 900)};
      for (const bool whole : {false, true}) {
        expected = plain([&](const PieceOutline& outline, const Pose& pose) {
          return whole ? liesIn(outline, pose, box) : touches(outline, pose, box);
        });
        ASSERT_EQ(index.inBox(box, whole), expected);
        boxed += expected.size();
      }
    }
  }
  EXPECT_GT(hits, 1000u);
  EXPECT_GT(boxed, 10000u);
}

} // namespace
} // namespace trassix
