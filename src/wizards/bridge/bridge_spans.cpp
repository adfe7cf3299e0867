#include "wizards/bridge/bridge_spans.h"

#include "catalog/plain_track.h"
#include "document/plan_content.h"
#include "editing/supports/bridge_kind.h"
#include "editing/supports/grounds.h"
#include "editing/supports/pier_room.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"
#include "wizards/bridge/span_composing.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace trassix {

namespace {

constexpr double kStepShare = 1.0 / 90; // of a span: how closely places of piers are looked at
constexpr double kGapsTogether = 0.4;   // of a span: no pier stands between gaps nearer to another
constexpr double kLongestGap = 2;       // of spans; more is track beside other track
constexpr double kSpareShare = 0.03;    // of a span, which piers beside a gap may lose
constexpr std::size_t kMostInARow = 3;  // bridge pieces of a kind that was asked for
constexpr std::size_t kCarriedBeyond = 6; // stretches that rise with those over a zone, about

struct Gap {
  double from = 0;
  double to = 0;
};

TrackSystem systemOf(const BridgeDraft& draft) {
  const WayStretch& first = draft.site.way.stretches.front();
  return definitionOf(*draft.layout.findPiece(first.piece))->system;
}

bool isOwnLower(const BridgeDraft& draft, std::size_t stretch) {
  return std::ranges::any_of(draft.zones, [stretch](const CrossedZone& zone) {
    return std::ranges::binary_search(zone.own, stretch);
  });
}

std::vector<Gap> gapsUnder(const BridgeDraft& draft, const std::function<bool(double)>& blocked) {
  const double longest = longestSpan(systemOf(draft));
  const double step = longest * kStepShare;
  std::vector<Gap> gaps;
  for (const CrossedZone& zone : draft.zones) {
    Gap gap{zone.from, zone.to};
    if (blocked(zone.thing.along)) {
      gap = {zone.thing.along, zone.thing.along};
      const auto goesOn = [&](double at) {
        return blocked(at) && std::abs(at - zone.thing.along) < 8 * longest;
      };
      while (goesOn(gap.from))
        gap.from -= step;
      while (goesOn(gap.to))
        gap.to += step;
    }
    gaps.push_back(gap);
  }
  std::ranges::sort(gaps, {}, &Gap::from);
  std::vector<Gap> joined;
  for (const Gap& gap : gaps) {
    if (!joined.empty() && gap.from < joined.back().to + kGapsTogether * longest)
      joined.back().to = std::max(joined.back().to, gap.to);
    else
      joined.push_back(gap);
  }
  return joined;
}

class SpanMaker {
 public:
  SpanMaker(BridgeDraft& draft, const BridgeTask& task, double height)
      : draft_(draft), task_(task), height_(height),
        blocked_(blockedUnder(draft, PierWidth::Full, height)), system_(systemOf(draft)),
        bridges_(bridgePieces(system_, task.span)) {}

  SpansMade over() {
    std::vector<Gap> gaps = gapsUnder(draft_, blocked_);
    // Beside other track, which no bridge leads over, only narrow piers find room.
    if (std::ranges::any_of(gaps, [this](const Gap& gap) {
          return gap.to - gap.from > kLongestGap * longestSpan(system_);
        })) {
      blocked_ = blockedUnder(draft_, PierWidth::Narrow, height_);
      gaps = gapsUnder(draft_, blocked_);
    }
    made_.from = draft_.line.length();
    for (auto gap = gaps.rbegin(); gap != gaps.rend() && !made_.refusal; ++gap)
      span(*gap);
    return made_;
  }

 private:
  void span(const Gap& gap) {
    const SpanGap task{gap.from, gap.to, replaceable(draft_), blocked_};
    const std::size_t most = task_.span == SpanKind::Auto ? 1 : kMostInARow;
    for (const PieceDef* bridge : bridges_) {
      const std::optional<SpanRow> row = composeSpan(draft_.line, *bridge, task, most);
      if (row && take(*row))
        return;
    }
    if (task_.span != SpanKind::Auto && task_.span != SpanKind::Deck)
      made_.refusal = refusalOf(gap, task);
    else if (gap.to - gap.from > longestSpan(system_) * (1 - kSpareShare))
      made_.needsPortals = true;
  }

