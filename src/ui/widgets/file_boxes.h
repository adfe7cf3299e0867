// The message boxes about what came of reading and writing files.
#pragma once

#include <wx/string.h>

#include <string>
#include <system_error>
#include <vector>

class wxWindow;

namespace trassix {

/// Tells why something failed, with the system's reason on a line of its own where the text does
/// not say it.
void showFailure(wxWindow* parent, const wxString& title, const wxString& text,
                 std::error_code reason);

/// All sentences in one box; none without sentences.
void showNotices(wxWindow* parent, const wxString& title, const std::vector<std::string>& notices);

} // namespace trassix
