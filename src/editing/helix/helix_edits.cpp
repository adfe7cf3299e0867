#include "editing/helix/helix_edits.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "document/reselecting.h"
#include "document/undo_scope.h"
#include "editing/joining/joining.h"
#include "editing/records_by_id.h"
#include "editing/selection/selection.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace trassix {

namespace {

bool fitsPlan(const HelixPlan& plan) {
  const double half = plan.kit->outerSize;
  return inLimits(Point{plan.centre.x - half, plan.centre.y - half}) &&
         inLimits(Point{plan.centre.x + half, plan.centre.y + half}) && isLength(plan.height) &&
         isLength(plan.height + plan.climb());
}

/// Puts the track on the plan and returns the ids, from bottom to top.
std::vector<std::int32_t> add(Layout& layout, HelixTrack track, std::int32_t helix,
                              std::int32_t level) {
  std::vector<std::int32_t> ids;
  for (std::size_t i = 0; i < track.pieces.size(); ++i)
    ids.push_back(layout.takeId());
  std::vector<PlacedPiece>& pieces = layout.edit().pieces;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    PlacedPiece& piece = track.pieces[i];
    piece.id = ids[i];
    piece.helix = helix;
    piece.level = level;
    for (Joint& joint : piece.joints)
      if (!joint.open())
        joint.target = ids[static_cast<std::size_t>(joint.target)];
    pieces.push_back(std::move(piece));
  }
  return ids;
}

bool removeRecord(PlanContent& content, std::int32_t helix) {
  return std::erase_if(content.helices,
                       [helix](const Helix& record) { return record.id == helix; }) != 0;
}

} // namespace

std::string helixProblem(const HelixPlan& plan, std::int32_t units) {
  const double least = leastPitch(plan.kit->system, false);
  if (std::isfinite(plan.pitch) && plan.pitch >= least)
    return {};
  return tr("Trains need at least %1% from turn to turn.", {formatBriefLength(least, units)});
}

EditResult placeHelix(Layout& layout, const HelixPlan& plan, std::int32_t level) {
  if (std::string problem = helixProblem(plan, layout.settings().units); !problem.empty())
    return {{}, Notice{tr("Helix"), std::move(problem)}};
  if (!fitsPlan(plan))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  Helix helix;
  helix.id = layout.takeId();
  helix.cx = plan.centre.x;
  helix.cy = plan.centre.y;
  helix.heading = normaliseHeading(plan.centre.heading);
  helix.variant = plan.kit->key;
  EditResult result{{helix.id}, {}};
  layout.ensureLevel(level);
  bool outer = false;
  for (HelixTrack& track : helixTracks(plan)) {
    const std::vector<std::int32_t> ids = add(layout, std::move(track), helix.id, level);
    (outer ? helix.bottomR2 : helix.bottomR1) = ids.front();
    (outer ? helix.topR2 : helix.topR1) = ids.back();
    result.placed.insert(result.placed.end(), ids.begin(), ids.end());
    outer = true;
  }
  layout.edit().helices.push_back(helix);
  closeMeetingEnds(layout, piecesOfHelix(layout, helix.id));
  selectHelix(layout, helix.id);
  step.keep();
  return result;
}

std::vector<std::int32_t> piecesOfHelix(const Layout& layout, std::int32_t helix) {
  std::vector<std::int32_t> ids;
  for (const PlacedPiece& piece : layout.pieces())
    if (piece.helix == helix && helix != -1)
      ids.push_back(piece.id);
  std::ranges::sort(ids);
  return ids;
}

std::int32_t helixUnder(const Layout& layout, const Pick& pick) {
  const PlacedPiece* piece = pick.kind == RecordKind::Piece ? layout.findPiece(pick.id) : nullptr;
  return piece != nullptr && recordWithId(layout.content().helices, piece->helix) != nullptr
             ? piece->helix
             : -1;
}

std::int32_t selectedHelix(const Layout& layout) {
  const std::vector<std::int32_t> selected = selectedPieces(layout);
  if (selected.empty())
    return -1;
  const std::int32_t helix = layout.findPiece(selected.front())->helix;
  return selected == piecesOfHelix(layout, helix) ? helix : -1;
}

void selectHelix(Layout& layout, std::int32_t helix) {
  layout.reselect([helix](const auto& record) {
    if constexpr (requires { record.helix; })
      return record.helix == helix && helix != -1;
    else
      return false;
  });
}

void selectWholeHelices(Layout& layout) {
  if (layout.content().helices.empty())
    return;
  std::unordered_set<std::int32_t> chosen;
  for (const PlacedPiece& piece : layout.pieces())
    if (piece.sel && recordWithId(layout.content().helices, piece.helix) != nullptr)
      chosen.insert(piece.helix);
  if (chosen.empty())
    return;
  layout.reselect([&chosen](const auto& record) {
    if constexpr (requires { record.helix; })
      return record.sel || chosen.contains(record.helix);
    else
      return record.sel;
  });
}

bool deleteHelix(Layout& layout, std::int32_t helix) {
  UndoScope step(layout);
  const std::vector<std::int32_t> pieces = piecesOfHelix(layout, helix);
  PlanContent& content = layout.edit();
  removePieces(content, pieces);
  removeRecord(content, helix);
  return step.keep();
}

bool turnIntoLooseTrack(Layout& layout, std::int32_t helix) {
  UndoScope step(layout);
  PlanContent& content = layout.edit();
  for (PlacedPiece& piece : content.pieces)
    if (piece.helix == helix)
      piece.helix = -1;
  removeRecord(content, helix);
  return step.keep();
}

bool anyOfHelixSelected(const Layout& layout) {
  return std::ranges::any_of(
      layout.pieces(), [](const PlacedPiece& piece) { return piece.sel && piece.helix != -1; });
}

} // namespace trassix