  /// False where the neighbours do not lie as their lengths tell, as where a loop was closed with
  /// play.
  bool take(const SpanRow& span) {
    double at = draft_.line.joints()[span.from];
    if (!replaceStretches(draft_.layout, draft_.site, span.from, span.to, span.row))
      return false;
    for (const PieceDef* piece : span.row) {
      if (bridgeKindOf(*piece) != BridgeKind::None) {
        made_.from = std::min(made_.from, at);
        made_.to = std::max(made_.to, at + piece->length);
      }
      at += piece->length;
    }
    draft_.residue = std::max(draft_.residue, span.residue);
    made_.needsPortals = made_.needsPortals || span.portals > 0;
    renewLine(draft_);
    return true;
  }

  Notice refusalOf(const Gap& gap, const SpanGap& task) const {
    const std::string name = nameOf(task_.span);
    if (bridges_.empty())
      return bridgeRefusal(
          tr("The system has no bridge of this kind (%1%). Choose a deck, on which "
             "plain track lies.",
             {name}));
    const std::size_t first = draft_.line.stretchAt(gap.from);
    const std::size_t last = draft_.line.stretchAt(gap.to);
    for (std::size_t i = first; i <= last; ++i)
      if (!task.straight[i])
        return bridgeRefusal(notStraight(i, name));
    std::size_t from = first;
    std::size_t to = last + 1;
    while (from > 0 && task.straight[from - 1])
      --from;
    while (to < draft_.line.stretches() && task.straight[to])
      ++to;
    const double room = draft_.line.joints()[to] - draft_.line.joints()[from];
    const PieceDef& bridge = *bridges_.back();
    const std::int32_t units = draft_.layout.settings().units;
    if (bridge.length > room)
      return bridgeRefusal(
          tr("%1% needs %2% of straight track, and there are %3%: %4% are missing. "
             "Choose another span, or a deck.",
             {bridge.article, formatLength(bridge.length, units), formatLength(room, units),
              formatLength(bridge.length - room, units)}));
    return bridgeRefusal(tr(
        "No straights fill up what %1% leaves of the straight track of %2%, so that its ends meet "
        "joints on both sides of the gap of %3%. Choose another span, or a deck.",
        {bridge.article, formatLength(room, units), formatLength(gap.to - gap.from, units)}));
  }

  std::string notStraight(std::size_t stretch, const std::string& name) const {
    const PlacedPiece& piece = *draft_.layout.findPiece(draft_.site.way.stretches[stretch].piece);
    const PieceDef& definition = *definitionOf(piece);
    if (definition.kind == PieceKind::Curve)
      return tr(
          "%1% is a curve, and bridges of this kind (%2%) are straight. Choose a deck, or lay "
          "straight track there.",
          {definition.article, name});
    return tr("%1% has a function of its own and cannot become part of a bridge. Put it elsewhere, "
              "or choose a deck.",
              {definition.article});
  }

  BridgeDraft& draft_;
  const BridgeTask& task_;
  double height_;
  std::function<bool(double)> blocked_;
  TrackSystem system_;
  std::vector<const PieceDef*> bridges_;
  SpansMade made_;
};

} // namespace

std::function<bool(double)> blockedUnder(const BridgeDraft& draft, PierWidth width,
                                         std::optional<double> height) {
  struct Look {
    PierRoom room;
    Grounds grounds;
    BridgeLine line;
    std::vector<std::int32_t> carried;
    double along;
    double across;
    std::optional<double> height;
  };
  const TrackSystem system = systemOf(draft);
  const auto look = std::make_shared<Look>(
      Look{PierRoom(draft.layout),
           Grounds(draft.layout),
           draft.line,
           {},
           pierSize(system).along,
           width == PierWidth::Full ? pierSize(system).across : 2 * trackHalfWidth(system),
           height});
  std::size_t first = draft.line.stretches();
  std::size_t last = 0;
  for (const CrossedZone& zone : draft.zones) {
    first = std::min(first, draft.line.stretchAt(zone.from));
    last = std::max(last, draft.line.stretchAt(zone.to));
  }
  for (std::size_t i = 0; i < draft.line.stretches(); ++i)
    if (i + kCarriedBeyond >= first && i <= last + kCarriedBeyond && !isOwnLower(draft, i))
      look->carried.push_back(draft.site.way.stretches[i].piece);
  return [look](double along) {
    const Pose pose = look->line.poseAt(along);
    // Where the track rises, it is its new height that counts; where it stays, its own.
    const double head = look->height.value_or(look->line.heightAt(along));
    const Ground ground = look->grounds.below({pose.x, pose.y}, head);
    if (ground.kind == GroundKind::None)
      return false;
    const PierSpot spot{pose, look->along, look->across, ground.height, head};
    return look->room.obstacleAt(spot, look->carried) != PierObstacle::None;
  };
}

