#include "panels/baseboard_shape.h"

#include "measures/measure_format.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kLeast = 50; // mm
constexpr double kMost = 100000;

BoardKind kindOf(const LastShape& shape) {
  return static_cast<BoardKind>(shape.kind);
}

} // namespace

std::string boardKindName(BoardKind kind) {
  constexpr std::array<const char*, kBoardKindCount> kNames{
      trLater("Rectangle"), trLater("L shape"), trLater("U shape"), trLater("T shape")};
  return tr(kNames.at(static_cast<std::size_t>(kind)));
}

std::array<std::string, 4> boardMeasureNames(BoardKind kind) {
  std::array<std::string, 4> names{tr("Width"), tr("Depth")};
  switch (kind) {
  case BoardKind::L:
    names[2] = tr("Width of the arm");
    names[3] = tr("Depth of the foot");
    break;
  case BoardKind::U:
    names[2] = tr("Width of each arm");
    names[3] = tr("Depth of the middle");
    break;
  case BoardKind::T:
    names[2] = tr("Width of the stem");
    names[3] = tr("Depth of the bar");
    break;
  case BoardKind::Rectangle:
    break;
  }
  return names;
}

LastShape usualBoard(BoardKind kind) {
  constexpr double kWidth = 2400;
  constexpr double kDepth = 1600;
  constexpr double kArm = 700;
  return {static_cast<std::int32_t>(kind), kWidth, kDepth, kArm, kArm};
}

std::string boardProblem(const LastShape& shape, std::int32_t units) {
  if (shape.kind < 0 || shape.kind >= static_cast<std::int32_t>(kBoardKindCount))
    return tr("There is no such kind of shape.");
  const BoardKind kind = kindOf(shape);
  const auto names = boardMeasureNames(kind);
  const std::array<double, 4> measures{shape.w, shape.h, shape.w2, shape.h2};
  for (std::size_t i = 0; i < measures.size(); ++i) {
    if (names.at(i).empty())
      continue;
    const std::string& name = names.at(i);
    if (!std::isfinite(measures.at(i)) || measures.at(i) < kLeast)
      return tr("%1%: at least %2% is needed.", {name, formatLength(kLeast, units)});
    if (measures.at(i) > kMost)
      return tr("%1%: at most %2% is possible.", {name, formatLength(kMost, units)});
  }
  if (kind == BoardKind::Rectangle)
    return {};
  const double arms = kind == BoardKind::U ? 2 * shape.w2 : shape.w2;
  if (arms >= shape.w)
    return kind == BoardKind::U ? tr("Two arms of this width leave no room between them.")
                                : tr("%1% must be less than the whole width.", {names[2]});
  if (shape.h2 >= shape.h)
    return tr("%1% must be less than the whole depth.", {names[3]});
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

std::vector<BoardDimension> boardDimensions(const LastShape& shape, std::int32_t units) {
  const auto& [kindCode, w, h, w2, h2] = shape;
  const BoardKind kind = kindOf(shape);
  const auto names = boardMeasureNames(kind);
  const auto text = [&](std::size_t measure, double length) {
    return names.at(measure) + " " + formatLength(length, units);
  };
  constexpr Point kUp{0, -1};
  constexpr Point kDown{0, 1};
  constexpr Point kRight{1, 0};
  std::vector<BoardDimension> all{{{0, h}, {0, 0}, {-1, 0}, text(1, h)}};
  const double stem = (w - w2) / 2;
  switch (kind) {
  case BoardKind::L:
  case BoardKind::U:
    all.push_back({{0, h}, {w, h}, kDown, text(0, w)});
    all.push_back({{0, 0}, {w2, 0}, kUp, text(2, w2)});
    all.push_back({{w, h - h2}, {w, h}, kRight, text(3, h2)});
    break;
  case BoardKind::T:
    all.push_back({{0, 0}, {w, 0}, kUp, text(0, w)});
    all.push_back({{stem, h}, {stem + w2, h}, kDown, text(2, w2)});
    all.push_back({{w, 0}, {w, h2}, kRight, text(3, h2)});
    break;
  case BoardKind::Rectangle:
    all.push_back({{0, h}, {w, h}, kDown, text(0, w)});
    break;
  }
  return all;
}

} // namespace trassix
