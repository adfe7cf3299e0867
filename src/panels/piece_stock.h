#pragma once

#include "wizards/layout/layout_task.h"

namespace trassix {

class OwnedStock;

/// What is at home, counted in pieces: an article that is sold as a pair is two of them.
PieceStock piecesAtHome(const OwnedStock& owned);

} // namespace trassix
