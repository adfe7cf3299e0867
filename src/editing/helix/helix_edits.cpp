#include "editing/helix/helix_edits.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "document/reselecting.h"
#include "document/undo_scope.h"
#include "editing/elevation/inheritance.h"
#include "editing/helix/helix_ends.h"
#include "editing/joining/joining.h"
#include "editing/records_by_id.h"
#include "editing/selection/selection.h"
#include "editing/tunnels/tunnel_facts.h"
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

namespace {

/// Lays the track on the plan and fills the record in, but for its id. Returns the ids.
std::vector<std::int32_t> layHelix(Layout& layout, const HelixPlan& plan, std::int32_t level,
                                   Helix& helix) {
  helix.cx = plan.centre.x;
  helix.cy = plan.centre.y;
  helix.heading = normaliseHeading(plan.centre.heading);
  helix.variant = plan.kit->key;
  helix.bottomR2 = helix.topR2 = -1;
  std::vector<std::int32_t> all;
  for (HelixTrack& track : helixTracks(plan)) {
    const bool outer = !all.empty();
    const std::vector<std::int32_t> ids = add(layout, std::move(track), helix.id, level);
    (outer ? helix.bottomR2 : helix.bottomR1) = ids.front();
    (outer ? helix.topR2 : helix.topR1) = ids.back();
    all.insert(all.end(), ids.begin(), ids.end());
  }
  return all;
}

/// Ends the edit that laid a helix: joins what meets, and selects it.
EditResult finishHelix(Layout& layout, const Helix& helix, std::span<const std::int32_t> pieces) {
  std::vector<std::int32_t> sorted(pieces.begin(), pieces.end());
  std::ranges::sort(sorted);
  closeMeetingEnds(layout, sorted);
  selectHelix(layout, helix.id);
  EditResult result{{helix.id}, {}};
  result.placed.insert(result.placed.end(), pieces.begin(), pieces.end());
  result.remark = missedEndsNotice(layout, missedEnds(layout, sorted));
  return result;
}

std::optional<Notice> refusalOf(const HelixPlan& plan, std::int32_t units) {
  if (std::string problem = helixProblem(plan, units); !problem.empty())
    return Notice{tr("Helix"), std::move(problem)};
  return fitsPlan(plan) ? std::nullopt : std::optional(beyondPlan());
}

/// The ends of other track that the ends of a helix are joined to, by its list of ends.
std::vector<std::optional<PlacedEnd>> neighboursOf(const Layout& layout, const Helix& helix,
                                                   const HelixPlan& plan) {
  std::vector<std::optional<PlacedEnd>> neighbours;
  for (const HelixEnd& end : endsOf(plan)) {
    const PlacedPiece* piece = layout.findPiece(end.top ? (end.outer ? helix.topR2 : helix.topR1)
                                                : end.outer ? helix.bottomR2
                                                            : helix.bottomR1);
    const auto connector =
        static_cast<std::size_t>((plan.hand == HelixHand::Right) == end.top ? 1 : 0);
    const PlacedPiece* other = piece == nullptr ? nullptr : joinedPiece(layout, *piece, connector);
    neighbours.emplace_back();
    if (other == nullptr || other->helix == helix.id)
      continue;
    std::vector<PlacedEnd> ends;
    appendEnds(ends, *other, 0, true);
    if (const auto slot = static_cast<std::size_t>(piece->joint(connector).tconn);
        slot < ends.size())
      neighbours.back() = ends[slot];
  }
  return neighbours;
}

/// The wanted helix where most of what the present one is joined to can stay joined.
HelixPlan inPlaceOf(const HelixPlan& present, const HelixPlan& wanted,
                    const std::vector<std::optional<PlacedEnd>>& neighbours) {
  const std::vector<HelixEnd> before = endsOf(present);
  const auto neighbourOf = [&](const HelixEnd& end) -> std::optional<PlacedEnd> {
    for (std::size_t i = 0; i < before.size(); ++i)
      if (before[i].top == end.top && before[i].outer == end.outer)
        return neighbours[i];
    return std::nullopt;
  };
  HelixPlan best = wanted;
  best.centre = present.centre;
  best.height = present.height;
  std::ptrdiff_t most = 0;
  const std::vector<HelixEnd> ends = endsOf(wanted);
  for (std::size_t i = 0; i < ends.size(); ++i) {
    const std::optional<PlacedEnd> held = neighbourOf(ends[i]);
    if (!held)
      continue;
    const HelixPlan standing = standingBy(wanted, i, *held);
    const auto kept = std::ranges::count_if(endsOf(standing), [&](const HelixEnd& end) {
      const std::optional<PlacedEnd> other = neighbourOf(end);
      if (!other)
        return false;
      const EndContact contact{
          end.placed, *other,
          std::hypot(end.placed.at.x - other->at.x, end.placed.at.y - other->at.y)};
      return meetsInPlan(contact) && meetsInHeight(contact);
    });
    if (kept > most) {
      most = kept;
      best = standing;
    }
  }
  return best;
}

} // namespace

std::string helixProblem(const HelixPlan& plan, std::int32_t units) {
  const double least = leastPitch(plan.kit->system, false);
  if (std::isfinite(plan.pitch) && plan.pitch >= least - kPitchPlay)
    return {};
  return tr("Trains need at least %1% from turn to turn.", {formatBriefLength(least, units)});
}

EditResult placeHelix(Layout& layout, const HelixPlan& plan, std::int32_t level) {
  if (std::optional<Notice> refusal = refusalOf(plan, layout.settings().units))
    return {{}, std::move(refusal)};
  UndoScope step(layout);
  Helix helix;
  helix.id = layout.takeId();
  layout.ensureLevel(level);
  const std::vector<std::int32_t> pieces = layHelix(layout, plan, level, helix);
  layout.edit().helices.push_back(helix);
  EditResult result = finishHelix(layout, helix, pieces);
  step.keep();
  return result;
}

EditResult changeHelix(Layout& layout, std::int32_t helix, const HelixPlan& plan) {
  const Helix* record = recordWithId(layout.content().helices, helix);
  const auto present = record == nullptr ? std::nullopt : planOfHelix(layout, *record);
  if (!present || (present->kit == plan.kit && present->hand == plan.hand &&
                   std::abs(present->pitch - plan.pitch) < kSameHeight))
    return {};
  const std::vector<std::int32_t> old = piecesOfHelix(layout, helix);
  if (std::ranges::any_of(old, [&layout](std::int32_t id) { return tunnelOver(layout, id); }))
    return {{}, Notice{tr("Helix"), tr("Its track lies in a tunnel. Remove the tunnel first.")}};
  const HelixPlan wanted = inPlaceOf(*present, plan, neighboursOf(layout, *record, *present));
  if (std::optional<Notice> refusal = refusalOf(wanted, layout.settings().units))
    return {{}, std::move(refusal)};
  const PlacedPiece model = *layout.findPiece(record->bottomR1);
  Helix changed = *record;
  UndoScope step(layout);
  removePieces(layout.edit(), old);
  const std::vector<std::int32_t> pieces = layHelix(layout, wanted, model.level, changed);
  for (const std::int32_t id : pieces) {
    PlacedPiece& piece = *layout.editPiece(id);
    piece.hasColor = model.hasColor;
    piece.color = model.color;
  }
  *std::ranges::find(layout.edit().helices, helix, &Helix::id) = changed;
  EditResult result = finishHelix(layout, changed, pieces);
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
