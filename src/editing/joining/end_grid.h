// The ends of a whole plan, filed by place.
#pragma once

#include "document/layout.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

namespace trassix {

/// One end of a placed piece with all that decides whether it mates.
struct PlacedEnd {
  Point at;
  double heading = 0; ///< where track leaves the piece
  double height = 0;  ///< mm above the baseboard
  TrackSystem system = TrackSystem::CTrack;
  std::int32_t piece = -1;    ///< id
  std::int32_t position = -1; ///< of the piece in document order
  std::int32_t connector = -1;
  std::int32_t joinedTo = -1; ///< id of the joined piece, -1 when free
  bool visible = true;        ///< the piece shows
  bool graded = false;        ///< the piece has a grade
};

/// Two ends that would join.
struct EndContact {
  PlacedEnd own;
  PlacedEnd target;
  double distance = 0; ///< mm between them in the plan
};

/// Appends the ends of a piece in index order. A piece whose article is unknown has none.
void appendEnds(std::vector<PlacedEnd>& ends, const PlacedPiece& piece, std::int32_t position,
                bool visible);

/// The ends of these pieces that are open or joined to none of them, such as those of a block.
std::vector<PlacedEnd> openEndsOf(std::span<const PlacedPiece> pieces);

/// All ends of the plan in document order, then index order.
std::vector<PlacedEnd> endsOf(const Layout& layout);

/// A hashed grid over ends: what lies near a point is found at a cost that depends on how crowded
/// the place is, not on the number of ends. Ends whose position is not finite are never found.
class EndGrid {
 public:
  EndGrid() = default;
  explicit EndGrid(std::vector<PlacedEnd> ends);

  std::span<const PlacedEnd> ends() const { return ends_; }

  /// Calls `visit(end)` once for each end within `reach` mm of `at`, and for some that are a little
  /// farther away, in no particular order. Keep `reach` at a few cells.
  template <class Visit>
  void visitNear(Point at, double reach, Visit visit) const {
    if (slots_.empty() || !std::isfinite(at.x) || !std::isfinite(at.y))
      return;
    const Cell low{cellOf(at.x, -reach), cellOf(at.y, -reach)};
    const Cell high{cellOf(at.x, reach), cellOf(at.y, reach)};
    for (std::int32_t y = low.y; y <= high.y; ++y) {
      for (std::int32_t x = low.x; x <= high.x; ++x) {
        const Cell cell{x, y};
        const std::size_t bucket = bucketOf(cell);
        for (std::uint32_t i = starts_[bucket]; i < starts_[bucket + 1]; ++i)
          if (slots_[i].cell == cell)
            visit(ends_[slots_[i].end]);
      }
    }
  }

 private:
  struct Cell {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const Cell&) const = default;
  };
  struct Slot {
    Cell cell;
    std::uint32_t end = 0;
  };

  static constexpr double kCell = 25.0;    // mm, the distance that is searched most
  static constexpr double kFarthest = 1e9; // in cells

  /// The cell of `value + offset`. The offset is stretched by more than the rounding of the
  /// distances that callers compare, so that an end exactly at the reach is not lost.
  static std::int32_t cellOf(double value, double offset) {
    const double slack = offset == 0 ? 0 : 1e-6 + std::abs(value) * 1e-14;
    const double cell = std::floor((value + offset + std::copysign(slack, offset)) / kCell);
    return static_cast<std::int32_t>(std::clamp(cell, -kFarthest, kFarthest));
  }
  std::size_t bucketOf(Cell cell) const {
    const std::uint64_t key = static_cast<std::uint64_t>(static_cast<std::uint32_t>(cell.x)) << 32 |
                              static_cast<std::uint32_t>(cell.y);
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15ULL) >> shift_);
  }

  std::vector<PlacedEnd> ends_;
  std::vector<Slot> slots_;           // grouped by bucket
  std::vector<std::uint32_t> starts_; // of each bucket in slots_, and one past the last
  int shift_ = 63;
};

} // namespace trassix
