// What a user wants of a plan as a picture in a file, while the dialog is open.
#pragma once

#include "document/layout.h"
#include "output/picture_files.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace trassix {

enum class PictureFormat : std::uint8_t { Png, Svg, Pdf };

class PictureForm {
 public:
  enum class Field : std::uint8_t { Width, Dpi, Scale };
  static constexpr std::size_t kFields = 3;

  /// A picture in pixels may not have more of them.
  static constexpr double kMostPixels = 100e6;

  /// The layout must outlive the form. `options` are those of printing, of which what to show is
  /// taken over at first.
  PictureForm(const Layout& layout, const PrintOptions& options);

  PictureFormat format() const { return format_; }
  PdfLayout pdfLayout() const { return pdfLayout_; }
  const PrintOptions& options() const { return options_; }
  bool background() const { return background_; }

  void setFormat(PictureFormat format) { format_ = format; }
  void setPdfLayout(PdfLayout how) { pdfLayout_ = how; }
  void setBackground(bool background) { background_ = background; }
  void set(std::int64_t bit, bool on);
  void setSelectionOnly(bool only);
  void setLabels(bool labels);

  /// Of a PNG either the width or the resolution counts, whichever was typed last.
  bool uses(Field field) const;
  void enter(Field field, std::string_view text);
  const std::string& text(Field field) const { return texts_[index(field)]; }

  std::string problem() const;
  /// How large the picture becomes.
  std::string summary() const;

  /// Of a PNG, px, and how many of them are one mm of the plan.
  SizePx pixels() const;
  double pixelsPerMm() const;

 private:
  static std::size_t index(Field field) { return static_cast<std::size_t>(field); }
  void measure();
  double scale() const { return options_.scale / 100.0; }

  const Layout& layout_;
  PictureFormat format_ = PictureFormat::Png;
  PdfLayout pdfLayout_ = PdfLayout::Tiles;
  PrintOptions options_;
  bool background_ = true;
  bool byDpi_ = false;
  double width_ = 2000; ///< px
  double dpi_ = 100;    ///< at the scale
  std::array<std::string, kFields> texts_;
  std::array<std::string, kFields> problems_;
  std::optional<Box> extent_; ///< mm, margins included; none when there is nothing to show
};

} // namespace trassix
