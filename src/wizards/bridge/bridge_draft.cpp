#include "wizards/bridge/bridge_draft.h"

#include "catalog/scenery_catalog.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/grade_edits.h"
#include "editing/elevation/hump.h"
#include "editing/supports/pier_stacks.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"
#include "wizards/bridge/bridge_checks.h"
#include "wizards/bridge/bridge_spans.h"
#include "wizards/bridge/ramp_pieces.h"
#include "wizards/bridge/span_composing.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace trassix {

namespace {

constexpr int kMostRounds = 12;            // of what a ramp comes over in turn
constexpr int kMostAdded = 150;            // straights
constexpr int kMostForSeries = 24;         // of them, to find a place where the series fits
constexpr double kFullPierShare = 1.0 / 6; // of a pier more, that a bridge may lie higher
constexpr double kSamePlace = 2;           // mm

std::string percentText(double slope) {
  return formatFixed(percentOf(slope), 1);
}

class Drafter {
 public:
  Drafter(const Layout& layout, const BridgeTask& task) : before_(layout), task_(task) {}

  BridgeDraft run() {
    for (int round = 0; round < kMostRounds; ++round) {
      draft_ = BridgeDraft();
      again_ = false;
      draft_.layout = before_;
      build();
      if (!again_)
        return std::move(draft_);
    }
    refuse(tr("The ramps come over more and more other track. Lead over at another place, or allow "
              "steeper ones."));
    return std::move(draft_);
  }

 private:
  TrainWay& way() { return draft_.site.way; }
  std::int32_t units() const { return before_.settings().units; }
  TrackSystem system() {
    return definitionOf(*draft_.layout.findPiece(way().stretches.front().piece))->system;
  }
  void refuse(std::string text) { draft_.refusal = bridgeRefusal(std::move(text)); }
  std::string mm(double length) const { return formatLength(length, units()); }

  void build() {
    draft_.site = prepareSite(draft_.layout, task_);
    if ((draft_.refusal = draft_.site.refusal))
      return;
    renewLine(draft_);
    meanMore();
    turnToOwnTrack();
    if (task_.way == BridgeWay::AsItLies)
      return bridgeAsItLies();
    if (draft_.zones.empty() && task_.way == BridgeWay::LiftOver)
      return refuse(tr("The selected track crosses nothing. Select the track that is to lead over, "
                       "where it crosses what it is to lead over."));
    if (!chooseHeight() || turnoutInTheWay())
      return;
    if (draft_.zones.empty())
      return bridgeOverNothing();
    const SpansMade spans = makeSpans(draft_, task_, draft_.deckHeight);
    if ((draft_.refusal = spans.refusal))
      return;
    if (spans.needsPortals && !portals_)
      return goAgainWithPortals();
    spanFrom_ = spans.from;
    spanTo_ = spans.to;
    lift();
  }

  void goAgainWithPortals() {
    portals_ = true;
    again_ = true;
  }

  /// Stretches over what a ramp of an earlier round came over are meant as well.
  void meanMore() {
    if (alsoOver_.empty())
      return;
    const std::vector<bool> all(draft_.line.stretches(), true);
    for (const CrossedZone& zone : zonesOf(draft_.layout, draft_.line, all))
      if (isAmong(alsoOver_, zone.thing.at))
        draft_.site.meant[draft_.line.stretchAt(zone.thing.along)] = true;
    renewLine(draft_);
  }

  static bool isAmong(const std::vector<Point>& places, Point at) {
    return std::ranges::any_of(places, [at](Point place) {
      return std::hypot(place.x - at.x, place.y - at.y) < kSamePlace;
    });
  }

  /// Where the way comes round and crosses itself, it begins with its lower part, so that both
  /// ramps lie between that and the bridge.
  void turnToOwnTrack() {
    const auto zone = std::ranges::find_if(
        draft_.zones, [](const CrossedZone& each) { return !each.own.empty(); });
    if (!draft_.site.round || zone == draft_.zones.end())
      return;
    const std::size_t count = draft_.line.stretches();
    const auto isFirst = [&](std::size_t stretch) {
      return !std::ranges::binary_search(zone->own, (stretch + count - 1) % count);
    };
    const auto first = std::ranges::find_if(zone->own, isFirst);
    beginWith(draft_.site, first == zone->own.end() ? zone->own.front() : *first);
    renewLine(draft_);
  }

  double baseHeight() {
    return endHeight(draft_.layout, task_.way == BridgeWay::FromEnd ? task_.end : way().start());
  }

