// What the pictures of scenery are put together from.
#pragma once

#include "editing/canvas/scenery/scenery_picture.h"

#include <span>
#include <string_view>
#include <vector>

namespace trassix {

/// A rectangle in halves of the item's size: the whole footprint is {-1, -1, 1, 1}.
struct Patch {
  double left = -1;
  double top = -1;
  double right = 1;
  double bottom = 1;
};

inline constexpr Patch kWhole{};

/// Adds marks to a picture. Points are in halves of the size, lengths in mm of H0.
class SceneryDrawing {
 public:
  SceneryDrawing(SceneryPicture& picture, const Footprint& size, double unit)
      : picture_(picture), w_(size.width / 2), d_(size.depth / 2), unit_(unit) {}

  /// Half the width to half the depth.
  double aspect() const { return w_ / d_; }
  /// So many mm of H0 in halves of width and of depth.
  double across(double mm) const { return mm * unit_ / w_; }
  double deep(double mm) const { return mm * unit_ / d_; }

  void on(SceneryLayer layer, std::uint8_t alpha = 255) {
    layer_ = layer;
    alpha_ = alpha;
  }
  /// Roofs over track: what was drawn lies under it and, faintly, over it once more.
  void spanTrack();
  /// What throws a shadow as high as it stands.
  void cast(double height, const Patch& foot = kWhole, bool round = false);
  void cast(double height, const std::vector<Point>& foot);

  void area(const std::vector<Point>& outline, Material material, double shade = 0);
  void patch(const Patch& patch, Material material, double shade = 0);
  void disc(Point centre, double radius, Material material, double shade = 0);
  void ellipse(const Patch& patch, Material material, double shade = 0);
  /// One side of a roof that falls away to `fall`.
  void slope(const std::vector<Point>& outline, Material material, Point fall);

  void line(const std::vector<Point>& points, Material material, double width = 0);
  /// Pairs of ends; `least` in mm of H0 is their distance.
  void strokes(const std::vector<Point>& ends, Material material, double width, double least);
  void frame(const Patch& patch, Material material = Material::Ink, double width = 0);
  void ring(Point centre, double radius, Material material = Material::Ink, double width = 0);

  // Roofs over a patch.
  void gable(const Patch& patch, Material material, bool ridgeAlong = true);
  void hip(const Patch& patch, Material material);
  void pavilion(const Patch& patch, Material material); ///< four sides up to one point
  void flat(const Patch& patch, Material material);
  void sawTooth(const Patch& patch, int teeth);
  void barrel(const Patch& patch, Material material, int ribs, bool along = true);
  void cone(Point centre, double radius, Material material, int sides = 8);
  void chimney(Point at);
  /// Regular lines across a patch, `along` its width or its depth.
  void hatch(const Patch& patch, int count, bool along, Material material, double width = 0);

 private:
  std::vector<Point> scaled(const std::vector<Point>& points) const;
  SceneryMark& mark(SceneryMark::Kind kind, Material material);
  std::vector<Point> circle(Point centre, double radius, int points) const;

  SceneryPicture& picture_;
  double w_;
  double d_;
  double unit_;
  SceneryLayer layer_ = SceneryLayer::Standing;
  std::uint8_t alpha_ = 255;
};

/// How an item is drawn: its builder, and what tells it from others that are drawn alike.
struct SceneryBuild {
  std::string_view key;
  void (*build)(SceneryDrawing&, const SceneryBuild&, double height);
  int number = 0;
  Material roof = Material::Tiles;
};

/// Null for an item that nobody drew.
const SceneryBuild* sceneryBuildOf(std::string_view key);

std::span<const SceneryBuild> buildingForms();
std::span<const SceneryBuild> tracksideForms();
std::span<const SceneryBuild> groundForms();

} // namespace trassix
