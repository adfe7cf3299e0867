#pragma once

#include "host/editor_switches.h"

namespace trassix {

/// What of the plan is shown, from one run to the next.
EditorSwitches rememberedLook(EditorSwitches switches);
void rememberLook(const EditorSwitches& switches);

} // namespace trassix
