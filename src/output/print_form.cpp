#include "output/print_form.h"

#include "editing/canvas/halo.h"
#include "editing/canvas/layout_painter.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "output/page_painter.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kMarginPx = 10;
constexpr double kRulerMm = 100;
constexpr Rgba kSheetEdge{32, 108, 214};
constexpr Rgba kLeftOut{255, 255, 255, 170};
constexpr std::size_t kManyPages = 2000;

std::string sizeText(SizeMm size) {
  return formatSize(std::round(size.width), std::round(size.height), kMillimetres);
}

/// "10", "1:10" and "1 : 10" alike.
std::string_view behindColon(std::string_view text) {
  const std::size_t colon = text.find(':');
  return colon == std::string_view::npos ? text : text.substr(colon + 1);
}

std::array<Point, 4> cornersOf(const Box& box, const ViewTransform& view) {
  const Point low = view.toScreen({box.minX, box.minY});
  const Point high = view.toScreen({box.maxX, box.maxY});
  return {{low, {high.x, low.y}, high, {low.x, high.y}}};
}

} // namespace

PrintForm::PrintForm(const Layout& layout, const PrintOptions& options, const Paper& paper,
                     const PrintTitle& title, const PrinterCorrection& correction,
                     const OwnedStock& owned)
    : layout_(layout), options_(options), paper_(paper), title_(title), correction_(correction),
      owned_(owned) {
  texts_[index(Field::Scale)] = scaleText(options.scale / 100.0);
  texts_[index(Field::Overlap)] = std::to_string(options.overlap);
  texts_[index(Field::MeasuredX)] = formatFixed(kRulerMm * correction.x, 2);
  texts_[index(Field::MeasuredY)] = formatFixed(kRulerMm * correction.y, 2);
  layOut();
}

void PrintForm::setMode(PrintMode mode) {
  options_.mode = static_cast<std::int32_t>(mode);
  layOut();
}

void PrintForm::setOrientation(PrintOrientation orientation) {
  options_.orientation = static_cast<std::int32_t>(orientation);
  layOut();
}

void PrintForm::set(std::int64_t bit, bool on) {
  options_.what = on ? options_.what | bit : options_.what & ~bit;
  layOut();
}

void PrintForm::setSelectionOnly(bool only) {
  options_.selectionOnly = only;
  layOut();
}

void PrintForm::setLabels(bool labels) {
  options_.labels = labels;
  layOut();
}

bool PrintForm::uses(Field field) const {
  switch (field) {
  case Field::Scale:
    return options_.printMode() == PrintMode::Scaled;
  case Field::Overlap:
    return options_.printMode() != PrintMode::Overview;
  default:
    return true;
  }
}

void PrintForm::enter(Field field, std::string_view text) {
  if (texts_[index(field)] == text)
    return;
  texts_[index(field)] = text;
  const auto take = [&](std::string_view number, double least, double most) {
    const NumberInput input = readLength(number, kMillimetres, least, most);
    problems_[index(field)] = input.problem;
    return input;
  };
  if (field == Field::Scale) {
    constexpr double kPer = 100;
    const NumberInput input = readLength(behindColon(text), kMillimetres,
                                         kSmallestPrintScale / kPer, kLargestPrintScale / kPer);
    problems_[index(field)] =
        input.good() ? "" : tr("Choose a scale between 1:1 and 1:%1%.", {kLargestPrintScale / 100});
    if (input.good())
      options_.scale = static_cast<std::int32_t>(std::lround(input.value * kPer));
  } else if (field == Field::Overlap) {
    if (const NumberInput input = take(text, 0, kLargestPrintOverlap); input.good())
      options_.overlap = static_cast<std::int32_t>(std::lround(input.value));
  } else if (const NumberInput input =
                 take(text, kRulerMm * kSmallestCorrection, kRulerMm * kLargestCorrection);
             input.good()) {
    (field == Field::MeasuredX ? correction_.x : correction_.y) = input.value / kRulerMm;
  }
  layOut();
}

void PrintForm::layOut() {
  PrintOptions turned = options_;
  const std::vector<std::string> before = names();
  pages_ = layOutPages(layout_, options_, paper_, title_, owned_);
  turned.orientation = static_cast<std::int32_t>(pages_.paper.size.width > pages_.paper.size.height
                                                     ? PrintOrientation::Upright
                                                     : PrintOrientation::Lying);
  turnedCount_ = layOutPages(layout_, turned, paper_, title_, owned_).pages.size();
  if (names() == before)
    return;
  leftOut_.assign(pages_.pages.size(), false);
  shown_ = 0;
}

bool PrintForm::anyLeftOut() const {
  return std::ranges::find(leftOut_, true) != leftOut_.end();
}

std::vector<std::string> PrintForm::names() const {
  std::vector<std::string> all;
  for (std::size_t page = 0; page < pages_.pages.size(); ++page)
    all.push_back(pages_.nameOf(page));
  return all;
}

