#include "editing/helix/helix_ends.h"

#include "editing/joining/snapping.h"
#include "texts/texts.h"

namespace trassix {

std::vector<HelixEnd> endsOf(const HelixPlan& plan) {
  std::vector<HelixEnd> ends;
  const double side = plan.hand == HelixHand::Right ? 1 : -1;
  for (const bool top : {false, true})
    for (std::size_t track = 0; track < plan.kit->tracks(); ++track) {
      const PieceDef& curve = track == 0 ? *plan.kit->inner : plan.kit->outermost();
      const double heading = plan.centre.heading + (top ? side * plan.kit->turns * 360 : 0);
      PlacedEnd end;
      end.at = toWorld({plan.centre.x, plan.centre.y, heading}, {0, -side * curve.radius});
      end.heading = normaliseHeading(top ? heading : heading + 180);
      end.height = plan.height + (top ? plan.climb() : 0);
      end.system = plan.kit->system;
      end.connector = static_cast<std::int32_t>(ends.size());
      end.graded = true;
      ends.push_back({top, track == 1, end});
    }
  return ends;
}

std::string nameOf(const HelixPlan& plan, const HelixEnd& end) {
  if (plan.kit->tracks() == 1)
    return end.top ? tr("top") : tr("bottom");
  if (end.top)
    return end.outer ? tr("top, outer track") : tr("top, inner track");
  return end.outer ? tr("bottom, outer track") : tr("bottom, inner track");
}

HelixPlan standingBy(const HelixPlan& plan, std::size_t end, const PlacedEnd& target) {
  const PlacedEnd own = endsOf(plan).at(end).placed;
  HelixPlan moved = plan;
  moved.centre = motionOnto(own, target)(plan.centre);
  moved.height += target.height - own.height;
  return moved;
}

} // namespace trassix
