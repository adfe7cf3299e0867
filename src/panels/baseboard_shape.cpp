#include "panels/baseboard_shape.h"

#include "editing/measure_format.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kLeast = 50; // mm
constexpr double kMost = 100000;

BoardKind kindOf(const LastShape& shape) {
  return static_cast<BoardKind>(shape.kind);
}

} // namespace

std::string_view boardKindName(BoardKind kind) {
  constexpr std::array<std::string_view, kBoardKindCount> kNames{"Rectangle", "L shape", "U shape",
                                                                 "T shape"};
  return kNames.at(static_cast<std::size_t>(kind));
}

std::array<std::string_view, 4> boardMeasureNames(BoardKind kind) {
  switch (kind) {
  case BoardKind::L:
    return {"Width", "Depth", "Width of the arm", "Depth of the foot"};
  case BoardKind::U:
    return {"Width", "Depth", "Width of each arm", "Depth of the middle"};
  case BoardKind::T:
    return {"Width", "Depth", "Width of the stem", "Depth of the bar"};
  case BoardKind::Rectangle:
    break;
  }
  return {"Width", "Depth", "", ""};
}

LastShape usualBoard(BoardKind kind) {
  constexpr double kWidth = 2400;
  constexpr double kDepth = 1600;
  constexpr double kArm = 700;
  return {static_cast<std::int32_t>(kind), kWidth, kDepth, kArm, kArm};
}

std::string boardProblem(const LastShape& shape, std::int32_t units) {
  if (shape.kind < 0 || shape.kind >= static_cast<std::int32_t>(kBoardKindCount))
    return "There is no such kind of shape.";
  const BoardKind kind = kindOf(shape);
  const auto names = boardMeasureNames(kind);
  const std::array<double, 4> measures{shape.w, shape.h, shape.w2, shape.h2};
  for (std::size_t i = 0; i < measures.size(); ++i) {
    if (names.at(i).empty())
      continue;
    const std::string name(names.at(i));
    if (!std::isfinite(measures.at(i)) || measures.at(i) < kLeast)
      return name + ": at least " + formatLength(kLeast, units) + " is needed.";
    if (measures.at(i) > kMost)
      return name + ": at most " + formatLength(kMost, units) + " is possible.";
  }
  if (kind == BoardKind::Rectangle)
    return {};
  const double arms = kind == BoardKind::U ? 2 * shape.w2 : shape.w2;
  if (arms >= shape.w)
    return kind == BoardKind::U ? "Two arms of this width leave no room between them."
                                : std::string(names[2]) + " must be less than the whole width.";
  if (shape.h2 >= shape.h)
    return std::string(names[3]) + " must be less than the whole depth.";
  return {};
}

std::vector<Point> boardOutline(const LastShape& shape) {
  const auto& [kind, w, h, w2, h2] = shape;
  const double stem = (w - w2) / 2;
  switch (kindOf(shape)) {
  case BoardKind::L:
    return {{0, 0}, {w2, 0}, {w2, h - h2}, {w, h - h2}, {w, h}, {0, h}};
  case BoardKind::U:
    return {{0, 0}, {w2, 0}, {w2, h - h2}, {w - w2, h - h2}, {w - w2, 0}, {w, 0}, {w, h}, {0, h}};
  case BoardKind::T:
    return {{0, 0},         {w, 0},    {w, h2},    {stem + w2, h2},
            {stem + w2, h}, {stem, h}, {stem, h2}, {0, h2}};
  case BoardKind::Rectangle:
    break;
  }
  return {{0, 0}, {w, 0}, {w, h}, {0, h}};
}

} // namespace trassix