std::vector<std::string> PrintForm::only() const {
  std::vector<std::string> kept;
  if (anyLeftOut())
    for (std::size_t page = 0; page < pages_.pages.size(); ++page)
      if (!leftOut_[page])
        kept.push_back(pages_.nameOf(page));
  return kept;
}

std::string PrintForm::problem() const {
  for (const Field field : {Field::Scale, Field::Overlap, Field::MeasuredX, Field::MeasuredY})
    if (uses(field) && !problems_[index(field)].empty())
      return problems_[index(field)];
  if (pages_.plans.empty())
    return options_.selectionOnly ? tr("Nothing is selected that could be printed.")
                                  : tr("There is nothing to print.");
  if (pages_.pages.empty())
    return tr("The margins leave no room on this paper.");
  if (pages_.pages.size() > kManyPages)
    return tr("That would take %1% pages.", {pages_.pages.size()});
  return std::ranges::find(leftOut_, false) == leftOut_.end() ? tr("No page is left to print.")
                                                              : std::string();
}

std::string PrintForm::summary() const {
  const auto count = static_cast<std::size_t>(std::ranges::count(leftOut_, false));
  std::string text =
      trCount("%1% page of %2%.", "%1% pages of %2%.", count, {sizeText(pages_.paper.size)});
  const auto add = [&text](const std::string& sentence) { text.append(" ").append(sentence); };
  if (pages_.emptyTiles > 0)
    add(trCount("%1% empty one is left out.", "%1% empty ones are left out.", pages_.emptyTiles));
  if (turnedCount_ > 0 && turnedCount_ != pages_.pages.size())
    add(tr("Turned they would be %1%.", {turnedCount_}));
  if (options_.printMode() == PrintMode::Overview && !pages_.pages.empty())
    add(tr("Scale %1%.", {scaleText(pages_.millimetresPerMm(pages_.pages.front()))}));
  return text;
}

bool PrintForm::showsTile(const Page& page) const {
  return page.kind == PageKind::Tile && page.plan == shown_;
}

ViewTransform PrintForm::viewIn(SizePx size) const {
  Box shown = *pages_.plans[shown_].extent;
  for (const Page& page : pages_.pages)
    if (showsTile(page))
      shown = {std::min(shown.minX, page.tile.box.minX), std::min(shown.minY, page.tile.box.minY),
               std::max(shown.maxX, page.tile.box.maxX), std::max(shown.maxY, page.tile.box.maxY)};
  const double zoom =
      std::min((size.width - 2 * kMarginPx) / std::max(1.0, shown.maxX - shown.minX),
               (size.height - 2 * kMarginPx) / std::max(1.0, shown.maxY - shown.minY));
  return ViewTransform::ofScale(zoom, {(size.width - (shown.minX + shown.maxX) * zoom) / 2,
                                       (size.height - (shown.minY + shown.maxY) * zoom) / 2});
}

void PrintForm::paint(Surface& surface, SizePx size) const {
  const std::array<Point, 4> sheet{
      {{0, 0}, {size.width, 0}, {size.width, size.height}, {0, size.height}}};
  surface.polygon(sheet, paperTheme().paper, {});
  if (pages_.plans.empty())
    return;
  const PrintedPlan& plan = pages_.plans[shown_];
  const ViewTransform view = viewIn(size);
  PaintOptions options = paintOptionsOf(options_);
  options.labels = options.grades = options.grid = false; // too small to be read
  LayoutPainter(surface, size, view, options).paint(plan.layout, plan.index);
  for (std::size_t i = 0; i < pages_.pages.size(); ++i) {
    const Page& page = pages_.pages[i];
    if (!showsTile(page))
      continue;
    const std::array<Point, 4> corners = cornersOf(page.tile.box, view);
    surface.polygon(corners, leftOut_[i] ? std::optional(kLeftOut) : std::nullopt,
                    Stroke{kSheetEdge, 1});
    const Point middle{(corners[0].x + corners[2].x) / 2, (corners[0].y + corners[2].y) / 2};
    const double room = std::min(corners[2].x - corners[0].x, corners[2].y - corners[0].y);
    if (room >= 14)
      paintTextWithHalo(
          surface, page.tile.name(), middle, 0,
          {leftOut_[i] ? Rgba{140, 144, 150} : kSheetEdge, std::clamp(room / 3, 9.0, 16.0), true});
  }
}

std::optional<std::size_t> PrintForm::pageAt(Point px, SizePx size) const {
  if (pages_.plans.empty())
    return {};
  const Point at = viewIn(size).toWorld(px);
  for (std::size_t i = 0; i < pages_.pages.size(); ++i)
    if (showsTile(pages_.pages[i]) && holds(pages_.pages[i].tile.box, at))
      return i;
  return {};
}

} // namespace trassix
