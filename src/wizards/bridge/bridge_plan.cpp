#include "wizards/bridge/bridge_plan.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "document/reselecting.h"
#include "document/undo_scope.h"
#include "editing/elevation/crossings.h"
#include "editing/joining/joining.h"
#include "editing/supports/bridge_kind.h"
#include "editing/track/connector_geometry.h"
#include "wizards/bridge/bridge_checks.h"
#include "wizards/bridge/bridge_draft.h"
#include "wizards/bridge/span_composing.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <type_traits>
#include <utility>

namespace trassix {

namespace {

constexpr double kNearJoint = 3; // mm

/// What is told of a draft. `along` of a plan begins where the draft's `from` is.
class Teller {
 public:
  Teller(const Layout& before, const BridgeDraft& draft, const BridgeTask& task)
      : before_(before), draft_(draft), task_(task),
        start_(draft.line.joints().empty() ? 0 : draft.line.joints()[draft.from]) {}

  BridgePlan tell() {
    plan_.refusal = draft_.refusal;
    if (!draft_.site.way.empty())
      tellCrossed();
    if (!plan_.possible())
      return std::move(plan_);
    plan_.deckHeight = draft_.deckHeight;
    plan_.residue = draft_.residue;
    plan_.seriesFits = draft_.onSeries;
    for (std::size_t i = draft_.from; i < draft_.to; ++i)
      plan_.pieces.push_back(stretch(i).piece);
    tellSpans();
    tellRamps();
    tellPiers();
    tellArticles();
    tellSide();
    tellRemarks();
    return std::move(plan_);
  }

 private:
  const WayStretch& stretch(std::size_t i) const { return draft_.site.way.stretches[i]; }
  const PieceDef& definitionAt(std::size_t i) const {
    return *definitionOf(*draft_.layout.findPiece(stretch(i).piece));
  }
  double along(std::size_t joint) const { return draft_.line.joints()[joint] - start_; }

  void tellCrossed() {
    double spare = 1e9;
    for (const CrossedZone& zone : draft_.zones) {
      CrossedThing thing = zone.thing;
      thing.along -= start_;
      thing.least = leastOver(zone, task_);
      thing.clearance = clearanceUnder(draft_, zone);
      spare = std::min(spare, thing.clearance - thing.least);
      plan_.crossed.push_back(std::move(thing));
    }
    plan_.spare = draft_.zones.empty() ? 0 : spare;
  }

  void tellSpans() {
    for (std::size_t i = draft_.first; i < draft_.last; ++i) {
      const PieceDef& definition = definitionAt(i);
      const bool bridge = bridgeKindOf(definition) != BridgeKind::None;
      if (!bridge && !plan_.spans.empty() && plan_.spans.back().kind == SpanKind::Deck) {
        plan_.spans.back().pieces.push_back(stretch(i).piece);
        plan_.spans.back().to = along(i + 1);
        continue;
      }
      BridgeSpan span;
      span.kind = kindOf(definition);
      span.pieces = {stretch(i).piece};
      span.article = bridge ? definition.article : std::string();
      span.from = along(i);
      span.to = along(i + 1);
      plan_.spans.push_back(std::move(span));
    }
  }

  void tellRamps() {
    for (const auto& [from, to] :
         {std::pair(draft_.from, draft_.first), std::pair(draft_.last, draft_.to)}) {
      if (from >= to)
        continue;
      BridgeRamp ramp;
      ramp.pieces = to - from;
      ramp.from = along(from);
      ramp.to = along(to);
      ramp.rise = std::abs(stretch(to - 1).to - stretch(from).from);
      for (std::size_t i = from; i < to; ++i) {
        const double slope = std::abs(stretch(i).slope());
        ramp.steepest = std::max(ramp.steepest, slope);
        ramp.felt = std::max(ramp.felt, slope + curveResistance(definitionAt(i), stretch(i).enter,
                                                                stretch(i).leave));
      }
      plan_.ramps.push_back(ramp);
    }
  }

  void tellPiers() {
    std::vector<std::int32_t> own = plan_.pieces;
    std::ranges::sort(own);
    for (const Support& support : draft_.supports.supports) {
      if (support.kind == SupportKind::Rod || !containsId(own, support.piece))
        continue;
      const TrackSystem system = definitionAt(draft_.from).system;
      BridgePier pier;
      pier.portal = support.kind == SupportKind::Portal;
      pier.at = {support.pose.x, support.pose.y};
      pier.depth = support.along;
      pier.foot = support.foot;
      pier.head = support.head;
      pier.stack = stackFor(system, pier.height());
      pier.along = nearestAlong(support) - start_;
      plan_.piers.push_back(pier);
    }
    std::ranges::stable_sort(plan_.piers, {}, &BridgePier::along);
  }

