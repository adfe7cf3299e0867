#include "editing/placing/block_placing.h"

#include "document/block.h"
#include "document/block_file.h"
#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/repairs.h"
#include "document/undo_scope.h"
#include "editing/elevation/inheritance.h"
#include "editing/joining/joining.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace trassix {

namespace {

bool fitsPlan(const Block& block, const RigidMotion& motion) {
  bool fits = true;
  const auto check = [&](const auto& records) {
    for (auto record : records) {
      moveRecord(record, motion);
      fits = fits && inLimits(record);
    }
  };
  forEachSelectable(block.content, check);
  check(block.content.helices);
  return fits;
}

/// Copies of the records of a kind with new ids, selected, and put where they belong; joints are
/// still those of the block.
template <class Record>
std::vector<Record> freshCopies(Layout& layout, const std::vector<Record>& records,
                                const RigidMotion& motion) {
  std::vector<Record> copies = records;
  for (Record& record : copies) {
    record.id = layout.takeId();
    moveRecord(record, motion);
    record.sel = true;
  }
  return copies;
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
    const std::int32_t oldId = block.content.pieces[i].id;
    for (std::size_t slot = 0; slot < pieces[i].joints.size(); ++slot) {
      Joint& joint = pieces[i].joints[slot];
      const auto target = positions.find(joint.target);
      const Joint back{oldId, static_cast<std::int32_t>(slot)};
      if (target == positions.end() || target->second == i || positions.at(oldId) != i ||
          block.content.pieces[target->second].joint(static_cast<std::size_t>(joint.tconn)) != back)
        joint = {};
      else
        joint.target = pieces[target->second].id;
    }
  }
}

/// Copies of the helices that came with their track; pieces of others are loose.
std::vector<Helix> copyHelices(Layout& layout, const Block& block, const RigidMotion& motion,
                               const Positions& positions, std::vector<PlacedPiece>& pieces) {
  std::unordered_map<std::int32_t, std::int32_t> ids{{-1, -1}};
  std::vector<Helix> helices;
  const auto renamed = [&](std::int32_t& piece) {
    const auto found = positions.find(piece);
    piece = found == positions.end() ? -1 : pieces[found->second].id;
  };
  for (Helix helix : block.content.helices) {
    if (!positions.contains(helix.bottomR1) || ids.contains(helix.id))
      continue;
    const std::int32_t id = layout.takeId();
    ids.emplace(helix.id, id);
    helix.id = id;
    moveRecord(helix, motion);
    for (std::int32_t* end : {&helix.bottomR1, &helix.bottomR2, &helix.topR1, &helix.topR2})
      renamed(*end);
    helices.push_back(std::move(helix));
  }
  for (PlacedPiece& piece : pieces) {
    const auto found = ids.find(piece.helix);
    piece.helix = found == ids.end() ? -1 : found->second;
  }
  return helices;
}

/// Copies of both pieces of a pair are a pair again.
void copyPairs(const Block& block, const std::vector<PlacedPiece>& pieces,
               const Positions& positions, std::vector<PiecePair>& pairs) {
  for (const PiecePair& pair : block.content.pairs) {
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
  return {tr("Place Block"),
          trCount("One joint of the block was opened: it leads to a level of another height.",
                  "%1% joints of the block were opened: they lead to levels of another height.",
                  static_cast<std::uint64_t>(count))};
}

} // namespace

EditResult placeBlock(Layout& layout, const Block& placed, const Pose& pose,
                      const std::optional<TrackEnd>& landsOn) {
  EditResult result;
  if (isEmpty(placed))
    return result;
  Block block = placed; // which may come straight from the clipboard
  makeSound(block);
  const RigidMotion motion{{}, pose};
  if (!fitsPlan(block, motion))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  layout.clearSelection();

  std::vector<PlacedPiece> pieces = freshCopies(layout, block.content.pieces, motion);
  const Positions positions = positionsOf(block.content.pieces);
  remapJoints(pieces, block, positions);
  std::vector<Helix> helices = copyHelices(layout, block, motion, positions, pieces);
  PlanContent& content = layout.edit();
  std::ranges::move(helices, std::back_inserter(content.helices));
  copyPairs(block, pieces, positions, content.pairs);
  const auto add = [&result](auto& to, auto&& records) {
    for (auto& record : records) {
      result.placed.push_back(record.id);
      to.push_back(std::move(record));
    }
  };
  add(content.pieces, std::move(pieces));
  std::vector<std::int32_t> placedPieces = result.placed;
  std::sort(placedPieces.begin(), placedPieces.end());
  forEachSelectable(block.content, [&](const auto& records) {
    using Records = std::remove_cvref_t<decltype(records)>;
    if (Records::value_type::kKind != RecordKind::Piece)
      add(recordsOf<Records>(content), freshCopies(layout, records, motion));
  });
  createLevels(layout, block.content.pieces);
  if (const int opened = block.onLevels ? standOnLevels(layout, placedPieces) : 0; opened != 0)
    result.remark = openedJoints(opened);
  landWhereMeeting(layout, placedPieces, landsOn);
  closeMeetingEnds(layout, placedPieces);
  if (!result.remark)
    result.remark = missedEndsNotice(layout, missedEnds(layout, placedPieces));
  step.keep();
  return result;
}

} // namespace trassix
