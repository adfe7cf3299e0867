#pragma once

#include "ui/docks/docked_panel.h"

namespace trassix {

/// The heights along the way through the selection, under the canvas.
extern const DockedPanel kProfilePanel;

} // namespace trassix
