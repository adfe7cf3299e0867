#pragma once

#include "document/color.h"
#include "document/records_fwd.h"
#include "geometry/point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

/// A coloured polygon.
struct Shape {
  static constexpr RecordKind kKind = RecordKind::Shape;

  std::int32_t id = -1;
  std::vector<Point> points;
  Color color;
  std::uint8_t a = 255; ///< opacity
  bool outline = false; ///< drawn as outline only
  std::int32_t level = 1;
  double height = 0;
  std::string label;
  bool sel = false; ///< not saved

  bool operator==(const Shape&) const = default;
};

} // namespace trassix
