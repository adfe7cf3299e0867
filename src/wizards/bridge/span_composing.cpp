#include "wizards/bridge/span_composing.h"

#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "editing/placing/row_replacing.h"
#include "editing/supports/bridge_kind.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace trassix {

namespace {

constexpr std::size_t kMostFillers = 3;  // straights on each side of a span
constexpr std::size_t kMostReplaced = 8; // stretches that one span takes the place of
constexpr std::size_t kMostBridges = 12; // in a row
constexpr double kUnit = 0.01;           // mm; sums are counted in it

using Row = std::vector<const PieceDef*>;

long unitsOf(double length) {
  return std::lround(length / kUnit);
}

/// All sums of few straights, each with the fewest that make it up.
class Sums {
 public:
  explicit Sums(TrackSystem system) {
    rows_[0] = {};
    std::map<long, Row> last = rows_;
    const std::vector<PlainStraight> straights = plainStraights(system);
    for (std::size_t count = 0; count < kMostFillers; ++count) {
      std::map<long, Row> next;
      for (const auto& [sum, row] : last)
        for (const PlainStraight& straight : straights) {
          const long longer = sum + unitsOf(straight.length);
          if (rows_.contains(longer) || next.contains(longer))
            continue;
          Row more = row;
          more.push_back(straight.piece);
          next.emplace(longer, std::move(more));
        }
      rows_.insert(next.begin(), next.end());
      last = std::move(next);
    }
  }

  const std::map<long, Row>& all() const { return rows_; }

  const Row* of(double length) const {
    const long wanted = unitsOf(length);
    const Row* nearest = nullptr;
    long least = unitsOf(kRowPlay) + 1;
    for (auto at = rows_.lower_bound(wanted - least);
         at != rows_.end() && at->first < wanted + least; ++at)
      if (const long off = std::abs(at->first - wanted); off < least) {
        least = off;
        nearest = &at->second;
      }
    return nearest;
  }

 private:
  std::map<long, Row> rows_;
};

const Sums& sumsOf(TrackSystem system) {
  static std::map<TrackSystem, Sums> known;
  return known.try_emplace(system, system).first->second;
}

double lengthBetween(const BridgeLine& line, std::size_t from, std::size_t to) {
  return line.joints()[to] - line.joints()[from];
}

SpanRow rowOf(std::size_t from, std::size_t to, const Row& before, const Row& bridges,
              const Row& behind) {
  SpanRow span{from, to, before, bridges.size(), 0, 0};
  span.row.insert(span.row.end(), bridges.begin(), bridges.end());
  span.row.insert(span.row.end(), behind.begin(), behind.end());
  return span;
}

/// Joints between neighbouring bridges that are blocked; none when an outer one is.
std::optional<std::size_t> blockedJoints(const Row& bridges, double start,
                                         const std::function<bool(double)>& blocked) {
  std::size_t count = 0;
  double at = start;
  if (blocked(at))
    return std::nullopt;
  for (std::size_t i = 0; i < bridges.size(); ++i) {
    at += bridges[i]->length;
    if (i + 1 < bridges.size())
      count += blocked(at) ? 1 : 0;
    else if (blocked(at))
      return std::nullopt;
  }
  return count;
}

auto costOf(const SpanRow& span) {
  return std::tuple(span.portals, span.bridges, span.to - span.from + span.row.size(),
                    span.residue);
}

/// The best place of the bridges within the stretches, with fillers on both sides.
void tryPlaces(const BridgeLine& line, const Row& bridges, const SpanGap& gap, std::size_t from,
               std::size_t to, const Sums& sums, std::optional<SpanRow>& best) {
  double span = 0;
  for (const PieceDef* bridge : bridges)
    span += bridge->length;
  const double start = line.joints()[from];
  const double spare = lengthBetween(line, from, to) - span;
  for (const auto& [units, before] : sums.all()) {
    const double at = static_cast<double>(units) * kUnit;
    if (at > spare + kRowPlay || start + at > gap.from)
      break;
    if (start + at + span < gap.to)
      continue;
    const Row* behind = sums.of(spare - at);
    const auto portals =
        behind == nullptr ? std::nullopt : blockedJoints(bridges, start + at, gap.blocked);
    if (!portals)
      continue;
    SpanRow row = rowOf(from, to, before, bridges, *behind);
    row.portals = *portals;
    for (const PieceDef* piece : row.row)
      row.residue += piece->length;
    row.residue = std::abs(row.residue - lengthBetween(line, from, to));
    if (!best || costOf(row) < costOf(*best))
      best = std::move(row);
  }
}

} // namespace

