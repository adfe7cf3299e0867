// Which runs of straights make up a length.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace trassix {

inline constexpr double kStraightFillTolerance = 1.5;   ///< mm
inline constexpr std::size_t kStraightFillsSought = 16; ///< the search stops at so many
inline constexpr int kStraightFillPieces = 32;          ///< at most in one run

/// Runs whose summed length is within 1.5 mm of `gap`, each as positions in `lengths` in
/// non-decreasing order. `lengths` are in mm, longest first, all above zero and multiples of a
/// tenth of a millimetre, as published lengths are. Runs of fewer pieces come first, among equal
/// counts those with longer pieces in front; the search ends with the 16th.
std::vector<std::vector<std::size_t>> straightFills(std::span<const double> lengths, double gap);

} // namespace trassix
