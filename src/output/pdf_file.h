#pragma once

#include "editing/canvas/surface.h"
#include "output/paper.h"

#include <memory>
#include <string>
#include <string_view>

namespace trassix {

/// A PDF document with the program's own fonts in it, so that texts look the same everywhere and
/// can be searched. Letters that these fonts do not have become question marks.
class PdfFile {
 public:
  /// A sheet may not be longer, in mm: readers of the format refuse 200 inches and more.
  static constexpr double kLongestSide = 5080;

  explicit PdfFile(std::string_view title);
  ~PdfFile();
  PdfFile(const PdfFile&) = delete;
  PdfFile& operator=(const PdfFile&) = delete;

  /// Adds a page; what is drawn on the surface, in px of the page, `kPxPerMm` to the mm, goes on
  /// it. The surface is good until the next page.
  Surface& addPage(SizeMm size);

  /// The bytes of the document. Empty when it could not be made; `problem` says why.
  std::string take();
  const std::string& problem() const;

  /// Size of a text in the fonts of the document, px.
  static SizePx textSize(std::string_view text, const TextStyle& style);

 private:
  struct Data;
  class PageSurface;
  std::unique_ptr<Data> data_;
};

} // namespace trassix
