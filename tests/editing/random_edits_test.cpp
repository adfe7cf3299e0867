// Long runs of random edits: whatever the user does, the plan stays sound and undo is exact.
#include "catalog/plain_track.h"
#include "document/block.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "document/reselecting.h"
#include "document/undo_scope.h"
#include "editing/arranging/aligning.h"
#include "editing/arranging/corner_edits.h"
#include "editing/arranging/mirroring.h"
#include "editing/arranging/parallel_pieces.h"
#include "editing/arranging/parallel_track.h"
#include "editing/autofill/autofill.h"
#include "editing/elevation/grade_edits.h"
#include "editing/elevation/grade_runs.h"
#include "editing/elevation/way_handles.h"
#include "editing/helix/helix_edits.h"
#include "editing/joining/joining.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/flipping.h"
#include "editing/placing/inserting.h"
#include "editing/placing/runs.h"
#include "editing/placing/swapping.h"
#include "editing/records_by_id.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/moving.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "editing/track/mirror_twin.h"
#include "editing/tunnels/tunnel_edits.h"
#include "panels/level_list.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>

namespace trassix {
namespace {

/// In each of the eight runs; more by hand.
int editsOfARun() {
  const char* number = std::getenv("TRASSIX_RANDOM_EDITS");
  return number == nullptr ? 1800 : std::atoi(number);
}

/// Both ends of each joint, and how they lie to each other.
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
 public:
  Layout plan;
  Block copied;

  // What the dice have chosen for the next edit.
  const PieceDef* article = nullptr;
  PlacedPiece piece; ///< as it is on the plan
  Pose pose;

  int any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

  template <class Items>
  const auto& anyOf(const Items& items) {
    return items[static_cast<std::size_t>(any(0, static_cast<int>(std::size(items)) - 1))];
  }

  /// All comes back from a file to its four decimals, and so as the same file.
  void expectSavedAlike() {
    Layout loaded;
    std::string text;
    std::string again;
    std::string name;
    writeLayout(plan, name, text);
    ASSERT_EQ(readLayout(text, loaded, name), "");
    for (std::size_t i = 0; i < plan.pieces().size(); ++i) {
      ASSERT_NEAR(loaded.pieces()[i].z, plan.pieces()[i].z, 5.1e-5);
      ASSERT_NEAR(loaded.pieces()[i].grade, plan.pieces()[i].grade, 5.1e-5);
    }
    writeLayout(loaded, name, again);
    ASSERT_EQ(again, text);
  }

  bool place(Block block, bool fromFile) {
    std::string text;
    if (fromFile) {
      writeBlock(block, [&text](std::string_view part) { text += part; });
      readBlock(text, block);
    }
    centreBlock(block);
    return placeBlock(plan, block, pose).changed();
  }

  bool cut() {
    copied = blockFromSelection(plan);
    return deleteSelection(plan);
  }

  /// Lays a piece ahead of the last one and fills the gap, all in one step.
  bool fill() {
    UndoScope step(plan);
    const PlacedPiece last = plan.pieces().back();
    const Point at = toWorld(poseOf(last), {any(50, 1200) * 1.0, 0});
    dropPiece(plan, last.cat, {at.x, at.y, last.heading}, {}, false);
    const auto found = solveAutofill(plan, last.id, plan.pieces().back().id);
    return found && found->success() &&
           placeFill(plan, *found->gap, anyOf(found->candidates)).changed() && step.keep();
  }

  /// A circle, so that there is track that comes round to itself.
  bool ring() {
    UndoScope step(plan);
    const auto curves = plainCurvesByRadius(article->system);
    if (curves.empty())
      return false;
    const PieceDef& curve =
        *std::next(curves.begin(), any(0, static_cast<int>(curves.size()) - 1))->second;
    dropPiece(plan, curve.article, pose, {}, false);
    for (int left = static_cast<int>(std::lround(360 / curve.angle)); left > 1; --left)
      cloneAndExtend(plan, plan.pieces().back().id);
    return step.keep();
  }

  bool swap() {
    std::vector<SwapFit> fits = swapFits(plan, piece.id);
    for (int more = 0; more < 4 && fits.empty(); ++more)
      fits = swapFits(plan, (piece = anyUnlocked()).id);
    return !fits.empty() && !isLocked(piece.id) && swapPiece(plan, piece.id, anyOf(fits));
  }

