// Triangles as a graphics card takes them, and the solids that they are made of.
#pragma once

#include "document/color.h"
#include "geometry/polygons.h"
#include "view3d/scene/vec3.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace trassix {

struct MeshVertex {
  std::array<float, 3> position{}; ///< mm
  std::array<float, 3> normal{};   ///< of length 1
  std::array<std::uint8_t, 4> color{0, 0, 0, 255};

  bool operator==(const MeshVertex&) const = default;
};

enum class Finish : std::uint8_t { Matte, Glossy };
inline constexpr std::size_t kFinishes = 2;

/// Triangles run anticlockwise seen from outside. None is empty.
struct Mesh {
  std::vector<MeshVertex> vertices;
  std::array<std::vector<std::uint32_t>, kFinishes> indices; ///< three each, by material

  std::size_t triangles() const;
  bool empty() const { return vertices.empty(); }
  bool operator==(const Mesh&) const = default;
};

/// A frame that stands in the scene, turned anticlockwise about z; what is at x in it lies `slope`
/// times x higher.
struct MeshFrame {
  Vec3 origin;
  double turn = 0; ///< degrees
  double slope = 0;
};

/// Adds solids to a mesh in a frame of their own. Corners of faces are given anticlockwise as seen
/// from outside; bottoms that nobody sees are left out.
class MeshBuilder {
 public:
  explicit MeshBuilder(Mesh& mesh, const MeshFrame& frame = {});

  /// For the same mesh, in a frame that stands in this one and is turned as it is.
  MeshBuilder within(Vec3 origin) const;

  void setFinish(Finish finish) { finish_ = finish; }

  void triangle(Vec3 a, Vec3 b, Vec3 c, Color color);
  void quad(Vec3 a, Vec3 b, Vec3 c, Vec3 d, Color color);
  /// Flat at this height, seen from above, or with `up` false from below.
  void area(const Polygon& outline, double z, Color color, bool up = true);
  /// Upright between two heights.
  void prism(const Polygon& outline, double bottom, double top, Color side, Color lid);
  /// From a lower outline to an upper one of as many corners.
  void skirt(const Polygon& lower, double bottom, const Polygon& upper, double top, Color color);
  void box(Vec3 least, Vec3 most, Color color);
  void box(Vec3 least, Vec3 most, Color side, Color lid);
  /// A bar of square section between two points.
  void bar(Vec3 from, Vec3 to, double thickness, Color color);
  /// Round about z between two heights, with a lid where the upper radius is not 0.
  void cone(Vec3 foot, double radius, double height, double upperRadius, int sides, Color color);
  /// A rounded body about its middle.
  void blob(Vec3 middle, Vec3 radii, int sides, Color color);

 private:
  Vec3 inScene(Vec3 local) const;
  std::uint32_t add(Vec3 position, Vec3 normal, Color color);
  bool face(std::uint32_t a, std::uint32_t b, std::uint32_t c);

  Mesh& mesh_;
  MeshFrame frame_;
  double cos_ = 1;
  double sin_ = 0;
  Finish finish_ = Finish::Matte;
};

/// Indices of the corners of triangles that fill an outline, whichever way round it runs; each
/// triangle runs as the outline does. An outline that crosses itself is filled somehow.
std::vector<std::array<std::size_t, 3>> fillOutline(const Polygon& outline);

/// A colour made lighter (above 1) or darker.
Color shaded(Color color, double factor);
Color mixed(Color a, Color b, double share);

} // namespace trassix
