#include "panels/level_list.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/shape.h"
#include "editing/elevation/propagation.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace trassix {

namespace {

constexpr double kStorey = 100; // mm: clearance of an H0 train with some room for hands
constexpr double kHighest = 10000;

std::string trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kBlank);
  return first == std::string_view::npos
             ? std::string()
             : std::string(text.substr(first, text.find_last_not_of(kBlank) - first + 1));
}

std::string numbered(std::int32_t number) {
  return tr("Level %1%", {number});
}

} // namespace

LevelList::LevelList(const Layout& layout) : layout_(layout), nextId_(layout.freeLevelId()) {
  for (const Level& level : layout.settings().levels)
    append(level);
  for (const std::int32_t id : lostLevels(layout)) {
    Level level;
    level.id = id;
    level.name = numbered(id);
    level.height = deckHeight(layout, id);
    append(level);
  }
  if (rows_.empty())
    add();
  for (std::size_t i = 0; i < rows_.size(); ++i)
    if (rows_[i].level.id == layout.settings().activeLevel)
      active_ = i;
  before_ = change();
}

void LevelList::append(const Level& level) {
  rows_.push_back({level, level.name,
                   LengthEntry(level.height, layout_.settings().units, -kHighest, kHighest)});
}

void LevelList::setActive(std::size_t place) {
  active_ = place;
  rows_.at(place).level.visible = true;
}

std::string LevelList::setVisible(std::size_t place, bool visible) {
  Row& row = rows_.at(place);
  if (!visible && place == active_) {
    const auto next = std::ranges::find_if(
        rows_, [&row](const Row& other) { return &other != &row && other.level.visible; });
    if (next == rows_.end())
      return tr("One level always stays visible, for new track to go to.");
    active_ = static_cast<std::size_t>(next - rows_.begin());
  }
  row.level.visible = visible;
  return {};
}

void LevelList::enterName(std::size_t place, std::string_view name) {
  rows_.at(place).name = name;
}

void LevelList::enterHeight(std::size_t place, std::string_view height) {
  Row& row = rows_.at(place);
  row.height.enter(height);
  row.level.height = row.height.mm();
}

void LevelList::setTrackColor(std::size_t place, bool own, Color color) {
  Level& level = rows_.at(place).level;
  level.trackcolor = own;
  level.color = color;
}

void LevelList::setOutline(std::size_t place, const std::vector<Point>& outline) {
  Level& level = rows_.at(place).level;
  level.outline = outline;
  if (shapeUser_ == level.id)
    shapeUser_ = -1;
}

std::int32_t LevelList::units() const {
  return layout_.settings().units;
}

bool LevelList::baseboardThere() const {
  return !layout_.settings().baseboard.empty();
}

bool LevelList::shapeThere() const {
  return selectedShape(layout_) != nullptr;
}

void LevelList::outlineFromBaseboard(std::size_t place) {
  setOutline(place, layout_.settings().baseboard);
}

void LevelList::outlineFromShape(std::size_t place) {
  if (const Shape* shape = selectedShape(layout_)) {
    setOutline(place, shape->points);
    shapeUser_ = rows_.at(place).level.id;
  }
}

std::size_t LevelList::add() {
  Level level;
  level.id = nextId_;
  do
    ++nextId_;
  while (std::ranges::any_of(rows_, [this](const Row& row) { return row.level.id == nextId_; }));
  std::int32_t number = level.id;
  do
    level.name = numbered(number++);
  while (nameTaken(level.name, rows_.size()));
  for (const Row& row : rows_)
    level.height = std::max(level.height, std::min(row.level.height + kStorey, kFarthest));
  append(level);
  return rows_.size() - 1;
}

std::size_t LevelList::contentCount(std::size_t place) const {
  const std::int32_t id = rows_.at(place).level.id;
  std::size_t count = countOnLevel(layout_, id);
  for (const auto& [from, to] : heirs_)
    count += to == id ? countOnLevel(layout_, from) : 0;
  return count;
}

