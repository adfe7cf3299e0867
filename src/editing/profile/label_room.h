#pragma once

#include "editing/canvas/occupancy.h"
#include "editing/canvas/surface.h"

#include <initializer_list>
#include <string_view>

namespace trassix {

/// Texts of a picture that must not cover one another: who comes first has its place.
class LabelRoom {
 public:
  /// Texts stay between the corners.
  LabelRoom(Surface& surface, SizePx size, Point low, Point high, Rgba ground)
      : surface_(surface), ground_(ground), taken_(size), low_(low), high_(high) {}

  /// No text comes there.
  void block(Point centre, double reach) { taken_.take(centre, {2 * reach, 2 * reach}, 0); }
  /// Paints the text with its middle at the first of the places that is free; at none if none is.
  void paint(std::string_view text, std::initializer_list<Point> places, const TextStyle& style,
             double degrees = 0);
  double widthOf(std::string_view text, const TextStyle& style) const {
    return surface_.textSize(text, style).width;
  }

 private:
  Surface& surface_;
  Rgba ground_;
  Occupancy taken_;
  Point low_;
  Point high_;
};

} // namespace trassix
