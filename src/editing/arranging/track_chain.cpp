#include "editing/arranging/track_chain.h"

#include "document/plan_content.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <span>
#include <variant>

namespace trassix {

namespace {

/// The way through a piece of the chain.
struct Link {
  std::int32_t piece = -1;
  std::int32_t enter = -1; ///< -1 at a buffer stop
  std::int32_t exit = -1;
};

std::string nameOf(const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  return definition == nullptr ? piece.cat : definition->name;
}

const Route* routeBetween(const PieceDef& definition, std::int32_t a, std::int32_t b) {
  const std::vector<Route>& routes = routesOf(definition);
  const auto found = std::ranges::find_if(routes, [a, b](const Route& route) {
    return (route.from == a && route.to == b) || (route.from == b && route.to == a);
  });
  return found == routes.end() ? nullptr : &*found;
}

/// The end at which the main way from this end leaves the piece.
std::int32_t farEnd(const PieceDef& definition, std::int32_t enter) {
  for (const Route& route : routesOf(definition)) {
    if (route.from == enter)
      return route.to;
    if (route.to == enter)
      return route.from;
  }
  return -1;
}

std::vector<std::int32_t> endsJoinedInside(const Layout& layout, const PlacedPiece& piece) {
  std::vector<std::int32_t> ends;
  for (std::size_t i = 0; i < piece.joints.size(); ++i)
    if (const PlacedPiece* other = joinedPiece(layout, piece, i); other && other->sel)
      ends.push_back(static_cast<std::int32_t>(i));
  return ends;
}

std::string problemOf(const Layout& layout, const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  const std::vector<std::int32_t> ends = endsJoinedInside(layout, piece);
  if (definition == nullptr || definition->kind == PieceKind::Turntable)
    return tr("The chain cannot lead over %1%.", {nameOf(piece)});
  if (ends.size() > 2)
    return tr("The chain branches at %1%.", {nameOf(piece)});
  if (ends.size() == 2 && routeBetween(*definition, ends[0], ends[1]) == nullptr)
    return tr("No train gets over %1% in the direction of the chain.", {nameOf(piece)});
  return {};
}

/// The pieces from an end of the chain on, or once around a circle.
std::vector<Link> linksOf(const Layout& layout, std::span<const std::int32_t> pieces) {
  std::int32_t piece = pieces.front();
  std::int32_t enter = -1;
  for (const std::int32_t id : pieces) {
    const std::vector<std::int32_t> ends = endsJoinedInside(layout, *layout.findPiece(id));
    if (id == pieces.front() && !ends.empty())
      enter = ends.front();
    if (ends.size() > 1)
      continue;
    piece = id;
    enter = ends.empty() ? 0 : farEnd(*definitionOf(*layout.findPiece(id)), ends.front());
    break;
  }
  std::vector<Link> links;
  std::set<std::int32_t> met;
  while (met.insert(piece).second) {
    const PlacedPiece& at = *layout.findPiece(piece);
    std::vector<std::int32_t> ends = endsJoinedInside(layout, at);
    std::erase(ends, enter);
    links.push_back({piece, enter, ends.empty() ? farEnd(*definitionOf(at), enter) : ends.front()});
    if (ends.empty())
      break;
    const Joint joint = at.joint(static_cast<std::size_t>(ends.front()));
    piece = joint.target;
    enter = joint.tconn;
  }
  return links;
}

RouteSegment reversed(const RouteSegment& segment) {
  if (const auto* line = std::get_if<LineSegment>(&segment))
    return LineSegment{line->to, line->from};
  if (const auto* arc = std::get_if<ArcSegment>(&segment))
    return ArcSegment{arc->centre, arc->radius, arc->start + arc->sweep, -arc->sweep};
  SmoothSegment smooth = std::get<SmoothSegment>(segment);
  std::ranges::reverse(smooth.control);
  return smooth;
}

Point pointAt(const ArcSegment& arc, double degrees) {
  return {arc.centre.x + arc.radius * std::cos(toRadians(degrees)),
          arc.centre.y + arc.radius * std::sin(toRadians(degrees))};
}

double headingFrom(Point a, Point b) {
  return toDegrees(std::atan2(b.y - a.y, b.x - a.x));
}

/// The part that the segment is, in the piece's frame.
ChainPart partOf(const RouteSegment& segment) {
  ChainPart part;
  if (const auto* line = std::get_if<LineSegment>(&segment)) {
    const double heading = headingFrom(line->from, line->to);
    part.start = {line->from.x, line->from.y, heading};
    part.end = {line->to.x, line->to.y, heading};
    part.length = std::hypot(line->to.x - line->from.x, line->to.y - line->from.y);
  } else if (const auto* arc = std::get_if<ArcSegment>(&segment)) {
    const double turn = std::copysign(90.0, arc->sweep);
    const Point from = pointAt(*arc, arc->start);
    const Point to = pointAt(*arc, arc->start + arc->sweep);
    part.form = ChainPart::Form::Arc;
    part.start = {from.x, from.y, arc->start + turn};
    part.end = {to.x, to.y, arc->start + arc->sweep + turn};
    part.radius = arc->radius;
    part.sweep = arc->sweep;
    part.length = arc->radius * toRadians(std::abs(arc->sweep));
  } else {
    const auto& control = std::get<SmoothSegment>(segment).control;
    part.form = ChainPart::Form::Other;
    part.start = {control[0].x, control[0].y, headingFrom(control[0], control[1])};
    part.end = {control[3].x, control[3].y, headingFrom(control[2], control[3])};
    part.length = std::hypot(control[3].x - control[0].x, control[3].y - control[0].y);
  }
  return part;
}

/// Where the other ends of the piece lie, seen in the direction of travel.
void markOtherEnds(ChainPart& part, const Link& link) {
  const double angle = toRadians(part.start.heading);
  for (const Connector& end : part.definition->connectors) {
    if (end.id == link.enter || end.id == link.exit)
      continue;
    const double right =
        (end.y - part.start.y) * std::cos(angle) - (end.x - part.start.x) * std::sin(angle);
    (right > 0 ? part.endToRight : part.endToLeft) = true;
  }
}

void appendParts(const Layout& layout, const Link& link, std::vector<ChainPart>& parts) {
  const PlacedPiece& piece = *layout.findPiece(link.piece);
  const PieceDef& definition = *definitionOf(piece);
  const Route* route = link.enter == -1 || link.exit == -1
                           ? nullptr
                           : routeBetween(definition, link.enter, link.exit);
  if (route == nullptr)
    return;
  std::vector<RouteSegment> segments = route->segments;
  if (route->from != link.enter) {
    std::ranges::reverse(segments);
    std::ranges::transform(segments, segments.begin(), reversed);
  }
  const double low = endHeight(piece, definition, link.enter);
  const double climb = (endHeight(piece, definition, link.exit) - low) / routeLength(*route);
  double along = 0;
  for (const RouteSegment& segment : segments) {
    ChainPart part = partOf(segment);
    part.piece = link.piece;
    part.definition = &definition;
    markOtherEnds(part, link);
    part.startHeight = low + along * climb;
    along += part.length;
    part.endHeight = low + along * climb;
    const RigidMotion motion{{}, poseOf(piece)};
    part.start = motion(part.start);
    part.end = motion(part.end);
    parts.push_back(part);
  }
}

TrackChain turnedRound(TrackChain chain) {
  std::ranges::reverse(chain.parts);
  for (ChainPart& part : chain.parts) {
    std::swap(part.start, part.end);
    part.start.heading = normaliseHeading(part.start.heading + 180);
    part.end.heading = normaliseHeading(part.end.heading + 180);
    part.sweep = -part.sweep;
    std::swap(part.startHeight, part.endHeight);
    std::swap(part.endToRight, part.endToLeft);
  }
  return chain;
}

} // namespace

TrackChain selectedChain(const Layout& layout) {
  const std::vector<std::int32_t> pieces = selectedPieces(layout);
  TrackChain chain;
  if (pieces.empty())
    chain.problem = tr("Select a chain of track first.");
  for (const std::int32_t id : pieces)
    if (chain.problem.empty())
      chain.problem = problemOf(layout, *layout.findPiece(id));
  if (!chain.problem.empty())
    return chain;
  const std::vector<Link> links = linksOf(layout, pieces);
  if (links.size() != pieces.size()) {
    chain.problem = tr("The selected pieces are not one chain of joined track.");
    return chain;
  }
  const Link& last = links.back();
  chain.closed = links.size() > 1 && last.exit != -1 &&
                 layout.findPiece(last.piece)->joint(static_cast<std::size_t>(last.exit)) ==
                     Joint{links.front().piece, links.front().enter};
  for (const Link& link : links)
    appendParts(layout, link, chain.parts);
  if (chain.parts.empty()) {
    chain.problem = tr("There is no track in the selection that a train runs over.");
    return chain;
  }
  const Pose& from = chain.parts.front().start;
  const Pose& to = chain.parts.back().end;
  return !chain.closed && (to.x < from.x - 0.5 || (to.x < from.x + 0.5 && to.y < from.y))
             ? turnedRound(std::move(chain))
             : chain;
}

} // namespace trassix
