#pragma once

#include "document/plan_content.h"
#include "editing/connector_geometry.h"

namespace trassix {

/// Turns by `to.heading` and shifts so that the point `from` lands at `to`.
struct RigidMotion {
  Point from;
  Pose to;

  Point operator()(Point p) const { return toWorld(to, {p.x - from.x, p.y - from.y}); }
  Pose operator()(const Pose& pose) const {
    const Point at = (*this)(Point{pose.x, pose.y});
    return {at.x, at.y, normaliseHeading(pose.heading + to.heading)};
  }
};

/// Whether everything selected stays within the limits of a plan when it is moved so, and pieces
/// rise by `rise` mm.
bool staysInLimits(const PlanContent& content, const RigidMotion& motion, double rise = 0);

/// Whether what goes from one pose to the other stays where it is, but for rounding.
bool isStill(const Pose& from, const Pose& to);

/// Applies the motion to the selected pieces, scenery items and shapes.
void moveSelectedBodies(PlanContent& content, const RigidMotion& motion);

/// Applies it to the selected labels and measurements, which have no heading of their own.
void moveSelectedNotes(PlanContent& content, const RigidMotion& motion);

} // namespace trassix
