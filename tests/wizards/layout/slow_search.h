#pragma once

#include "wizards/layout/layout_task.h"

#include <vector>

namespace trassix {

/// Unknown: there would be room, if straights came in all lengths.
enum class SlowVerdict { Impossible, Possible, Unknown };

/// Whether a task has a layout, found by trying out: rectangles by all lengths that straights make
/// up, other tables by moving the lines around their inside corners in small steps.
SlowVerdict slowSearch(const LayoutTask& task);

/// By tenths of a millimetre: whether straights of the system make up such a length.
std::vector<bool> straightSums(TrackSystem system, double longest);

/// Lengths of main line, in tenths, that a station of the task can have, up to `longest` mm.
std::vector<long> stationSums(const LayoutTask& task, double longest);

/// Usable length of the shortest siding in a station of this length of main line.
double usableOf(const LayoutTask& task, double length);

} // namespace trassix
