#include "ui/widgets/whole_window.h"

#include <wx/display.h>
#include <wx/toplevel.h>

#include <algorithm>

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

void placeBeside(wxTopLevelWindow& window, const wxWindow& parent) {
  const wxRect over = parent.GetScreenRect();
  const wxRect room = wxDisplay(&parent).GetClientArea();
  const wxSize size = window.GetSize();
  const int right = std::min(over.GetRight(), room.GetRight()) - window.FromDIP(12);
  const int middle = over.y + (over.height - size.y) / 2;
  window.Move(std::max(room.x, right - size.x),
              std::max(room.y, std::min(middle, room.GetBottom() - size.y)));
}

} // namespace trassix
