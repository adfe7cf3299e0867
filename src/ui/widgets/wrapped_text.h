#pragma once

#include <wx/arrstr.h>

class wxDC;
class wxString;

namespace trassix {

/// The text in lines that are at most `width` wide in the font of the context, broken at blanks. A
/// longer word stands alone on its line.
wxArrayString wrappedLines(const wxDC& dc, const wxString& text, int width);

} // namespace trassix
