#include "catalog/track_catalog.h"
#include "editing/routes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>
#include <set>

namespace trassix {
namespace {

using Pairs = std::set<std::pair<std::int32_t, std::int32_t>>;

double gap(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// These two publish a second line whose ends do not lie opposite each other, so that a train would
/// swing through an S.
bool publishedCrooked(const PieceDef& definition) {
  return definition.article == "59093" || definition.article == "59094";
}

TEST(Routes, RunFromEndToEndOfEveryPieceWithoutGapOrKink) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& definition = *catalog.at(i);
    SCOPED_TRACE(definition.name);
    const std::vector<Route>& routes = routesOf(definition);
    ASSERT_FALSE(routes.empty());
    EXPECT_EQ(routes.front().from, 0);
    for (const Route& route : routes) {
      SCOPED_TRACE(std::to_string(route.from) + " to " + std::to_string(route.to));
      const std::vector<RoutePoint> line = sampleRoute(route, 0.01, 1.0);
      const Connector& from = definition.connectors.at(static_cast<std::size_t>(route.from));
      EXPECT_LT(gap(line.front().position, {from.x, from.y}), 1e-6);
      EXPECT_LT(180 - headingDifference(line.front().heading, from.heading), 0.011);
      if (route.to != -1) {
        const Connector& to = definition.connectors.at(static_cast<std::size_t>(route.to));
        EXPECT_LT(gap(line.back().position, {to.x, to.y}), 1e-6);
        EXPECT_LT(headingDifference(line.back().heading, to.heading), 0.011);
      }

      // Steps of about a millimetre: no gap between segments, no kink, no bend far tighter than the
      // piece's own radius, and the lengths add up.
      const double nominal = definition.kind == PieceKind::Turntable ? 0 : definition.radius;
      const double tightest = publishedCrooked(definition) ? 250.0 : std::max(nominal / 2, 100.0);
      double chords = 0;
      for (std::size_t k = 1; k < line.size(); ++k) {
        const double step = gap(line[k - 1].position, line[k].position);
        chords += step;
        EXPECT_LE(step, 1.0 + 1e-9);
        EXPECT_GT(line[k].along, line[k - 1].along);
        EXPECT_LE(headingDifference(line[k].heading, line[k - 1].heading),
                  (line[k].along - line[k - 1].along) / tightest * 180 / std::numbers::pi + 1e-6);
      }
      EXPECT_NEAR(chords, line.back().along, 0.01);
      EXPECT_NEAR(routeLength(route), line.back().along, 1e-6);
      EXPECT_LT(chords, 1.1 * gap(line.front().position, line.back().position));
    }
  }
}

TEST(Routes, KeepToTheToleranceWhenSampledCoarsely) {
  for (const char* article : {"24130", "59035", "8560", "59093"}) {
    for (const Route& route : routesOf(*TrackCatalog::instance().find(article))) {
      const auto coarse = sampleRoute(route, 0.5);
      std::size_t next = 1;
      for (const RoutePoint& p : sampleRoute(route, 0.001, 1.0)) {
        while (next + 1 < coarse.size() && coarse[next].along < p.along)
          ++next;
        const Point a = coarse[next - 1].position;
        const Point b = coarse[next].position;
        const double off =
            std::abs((b.x - a.x) * (p.position.y - a.y) - (b.y - a.y) * (p.position.x - a.x)) /
            gap(a, b);
        EXPECT_LE(off, 0.5 + 1e-9) << article;
      }
    }
  }
}

TEST(Routes, TakeEveryWayThroughAPiece) {
  const std::map<std::string, Pairs> expected{
      {"24188", {{0, 1}}},
      {"24612", {{0, 1}, {0, 2}}},
      {"24630", {{0, 1}, {0, 2}, {0, 3}}},
      {"5214", {{0, 1}, {0, 2}, {0, 3}}},
      {"24672", {{0, 1}, {0, 2}}},
      {"59085", {{0, 1}, {0, 2}}},
      {"24640", {{0, 1}, {2, 3}}},
      {"24624", {{0, 1}, {2, 3}, {0, 3}, {2, 1}}},
      {"24977", {{0, -1}}},
  };
  for (const auto& [article, pairs] : expected) {
    Pairs found;
    for (const Route& route : routesOf(*TrackCatalog::instance().find(article)))
      found.emplace(route.from, route.to);
    EXPECT_EQ(found, pairs) << article;
  }
  const auto& turntable = routesOf(*TrackCatalog::instance().find("74861"));
  ASSERT_EQ(turntable.size(), 30u);
  EXPECT_NEAR(routeLength(turntable[7]), 139, 1e-9);
  EXPECT_NEAR(routeLength(routesOf(*TrackCatalog::instance().find("24977"))[0]), 48.3, 1e-9);
}

} // namespace
} // namespace trassix
