#include "ui/widgets/file_boxes.h"

#include "ui/widgets/utf8.h"

#include <wx/msgdlg.h>
#include <wx/translation.h>

namespace trassix {

void showFailure(wxWindow* parent, const wxString& title, const wxString& text,
                 std::error_code reason) {
  const wxString why = reason ? fromUtf8(reason.message()) : wxString();
  wxMessageBox(text.Contains(why) ? text : text + "\n" + why, title, wxOK | wxICON_ERROR, parent);
}

void showNotices(wxWindow* parent, const wxString& title, const std::vector<std::string>& notices) {
  wxString text;
  for (const std::string& notice : notices)
    text += (text.empty() ? "" : "\n\n") + fromUtf8(notice);
  if (!text.empty())
    wxMessageBox(text, title, wxOK | wxICON_WARNING, parent);
}

} // namespace trassix
