#include "document/plan_content.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "output/page_painter.h"
#include "support/printed_marks.h"
#include "ui/print/layout_printout.h"
#include "ui/print/printing.h"

#include <wx/checklst.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>
#include <wx/print.h>
#include <wx/stattext.h>

#include <cstring>

namespace trassix::test {
namespace {

class PrintTest : public FrameTest {
 protected:
  static wxWindow& in(const wxWindow& dialog, const char* name) {
    return *wxWindow::FindWindowByName(name, &dialog);
  }
  static std::string text(const wxWindow& dialog, const char* name) {
    return dynamic_cast<wxStaticText&>(in(dialog, name)).GetLabelText().utf8_string();
  }
  static void enter(wxWindow& dialog, const char* name, const char* typed) {
    click(in(dialog, name));
    pressKey('A', wxMOD_CONTROL);
    typeText(typed);
    waitUntil("it is typed",
              [&] { return dynamic_cast<wxTextCtrl&>(in(dialog, name)).GetValue() == typed; });
  }
  void showBoard() {
    plan().editSettings().baseboard = {{0, 0}, {1200, 0}, {1200, 800}, {0, 800}};
    placePiece(300);
  }
};

constexpr int kPpi = 300;
constexpr double kPxPerMmHere = kPpi / 25.4;

/// A printer as the toolkit presents it, with its pages kept as pictures.
class FakePrinter {
 public:
  FakePrinter(LayoutPrintout& printout, int margin) : printout_(printout), margin_(margin) {
    const wxSize whole(2480, 3508);
    size_ = wxSize(whole.x - 2 * margin, whole.y - 2 * margin);
    bitmap_.Create(size_.x, size_.y);
    dc_.SelectObject(bitmap_);
    printout.SetDC(&dc_);
    printout.SetPageSizePixels(size_.x, size_.y);
    printout.SetPageSizeMM(static_cast<int>(size_.x / kPxPerMmHere),
                           static_cast<int>(size_.y / kPxPerMmHere));
    printout.SetPaperRectPixels(wxRect(wxPoint(-margin, -margin), whole));
    printout.SetPPIPrinter(kPpi, kPpi);
    printout.SetPPIScreen(96, 96);
    printout.OnPreparePrinting();
  }

  wxImage page(int number) {
    dc_.SetBackground(*wxWHITE_BRUSH);
    dc_.Clear();
    EXPECT_TRUE(printout_.OnPrintPage(number));
    dc_.SelectObject(wxNullBitmap);
    const wxImage image = bitmap_.ConvertToImage();
    dc_.SelectObject(bitmap_);
    return image;
  }

