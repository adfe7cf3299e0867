// What pulling at the joints of a way does. Joints go by number: joint i is where stretch i begins,
// the last one is the end of the way, which is joint 0 again when the way goes once round. Heights
// in mm.
#pragma once

#include "editing/elevation/propagation.h"
#include "editing/elevation/train_way.h"

#include <cstddef>
#include <vector>

namespace trassix {

class Layout;

/// Whether the end of the way is joined to its start.
bool goesRound(const Layout& layout, const TrainWay& way);

double heightOfJoint(const TrainWay& way, std::size_t joint);

/// The joints that keep their height when another one is pulled: where the grade changes, where
/// track that takes no grade begins or ends, and both ends of the way. One that goes once round has
/// no ends, but when it is all level its joint 0 is kept. Ascending.
std::vector<std::size_t> kneesOn(const Layout& layout, const TrainWay& way);

/// The joint comes to lie so high, with an even grade to the knees on either side. Beyond the end
/// of the way all is lifted that hangs there; a knee that is the only one lifts all.
HeightPlan planJointHeight(const Layout& layout, const TrainWay& way, std::size_t joint,
                           double height, LoopRule loops = LoopRule::Refuse);

/// The joint comes to lie so high and lifts all that hangs together.
HeightPlan planLiftAll(const Layout& layout, const TrainWay& way, std::size_t joint, double height);

/// One even grade between the knees on either side of this one. Nothing changes at the ends.
HeightPlan planWithoutKnee(const Layout& layout, const TrainWay& way, std::size_t joint,
                           LoopRule loops = LoopRule::Refuse);

/// The way as it would lie.
TrainWay wayAfter(const Layout& layout, const TrainWay& way, const HeightPlan& plan);

} // namespace trassix
