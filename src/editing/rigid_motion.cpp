#include "editing/rigid_motion.h"

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
