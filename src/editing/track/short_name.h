// Names of pieces for lists, where neighbours have to be told apart at a glance.
#pragma once

#include "catalog/piece_def.h"

#include <cstdint>
#include <string>

namespace trassix {

struct ShortName {
  std::string text; ///< what tells the piece from its neighbours, the most telling word first
  std::string rest; ///< measures that did not have to be said for that; may be empty
};

/// "180 mm", "R2 30°", "left, slim": from the definition's measures, and from the words of its name
/// that say what it is for. Of two pieces of a system that differ in kind, side, radius, angle or
/// length the texts differ as well. Lengths are in `units` (`measures/measure_format.h`).
ShortName shortNameOf(const PieceDef& piece, std::int32_t units);

/// The text for a list without headings, which tells that a turnout is one: "left, slim, turnout".
std::string nameInList(const PieceDef& piece, std::int32_t units);

} // namespace trassix
