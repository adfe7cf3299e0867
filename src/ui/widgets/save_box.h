#pragma once

#include <wx/string.h>

#include <filesystem>
#include <optional>
#include <string>

class wxWindow;

namespace trassix {

/// What is to be written, for the box that asks where to.
struct SaveBox {
  wxString title;
  std::string purpose; ///< by which the folder is remembered
  wxString name;       ///< offered
  wxString wildcard;
  std::string extension; ///< for names without one, with its point
};

/// The file that the user chose, who was asked before one is replaced; none when cancelled.
std::optional<std::filesystem::path> askWhereToSave(wxWindow* parent, const SaveBox& box);

} // namespace trassix