  bool isLocked(std::int32_t id) { return lockGuard(plan, std::array{id}, "").has_value(); }

  /// Any piece when all of them are locked.
  const PlacedPiece& anyUnlocked() {
    const PlacedPiece* found = &anyOf(plan.pieces());
    for (int more = 0; more < 30 && isLocked(found->id); ++more)
      found = &anyOf(plan.pieces());
    return *found;
  }

  /// Selects nothing that the user would be held back from changing.
  void leaveLocked() {
    for (PlacedPiece& each : plan.edit().pieces)
      each.sel = each.sel && !isLocked(each.id);
    for (SceneryItem& item : plan.edit().scenery)
      item.sel = item.sel && !item.item.starts_with("tun.");
  }

  /// Over some pieces of a way.
  bool tunnel() {
    const auto& tunnels = plan.content().tunnels;
    if (tunnels.size() > 2 || (!tunnels.empty() && any(0, 2) == 0))
      return removeTunnels(plan, {anyOf(tunnels).id});
    UndoScope step(plan);
    const TrainWay way = wayThrough(plan, piece.id);
    plan.clearSelection();
    const int last = static_cast<int>(way.stretches.size()) - 1;
    for (int i = any(0, std::max(last, 0)), left = any(1, 5); i <= last && left > 0; ++i, --left)
      plan.select(RecordKind::Piece, way.stretches[static_cast<std::size_t>(i)].piece, true);
    return placeTunnel(plan, static_cast<TunnelOpening>(any(0, 1))).changed() && step.keep();
  }

  bool helix() {
    const auto& helices = plan.content().helices;
    if (helices.empty() || (helices.size() < 2 && any(0, 3) == 0)) {
      const HelixKit* kit = nullptr;
      while (kit == nullptr || kit->system != article->system || kit->turns > 1.5)
        kit = &anyOf(helixKits());
      const double pitch = leastPitch(kit->system, any(0, 1) == 0);
      const auto hand = static_cast<HelixHand>(any(0, 1));
      return placeHelix(plan, {kit, hand, pitch, pose, any(0, 9) * 0.4}, 1).changed();
    }
    const std::int32_t id = anyOf(helices).id;
    UndoScope step(plan);
    selectHelix(plan, id);
    switch (helices.size() > 2 ? 0 : any(0, 3)) {
    case 0:
      return (any(0, 3) == 0 ? turnIntoLooseTrack(plan, id) : deleteHelix(plan, id)) && step.keep();
    case 1:
      return place(blockFromSelection(plan), false) && step.keep();
    case 2: {
      HelixPlan other = planOfHelix(plan, *recordWithId(helices, id)).value();
      other.kit = &withTurns(*other.kit, any(2, 4) / 2.0);
      other.hand = static_cast<HelixHand>(any(0, 1));
      return changeHelix(plan, id, other).changed() && step.keep();
    }
    default:
      piece = *plan.findPiece(selectedPieces(plan).front());
      return move(any(0, 1) == 0) && step.keep();
    }
  }

  /// Covers are one or two chains under portals; helices and their track name each other.
  std::string brokenBody() {
    for (const Tunnel& tunnel : plan.content().tunnels) {
      std::vector<std::int32_t> covers = tunnel.covers;
      std::ranges::sort(covers);
      for (const std::int32_t id : covers)
        if (plan.findPiece(id) == nullptr)
          return "covers what is not there";
      if (const TunnelChains chains = tunnelChains(plan, covers); chains.problem)
        return chains.problem.text;
      for (const std::int32_t portal : {tunnel.portalA, tunnel.portalB})
        if (recordWithId(plan.content().scenery, portal) == nullptr)
          return "no portal";
    }
    for (const PlacedPiece& each : plan.pieces())
      if (each.helix != -1 && recordWithId(plan.content().helices, each.helix) == nullptr)
        return "no helix";
    for (const Helix& helix : plan.content().helices) {
      const auto shape = planOfHelix(plan, helix);
      if (!shape)
        return "no track of a helix";
      double pieces = shape->kit->turns * 360 / shape->kit->inner->angle;
      if (shape->kit->outer != nullptr)
        pieces += shape->kit->turns * 360 / shape->kit->outer->angle;
      if (std::abs(static_cast<double>(piecesOfHelix(plan, helix.id).size()) - pieces) > 0.1)
        return "pieces of a helix";
      const std::int32_t leave = shape->hand == HelixHand::Right ? 1 : 0;
      for (const std::int32_t top : {helix.topR1, helix.topR2})
        if (top != -1 &&
            std::abs(endHeight(plan, {top, leave}) - shape->height - shape->climb()) > 0.01)
          return "height of a helix";
      const WorldConnector end = worldEnd(*plan.findPiece(helix.bottomR1), 1 - leave);
      if (std::abs(std::hypot(end.x - helix.cx, end.y - helix.cy) - shape->kit->inner->radius) >
          0.01)
        return "centre of a helix";
    }
    return {};
  }

