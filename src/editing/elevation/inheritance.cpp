#include "editing/elevation/inheritance.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/elevation/climbing.h"
#include "editing/elevation/grade_edits.h"
#include "editing/elevation/grade_runs.h"
#include "editing/elevation/propagation.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace trassix {

namespace {

ClimbStart startAt(const Layout& layout, TrackEnd own, TrackEnd target) {
  const PlacedPiece& piece = *layout.findPiece(own.piece);
  const PieceDef* definition = definitionOf(piece);
  return {own, definition == nullptr ? -1 : oppositeEnd(*definition, own.connector),
          endHeight(layout, target), slopeGoingOn(layout, target)};
}

/// What hangs together with a piece inside the group, by joints or in a helix; sorted ids.
std::vector<std::int32_t> partAround(const Layout& layout, std::span<const std::int32_t> group,
                                     std::int32_t piece) {
  std::unordered_set<std::int32_t> met{piece};
  std::vector<std::int32_t> part{piece};
  std::unordered_set<std::int32_t> helices{-1};
  for (std::size_t k = 0; k < part.size(); ++k) {
    const PlacedPiece& from = *layout.findPiece(part[k]);
    if (helices.insert(from.helix).second)
      for (const std::int32_t id : group)
        if (layout.findPiece(id)->helix == from.helix && met.insert(id).second)
          part.push_back(id);
    for (std::size_t i = 0; i < from.joints.size(); ++i)
      if (const PlacedPiece* next = joinedPiece(layout, from, i);
          next != nullptr && containsId(group, next->id) && met.insert(next->id).second)
        part.push_back(next->id);
  }
  std::ranges::sort(part);
  return part;
}

void layAll(Layout& layout, const std::vector<PieceHeight>& heights) {
  for (const PieceHeight& height : heights)
    lay(*layout.editPiece(height.piece), height);
}

} // namespace

void inheritElevation(Layout& layout, std::int32_t newPiece, std::int32_t from,
                      std::int32_t connector) {
  const PlacedPiece* target = layout.findPiece(from);
  if (target == nullptr || layout.findPiece(newPiece) == nullptr)
    return;
  const Joint joint = target->joint(static_cast<std::size_t>(connector));
  if (joint.target != newPiece)
    return;
  layAll(layout, climbFrom(layout, std::span(&newPiece, 1),
                           startAt(layout, {newPiece, joint.tconn}, {from, connector})));
}

void landGroup(Layout& layout, std::span<const std::int32_t> group, TrackEnd own, TrackEnd target) {
  if (layout.findPiece(own.piece) == nullptr || layout.findPiece(target.piece) == nullptr)
    return;
  const ClimbStart start = startAt(layout, own, target);
  const double rise = start.height - endHeight(layout, own);
  const std::vector<std::int32_t> part = partAround(layout, group, own.piece);
  if (start.slope != 0 && std::ranges::none_of(part, [&layout](std::int32_t id) {
        const PlacedPiece& piece = *layout.findPiece(id);
        return isGraded(piece) || piece.helix != -1;
      })) {
    GradeTask climb = {part, own, start.towards, start.slope};
    climb.limit = std::max(kSteepestSlope, std::abs(start.slope));
    climb.loops = LoopRule::Spread;
    const std::vector<PieceHeight> heights = planGrade(layout, climb).pieces;
    if (std::ranges::all_of(
            heights, [rise](const PieceHeight& height) { return isLength(height.z + rise); }))
      layAll(layout, heights);
  }
  if (rise != 0)
    for (const std::int32_t id : group)
      layout.editPiece(id)->z += rise;
}

void landWhereMeeting(Layout& layout, std::span<const std::int32_t> group,
                      const std::optional<TrackEnd>& preferred) {
  std::vector<EndContact> contacts = openContacts(layout, group);
  std::erase_if(contacts, [&group](const EndContact& contact) {
    return containsId(group, contact.target.piece);
  });
  std::ranges::stable_sort(contacts, {}, [&preferred](const EndContact& contact) {
    const TrackEnd target{contact.target.piece, contact.target.connector};
    return std::pair(target != preferred, std::abs(contact.own.height - contact.target.height));
  });
  std::unordered_set<std::int32_t> landed;
  for (const EndContact& contact : contacts) {
    if (landed.contains(contact.own.piece))
      continue;
    const std::vector<std::int32_t> part = partAround(layout, group, contact.own.piece);
    landed.insert(part.begin(), part.end());
    if (std::ranges::all_of(part, [&](std::int32_t id) {
          return isLength(layout.findPiece(id)->z + contact.target.height - contact.own.height);
        }))
      landGroup(layout, part, {contact.own.piece, contact.own.connector},
                {contact.target.piece, contact.target.connector});
  }
}

