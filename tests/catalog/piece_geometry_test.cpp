// Every definition against what its own kind, length, radius and angle say about its ends.
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace trassix {
namespace {

constexpr double kRadian = 3.141592653589793 / 180;

/// Published ends are rounded by up to half a tenth of a millimetre.
void expectEnd(const PieceDef& piece, std::size_t index, double x, double y, double heading) {
  ASSERT_LT(index, piece.connectors.size());
  const Connector& end = piece.connectors[index];
  EXPECT_NEAR(end.x, x, 0.05) << "end " << index;
  EXPECT_NEAR(end.y, y, 0.05) << "end " << index;
  EXPECT_NEAR(std::remainder(end.heading - heading, 360), 0, 0.001) << "end " << index;
}

/// Where an arc from the origin ends that turns by `angle`, to the left when it is negative.
void expectArcEnd(const PieceDef& piece, std::size_t index, double angle, double shiftX = 0) {
  const double x = piece.radius * std::sin(std::abs(angle) * kRadian);
  const double y = piece.radius * (1 - std::cos(angle * kRadian));
  expectEnd(piece, index, x + shiftX, std::copysign(y, angle), angle);
}

/// The angle at which a branch ends that must not reach beyond the straight route.
double branchAngle(const PieceDef& piece) {
  const double sine =
      std::min(std::sin(std::abs(piece.angle) * kRadian), piece.length / piece.radius);
  return std::asin(sine) / kRadian;
}

void expectGeometryOfKind(const PieceDef& piece) {
  const std::size_t ends = piece.connectors.size();
  const double half = piece.length / 2;
  const double across = half * std::cos(piece.angle * kRadian);
  const double aside = half * std::sin(piece.angle * kRadian);
  switch (piece.kind) {
  case PieceKind::TrackEnd:
    EXPECT_EQ(ends, 1U);
    return;
  case PieceKind::Straight:
  case PieceKind::Uncoupler:
    EXPECT_EQ(ends, 2U);
    return expectEnd(piece, 1, piece.length, 0, 0);
    break;
  case PieceKind::Curve:
    EXPECT_EQ(ends, 2U);
    return expectArcEnd(piece, 1, piece.angle);
  case PieceKind::TurnoutLeft:
  case PieceKind::TurnoutRight:
    expectEnd(piece, 1, piece.length, 0, 0);
    if (ends == 4) {
      expectArcEnd(piece, 2, branchAngle(piece));
      expectArcEnd(piece, 3, -branchAngle(piece));
    } else {
      EXPECT_EQ(ends, 3U);
      EXPECT_EQ(piece.kind == PieceKind::TurnoutLeft, piece.angle < 0);
      expectArcEnd(piece, 2, std::copysign(branchAngle(piece), piece.angle));
    }
    break;
  case PieceKind::CurvedTurnout:
    EXPECT_EQ(ends, 3U);
    expectArcEnd(piece, 1, piece.angle);
    return expectArcEnd(piece, 2, piece.angle, piece.length - piece.connectors[1].x);
  case PieceKind::CurvedTurnoutSpaced:
    EXPECT_EQ(ends, 3U);
    expectArcEnd(piece, 1, piece.angle);
    return expectArcEnd(piece, 2, piece.angle, piece.length);
  case PieceKind::Crossing:
  case PieceKind::DoubleSlip:
    EXPECT_EQ(ends, 4U);
    expectEnd(piece, 1, piece.length, 0, 0);
    expectEnd(piece, 2, half - across, -aside, piece.angle + 180);
    return expectEnd(piece, 3, half + across, aside, piece.angle);
  case PieceKind::Turntable:
    ASSERT_NEAR(static_cast<double>(ends) * piece.angle, 360, 1e-9);
    for (std::size_t i = 0; i < ends; ++i) {
      const double heading = static_cast<double>(i) * piece.angle;
      expectEnd(piece, i, piece.radius * std::cos(heading * kRadian),
                piece.radius * std::sin(heading * kRadian), heading);
    }
    break;
  }
}

TEST(PieceGeometry, followsFromKindAndMeasures) {
  const std::set<std::string> differ{"24711", "24712", // published branch heading of 12.092 degrees
                                     "5214", // three-way turnout filed among the curved ones
                                     "8560", // ends drawn out to the full length on both routes
                                     "59085", "59086",  // branch on the side opposite to the name
                                     "59092",           // only the end of a turnout
                                     "59093", "59094"}; // parallel routes
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    SCOPED_TRACE(piece.name);
    for (std::size_t id = 0; id < piece.connectors.size(); ++id) {
      const Connector& end = piece.connectors[id];
      EXPECT_TRUE(end.valid && end.id == static_cast<std::int32_t>(id));
      EXPECT_TRUE(end.heading >= 0 && end.heading < 360);
    }
    if (piece.kind != PieceKind::Turntable)
      expectEnd(piece, 0, 0, 0, 180);
    EXPECT_TRUE(piece.name.starts_with(piece.article.substr(0, 4)));
    EXPECT_TRUE(piece.bridge || !(piece.ramp || piece.pair));
    if (!differ.contains(piece.article))
      expectGeometryOfKind(piece);
  }
}

TEST(PieceGeometry, mirrorsLeftAndRightTwins) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  const std::vector<std::pair<const char*, const char*>> twins{
      {"24611", "24612"}, {"24671", "24672"}, {"24711", "24712"}, {"24771", "24772"},
      {"62611", "62612"}, {"62671", "62672"}, {"8562", "8563"},   {"8565", "8566"},
      {"8568", "8569"},   {"2262", "2263"},   {"2265", "2266"},   {"2268", "2269"},
      {"22715", "22716"}, {"5118", "5119"},   {"5122", "5123"},   {"5203", "5204"},
      {"5143", "5142"},   {"59084", "59083"}, {"59085", "59086"}};
  for (const auto& [leftArticle, rightArticle] : twins) {
    SCOPED_TRACE(leftArticle);
    const PieceDef& left = *catalog.find(leftArticle);
    const PieceDef& right = *catalog.find(rightArticle);
    EXPECT_THAT(left.name, testing::HasSubstr("Left"));
    EXPECT_THAT(right.name, testing::HasSubstr("Right"));
    EXPECT_EQ(left.length, right.length);
    EXPECT_EQ(left.radius, right.radius);
    // The one right twin whose published angle has the sign of its left one.
    EXPECT_EQ(left.angle, leftArticle == std::string("24711") ? right.angle : -right.angle);
    ASSERT_EQ(left.connectors.size(), right.connectors.size());
    for (std::size_t i = 0; i < left.connectors.size(); ++i) {
      EXPECT_EQ(left.connectors[i].x, right.connectors[i].x);
      EXPECT_EQ(left.connectors[i].y, -right.connectors[i].y);
      const double sum = left.connectors[i].heading + right.connectors[i].heading;
      EXPECT_NEAR(std::remainder(sum, 360), 0, 1e-9);
    }
  }
}

