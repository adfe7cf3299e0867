#include "ui/widgets/save_box.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/services/text_file.h"
#include "ui/widgets/remembered_folder.h"
#include "ui/widgets/utf8.h"

#include <wx/filedlg.h>
#include <wx/msgdlg.h>
#include <wx/translation.h>

namespace trassix {

std::optional<std::filesystem::path> askWhereToSave(wxWindow* parent, const SaveBox& box) {
  wxFileDialog dialog(parent, box.title,
                      toText(rememberedFolder(box.purpose, StandardFolders::documents())), box.name,
                      box.wildcard, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
  if (dialog.ShowModal() != wxID_OK)
    return std::nullopt;
  std::filesystem::path file = toPath(dialog.GetPath());
  rememberFolder(box.purpose, file.parent_path());
  if (file.has_extension())
    return file;
  // The dialog has asked about the name as it was typed only.
  file += box.extension;
  std::error_code error;
  if (std::filesystem::exists(file, error) &&
      wxMessageBox(wxString::Format(_("\"%s\" exists. Replace it?"), fromUtf8(pathText(file))),
                   box.title, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, parent) != wxYES)
    return std::nullopt;
  return file;
}

} // namespace trassix
