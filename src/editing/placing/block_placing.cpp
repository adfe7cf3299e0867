#include "editing/placing/block_placing.h"

#include "document/limits.h"
#include "document/repairs.h"
#include "document/undo_scope.h"
#include "editing/joining/joining.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace trassix {

namespace {

template <class Record>
void move(Record& record, const Pose& pose) {
  const Point at = toWorld(pose, {record.x, record.y});
  record.x = at.x;
  record.y = at.y;
  record.heading = normaliseHeading(record.heading + pose.heading);
}

bool fitsPlan(const Block& block, const Pose& pose) {
  const auto fits = [&pose](auto record) {
    move(record, pose);
    return inLimits(record);
  };
  return std::ranges::all_of(block.pieces, fits) && std::ranges::all_of(block.scenery, fits);
}

/// Copies of the block's pieces with new ids, their joints still those of the block.
std::vector<PlacedPiece> freshPieces(Layout& layout, const Block& block, const Pose& pose) {
  std::vector<PlacedPiece> pieces = block.pieces;
  for (PlacedPiece& piece : pieces) {
    piece.id = layout.takeId();
    move(piece, pose);
    piece.sel = true;
    piece.helix = -1;
  }
  return pieces;
}

/// Where the block's pieces stand, by the ids they have there.
using Positions = std::unordered_map<std::int32_t, std::size_t>;

Positions positionsOf(const std::vector<PlacedPiece>& pieces) {
  Positions positions;
  for (std::size_t i = 0; i < pieces.size(); ++i)
    positions.emplace(pieces[i].id, i);
  return positions;
}

/// Joints get the new id of their target, or are opened when that is not in the block. A damaged
/// file can hold joints that only one side knows of, or of a piece with itself; no plan may have
/// these.
void remapJoints(std::vector<PlacedPiece>& pieces, const Block& block, const Positions& positions) {
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const std::int32_t oldId = block.pieces[i].id;
    for (std::size_t slot = 0; slot < pieces[i].joints.size(); ++slot) {
      Joint& joint = pieces[i].joints[slot];
      const auto target = positions.find(joint.target);
      const Joint back{oldId, static_cast<std::int32_t>(slot)};
      if (target == positions.end() || target->second == i || positions.at(oldId) != i ||
          block.pieces[target->second].joint(static_cast<std::size_t>(joint.tconn)) != back)
        joint = {};
      else
        joint.target = pieces[target->second].id;
    }
  }
}

/// Copies of both pieces of a pair are a pair again.
void copyPairs(const Block& block, const std::vector<PlacedPiece>& pieces,
               const Positions& positions, std::vector<PiecePair>& pairs) {
  for (const PiecePair& pair : block.pairs) {
    const auto first = positions.find(pair.first);
    const auto second = positions.find(pair.second);
    if (first != positions.end() && second != positions.end())
      pairs.push_back({pieces[first->second].id, pieces[second->second].id});
  }
}

void createLevels(Layout& layout, const std::vector<PlacedPiece>& pieces) {
  std::unordered_set<std::int32_t> seen;
  for (const PlacedPiece& piece : pieces) {
    if (seen.insert(piece.level).second)
      layout.ensureLevel(piece.level);
  }
}

/// Puts each piece at the height of its level. Joints that would get a step by it are opened;
/// returns how many.
int standOnLevels(Layout& layout, std::span<const std::int32_t> pieces) {
  for (const std::int32_t id : pieces) {
    PlacedPiece& piece = *layout.editPiece(id);
    piece.z = layout.levelHeight(piece.level);
  }
  int opened = 0;
  for (const std::int32_t id : pieces) {
    const PlacedPiece& piece = *layout.findPiece(id);
    for (std::size_t i = 0; i < piece.joints.size(); ++i) {
      const PlacedPiece* other = layout.findPiece(piece.joints[i].target);
      if (other == nullptr || std::abs(other->z - piece.z) <= kSameHeight)
        continue;
      openJoint(layout, id, static_cast<std::int32_t>(i));
      ++opened;
    }
  }
  return opened;
}

Notice openedJoints(int count) {
  return {"Place Block",
          count == 1
              ? "One joint of the block was opened: it leads to a level of another height."
              : std::to_string(count).append(" joints of the block were opened: they lead to "
                                             "levels of another height.")};
}

} // namespace

EditResult placeBlock(Layout& layout, const Block& placed, const Pose& pose) {
  EditResult result;
  if (placed.empty())
    return result;
  Block block = placed; // which may come straight from the clipboard
  makeSound(block);
  if (!fitsPlan(block, pose))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  layout.clearSelection();

  std::vector<PlacedPiece> pieces = freshPieces(layout, block, pose);
  const Positions positions = positionsOf(block.pieces);
  remapJoints(pieces, block, positions);
  PlanContent& content = layout.edit();
  copyPairs(block, pieces, positions, content.pairs);
  for (PlacedPiece& piece : pieces) {
    result.placed.push_back(piece.id);
    content.pieces.push_back(std::move(piece));
  }
  std::vector<std::int32_t> placedPieces = result.placed;
  std::sort(placedPieces.begin(), placedPieces.end());
  for (SceneryItem item : block.scenery) {
    item.id = layout.takeId();
    move(item, pose);
    item.sel = true;
    result.placed.push_back(item.id);
    content.scenery.push_back(std::move(item));
  }
  createLevels(layout, block.pieces);
  if (const int opened = block.onLevels ? standOnLevels(layout, placedPieces) : 0; opened != 0)
    result.remark = openedJoints(opened);
  closeMeetingEnds(layout, placedPieces);
  step.keep();
  return result;
}

} // namespace trassix
