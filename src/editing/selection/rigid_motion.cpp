#include "editing/selection/rigid_motion.h"

#include "document/limits.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

template <class Records>
void movePoses(Records& records, const RigidMotion& motion) {
  for (auto& record : records) {
    if (!record.sel)
      continue;
    const Pose pose = motion(Pose{record.x, record.y, record.heading});
    record.x = pose.x;
    record.y = pose.y;
    record.heading = pose.heading;
  }
}

} // namespace

bool staysInLimits(const PlanContent& content, const RigidMotion& motion, double rise) {
  const auto all = [](const auto& records, auto stays) {
    return std::ranges::all_of(
        records, [&stays](const auto& record) { return !record.sel || stays(record); });
  };
  const auto lands = [&motion](Point p) { return inLimits(motion(p)); };
  const auto position = [&lands](const auto& record) { return lands({record.x, record.y}); };
  return all(content.pieces,
             [&](const PlacedPiece& p) { return position(p) && isLength(p.z + rise); }) &&
         all(content.scenery, position) && all(content.labels, position) &&
         all(content.measurements,
             [&](const Measurement& m) { return lands(m.from) && lands(m.to); }) &&
         all(content.shapes, [&](const Shape& s) { return std::ranges::all_of(s.points, lands); });
}

void moveSelectedBodies(PlanContent& content, const RigidMotion& motion) {
  movePoses(content.pieces, motion);
  movePoses(content.scenery, motion);
  for (Shape& shape : content.shapes)
    if (shape.sel)
      for (Point& vertex : shape.points)
        vertex = motion(vertex);
}

void moveSelectedNotes(PlanContent& content, const RigidMotion& motion) {
  for (Label& label : content.labels) {
    if (!label.sel)
      continue;
    const Point at = motion(Point{label.x, label.y});
    label.x = at.x;
    label.y = at.y;
  }
  for (Measurement& measurement : content.measurements) {
    if (!measurement.sel)
      continue;
    measurement.from = motion(measurement.from);
    measurement.to = motion(measurement.to);
  }
}

} // namespace trassix
