#include "editing/levels/level_edits.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/elevation/deck_ramps.h"
#include "editing/elevation/grade_runs.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "geometry/polygons.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace trassix {

namespace {

constexpr std::size_t kFewestCorners = 3;

/// What becomes of a level and what stands there.
struct Fate {
  std::optional<std::int32_t> level; ///< none: it is deleted
  double rise = 0;                   ///< mm
};

using Fates = std::map<std::int32_t, Fate>;

Fates fatesOf(const Layout& layout, const LevelChange& wanted) {
  std::map<std::int32_t, double> heights;
  for (const Level& level : wanted.levels)
    heights[level.id] = level.height;
  Fates fates;
  for (const auto& [level, height] : heights)
    fates[level] = {level, height - deckHeight(layout, level)};
  for (const auto& [level, heir] : wanted.heirs) {
    Fate& fate = fates[level];
    fate = {heir, 0};
    if (heir && heights.contains(*heir))
      fate.rise = heights[*heir] - deckHeight(layout, level);
  }
  return fates;
}

bool staysInLimits(const Layout& layout, const LevelChange& wanted, const Fates& fates) {
  return std::ranges::all_of(wanted.levels, [](const Level& level) { return inLimits(level); }) &&
         std::ranges::all_of(layout.pieces(), [&fates](const PlacedPiece& piece) {
           const auto fate = fates.find(piece.level);
           return fate == fates.end() || isLength(piece.z + fate->second.rise);
         });
}

void removeDoomed(PlanContent& content, const Fates& fates) {
  const auto doomed = [&fates](const auto& record) {
    const auto fate = fates.find(record.level);
    return fate != fates.end() && !fate->second.level;
  };
  std::vector<std::int32_t> pieces;
  for (const PlacedPiece& piece : content.pieces)
    if (doomed(piece))
      pieces.push_back(piece.id);
  std::ranges::sort(pieces);
  if (!pieces.empty())
    removePieces(content, pieces);
  forEachOnLevels(content, [&doomed](auto& records) { std::erase_if(records, doomed); });
}

/// Pieces that rise, by id.
using Rises = std::unordered_map<std::int32_t, double>;

Rises risesOf(const PlanContent& content, const Fates& fates) {
  Rises rises;
  for (const PlacedPiece& piece : content.pieces)
    if (const auto fate = fates.find(piece.level); fate != fates.end() && fate->second.rise != 0)
      rises[piece.id] = fate->second.rise;
  return rises;
}

/// Records come to the levels that they go to; track rises.
void moveToFates(PlanContent& content, const Fates& fates, const Rises& rises) {
  for (PlacedPiece& piece : content.pieces)
    if (const auto rise = rises.find(piece.id); rise != rises.end())
      piece.z += rise->second;
  forEachOnLevels(content, [&fates](auto& records) {
    for (auto& record : records)
      if (const auto fate = fates.find(record.level); fate != fates.end())
        record.level = *fate->second.level;
  });
}

void liftTrack(Layout& layout, const Fates& fates) {
  const Rises rises = risesOf(layout.content(), fates);
  const DeckPlan plan = planDecks(layout, rises);
  moveToFates(layout.edit(), fates, rises);
  for (const PieceHeight& ramp : plan.ramps)
    lay(*layout.editPiece(ramp.piece), ramp);
  for (const LoopGap& step : plan.steps)
    openJoint(layout, step.end.piece, step.end.connector);
  std::vector<std::int32_t> risen;
  for (const auto& [id, rise] : rises)
    risen.push_back(id);
  std::ranges::sort(risen);
  dropStaleRuns(layout, risen);
  closeMeetingEnds(layout, risen, MeetingPlay::none());
}

bool measuresInLimits(const LastShape& shape) {
  return isLength(shape.w) && isLength(shape.h) && isLength(shape.w2) && isLength(shape.h2);
}

void removeShape(Layout& layout, std::int32_t id) {
  std::erase_if(layout.edit().shapes, [id](const Shape& shape) { return shape.id == id; });
}

} // namespace

std::size_t countOnLevel(const Layout& layout, std::int32_t level) {
  std::size_t count = 0;
  forEachOnLevels(layout.content(), [level, &count](const auto& records) {
    for (const auto& record : records)
      count += record.level == level ? 1 : 0;
  });
  return count;
}

double deckHeight(const Layout& layout, std::int32_t level) {
  if (layout.findLevel(level) != nullptr)
    return layout.levelHeight(level);
  std::optional<double> lowest;
  for (const PlacedPiece& piece : layout.pieces())
    if (piece.level == level)
      lowest = std::min(piece.z, lowest.value_or(piece.z));
  return lowest.value_or(0);
}

