#include "ui/frame/program_icon.h"

#include "embedded/programPictures.h"

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/mstream.h>

namespace trassix {

wxIconBundle programIcon() {
  wxIconBundle icons;
  for (const auto png : programPictures()) {
    wxMemoryInputStream stream(png.data(), png.size());
    const wxImage image(stream, wxBITMAP_TYPE_PNG);
    wxIcon icon;
    icon.CopyFromBitmap(wxBitmap(image));
    icons.AddIcon(icon);
  }
  return icons;
}

} // namespace trassix