  bool decks() {
    LevelList levels(plan);
    const auto last = static_cast<int>(levels.size()) - 1;
    const auto place = static_cast<std::size_t>(any(0, last));
    if (last < 3)
      levels.add();
    else if (any(0, 3) == 0)
      levels.remove(place, any(0, 1) == 0 ? std::nullopt : std::optional((place + 1) % 4));
    levels.enterHeight(static_cast<std::size_t>(any(0, 1)), std::to_string(any(0, 20) * 0.4));
    levels.enterHeight(2, std::to_string(any(2, 4) * 40));
    return levels.apply(plan).changed;
  }

  bool move(bool turning) {
    SelectionMove move(plan, {piece.x, piece.y});
    turning ? move.turn({pose.x, pose.y}, pose.heading)
            : move.update({pose.x, pose.y}, any(0, 4) != 0, SnapIndex(plan));
    return move.commit(plan).changed;
  }

  bool drop() {
    const SnapResult snap = SnapIndex(plan).findSnap(*article, pose);
    return dropPiece(plan, article->article, pose, snap, any(0, 3) != 0).changed();
  }

  TrackEnd anyEnd() {
    const PlacedPiece& any = anyOf(plan.pieces());
    return {any.id, this->any(0, static_cast<int>(definitionOf(any)->connectors.size()) - 1)};
  }

  LoopRule anyRule() { return any(0, 2) == 0 ? LoopRule::Refuse : LoopRule::Spread; }

  TrainWay anyWay() {
    const std::vector<TrainWay> ways = trainWays(plan, {piece.id, any(0, 1)}, anyEnd());
    return ways.empty() ? wayThrough(plan, piece.id) : anyOf(ways);
  }

  bool apply(const HeightPlan& wanted) { return applyHeights(plan, wanted).changed; }

  bool grade() {
    GradeTask task = gradeOfPiece(plan, piece.id, anyEnd().connector);
    if (any(0, 1) == 0) {
      task.pieces = chainOf(plan, piece.id);
      if (const std::vector<TrackEnd> ends = outerEnds(plan, task.pieces); !ends.empty())
        task.start = anyOf(ends);
      task.towards = -1;
    }
    task.slope = any(-50, 50) / 1000.0;
    task.open = any(0, 1) == 0;
    task.loops = anyRule();
    return apply(planGrade(plan, task));
  }

  bool target() {
    TargetTask task{anyWay(), 0, TargetTask::Shape::OneGrade, any(0, 1) == 0};
    if (task.way.empty())
      return false;
    task.height = endHeight(plan, task.way.start()) + task.way.length() * any(-50, 50) / 1000;
    task.shape = any(0, 1) == 0 ? TargetTask::Shape::OneGrade : TargetTask::Shape::SteepThenLevel;
    task.loops = anyRule();
    return apply(planTarget(plan, task).heights);
  }

  bool pull() {
    const TrainWay way = wayThrough(plan, piece.id);
    const auto joint = static_cast<std::size_t>(any(0, static_cast<int>(way.stretches.size())));
    const double height = way.empty() ? 0 : heightOfJoint(way, joint) + any(-9, 9);
    const int how = any(0, 3);
    return apply(how == 0   ? planLiftAll(plan, way, joint, height)
                 : how == 1 ? planWithoutKnee(plan, way, joint, anyRule())
                            : planJointHeight(plan, way, joint, height, anyRule()));
  }

  bool insert() {
    std::optional<InsertSpot> spot;
    for (int more = 0; more < 4 && !spot; ++more) {
      pose = {piece.x + any(-5, 5), piece.y + any(-5, 5), piece.heading + any(0, 1) * 180};
      spot = findInsertSpot(plan, SnapIndex(plan), *article, pose);
      piece = anyOf(plan.pieces());
    }
    return spot && insertPiece(plan, article->article, *spot).changed();
  }