  /// The place of the way nearest to a support; of a frame the joint that its beam carries.
  double nearestAlong(const Support& support) const {
    double best = 1e18;
    double found = 0;
    const auto look = [&](double at) {
      const Pose pose = draft_.line.poseAt(at);
      double off = std::hypot(pose.x - support.pose.x, pose.y - support.pose.y);
      if (support.kind == SupportKind::Portal) {
        const double turn = toRadians(support.pose.heading);
        off = std::abs((pose.x - support.pose.x) * std::cos(turn) +
                       (pose.y - support.pose.y) * std::sin(turn));
      }
      if (off < best - 1e-6) {
        best = off;
        found = at;
      }
    };
    for (std::size_t i = draft_.from; i <= draft_.to; ++i)
      look(draft_.line.joints()[i]);
    if (best > kNearJoint && support.kind != SupportKind::Portal)
      for (std::size_t i = draft_.from; i < draft_.to; ++i)
        for (double at = draft_.line.joints()[i]; at < draft_.line.joints()[i + 1]; at += 1)
          look(at);
    return found;
  }

  void tellArticles() {
    std::map<std::string, std::int32_t> counts;
    for (const PlacedPiece& piece : draft_.layout.pieces())
      ++counts[piece.cat];
    for (const PlacedPiece& piece : before_.pieces())
      --counts[piece.cat];
    for (const auto& [article, count] : counts)
      if (count != 0) {
        const PieceDef* definition = TrackCatalog::instance().find(article);
        plan_.articles.push_back(
            {article, definition == nullptr ? article : definition->name, count});
      }
  }

  void tellSide() {
    const TrackSystem system = definitionAt(draft_.from).system;
    plan_.side.railTop = railTop(system);
    plan_.side.deck = kDeckThickness;
    for (std::size_t i = draft_.from; i <= draft_.to; ++i)
      plan_.side.rails.push_back({along(i), i < draft_.to ? stretch(i).from : stretch(i - 1).to});
  }

  void tellRemarks() {
    if (task_.way == BridgeWay::AsItLies && plan_.piers.empty())
      plan_.remarks.push_back(
          tr("The track lies on the ground there, so that no pier has anything to "
             "carry: lift it first, or cut the valley out of the board."));
    for (std::size_t i = draft_.from; i < draft_.to; ++i) {
      const bool inRamp = i < draft_.first || i >= draft_.last;
      if (inRamp && definitionAt(i).connectors.size() > 2)
        plan_.remarks.push_back(
            tr("%1% lies in a ramp: trains run badly where the grade changes in a "
               "turnout or right beside it.",
               {definitionAt(i).article}));
    }
    const auto offBoard = [](const SupportSpan& span) {
      return span.reason == SupportSpan::Reason::Ground;
    };
    for (const SupportSpan& span : draft_.supports.spans)
      if (offBoard(span) && std::ranges::any_of(span.pieces, [this](std::int32_t id) {
            return std::ranges::find(plan_.pieces, id) != plan_.pieces.end();
          })) {
        plan_.remarks.push_back(
            tr("Part of it lies beyond the baseboard, where no pier can stand."));
        break;
      }
  }

  const Layout& before_;
  const BridgeDraft& draft_;
  const BridgeTask& task_;
  double start_;
  BridgePlan plan_;
};

} // namespace

double BridgePlan::steepest() const {
  double slope = 0;
  for (const BridgeRamp& ramp : ramps)
    slope = std::max(slope, ramp.steepest);
  return slope;
}

std::size_t BridgePlan::portals() const {
  return static_cast<std::size_t>(std::ranges::count_if(piers, &BridgePier::portal));
}

double proposedClearance(TrackSystem system, bool wire) {
  return leastClearance(system, wire);
}

BridgePlan planBridge(const Layout& layout, const BridgeTask& task) {
  return Teller(layout, draftBridge(layout, task), task).tell();
}

EditResult applyBridge(Layout& layout, const BridgeTask& task) {
  BridgeDraft draft = draftBridge(layout, task);
  if (draft.refusal)
    return {{}, std::move(draft.refusal)};
  std::vector<std::int32_t> own;
  for (std::size_t i = draft.from; i < draft.to; ++i)
    own.push_back(draft.site.way.stretches[i].piece);
  std::ranges::sort(own);
  UndoScope step(layout);
  layout.edit() = draft.layout.content();
  while (layout.nextPieceId() < draft.layout.nextPieceId())
    layout.takeId();
  layout.reselect([&own](const auto& record) {
    using Record = std::remove_cvref_t<decltype(record)>;
    return Record::kKind == RecordKind::Piece && containsId(own, record.id);
  });
  return step.keep() ? EditResult{std::move(own), {}} : EditResult();
}

} // namespace trassix
