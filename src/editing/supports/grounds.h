// What track and scenery stand on. Heights in mm above the baseboard.
#pragma once

#include "document/records_fwd.h"
#include "geometry/polygons.h"

#include <cstdint>
#include <vector>

namespace trassix {

class Layout;

/// Track that lies higher than this above what is below it is raised.
inline constexpr double kRaised = 3;

enum class GroundKind : std::uint8_t { None, Board, Plate, Hill };

struct Ground {
  GroundKind kind = GroundKind::None;
  std::int32_t id = -1; ///< of the level that the plate belongs to, or of the shape
  double height = 0;

  bool operator==(const Ground&) const = default;
};

/// A shape with a height: its outline is the foot; the sides slope up to a flat top.
struct Hill {
  std::int32_t shape = -1; ///< id, -1 for one over a tunnel
  std::int32_t level = 1;
  Polygon foot;
  Polygon top;     ///< with as many corners, or the foot itself where there is no room to slope
  double base = 0; ///< height of the foot
  double rise = 0;
  double run = 0; ///< by which the top stands back from the foot

  double heightAt(Point at) const; ///< of a point inside the foot
};

/// A hill of this outline, its top standing back by at most `run`, as far as the outline has room.
Hill makeHill(const Polygon& foot, double base, double rise, double run);

/// Whether a shape is a hill rather than painted ground, and the hill that it is.
bool isHill(const Shape& shape);
Hill hillOf(const Layout& layout, const Shape& shape);

/// Whether a shape is filled mainly blue, which is water: flat and glossy.
bool isWater(const Shape& shape);

class Grounds {
 public:
  explicit Grounds(const Layout& layout);

  /// The highest of board, plates and hills at this place that is not above `height`. A plan
  /// without a baseboard has board everywhere. None off the board, at the board's height, and below
  /// it, where nothing is.
  Ground below(Point at, double height) const;

  /// Where what belongs to a level stands: on the highest of its hills there, else at its height;
  /// beside the outline of its deck on whatever ground is below.
  double standing(Point at, std::int32_t level) const;

  const std::vector<Hill>& hills() const { return hills_; }

 private:
  struct Plate {
    std::int32_t level = 1;
    double height = 0;
    Polygon outline;
  };
  struct Deck {
    std::int32_t level = 1;
    double height = 0;
  };

  Polygon board_;
  std::vector<Plate> plates_;
  std::vector<Deck> decks_;
  std::vector<Hill> hills_;
};

} // namespace trassix