  bool mirror() {
    const auto line = mirrorLine(plan, static_cast<MirrorWay>(any(0, 2)));
    piece = {}; // joints inside the selection stay whichever it is
    return line && mirrorSelection(plan, *line, true).changed;
  }

  /// Beside a piece and those joined to it.
  bool parallel() {
    UndoScope step(plan);
    plan.reselect([&](const auto& record) {
      return record.id == piece.id || piece.joint(0).target == record.id ||
             piece.joint(1).target == record.id;
    });
    const PieceDef* definition = definitionOf(piece);
    const double spacing = definition ? parallelSpacing(definition->system) : 0;
    return layParallel(plan, any(0, 1) == 0 ? spacing : -spacing).edit.changed() && step.keep();
  }

  bool align() {
    UndoScope step(plan);
    plan.reselect([&](const auto&) { return any(0, 1) == 0; });
    leaveLocked();
    return (any(0, 3) == 0 ? distributeSelection(plan, static_cast<Axis>(any(0, 1)))
                           : alignSelection(plan, static_cast<AlignTo>(any(0, 5))))
               .changed &&
           step.keep();
  }

  /// Of shapes, which are kept few.
  bool corner() {
    const auto& shapes = plan.content().shapes;
    if (shapes.size() < 4) {
      const Point at{pose.x, pose.y};
      return addShape(plan, {at, {at.x + 300, at.y}, {at.x + 100, at.y + 200}}) != -1;
    }
    const Shape& shape = anyOf(shapes);
    const auto corner = static_cast<std::size_t>(any(0, static_cast<int>(shape.points.size())));
    const Point to{shape.points[0].x + any(-300, 300), shape.points[0].y + any(-300, 300)};
    switch (any(0, 2)) {
    case 0:
      return moveCorner(plan, {shape.id}, corner, to).changed;
    case 1:
      return addCorner(plan, {shape.id}, corner, to).changed;
    default:
      return removeCorner(plan, {shape.id}, corner).changed;
    }
  }

 protected:
  struct Edit {
    std::string_view name;
    bool (*run)(RandomEdits&); ///< true when it changed the plan, as one undo step
    bool remakesJoints = false;
    bool attaches = false; ///< one of the joints that it makes lies at one height
    int weight = 1;        ///< more for what is seldom possible
  };
  static const Edit kEdits[];

  /// The first six runs keep to one system each, the others mix them all.
  RandomEdits() : random_(GetParam()) {
    constexpr TrackSystem kSystems[] = {TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                        TrackSystem::ZTrack, TrackSystem::KTrack,
                                        TrackSystem::MTrack, TrackSystem::Gauge1};
    for (const PieceDef& definition : wholeCatalogue())
      if (GetParam() > 6 || definition.system == kSystems[GetParam() - 1])
        articles_.push_back(&definition);
    for (const std::int32_t id : {1, 2, 3}) {
      plan.ensureLevel(id);
      plan.editSettings().levels.back().height = id * 40;
    }
  }

  /// Mostly near an end of the plan, so that there is something to snap to.
  Pose anyPose() {
    const std::vector<PlacedEnd> ends = endsOf(plan);
    if (ends.empty() || any(0, 3) == 0)
      return {any(-1500, 1500) * 1.0, any(-1500, 1500) * 1.0, any(0, 71) * 5.0};
    const PlacedEnd& end = anyOf(ends);
    return {end.at.x + any(-20, 20), end.at.y + any(-20, 20), end.heading + any(-30, 30)};
  }

  /// Rolls the dice for the next edit. Pieces that were turned about far points until coordinates
  /// got coarse are deleted, and a part of a crowded plan.
  const Edit& next() {
    const auto loose = std::ranges::count(plan.pieces(), -1, &PlacedPiece::helix);
    const Edit* edit = loose < 3 ? &kEdits[0] : loose > 36 ? &kEdits[1] : anyOf(dice());
    for (Level& level : plan.editSettings().levels)
      level.visible = any(0, 3) != 0;
    for (PlacedPiece& each : plan.edit().pieces) {
      const bool far = std::hypot(each.x, each.y) > 50000;
      each.sel = any(0, 2) == 0 || far;
      edit = far ? &kEdits[1] : edit;
    }
    leaveLocked();
    piece = plan.pieces().empty() ? PlacedPiece{} : anyUnlocked();
    if (!plan.pieces().empty() && isLocked(piece.id))
      edit = &kEdits[1];
    article = any(0, 1) == 0 ? definitionOf(piece) : nullptr;
    if (article == nullptr)
      article = anyOf(articles_);
    pose = anyPose();
    return *edit;
  }

