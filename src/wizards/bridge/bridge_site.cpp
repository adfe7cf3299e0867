#include "wizards/bridge/bridge_site.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/inheritance.h"
#include "editing/elevation/way_choice.h"
#include "editing/elevation/way_handles.h"
#include "editing/joining/joining.h"
#include "editing/placing/row_replacing.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"
#include "wizards/bridge/crossed_zones.h"
#include "wizards/bridge/span_composing.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace trassix {

namespace {

constexpr int kMostAhead = 99; // straights

const PieceDef& definitionAt(const Layout& layout, std::int32_t piece) {
  return *definitionOf(*layout.findPiece(piece));
}

BridgeSite refused(Notice reason) {
  BridgeSite site;
  site.refusal = std::move(reason);
  return site;
}

WayStretch stretchOf(const Layout& layout, std::int32_t piece, std::int32_t enter) {
  const std::int32_t leave = 1 - enter;
  return {piece,
          enter,
          leave,
          definitionAt(layout, piece).length,
          endHeight(layout, {piece, enter}),
          endHeight(layout, {piece, leave})};
}

// Crossings.

bool isCrossing(const PieceDef& definition) {
  return (definition.kind == PieceKind::Crossing || definition.kind == PieceKind::DoubleSlip) &&
         definition.connectors.size() == 4;
}

/// A line through a crossing, perhaps with straights before and behind, and what replaces it.
struct CrossedLine {
  TrackEnd before; ///< what it is joined to
  TrackEnd after;
  double heights[2]{};
  std::vector<std::int32_t> removed; ///< besides the crossing
  std::vector<const PieceDef*> row;
  std::size_t chosen = 0; ///< neighbours that were chosen
};

bool isPlainStraight(const PieceDef* definition) {
  return definition != nullptr && definition->kind == PieceKind::Straight && !definition->ramp &&
         definition->connectors.size() == 2 && definition->adapterSystems.empty();
}

class CrossingReplacer {
 public:
  CrossingReplacer(Layout& layout, std::vector<std::int32_t>& chosen)
      : layout_(layout), chosen_(chosen) {}

  /// Each line of the crossing gets straights of its own; those of the one that was meant take the
  /// place of the crossing among what is chosen.
  std::optional<Notice> replace(std::int32_t crossing) {
    const PieceDef& definition = definitionAt(layout_, crossing);
    if (definition.kind == PieceKind::DoubleSlip)
      return bridgeRefusal(
          tr("%1% lies where the bridge would be, and a turnout cannot lie inside a span. Exchange "
             "it for a crossing, or for straights, first.",
             {definition.article}));
    std::vector<CrossedLine> lines;
    for (const Route& route : routesOf(definition)) {
      std::optional<CrossedLine> line = lineOf(crossing, route);
      if (!line)
        return bridgeRefusal(
            tr("No straights are as long as %1%, whose way of %2% has to be replaced: %3% are "
               "missing. Exchange it together with its neighbours by hand.",
               {definition.article, mm(routeLength(route)),
                mm(missingLength(definition.system, routeLength(route)))}));
      lines.push_back(std::move(*line));
    }
    const PlacedPiece model = *layout_.findPiece(crossing);
    std::vector<std::int32_t> removed{crossing};
    for (const CrossedLine& line : lines)
      removed.insert(removed.end(), line.removed.begin(), line.removed.end());
    std::ranges::sort(removed);
    if (auto locked = lockGuard(layout_, removed, tr("change")))
      return locked;
    detach(layout_, removed);
    removePieces(layout_.edit(), removed);
    std::erase_if(chosen_, [&](std::int32_t id) { return containsId(removed, id); });
    const bool second = lines.size() > 1 && lines[1].chosen > lines[0].chosen;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const std::vector<std::int32_t> placed = lay(lines[i]);
      if (i == (second ? 1U : 0U))
        chosen_.insert(chosen_.end(), placed.begin(), placed.end());
    }
    std::ranges::sort(chosen_);
    return std::nullopt;
  }

 private:
  std::string mm(double length) const { return formatLength(length, layout_.settings().units); }

