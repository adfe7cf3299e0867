#pragma once

#include "dice.h"

#include <string>

namespace trassix::fuzz {

/// The text of a plan that has some of everything, damaged in a few places: other numbers and ids,
/// lines that are gone, doubled or moved, cut off somewhere, or all on one line.
std::string damagedPlan(Dice& dice);

/// A block of such a plan's pieces.
std::string damagedBlock(Dice& dice);

} // namespace trassix::fuzz