std::string levelLock(const Layout& layout, std::int32_t level) {
  std::vector<std::int32_t> ids;
  for (const PlacedPiece& piece : layout.pieces()) {
    if (piece.level != level)
      continue;
    ids.push_back(piece.id);
    if (piece.helix != -1)
      return tr("Track of a helix stands on this level.");
  }
  for (const SceneryItem& item : layout.content().scenery)
    if (item.level == level)
      ids.push_back(item.id);
  std::ranges::sort(ids);
  for (const Tunnel& tunnel : layout.content().tunnels)
    if (containsId(ids, tunnel.portalA) || containsId(ids, tunnel.portalB) ||
        std::ranges::any_of(tunnel.covers, [&ids](std::int32_t id) { return containsId(ids, id); }))
      return tr("A tunnel runs over this level.");
  return {};
}

std::vector<LoopGap> stepsBetweenLevels(const Layout& layout, const LevelChange& wanted) {
  Layout scratch = layout;
  const Fates fates = fatesOf(scratch, wanted);
  removeDoomed(scratch.edit(), fates);
  return planDecks(scratch, risesOf(scratch.content(), fates)).steps;
}

namespace {

/// For each tunnel how many ends of its track are joined to each other.
std::vector<std::size_t> jointsInTunnels(const Layout& layout) {
  std::vector<std::size_t> counts;
  for (const Tunnel& tunnel : layout.content().tunnels) {
    std::vector<std::int32_t> covers = tunnel.covers;
    std::ranges::sort(covers);
    std::size_t count = 0;
    for (const std::int32_t id : covers)
      if (const PlacedPiece* piece = layout.findPiece(id))
        count += static_cast<std::size_t>(
            std::ranges::count_if(piece->joints, [&covers](const Joint& joint) {
              return containsId(covers, joint.target);
            }));
    counts.push_back(count);
  }
  return counts;
}

} // namespace

ChangeResult setLevels(Layout& layout, const LevelChange& wanted) {
  const PlanSettings& present = layout.settings();
  if (wanted.levels.empty() ||
      (present.levels == wanted.levels && present.activeLevel == wanted.activeLevel &&
       wanted.heirs.empty() && !wanted.usedShape))
    return false;
  const Fates fates = fatesOf(layout, wanted);
  if (!staysInLimits(layout, wanted, fates))
    return beyondPlan();
  UndoScope step(layout);
  const std::vector<std::size_t> held = jointsInTunnels(layout);
  removeDoomed(layout.edit(), fates);
  liftTrack(layout, fates);
  if (jointsInTunnels(layout) != held)
    return Notice{tr("Tunnel is locked"),
                  tr("The track in a tunnel would come apart. Remove the tunnel first.")};
  if (wanted.usedShape)
    removeShape(layout, *wanted.usedShape);
  PlanSettings& settings = layout.editSettings();
  settings.levels = wanted.levels;
  settings.activeLevel = wanted.activeLevel;
  deselectHidden(layout);
  return step.keep();
}

bool setLevelOutline(Layout& layout, std::int32_t level, const std::vector<Point>& outline) {
  const Level* present = layout.findLevel(level);
  if (present == nullptr || !outlineProblem(outline).empty() || present->outline == outline)
    return false;
  UndoScope step(layout);
  std::ranges::find(layout.editSettings().levels, level, &Level::id)->outline = outline;
  return step.keep();
}

bool setBaseboard(Layout& layout, const std::vector<Point>& outline, const LastShape& shape) {
  const std::vector<Point> wanted =
      outline.size() < kFewestCorners ? std::vector<Point>{} : outline;
  const PlanSettings& present = layout.settings();
  if ((present.baseboard == wanted && present.lastShape == shape) ||
      (!wanted.empty() && !outlineProblem(wanted).empty()) || !measuresInLimits(shape))
    return false;
  UndoScope step(layout);
  PlanSettings& settings = layout.editSettings();
  settings.baseboard = wanted;
  settings.lastShape = shape;
  return step.keep();
}

bool useAsBaseboard(Layout& layout, std::int32_t shape) {
  const auto& shapes = layout.content().shapes;
  const auto found = std::ranges::find(shapes, shape, &Shape::id);
  if (found == shapes.end() || !outlineProblem(found->points).empty())
    return false;
  UndoScope step(layout);
  layout.editSettings().baseboard = found->points;
  removeShape(layout, shape);
  return step.keep();
}

const Shape* selectedShape(const Layout& layout) {
  const auto& shapes = layout.content().shapes;
  const auto found = std::ranges::find(shapes, true, &Shape::sel);
  if (found == shapes.end() || !outlineProblem(found->points).empty() ||
      std::ranges::count(shapes, true, &Shape::sel) > 1)
    return nullptr;
  return &*found;
}

std::set<std::int32_t> lostLevels(const Layout& layout) {
  std::set<std::int32_t> lost;
  forEachOnLevels(layout.content(), [&](const auto& records) {
    for (const auto& record : records)
      if (layout.findLevel(record.level) == nullptr)
        lost.insert(record.level);
  });
  return lost;
}

} // namespace trassix
