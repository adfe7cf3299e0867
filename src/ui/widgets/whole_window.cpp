#include "ui/widgets/whole_window.h"

#include <wx/toplevel.h>

namespace trassix {

void showWhole(wxTopLevelWindow& window) {
  // As long as the toolkit does not know how wide the window manager's decorations are it puts the
  // showing off to ask, and lays the window out as 2 by 1 pixels meanwhile: too narrow for a tool
  // bar, and what is centred by that, or was to be placed itself, comes up in the corner of the
  // screen. A window that was given a client size is shown at once; decorations add to it.
  window.SetClientSize(window.GetClientSize());
}

} // namespace trassix
