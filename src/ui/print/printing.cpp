#include "ui/print/printing.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/local_time.h"
#include "app/services/program_memory.h"
#include "app/services/text_file.h"
#include "document/file_names.h"
#include "document/open_plan.h"
#include "document/plan_content.h"
#include "host/workspace.h"
#include "ui/canvas/gc_surface.h"
#include "ui/print/chosen_printer.h"
#include "ui/print/export_picture_dialog.h"
#include "ui/print/layout_printout.h"
#include "ui/print/print_options_dialog.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"

#include <wx/filedlg.h>
#include <wx/frame.h>
#include <wx/graphics.h>
#include <wx/image.h>
#include <wx/msgdlg.h>
#include <wx/mstream.h>
#include <wx/paper.h>
#include <wx/print.h>
#include <wx/printdlg.h>
#include <wx/utils.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>
#include <memory>

namespace trassix {

namespace {

constexpr int kMarginMm = 15;

Paper paperOf(const PrintSettings& settings) {
  Paper paper;
  const wxSize tenths = wxThePrintPaperDatabase->GetSize(settings.data.GetPaperId());
  if (tenths.x > 0 && tenths.y > 0)
    paper.size = {tenths.x / 10.0, tenths.y / 10.0};
  else if (const wxSize own = settings.data.GetPaperSize(); own.x > 0 && own.y > 0)
    paper.size = {double(own.x), double(own.y)};
  if (settings.data.GetOrientation() == wxLANDSCAPE)
    paper.size = paper.size.turned();
  const wxPoint low = settings.page.GetMarginTopLeft();
  const wxPoint high = settings.page.GetMarginBottomRight();
  paper.margins = {double(low.x), double(low.y), double(high.x), double(high.y)};
  return paper;
}

PrintTitle titleOf(Workspace& workspace) {
  return {workspace.plan().name(), localDateText(std::time(nullptr))};
}

/// What cannot be read counts as nothing; the purchase list tells of it.
OwnedStock ownedStock() {
  OwnedStock owned;
  owned.load(ProgramMemory(StandardFolders::memoryFile()),
             UserPaths::layoutsFolder() / OwnedStock::kOlderFileName);
  return owned;
}

/// The plan as it is now, without its history: pages are laid out more than once, and a preview
/// stays open while the plan goes on being edited.
std::shared_ptr<const Layout> asItIs(const Layout& layout) {
  auto kept = std::make_shared<Layout>();
  kept->edit() = layout.content();
  kept->editSettings() = layout.settings();
  return kept;
}

LayoutPrintout::Job jobOf(Workspace& workspace, const PrintSettings& settings) {
  return {asItIs(workspace.layout()),
          settings.options,
          titleOf(workspace),
          paperOf(settings),
          ownedStock(),
          {},
          {},
          {}};
}

/// The printer gets the paper as the pages were laid out.
void turnPaper(wxPrintData& data, const PageSet& pages) {
  data.SetOrientation(pages.paper.size.width > pages.paper.size.height ? wxLANDSCAPE : wxPORTRAIT);
}

PrinterCorrection correctionOf(const wxString& printer) {
  return PrinterCorrections(ProgramMemory(StandardFolders::memoryFile())).of(toUtf8(printer));
}

void tellCount(wxWindow& window, std::size_t before, std::size_t now) {
  wxMessageBox(wxString::Format(_("On the chosen printer and paper it takes %zu pages, not %zu."),
                                now, before),
               _("Print"), wxOK | wxICON_INFORMATION, &window);
}

/// The bytes of a PNG with the plan on it.
PictureFile pngPicture(const Layout& layout, const PictureForm& form) {
  const SizePx size = form.pixels();
  const wxSize px(static_cast<int>(size.width), static_cast<int>(size.height));
  wxImage image(px);
  if (!image.IsOk())
    return {{}, toUtf8(_("There is not enough memory for a picture of this size."))};
  image.InitAlpha();
  std::fill_n(image.GetAlpha(), std::size_t(px.x) * std::size_t(px.y), wxIMAGE_ALPHA_TRANSPARENT);
  if (const std::unique_ptr<wxGraphicsContext> context{wxGraphicsContext::Create(image)}) {
    GcSurface surface(*context);
    paintPicture(surface, layout, form.options(), form.pixelsPerMm(), form.background());
  }
  image.SetOption(wxIMAGE_OPTION_RESOLUTIONUNIT, wxIMAGE_RESOLUTION_INCHES);
  // So that it prints at its scale.
  const int dpi = std::max(
      1, static_cast<int>(std::lround(form.pixelsPerMm() * 25.4 * form.options().scale / 100.0)));
  image.SetOption(wxIMAGE_OPTION_RESOLUTIONX, dpi);
  image.SetOption(wxIMAGE_OPTION_RESOLUTIONY, dpi);
  wxMemoryOutputStream stream;
  if (!image.SaveFile(stream, wxBITMAP_TYPE_PNG))
    return {{}, toUtf8(_("The picture could not be made."))};
  PictureFile file;
  file.bytes.resize(stream.GetSize());
  stream.CopyTo(file.bytes.data(), file.bytes.size());
  return file;
}

struct FileKind {
  const char* extension;
  const char* wildcard;
};
/// By `PictureFormat`.
constexpr std::array<FileKind, 3> kFileKinds{{{"png", wxTRANSLATE("PNG pictures (*.png)|*.png")},
                                              {"svg", wxTRANSLATE("SVG pictures (*.svg)|*.svg")},
                                              {"pdf", wxTRANSLATE("PDF documents (*.pdf)|*.pdf")}}};

} // namespace

PrintSettings::PrintSettings() {
  page.SetPrintData(data);
  page.SetMarginTopLeft({kMarginMm, kMarginMm});
  page.SetMarginBottomRight({kMarginMm, kMarginMm});
}

void setUpPage(wxFrame& window, PrintSettings& settings) {
  settings.page.SetPrintData(settings.data);
  wxPageSetupDialog dialog(&window, &settings.page);
  if (dialog.ShowModal() != wxID_OK)
    return;
  settings.page = dialog.GetPageSetupData();
  settings.data = settings.page.GetPrintData();
}

void printPlan(wxFrame& window, Workspace& workspace, PrintSettings& settings) {
  const wxString printerName = settings.data.GetPrinterName();
  PrintOptionsDialog dialog(&window,
                            PrintForm(workspace.layout(), settings.options, paperOf(settings),
                                      titleOf(workspace), correctionOf(printerName), ownedStock()),
                            printerName);
  if (dialog.ShowModal() != wxID_OK)
    return;
  const PrintForm& form = dialog.form();
  settings.options = form.options();
  if (const std::string problem = PrinterCorrections(ProgramMemory(StandardFolders::memoryFile()))
                                      .remember(toUtf8(printerName), form.correction());
      !problem.empty())
    showNotices(&window, _("Print"), {problem});

  wxPrintData data = settings.data;
  turnPaper(data, form.pages());
  wxPrintDialogData asked(data);
  asked.SetMinPage(1);
  asked.SetMaxPage(static_cast<int>(form.pages().pages.size()));
  wxPrinter printer(&asked);
  LayoutPrintout::Job job = jobOf(workspace, settings);
  job.only = form.only();
  job.correction = [&printer] {
    return correctionOf(chosenPrinter(printer.GetPrintDialogData().GetPrintData()));
  };
  job.recounted = [&window](std::size_t before, std::size_t now) {
    tellCount(window, before, now);
  };
  LayoutPrintout printout(std::move(job));
  if (printer.Print(&window, &printout, true))
    settings.data = printer.GetPrintDialogData().GetPrintData();
  else if (wxPrinter::GetLastError() == wxPRINTER_ERROR)
    wxMessageBox(
        _("There was a problem printing. Check that a printer is installed and connected."),
        _("Print"), wxOK | wxICON_ERROR, &window);
}

void previewPlan(wxFrame& window, Workspace& workspace, PrintSettings& settings) {
  LayoutPrintout::Job job = jobOf(workspace, settings);
  job.correction = [correction = correctionOf(settings.data.GetPrinterName())] {
    return correction;
  };
  // Both live longer than this call.
  auto* shown = new LayoutPrintout(job);
  const auto printsFrom = std::make_shared<wxPrintPreview*>();
  job.correction = [printsFrom] {
    return correctionOf(chosenPrinter((*printsFrom)->GetPrintDialogData().GetPrintData()));
  };
  job.recounted = [&window](std::size_t before, std::size_t now) {
    tellCount(window, before, now);
  };
  wxPrintData data = settings.data;
  turnPaper(data, shown->pages());
  wxPrintDialogData dialogData(data);
  auto preview = std::make_unique<wxPrintPreview>(shown, new LayoutPrintout(job), &dialogData);
  *printsFrom = preview.get();
  if (!preview->IsOk()) {
    wxMessageBox(_("Could not create print preview. Is a printer driver installed?"),
                 _("Print Preview"), wxOK | wxICON_ERROR, &window);
    return;
  }
  auto* frame = new wxPreviewFrame(preview.release(), &window, _("Print Preview -- Trassix"),
                                   wxDefaultPosition, window.FromDIP(wxSize(900, 760)));
  frame->SetName("printPreview");
  frame->InitializeWithModality(wxPreviewFrame_NonModal);
  frame->Centre(wxBOTH);
  frame->Show();
}

void exportPicture(wxFrame& window, Workspace& workspace, PrintSettings& settings) {
  const wxString title = _("Export Picture");
  ExportPictureDialog dialog(&window, PictureForm(workspace.layout(), settings.options));
  if (dialog.ShowModal() != wxID_OK)
    return;
  const PictureForm& form = dialog.form();
  const FileKind& kind = kFileKinds[static_cast<std::size_t>(form.format())];
  wxFileDialog asked(&window, title, wxEmptyString,
                     fromUtf8(asFileName(workspace.plan().name())) + "." + kind.extension,
                     wxGetTranslation(kind.wildcard), wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
  if (asked.ShowModal() != wxID_OK)
    return;
  std::filesystem::path file = toPath(asked.GetPath());
  if (!file.has_extension())
    file += std::string(".") + kind.extension;
  writePicture(window, workspace, settings, form, file);
}

void writePicture(wxFrame& window, Workspace& workspace, const PrintSettings& settings,
                  const PictureForm& form, const std::filesystem::path& file) {
  const wxBusyCursor busy;
  PictureFile picture;
  if (form.format() == PictureFormat::Png)
    picture = pngPicture(workspace.layout(), form);
  else if (form.format() == PictureFormat::Svg)
    picture = svgPicture(workspace.layout(), form.options(), titleOf(workspace));
  else
    picture = pdfPicture(workspace.layout(), form.options(), titleOf(workspace), form.pdfLayout(),
                         paperOf(settings), ownedStock());
  FileReport report;
  if (picture.problem.empty())
    picture.problem = writeBytes(file, picture.bytes, &report);
  if (!picture.problem.empty())
    showFailure(&window, _("Export Failed"), fromUtf8(picture.problem), report.reason);
}

} // namespace trassix
