// Long runs of random edits: whatever the user does, the plan stays sound and undo is exact.
#include "catalog/track_catalog.h"
#include "editing/autofill.h"
#include "editing/block_placing.h"
#include "editing/inserting.h"
#include "editing/moving.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "editing/swapping.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>
#include <utility>
#include <vector>

namespace trassix {
namespace {

constexpr int kEdits = 25000; // in each of the eight runs
constexpr std::size_t kMostPieces = 36;

/// A joint by its first end, and how far its ends are apart.
using Joints = std::map<std::pair<std::int32_t, std::int32_t>, std::pair<Joint, Play>>;

Joints jointsOf(const Layout& layout) {
  Joints joints;
  for (const PlacedPiece& piece : layout.pieces())
    for (std::size_t i = 0; i < piece.joints.size(); ++i)
      if (const auto end = static_cast<std::int32_t>(i); piece.id < piece.joints[i].target)
        joints[{piece.id, end}] = {piece.joints[i], playOf(layout, piece, end)};
  return joints;
}

class RandomEdits : public testing::TestWithParam<std::uint32_t> {
 protected:
  RandomEdits() : random_(GetParam()) {
    const TrackCatalog& catalog = TrackCatalog::instance();
    // The first six runs keep to one system each, the others mix them all.
    constexpr TrackSystem kSystems[] = {TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                        TrackSystem::ZTrack, TrackSystem::KTrack,
                                        TrackSystem::MTrack, TrackSystem::Gauge1};
    for (std::int32_t i = 0; i < catalog.count(); ++i)
      if (GetParam() > 6 || catalog.at(i)->system == kSystems[GetParam() - 1])
        articles_.push_back(catalog.at(i));
    layout_.ensureLevel();
  }

  int any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

  template <class Items>
  const auto& anyOf(const Items& items) {
    return items[static_cast<std::size_t>(any(0, static_cast<int>(items.size()) - 1))];
  }

  const PlacedPiece& anyPiece() { return anyOf(layout_.pieces()); }

  /// Often near an end of the plan, so that there is something to snap to.
  Pose anyPose() {
    const std::vector<PlacedEnd> ends = endsOf(layout_);
    if (ends.empty() || any(0, 3) == 0)
      return {any(-1500, 1500) * 1.0, any(-1500, 1500) * 1.0, any(0, 71) * 5.0};
    const PlacedEnd& end = anyOf(ends);
    return {end.at.x + any(-20, 20), end.at.y + any(-20, 20), end.heading + any(-30, 30)};
  }

  void selectSome() {
    for (PlacedPiece& piece : layout_.edit().pieces)
      piece.sel = any(0, 2) == 0;
    for (SceneryItem& item : layout_.edit().scenery)
      item.sel = any(0, 2) == 0;
  }

  bool drop() {
    const PieceDef& carried = *anyOf(articles_);
    const Pose pose = anyPose();
    const SnapIndex index(layout_);
    const SnapResult snap = index.findSnap(carried, pose);
    if (const auto spot = findInsertSpot(layout_, index, carried, pose); spot && any(0, 1) == 0)
      return insertPiece(layout_, carried.article, *spot).changed();
    const EditResult result = dropPiece(layout_, carried.article, pose, snap, any(0, 3) != 0);
    if (result.changed() && snap.snapped) {
      const Play play = playOf(layout_, *layout_.findPiece(result.placed[0]), snap.newConnector);
      EXPECT_LT(std::max(play.distance, play.heading), 0.01);
    }
    return result.changed();
  }

  bool move() {
    const Pose to = anyPose();
    SelectionMove move(layout_, {anyPiece().x, anyPiece().y});
    if (any(0, 3) == 0)
      move.turn({to.x, to.y}, to.heading);
    else
      move.update({to.x, to.y}, any(0, 4) != 0, SnapIndex(layout_));
    return move.commit(layout_);
  }

  bool swap() {
    const std::int32_t id = anyPiece().id;
    const std::vector<SwapFit> fits = swapFits(layout_, id);
    swapped_ = id;
    return !fits.empty() && swapPiece(layout_, id, anyOf(fits));
  }

  /// Lays a piece on the line of an open end, some way off, so that there is a gap to fill.
  void layGap() {
    std::vector<PlacedEnd> ends = endsOf(layout_);
    std::erase_if(ends, [](const PlacedEnd& end) { return end.joinedTo != -1; });
    if (ends.empty())
      return;
    const PlacedEnd& end = anyOf(ends);
    const Point ahead = toWorld({end.at.x, end.at.y, end.heading}, {any(20, 900) * 1.0, 0});
    const WorldConnector place{ahead.x, ahead.y, end.heading, true, 0};
    const PieceDef& article = *definitionOf(*layout_.findPiece(end.piece));
    const EditResult laid =
        dropPiece(layout_, article.article, AttachPose(article, 0, place), {}, false);
    gap_ = {end.piece, laid.placed.front()};
  }

