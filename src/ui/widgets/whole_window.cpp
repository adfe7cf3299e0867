#include "ui/widgets/whole_window.h"

#include <wx/toplevel.h>

namespace trassix {

void showWhole(wxTopLevelWindow& window) {
  // As long as the toolkit does not know how wide the window manager's decorations are, at the
  // start and after a dialog was hidden, it makes a window of 2 by 1 pixels to ask for them before
  // it shows it. GTK takes that size for the window manager's wish and forgets the place that it
  // was given; a tool bar has no room in it; and what is centred over it is wider, so that it is
  // pushed onto the screen: to its corner. A window that was given a client size is shown at once,
  // decorations added.
  window.SetClientSize(window.GetClientSize());
}

} // namespace trassix
