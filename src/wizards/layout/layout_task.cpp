#include "wizards/layout/layout_task.h"

#include "catalog/plain_track.h"
#include "catalog/scenery_catalog.h"
#include "catalog/system_kits.h"
#include "editing/tunnels/tunnel_figures.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kUpright = 0.01; ///< mm that an edge may lean
constexpr double kSameLength = 1e-6;

bool isLevel(Point a, Point b) {
  return std::abs(a.y - b.y) <= kUpright && std::abs(a.x - b.x) > kUpright;
}

bool isUpright(Point a, Point b) {
  return std::abs(a.x - b.x) <= kUpright && std::abs(a.y - b.y) > kUpright;
}

Polygon rectangle(double width, double depth) {
  return {{0, 0}, {width, 0}, {width, depth}, {0, depth}};
}

} // namespace

std::string layoutPreferenceName(LayoutPreference preference) {
  constexpr std::array<const char*, kLayoutPreferenceCount> kNames{
      trLater("Longest run"), trLater("Longest station"), trLater("Fewest pieces"),
      trLater("Fewest kinds")};
  return tr(kNames.at(static_cast<std::size_t>(preference)));
}

std::string bridgeFormName(BridgeForm form) {
  return form == BridgeForm::Arch ? tr("Arch bridge") : tr("Truss bridge");
}

double usualEdgeDistance(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 12;
  case Gauge::Gauge1:
    return 80;
  case Gauge::H0:
    break;
  }
  return 30;
}

double usualStationLength(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 600;
  case Gauge::Gauge1:
    return 4100;
  case Gauge::H0:
    break;
  }
  return 1500;
}

std::vector<TrackSystem> layoutSystems() {
  return {TrackSystem::CTrack, TrackSystem::TrixCTrack, TrackSystem::KTrack,
          TrackSystem::MTrack, TrackSystem::ZTrack,     TrackSystem::Gauge1};
}

std::vector<double> cornerRadii(TrackSystem system) {
  std::vector<double> radii;
  for (const auto& [radius, curve] : plainCurvesByRadius(system))
    radii.push_back(radius);
  return radii;
}

std::vector<double> outerRadii(TrackSystem system, double radius) {
  const auto spacings = doubleTrackSpacings(system);
  std::vector<double> radii = cornerRadii(system);
  std::erase_if(radii, [&](double outer) {
    return spacings.empty() || outer - radius < spacings.front() - kSameLength;
  });
  return radii;
}

bool mayHaveTwoTracks(TrackSystem system) {
  return std::ranges::any_of(
      cornerRadii(system), [system](double radius) { return !outerRadii(system, radius).empty(); });
}

bool hasStationKit(TrackSystem system) {
  const StationKit kit = stationKit(system);
  return kit.leftTurnout != nullptr && kit.rightTurnout != nullptr &&
         kit.compensationCurve != nullptr;
}

bool hasBridge(TrackSystem system, BridgeForm form) {
  const BridgeKit kit = bridgeKit(system);
  return (form == BridgeForm::Arch ? kit.archBridge : kit.trussBridge) != nullptr;
}

std::vector<UsualTable> usualTables(TrackSystem system) {
  std::vector<UsualTable> tables;
  const auto add = [&tables](double width, double depth) {
    tables.push_back({formatSize(width, depth, kMillimetres), rectangle(width, depth)});
  };
  switch (gaugeOf(system)) {
  case Gauge::Z:
    add(800, 400);
    add(952, 427);
    return tables;
  case Gauge::Gauge1:
    add(4000, 2500);
    return tables;
  case Gauge::H0:
    break;
  }
  add(2000, 1000);
  add(1200, 800);
  add(1600, 1200);
  add(2400, 1200);
  add(3700, 1000);
  tables.push_back({tr("L, %1%", {formatSize(2400, 1800, kMillimetres)}),
                    {{0, 0}, {1150, 0}, {1150, 400}, {2400, 400}, {2400, 1800}, {0, 1800}}});
  tables.push_back({tr("U, %1%", {formatSize(3000, 2500, kMillimetres)}),
                    {{0, 0},
                     {1200, 0},
                     {1200, 1300},
                     {1800, 1300},
                     {1800, 0},
                     {3000, 0},
                     {3000, 2500},
                     {0, 2500}}});
  add(1220, 2440);
  return tables;
}

std::string tableSideName(const Polygon& outline, std::size_t side) {
  const auto placeOf = [&outline](std::size_t i) -> const char* {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    const bool clockwise = signedArea(outline) > 0;
    if (std::abs(a.y - b.y) < std::abs(a.x - b.x))
      return (b.x > a.x) == clockwise ? trLater("Top") : trLater("Bottom");
    return (b.y > a.y) == clockwise ? trLater("Right") : trLater("Left");
  };
  if (side >= outline.size())
    return {};
  int alike = 0;
  int before = 0;
  for (std::size_t i = 0; i < outline.size(); ++i)
    if (placeOf(i) == placeOf(side)) {
      ++alike;
      before += i < side ? 1 : 0;
    }
  const std::string name = tr(placeOf(side));
  return alike == 1 ? name : tr("%1% %2%", {name, before + 1});
}

Polygon withoutNeedlessCorners(const Polygon& outline) {
  Polygon corners = outline;
  for (std::size_t i = 0; corners.size() > 3 && i < corners.size();) {
    const Point before = corners[(i + corners.size() - 1) % corners.size()];
    const Point at = corners[i];
    const Point after = corners[(i + 1) % corners.size()];
    const bool onEdge =
        (std::abs(before.x - at.x) <= kUpright && std::abs(at.x - after.x) <= kUpright) ||
        (std::abs(before.y - at.y) <= kUpright && std::abs(at.y - after.y) <= kUpright);
    if (!onEdge) {
      ++i;
      continue;
    }
    corners.erase(corners.begin() + static_cast<std::ptrdiff_t>(i));
    i = 0;
  }
  return corners;
}

std::string tableProblem(const Polygon& outline) {
  if (std::string problem = outlineProblem(outline); !problem.empty())
    return problem;
  if (outline.size() > kMostTableCorners)
    return tr("The table has %1% corners. A layout can follow up to %2%.",
              {outline.size(), kMostTableCorners});
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    const Point c = outline[(i + 2) % outline.size()];
    if (!(isLevel(a, b) && isUpright(b, c)) && !(isUpright(a, b) && isLevel(b, c)))
      return tr("The table's edges have to run level and upright, with right angles between them.");
  }
  return {};
}

LayoutTask usualLayoutTask(TrackSystem system, const Polygon& baseboard) {
  LayoutTask task;
  task.system = system;
  const Polygon own = withoutNeedlessCorners(baseboard);
  task.outline = tableProblem(own).empty() ? own : usualTables(system).front().outline;
  task.distance = usualEdgeDistance(system);
  const std::vector<double> radii = cornerRadii(system);
  task.radius = radii.empty() ? 0 : radii.front();
  return task;
}

} // namespace trassix
