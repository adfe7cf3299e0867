#include "ui/print/layout_printout.h"

#include "output/page_painter.h"
#include "ui/print/dc_surface.h"

#include <algorithm>

namespace trassix {

namespace {

constexpr double kMmPerInch = 25.4;

} // namespace

LayoutPrintout::LayoutPrintout(Job job) : wxPrintout("Trassix Layout"), job_(std::move(job)) {
  layOut(job_.paper);
}

void LayoutPrintout::layOut(const Paper& paper) {
  pages_ = layOutPages(*job_.layout, job_.options, paper, job_.title, job_.owned);
  if (!job_.only.empty())
    pages_.keep(job_.only);
}

LayoutPrintout::Sheet LayoutPrintout::sheet() {
  int width = 0;
  int height = 0;
  GetPageSizePixels(&width, &height);
  int ppiX = 0;
  int ppiY = 0;
  GetPPIPrinter(&ppiX, &ppiY);
  wxRect whole = GetPaperRectPixels();
  if (whole.IsEmpty())
    whole = wxRect(0, 0, width, height);
  const double perMmX = ppiX / kMmPerInch;
  const double perMmY = ppiY / kMmPerInch;
  // A printer that draws everything too small reaches less far, one that draws too large is stopped
  // by the sheet's edge.
  const double reachX = std::min(correction_.x, 1.0);
  const double reachY = std::min(correction_.y, 1.0);
  Sheet sheet;
  sheet.onDevice = whole;
  sheet.pxPerMmX = perMmX / correction_.x;
  sheet.pxPerMmY = perMmY / correction_.y;
  const PaperMargins& set = job_.paper.margins;
  sheet.paper.size = {whole.width / perMmX * reachX, whole.height / perMmY * reachY};
  sheet.paper.margins = {std::max(set.left, -whole.x / sheet.pxPerMmX),
                         std::max(set.top, -whole.y / sheet.pxPerMmY),
                         std::max(set.right, (whole.x + whole.width - width) / sheet.pxPerMmX),
                         std::max(set.bottom, (whole.y + whole.height - height) / sheet.pxPerMmY)};
  return sheet;
}

void LayoutPrintout::OnPreparePrinting() {
  if (job_.correction)
    correction_ = job_.correction();
  const std::size_t before = pages_.pages.size();
  Paper paper = sheet().paper;
  // The printer's paper lies as it was asked to; turning it once more is not up to the pages.
  job_.options.orientation = static_cast<std::int32_t>(
      paper.size.width > paper.size.height ? PrintOrientation::Lying : PrintOrientation::Upright);
  layOut(paper);
  if (job_.recounted && pages_.pages.size() != before)
    job_.recounted(before, pages_.pages.size());
}

bool LayoutPrintout::HasPage(int page) {
  return page >= 1 && static_cast<std::size_t>(page) <= pages_.pages.size();
}

void LayoutPrintout::GetPageInfo(int* first, int* last, int* from, int* to) {
  *first = *from = 1;
  *last = *to = static_cast<int>(std::max<std::size_t>(1, pages_.pages.size()));
}

bool LayoutPrintout::OnPrintPage(int page) {
  wxDC* const dc = GetDC();
  if (dc == nullptr || !HasPage(page))
    return false;
  int width = 0;
  int height = 0;
  GetPageSizePixels(&width, &height);
  const wxSize shown = dc->GetSize();
  // A preview is smaller than what it shows.
  const double smallerX = width > 0 && shown.x > 0 ? static_cast<double>(shown.x) / width : 1;
  const double smallerY = height > 0 && shown.y > 0 ? static_cast<double>(shown.y) / height : 1;
  const Sheet on = sheet();
  DcSurface surface(
      *dc, {static_cast<int>(on.onDevice.x * smallerX), static_cast<int>(on.onDevice.y * smallerY)},
      on.pxPerMmX / kPxPerMm * smallerX, on.pxPerMmY / kPxPerMm * smallerY);
  paintPage(surface, pages_, static_cast<std::size_t>(page - 1));
  return true;
}

} // namespace trassix
