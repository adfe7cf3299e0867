#pragma once

#include "document/color.h"
#include "geometry/point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

/// A deck.
struct Level {
  std::int32_t id = 1;
  std::string name;
  bool visible = true;
  double height = 0;       ///< mm
  bool trackcolor = false; ///< the level's track is drawn in `color`
  Color color{180, 180, 180};
  std::vector<Point> outline; ///< used only with three or more points

  bool operator==(const Level&) const = default;
};

/// The baseboard shape chosen last in its dialog, with its four measures in mm.
struct LastShape {
  std::int32_t kind = 0;
  double w = 0;
  double h = 0;
  double w2 = 0;
  double h2 = 0;

  bool operator==(const LastShape&) const = default;
};

/// What belongs to a document but is not under undo.
struct PlanSettings {
  std::vector<Level> levels;
  std::int32_t activeLevel = 1;
  std::vector<Point> baseboard; ///< outline polygon
  LastShape lastShape;
  std::int32_t units = 0; ///< 0 mm, 1 cm, 2 inches: how lengths are shown

  bool operator==(const PlanSettings&) const = default;
};

} // namespace trassix
