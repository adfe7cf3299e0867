// Random tasks for bridges, and a judge of what comes of them that shares no code with the wizard.
#pragma once

#include "document/layout.h"
#include "wizards/bridge/bridge_plan.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace trassix {

struct BridgeCase {
  Layout layout;
  BridgeTask task;
  std::vector<std::int32_t> way; ///< the pieces that the bridge may lead along, in order
  bool round = false;            ///< they are a loop
  bool open = false;             ///< the way may be made longer at both ends
  std::int32_t ownLower = -1;    ///< piece of the way that it comes back over
  std::string about;
};

/// A case of this system whose tracks cross at an angle in the band.
BridgeCase randomCase(std::mt19937& random, TrackSystem system, BridgeWay way, double leastAngle,
                      double mostAngle);

/// The first thing wrong with what was built, empty when nothing is.
std::string faultIn(const BridgeCase& before, const Layout& after, const BridgePlan& plan);

/// Whether heights within the limit exist that lead the chosen track over all that it crosses, as
/// found by trying slopes in small steps from joint to joint. False for tasks that ask for a kind
/// of span or pier.
bool couldClimb(const BridgeCase& task);

} // namespace trassix
