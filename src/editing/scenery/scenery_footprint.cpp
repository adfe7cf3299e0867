#include "editing/scenery/scenery_footprint.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "editing/track/connector_geometry.h"

#include <cmath>

namespace trassix {

namespace {

constexpr Footprint kUnknownItem{60, 60, 0};
constexpr int kEllipsePoints = 72;

} // namespace

TrackSystem planSystem(const Layout& layout) {
  for (const PlacedPiece& piece : layout.pieces())
    if (const PieceDef* definition = TrackCatalog::instance().find(piece.cat))
      return definition->system;
  return TrackSystem::CTrack;
}

Footprint sceneryFootprint(const Layout& layout, const SceneryItem& item) {
  const SceneryDef* definition = findScenery(item.item);
  Footprint size = definition ? definition->footprint(planSystem(layout)) : kUnknownItem;
  size.width *= item.scalex;
  size.depth *= item.scaley;
  return size;
}

std::vector<Point> sceneryOutline(const Layout& layout, const SceneryItem& item) {
  const SceneryDef* definition = findScenery(item.item);
  return sceneryOutline(definition ? definition->form : SceneryForm::Rectangle,
                        sceneryFootprint(layout, item), {item.x, item.y}, item.heading);
}

std::vector<Point> sceneryOutline(SceneryForm form, const Footprint& size, Point at,
                                  double heading) {
  const Pose pose{at.x, at.y, heading};
  const double w = size.width / 2;
  const double d = size.depth / 2;
  if (form == SceneryForm::Rectangle)
    return {toWorld(pose, {-w, -d}), toWorld(pose, {w, -d}), toWorld(pose, {w, d}),
            toWorld(pose, {-w, d})};
  std::vector<Point> points;
  for (int i = 0; i < kEllipsePoints; ++i) {
    const double t = 2 * kPi * i / kEllipsePoints;
    points.push_back(toWorld(pose, {w * std::cos(t), d * std::sin(t)}));
  }
  return points;
}

} // namespace trassix
