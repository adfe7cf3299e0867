#include "editing/placing/placing.h"

#include "catalog/compatibility.h"
#include "catalog/track_catalog.h"
#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/elevation/inheritance.h"
#include "editing/joining/joining.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

namespace {

constexpr std::string_view kTurntable = "74861";
constexpr std::string_view kTurntableTrack = "74871";
constexpr std::array<std::int32_t, 5> kTurntableTrackEnds{29, 1, 14, 15, 16};

constexpr std::string_view kRoundhouse = "72886";
constexpr double kRoundhouseReach = 700.0; // mm, exclusive
constexpr double kRoundhousePitch = 12.0;  // degrees between the turntable's tracks
constexpr double kRoundhouseFront = 349.6; // mm from the turntable's centre to the doors

bool hasEnd(const PieceDef& definition, std::int32_t connector) {
  return connector >= 0 && static_cast<std::size_t>(connector) < definition.connectors.size();
}

bool openAt(const PlacedPiece& piece, std::int32_t connector) {
  return piece.joint(static_cast<std::size_t>(connector)).open();
}

/// True when another piece says that it is joined here, whatever this piece says.
bool claimed(const Layout& layout, Joint end) {
  return std::any_of(layout.pieces().begin(), layout.pieces().end(), [end](const PlacedPiece& p) {
    return p.id != end.target && std::find(p.joints.begin(), p.joints.end(), end) != p.joints.end();
  });
}

/// The pieces, in their order, that can have an end in reach of one of a piece at this pose.
std::vector<PlacedPiece> piecesNear(const Layout& layout, const Pose& pose) {
  constexpr double kSlack = 1; // for rounding
  const double reach = 2 * TrackCatalog::instance().farthestEnd() + kSnapDistance + kSlack;
  std::vector<PlacedPiece> near;
  std::ranges::copy_if(layout.pieces(), std::back_inserter(near), [&](const PlacedPiece& piece) {
    return std::abs(piece.x - pose.x) <= reach && std::abs(piece.y - pose.y) <= reach;
  });
  return near;
}

Notice incompatible(TrackSystem added, TrackSystem present) {
  return {tr("Incompatible Track Systems"), incompatibilityText(added, present),
          Notice::Icon::Warning};
}

/// Appends a piece joined by its connector `own` to `connector` of `from`, on the same level, which
/// goes on as high and as steep.
std::int32_t attach(Layout& layout, const PieceDef& definition, std::int32_t own, std::int32_t from,
                    std::int32_t connector) {
  const PlacedPiece& source = *layout.findPiece(from);
  const WorldConnector end = ConnectorToWorld(source, *definitionOf(source), connector);
  const std::int32_t id =
      addPiece(layout, definition, AttachPose(definition, own, end), source.level, source.z);
  join(layout, id, own, from, connector);
  inheritElevation(layout, id, from, connector);
  return id;
}

void attachTurntableTracks(Layout& layout, std::int32_t turntable,
                           std::vector<std::int32_t>& placed) {
  const PieceDef* track = TrackCatalog::instance().find(kTurntableTrack);
  if (track == nullptr)
    return;
  for (const std::int32_t end : kTurntableTrackEnds) {
    // The end by which the turntable itself was snapped on is taken.
    if (!openAt(*layout.findPiece(turntable), end))
      continue;
    placed.push_back(attach(layout, *track, 0, turntable, end));
    layout.editPiece(placed.back())->free = true;
  }
}

void attachSecondOfPair(Layout& layout, const PieceDef& definition, std::int32_t first,
                        std::vector<std::int32_t>& placed) {
  if (!definition.pair || !hasEnd(definition, 1) || !openAt(*layout.findPiece(first), 1))
    return;
  placed.push_back(attach(layout, definition, 0, first, 1));
  layout.edit().pairs.push_back({first, placed.back()});
}

EditResult finish(Layout& layout, UndoScope& step, std::vector<std::int32_t> placed) {
  std::vector<std::int32_t> sorted = placed;
  std::sort(sorted.begin(), sorted.end());
  if (!std::ranges::all_of(
          sorted, [&layout](std::int32_t id) { return isLength(layout.findPiece(id)->z); }))
    return {{}, beyondPlan()};
  closeMeetingEnds(layout, sorted);
  selectOnly(layout, placed.front());
  step.keep();
  return {std::move(placed), std::nullopt};
}

/// The end by which a new piece goes on at `connector`: 1 at a piece's start, else 0. The other one
/// when only that mates with the system, -1 when neither does.
std::int32_t matingEnd(const PieceDef& definition, std::int32_t connector, TrackSystem system) {
  const std::int32_t usual = connector == 0 && hasEnd(definition, 1) ? 1 : 0;
  for (const std::int32_t end : {usual, 1 - usual})
    if (hasEnd(definition, end) &&
        definition.connectorSystem(static_cast<std::size_t>(end)) == system)
      return end;
  return -1;
}

/// The same, but the wanted one if that mates.
std::int32_t matingEnd(const PieceDef& definition, std::int32_t connector, TrackSystem system,
                       std::optional<std::int32_t> wanted) {
  if (wanted && hasEnd(definition, *wanted) &&
      definition.connectorSystem(static_cast<std::size_t>(*wanted)) == system)
    return *wanted;
  return matingEnd(definition, connector, system);
}

TrackSystem systemAt(const Layout& layout, TrackEnd end) {
  return definitionOf(*layout.findPiece(end.piece))
      ->connectorSystem(static_cast<std::size_t>(end.connector));
}

/// Extends the track at an open end by one piece (and the second of its pair).
EditResult extend(Layout& layout, const Extension& place, const PieceDef& definition,
                  bool withPair) {
  const auto [from, connector] = place.at;
  const PieceDef& source = *definitionOf(*layout.findPiece(from));
  if (definition.connectors.empty())
    return {};
  const std::int32_t own = place.own;
  if (own == -1)
    return {{}, incompatible(definition.connectorSystem(0), systemAt(layout, place.at))};
  const WorldConnector end = ConnectorToWorld(*layout.findPiece(from), source, connector);
  if (!fitsPlan(definition, AttachPose(definition, own, end)))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  std::vector<std::int32_t> placed{attach(layout, definition, own, from, connector)};
  if (withPair)
    attachSecondOfPair(layout, definition, placed.front(), placed);
  return finish(layout, step, std::move(placed));
}

/// The one of the turntables among `records` that is nearest to the drop, if it is within reach.
template <class Records, class IsTurntable>
auto nearestTurntable(const Records& records, const Pose& drop, IsTurntable isTurntable) {
  const typename Records::value_type* turntable = nullptr;
  double nearest = kRoundhouseReach;
  for (const auto& record : records) {
    const double distance = std::hypot(record.x - drop.x, record.y - drop.y);
    if (distance < nearest && isTurntable(record)) {
      nearest = distance;
      turntable = &record;
    }
  }
  return turntable;
}

/// The turntable that a roundhouse dropped here belongs to. Its tracks are counted from the
/// heading, which scenery has none of.
std::optional<Pose> turntableAt(const Layout& layout, const Pose& drop) {
  if (const SceneryItem* item =
          nearestTurntable(layout.content().scenery, drop,
                           [](const SceneryItem& scenery) { return scenery.item == kTurntable; }))
    return Pose{item->x, item->y, 0};
  if (const PlacedPiece* track = nearestTurntable(
          layout.pieces(), drop, [](const PlacedPiece& piece) { return piece.cat == kTurntable; }))
    return poseOf(*track);
  return std::nullopt;
}

/// The roundhouse's doors look at the nearest turntable, on one of its tracks' directions.
Pose seatedRoundhouse(const Layout& layout, const Footprint& size, const Pose& drop) {
  const std::optional<Pose> turntable = turntableAt(layout, drop);
  if (!turntable)
    return drop;
  const double steps = std::round((drop.heading - turntable->heading) / kRoundhousePitch);
  const double heading = normaliseHeading(turntable->heading + steps * kRoundhousePitch);
  const Point at =
      toWorld({turntable->x, turntable->y, heading}, {0, 0.5 * size.depth + kRoundhouseFront});
  return {at.x, at.y, heading};
}

} // namespace

