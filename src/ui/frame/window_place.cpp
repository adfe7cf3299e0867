#include "ui/frame/window_place.h"

#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"
#include "ui/widgets/whole_window.h"

#include <wx/display.h>
#include <wx/toplevel.h>

#include <algorithm>

namespace trassix {

namespace {

const std::string kTopic = "mainWindow";

} // namespace

void placeWindow(wxTopLevelWindow& window, const wxSize& usual) {
  const auto kept = ProgramMemory(StandardFolders::memoryFile())
                        .recall(kTopic)
                        .value_or(ProgramMemory::Section::object());
  const auto width = valueIn<std::int16_t>(kept, "width");
  const auto height = valueIn<std::int16_t>(kept, "height");
  const bool known = width && height && *width > 0 && *height > 0;
  const wxSize wanted = window.FromDIP(known ? wxSize(*width, *height) : usual);
  const int display = wxDisplay::GetFromWindow(&window);
  const wxRect area =
      wxDisplay(display == wxNOT_FOUND ? 0u : static_cast<unsigned>(display)).GetClientArea();
  const wxSize size(std::min(wanted.x, area.width), std::min(wanted.y, area.height));
  const wxRect place = wxRect(size).CentreIn(area);
  window.SetSize(place);
#ifdef __WXGTK__
  // Its decorations come on top of its size and are taken off again.
  showWhole(window);
  window.Bind(wxEVT_SIZE, [&window, place, client = window.GetClientSize(),
                           done = false](wxSizeEvent& event) mutable {
    event.Skip();
    if (done || !window.IsShown() || window.GetSize() == place.GetSize())
      return;
    done = true;
    if (window.GetClientSize() == client) // else the window manager has a size of its own for it
      window.CallAfter([&window, place] { window.SetSize(place); }); // once that has settled
  });
#endif
  if (valueIn<bool>(kept, "maximized").value_or(false))
    window.Maximize();
}

void rememberPlace(const wxTopLevelWindow& window) {
  if (window.IsIconized() || window.IsFullScreen())
    return;
  // Not worth a word when it fails.
  ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [&window](auto& kept) {
    kept["maximized"] = window.IsMaximized();
    if (window.IsMaximized())
      return; // the size that it goes back to stays
    const wxSize size = window.ToDIP(window.GetSize());
    kept["width"] = size.x;
    kept["height"] = size.y;
  });
}

} // namespace trassix
