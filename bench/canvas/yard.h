#pragma once

#include "document/layout.h"

namespace trassix::bench {

constexpr double kRowGap = 96; ///< mm

/// Winding tracks below one another, beginning at the origin.
Layout yard(int rows, int piecesInRow);

} // namespace trassix::bench
