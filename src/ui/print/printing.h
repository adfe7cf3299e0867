#pragma once

#include "output/picture_form.h"
#include "output/print_options.h"

#include <wx/cmndata.h>

#include <filesystem>

class wxFrame;

namespace trassix {

class Workspace;

/// Paper, margins, printer and what was chosen last: kept while the window lives.
struct PrintSettings {
  PrintSettings();

  wxPrintData data;
  wxPageSetupDialogData page;
  PrintOptions options;
};

void setUpPage(wxFrame& window, PrintSettings& settings);
/// Asks what is to be printed, then for the printer.
void printPlan(wxFrame& window, Workspace& workspace, PrintSettings& settings);
/// Shows the pages in a window of their own, also without a printer.
void previewPlan(wxFrame& window, Workspace& workspace, PrintSettings& settings);

/// Asks for the form of a picture and its file, and writes it.
void exportPicture(wxFrame& window, Workspace& workspace, PrintSettings& settings);
/// Writes what the form says, and tells when it cannot.
void writePicture(wxFrame& window, Workspace& workspace, const PrintSettings& settings,
                  const PictureForm& form, const std::filesystem::path& file);

} // namespace trassix
