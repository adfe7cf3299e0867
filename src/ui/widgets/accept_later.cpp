#include "ui/widgets/accept_later.h"

#include <wx/dialog.h>

namespace trassix {

void acceptLater(wxDialog& dialog) {
  dialog.CallAfter([&dialog] {
    const wxWindow* accept = dialog.FindWindow(wxID_OK);
    if (dialog.IsModal() && accept && accept->IsEnabled())
      dialog.EndModal(wxID_OK);
  });
}

} // namespace trassix