  std::optional<CrossedLine> lineOf(std::int32_t crossing, const Route& route) const {
    if (route.segments.size() != 1 || !std::holds_alternative<LineSegment>(route.segments[0]))
      return std::nullopt;
    const TrackEnd near[2]{beyond(layout_, {crossing, route.from}),
                           beyond(layout_, {crossing, route.to})};
    CrossedLine line;
    for (const TrackEnd end : near)
      line.chosen += containsId(chosen_, end.piece) ? 1 : 0;
    for (int with = 0; with < 4; ++with) {
      line.removed.clear();
      double length = routeLength(route);
      TrackEnd ends[2]{near[0], near[1]};
      double heights[2]{endHeight(layout_, {crossing, route.from}),
                        endHeight(layout_, {crossing, route.to})};
      bool usable = true;
      for (int side = 0; side < 2; ++side) {
        if ((with & (1 << side)) == 0)
          continue;
        const PlacedPiece* piece = layout_.findPiece(ends[side].piece);
        usable = usable && piece != nullptr && isPlainStraight(definitionOf(*piece));
        if (!usable)
          break;
        const TrackEnd outer{piece->id, 1 - ends[side].connector};
        length += definitionOf(*piece)->length;
        line.removed.push_back(piece->id);
        heights[side] = endHeight(layout_, outer);
        ends[side] = beyond(layout_, outer);
      }
      const auto row = usable && (ends[0].piece != -1 || ends[1].piece != -1)
                           ? straightsOf(definitionAt(layout_, crossing).system, length)
                           : std::nullopt;
      if (!row)
        continue;
      line.before = ends[0];
      line.after = ends[1];
      line.heights[0] = heights[0];
      line.heights[1] = heights[1];
      line.row = *row;
      return line;
    }
    return std::nullopt;
  }

  std::vector<std::int32_t> lay(const CrossedLine& line) {
    const bool forward = line.before.piece != -1;
    const TrackEnd start = forward ? line.before : line.after;
    const std::vector<std::int32_t> placed = appendRow(layout_, start, line.row);
    const double from = line.heights[forward ? 0 : 1];
    const double to = line.heights[forward ? 1 : 0];
    layBetween(layout_, placed, {placed.front(), 0}, {placed.back(), 1}, from, to);
    if (forward && line.after.piece != -1)
      join(layout_, placed.back(), 1, line.after.piece, line.after.connector);
    return placed;
  }

  Layout& layout_;
  std::vector<std::int32_t>& chosen_;
};

// Ways.

bool ofOneSystem(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  return std::ranges::all_of(pieces, [&](std::int32_t id) {
    const PieceDef& definition = definitionAt(layout, id);
    return definition.adapterSystems.empty() &&
           definition.system == definitionAt(layout, pieces.front()).system;
  });
}

/// Of what comes round, the start goes to where least is meant.
void turnAwayFromMeant(BridgeSite& site) {
  const std::size_t count = site.meant.size();
  std::size_t longest = 0;
  std::size_t start = 0;
  for (std::size_t i = 0; i < count; ++i) {
    std::size_t run = 0;
    while (run < count && !site.meant[(i + run) % count])
      ++run;
    if (run > longest) {
      longest = run;
      start = (i + run / 2) % count;
    }
  }
  beginWith(site, start);
}

BridgeSite alongChosen(Layout& layout, const BridgeTask& task) {
  std::vector<std::int32_t> chosen;
  for (const std::int32_t id : task.pieces)
    if (const PlacedPiece* piece = layout.findPiece(id); piece != nullptr && definitionOf(*piece))
      chosen.push_back(id);
  if (chosen.empty())
    return refused(bridgeRefusal(tr("Select the track that is to lead over.")));
  if (!ofOneSystem(layout, chosen))
    return refused(bridgeRefusal(tr(
        "The selected track is of different systems, which no bridge is made of. Select track of "
        "one system, without adapters.")));
  if (task.way == BridgeWay::LiftOver) {
    const std::vector<std::int32_t> before = chosen;
    for (const std::int32_t id : before)
      if (layout.findPiece(id) != nullptr && isCrossing(definitionAt(layout, id)))
        if (auto refusal = CrossingReplacer(layout, chosen).replace(id))
          return refused(std::move(*refusal));
  }
  BridgeSite site;
  site.way = wayOf(layout, choiceThrough(layout, chosen));
  if (site.way.empty())
    return refused(bridgeRefusal(tr("No train can go along the selected track.")));
  for (const WayStretch& stretch : site.way.stretches)
    site.meant.push_back(containsId(chosen, stretch.piece));
  site.round = goesRound(layout, site.way);
  if (site.round)
    turnAwayFromMeant(site);
  return site;
}

bool isOpen(const Layout& layout, TrackEnd end) {
  const PlacedPiece* piece = layout.findPiece(end.piece);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  return definition != nullptr && end.connector >= 0 &&
         static_cast<std::size_t>(end.connector) < definition->connectors.size() &&
         definition->kind != PieceKind::Turntable && piece->helix == -1 &&
         piece->joint(static_cast<std::size_t>(end.connector)).open();
}

