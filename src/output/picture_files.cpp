#include "output/picture_files.h"

#include "document/plan_content.h"
#include "editing/canvas/layout_painter.h"
#include "editing/selection/record_body.h"
#include "measures/measure_format.h"
#include "output/page_painter.h"
#include "output/pdf_file.h"
#include "output/svg_surface.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

constexpr double kSheetSlack = 0.01;          ///< mm, that rounding may take
constexpr double kLeastSide = 40;             ///< mm, on which a title finds room
constexpr Stroke kHairline{{255, 0, 0}, 0.1}; ///< as cutters want it

PrintOptions onPaper(PrintOptions options, const Paper& paper) {
  if (options.printMode() == PrintMode::Overview)
    options.mode = static_cast<std::int32_t>(PrintMode::TrueSize);
  options.orientation = static_cast<std::int32_t>(
      paper.size.width > paper.size.height ? PrintOrientation::Lying : PrintOrientation::Upright);
  return options;
}

double scaleOf(const PrintOptions& options) {
  PageSet set;
  set.options = onPaper(options, {});
  return set.millimetresPerMm();
}

/// One of the fewest equal parts, none longer than a page can be, that show this length together.
double partOf(double length, double overlap) {
  const double room = PdfFile::kLongestSide - 2 * kSheetMargin - kSheetSlack;
  const double parts = std::max(1.0, std::ceil((length - overlap) / (room - overlap)));
  return (length - overlap) / parts + overlap;
}

/// Paper on which a plan finds room: a sheet, or a strip of a roll along the plan's longer side.
Paper sheetFor(const Box& extent, const PrintOptions& options, PdfLayout how) {
  const double scale = scaleOf(options);
  const PaperMargins margins{kSheetMargin, kSheetMargin, kSheetMargin, kSheetMargin};
  const double around = 2 * kSheetMargin + kSheetSlack;
  Paper paper{{std::max((extent.maxX - extent.minX) / scale, kLeastSide) + around,
               std::max((extent.maxY - extent.minY) / scale, kLeastSide) + around},
              margins};
  if (how == PdfLayout::OneSheet)
    return paper;
  const bool upright = paper.size.height >= paper.size.width;
  double& along = upright ? paper.size.height : paper.size.width;
  along = partOf(along - around, options.overlap) + around;
  (upright ? paper.size.width : paper.size.height) = how == PdfLayout::Roll610 ? 610 : 914;
  return paper;
}

/// Of all that is printed together.
std::optional<Box> extentOf(const Layout& layout, const PrintOptions& options) {
  std::optional<Box> all;
  for (const PrintedPlan& plan : printedPlans(layout, options)) {
    if (!all)
      all = *plan.extent;
    all = {std::min(all->minX, plan.extent->minX), std::min(all->minY, plan.extent->minY),
           std::max(all->maxX, plan.extent->maxX), std::max(all->maxY, plan.extent->maxY)};
  }
  return all;
}

void paintAll(PdfFile& pdf, const PageSet& set) {
  for (std::size_t page = 0; page < set.pages.size(); ++page)
    paintPage(pdf.addPage(set.paper.size), set, page);
}

/// On one sheet there are no decks apart.
PrintOptions together(PrintOptions options) {
  options.what &= ~(print_what::kDecksApart | print_what::kPartsList);
  return options;
}

PictureFile nothing(const PrintOptions& options) {
  return {{},
          options.selectionOnly ? tr("Nothing is selected that could be shown.")
                                : tr("There is nothing on the plan that could be shown.")};
}

} // namespace

std::optional<Box> pictureExtent(const Layout& layout, const PrintOptions& options) {
  const std::optional<Box> extent = extentOf(layout, together(options));
  if (!extent)
    return {};
  return Box{extent->minX - kSheetMargin, extent->minY - kSheetMargin, extent->maxX + kSheetMargin,
             extent->maxY + kSheetMargin};
}

void paintPicture(Surface& surface, const Layout& layout, const PrintOptions& options,
                  double pxPerMm, bool background) {
  const std::optional<Box> extent = pictureExtent(layout, options);
  const std::vector<PrintedPlan> plans = printedPlans(layout, together(options));
  if (!extent || plans.empty())
    return;
  const ViewTransform view =
      ViewTransform::ofScale(pxPerMm, {-extent->minX * pxPerMm, -extent->minY * pxPerMm});
  PaintOptions how = paintOptionsOf(options);
  how.desk = background;
  LayoutPainter(surface,
                {(extent->maxX - extent->minX) * pxPerMm, (extent->maxY - extent->minY) * pxPerMm},
                view, how)
      .paint(plans.front().layout, plans.front().index);
  paintSupports(surface, plans.front(), view);
}

PictureFile svgPicture(const Layout& layout, const PrintOptions& options, const PrintTitle& title) {
  const std::optional<Box> extent = pictureExtent(layout, options);
  if (!extent)
    return nothing(options);
  const SizeMm size{extent->maxX - extent->minX, extent->maxY - extent->minY};
  SvgSurface surface(size, title.plan, &PdfFile::textSize);
  paintPicture(surface, layout, options, kPxPerMm, false);
  surface.beginHiddenGroup(tr("Cutting"));
  const ViewTransform view =
      ViewTransform::ofScale(kPxPerMm, {-extent->minX * kPxPerMm, -extent->minY * kPxPerMm});
  for (const PrintedPlan& plan : printedPlans(layout, together(options)))
    for (const PlacedPiece& piece : plan.layout.pieces())
      for (const Polygon& bed : bedsOf(piece))
        surface.polygon(view.toScreen(bed), {}, kHairline);
  surface.endGroup();
  return {surface.take(), {}};
}

std::string pdfProblem(const Layout& layout, const PrintOptions& options, PdfLayout how) {
  const std::optional<Box> extent = extentOf(layout, options);
  if (!extent)
    return nothing(options).problem;
  if (how != PdfLayout::OneSheet)
    return {};
  const SizeMm size = sheetFor(*extent, options, how).size;
  if (std::max(size.width, size.height) <= PdfFile::kLongestSide)
    return {};
  return tr("That would be longer than the %1% that a PDF page can be. Tiles, strips or a smaller "
            "scale would do.",
            {formatBriefLength(PdfFile::kLongestSide, kMillimetres)});
}

PictureFile pdfPicture(const Layout& layout, const PrintOptions& options, const PrintTitle& title,
                       PdfLayout how, const Paper& paper, const OwnedStock& owned) {
  if (std::string problem = pdfProblem(layout, options, how); !problem.empty())
    return {{}, problem};
  Paper used = paper;
  PrintOptions asked = options;
  if (how != PdfLayout::Tiles) {
    used = sheetFor(*extentOf(layout, options), options, how);
    asked = onPaper(options, used);
    asked.what &= ~print_what::kPartsList;
  }
  PageSet set = layOutPages(layout, asked, used, title, owned);
  if (how != PdfLayout::Tiles) // which strip is where shows by itself, and a roll is dear
    std::erase_if(set.pages, [](const Page& page) { return page.kind == PageKind::TileOverview; });
  if (set.pages.empty())
    return {{}, tr("The margins leave no room on this paper.")};
  PdfFile pdf(title.plan);
  paintAll(pdf, set);
  if (how != PdfLayout::Tiles && options.has(print_what::kPartsList)) {
    PageSet parts = layOutPages(layout, options, paper, title, owned);
    std::erase_if(parts.pages, [](const Page& page) { return page.kind != PageKind::Parts; });
    paintAll(pdf, parts);
  }
  PictureFile file;
  file.bytes = pdf.take();
  file.problem = pdf.problem();
  return file;
}

} // namespace trassix
