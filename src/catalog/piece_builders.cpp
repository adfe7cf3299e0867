#include "catalog/piece_builders.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace trassix {

namespace {

constexpr double kRadian = std::numbers::pi / 180.0;
constexpr ListedEnd kOrigin{0, 0, 180};

PieceDef blank(TrackSystem system, std::string article, std::string name, PieceKind kind) {
  PieceDef piece;
  piece.article = std::move(article);
  piece.name = std::move(name);
  piece.system = system;
  piece.kind = kind;
  return piece;
}

void addEnd(PieceDef& piece, ListedEnd end) {
  const auto id = static_cast<std::int32_t>(piece.connectors.size());
  piece.connectors.push_back({end.x, end.y, end.heading, true, id});
}

void setSpans(PieceDef& piece, std::int32_t a, std::int32_t b) {
  piece.spanA = a;
  piece.spanB = b;
}

} // namespace

PieceDef makeStraight(TrackSystem system, std::string article, std::string name, double length) {
  PieceDef piece = blank(system, std::move(article), std::move(name), PieceKind::Straight);
  piece.length = length;
  addEnd(piece, kOrigin);
  addEnd(piece, {length, 0, 0});
  return piece;
}

PieceDef makeCurve(TrackSystem system, std::string article, std::string name, double radius,
                   double angle) {
  PieceDef piece = blank(system, std::move(article), std::move(name), PieceKind::Curve);
  piece.length = radius * angle * kRadian;
  piece.radius = radius;
  piece.angle = angle;
  addEnd(piece, kOrigin);
  addEnd(piece,
         {radius * std::sin(angle * kRadian), radius * (1 - std::cos(angle * kRadian)), angle});
  return piece;
}

PieceDef makeTrackEnd(TrackSystem system, std::string article, std::string name, double length) {
  PieceDef piece = blank(system, std::move(article), std::move(name), PieceKind::TrackEnd);
  piece.length = length;
  addEnd(piece, kOrigin);
  return piece;
}

PieceDef makeTurnout(TrackSystem system, std::string article, std::string name, PieceKind side,
                     double length, double radius, double angle) {
  const bool left = side == PieceKind::TurnoutLeft;
  const double branchX = std::min(radius * std::sin(angle * kRadian), length);
  const double sine = branchX / radius;
  const double reached = sine <= 1 ? std::asin(sine) / kRadian : 0;
  const double branchY = radius * (1 - std::cos(reached * kRadian));

  PieceDef piece = blank(system, std::move(article), std::move(name), side);
  piece.length = length;
  piece.radius = radius;
  piece.angle = left ? -angle : angle;
  setSpans(piece, 2, 1);
  addEnd(piece, kOrigin);
  addEnd(piece, {length, 0, 0});
  if (left) {
    addEnd(piece, {branchX, -branchY, reached > 0 ? 360 - reached : 0});
  } else {
    addEnd(piece, {branchX, branchY, reached});
  }
  return piece;
}

PieceDef makeCrossing(TrackSystem system, std::string article, std::string name, PieceKind kind,
                      double length, double radius, double angle) {
  const double half = length / 2;
  const double acrossX = half * std::cos(angle * kRadian);
  const double acrossY = half * std::sin(angle * kRadian);

  PieceDef piece = blank(system, std::move(article), std::move(name), kind);
  piece.length = length;
  piece.radius = radius;
  piece.angle = angle;
  setSpans(piece, 2, 2);
  addEnd(piece, kOrigin);
  addEnd(piece, {length, 0, 0});
  addEnd(piece, {half - acrossX, -acrossY, angle + 180});
  addEnd(piece, {half + acrossX, acrossY, angle});
  return piece;
}

PieceDef makeTurntable(TrackSystem system, std::string article, std::string name, double diameter,
                       double ringRadius, double spacing, std::int32_t count) {
  PieceDef piece = blank(system, std::move(article), std::move(name), PieceKind::Turntable);
  piece.length = diameter;
  piece.radius = ringRadius;
  piece.angle = spacing;
  setSpans(piece, count, count);
  const int tracks = static_cast<int>(std::lround(360 / spacing));
  for (int track = 0; track < tracks; ++track) {
    const double heading = track * spacing;
    addEnd(piece, {ringRadius * std::cos(heading * kRadian),
                   ringRadius * std::sin(heading * kRadian), heading});
  }
  return piece;
}

PieceDef makeListed(TrackSystem system, std::string article, std::string name, PieceKind kind,
                    double length, double radius, double angle,
                    const std::vector<ListedEnd>& otherEnds) {
  PieceDef piece = blank(system, std::move(article), std::move(name), kind);
  piece.length = length;
  piece.radius = radius;
  piece.angle = angle;
  addEnd(piece, kOrigin);
  for (const ListedEnd& end : otherEnds) {
    addEnd(piece, end);
  }
  return piece;
}

PieceDef copyAs(const PieceDef* source, TrackSystem system, std::string article, std::string name) {
  if (source == nullptr) {
    return {};
  }
  PieceDef piece = *source;
  piece.article = std::move(article);
  piece.name = std::move(name);
  piece.system = system;
  return piece;
}

} // namespace trassix
