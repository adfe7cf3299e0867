#include "wizards/layout/station_throat.h"

#include "catalog/plain_track.h"
#include "catalog/scenery_catalog.h"
#include "document/records.h"
#include "editing/track/routes.h"
#include "editing/tunnels/tunnel_figures.h"
#include "geometry/polygons.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace trassix {

namespace {

constexpr double kSpacingPlay = 0.5; ///< mm that two sidings may be nearer than the first is
constexpr double kSample = 2.0;      ///< mm along a way
constexpr double kFarAhead = 20000;  ///< mm: sidings go on in the reckoning of what is clear

double vehicleWidth(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 14.5;
  case Gauge::Gauge1:
    return 99;
  case Gauge::H0:
    break;
  }
  return 36;
}

PlacedPiece placedAt(const PieceDef& piece, const Pose& pose) {
  PlacedPiece placed = pieceAt(pose);
  placed.cat = piece.article;
  return placed;
}

class ThroatBuilder {
 public:
  ThroatBuilder(TrackSystem system, bool right) : system_(system), right_(right) {}

  StationThroat build(int sidings);

 private:
  WorldConnector endOf(std::size_t piece, std::int32_t end) const {
    return ConnectorToWorld(placed_[piece], *throat_.pieces[piece].piece, end);
  }
  std::size_t add(const PieceDef& piece, std::int32_t enter, std::size_t onto,
                  std::int32_t ontoEnd) {
    const Pose pose =
        throat_.pieces.empty() ? Pose{} : AttachPose(piece, enter, endOf(onto, ontoEnd));
    throat_.pieces.push_back({&piece, enter, onto, ontoEnd});
    placed_.push_back(placedAt(piece, pose));
    return placed_.size() - 1;
  }
  void addSiding(std::size_t piece, std::int32_t end) {
    throat_.sidings.push_back({piece, end, endOf(piece, end), 0});
  }
  std::vector<Point> wayTo(const StationThroat::Siding& siding) const;
  void findFouling(double distance);

  TrackSystem system_;
  bool right_;
  StationThroat throat_;
  std::vector<PlacedPiece> placed_;
};

/// Straights that two ladder turnouts need between them so that their sidings are as far apart as
/// the first one is from the main line.
std::optional<PlainStraight> spacerOf(TrackSystem system, double ladder, double sine,
                                      double spacing) {
  if (ladder * sine >= spacing - kSpacingPlay)
    return std::nullopt;
  std::optional<PlainStraight> best;
  for (const PlainStraight& straight : plainStraights(system))
    if ((ladder + straight.length) * sine >= spacing - kSpacingPlay)
      best = straight;
  return best;
}

StationThroat ThroatBuilder::build(int sidings) {
  const StationKit kit = stationKit(system_);
  const PieceDef& own = right_ ? *kit.rightTurnout : *kit.leftTurnout;
  const PieceDef& other = right_ ? *kit.leftTurnout : *kit.rightTurnout;
  const PieceDef& curve = *kit.compensationCurve;
  throat_.mainLength = own.connectors[1].x;
  const double sine = std::abs(std::sin(toRadians(own.connectors[2].heading)));
  const auto spacer =
      spacerOf(system_, other.connectors[1].x, sine, 2 * std::abs(own.connectors[2].y));
  std::size_t ladder = add(own, 0, 0, 0);
  std::int32_t ladderEnd = 2;
  for (int siding = 1; siding < sidings; ++siding) {
    ladder = add(other, 0, ladder, ladderEnd);
    ladderEnd = 1;
    addSiding(ladder, 2);
    if (spacer)
      ladder = add(*spacer->piece, 0, ladder, ladderEnd);
  }
  // A curve bends to the right of trains that come in at its end 0.
  const std::int32_t enter = right_ ? 1 : 0;
  addSiding(add(curve, enter, ladder, ladderEnd), 1 - enter);
  throat_.width = std::abs(throat_.sidings.back().start.y);
  findFouling(foulingDistance(system_, std::abs(own.radius)));
  return throat_;
}

/// The middle of the way from the main line's turnout to where the siding begins.
std::vector<Point> ThroatBuilder::wayTo(const StationThroat::Siding& siding) const {
  std::vector<Point> way;
  std::size_t piece = siding.piece;
  std::int32_t leave = siding.end;
  while (true) {
    const ThroatPiece& own = throat_.pieces[piece];
    for (const Route& route : routesOf(*own.piece)) {
      const bool forward = route.from == own.enter && route.to == leave;
      if (!forward && !(route.from == leave && route.to == own.enter))
        continue;
      std::vector<RoutePoint> points = sampleRoute(route, 0.05, kSample);
      if (forward)
        std::ranges::reverse(points); // the way is gathered from its end
      const PoseFrame frame(poseOf(placed_[piece]));
      for (const RoutePoint& point : points)
        way.push_back(frame(point.position));
      break;
    }
    if (piece == 0)
      break;
    leave = own.ontoEnd;
    piece = own.onto;
  }
  std::ranges::reverse(way);
  return way;
}

void ThroatBuilder::findFouling(double distance) {
  std::vector<std::vector<Point>> ways{{{0, 0}, {kFarAhead, 0}}};
  for (const StationThroat::Siding& siding : throat_.sidings) {
    ways.push_back(wayTo(siding));
    ways.back().push_back({kFarAhead, siding.start.y});
  }
  for (std::size_t i = 0; i < throat_.sidings.size(); ++i) {
    StationThroat::Siding& siding = throat_.sidings[i];
    const std::vector<Point>& own = ways[i + 1];
    const auto isClear = [&](Point at) {
      for (std::size_t k = 0; k < ways.size(); ++k)
        for (std::size_t p = 0; k != i + 1 && p + 1 < ways[k].size(); ++p)
          if (distanceToEdge(at, ways[k][p], ways[k][p + 1]) < distance)
            return false;
      return true;
    };
    siding.foul = siding.start.x;
    // Where the siding begins beside the ladder, trains have to stop short of it.
    while (siding.foul < kFarAhead && !isClear({siding.foul, siding.start.y}))
      siding.foul += kSample;
    if (siding.foul > siding.start.x)
      continue;
    for (std::size_t p = own.size() - 2; p > 0 && isClear(own[p - 1]); --p)
      siding.foul -= std::hypot(own[p].x - own[p - 1].x, own[p].y - own[p - 1].y);
  }
}

} // namespace

double foulingDistance(TrackSystem system, double radius) {
  return vehicleWidth(system) + 2 * sideAddition(system, radius);
}

StationThroat stationThroat(TrackSystem system, int sidings, bool right) {
  const StationKit kit = stationKit(system);
  if (kit.leftTurnout == nullptr || kit.rightTurnout == nullptr ||
      kit.compensationCurve == nullptr || sidings < 1)
    return {};
  return ThroatBuilder(system, right).build(sidings);
}

} // namespace trassix
