// Long runs of random edits: whatever the user does, the plan stays sound and undo is exact.
#include "editing/autofill.h"
#include "editing/block_placing.h"
#include "editing/inserting.h"
#include "editing/moving.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "editing/swapping.h"
#include "panels/level_list.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>

namespace trassix {
namespace {

constexpr int kEdits = 25000; // in each of the eight runs

/// Both ends of each joint, and how far they are apart.
using Joints = std::map<std::array<std::int32_t, 4>, Play>;

Joints jointsOf(const Layout& layout) {
  Joints joints;
  for (const PlacedPiece& piece : layout.pieces())
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(piece.joints.size()); ++i)
      if (const Joint to = piece.joint(static_cast<std::size_t>(i)); piece.id < to.target)
        joints[{piece.id, i, to.target, to.tconn}] = playOf(layout, piece, i);
  return joints;
}

class RandomEdits : public testing::TestWithParam<std::uint32_t> {
 protected:
  enum Kind {
    Clone,
    Extend,
    Rotate,
    Nudge,
    Delete,
    Duplicate,
    Scenery,
    Swap,
    Fill,
    Decks,
    Move,
    Drop
  };

  /// The first six runs keep to one system each, the others mix them all.
  RandomEdits() : random_(GetParam()) {
    constexpr TrackSystem kSystems[] = {TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                        TrackSystem::ZTrack, TrackSystem::KTrack,
                                        TrackSystem::MTrack, TrackSystem::Gauge1};
    for (const PieceDef& piece : wholeCatalogue())
      if (GetParam() > 6 || piece.system == kSystems[GetParam() - 1])
        articles_.push_back(&piece);
    layout_.ensureLevel();
  }

  int any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

  template <class Items>
  const auto& anyOf(const Items& items) {
    return items[static_cast<std::size_t>(any(0, static_cast<int>(items.size()) - 1))];
  }

  /// Mostly near an end of the plan, so that there is something to snap to.
  Pose anyPose() {
    const std::vector<PlacedEnd> ends = endsOf(layout_);
    if (ends.empty() || any(0, 3) == 0)
      return {any(-1500, 1500) * 1.0, any(-1500, 1500) * 1.0, any(0, 71) * 5.0};
    const PlacedEnd& end = anyOf(ends);
    return {end.at.x + any(-20, 20), end.at.y + any(-20, 20), end.heading + any(-30, 30)};
  }

  /// Selects at random and chooses what to do next. Pieces that were turned about far points until
  /// coordinates got coarse are deleted, and a part of a crowded plan.
  void prepare() {
    for (PlacedPiece& piece : layout_.edit().pieces)
      piece.sel = any(0, 2) == 0;
    kind_ = static_cast<Kind>(any(Clone, Drop + 3));
    if (layout_.pieces().size() < 3)
      kind_ = Drop;
    else if (layout_.pieces().size() > 36)
      kind_ = Delete;
    for (PlacedPiece& piece : layout_.edit().pieces)
      if (std::hypot(piece.x, piece.y) > 50000) {
        piece.sel = true;
        kind_ = Delete;
      }
    if (kind_ == Fill) { // lays a piece ahead of the last one, so that there is a gap
      const PlacedPiece& last = layout_.pieces().back();
      const Point at = toWorld(poseOf(last), {any(50, 1200) * 1.0, 0});
      dropPiece(layout_, last.cat, {at.x, at.y, last.heading}, {}, false);
    }
  }

