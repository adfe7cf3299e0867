#include "editing/level_edits.h"

#include <algorithm>

namespace trassix {

namespace {

/// Whether any record stands on a level that moves; with `change` they are moved.
template <class Content>
bool moveRecords(Content& content, const LevelMoves& moves, bool change) {
  bool any = false;
  const auto look = [&](auto& records) {
    for (auto& record : records) {
      const auto move = moves.find(record.level);
      if (move == moves.end())
        continue;
      any = true;
      if constexpr (!std::is_const_v<Content>)
        if (change)
          record.level = move->second;
    }
  };
  look(content.pieces);
  look(content.scenery);
  look(content.shapes);
  return any;
}

} // namespace

std::size_t countOnLevel(const Layout& layout, std::int32_t level) {
  const auto count = [level](const auto& records) {
    return static_cast<std::size_t>(std::ranges::count_if(
        records, [level](const auto& record) { return record.level == level; }));
  };
  const PlanContent& content = layout.content();
  return count(content.pieces) + count(content.scenery) + count(content.shapes);
}

bool setLevels(Layout& layout, const std::vector<Level>& levels, std::int32_t activeLevel,
               const LevelMoves& moves) {
  const PlanSettings& present = layout.settings();
  const bool sameLevels = present.levels == levels && present.activeLevel == activeLevel;
  const bool moving = moveRecords(layout.content(), moves, false);
  if (levels.empty() || (sameLevels && !moving))
    return false;
  if (moving) {
    layout.pushHistory();
    moveRecords(layout.edit(), moves, true);
  }
  PlanSettings& settings = layout.editSettings();
  settings.levels = levels;
  settings.activeLevel = activeLevel;
  return true;
}

bool setBaseboard(Layout& layout, const std::vector<Point>& outline, const LastShape& shape) {
  const std::vector<Point> wanted = outline.size() < 3 ? std::vector<Point>{} : outline;
  const PlanSettings& present = layout.settings();
  if (present.baseboard == wanted && present.lastShape == shape)
    return false;
  PlanSettings& settings = layout.editSettings();
  settings.baseboard = wanted;
  settings.lastShape = shape;
  return true;
}

std::optional<std::vector<Point>> selectedOutline(const Layout& layout) {
  const auto& shapes = layout.content().shapes;
  const auto found = std::ranges::find(shapes, true, &Shape::sel);
  if (found == shapes.end() || std::ranges::count(shapes, true, &Shape::sel) > 1)
    return {};
  return found->points;
}

} // namespace trassix
