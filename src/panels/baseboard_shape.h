// The shapes that a baseboard can be chosen from.
#pragma once

#include "document/plan_settings.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// The values are stored in plans.
enum class BoardKind : std::int32_t { Rectangle = 0, L = 1, U = 2, T = 3 };
inline constexpr std::size_t kBoardKindCount = 4;

std::string boardKindName(BoardKind kind);

/// What the four measures of a kind are called, in the order w, h, w2, h2; an empty name stands for
/// a measure that the kind does not have.
std::array<std::string, 4> boardMeasureNames(BoardKind kind);

/// A shape to begin with where the plan has none or one that cannot be.
LastShape usualBoard(BoardKind kind);

/// Why there is no such board, in one sentence with lengths in the given unit; empty when there is.
std::string boardProblem(const LastShape& shape, std::int32_t units);

/// Corners in mm, clockwise on the screen from the top left at the origin:
///
///     L  ##        U  ##    ##      T  ########     w, h: all of it
///        ##           ##    ##            ##        w2: width of an arm or of the stem
///        ########     ########            ##        h2: depth of the cross part
///
/// Only for a shape without a problem.
std::vector<Point> boardOutline(const LastShape& shape);

/// A measure as a drawing of the board shows it: a line between two points of the outline, drawn
/// beside the board on the side that `outward` points to.
struct BoardDimension {
  Point from;
  Point to;
  Point outward;
  std::string text; ///< name and length in the given unit
};

std::vector<BoardDimension> boardDimensions(const LastShape& shape, std::int32_t units);

} // namespace trassix