SpanKind kindOf(const PieceDef& bridge) {
  switch (bridgeKindOf(bridge)) {
  case BridgeKind::Arch:
    return SpanKind::Arch;
  case BridgeKind::Truss:
    return SpanKind::Truss;
  case BridgeKind::Girder:
    return SpanKind::Girder;
  case BridgeKind::None:
    break;
  }
  return SpanKind::Deck;
}

std::vector<const PieceDef*> bridgePieces(TrackSystem system, SpanKind kind) {
  std::vector<const PieceDef*> found;
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef* piece = catalog.at(i);
    if (piece->system == system && piece->kind == PieceKind::Straight &&
        bridgeKindOf(*piece) != BridgeKind::None &&
        (kind == SpanKind::Auto || kind == kindOf(*piece)))
      found.push_back(piece);
  }
  std::ranges::stable_sort(found, {}, &PieceDef::length);
  return found;
}

std::optional<SpanRow> composeSpan(const BridgeLine& line, const PieceDef& bridge,
                                   const SpanGap& gap, std::size_t most) {
  const Sums& sums = sumsOf(bridge.system);
  const std::size_t inner = line.stretchAt(gap.from);
  const std::size_t outer = line.stretchAt(gap.to) + 1;
  std::optional<SpanRow> best;
  for (std::size_t count = 1; count <= most && !best; ++count) {
    const Row bridges(count, &bridge);
    for (std::size_t from = inner + 1; from-- > 0 && gap.straight[from];)
      for (std::size_t to = from + 1; to <= line.stretches() && gap.straight[to - 1]; ++to) {
        if (to - from > kMostReplaced)
          break;
        if (to >= outer)
          tryPlaces(line, bridges, gap, from, to, sums, best);
      }
  }
  return best;
}

std::optional<SpanRow> composeRow(const BridgeLine& line,
                                  const std::vector<const PieceDef*>& bridges, std::size_t from,
                                  std::size_t to, const std::function<bool(double)>& blocked) {
  if (bridges.empty())
    return std::nullopt;
  const Sums& sums = sumsOf(bridges.front()->system);
  const double room = lengthBetween(line, from, to);
  std::map<long, Row> tried; // sums of bridges, each with the fewest that make it up
  tried[0] = {};
  for (std::size_t count = 0; count < kMostBridges; ++count) {
    const std::map<long, Row> before = tried;
    for (const auto& [sum, row] : before)
      for (const PieceDef* bridge : bridges) {
        const long longer = sum + unitsOf(bridge->length);
        Row more = row;
        more.insert(more.begin(), bridge);
        if (static_cast<double>(longer) * kUnit <= room + kRowPlay)
          tried.try_emplace(longer, std::move(more));
      }
  }
  for (auto it = tried.rbegin(); it != tried.rend() && it->first > 0; ++it) {
    std::optional<SpanRow> best;
    const double span = static_cast<double>(it->first) * kUnit;
    // The gap is what the bridges cover wherever they come to lie.
    SpanGap anywhere{
        line.joints()[from] + room - span + kRowPlay, line.joints()[from], {}, blocked};
    tryPlaces(line, it->second, anywhere, from, to, sums, best);
    if (best)
      return best;
  }
  return std::nullopt;
}

std::optional<std::vector<const PieceDef*>> straightsOf(TrackSystem system, double length) {
  const Row* row = sumsOf(system).of(length);
  return row == nullptr || row->empty() ? std::nullopt : std::optional(*row);
}

double missingLength(TrackSystem system, double length) {
  const std::map<long, Row>& sums = sumsOf(system).all();
  const auto next = sums.upper_bound(unitsOf(length));
  return length - static_cast<double>(std::prev(next)->first) * kUnit;
}

} // namespace trassix
