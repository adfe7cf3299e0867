#include "catalog/helix_kits.h"

#include <algorithm>
#include <array>

namespace trassix {

namespace {

/// Half a roadbed of 40 mm, and the posts beside it.
constexpr double kOutsideOuterTrack = 20 + 20;

constexpr HelixKit kit(std::string_view key, std::string_view name, double inner, double outer,
                       double turns) {
  return {key, name, inner, outer, turns, outer + kOutsideOuterTrack};
}

constexpr std::array kKits{
    kit(kDefaultHelixKit, "Helix R1/R2, 2.5 turns", 360, 437.5, 2.5),
    kit("helix_2_5_r2r3", "Helix R2/R3, 2.5 turns", 437.5, 515, 2.5),
};

} // namespace

std::span<const HelixKit> helixKits() {
  return kKits;
}

const HelixKit* findHelixKit(std::string_view key) {
  const auto* found = std::ranges::find(kKits, key, &HelixKit::key);
  return found == kKits.end() ? nullptr : found;
}

double helixHalfSize(std::string_view key) {
  const HelixKit* known = findHelixKit(key);
  return known == nullptr ? kUnknownHelixHalfSize : known->outerSize;
}

} // namespace trassix
