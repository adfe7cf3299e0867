// The corners of shapes, of levels' outlines and of the baseboard, one by one.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

/// What has the corners: a shape or a level, by its id, or else the baseboard.
struct Outlined {
  std::optional<std::int32_t> shape = {};
  std::optional<std::int32_t> level = {};

  bool operator==(const Outlined&) const = default;
};

/// Null when there is no such shape, level with an outline, or no baseboard.
const std::vector<Point>* cornersOf(const Layout& layout, const Outlined& what);

/// The only thing selected, when it is a shape that can be seen.
std::optional<Outlined> outlinedSelection(const Layout& layout);

/// Gives it these corners as one undo step. Refused when they are no outline of an area, see
/// `outlineProblem`. Levels and the baseboard are not brought back
/// by undo, as ever.
ChangeResult setCorners(Layout& layout, const Outlined& what, std::vector<Point> corners);

ChangeResult moveCorner(Layout& layout, const Outlined& what, std::size_t corner, Point to);
/// Behind the corner `after`.
ChangeResult addCorner(Layout& layout, const Outlined& what, std::size_t after, Point at);
ChangeResult removeCorner(Layout& layout, const Outlined& what, std::size_t corner);

} // namespace trassix