  bool fill() {
    const auto result = solveAutofill(layout_, gap_.first, gap_.second);
    if (!result || !result->success())
      return false;
    filling_ = true;
    return placeFill(layout_, *result->gap, anyOf(result->candidates)).changed();
  }

  bool duplicate() {
    Block block = blockFromSelection(layout_);
    centreBlock(block);
    return placeBlock(layout_, block, anyPose()).changed();
  }

  /// Turns about far points carry pieces off to where coordinates get coarse. Selects them in place
  /// of what was selected; true when there are none.
  bool selectFarPieces() {
    std::vector<std::int32_t> far;
    for (const PlacedPiece& piece : layout_.pieces())
      if (std::max(std::abs(piece.x), std::abs(piece.y)) > 50000)
        far.push_back(piece.id);
    if (!far.empty())
      layout_.clearSelection();
    for (const std::int32_t id : far)
      layout_.editPiece(id)->sel = true;
    return far.empty();
  }

  static constexpr std::size_t kKinds = 10;

  bool edit(std::size_t kind) {
    switch (kind) {
    case 0:
      return cloneAndExtend(layout_, anyPiece().id).changed();
    case 1:
      return extendSelected(layout_, anyOf(articles_)->article).changed();
    case 2:
      return rotateSelection(layout_, any(-3, 3) * 15.0);
    case 3:
      return nudgeSelection(layout_, any(-2, 2), any(-2, 2), false);
    case 4:
      return deleteSelection(layout_);
    case 5:
      return duplicate();
    case 6:
      return dropScenery(layout_, any(0, 1) == 0 ? "74861" : "72886", anyPose()).changed();
    case 7:
      return swap();
    case 8:
      return fill();
    case 9:
      return move();
    default:
      return drop();
    }
  }

  /// True when the edit changed the plan, as one undo step.
  bool edit() {
    filling_ = false;
    swapped_ = -1;
    if (crowded_)
      return deleteSelection(layout_);
    const bool changed = layout_.pieces().size() < 3 ? drop() : edit(kind_);
    if (changed && kind_ < kKinds)
      ++done_[kind_];
    return changed;
  }

  /// Joints that were there before get no more play, new ones have no more than their rule allows.
  void expectSoundJoints(const Joints& before, const Joints& after) const {
    for (const auto& [end, joint] : after) {
      const auto old = before.find(end);
      const Play& play = joint.second;
      if (old == before.end() || old->second.first != joint.first || end.first == swapped_ ||
          joint.first.target == swapped_) {
        ASSERT_LE(play.distance, 1.0 + 1e-6);
        ASSERT_LE(play.heading, filling_ ? 10.0 : 1.0 + 1e-6);
      } else {
        ASSERT_LE(play.distance, old->second.second.distance + 1e-6);
        ASSERT_LE(play.heading, old->second.second.heading + 1e-6);
      }
    }
  }

  Layout layout_;
  std::size_t kind_ = 0; ///< of the next edit
  std::pair<std::int32_t, std::int32_t> gap_;
  bool crowded_ = false; ///< something has to go
  bool filling_ = false;
  std::int32_t swapped_ = -1;
  std::array<int, kKinds> done_{}; ///< how often each kind of edit changed something

 private:
  std::mt19937 random_;
  std::vector<const PieceDef*> articles_;
};

TEST_P(RandomEdits, KeepThePlanSoundAndUndoExact) {
  std::printf("seed %u\n", GetParam());
  int changed = 0;
  for (int step = 0; step < kEdits; ++step) {
    SCOPED_TRACE(step);
    if (any(0, 2) == 0)
      selectSome();
    kind_ = static_cast<std::size_t>(any(0, 13));
    if (kind_ == 8)
      layGap();
    crowded_ = !selectFarPieces() || layout_.pieces().size() > kMostPieces;
    const PlanContent before = layout_.content();
    const Joints joints = jointsOf(layout_);
    if (!edit()) {
      ASSERT_EQ(layout_.content(), before);
      continue;
    }
    ++changed;
    ASSERT_EQ(brokenRule(layout_), "");
    expectSoundJoints(joints, jointsOf(layout_));
    if (HasFatalFailure())
      return;
    const PlanContent after = layout_.content();
    ASSERT_TRUE(layout_.undo());
    ASSERT_EQ(layout_.content(), before);
    ASSERT_TRUE(layout_.redo());
    ASSERT_EQ(layout_.content(), after);
    for (int back = any(0, 40); back > 36; --back) // now and then some steps back
      layout_.undo();
    ASSERT_EQ(brokenRule(layout_), "");
  }
  EXPECT_GT(changed, kEdits / 2);
  EXPECT_THAT(done_, testing::Each(testing::Gt(30)));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 9U));

} // namespace
} // namespace trassix
