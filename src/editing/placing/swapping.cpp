#include "editing/placing/swapping.h"

#include "catalog/track_catalog.h"
#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/elevation/propagation.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/track/routes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace trassix {

namespace {

constexpr double kRounding = 1e-7; // mm

bool coincide(const WorldConnector& a, const WorldConnector& b) {
  return std::hypot(a.x - b.x, a.y - b.y) <= kClosingDistance &&
         headingDifference(a.heading, b.heading) <= kClosingFacing;
}

WorldConnector reversed(WorldConnector end) {
  end.heading = normaliseHeading(end.heading + 180.0);
  return end;
}

/// The piece's ends, joined ones where the neighbour has them: a joint with play must not let the
/// new piece wander off.
std::vector<WorldConnector> endsToMeet(const Layout& layout, const PlacedPiece& piece,
                                       const PieceDef& definition) {
  std::vector<WorldConnector> ends = WorldConnectorsOf(piece, definition);
  for (WorldConnector& end : ends) {
    const Joint joint = piece.joint(static_cast<std::size_t>(end.index));
    const PlacedPiece* neighbour = joinedPiece(layout, piece, static_cast<std::size_t>(end.index));
    const PieceDef* other = neighbour == nullptr ? nullptr : definitionOf(*neighbour);
    if (other == nullptr)
      continue;
    const std::int32_t index = end.index;
    end = reversed(ConnectorToWorld(*neighbour, *other, joint.tconn));
    end.index = index;
  }
  return ends;
}

/// Ends that the new piece has to have, as indices of the present one's.
std::vector<std::size_t> requiredEnds(const PlacedPiece& piece, const PieceDef& definition) {
  std::vector<std::size_t> required;
  for (std::size_t i = 0; i < definition.connectors.size(); ++i)
    if (!piece.joint(i).open())
      required.push_back(i);
  if (required.size() != 1)
    return required;
  for (std::size_t i = 0; i < std::min<std::size_t>(2, definition.connectors.size()); ++i)
    if (required.front() != i)
      required.push_back(i);
  return required;
}

/// True when a train can still go between any two required ends between which it could go before.
bool keepsWays(const SwapFit& fit, const PieceDef& presentDefinition,
               const std::vector<std::size_t>& required) {
  const auto wanted = [&required](std::int32_t end) {
    return end != -1 &&
           std::ranges::find(required, static_cast<std::size_t>(end)) != required.end();
  };
  return std::ranges::all_of(routesOf(presentDefinition), [&](const Route& way) {
    if (!wanted(way.from) || !wanted(way.to))
      return true;
    const std::int32_t from = fit.ends[static_cast<std::size_t>(way.from)];
    const std::int32_t to = fit.ends[static_cast<std::size_t>(way.to)];
    return std::ranges::any_of(routesOf(*fit.definition), [from, to](const Route& route) {
      return (route.from == from && route.to == to) || (route.from == to && route.to == from);
    });
  });
}

/// Finds for each end of the present piece the end of the new one that lies on it and, if all
/// required ends have one, gives the fit.
std::optional<SwapFit> fitAt(const PieceDef& definition, const Pose& pose,
                             const std::vector<WorldConnector>& present,
                             const PieceDef& presentDefinition,
                             const std::vector<std::size_t>& required) {
  SwapFit fit{&definition, pose, std::vector<std::int32_t>(present.size(), -1)};
  for (const WorldConnector& end : WorldConnectorsOf(pieceAt(pose), definition)) {
    const TrackSystem system = definition.connectorSystem(static_cast<std::size_t>(end.index));
    for (std::size_t i = 0; i < present.size(); ++i)
      if (fit.ends[i] == -1 && coincide(end, present[i]) &&
          presentDefinition.connectorSystem(i) == system) {
        fit.ends[i] = end.index;
        break;
      }
  }
  const bool complete = std::all_of(required.begin(), required.end(),
                                    [&fit](std::size_t i) { return fit.ends[i] != -1; });
  return complete && keepsWays(fit, presentDefinition, required) ? std::optional(fit)
                                                                 : std::nullopt;
}

/// Lays a graded piece so that two of its ends, joined ones if there are, are as high as those of
/// the piece before it, whichever way round it lies and however long it is.
void keepHeights(PlacedPiece& piece, const PlacedPiece& before, const SwapFit& fit) {
  if (before.grade == 0)
    return;
  std::vector<std::size_t> ends;
  for (const bool open : {false, true})
    for (std::size_t i = 0; i < fit.ends.size(); ++i)
      if (fit.ends[i] != -1 && before.joint(i).open() == open)
        ends.push_back(i);
  const auto was = [&](std::size_t i) {
    return endHeight(before, *definitionOf(before), static_cast<std::int32_t>(i));
  };
  const auto run = [&](std::size_t i) { return runTo(*fit.definition, fit.ends[i]); };
  const auto other =
      std::ranges::find_if(ends, [&](std::size_t i) { return run(i) != run(ends.front()); });
  if (other == ends.end())
    return;
  const double rise = was(*other) - was(ends.front());
  const double slope = rise / std::abs(run(*other) - run(ends.front()));
  if (std::abs(slope) < 1)
    lay(piece, layTowards(piece, *fit.definition, fit.ends[ends.front()], fit.ends[*other],
                          was(ends.front()), slope));
}

/// Lifts what hangs on the piece's ends where these do not lie as high as before, such as the
/// branch of a turnout that is longer than another. Refused where that would leave a step.
ChangeResult liftAlong(Layout& layout, std::int32_t piece, const PlacedPiece& before,
                       const SwapFit& fit) {
  std::vector<PieceHeight> wanted{heightOf(*layout.findPiece(piece))};
  for (std::size_t i = 0; i < fit.ends.size(); ++i) {
    const TrackEnd end{piece, fit.ends[i]};
    const PlacedPiece* neighbour = layout.findPiece(beyond(layout, end).piece);
    const double rise = endHeight(layout, end) -
                        endHeight(before, *definitionOf(before), static_cast<std::int32_t>(i));
    if (neighbour == nullptr || std::abs(rise) < kRounding)
      continue;
    wanted.push_back(heightOf(*neighbour));
    wanted.back().z += rise;
  }
  if (wanted.size() == 1)
    return true;
  return applyHeights(layout, planHeights(layout, wanted));
}

/// A run that starts at the piece goes on from the end that takes the place of its own.
void keepRun(Layout& layout, std::int32_t piece, const SwapFit& fit) {
  PlanContent& content = layout.edit();
  for (GradeRun& run : content.gradeRuns)
    if (run.anchor == piece && static_cast<std::size_t>(run.conn) < fit.ends.size())
      run.conn = fit.ends[static_cast<std::size_t>(run.conn)];
  std::erase_if(content.gradeRuns, [](const GradeRun& run) { return run.conn == -1; });
  content.mirrorLastGradeRun();
}

/// True when all ends of the one lie on ends of the other.
bool looksTheSame(const SwapFit& a, const SwapFit& b) {
  const auto endsA = WorldConnectorsOf(pieceAt(a.pose), *a.definition);
  const auto endsB = WorldConnectorsOf(pieceAt(b.pose), *b.definition);
  return a.definition == b.definition && std::ranges::all_of(endsA, [&endsB](const auto& end) {
           return std::ranges::any_of(endsB,
                                      [&end](const auto& other) { return coincide(end, other); });
         });
}

/// The piece after the exchange, with all ends open.
PlacedPiece exchanged(const PlacedPiece& before, const SwapFit& fit) {
  PlacedPiece changed = before;
  changed.cat = fit.definition->article;
  changed.x = fit.pose.x;
  changed.y = fit.pose.y;
  changed.heading = fit.pose.heading;
  changed.joints = {};
  changed.joints.resize(fit.definition->connectors.size());
  keepHeights(changed, before, fit);
  return changed;
}

} // namespace

