#pragma once

#include "editing/canvas/plan_theme.h"

namespace trassix {

/// How plans look in windows: as light or dark as the desktop.
const PlanTheme& systemTheme();

} // namespace trassix