  /// True when the edit changed the plan, as one undo step.
  bool edit() {
    const std::int32_t id =
        anyOf(layout_.pieces().empty() ? std::vector<PlacedPiece>(1) : layout_.pieces()).id;
    const PieceDef& article = *anyOf(articles_);
    const Pose pose = anyPose();
    SnapIndex index;
    if (kind_ >= Move)
      index = SnapIndex(layout_);
    switch (kind_) {
    case Clone:
      return cloneAndExtend(layout_, id).changed();
    case Extend:
      return extendSelected(layout_, article.article).changed();
    case Rotate:
      return rotateSelection(layout_, any(-3, 3) * 15.0).changed;
    case Nudge:
      return nudgeSelection(layout_, any(-2, 2), any(-2, 2), false).changed;
    case Delete:
      return deleteSelection(layout_);
    case Duplicate: {
      Block block = blockFromSelection(layout_);
      centreBlock(block);
      return placeBlock(layout_, block, pose).changed();
    }
    case Scenery:
      return dropScenery(layout_, any(0, 1) == 0 ? "74861" : "72886", pose).changed();
    case Swap: {
      const std::vector<SwapFit> fits = swapFits(layout_, id);
      return !fits.empty() && swapPiece(layout_, id, anyOf(fits));
    }
    case Fill: {
      const std::vector<PlacedPiece>& pieces = layout_.pieces();
      const auto fill = solveAutofill(layout_, pieces[pieces.size() - 2].id, pieces.back().id);
      return fill && fill->success() &&
             placeFill(layout_, *fill->gap, anyOf(fill->candidates)).changed();
    }
    case Decks: {
      LevelList levels(layout_);
      const auto last = static_cast<int>(levels.size()) - 1;
      const auto place = static_cast<std::size_t>(any(0, last));
      if (last < 3)
        levels.add();
      else if (any(0, 3) == 0)
        levels.remove(place, any(0, 1) == 0 ? std::nullopt : std::optional((place + 1) % 4));
      levels.enterHeight(0, std::to_string(any(0, 4) * 40));
      levels.setVisible(1, any(0, 2) != 0);
      return levels.apply(layout_).changed;
    }
    case Move: {
      SelectionMove move(layout_, {layout_.findPiece(id)->x, layout_.findPiece(id)->y});
      any(0, 3) == 0 ? move.turn({pose.x, pose.y}, pose.heading)
                     : move.update({pose.x, pose.y}, any(0, 4) != 0, index);
      return move.commit(layout_).changed;
    }
    default:
      const auto spot = findInsertSpot(layout_, index, article, pose);
      return spot ? insertPiece(layout_, article.article, *spot).changed()
                  : dropPiece(layout_, article.article, pose, index.findSnap(article, pose),
                              any(0, 3) != 0)
                        .changed();
    }
  }

  Layout layout_;
  Kind kind_ = Drop;

 private:
  std::mt19937 random_;
  std::vector<const PieceDef*> articles_;
};

TEST_P(RandomEdits, KeepThePlanSoundAndUndoExact) {
  std::printf("seed %u\n", GetParam());
  std::map<Kind, int> done;
  for (int step = 0; step < kEdits; ++step) {
    prepare();
    const PlanContent before = layout_.content();
    const Joints joints = jointsOf(layout_);
    if (!edit()) {
      ASSERT_EQ(layout_.content(), before) << step;
      continue;
    }
    ++done[kind_];
    ASSERT_EQ(brokenRule(layout_), "") << step;
    for (const auto& [ends, play] : jointsOf(layout_)) {
      // Joints that stay get no more play, new ones have at most what their rule allows. A move
      // opens the joints around the group and may find their ends to meet again.
      const auto old = joints.find(ends);
      const bool around = layout_.findPiece(ends[0])->sel != layout_.findPiece(ends[2])->sel;
      const bool is = old != joints.end() && kind_ != Swap && !(kind_ == Move && around);
      ASSERT_LE(play.distance, (is ? old->second.distance : 1.0) + 1e-6) << step;
      ASSERT_LE(play.heading, (is ? old->second.heading : kind_ == Fill ? 10.0 : 1.0) + 1e-6);
    }
    const PlanContent after = layout_.content();
    ASSERT_TRUE(layout_.undo());
    ASSERT_EQ(layout_.content(), before) << step;
    ASSERT_TRUE(layout_.redo());
    ASSERT_EQ(layout_.content(), after) << step;
    for (int back = any(0, 40); back > 36; --back) // now and then some steps back
      layout_.undo();
  }
  for (int kind = Clone; kind <= Drop; ++kind)
    EXPECT_GT(done[static_cast<Kind>(kind)], 30) << kind;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 9U));

} // namespace
} // namespace trassix