void layBetween(Layout& layout, std::span<const std::int32_t> row, TrackEnd enter, TrackEnd leave,
                double heightAtEnter, double heightAtLeave) {
  double run = 0;
  std::int32_t firstLeave = leave.connector;
  TrackEnd in = enter;
  for (std::size_t i = 0; i < row.size(); ++i) {
    const PlacedPiece& piece = *layout.findPiece(row[i]);
    std::int32_t out = leave.connector;
    for (std::int32_t k = 0;
         i + 1 < row.size() && k < static_cast<std::int32_t>(piece.joints.size()); ++k)
      if (piece.joints[static_cast<std::size_t>(k)].target == row[i + 1])
        out = k;
    if (i == 0)
      firstLeave = out;
    if (takesGrade(piece))
      run += std::abs(runTo(*definitionOf(piece), out) - runTo(*definitionOf(piece), in.connector));
    in = beyond(layout, {row[i], out});
  }
  const double rise = heightAtLeave - heightAtEnter;
  const double slope = std::abs(rise) < run ? rise / run : 0;
  std::vector<std::int32_t> sorted(row.begin(), row.end()); // ids may have started over
  std::ranges::sort(sorted);
  layAll(layout, climbFrom(layout, sorted, {enter, firstLeave, heightAtEnter, slope}));
}

std::vector<MissedEnd> missedEnds(const Layout& layout, std::span<const std::int32_t> group) {
  std::vector<MissedEnd> missed;
  for (const EndContact& contact : openContacts(layout, group)) {
    const double higher = contact.own.height - contact.target.height;
    const bool isOther =
        !containsId(group, contact.target.piece) || contact.own.position < contact.target.position;
    if (std::abs(higher) > kClosingDistance && isOther)
      missed.push_back({{contact.own.piece, contact.own.connector},
                        {contact.target.piece, contact.target.connector},
                        higher});
  }
  return missed;
}

std::vector<PlacedEnd> landedEnds(const Layout& layout, const PieceDef& definition,
                                  const SnapResult& snap) {
  PlacedPiece piece = pieceAt(snap.pose);
  piece.cat = definition.article;
  const TrackEnd target{snap.target, snap.targetConnector};
  if (takesGrade(piece))
    lay(piece,
        layTowards(piece, definition, snap.newConnector, oppositeEnd(definition, snap.newConnector),
                   endHeight(layout, target), slopeGoingOn(layout, target)));
  else
    piece.z = endHeight(layout, target);
  std::vector<PlacedEnd> ends;
  appendEnds(ends, piece, 0, true);
  return ends;
}

std::string missText(std::span<const EndContact> meetings, std::int32_t units) {
  double most = 0;
  for (const EndContact& meeting : meetings)
    if (const double higher = meeting.target.height - meeting.own.height;
        !meetsInHeight(meeting) && std::abs(higher) > std::abs(most))
      most = higher;
  const std::string text = higherText(most, units);
  return text.empty() ? text : tr("another end stays open: %1%", {text});
}

std::optional<Notice> missedEndsNotice(const Layout& layout, std::span<const MissedEnd> missed) {
  if (missed.empty())
    return std::nullopt;
  std::string text =
      trCount("One end stays open, since what it meets lies at another height:",
              "%1% ends stay open, since what they meet lies at another height:", missed.size());
  for (const MissedEnd& end : missed)
    text.append("\n").append(tr("%1%: %2%", {placeText(layout, end.own, end.other),
                                             higherText(end.higher, layout.settings().units)}));
  return Notice{tr("Heights"), text};
}

std::string higherText(double higher, std::int32_t units) {
  constexpr double kShown = 0.05; // mm: less would read 0.0
  if (std::abs(higher) < kShown)
    return {};
  return tr(higher > 0 ? trLater("%1% higher") : trLater("%1% lower"),
            {formatLength(std::abs(higher), units)});
}

} // namespace trassix
