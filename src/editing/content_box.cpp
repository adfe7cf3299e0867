#include "editing/content_box.h"

#include "catalog/helix_kits.h"
#include "catalog/track_catalog.h"
#include "editing/connector_geometry.h"
#include "editing/scenery_footprint.h"
#include "editing/track_geometry.h"

#include <algorithm>

namespace trassix {

namespace {

class BoxBuilder {
 public:
  void add(Point p) {
    if (!box_)
      box_ = Box{p.x, p.y, p.x, p.y};
    *box_ = {std::min(box_->minX, p.x), std::min(box_->minY, p.y), std::max(box_->maxX, p.x),
             std::max(box_->maxY, p.y)};
  }
  void add(const std::vector<Point>& points) {
    for (const Point& p : points)
      add(p);
  }
  const std::optional<Box>& box() const { return box_; }

 private:
  std::optional<Box> box_;
};

} // namespace

std::optional<Box> contentBox(const Layout& layout) {
  BoxBuilder box;
  for (const PlacedPiece& piece : layout.pieces()) {
    box.add({piece.x, piece.y});
    const PieceDef* definition = TrackCatalog::instance().find(piece.cat);
    if (!definition)
      continue;
    const PoseFrame frame(poseOf(piece));
    for (const auto& outline : trackGeometryOf(*definition).beds)
      for (const Point& p : outline)
        box.add(frame(p));
  }
  const PlanContent& content = layout.content();
  for (const SceneryItem& item : content.scenery)
    box.add(sceneryOutline(layout, item));
  for (const Label& label : content.labels)
    box.add({label.x, label.y});
  for (const Measurement& tape : content.measurements) {
    box.add(tape.from);
    box.add(tape.to);
  }
  for (const Shape& shape : content.shapes)
    box.add(shape.points);
  for (const Helix& helix : content.helices) {
    const double half = helixHalfSize(helix.variant);
    box.add({helix.cx - half, helix.cy - half});
    box.add({helix.cx + half, helix.cy + half});
  }
  box.add(layout.settings().baseboard);
  for (const Level& level : layout.settings().levels)
    box.add(level.outline);
  return box.box();
}

} // namespace trassix
