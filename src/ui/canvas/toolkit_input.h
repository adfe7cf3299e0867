// What the canvas and its like know, from and to the toolkit.
#pragma once

#include "editing/canvas/canvas_input.h"

#include <wx/cursor.h>

namespace trassix {

/// The key of the toolkit's code, whatever is held down with it.
Key plainKey(int keyCode);

wxStockCursor stockCursor(CursorShape shape);

} // namespace trassix
