#pragma once

namespace trassix {

/// In mm; in layout coordinates x runs to the right and y downwards, as the plan is drawn.
struct Point {
  double x = 0;
  double y = 0;

  bool operator==(const Point&) const = default;
};

} // namespace trassix
