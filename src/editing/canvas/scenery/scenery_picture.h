// How scenery looks from above, before it lies anywhere: areas and lines in the item's own frame.
#pragma once

#include "catalog/scenery_catalog.h"
#include "editing/canvas/plan_theme.h"
#include "geometry/point.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace trassix {

/// Where a mark lies in the picture of a level.
enum class SceneryLayer : std::uint8_t {
  Ground,   ///< flat: under all shadows
  Standing, ///< under the track
  Over,     ///< spans the track or stands close to it
};

struct SceneryMark {
  enum class Kind : std::uint8_t { Area, Lines };

  Kind kind = Kind::Area;
  SceneryLayer layer = SceneryLayer::Ground;
  Material material = Material::Ink;
  std::uint8_t alpha = 255;
  double shade = 0; ///< from -1, dark, to 1, light
  Point fall;       ///< of length 1 on a roof: the way down, which decides how much light it gets
  double width = 0; ///< mm of lines; 0 for the finest
  double least = 0; ///< mm: smaller than two pixels it is not drawn
  /// An outline, or lines that begin at `starts`.
  std::vector<Point> points;
  std::vector<std::size_t> starts;
};

struct SceneryPicture {
  std::vector<SceneryMark> marks; ///< in the order in which they are drawn
  std::vector<Point> foot;        ///< what throws the shadow, convex
  double height = 0;              ///< mm; 0 throws none
  SceneryLayer shadow = SceneryLayer::Standing;
};

/// Of a catalogue item in this size. `unit` is the size of its gauge, 1 in H0.
SceneryPicture deriveSceneryPicture(const SceneryDef& item, const Footprint& size, double unit);

/// The same, kept for others of that size.
std::shared_ptr<const SceneryPicture> sceneryPictureOf(const SceneryDef& item,
                                                       const Footprint& size, double unit);

} // namespace trassix
