#include "ui/widgets/wrapped_text.h"

#include <wx/dc.h>
#include <wx/tokenzr.h>

namespace trassix {

wxArrayString wrappedLines(const wxDC& dc, const wxString& text, int width) {
  wxArrayString lines;
  for (const wxString& word : wxStringTokenize(text, " ", wxTOKEN_RET_EMPTY)) {
    const wxString longer = lines.empty() ? word : lines.Last() + " " + word;
    if (!lines.empty() && dc.GetTextExtent(longer).x <= width)
      lines.Last() = longer;
    else
      lines.Add(word);
  }
  return lines;
}

} // namespace trassix
