#include "editing/track/routes.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace trassix {
namespace {

using Pairs = std::set<std::pair<std::int32_t, std::int32_t>>;

double gap(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// How far a point lies from the line through two others.
double off(Point p, Point a, Point b) {
  return std::abs((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x)) / gap(a, b);
}

void expectEnd(const RoutePoint& point, const Connector& end, double direction) {
  EXPECT_LT(gap(point.position, {end.x, end.y}), 1e-6);
  EXPECT_LT(headingDifference(point.heading, end.heading + direction), 0.011);
}

TEST(Routes, RunFromEndToEndOfEveryPieceWithoutGapOrKink) {
  for (const PieceDef& piece : wholeCatalogue()) {
    ASSERT_FALSE(routesOf(piece).empty()) << piece.name;
    for (const Route& route : routesOf(piece)) {
      SCOPED_TRACE(piece.name + " " + std::to_string(route.from) + "-" + std::to_string(route.to));
      const std::vector<RoutePoint> line = sampleRoute(route, 0.01, 1.0);
      expectEnd(line.front(), piece.connectors.at(static_cast<std::size_t>(route.from)), 180);
      if (route.to != -1)
        expectEnd(line.back(), piece.connectors.at(static_cast<std::size_t>(route.to)), 0);

      // In steps of a millimetre: no gap, no kink, no bend far tighter than the piece's radius. The
      // second lines of these two are published crooked: their ends do not lie opposite each other.
      const bool crooked = piece.article == "59093" || piece.article == "59094";
      const double nominal = piece.kind == PieceKind::Turntable ? 0 : piece.radius;
      const double tightest = crooked ? 250.0 : std::max(nominal / 2, 100.0);
      double chords = 0;
      for (std::size_t k = 1; k < line.size(); ++k) {
        const double step = line[k].along - line[k - 1].along;
        chords += gap(line[k - 1].position, line[k].position);
        EXPECT_TRUE(step > 0 && step <= 1.1);
        EXPECT_LE(headingDifference(line[k].heading, line[k - 1].heading),
                  toDegrees(step / tightest) + 1e-6);
      }
      EXPECT_NEAR(chords, routeLength(route), 0.01);
      EXPECT_NEAR(routeLength(route), line.back().along, 1e-6);
      EXPECT_LT(chords, 1.1 * gap(line.front().position, line.back().position)); // no loop

      const auto coarse = sampleRoute(route, 0.5);
      std::size_t next = 1;
      for (const RoutePoint& p : line) {
        while (next + 1 < coarse.size() && coarse[next].along < p.along)
          ++next;
        EXPECT_LE(off(p.position, coarse[next - 1].position, coarse[next].position), 0.5 + 1e-9);
      }
    }
  }
}

TEST(Routes, TakeEveryWayThroughAPiece) {
  const std::map<std::string, Pairs> expected{
      {"24188", {{0, 1}}},
      {"24612", {{0, 1}, {0, 2}}},
      {"5214", {{0, 1}, {0, 2}, {0, 3}}},
      {"24672", {{0, 1}, {0, 2}}},
      {"24640", {{0, 1}, {2, 3}}},
      {"24624", {{0, 1}, {2, 3}, {0, 3}, {2, 1}}},
      {"24977", {{0, -1}}},
  };
  for (const auto& [article, pairs] : expected) {
    Pairs found;
    for (const Route& route : routesOf(cataloguePiece(article)))
      found.emplace(route.from, route.to);
    EXPECT_EQ(found, pairs) << article;
  }
  const auto& turntable = routesOf(cataloguePiece("74861"));
  ASSERT_EQ(turntable.size(), 30u);
  EXPECT_NEAR(routeLength(turntable[7]), 139, 1e-9);
}

} // namespace
} // namespace trassix
