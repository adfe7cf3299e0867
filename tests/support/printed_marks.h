#pragma once

#include "document/layout.h"
#include "geometry/box.h"
#include "output/page_set.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace trassix::test {

/// A plan of 1200 x 800 mm with small squares in a colour that nothing else has, told by their
/// middles.
struct MarkedPlan {
  Layout layout;
  std::vector<Point> marks;

  static MarkedPlan make();
};

/// Whether a pixel of a picture has that colour.
using IsMark = std::function<bool(int x, int y)>;

/// How far, in mm, the marks of one tile lie from where they belong in its picture, which holds the
/// whole sheet with this many pixels to the mm; a mark that is not found is infinitely far away.
/// `counted` grows by the marks that were looked at: those with all around them on the tile.
double farthestMark(const MarkedPlan& plan, const PageSet& pages, const Page& tile, double pxPerMmX,
                    double pxPerMmY, const IsMark& isMark, std::size_t& counted);

} // namespace trassix::test
