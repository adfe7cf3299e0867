#include "laid_track.h"

#include "catalog/track_catalog.h"
#include "document/records.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace trassix {

namespace {

constexpr double kStep = 12; ///< mm between spots

const PieceDef& definition(const PlacedPiece& piece) {
  return *TrackCatalog::instance().find(piece.cat);
}

double halfBed(TrackSystem system) {
  return system == TrackSystem::ZTrack ? 6 : system == TrackSystem::Gauge1 ? 31.5 : 18.7;
}

Point turned(const PlacedPiece& piece, double x, double y) {
  const double h = piece.heading * kPi / 180;
  return {piece.x + x * std::cos(h) - y * std::sin(h), piece.y + x * std::sin(h) + y * std::cos(h)};
}

double apart(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

bool isTurnout(const PieceDef& piece) {
  return piece.kind == PieceKind::TurnoutLeft || piece.kind == PieceKind::TurnoutRight;
}

} // namespace

LaidTrack::LaidTrack(const LayoutProposal& proposal) : pieces_(proposal.track.content.pieces) {
  joints_ = jointProblem();
}

std::string LaidTrack::jointProblem() {
  for (std::size_t i = 0; i < pieces_.size(); ++i) {
    const PieceDef& own = definition(pieces_[i]);
    if (pieces_[i].id != static_cast<std::int32_t>(i) + 1)
      return "ids do not count";
    for (std::size_t k = 0; k < own.connectors.size(); ++k) {
      const Joint joint = pieces_[i].joint(k);
      if (joint.open())
        return "end " + std::to_string(k) + " of " + pieces_[i].cat + " is open";
      const PlacedPiece& other = pieces_.at(static_cast<std::size_t>(joint.target - 1));
      if (other.joint(static_cast<std::size_t>(joint.tconn)) !=
          Joint{pieces_[i].id, static_cast<std::int32_t>(k)})
        return "a joint that one side knows of";
      const Connector& a = own.connectors[k];
      const Connector& b = definition(other).connectors[static_cast<std::size_t>(joint.tconn)];
      const double gap = apart(turned(pieces_[i], a.x, a.y), turned(other, b.x, b.y));
      const double facing =
          std::remainder(pieces_[i].heading + a.heading - other.heading - b.heading - 180, 360);
      worstGap_ = std::max(worstGap_, gap);
      if (gap > 1 || std::abs(facing) > 1)
        return "a joint is off by " + std::to_string(gap);
    }
  }
  return {};
}

/// Along the straight or curved ways of the piece; of a turnout both.
std::vector<Spot> LaidTrack::spotsOf(std::size_t index, double step) const {
  const PlacedPiece& piece = pieces_[index];
  const PieceDef& own = definition(piece);
  std::vector<Spot> spots;
  const auto straight = [&](double length) {
    for (double s = 0; s < length + step; s += step)
      spots.push_back({turned(piece, std::min(s, length), 0), index, piece.heading});
  };
  const auto arc = [&](double radius, double degrees) {
    const double side = degrees > 0 ? 1 : -1;
    const double whole = std::abs(degrees) * kPi / 180;
    for (double s = 0; s < whole * radius + step; s += step) {
      const double a = std::min(s / radius, whole);
      spots.push_back({turned(piece, radius * std::sin(a), side * radius * (1 - std::cos(a))),
                       index, piece.heading + side * a * 180 / kPi});
    }
  };
  if (own.kind == PieceKind::Curve) {
    arc(own.radius, own.angle);
  } else {
    straight(own.length);
    if (isTurnout(own))
      arc(own.radius, own.angle);
  }
  return spots;
}

std::string LaidTrack::roomProblem(const LayoutTask& task) const {
  const double least = task.distance + halfBed(task.system);
  for (std::size_t i = 0; i < pieces_.size(); ++i)
    for (const Spot& spot : spotsOf(i, kStep)) {
      double nearest = 1e9;
      for (std::size_t k = 0; k < task.outline.size(); ++k)
        nearest = std::min(nearest, distanceToEdge(spot.at, task.outline[k],
                                                   task.outline[(k + 1) % task.outline.size()]));
      if (!inside(task.outline, spot.at) || nearest < least - 0.02)
        return pieces_[i].cat + " lies " + std::to_string(nearest) + " from the edge";
    }
  return {};
}

bool LaidTrack::neighbours(std::size_t a, std::size_t b) const {
  for (std::size_t i = 0; i < definition(pieces_[a]).connectors.size(); ++i) {
    const std::int32_t to = pieces_[a].joint(i).target;
    if (to == pieces_[b].id)
      return true;
    for (std::size_t k = 0; k < definition(pieces_[b]).connectors.size(); ++k)
      if (pieces_[b].joint(k).target == to)
        return true;
  }
  return false;
}

bool LaidTrack::bedHolds(std::size_t index, Point at) const {
  constexpr double kInside = 0.6; ///< mm, what ends that miss each other may overlap by
  const PlacedPiece& piece = pieces_[index];
  const PieceDef& own = definition(piece);
  const double half = halfBed(own.system) - kInside;
  const double h = -piece.heading * kPi / 180;
  const double x = (at.x - piece.x) * std::cos(h) - (at.y - piece.y) * std::sin(h);
  const double y = (at.x - piece.x) * std::sin(h) + (at.y - piece.y) * std::cos(h);
  const double side = own.angle > 0 ? 1 : -1;
  const double turn = std::atan2(x, own.radius - side * y) * 180 / kPi;
  const double play = kInside / std::max(own.radius, 1.0) * 180 / kPi;
  const bool onArc = own.radius > 0 && turn > play && turn < std::abs(own.angle) - play &&
                     std::abs(std::hypot(x, own.radius - side * y) - own.radius) < half;
  const bool onStraight = x > kInside && x < own.length - kInside && std::abs(y) < half;
  return own.kind == PieceKind::Curve ? onArc : onStraight || (isTurnout(own) && onArc);
}

std::string LaidTrack::overlapProblem(double bed) const {
  constexpr double kCell = 90; ///< mm, more than a bed and the way between two spots
  std::map<std::pair<long, long>, std::vector<Spot>> cells;
  const auto cellOf = [](Point p) {
    return std::pair(std::lround(std::floor(p.x / kCell)), std::lround(std::floor(p.y / kCell)));
  };
  for (std::size_t i = 0; i < pieces_.size(); ++i)
    for (const Spot& spot : spotsOf(i, kStep))
      cells[cellOf(spot.at)].push_back(spot);
  for (const auto& [cell, spots] : cells)
    for (const Spot& spot : spots) {
      std::set<std::size_t> near;
      for (long dx = -1; dx <= 1; ++dx)
        for (long dy = -1; dy <= 1; ++dy)
          if (const auto found = cells.find({cell.first + dx, cell.second + dy});
              found != cells.end())
            for (const Spot& other : found->second)
              if (other.piece != spot.piece && apart(other.at, spot.at) < bed + 2 * kStep)
                near.insert(other.piece);
      std::erase_if(near, [&](std::size_t other) { return neighbours(spot.piece, other); });
      const double h = spot.heading * kPi / 180;
      for (const double off : {-bed / 2, 0.0, bed / 2})
        for (const std::size_t other : near)
          if (bedHolds(other, {spot.at.x - off * std::sin(h), spot.at.y + off * std::cos(h)}))
            return pieces_[spot.piece].cat + " lies on " + pieces_[other].cat;
    }
  return {};
}

std::vector<std::size_t> LaidTrack::loop(bool other) const {
  std::set<std::size_t> seen;
  std::vector<std::size_t> way;
  for (std::size_t start : {std::size_t{0}, pieces_.size()}) {
    if (start != 0) {
      // The other loop begins with the next piece that has only two ends or is entered straight.
      for (start = 0; seen.contains(start); ++start)
        ;
      if (!other || start >= pieces_.size())
        return way;
      way.clear();
    }
    std::size_t piece = start;
    // Loops are laid in the direction of travel, which right turns enter by their end 0.
    std::size_t leave = pieces_[piece].joint(1).target == pieces_[piece].id + 1 ? 1 : 0;
    do {
      seen.insert(piece);
      way.push_back(piece);
      const Joint joint = pieces_[piece].joint(leave);
      piece = static_cast<std::size_t>(joint.target - 1);
      leave = joint.tconn == 0 ? 1 : 0;
    } while (piece != start && way.size() <= pieces_.size());
  }
  return way;
}

std::string LaidTrack::spacingProblem(const LayoutTask& task) const {
  const double spacing = task.secondRadius - task.radius;
  std::vector<Spot> inner;
  for (const std::size_t piece : loop(true))
    for (const Spot& spot : spotsOf(piece, 1))
      inner.push_back(spot);
  for (const std::size_t piece : loop(false))
    for (const Spot& spot : spotsOf(piece, 90)) {
      double nearest = 1e9;
      for (const Spot& other : inner)
        nearest = std::min(nearest, apart(spot.at, other.at));
      // The sampled other track is up to half a step beside the nearest point.
      if (std::abs(nearest - spacing) > 0.05)
        return "the tracks are " + std::to_string(nearest) + " apart";
    }
  return {};
}

std::string LaidTrack::problem(const LayoutTask& task) const {
  if (!joints_.empty())
    return joints_;
  if (std::string room = roomProblem(task); !room.empty())
    return room;
  if (std::string overlap = overlapProblem(2 * halfBed(task.system)); !overlap.empty())
    return overlap;
  return task.tracks() == 2 ? spacingProblem(task) : std::string();
}

} // namespace trassix
