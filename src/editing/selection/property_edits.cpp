#include "editing/selection/property_edits.h"

#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/elevation/propagation.h"
#include "editing/joining/joining.h"
#include "editing/selection/rigid_motion.h"
#include "editing/selection/selection.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

template <class Record>
bool replaceIn(Layout& layout, std::vector<Record> PlanContent::*records, const Record& wanted) {
  const auto& present = layout.content().*records;
  const auto found = std::ranges::find(present, wanted.id, &Record::id);
  if (found == present.end())
    return false;
  Record record = wanted;
  record.sel = found->sel;
  if (record == *found || !inLimits(record))
    return false;
  const auto position = found - present.begin();
  UndoScope step(layout);
  (layout.edit().*records)[static_cast<std::size_t>(position)] = std::move(record);
  return step.keep();
}

/// Calls `change` with each selected record that has a level, until it returns true.
template <class Content, class Change>
bool anySelected(Content& content, const Change& change) {
  bool any = false;
  forEachOnLevels(content, [&](auto& records) {
    any = any || std::ranges::any_of(
                     records, [&change](auto& record) { return record.sel && change(record); });
  });
  return any;
}

} // namespace

bool setPiecePose(Layout& layout, std::int32_t piece, const Pose& pose) {
  const PlacedPiece* present = layout.findPiece(piece);
  const Pose wanted{pose.x, pose.y, normaliseHeading(pose.heading)};
  if (present == nullptr || isStill(poseOf(*present), wanted) || !inLimits({pose.x, pose.y}) ||
      !std::isfinite(pose.heading))
    return false;
  UndoScope step(layout);
  const std::array<std::int32_t, 1> moved{piece};
  detach(layout, moved);
  PlacedPiece& edited = *layout.editPiece(piece);
  edited.x = wanted.x;
  edited.y = wanted.y;
  edited.heading = wanted.heading;
  closeMeetingEnds(layout, moved, MeetingPlay::none());
  return step.keep();
}

ChangeResult setTrackHeight(Layout& layout, std::int32_t piece, double z) {
  const PlacedPiece* present = layout.findPiece(piece);
  if (present == nullptr || present->z == z)
    return false;
  PieceHeight wanted = heightOf(*present);
  wanted.z = z;
  return applyHeights(layout, planHeights(layout, std::span(&wanted, 1)));
}

bool levelLiftsSelection(const Layout& layout) {
  return std::ranges::none_of(layout.pieces(), [&layout](const PlacedPiece& piece) {
    const auto holds = [&](const Joint& joint) {
      const PlacedPiece* other = layout.findPiece(joint.target);
      return other != nullptr &&
             (!other->sel || layout.levelHeight(other->level) != layout.levelHeight(piece.level));
    };
    return piece.sel && (piece.helix != -1 || std::ranges::any_of(piece.joints, holds));
  });
}

ChangeResult setSelectedLevel(Layout& layout, std::int32_t level) {
  if (layout.findLevel(level) == nullptr ||
      !anySelected(layout.content(), [level](const auto& record) { return record.level != level; }))
    return false;
  const bool lifts = levelLiftsSelection(layout);
  const double height = layout.levelHeight(level);
  const auto lifted = [&layout, height](const PlacedPiece& piece) {
    return piece.z + (height - layout.levelHeight(piece.level));
  };
  if (lifts && std::ranges::any_of(layout.pieces(), [&lifted](const PlacedPiece& piece) {
        return piece.sel && !isLength(lifted(piece));
      }))
    return beyondPlan();
  UndoScope step(layout);
  if (lifts)
    for (PlacedPiece& piece : layout.edit().pieces)
      if (piece.sel)
        piece.z = lifted(piece);
  anySelected(layout.edit(), [level](auto& record) {
    record.level = level;
    return false;
  });
  if (lifts)
    closeMeetingEnds(layout, selectedPieces(layout), MeetingPlay::none());
  deselectHidden(layout);
  return step.keep();
}

bool setSelectedColor(Layout& layout, std::optional<Color> color) {
  const auto differs = [&color](const PlacedPiece& piece) {
    return piece.sel && (piece.hasColor != color.has_value() || (color && piece.color != *color));
  };
  if (std::ranges::none_of(layout.pieces(), differs))
    return false;
  UndoScope step(layout);
  for (PlacedPiece& piece : layout.edit().pieces) {
    if (piece.sel) {
      piece.hasColor = color.has_value();
      piece.color = color.value_or(Color{});
    }
  }
  return step.keep();
}

bool replaceRecord(Layout& layout, const SceneryItem& item) {
  return replaceIn(layout, &PlanContent::scenery, item);
}

bool replaceRecord(Layout& layout, const Label& label) {
  return replaceIn(layout, &PlanContent::labels, label);
}

bool replaceRecord(Layout& layout, const Shape& shape) {
  if (!replaceIn(layout, &PlanContent::shapes, shape))
    return false;
  deselectHidden(layout);
  return true;
}

} // namespace trassix