 private:
  LayoutPrintout& printout_;
  int margin_;
  wxSize size_;
  wxBitmap bitmap_;
  wxMemoryDC dc_;
};

TEST_F(PrintTest, MarksComeOutInPlaceAlsoOfPrintersThatLie) {
  start();
  const MarkedPlan plan = MarkedPlan::make();
  const auto layout = std::make_shared<const Layout>(plan.layout);
  PrintOptions options;
  options.mode = static_cast<std::int32_t>(PrintMode::TrueSize);
  options.orientation = static_cast<std::int32_t>(PrintOrientation::Upright);
  constexpr int kReach = 71; // 6 mm that the printer does not reach
  for (const PrinterCorrection lie :
       {PrinterCorrection{}, PrinterCorrection{0.9959, 1.003}, PrinterCorrection{1.02, 1.05}}) {
    LayoutPrintout printout({layout,
                             options,
                             {"Süd", "today"},
                             Paper{kA4, {4, 4, 4, 4}},
                             {},
                             {},
                             [&lie] { return lie; },
                             [](std::size_t, std::size_t) { FAIL() << "as many as before"; }});
    FakePrinter printer(printout, kReach);
    const PageSet& pages = printout.pages();
    std::size_t counted = 0;
    for (std::size_t i = 0; i < pages.pages.size(); ++i) {
      if (pages.pages[i].kind != PageKind::Tile)
        continue;
      const wxImage image = printer.page(static_cast<int>(i) + 1);
      const unsigned char* data = image.GetData();
      const auto isMark = [&](int sheetX, int sheetY) {
        const int x = sheetX - kReach;
        const int y = sheetY - kReach;
        if (x < 0 || y < 0 || x >= image.GetWidth() || y >= image.GetHeight())
          return false;
        if (sheetX * lie.x > 2480 || sheetY * lie.y > 3508)
          return false; // beside the sheet
        const unsigned char* p = data + 3 * (y * image.GetWidth() + x);
        return p[0] > 190 && p[1] < 120 && p[2] > 190;
      };
      // What comes out is as many pixels to a true millimetre as the printer lies.
      EXPECT_LT(farthestMark(plan, pages, pages.pages[i], kPxPerMmHere / lie.x,
                             kPxPerMmHere / lie.y, isMark, counted),
                0.1)
          << pages.pages[i].tile.name();
    }
    EXPECT_GT(counted, plan.marks.size() / 2);
  }
  options.overlap = 33; // of which what the printer reaches takes a column more
  std::pair<std::size_t, std::size_t> told;
  LayoutPrintout printout({layout,
                           options,
                           {},
                           Paper{kA4, {4, 4, 4, 4}},
                           {},
                           {},
                           {},
                           [&](std::size_t was, std::size_t is) {
                             told = {was, is};
                           }});
  const std::size_t promised = printout.pages().pages.size();
  const FakePrinter printer(printout, kReach);
  EXPECT_GT(printout.pages().pages.size(), promised);
  EXPECT_EQ(told, std::pair(promised, printout.pages().pages.size()));
  finish();
}

TEST_F(PrintTest, OptionsAreChosenByKeysAndMouseAndRemembered) {
  startLaidOut();
  showBoard();
  dialogs.drive("Print Options", [&](wxDialog& dialog) {
    EXPECT_EQ(text(dialog, "printSummary").substr(0, 6), "1 page");
    const auto count = [&] { return std::atoi(text(dialog, "printSummary").c_str()); };
    pressKey('l', wxMOD_ALT);
    waitUntil("there are tiles", [&] { return count() > 1; });
    pressKey('e', wxMOD_ALT);
    typeText("1:5");
    waitUntil("they are fewer", [&] { return count() == 1; });
    pressKey('t', wxMOD_ALT);
    waitUntil("there are tiles", [&] { return count() > 1; });
    const int all = count();
    wxWindow& picture = in(dialog, "printPicture");
    click({picture, wxPoint(40, picture.GetClientSize().y / 2)});
    waitUntil("a sheet is left out", [&] { return count() == all - 1; });
    auto& sheets = dynamic_cast<wxCheckListBox&>(in(dialog, "printPages"));
    EXPECT_EQ(sheets.GetString(0), "Overview");
    pressKey('m', wxMOD_ALT); // all of them, then none
    waitUntil("all are back", [&] { return count() == all; });
    pressKey('m', wxMOD_ALT);
    waitUntil("none is left", [&] { return !dialog.FindWindow(wxID_OK)->IsEnabled(); });
    pressKey('w', wxMOD_ALT);
    pressKey(WXK_TAB);
    pressKey(WXK_DOWN);
    pressKey(WXK_SPACE);
    waitUntil("one is printed again", [&] { return sheets.IsChecked(1) && count() == 1; });
    pressKey('v', wxMOD_ALT);
    typeText("70");
    waitUntil("too much", [&] { return !dialog.FindWindow(wxID_OK)->IsEnabled(); });
    enter(dialog, "printOverlap", "20");
    enter(dialog, "printMeasuredX", "99.59");
    EXPECT_TRUE(dialog.FindWindow(wxID_OK)->IsEnabled());
    pressKey('p', wxMOD_ALT);
  });
  dialogs.answer("Print", wxID_CANCEL); // the system's dialog
  put(wxID_PRINT);
  dialogs.drive("Print Options", [&](wxDialog& dialog) {
    EXPECT_EQ(dynamic_cast<wxTextCtrl&>(in(dialog, "printOverlap")).GetValue(), "20");
    EXPECT_EQ(dynamic_cast<wxTextCtrl&>(in(dialog, "printMeasuredX")).GetValue(), "99.59");
    pressKey(WXK_ESCAPE);
  });
  put(wxID_PRINT);
  finish();
}

/// What a preview shows.
std::string pixelsOf(wxPrintPreviewBase& preview) {
  auto* const canvas = dynamic_cast<wxPreviewCanvas*>(preview.GetCanvas());
  const wxSize size = canvas->GetClientSize();
  wxBitmap shown(size.x, size.y);
  wxMemoryDC dc(shown);
  preview.PaintPage(canvas, dc);
  dc.SelectObject(wxNullBitmap);
  const wxImage image = shown.ConvertToImage();
  return {reinterpret_cast<const char*>(image.GetData()), std::size_t(3) * size.x * size.y};
}

bool hasInk(const std::string& pixels) {
  constexpr std::ptrdiff_t kLines = 12'000; // of the frame and the shadow of a blank page
  return std::ranges::count_if(pixels, [](unsigned char c) { return c < 100; }) > kLines;
}

TEST_F(PrintTest, PreviewShowsEveryPageAlsoWithoutAPrinter) {
  startLaidOut();
  showBoard();
  dialogs.drive("Print Options", [](wxDialog&) {
    pressKey('t', wxMOD_ALT);
    pressKey('p', wxMOD_ALT);
  });
  dialogs.answer("Print", wxID_CANCEL);
  put(wxID_PRINT);
  put(wxID_PREVIEW);
  waitUntil("the preview is open", [] {
    const wxWindow* preview = wxWindow::FindWindowByName("printPreview");
    return preview != nullptr && preview->IsShownOnScreen();
  });
  auto& preview = dynamic_cast<wxPreviewFrame&>(*wxWindow::FindWindowByName("printPreview"));
  EXPECT_EQ(preview.GetTitle(), "Print Preview -- Trassix");
  auto& control =
      dynamic_cast<wxPreviewControlBar&>(*preview.FindWindow(wxID_PREVIEW_PRINT)->GetParent());
  wxPrintPreviewBase& pages = *control.GetPrintPreview();
  waitUntil("it is in front and laid out",
            [&] { return preview.IsActive() && pages.GetCanvas()->GetClientSize().y > 300; });
  waitUntil("it is drawn", [&] { return pages.GetMaxPage() > 10 && hasInk(pixelsOf(pages)); });
  settle();
  plan().editSettings().baseboard.clear(); // the preview keeps what it shows
  plan().edit().pieces.clear();
  std::string last = pixelsOf(pages);
  for (int page = 2; page <= 4; ++page) {
    click(*preview.FindWindow(wxID_PREVIEW_NEXT));
    waitUntil("the next page", [&] {
      const std::string now = pixelsOf(pages);
      return pages.GetCurrentPage() == page && hasInk(now) && now != last;
    });
    last = pixelsOf(pages);
  }
  LayoutPrintout& toPrint = dynamic_cast<LayoutPrintout&>(*pages.GetPrintoutForPrinting());
  dialogs.answer("Print", wxID_OK); // the count changes, for its paper lies another way
  FakePrinter(toPrint, 0);
  EXPECT_GT(toPrint.pages().pages.size(), 10U) << "as does what is printed from it";
  click(*preview.FindWindow(wxID_PREVIEW_LAST));
  waitUntil("the last page", [&] { return pages.GetCurrentPage() == pages.GetMaxPage(); });
  preview.Close();
  waitUntil("it is closed", [] { return wxWindow::FindWindowByName("printPreview") == nullptr; });
  finish();
}

TEST_F(PrintTest, PicturesGoOutAndWhatCannotBeWrittenIsTold) {
  startLaidOut();
  showBoard();
  const std::filesystem::path folder = home() / "Pläne für Müller";
  std::filesystem::create_directories(folder);
  dialogs.drive("Export Picture", [&](wxDialog& dialog) {
    EXPECT_EQ(text(dialog, "pictureSummary").substr(0, 14), "2000 by 1375 p");
    enter(dialog, "pictureWidth", "60000");
    EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
    enter(dialog, "pictureDpi", "25");
    EXPECT_EQ(text(dialog, "pictureSummary").substr(0, 13), "1201 by 825 p");
    pressKey('e', wxMOD_ALT);
  });
  dialogs.answer("", wxID_CANCEL); // the desktop's own dialog keeps its title to itself
  put(kExportPicture);

  PictureForm form(plan(), {});
  PrintSettings settings;
  const std::array<const char*, 3> starts{"\x89PNG", "<?xml", "%PDF"};
  for (std::size_t format = 0; format < starts.size(); ++format) {
    form.setFormat(static_cast<PictureFormat>(format));
    form.setBackground(false);
    form.enter(PictureForm::Field::Scale, "1:10");
    form.enter(PictureForm::Field::Dpi, "127");
    const std::filesystem::path file = folder / ("Süd" + std::to_string(format));
    writePicture(frame(), frame().workspace(), settings, form, file);
    EXPECT_EQ(readText(file).substr(0, std::strlen(starts[format])), starts[format]);
    dialogs.answer("Export Failed", wxID_OK);
    writePicture(frame(), frame().workspace(), settings, form, file / "below a file");
    EXPECT_TRUE(dialogs.finished());
  }
  const wxImage png(wxString::FromUTF8((folder / "Süd0").string()));
  EXPECT_TRUE(png.GetWidth() == 610 && png.GetHeight() == 419);
  EXPECT_EQ(png.GetOptionInt(wxIMAGE_OPTION_RESOLUTIONX), 50) << "to the centimetre";
  EXPECT_EQ(png.GetAlpha(2, 2), wxIMAGE_ALPHA_TRANSPARENT) << "no background";
  form.setFormat(PictureFormat::Png);
  form.setBackground(true);
  writePicture(frame(), frame().workspace(), settings, form, folder / "white");
  EXPECT_EQ(wxImage(wxString::FromUTF8((folder / "white").string())).GetRed(2, 2), 255);
  EXPECT_EQ(pieces(), 1U);
  finish();
}

} // namespace
} // namespace trassix::test