std::int32_t dropLevel(const Layout& layout) {
  std::int32_t level = layout.settings().activeLevel;
  double highest = -1000000000.0;
  for (const Level& candidate : layout.settings().levels) {
    if (candidate.visible && candidate.height > highest) {
      highest = candidate.height;
      level = candidate.id;
    }
  }
  return level;
}

bool fitsPlan(const PieceDef& definition, const Pose& pose, double height) {
  return inLimits({pose.x, pose.y}) && isLength(height) &&
         std::ranges::all_of(endsOfCarried(definition, pose),
                             [](const PlacedEnd& end) { return inLimits(end.at); });
}

std::int32_t addPiece(Layout& layout, const PieceDef& definition, const Pose& pose,
                      std::int32_t level, double height) {
  PlacedPiece piece;
  piece.id = layout.takeId();
  piece.cat = definition.article;
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = normaliseHeading(pose.heading);
  piece.level = level;
  piece.z = height;
  piece.joints.resize(definition.connectors.size());
  layout.edit().pieces.push_back(std::move(piece));
  return layout.pieces().back().id;
}

EditResult dropPiece(Layout& layout, std::string_view article, const Pose& pose,
                     const SnapResult& snap, bool snapping) {
  const PieceDef* definition = TrackCatalog::instance().find(article);
  if (definition == nullptr)
    return {};
  if (!snap.snapped && snapping)
    if (const auto contact = FindIncompatibleContact(*definition, pose, piecesNear(layout, pose)))
      return {{}, incompatible(contact->carried, contact->other)};
  const Pose& landing = snap.snapped ? snap.pose : pose;
  if (!fitsPlan(*definition, landing))
    return {{}, beyondPlan()};

  UndoScope step(layout);
  layout.ensureLevel();
  const PlacedPiece* target = snap.snapped ? layout.findPiece(snap.target) : nullptr;
  std::int32_t level = snap.snapped ? layout.settings().activeLevel : dropLevel(layout);
  double height = layout.levelHeight(level);
  if (target != nullptr) {
    level = target->level;
    height = target->z;
  }
  const std::int32_t chief = addPiece(layout, *definition, landing, level, height);
  if (target != nullptr) {
    join(layout, chief, snap.newConnector, snap.target, snap.targetConnector);
    inheritElevation(layout, chief, snap.target, snap.targetConnector);
  }
  std::vector<std::int32_t> placed{chief};
  if (definition->article == kTurntable)
    attachTurntableTracks(layout, chief, placed);
  attachSecondOfPair(layout, *definition, chief, placed);
  return finish(layout, step, std::move(placed));
}