  bool chooseHeight() {
    double needed = draft_.zones.empty() ? baseHeight() + railTop(system()) + kDeckThickness +
                                               clearanceOf(task_, system())
                                         : -1e9;
    for (const CrossedZone& zone : draft_.zones)
      needed = std::max(needed, zone.top + neededOver(zone, task_, system(), portals_));
    draft_.deckHeight = needed;
    if (task_.way == BridgeWay::LiftOver) // never down
      for (const CrossedZone& zone : draft_.zones)
        draft_.deckHeight = std::max(
            {draft_.deckHeight, draft_.line.heightAt(zone.from), draft_.line.heightAt(zone.to)});
    if (task_.deckHeight > 0) {
      draft_.deckHeight = task_.deckHeight;
      if (task_.deckHeight < needed - 0.05)
        refuse(tr("A deck at %1% is too low: with this clearance it has to lie at %2%.",
                  {mm(task_.deckHeight), mm(needed)}));
    }
    return !draft_.refusal;
  }

  bool turnoutInTheWay() {
    for (const CrossedZone& zone : draft_.zones)
      for (std::size_t i = draft_.line.stretchAt(zone.from); i <= draft_.line.stretchAt(zone.to);
           ++i) {
        const PieceDef& definition =
            *definitionOf(*draft_.layout.findPiece(way().stretches[i].piece));
        if (definition.connectors.size() <= 2)
          continue;
        refuse(
            tr("%1% would lie inside a span, where no turnout can be. Move it by at least %2%, or "
               "lead over at another place.",
               {definition.article, mm(zone.to - zone.from)}));
        return true;
      }
    return false;
  }

  // Heights.

  /// The joints that the ramps must stay between.
  struct Bounds {
    std::size_t from = 0;
    std::size_t to = 0;
  };
  Bounds boundsAround(std::size_t first, std::size_t last) {
    const auto& stretches = way().stretches;
    const auto stays = [&](std::size_t i) {
      const PlacedPiece& piece = *draft_.layout.findPiece(stretches[i].piece);
      const PieceDef& definition = *definitionOf(piece);
      const bool own = std::ranges::any_of(draft_.zones, [i](const CrossedZone& zone) {
        return std::ranges::binary_search(zone.own, i);
      });
      return own || !takesGrade(piece) || definition.kind == PieceKind::Crossing ||
             definition.kind == PieceKind::DoubleSlip || draft_.layout.isCovered(piece.id);
    };
    Bounds bounds{first, last};
    const std::size_t least = draft_.site.round ? 1 : 0;
    while (bounds.from > least && !stays(bounds.from - 1))
      --bounds.from;
    while (bounds.to < stretches.size() && !stays(bounds.to))
      ++bounds.to;
    return bounds;
  }

  void placeBridge() {
    double from = spanFrom_;
    double to = spanTo_;
    for (const CrossedZone& zone : draft_.zones) {
      from = std::min(from, zone.from);
      to = std::max(to, zone.to);
    }
    draft_.first = draft_.line.lastJointUpTo(from);
    draft_.last = draft_.line.firstJointFrom(to);
    startsEarly_ = from < -0.01;
    endsLate_ = to > draft_.line.length() + 0.01;
  }

  HumpTask humpTask() {
    HumpTask task;
    task.way = way();
    task.first = draft_.first;
    task.last = draft_.last;
    const Bounds bounds = boundsAround(draft_.first, draft_.last);
    task.from = bounds.from;
    task.to = bounds.to;
    task.height = draft_.deckHeight;
    task.limit = task_.limit;
    task.shortest = task_.rampLength;
    return task;
  }

  /// For each joint what piers of the series reach, over what they stand on.
  std::vector<std::vector<double>> pierHeights(double deck) {
    const Grounds grounds(draft_.layout);
    std::vector<std::vector<double>> allowed;
    for (const double along : draft_.line.joints()) {
      const Pose pose = draft_.line.poseAt(along);
      const Ground ground = grounds.below({pose.x, pose.y}, deck);
      std::vector<double> heights = stackHeights(system(), deck - ground.height);
      for (double& height : heights)
        height += ground.height;
      allowed.push_back(std::move(heights));
    }
    return allowed;
  }

  /// By how much the bridge may lie higher than it needs to, for the sake of its piers.
  double mostHigher() {
    return pierStep(system()) * (task_.piers == PierHeights::SeriesOnly ? 1 : kFullPierShare);
  }

  /// Even ramps, with the bridge on piers that need no shim, where those are hardly higher.
  bool onFullPiers(HumpTask task, HumpPlan& plan) {
    if (task_.piers != PierHeights::Preferred || task_.deckHeight > 0)
      return false;
    const double most = task.height + mostHigher();
    const std::vector<double> heights = pierHeights(most)[task.first];
    const auto next = std::ranges::lower_bound(heights, task.height - 0.05);
    if (next == heights.end() || *next <= task.height)
      return false;
    task.height = *next;
    plan = planHump(draft_.layout, task);
    if (plan.possible())
      draft_.deckHeight = task.height;
    return plan.possible();
  }

