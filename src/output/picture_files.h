// A plan as a picture in a file, true to scale.
#pragma once

#include "output/page_set.h"

#include <cstdint>
#include <optional>
#include <string>

namespace trassix {

class Layout;

/// How a PDF is laid out.
enum class PdfLayout : std::uint8_t {
  Tiles,    ///< as pages of a printer
  OneSheet, ///< true to scale on a sheet as large as it takes
  Roll610,  ///< strips for rolls of paper of this width, in mm
  Roll914,
};

/// `problem` says why there are no bytes, in one sentence.
struct PictureFile {
  std::string bytes;
  std::string problem;
};

/// All of what is asked for on one sheet at its true size, with a hidden group "Cutting" of the
/// edges of all track beds. One unit is a millimetre of the plan.
PictureFile svgPicture(const Layout& layout, const PrintOptions& options, const PrintTitle& title);

/// What such a picture shows, its margins included, in mm of the plan; none for nothing.
std::optional<Box> pictureExtent(const Layout& layout, const PrintOptions& options);

/// Draws it with this many px to the mm, its extent's corner at the origin.
void paintPicture(Surface& surface, const Layout& layout, const PrintOptions& options,
                  double pxPerMm, bool background);

/// Why it cannot become a PDF of this kind, empty when it can.
std::string pdfProblem(const Layout& layout, const PrintOptions& options, PdfLayout how);

/// At the scale of the options, or true to size. Tiles are those of `paper`; one sheet that
/// would be longer than the format allows is refused, strips come in several pieces then.
PictureFile pdfPicture(const Layout& layout, const PrintOptions& options, const PrintTitle& title,
                       PdfLayout how, const Paper& paper, const OwnedStock& owned = {});

/// Around a picture on one sheet, mm.
inline constexpr double kSheetMargin = 10;

} // namespace trassix
