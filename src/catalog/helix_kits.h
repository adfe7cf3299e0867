#pragma once

#include <span>
#include <string_view>

namespace trassix {

inline constexpr std::string_view kDefaultHelixKit = "proses_2_5_r1r2";

/// Half the side of the square that a helix of an unknown kit is taken to cover, in mm.
inline constexpr double kUnknownHelixHalfSize = 500.0;

/// A spiral of two concentric tracks. Lengths in mm.
struct HelixKit {
  std::string_view key;
  std::string_view name;
  double innerRadius = 0;
  double outerRadius = 0;
  double turns = 0;
  double outerSize = 0; ///< from the centre to the outer edge, posts included
};

std::span<const HelixKit> helixKits();

/// Null on a miss.
const HelixKit* findHelixKit(std::string_view key);

/// Half the side of the square around its centre that a helix of this kit covers.
double helixHalfSize(std::string_view key);

} // namespace trassix
