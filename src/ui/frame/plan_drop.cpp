#include "ui/frame/plan_drop.h"

#include "app/desktop/path_text.h"
#include "ui/commands/plan_files.h"

#include <wx/window.h>

namespace trassix {

bool PlanDrop::OnDropFiles(wxCoord, wxCoord, const wxArrayString& names) {
  if (names.empty())
    return false;
  // The program that the file comes from waits until this returns.
  window_.CallAfter([this, file = toPath(names[0])] {
    window_.Raise();
    files_.openNamed(file);
  });
  return true;
}

} // namespace trassix
