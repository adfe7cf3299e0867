// The corners of shapes and of the baseboard, one by one.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

/// What has the corners: a shape, or the baseboard.
struct Outlined {
  std::optional<std::int32_t> shape; ///< id; none for the baseboard

  bool operator==(const Outlined&) const = default;
};

/// Null when there is no such shape, or no baseboard.
const std::vector<Point>* cornersOf(const Layout& layout, const Outlined& what);

/// The only thing selected, when it is a shape that can be seen.
std::optional<Outlined> outlinedSelection(const Layout& layout);

/// Gives it these corners as one undo step. Refused when they are no outline of an area, see
/// `outlineProblem`. The baseboard is not brought back by undo, as ever.
ChangeResult setCorners(Layout& layout, const Outlined& what, std::vector<Point> corners);

ChangeResult moveCorner(Layout& layout, const Outlined& what, std::size_t corner, Point to);
/// Behind the corner `after`.
ChangeResult addCorner(Layout& layout, const Outlined& what, std::size_t after, Point at);
ChangeResult removeCorner(Layout& layout, const Outlined& what, std::size_t corner);

} // namespace trassix
