#pragma once

#include "editing/canvas/carried.h"
#include "editing/canvas/surface.h"
#include "editing/placing/placing.h"

#include <optional>
#include <string>

namespace trassix {

class ToolSite;

/// What Enter would do in the palette while the keys go there.
struct Offer {
  bool typing = false; ///< in the search
  bool flips = false;  ///< F is no letter of what is typed
  std::string article; ///< of track; empty for anything else
  std::string name;    ///< as a hint calls it; empty for nothing that could be taken
  bool asks = false;   ///< how it is to be is asked first

  bool operator==(const Offer&) const = default;
};

/// Shows beforehand what the palette will do: track faintly where it would lie, and all in words.
class PlacingOffer {
 public:
  explicit PlacingOffer(ToolSite& site) : site_(site) {}

  /// None: the keys go elsewhere.
  void take(std::optional<Offer> offer);
  /// Turns the piece round to its next way, or with -1 the one before.
  bool flip(int step);

  void paint(Surface& surface) const;
  /// Empty while the keys go elsewhere.
  std::string hint() const;

 private:
  /// Where the piece would go on, by an end that fits.
  std::optional<Extension> place() const;

  ToolSite& site_;
  std::optional<Offer> offer_;
};

} // namespace trassix
