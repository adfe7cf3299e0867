#pragma once

#include "document/records_fwd.h"
#include "geometry/pose.h"

namespace trassix {

/// Whether everything selected stays within the limits of a plan when it is moved so, and pieces
/// rise by `rise` mm.
bool staysInLimits(const PlanContent& content, const RigidMotion& motion, double rise = 0);

/// Applies the motion to the selected pieces, scenery items and shapes, and to helices that are
/// selected whole.
void moveSelectedBodies(PlanContent& content, const RigidMotion& motion);

/// Applies it to the selected labels and measurements, which have no heading of their own.
void moveSelectedNotes(PlanContent& content, const RigidMotion& motion);

} // namespace trassix
