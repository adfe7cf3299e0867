#include "ui/print/chosen_printer.h"

#include <wx/cmndata.h>

#ifdef __WXGTK__
#include <wx/dynlib.h>
#include <wx/gtk/print.h>
#endif

namespace trassix {

#ifdef __WXGTK__

namespace {

/// A function of the toolkit's own toolkit, which is loaded with it; null when it has none such.
template <class Function>
Function* loaded(const char* name) {
  return reinterpret_cast<Function*>(
      wxDynamicLibrary::RawGetSymbol(wxDynamicLibrary::GetProgramHandle(), name));
}

} // namespace

#endif

wxString chosenPrinter(const wxPrintData& data) {
#ifdef __WXGTK__
  // Here the data learn what was chosen only when everything has been printed.
  auto* const native = dynamic_cast<wxGtkPrintNativeData*>(data.GetNativeData());
  const auto settingsOf =
      loaded<GtkPrintSettings*(GtkPrintOperation*)>("gtk_print_operation_get_print_settings");
  const auto printerIn = loaded<const char*(GtkPrintSettings*)>("gtk_print_settings_get_printer");
  if (native != nullptr && native->GetPrintJob() != nullptr && settingsOf && printerIn)
    if (GtkPrintSettings* const settings = settingsOf(native->GetPrintJob()))
      if (const char* const name = printerIn(settings))
        return wxString::FromUTF8(name);
#endif
  return data.GetPrinterName();
}

} // namespace trassix