  /// Each kind as often as it weighs.
  static const std::vector<const Edit*>& dice();

 private:
  std::mt19937 random_;
  std::vector<const PieceDef*> articles_;
};

using R = RandomEdits;
const R::Edit R::kEdits[] = {
    {"drop", [](R& r) { return r.drop(); }},
    {"delete",
     [](R& r) {
       if (hasSelection(r.plan))
         return deleteSelection(r.plan);
       const auto& content = r.plan.content(); // all is locked
       return content.tunnels.empty()
                  ? !content.helices.empty() && deleteHelix(r.plan, content.helices[0].id)
                  : removeTunnels(r.plan, {content.tunnels[0].id});
     }},
    {"insert", [](R& r) { return r.insert(); }, false, true, 2},
    {"clone", [](R& r) { return cloneAndExtend(r.plan, r.piece.id).changed(); }, false, true},
    {"extend", [](R& r) { return extendSelected(r.plan, r.article->article).changed(); }, false,
     true},
    {"run",
     [](R& r) {
       const auto first = [&] { return extendSelected(r.plan, r.article->article); };
       return placeRun(r.plan, r.article->article, r.any(2, 8), {}, first).result.changed();
     },
     false, true},
    {"fill", [](R& r) { return r.fill(); }, false, true, 3},
    {"ring", [](R& r) { return r.ring(); }},
    {"swap", [](R& r) { return r.swap(); }, true},
    {"flip",
     [](R& r) {
       const auto how = flipOf(r.plan, r.piece.id, 1);
       return how && flip(r.plan, *how).changed;
     },
     true},
    {"move", [](R& r) { return r.move(false); }, true},
    {"turn", [](R& r) { return r.move(true); }, true},
    {"rotate", [](R& r) { return rotateSelection(r.plan, r.any(-3, 3) * 120.0).changed; }},
    {"nudge",
     [](R& r) { return nudgeSelection(r.plan, r.any(-2, 2), r.any(-2, 2), false).changed; }},
    {"pose",
     [](R& r) {
       const Pose at = poseOf(r.piece);
       return setPiecePose(r.plan, r.piece.id, {at.x, at.y, at.heading + r.any(-1, 1) * 180});
     },
     true},
    {"height", [](R& r) { return setTrackHeight(r.plan, r.piece.id, r.any(0, 9) * 0.4).changed; }},
    {"grade", [](R& r) { return r.grade(); }},
    {"target", [](R& r) { return r.target(); }},
    {"pull", [](R& r) { return r.pull(); }},
    {"raise", [](R& r) { return r.apply(planRaise(r.plan, r.piece.id, r.any(-9, 9))); }},
    {"ease", [](R& r) { return r.apply(planEase(r.plan, r.anyWay(), r.anyRule())); }, false, false,
     3},
    {"flatten",
     [](R& r) {
       const std::vector<std::int32_t> chain = chainOf(r.plan, r.piece.id);
       return r.apply(planLevel(r.plan, chain, {r.piece.id, 0}, r.anyRule()));
     },
     false, false, 2},
    {"end height",
     [](R& r) {
       const EndRule rule = r.any(0, 1) == 0 ? EndRule::LiftAll : EndRule::TiltPiece;
       return r.apply(planEndHeight(r.plan, r.anyEnd(), r.any(0, 9), rule, r.anyRule()));
     }},
    {"end of grade",
     [](R& r) {
       const auto& runs = r.plan.content().gradeRuns;
       return !runs.empty() && endGradeHere(r.plan, r.anyOf(runs).anchor);
     },
     false, false, 2},
    {"level",
     [](R& r) { return setSelectedLevel(r.plan, r.anyOf(r.plan.settings().levels).id).changed; }},
    {"colour",
     [](R& r) {
       const Color color{static_cast<std::uint8_t>(r.any(0, 1)), 0, 0};
       return setSelectedColor(r.plan, r.any(0, 1) == 0 ? std::nullopt : std::optional(color));
     }},
    {"cut", [](R& r) { return r.cut(); }},
    {"paste", [](R& r) { return r.place(r.copied, false); }},
    {"duplicate", [](R& r) { return r.place(blockFromSelection(r.plan), false); }},
    {"library", [](R& r) { return r.place(blockFromSelection(r.plan), true); }},
    {"scenery",
     [](R& r) {
       return dropScenery(r.plan, r.any(0, 1) == 0 ? "74861" : "72886", r.pose).changed();
     }},
    {"decks", [](R& r) { return r.decks(); }},
    {"mirror", [](R& r) { return r.mirror(); }, true},
    {"parallel", [](R& r) { return r.parallel(); }},
    {"align", [](R& r) { return r.align(); }},
    {"corner", [](R& r) { return r.corner(); }},
    {"tunnel", [](R& r) { return r.tunnel(); }},
    {"helix", [](R& r) { return r.helix(); }, true},
};

const std::vector<const R::Edit*>& R::dice() {
  static const std::vector<const Edit*> sides = [] {
    std::vector<const Edit*> each;
    for (const Edit& edit : kEdits)
      each.insert(each.end(), static_cast<std::size_t>(edit.weight), &edit);
    return each;
  }();
  return sides;
}

TEST_P(RandomEdits, KeepThePlanSoundAndUndoExact) {
  std::printf("seed %u\n", GetParam());
  std::map<std::string_view, int> done;
  const int edits = editsOfARun();
  for (int number = 0; number < edits; ++number) {
    const Edit& edit = next();
    const PlanContent before = plan.content();
    const bool undone = plan.canRedo();
    const Joints joints = jointsOf(plan);
    SCOPED_TRACE(std::string(edit.name) + ", edit " + std::to_string(number));
    if (!edit.run(*this)) {
      ASSERT_TRUE(plan.content() == before && plan.canRedo() == undone);
      continue;
    }
    ++done[edit.name];
    ASSERT_EQ(brokenRule(plan), "");
    ASSERT_EQ(brokenBody(), "");
    double leastStep = 1;
    for (const auto& [ends, play] : jointsOf(plan)) {
      // Joints that stay get no more play, new ones have at most what their rule allows. A move
      // opens the joints around the group and may find their ends to meet again.
      // A mirrored piece has the joints it had, at its twin's ends.
      const bool mirrored =
          edit.name == "mirror" && plan.findPiece(ends[0])->sel && plan.findPiece(ends[2])->sel;
      const auto old = mirrored ? std::ranges::find_if(joints,
                                                       [&ends = ends](const auto& joint) {
                                                         return joint.first[0] == ends[0] &&
                                                                joint.first[2] == ends[2];
                                                       })
                                : joints.find(ends);
      const bool around = plan.findPiece(ends[0])->sel != plan.findPiece(ends[2])->sel ||
                          edit.name == "swap" || ends[0] == piece.id || ends[2] == piece.id;
      const bool is = old != joints.end() && !(edit.remakesJoints && around);
      const double facing = edit.name == "fill" ? 10.0 : 1.0;
      const double rounding = mirrored                 ? 2 * kTwinPlay
                              : edit.name == "library" ? 1e-3 // a file has four decimals
                                                       : 1e-6;
      ASSERT_LE(play.distance, (is ? old->second.distance : 1.0) + rounding);
      ASSERT_LE(play.heading, (is ? old->second.heading : facing) + rounding);
      // Nor do they get more of a step in height; track that is attached has none.
      ASSERT_LE(std::abs(play.step), (is ? std::abs(old->second.step) : 1.0) + rounding);
      if (old == joints.end())
        leastStep = std::min(leastStep, std::abs(play.step));
    }
    ASSERT_LE(leastStep, edit.attaches ? 0.01 : 1.0);
    const PlanContent after = plan.content();
    ASSERT_TRUE(plan.undo());
    ASSERT_TRUE(plan.content() == before);
    ASSERT_TRUE(plan.redo());
    ASSERT_TRUE(plan.content() == after);
    if (number % 16 == 0)
      expectSavedAlike();
    for (int back = any(0, 40); back > 36; --back) // now and then some steps back
      plan.undo();
  }
  for (const Edit& edit : kEdits)
    EXPECT_GT(done[edit.name], edits / 2000) << edit.name;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 9U));

} // namespace
} // namespace trassix
