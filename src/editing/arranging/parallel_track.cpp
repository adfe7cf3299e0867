#include "editing/arranging/parallel_track.h"

#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/arranging/parallel_pieces.h"
#include "editing/arranging/track_chain.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <span>

namespace trassix {

namespace {

constexpr double kSameForm = 0.01; ///< mm of a radius

Pose beside(const Pose& pose, double distance) {
  const Point at = toWorld(pose, {0, distance});
  return {at.x, at.y, normaliseHeading(pose.heading)};
}

double apart(const Pose& a, const Pose& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// Parts that one run of pieces can lie beside: all straight, or all of one circle.
using Stretch = std::span<const ChainPart>;

double sizeOf(const ChainPart& part) {
  return part.form == ChainPart::Form::Arc ? std::abs(part.sweep) : part.length;
}

bool leadsOff(const ChainPart& part, double distance) {
  return distance > 0 ? part.endToRight : part.endToLeft;
}

bool oneStretch(const Layout& layout, const ChainPart& a, const ChainPart& b, double distance) {
  return a.form == b.form && a.form != ChainPart::Form::Other &&
         std::abs(a.radius - b.radius) <= kSameForm && (a.sweep > 0) == (b.sweep > 0) &&
         !leadsOff(a, distance) && !leadsOff(b, distance) &&
         layout.findPiece(a.piece)->level == layout.findPiece(b.piece)->level &&
         a.definition->system == b.definition->system;
}

std::vector<Stretch> stretchesOf(const Layout& layout, const TrackChain& chain, double distance) {
  std::vector<Stretch> stretches;
  std::size_t first = 0;
  for (std::size_t i = 1; i <= chain.parts.size(); ++i)
    if (i == chain.parts.size() ||
        !oneStretch(layout, chain.parts[i - 1], chain.parts[i], distance)) {
      stretches.push_back(Stretch(chain.parts).subspan(first, i - first));
      first = i;
    }
  return stretches;
}

/// What the parallel of an arc has for a radius.
double radiusBeside(const ChainPart& arc, double distance) {
  return arc.radius - std::copysign(distance, arc.sweep * distance);
}

/// The pieces beside a stretch, or why there are none.
struct Chosen {
  std::optional<PieceRuns> pieces;
  double residue = 0;
  std::string reason;
};

Chosen piecesBeside(const Layout& layout, Stretch stretch, double distance) {
  const ChainPart& first = stretch.front();
  const TrackSystem system = first.definition->system;
  const std::int32_t units = layout.settings().units;
  if (leadsOff(first, distance))
    return {{}, 0, tr("%1% leads off to this side", {first.definition->name})};
  if (first.form == ChainPart::Form::Other)
    return {{}, 0, tr("%1% is neither straight nor a plain curve", {first.definition->name})};
  std::vector<double> sizes;
  std::ranges::transform(stretch, std::back_inserter(sizes), sizeOf);
  if (first.form == ChainPart::Form::Straight) {
    std::vector<const PieceDef*> preferred;
    std::ranges::transform(stretch, std::back_inserter(preferred), &ChainPart::definition);
    Chosen chosen{straightsFor(system, sizes, preferred, kParallelPlay), 0, {}};
    if (!chosen.pieces) {
      chosen.residue = apart(first.start, stretch.back().end);
      chosen.reason = tr("no straights make up %1%", {formatLength(chosen.residue, units)});
    }
    return chosen;
  }
  const double radius = radiusBeside(first, distance);
  const double nearest = nearestRadius(system, radius);
  if (std::abs(nearest - radius) > kParallelPlay)
    return {{},
            std::abs(nearest - radius),
            tr("no curve has the radius %1%, the nearest one %2%",
               {formatLength(radius, units), formatLength(nearest, units)})};
  Chosen chosen{curvesFor(system, radius, sizes, kParallelPlay), 0, {}};
  if (!chosen.pieces)
    chosen.reason =
        tr("no curves of the radius %1% make up the arc", {formatLength(radius, units)});
  return chosen;
}

/// A place along a stretch, by the size of what lies before it.
struct Place {
  Pose pose; ///< on the true parallel
  double height = 0;
};

Place placeAlong(Stretch stretch, double size, double distance) {
  std::size_t i = 0;
  while (i + 1 < stretch.size() && size > sizeOf(stretch[i])) {
    size -= sizeOf(stretch[i]);
    ++i;
  }
  const ChainPart& part = stretch[i];
  const double share = sizeOf(part) > 0 ? std::min(size / sizeOf(part), 1.0) : 1.0;
  const double height = part.startHeight + share * (part.endHeight - part.startHeight);
  if (share == 1)
    return {beside(part.end, distance), height};
  if (part.form == ChainPart::Form::Straight) {
    const Point at = toWorld(part.start, {size, distance});
    return {{at.x, at.y, part.start.heading}, height};
  }
  const double side = std::copysign(part.radius, part.sweep);
  const Point centre = toWorld(part.start, {0, side});
  const double turned = part.start.heading + std::copysign(size, part.sweep);
  const Point at = toWorld({centre.x, centre.y, turned}, {0, distance - side});
  return {{at.x, at.y, normaliseHeading(turned)}, height};
}

/// Lays pieces one after the other.
class Layer {
 public:
  Layer(Layout& layout, double distance) : layout_(layout), distance_(distance) {}

  /// False when it would lie beyond the plan.
  bool lay(Stretch stretch, const PieceRuns& pieces) {
    const bool arc = stretch.front().form == ChainPart::Form::Arc;
    const bool toLeft = arc && stretch.front().sweep < 0;
    double size = 0;
    for (const PieceDef* piece : pieces) {
      const Place from = placeAlong(stretch, size, distance_);
      size += arc ? piece->angle : piece->length;
      const Place to = placeAlong(stretch, size, distance_);
      if (!layOne(*piece, toLeft ? 1 : 0, from, to,
                  layout_.findPiece(stretch.front().piece)->level))
        return false;
    }
    return true;
  }

  const std::vector<std::int32_t>& placed() const { return placed_; }

 private:
  bool layOne(const PieceDef& piece, std::int32_t enter, const Place& from, const Place& to,
              std::int32_t level) {
    const WorldConnector begin{from.pose.x, from.pose.y, from.pose.heading};
    Pose pose = AttachPose(piece, enter, begin);
    const bool follows = attaches(from.pose);
    if (follows) {
      const Pose attached = AttachPose(piece, enter, lastEnd());
      const WorldConnector end = ConnectorToWorld(pieceAt(attached), piece, 1 - enter);
      if (apart({end.x, end.y, 0}, to.pose) <= kParallelPlay)
        pose = attached;
    }
    if (!fitsPlan(piece, pose, from.height))
      return false;
    const std::int32_t id = addPiece(layout_, piece, pose, level, from.height);
    setHeights(*layout_.editPiece(id), piece, enter == 0 ? from.height : to.height,
               enter == 0 ? to.height : from.height);
    if (follows)
      join(layout_, id, enter, placed_.back(), exit_);
    placed_.push_back(id);
    exit_ = 1 - enter;
    return true;
  }

  WorldConnector lastEnd() const {
    const PlacedPiece& last = *layout_.findPiece(placed_.back());
    return ConnectorToWorld(last, *definitionOf(last), exit_);
  }

  bool attaches(const Pose& at) const {
    if (placed_.empty())
      return false;
    const WorldConnector end = lastEnd();
    return std::hypot(end.x - at.x, end.y - at.y) <= kParallelPlay &&
           headingDifference(end.heading, at.heading) <= kClosingFacing;
  }

  static void setHeights(PlacedPiece& piece, const PieceDef& definition, double atZero,
                         double atOne) {
    piece.z = atZero;
    const double length = routeLength(routesOf(definition).front());
    if (std::abs(atOne - atZero) > kSameHeight && length > 0)
      piece.grade = toDegrees(std::asin(std::clamp((atOne - atZero) / length, -1.0, 1.0)));
  }

  Layout& layout_;
  double distance_;
  std::vector<std::int32_t> placed_;
  std::int32_t exit_ = -1; ///< end at which the last piece goes on
};

/// Ends of the new track between which the chain goes on.
std::vector<ParallelGap> openBetween(const Layout& layout, const Layer& layer,
                                     const TrackChain& chain, double distance) {
  const Pose first = beside(chain.parts.front().start, distance);
  const Pose last = beside(chain.parts.back().end, distance);
  std::vector<WorldConnector> open;
  for (const std::int32_t id : layer.placed()) {
    const PlacedPiece& piece = *layout.findPiece(id);
    for (const WorldConnector& end : WorldConnectorsOf(piece, *definitionOf(piece))) {
      const Pose at{end.x, end.y, 0};
      const bool outer =
          !chain.closed && (apart(at, first) <= kParallelPlay || apart(at, last) <= kParallelPlay);
      if (end.free && !outer)
        open.push_back(end);
    }
  }
  std::vector<ParallelGap> gaps;
  for (const WorldConnector& end : open) {
    double nearest = 0;
    for (const WorldConnector& other : open)
      if (const double away = std::hypot(other.x - end.x, other.y - end.y);
          &other != &end && (nearest == 0 || away < nearest))
        nearest = away;
    gaps.push_back({{end.x, end.y}, nearest, {}});
  }
  return gaps;
}

/// What the side is called on which a track at this distance lies. The user sees no direction of
/// travel, so it is told by the bend or by the plan.
std::string sideOf(const TrackChain& chain, double distance) {
  double right = 0; // degrees
  double left = 0;
  for (const ChainPart& part : chain.parts)
    (part.sweep > 0 ? right : left) += std::abs(part.sweep);
  constexpr double kBend = 25;
  if (chain.closed || (right > kBend && left == 0) || (left > kBend && right == 0))
    return (right > left) == (distance > 0) ? tr("Inside") : tr("Outside");
  const ChainPart& middle = chain.parts[chain.parts.size() / 2];
  const Pose there = beside(middle.start, distance);
  const double x = there.x - middle.start.x;
  const double y = there.y - middle.start.y;
  if (std::abs(x) > std::abs(y))
    return x > 0 ? tr("To the right") : tr("To the left");
  return y > 0 ? tr("Below") : tr("Above");
}

/// True when each arc of the chain has a radius of the system beside it.
bool arcsFit(const TrackChain& chain, double distance) {
  return std::ranges::all_of(chain.parts, [distance](const ChainPart& part) {
    if (part.form != ChainPart::Form::Arc)
      return true;
    const double radius = radiusBeside(part, distance);
    return std::abs(nearestRadius(part.definition->system, radius) - radius) <= kParallelPlay;
  });
}

/// Distances near the spacing at which the chain's first arc has a radius of the system beside it.
std::set<double> otherDistances(const TrackChain& chain, double spacing) {
  const auto arc = std::ranges::find(chain.parts, ChainPart::Form::Arc, &ChainPart::form);
  std::set<double> distances;
  if (arc == chain.parts.end())
    return distances;
  for (double offset = -2.2 * spacing; offset <= 2.2 * spacing; offset += kParallelPlay) {
    const double radius = nearestRadius(arc->definition->system, arc->radius + offset);
    const double away = std::round((radius - arc->radius) * 10) / 10;
    const double distance = std::copysign(away, -away * arc->sweep);
    if (std::abs(away) >= 0.6 * spacing && std::abs(away) <= 2.2 * spacing &&
        std::abs(std::abs(away) - spacing) > kParallelPlay && arcsFit(chain, distance))
      distances.insert(distance);
  }
  return distances;
}

} // namespace

std::vector<ParallelOffer> parallelOffers(const Layout& layout, double distance) {
  const TrackChain chain = selectedChain(layout);
  if (!chain.problem.empty())
    return {};
  return {{-distance, sideOf(chain, -distance)}, {distance, sideOf(chain, distance)}};
}

std::vector<ParallelOffer> parallelOffers(const Layout& layout, std::string& problem) {
  const TrackChain chain = selectedChain(layout);
  problem = chain.problem;
  if (!problem.empty())
    return {};
  const double spacing = parallelSpacing(chain.parts.front().definition->system);
  std::vector<ParallelOffer> offers = parallelOffers(layout, spacing);
  for (const double distance : otherDistances(chain, spacing))
    offers.push_back({distance, sideOf(chain, distance)});
  return offers;
}

ParallelResult layParallel(Layout& layout, double distance) {
  const TrackChain chain = selectedChain(layout);
  ParallelResult result;
  if (!chain.problem.empty()) {
    result.edit.refusal = Notice{tr("Parallel Track"), chain.problem};
    return result;
  }
  UndoScope step(layout);
  Layer layer(layout, distance);
  for (const Stretch stretch : stretchesOf(layout, chain, distance)) {
    Chosen chosen = piecesBeside(layout, stretch, distance);
    if (!chosen.pieces) {
      const Pose at = beside(stretch.front().start, distance);
      result.gaps.push_back({{at.x, at.y}, chosen.residue, std::move(chosen.reason)});
    } else if (!layer.lay(stretch, *chosen.pieces)) {
      result.edit.refusal = beyondPlan();
      return result;
    }
  }
  if (layer.placed().empty()) {
    std::string text = tr("No piece of the system fits at this distance:");
    for (const ParallelGap& gap : result.gaps)
      text.append("\n").append(gapText(layout, gap));
    result.edit.refusal = Notice{tr("Parallel Track"), text};
    return result;
  }
  std::vector<std::int32_t> placed = layer.placed();
  std::ranges::sort(placed);
  closeMeetingEnds(layout, placed);
  std::ranges::move(openBetween(layout, layer, chain, distance), std::back_inserter(result.gaps));
  layout.clearSelection();
  for (const std::int32_t id : placed)
    layout.select(RecordKind::Piece, id, true);
  result.edit.placed = layer.placed();
  step.keep();
  return result;
}

std::string gapText(const Layout& layout, const ParallelGap& gap) {
  const std::int32_t units = layout.settings().units;
  const std::string x = formatLength(gap.at.x, units);
  const std::string y = formatLength(gap.at.y, units);
  if (gap.reason.empty())
    return gap.residue > 0 ? tr("Open end at %1%, %2%: %3% to the next one",
                                {x, y, formatLength(gap.residue, units)})
                           : tr("Open end at %1%, %2%", {x, y});
  return gap.residue > 0 ? tr("From %1%, %2% on: %3% (%4% off)",
                              {x, y, gap.reason, formatLength(gap.residue, units)})
                         : tr("From %1%, %2% on: %3%", {x, y, gap.reason});
}

} // namespace trassix