  /// Ramps by the piers of the series, with the bridge as high as needed or a little higher.
  bool seriesHump(HumpTask task, HumpPlan& plan) {
    const double least = task.height;
    const double most = task_.deckHeight > 0 ? least : least + mostHigher();
    const std::vector<std::vector<double>> highest = pierHeights(most);
    for (const double height : highest[task.first]) {
      if (height < least - 0.05)
        continue;
      task.height = height;
      task.allowed = highest;
      plan = planHump(draft_.layout, task);
      if (!plan.possible())
        continue;
      draft_.deckHeight = height;
      return true;
    }
    return false;
  }

  void lift() {
    HumpPlan plan;
    for (int added = 0;;) {
      placeBridge();
      const HumpTask task = humpTask();
      if (!startsEarly_ && !endsLate_) {
        draft_.onSeries = task_.piers != PierHeights::Any && seriesHump(task, plan);
        if (draft_.onSeries)
          break;
        if (onFullPiers(task, plan))
          break;
        plan = planHump(draft_.layout, task);
        if (plan.possible() && task_.piers != PierHeights::SeriesOnly)
          break;
      }
      const int count = addTrack(task, plan);
      if (count == 0)
        return tellTooShort(task, plan);
      added += count;
      const bool forSeries = plan.possible() && task_.piers == PierHeights::SeriesOnly;
      if (added > (forSeries ? kMostForSeries : kMostAdded))
        return tellTooShort(task, plan);
    }
    if (comesOverMore(plan))
      return;
    draft_.from = plan.up.foot;
    draft_.to = plan.down.foot;
    if (apply(plan))
      check();
  }

  /// Straights at an open end where the way is too short; how many.
  int addTrack(const HumpTask& task, const HumpPlan& plan) {
    const bool all = plan.possible() && !startsEarly_ && !endsLate_; // but for the series
    for (const bool atStart : {true, false}) {
      const bool outside = atStart ? startsEarly_ : endsLate_;
      const HumpRamp& ramp = atStart ? plan.up : plan.down;
      const bool atEnd = atStart ? task.from == 0 : task.to == way().stretches.size();
      if ((!outside && ramp.possible && !all) || !atEnd ||
          !mayLengthen(draft_.layout, draft_.site, atStart))
        continue;
      const PieceDef* straight = usualStraight(system());
      if (straight == nullptr)
        continue;
      const int count =
          outside || all ? 1 : std::clamp(static_cast<int>(ramp.missing / straight->length), 1, 40);
      lengthen(draft_.layout, draft_.site, atStart, count);
      const double by = atStart ? count * straight->length : 0;
      spanFrom_ += by;
      spanTo_ += by;
      renewLine(draft_);
      return count;
    }
    return 0;
  }

  void tellTooShort(const HumpTask& task, const HumpPlan& plan) {
    if (task_.span == SpanKind::Auto && spanFrom_ < spanTo_) { // a deck may be shorter
      task_.span = SpanKind::Deck;
      again_ = true;
      return;
    }
    if (startsEarly_ && task_.way == BridgeWay::FromEnd) {
      const HumpRamp none{false, 0, 0, (draft_.deckHeight - baseHeight()) / task_.limit, 0};
      const Pose end = draft_.line.poseAt(0);
      draft_.refusal = rampTooShort(none, {end.x, end.y}, task_.limit, units());
      return;
    }
    if (startsEarly_ || endsLate_)
      return refuse(tr("The track ends over what it is to lead over. Go on with it first."));
    if (plan.possible() && task_.piers == PierHeights::SeriesOnly)
      return refuse(
          task_.limit < kMostBridgeLimit
              ? tr("With a limit of %1% %% the ramps cannot follow the heights of the pier "
                   "series. Allow up to %2% %%, or piers of any height.",
                   {percentText(task_.limit), percentText(kMostBridgeLimit)})
              : tr("The way is too short for ramps by the heights of the pier series. Make "
                   "it longer, or allow piers of any height."));
    const bool up = !plan.up.possible;
    const Pose foot = draft_.line.poseAt(draft_.line.joints()[up ? task.from : task.to]);
    draft_.refusal = rampTooShort(up ? plan.up : plan.down, {foot.x, foot.y}, task_.limit, units());
  }

  /// Whether the ramps, as planned, come too low over something else, which then has to be among
  /// what is led over.
  bool comesOverMore(const HumpPlan& plan) {
    TrainWay raised = way();
    std::vector<bool> meant = draft_.site.meant;
    for (std::size_t i = 0; i < raised.stretches.size(); ++i) {
      raised.stretches[i].from = plan.heights[i];
      raised.stretches[i].to = plan.heights[i + 1];
      if (i >= plan.up.foot && i < plan.down.foot)
        meant[i] = true;
    }
    const BridgeLine line(draft_.layout, raised);
    std::vector<Point> known;
    for (const CrossedZone& zone : draft_.zones)
      known.push_back(zone.thing.at);
    for (const CrossedZone& zone : zonesOf(draft_.layout, draft_.line, meant))
      if (!isAmong(known, zone.thing.at) && !isAmong(alsoOver_, zone.thing.at) &&
          clearanceOver(zone, line) < leastOver(zone, task_)) {
        alsoOver_.push_back(zone.thing.at);
        again_ = true;
      }
    return again_;
  }

