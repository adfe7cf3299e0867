#pragma once

#include <utility>

namespace trassix {

/// Of a sheet, in mm.
struct SizeMm {
  double width = 0;
  double height = 0;

  SizeMm turned() const { return {height, width}; }
  bool operator==(const SizeMm&) const = default;
};

/// What a printer leaves white, in mm.
struct PaperMargins {
  double left = 15;
  double top = 15;
  double right = 15;
  double bottom = 15;

  bool operator==(const PaperMargins&) const = default;
};

inline constexpr SizeMm kA4{210, 297};
inline constexpr SizeMm kA3{297, 420};
inline constexpr SizeMm kLetter{216, 279};
inline constexpr SizeMm kTabloid{279, 432};

struct Paper {
  SizeMm size = kA4;
  PaperMargins margins; ///< of the sheet as it lies

  SizeMm printable() const {
    return {size.width - margins.left - margins.right, size.height - margins.top - margins.bottom};
  }
  /// Lying the other way. Its margins stay on the sides where they are.
  Paper turned() const { return {size.turned(), margins}; }

  bool operator==(const Paper&) const = default;
};

} // namespace trassix