double slopeAfterSwap(const Layout& layout, std::int32_t piece, const SwapFit& fit) {
  const PlacedPiece* present = layout.findPiece(piece);
  return present == nullptr ? 0 : slopeOf(exchanged(*present, fit));
}

std::vector<SwapFit> swapFits(const Layout& layout, std::int32_t piece) {
  const PlacedPiece* present = layout.findPiece(piece);
  const PieceDef* presentDefinition = present == nullptr ? nullptr : definitionOf(*present);
  if (presentDefinition == nullptr)
    return {};
  const std::vector<std::size_t> required = requiredEnds(*present, *presentDefinition);
  if (required.empty())
    return {};
  const std::vector<WorldConnector> ends = endsToMeet(layout, *present, *presentDefinition);
  const WorldConnector facing = reversed(ends[required.front()]);
  const SwapFit itself{presentDefinition, poseOf(*present), {}};
  std::vector<SwapFit> fits;
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& definition = *catalog.at(i);
    for (std::size_t k = 0; k < definition.connectors.size() && !definition.pair; ++k) {
      const Pose pose = AttachPose(definition, static_cast<std::int32_t>(k), facing);
      const auto fit = fitAt(definition, pose, ends, *presentDefinition, required);
      if (fit && !looksTheSame(*fit, itself) && inLimits(exchanged(*present, *fit)) &&
          std::ranges::none_of(fits, [&fit](const SwapFit& f) { return looksTheSame(f, *fit); }))
        fits.push_back(*fit);
    }
  }
  return fits;
}

ChangeResult swapPiece(Layout& layout, std::int32_t piece, const SwapFit& fit) {
  const std::vector<SwapFit> fits = swapFits(layout, piece);
  if (std::ranges::find(fits, fit) == fits.end())
    return false;
  UndoScope step(layout);
  const PlacedPiece before = *layout.findPiece(piece);
  PlacedPiece changed = exchanged(before, fit);
  std::vector<std::pair<std::int32_t, Joint>> joined;
  for (std::size_t i = 0; i < std::min(fit.ends.size(), before.joints.size()); ++i) {
    const Joint joint = before.joints[i];
    if (joint.open() || fit.ends[i] == -1)
      continue;
    if (joinedPiece(layout, before, i) != nullptr)
      joined.emplace_back(fit.ends[i], joint);
    else // goes on blocking its end
      changed.joints[static_cast<std::size_t>(fit.ends[i])] = joint;
  }
  for (std::size_t i = 0; i < before.joints.size(); ++i)
    openJoint(layout, piece, static_cast<std::int32_t>(i));
  *layout.editPiece(piece) = std::move(changed);
  std::erase_if(layout.edit().pairs, [piece](const PiecePair& pair) { return pair.has(piece); });
  for (const auto& [end, joint] : joined)
    join(layout, piece, end, joint.target, joint.tconn);
  if (ChangeResult lifted = liftAlong(layout, piece, before, fit); lifted.refusal)
    return lifted;
  if (!layout.content().gradeRuns.empty())
    keepRun(layout, piece, fit);
  closeMeetingEnds(layout, std::span(&piece, 1));
  return step.keep();
}

} // namespace trassix