  bool apply(const HumpPlan& plan) {
    const auto from = static_cast<std::ptrdiff_t>(plan.up.foot);
    const auto to = static_cast<std::ptrdiff_t>(plan.down.foot);
    TrainWay changed;
    changed.stretches.assign(way().stretches.begin() + from, way().stretches.begin() + to);
    const HeightPlan heights = planProfile(
        draft_.layout, changed,
        std::span(plan.heights).subspan(plan.up.foot, plan.down.foot - plan.up.foot + 1));
    if (heights.refusal) {
      draft_.refusal = bridgeRefusal(heights.refusal->text);
      if (heights.gap)
        draft_.refusal->text.append(" ").append(
            tr("Track that branches off within the ramps or the bridge cannot be lifted without "
               "being opened. Lead over at another place, or open it there."));
      return false;
    }
    applyHeights(draft_.layout, heights, true);
    if (task_.rampPieces) {
      const auto ramps = std::span<const WayStretch>(way().stretches);
      useRampPieces(draft_.layout, ramps.subspan(draft_.from, draft_.first - draft_.from));
      useRampPieces(draft_.layout, ramps.subspan(draft_.last, draft_.to - draft_.last));
    }
    renewHeights(draft_.layout, way());
    draft_.line = BridgeLine(draft_.layout, way());
    return true;
  }

  void check() {
    BridgeFault fault = faultOf(before_, draft_, task_);
    if (fault.refusal && fault.wantsPortal && !portals_ && task_.way != BridgeWay::AsItLies)
      return goAgainWithPortals();
    draft_.refusal = std::move(fault.refusal);
  }

  // Without anything to lead over, and without ramps.

  /// One span as soon as the ramp is up.
  void bridgeOverNothing() {
    const std::vector<const PieceDef*> bridges = bridgePieces(system(), task_.span);
    if (bridges.empty() && task_.span != SpanKind::Auto && task_.span != SpanKind::Deck)
      return refuse(tr("The system has no bridge of this kind (%1%). Choose a deck, on which plain "
                       "track lies.",
                       {nameOf(task_.span)}));
    for (int added = 0; added < kMostAdded; ++added) {
      for (std::size_t first = 1; first + 2 <= way().stretches.size(); ++first) {
        draft_.first = first;
        draft_.last = first + 1;
        if (!planHump(draft_.layout, humpTask()).up.possible)
          continue;
        spanFrom_ = draft_.line.joints()[first];
        spanTo_ = draft_.line.joints()[first + 1];
        for (std::size_t to = first + 1; to <= first + 2; ++to) {
          const auto row =
              composeRow(draft_.line, bridges, first, to, [](double) { return false; });
          if (!row || !replaceStretches(draft_.layout, draft_.site, first, to, row->row))
            continue;
          spanTo_ = draft_.line.joints()[to];
          break;
        }
        renewLine(draft_);
        return lift();
      }
      lengthen(draft_.layout, draft_.site, false, 1);
      renewLine(draft_);
    }
    refuse(tr("The ramp would be longer than a plan has any use for. Allow a steeper one."));
  }

  void bridgeAsItLies() {
    const std::vector<bool>& meant = draft_.site.meant;
    const auto chosen = [&meant] {
      const auto first = std::ranges::find(meant, true);
      const auto last = std::find(meant.rbegin(), meant.rend(), true);
      return Bounds{static_cast<std::size_t>(first - meant.begin()),
                    static_cast<std::size_t>(last.base() - meant.begin())};
    };
    const Bounds bounds = chosen();
    const SpansMade spans = makeSpansAlong(draft_, task_, bounds.from, bounds.to);
    if ((draft_.refusal = spans.refusal))
      return;
    const Bounds now = chosen();
    draft_.from = draft_.first = now.from;
    draft_.to = draft_.last = now.to;
    draft_.deckHeight = draft_.line.heightAt(draft_.line.joints()[now.from]);
    check();
  }

  const Layout& before_;
  BridgeTask task_;
  BridgeDraft draft_;
  bool portals_ = false;
  bool again_ = false;
  std::vector<Point> alsoOver_;
  double spanFrom_ = 0;
  double spanTo_ = 0;
  bool startsEarly_ = false;
  bool endsLate_ = false;
};

} // namespace

BridgeDraft draftBridge(const Layout& layout, const BridgeTask& task) {
  return Drafter(layout, task).run();
}

} // namespace trassix
