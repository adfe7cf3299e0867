#include "panels/level_list.h"

#include <algorithm>

namespace trassix {

namespace {

constexpr double kStorey = 100; // mm: clearance of an H0 train with some room for hands

} // namespace

LevelList::LevelList(const Layout& layout)
    : layout_(layout), levels_(layout.settings().levels),
      activeLevel_(layout.settings().activeLevel) {
  if (levels_.empty())
    levels_.emplace_back().name = "Level 1";
  for (const Level& level : levels_)
    nextId_ = std::max(nextId_, level.id + 1);
  // A piece may name a level that the plan lacks; a new level must not catch it.
  for (const PlacedPiece& piece : layout.pieces())
    nextId_ = std::max(nextId_, piece.level + 1);
  if (std::ranges::find(levels_, activeLevel_, &Level::id) == levels_.end())
    activeLevel_ = levels_.front().id;
}

std::size_t LevelList::active() const {
  const auto found = std::ranges::find(levels_, activeLevel_, &Level::id);
  return static_cast<std::size_t>(found - levels_.begin());
}

std::size_t LevelList::add() {
  Level level;
  level.id = nextId_++;
  level.name = "Level " + std::to_string(level.id);
  level.height = std::ranges::max(levels_, {}, &Level::height).height + kStorey;
  levels_.push_back(level);
  return levels_.size() - 1;
}

std::size_t LevelList::contentCount(std::size_t place) const {
  const std::int32_t id = levels_.at(place).id;
  std::size_t count = countOnLevel(layout_, id);
  for (const auto& [from, to] : moves_)
    count += to == id ? countOnLevel(layout_, from) : 0;
  return count;
}

bool LevelList::remove(std::size_t place, std::size_t heir) {
  if (!canRemove() || place == heir)
    return false;
  const std::int32_t id = levels_.at(place).id;
  const std::int32_t heirId = levels_.at(heir).id;
  for (auto& [from, to] : moves_)
    to = to == id ? heirId : to;
  moves_[id] = heirId;
  levels_.erase(levels_.begin() + static_cast<std::ptrdiff_t>(place));
  if (activeLevel_ == id)
    activeLevel_ = heirId;
  return true;
}

std::string LevelList::rename(std::size_t place, std::string_view name) {
  if (name.find_first_not_of(" \t") == std::string_view::npos)
    return "A level needs a name.";
  const std::int32_t id = levels_.at(place).id;
  if (std::ranges::any_of(
          levels_, [id, name](const Level& level) { return level.id != id && level.name == name; }))
    return "Another level has this name.";
  levels_.at(place).name = name;
  return {};
}

bool LevelList::apply(Layout& layout) const {
  return setLevels(layout, levels_, activeLevel_, moves_);
}

} // namespace trassix
