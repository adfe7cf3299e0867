#pragma once

#include "wizards/layout/layout_task.h"

#include <random>
#include <string>

namespace trassix {

/// Any form of table, sized about what the system needs, with any wish that may be had of it.
LayoutTask randomTask(TrackSystem system, std::mt19937& random);

/// For messages, so that a task can be made again by hand.
std::string describe(const LayoutTask& task);

} // namespace trassix