BridgeSite onFromEnd(Layout& layout, const BridgeTask& task) {
  if (!isOpen(layout, task.end))
    return refused(bridgeRefusal(tr("Select a piece with an open end, from which to go on.")));
  const PieceDef* straight =
      usualStraight(definitionAt(layout, task.end.piece)
                        .connectorSystem(static_cast<std::size_t>(task.end.connector)));
  if (straight == nullptr)
    return refused(bridgeRefusal(tr("The system has no straights to go on with.")));
  const double climb =
      railTop(straight->system) + kDeckThickness + clearanceOf(task, straight->system);
  const double ramp = climb / task.limit + easingLength(straight->system);
  const auto ahead =
      static_cast<int>(std::min<double>(kMostAhead, std::ceil(2.5 * ramp / straight->length) + 4));
  Layout trial = layout;
  BridgeSite far;
  far.startStays = true;
  const auto begin = [&](Layout& plan, BridgeSite& site, int count) {
    const std::vector<const PieceDef*> row(static_cast<std::size_t>(count), straight);
    for (const std::int32_t id : appendRow(plan, task.end, row))
      site.way.stretches.push_back(stretchOf(plan, id, 0));
    site.meant.assign(site.way.stretches.size(), true);
  };
  begin(trial, far, ahead);
  const BridgeLine line(trial, far.way);
  const std::vector<CrossedZone> zones = zonesOf(trial, line, far.meant);
  BridgeSite site;
  site.startStays = true;
  if (zones.empty()) {
    begin(layout, site, static_cast<int>(std::ceil(ramp / straight->length)) + 3);
    return site;
  }
  begin(layout, site, static_cast<int>(std::ceil(zones.front().to / straight->length)) + 3);
  for (std::size_t i = 0; i < site.meant.size(); ++i)
    site.meant[i] = static_cast<double>(i) * straight->length < zones.front().to;
  return site;
}

} // namespace

BridgeSite prepareSite(Layout& layout, const BridgeTask& task) {
  return task.way == BridgeWay::FromEnd ? onFromEnd(layout, task) : alongChosen(layout, task);
}

void beginWith(BridgeSite& site, std::size_t stretch) {
  const auto by = static_cast<std::ptrdiff_t>(stretch);
  std::rotate(site.way.stretches.begin(), site.way.stretches.begin() + by,
              site.way.stretches.end());
  std::rotate(site.meant.begin(), site.meant.begin() + by, site.meant.end());
}

bool mayLengthen(const Layout& layout, const BridgeSite& site, bool atStart) {
  const TrackEnd end = atStart ? site.way.start() : site.way.end();
  return !site.round && !(atStart && site.startStays) && isOpen(layout, end);
}

void lengthen(Layout& layout, BridgeSite& site, bool atStart, int count) {
  const TrackEnd end = atStart ? site.way.start() : site.way.end();
  const PieceDef* straight = usualStraight(definitionAt(layout, end.piece).system);
  const std::vector<const PieceDef*> row(static_cast<std::size_t>(count), straight);
  for (const std::int32_t id : appendRow(layout, end, row)) {
    const WayStretch stretch = stretchOf(layout, id, atStart ? 1 : 0);
    site.way.stretches.insert(atStart ? site.way.stretches.begin() : site.way.stretches.end(),
                              stretch);
    site.meant.insert(atStart ? site.meant.begin() : site.meant.end(), false);
  }
}

bool replaceStretches(Layout& layout, BridgeSite& site, std::size_t from, std::size_t to,
                      const std::vector<const PieceDef*>& row) {
  const auto first = static_cast<std::ptrdiff_t>(from);
  const auto last = static_cast<std::ptrdiff_t>(to);
  auto& stretches = site.way.stretches;
  const std::vector<std::int32_t> placed =
      replaceByRow(layout, std::span(stretches).subspan(from, to - from), row);
  if (placed.empty())
    return false;
  const bool meant = std::ranges::any_of(site.meant.begin() + first, site.meant.begin() + last,
                                         [](bool one) { return one; });
  stretches.erase(stretches.begin() + first, stretches.begin() + last);
  site.meant.erase(site.meant.begin() + first, site.meant.begin() + last);
  std::vector<WayStretch> fresh;
  for (const std::int32_t id : placed)
    fresh.push_back(stretchOf(layout, id, 0));
  stretches.insert(stretches.begin() + first, fresh.begin(), fresh.end());
  site.meant.insert(site.meant.begin() + first, fresh.size(), meant);
  return true;
}

void renewHeights(const Layout& layout, TrainWay& way) {
  for (WayStretch& stretch : way.stretches) {
    stretch.from = endHeight(layout, {stretch.piece, stretch.enter});
    stretch.to = endHeight(layout, {stretch.piece, stretch.leave});
  }
}

double clearanceOf(const BridgeTask& task, TrackSystem system) {
  return task.clearance > 0 ? task.clearance : leastClearance(system);
}

Notice bridgeRefusal(std::string text) {
  return {tr("Bridge"), std::move(text)};
}

} // namespace trassix
