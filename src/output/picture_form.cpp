#include "output/picture_form.h"

#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "output/page_painter.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kInch = 25.4;
constexpr double kLeastWidth = 16;
constexpr double kMostWidth = 50'000;
constexpr double kLeastDpi = 1;
constexpr double kMostDpi = 2400;

} // namespace

PictureForm::PictureForm(const Layout& layout, const PrintOptions& options)
    : layout_(layout), options_(options) {
  options_.mode = static_cast<std::int32_t>(PrintMode::Scaled);
  texts_[index(Field::Width)] = formatFixed(width_, 0);
  texts_[index(Field::Dpi)] = formatFixed(dpi_, 0);
  texts_[index(Field::Scale)] = scaleText(scale());
  measure();
}

void PictureForm::set(std::int64_t bit, bool on) {
  options_.what = on ? options_.what | bit : options_.what & ~bit;
  measure();
}

void PictureForm::setSelectionOnly(bool only) {
  options_.selectionOnly = only;
  measure();
}

void PictureForm::setLabels(bool labels) {
  options_.labels = labels;
  measure();
}

bool PictureForm::uses(Field field) const {
  if (field == Field::Scale)
    return format_ != PictureFormat::Svg;
  return format_ == PictureFormat::Png;
}

void PictureForm::enter(Field field, std::string_view text) {
  if (texts_[index(field)] == text)
    return;
  texts_[index(field)] = text;
  const auto take = [&](double least, double most, double per, const std::string& problem) {
    const std::size_t colon = field == Field::Scale ? text.rfind(':') : std::string_view::npos;
    const NumberInput input =
        readLength(colon == std::string_view::npos ? text : text.substr(colon + 1), kMillimetres,
                   least / per, most / per);
    problems_[index(field)] = input.good() ? "" : problem;
    return input;
  };
  if (field == Field::Scale) {
    constexpr double kPer = 100;
    const NumberInput input =
        take(kSmallestPrintScale, kLargestPrintScale, kPer,
             tr("Choose a scale between 1:1 and 1:%1%.", {kLargestPrintScale / 100}));
    if (input.good())
      options_.scale = static_cast<std::int32_t>(std::lround(input.value * kPer));
    return;
  }
  byDpi_ = field == Field::Dpi;
  const NumberInput input =
      byDpi_
          ? take(kLeastDpi, kMostDpi, 1, tr("Choose a resolution of 1 to %1% dpi.", {2400}))
          : take(kLeastWidth, kMostWidth, 1, tr("Choose a width of 16 to %1% pixels.", {50'000}));
  if (input.good())
    (byDpi_ ? dpi_ : width_) = std::round(input.value);
}

void PictureForm::measure() {
  extent_ = pictureExtent(layout_, options_);
}

double PictureForm::pixelsPerMm() const {
  if (!extent_)
    return 1;
  return byDpi_ ? dpi_ / kInch / scale() : width_ / (extent_->maxX - extent_->minX);
}

SizePx PictureForm::pixels() const {
  if (!extent_)
    return {};
  return {std::max(1.0, std::round((extent_->maxX - extent_->minX) * pixelsPerMm())),
          std::max(1.0, std::round((extent_->maxY - extent_->minY) * pixelsPerMm()))};
}

std::string PictureForm::problem() const {
  if (!extent_)
    return options_.selectionOnly ? tr("Nothing is selected that could be shown.")
                                  : tr("There is nothing on the plan that could be shown.");
  const Field counts = format_ == PictureFormat::Pdf ? Field::Scale
                       : byDpi_                      ? Field::Dpi
                                                     : Field::Width;
  if (format_ != PictureFormat::Svg && !problems_[index(counts)].empty())
    return problems_[index(counts)];
  const SizePx size = pixels();
  if (format_ == PictureFormat::Png && size.width * size.height > kMostPixels)
    return tr("The picture would have %1% by %2% pixels, which is too much.",
              {formatFixed(size.width, 0), formatFixed(size.height, 0)});
  return format_ == PictureFormat::Pdf ? pdfProblem(layout_, options_, pdfLayout_) : std::string();
}

std::string PictureForm::summary() const {
  if (!extent_)
    return {};
  const double width = extent_->maxX - extent_->minX;
  const double height = extent_->maxY - extent_->minY;
  switch (format_) {
  case PictureFormat::Png:
    return tr("%1% by %2% pixels; one pixel is %3% of the plan.",
              {formatFixed(pixels().width, 0), formatFixed(pixels().height, 0),
               formatLength(1 / pixelsPerMm(), kMillimetres)});
  case PictureFormat::Svg:
    return tr("%1%, one unit to the millimetre, with a hidden group of cutting lines.",
              {formatSize(width, height, layout_.settings().units)});
  default:
    return tr("%1% of the plan at %2%.",
              {formatSize(width, height, layout_.settings().units), scaleText(scale())});
  }
}

} // namespace trassix