std::vector<bool> replaceable(const BridgeDraft& draft) {
  const auto inTunnel = [&draft](std::int32_t piece) {
    const auto holds = [piece](const Tunnel& tunnel) {
      return tunnel.anchorA == piece || tunnel.anchorB == piece;
    };
    return draft.layout.isCovered(piece) ||
           std::ranges::any_of(draft.layout.content().tunnels, holds);
  };
  std::vector<bool> may;
  for (std::size_t i = 0; i < draft.site.way.stretches.size(); ++i) {
    const PlacedPiece& piece = *draft.layout.findPiece(draft.site.way.stretches[i].piece);
    const PieceDef& definition = *definitionOf(piece);
    may.push_back(definition.kind == PieceKind::Straight && definition.connectors.size() == 2 &&
                  definition.adapterSystems.empty() && !definition.ramp &&
                  !hasOwnFunction(definition) && piece.helix == -1 && !piece.free &&
                  !inTunnel(piece.id) && !isOwnLower(draft, i));
  }
  return may;
}

SpansMade makeSpans(BridgeDraft& draft, const BridgeTask& task, double height) {
  return SpanMaker(draft, task, height).over();
}

SpansMade makeSpansAlong(BridgeDraft& draft, const BridgeTask& task, std::size_t from,
                         std::size_t to) {
  SpansMade made;
  const TrackSystem system = systemOf(draft);
  const std::vector<const PieceDef*> bridges = bridgePieces(system, task.span);
  const std::vector<bool> may = replaceable(draft);
  const auto blocked = blockedUnder(draft, PierWidth::Full, std::nullopt);
  const auto narrow = blockedUnder(draft, PierWidth::Narrow, std::nullopt);
  made.from = draft.line.joints()[from];
  made.to = draft.line.joints()[to];
  bool any = false;
  bool curved = false;
  for (std::size_t end = to; end > from;) {
    if (!may[end - 1]) {
      curved = true;
      --end;
      continue;
    }
    std::size_t start = end - 1;
    while (start > from && may[start - 1])
      --start;
    auto row = composeRow(draft.line, bridges, start, end, blocked);
    if (!row)
      row = composeRow(draft.line, bridges, start, end, narrow);
    if (row && replaceStretches(draft.layout, draft.site, start, end, row->row)) {
      any = true;
      draft.residue = std::max(draft.residue, row->residue);
      made.needsPortals = made.needsPortals || row->portals > 0;
    }
    end = start;
  }
  renewLine(draft);
  if (!any && task.span != SpanKind::Auto && task.span != SpanKind::Deck)
    made.refusal = bridgeRefusal(
        bridges.empty()
            ? tr("The system has no bridge of this kind (%1%). Choose a deck, on which plain track "
                 "lies.",
                 {nameOf(task.span)})
        : curved
            ? tr("Bridges of this kind (%1%) are straight, and too much of the selected track is "
                 "not. Choose a deck, or select a longer straight stretch.",
                 {nameOf(task.span)})
            : tr("No bridge of this kind (%1%) fits into the selected stretch with what straights "
                 "there are. Choose another span, or a deck.",
                 {nameOf(task.span)}));
  return made;
}

void renewLine(BridgeDraft& draft) {
  renewHeights(draft.layout, draft.site.way);
  draft.line = BridgeLine(draft.layout, draft.site.way);
  draft.zones = zonesOf(draft.layout, draft.line, draft.site.meant);
}

} // namespace trassix
