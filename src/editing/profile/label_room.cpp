#include "editing/profile/label_room.h"

#include "editing/canvas/halo.h"
#include "geometry/pose.h"

#include <cmath>

namespace trassix {

void LabelRoom::paint(std::string_view text, std::initializer_list<Point> places,
                      const TextStyle& style, double degrees) {
  const SizePx box{widthOf(text, style), style.size};
  const double c = std::abs(std::cos(toRadians(degrees)));
  const double s = std::abs(std::sin(toRadians(degrees)));
  const Point half{(box.width * c + box.height * s) / 2, (box.width * s + box.height * c) / 2};
  for (const Point at : places) {
    const bool inside = at.x - half.x >= low_.x && at.x + half.x <= high_.x &&
                        at.y - half.y >= low_.y && at.y + half.y <= high_.y;
    if (!inside || !taken_.isFree(at, box, degrees))
      continue;
    taken_.take(at, box, degrees);
    return paintTextWithHalo(surface_, text, at, degrees, style, ground_);
  }
}

} // namespace trassix
