#pragma once

#include "editing/canvas/surface.h"

namespace trassix {

/// Between distance along a way and height above the baseboard, both in mm, and the pixels of a
/// plot, in which heights run upwards.
struct ProfileScale {
  Point low;          ///< the plot's corners, px: left and top
  Point high;         ///< right and bottom
  double from = 0;    ///< distance at the left edge
  double perMm = 1;   ///< px for a mm of way
  double middle = 0;  ///< height half way up
  double perRise = 1; ///< px for a mm of height

  double width() const { return high.x - low.x; }
  double depth() const { return high.y - low.y; }
  Point toScreen(double along, double height) const {
    return {low.x + (along - from) * perMm, (low.y + high.y) / 2 - (height - middle) * perRise};
  }
  double alongAt(double x) const { return from + (x - low.x) / perMm; }
  double heightAt(double y) const { return middle + ((low.y + high.y) / 2 - y) / perRise; }
  bool holds(Point px) const {
    return px.x >= low.x && px.x <= high.x && px.y >= low.y && px.y <= high.y;
  }
};

} // namespace trassix
