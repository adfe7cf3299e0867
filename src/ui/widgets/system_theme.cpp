#include "ui/widgets/system_theme.h"

#include "ui/widgets/picture_panel.h"

namespace trassix {

const PlanTheme& systemTheme() {
  return darkTheme() ? nightTheme() : screenTheme();
}

} // namespace trassix