std::string LevelList::contentLock(std::size_t place) const {
  const std::int32_t id = rows_.at(place).level.id;
  std::string lock = levelLock(layout_, id);
  for (const auto& [from, to] : heirs_)
    if (to == id && lock.empty())
      lock = levelLock(layout_, from);
  return lock;
}

bool LevelList::remove(std::size_t place, std::optional<std::size_t> heir) {
  if (!canRemove() || place == heir || (!heir && !contentLock(place).empty()))
    return false;
  const std::int32_t id = rows_.at(place).level.id;
  const std::int32_t activeId = rows_.at(active_).level.id;
  const std::optional<std::int32_t> heirId =
      heir ? std::optional(rows_.at(*heir).level.id) : std::nullopt;
  for (auto& [from, to] : heirs_)
    to = to == id ? heirId : to;
  // A level that was added a moment ago is known to nothing on the plan.
  if (countOnLevel(layout_, id) != 0)
    heirs_[id] = heirId;
  if (shapeUser_ == id)
    shapeUser_ = -1;
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(place));
  const auto placeOf = [this](std::int32_t level) {
    const auto found =
        std::ranges::find_if(rows_, [level](const Row& row) { return row.level.id == level; });
    return static_cast<std::size_t>(found - rows_.begin());
  };
  if (activeId != id)
    active_ = placeOf(activeId);
  else
    setActive(heirId ? placeOf(*heirId) : std::min(place, rows_.size() - 1));
  if (std::ranges::none_of(rows_, [](const Row& row) { return row.level.visible; }))
    setActive(active_);
  return true;
}

bool LevelList::nameTaken(const std::string& name, std::size_t except) const {
  for (std::size_t i = 0; i < rows_.size(); ++i)
    if (i != except && trimmed(rows_[i].name) == name)
      return true;
  return false;
}

std::string LevelList::problem(std::size_t place) const {
  const Row& row = rows_.at(place);
  const std::string name = trimmed(row.name);
  // A plan from elsewhere may hold such names: only what was typed here is refused.
  const bool typed = row.name != row.level.name;
  if (typed && name.empty())
    return tr("A level needs a name.");
  if (typed && nameTaken(name, place))
    return tr("Another level has this name.");
  return row.height.problem();
}

std::optional<std::size_t> LevelList::firstProblem() const {
  for (std::size_t i = 0; i < rows_.size(); ++i)
    if (!problem(i).empty())
      return i;
  return {};
}

LevelChange LevelList::change() const {
  LevelChange wanted;
  for (const Row& row : rows_) {
    wanted.levels.push_back(row.level);
    if (row.name != row.level.name)
      wanted.levels.back().name = trimmed(row.name);
  }
  wanted.activeLevel = rows_.at(active_).level.id;
  wanted.heirs = heirs_;
  if (const Shape* shape = selectedShape(layout_); shape != nullptr && shapeUser_ != -1)
    wanted.usedShape = shape->id;
  return wanted;
}

std::string LevelList::openingQuestion() const {
  const LevelChange wanted = change();
  const std::vector<LoopGap> steps = firstProblem() || wanted == before_
                                         ? std::vector<LoopGap>()
                                         : stepsBetweenLevels(layout_, wanted);
  if (steps.empty())
    return {};
  const LoopGap& first = steps.front();
  return trCount(
      "The track comes apart at %2%: no ramp there is long enough to take up %3%. Undo "
      "brings back the track, not the level. Go on?",
      "The track comes apart at %1% places, first at %2%: no ramp there is long enough "
      "to take up %3%. Undo brings back the track, not the level. Go on?",
      steps.size(),
      {placeText(layout_, first.end, first.other), formatLength(std::abs(first.step), units())});
}

ChangeResult LevelList::apply(Layout& layout) const {
  if (firstProblem())
    return false;
  const LevelChange wanted = change();
  // Listing a level that the plan lacks is no edit yet.
  return wanted == before_ ? false : setLevels(layout, wanted);
}

} // namespace trassix