EditResult cloneAndExtend(Layout& layout, std::int32_t piece, const ExtensionWish& wish) {
  const auto canExtend = [&layout](const PlacedPiece& source, TrackEnd end) {
    return openAt(source, end.connector) && !claimed(layout, {end.piece, end.connector});
  };
  for (const std::int32_t id : {piece, layout.content().partnerOf(piece)}) {
    const PlacedPiece* source = layout.findPiece(id);
    const PieceDef* definition = source == nullptr ? nullptr : definitionOf(*source);
    if (definition == nullptr || source->helix != -1)
      return {};
    std::vector<std::int32_t> order{1, 0};
    if (wish.at && wish.at->piece == id)
      order.insert(order.begin(), wish.at->connector);
    for (const std::int32_t connector : order) {
      const TrackEnd end{id, connector};
      if (hasEnd(*definition, connector) && canExtend(*source, end))
        return extend(layout,
                      {end, matingEnd(*definition, connector, systemAt(layout, end), wish.own)},
                      *definition, false);
    }
  }
  return {};
}

std::optional<Extension> extensionOf(const Layout& layout, std::string_view article,
                                     const ExtensionWish& wish) {
  const PieceDef* definition = TrackCatalog::instance().find(article);
  const std::vector<std::int32_t> selected = selectedPieces(layout);
  if (definition == nullptr || selected.empty())
    return std::nullopt;
  const auto openEnd = [&](TrackEnd end) {
    const PlacedPiece* source = layout.findPiece(end.piece);
    const PieceDef* sourceDefinition = source == nullptr ? nullptr : definitionOf(*source);
    return sourceDefinition != nullptr && hasEnd(*sourceDefinition, end.connector) &&
           openAt(*source, end.connector);
  };
  const auto placeAt = [&](TrackEnd end) {
    return Extension{end, matingEnd(*definition, end.connector, systemAt(layout, end), wish.own)};
  };
  if (wish.at && containsId(selected, wish.at->piece) && openEnd(*wish.at))
    return placeAt(*wish.at);
  for (const std::int32_t id : {selected.back(), layout.content().partnerOf(selected.back())}) {
    const PlacedPiece* source = layout.findPiece(id);
    const PieceDef* sourceDefinition = source == nullptr ? nullptr : definitionOf(*source);
    if (sourceDefinition == nullptr)
      return std::nullopt;
    std::vector<std::int32_t> order{1, 0};
    for (std::int32_t i = 2; hasEnd(*sourceDefinition, i); ++i)
      order.push_back(i);
    for (const std::int32_t connector : order)
      if (openEnd({id, connector}))
        return placeAt({id, connector});
  }
  return std::nullopt;
}

EditResult extendSelected(Layout& layout, std::string_view article, const ExtensionWish& wish) {
  const std::optional<Extension> place = extensionOf(layout, article, wish);
  return place ? extend(layout, *place, *TrackCatalog::instance().find(article), true)
               : EditResult{};
}

EditResult dropScenery(Layout& layout, std::string_view key, const Pose& pose) {
  const SceneryDef* definition = findScenery(key);
  if (definition == nullptr)
    return {};
  const Pose at = key == kRoundhouse
                      ? seatedRoundhouse(layout, definition->footprint(planSystem(layout)), pose)
                      : pose;
  SceneryItem item;
  item.item = key;
  item.x = at.x;
  item.y = at.y;
  item.heading = at.heading;
  item.sel = true;
  if (!inLimits(item))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  layout.ensureLevel();
  item.id = layout.takeId();
  item.level = dropLevel(layout);
  layout.clearSelection();
  layout.edit().scenery.push_back(item);
  step.keep();
  return {{item.id}, std::nullopt};
}

bool wantsSmallTrackView(const Layout& layout) {
  if (layout.pieces().size() != 1)
    return false;
  const PieceDef* definition = definitionOf(layout.pieces().front());
  return definition != nullptr && definition->system == TrackSystem::ZTrack;
}

} // namespace trassix
