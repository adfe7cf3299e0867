#pragma once

#include "host/command_ids.h"

#include <cstdint>

namespace trassix {

/// What becomes of the polygon that is drawn, or has the corners that are edited.
struct PolygonUse {
  enum class Kind : std::uint8_t { Shape, Baseboard, LevelOutline };

  Kind kind = Kind::Shape;
  std::int32_t level = -1; ///< whose outline it becomes

  bool operator==(const PolygonUse&) const = default;
};

/// Switches that belong to the window, not to the document.
struct EditorSwitches {
  bool snap = true;
  bool grid = true;
  bool labels = true; ///< article labels and join dots
  bool rails = true;
  bool hidden = true;       ///< track in tunnels
  bool grades = false;      ///< grades, heights and clearances on the plan
  bool spreadLoops = false; ///< what does not add up round a loop, the rest of the loop takes up
  double heightScale = 0;   ///< of the height profile: times distances; 0 for as it fits
  bool palette = true;      ///< the panel on the left is unfolded
  bool properties = true;   ///< the one on the right
  ToolMode mode = ToolMode::Select;
  PolygonUse polygonUse;

  bool operator==(const EditorSwitches&) const = default;
};

} // namespace trassix
