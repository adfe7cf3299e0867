#include "support/printed_marks.h"

#include "document/plan_content.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix::test {

namespace {

constexpr double kHalfMark = 1.5; ///< mm
constexpr double kAround = 2.5;   ///< mm in which a mark is looked for
constexpr double kOffEdge = 8;    ///< mm, where names, crosses and rulers may cover it

} // namespace

MarkedPlan MarkedPlan::make() {
  MarkedPlan plan;
  plan.layout.editSettings().baseboard = {{0, 0}, {1200, 0}, {1200, 800}, {0, 800}};
  for (double x = 31; x < 1200; x += 47)
    for (double y = 23; y < 800; y += 53) {
      Shape square;
      square.id = plan.layout.takeId();
      square.color = {255, 0, 255};
      square.points = {{x - kHalfMark, y - kHalfMark},
                       {x + kHalfMark, y - kHalfMark},
                       {x + kHalfMark, y + kHalfMark},
                       {x - kHalfMark, y + kHalfMark}};
      plan.layout.edit().shapes.push_back(square);
      plan.marks.push_back({x, y});
    }
  return plan;
}

double farthestMark(const MarkedPlan& plan, const PageSet& pages, const Page& tile, double pxPerMmX,
                    double pxPerMmY, const IsMark& isMark, std::size_t& counted) {
  double farthest = 0;
  for (const Point mark : plan.marks) {
    const Box& box = tile.tile.box;
    if (!holds({box.minX + kOffEdge, box.minY + kOffEdge, box.maxX - kOffEdge, box.maxY - kOffEdge},
               mark))
      continue;
    ++counted;
    const Point at{(mark.x - box.minX + pages.paper.margins.left) * pxPerMmX,
                   (mark.y - box.minY + pages.paper.margins.top) * pxPerMmY};
    double sumX = 0;
    double sumY = 0;
    double count = 0;
    for (int x = static_cast<int>(at.x - kAround * pxPerMmX); x <= at.x + kAround * pxPerMmX; ++x)
      for (int y = static_cast<int>(at.y - kAround * pxPerMmY); y <= at.y + kAround * pxPerMmY; ++y)
        if (isMark(x, y)) {
          sumX += x + 0.5;
          sumY += y + 0.5;
          ++count;
        }
    if (count == 0)
      return std::numeric_limits<double>::infinity();
    farthest = std::max(
        farthest, std::hypot((sumX / count - at.x) / pxPerMmX, (sumY / count - at.y) / pxPerMmY));
  }
  return farthest;
}

} // namespace trassix::test
