#pragma once

class wxPrintData;
class wxString;

namespace trassix {

/// The name of the printer that was chosen in the system's dialog, while it is printed on.
wxString chosenPrinter(const wxPrintData& data);

} // namespace trassix
