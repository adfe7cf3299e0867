#pragma once

#include "geometry/point.h"

#include <cstdint>
#include <vector>

namespace trassix {

class Layout;
struct Level;

/// The visible levels with an outline, for whoever asks what lies beneath them. Good until the
/// plan's settings change.
class Decks {
 public:
  explicit Decks(const Layout& layout);

  bool empty() const { return decks_.empty(); }

  /// Whether what belongs to `level` and reaches up to `height` (mm) lies beneath a higher deck at
  /// this point. What goes through a deck, such as the end of a ramp, lies on it.
  bool cover(Point at, std::int32_t level, double height) const;

 private:
  const Layout& layout_;
  std::vector<const Level*> decks_;
};

} // namespace trassix