TEST(PieceGeometry, closesACircleOfEveryCurveThatDividesIt) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  int circles = 0;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    if (piece.kind != PieceKind::Curve || std::remainder(360, piece.angle) != 0)
      continue;
    ++circles;
    const Connector& end = piece.connectors[1];
    double x = 0;
    double y = 0;
    double heading = 0;
    do {
      const double turn = heading * kRadian;
      x += end.x * std::cos(turn) - end.y * std::sin(turn);
      y += end.x * std::sin(turn) + end.y * std::cos(turn);
      heading += end.heading;
    } while (heading < 360);
    EXPECT_EQ(heading, 360) << piece.name;
    EXPECT_NEAR(std::hypot(x, y), 0, 0.01) << piece.name;
  }
  EXPECT_EQ(circles, 62);
}

TEST(PieceBuilders, copeWithTheEdges) {
  const auto branch = [](PieceKind side, double length, double angle) {
    return makeTurnout(TrackSystem::ZTrack, "a", "n", side, length, 490, angle).connectors[2];
  };
  EXPECT_NEAR(branch(PieceKind::TurnoutRight, 111, 13).x, 110.23, 0.005); // not cut
  EXPECT_EQ(branch(PieceKind::TurnoutLeft, 110, 0).heading, 0);
  EXPECT_EQ(copyAs(nullptr, TrackSystem::CTrack, "a", "n"), PieceDef{});
}

} // namespace
} // namespace trassix
