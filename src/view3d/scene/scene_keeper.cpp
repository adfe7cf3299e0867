#include "view3d/scene/scene_keeper.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/records_by_id.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "view3d/scene/ground_mesh.h"
#include "view3d/scene/scenery_mesh.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

constexpr double kTrackGrain = 0.2; // of the gauge: sleepers
constexpr double kSceneryGrain = 4; // mm in H0: windows, leaves
constexpr double kHighest = 1e6;

/// Settings that meshes are made of.
PlanSettings shapeOf(const PlanSettings& settings) {
  PlanSettings kept;
  kept.levels = settings.levels;
  for (Level& level : kept.levels) {
    level.visible = true;
    level.name.clear();
  }
  kept.baseboard = settings.baseboard;
  return kept;
}

void measure(SceneBatch& batch) {
  constexpr double kFar = std::numeric_limits<double>::max();
  batch.least = {kFar, kFar, kFar};
  batch.most = {-kFar, -kFar, -kFar};
  for (const Mesh* mesh : {&batch.fine, &batch.coarse})
    for (const MeshVertex& vertex : mesh->vertices) {
      const auto& [x, y, z] = vertex.position;
      batch.least = {std::min<double>(batch.least.x, x), std::min<double>(batch.least.y, y),
                     std::min<double>(batch.least.z, z)};
      batch.most = {std::max<double>(batch.most.x, x), std::max<double>(batch.most.y, y),
                    std::max<double>(batch.most.z, z)};
    }
}

SceneKey keyOf(SceneGroup group, RecordKind kind, std::int32_t id) {
  return {group, kind, id};
}

double gaugeScale(TrackSystem system) {
  return trackGauge(system) / trackGauge(TrackSystem::CTrack);
}

/// Where the portals of tunnels stand: as high as the track that they are put to.
std::map<std::int32_t, double> portalHeights(const Layout& layout) {
  std::map<std::int32_t, double> heights;
  const auto put = [&](std::int32_t portal, std::int32_t anchor) {
    const PlacedPiece* piece = layout.findPiece(anchor);
    const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
    const SceneryItem* item = recordWithId(layout.content().scenery, portal);
    if (definition == nullptr || item == nullptr)
      return;
    double nearest = std::numeric_limits<double>::max();
    for (const WorldConnector& end : WorldConnectorsOf(*piece, *definition))
      if (const double d = std::hypot(end.x - item->x, end.y - item->y); d < nearest) {
        nearest = d;
        heights[portal] = endHeight(*piece, *definition, end.index);
      }
  };
  for (const Tunnel& tunnel : layout.content().tunnels) {
    put(tunnel.portalA, tunnel.anchorA);
    put(tunnel.portalB, tunnel.anchorB);
  }
  return heights;
}

template <class Visit>
void forEachOf(const ChangedIds& ids, Visit visit) {
  std::ranges::for_each(ids.added, visit);
  std::ranges::for_each(ids.changed, visit);
}

} // namespace

template <class Build>
void SceneKeeper::renew(const SceneKey& key, std::int32_t level, double grain, Build build) {
  SceneBatch batch;
  batch.level = level;
  batch.grain = grain;
  build(batch.fine, Detail::Near);
  build(batch.coarse, Detail::Far);
  if (batch.fine.empty())
    return remove(key);
  measure(batch);
  scene_.batches[key] = std::move(batch);
  changes_.renewed.push_back(key);
}

void SceneKeeper::remove(const SceneKey& key) {
  if (scene_.batches.erase(key) > 0)
    changes_.removed.push_back(key);
}

SceneChanges SceneKeeper::update(const Layout& layout) {
  changes_ = {};
  if (layout.documentStamp() == stamp_)
    return changes_;
  stamp_ = layout.documentStamp();
  const PlanChanges changes = tracker_.update(layout);
  PlanSettings settings = shapeOf(layout.settings());
  const bool resettled = settings != settings_;
  settings_ = std::move(settings);
  const Grounds grounds(layout);
  updateBoard(layout);
  if (resettled)
    updatePlates(layout);
  updateTrack(layout, changes.of(RecordKind::Piece), resettled);
  updateShapes(layout, changes.of(RecordKind::Shape), resettled);
  const std::map<std::int32_t, double> portals = portalHeights(layout);
  updateScenery(layout, grounds, portals, changes.of(RecordKind::Scenery));
  updateTunnels(layout, grounds, portals);
  updateSupports(layout);
  updateLabels(layout, grounds);
  return changes_;
}

void SceneKeeper::updateBoard(const Layout& layout) {
  Polygon outline = boardOutline(layout);
  if (outline == board_)
    return;
  board_ = std::move(outline);
  renew(keyOf(SceneGroup::Board, RecordKind::Piece, 0), SceneBatch::kNoLevel, 0,
        [&](Mesh& mesh, Detail) { addBoard(mesh, board_); });
}

void SceneKeeper::updatePlates(const Layout& layout) {
  std::vector<SceneKey> gone;
  for (const auto& [key, batch] : scene_.batches)
    if (key.group == SceneGroup::Plates && layout.findLevel(key.id) == nullptr)
      gone.push_back(key);
  for (const SceneKey& key : gone)
    remove(key);
  for (const Level& level : layout.settings().levels)
    renew(keyOf(SceneGroup::Plates, RecordKind::Piece, level.id), level.id, 0,
          [&](Mesh& mesh, Detail) { addPlate(mesh, level); });
}

void SceneKeeper::addPiece(const Layout& layout, const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  const TrackSystem system = definition == nullptr ? TrackSystem::CTrack : definition->system;
  const double grain = kTrackGrain * trackGauge(system);
  renew(keyOf(SceneGroup::Track, RecordKind::Piece, piece.id), piece.level, grain,
        [&](Mesh& mesh, Detail detail) { addTrack(mesh, layout, piece, detail); });
  renew(keyOf(SceneGroup::Grades, RecordKind::Piece, piece.id), piece.level, grain,
        [&](Mesh& mesh, Detail) { addGradeStrip(mesh, piece); });
}

void SceneKeeper::updateTrack(const Layout& layout, const ChangedIds& pieces, bool all) {
  for (const std::int32_t id : pieces.removed)
    for (const SceneGroup group : {SceneGroup::Track, SceneGroup::Grades})
      remove(keyOf(group, RecordKind::Piece, id));
  if (all) {
    for (const PlacedPiece& piece : layout.pieces())
      addPiece(layout, piece);
    return;
  }
  forEachOf(pieces, [&](std::int32_t id) {
    if (const PlacedPiece* piece = layout.findPiece(id))
      addPiece(layout, *piece);
  });
}

void SceneKeeper::updateShapes(const Layout& layout, const ChangedIds& shapes, bool all) {
  for (const std::int32_t id : shapes.removed)
    remove(keyOf(SceneGroup::Ground, RecordKind::Shape, id));
  for (const Shape& shape : layout.content().shapes)
    if (all || std::ranges::binary_search(shapes.added, shape.id) ||
        std::ranges::binary_search(shapes.changed, shape.id))
      renew(keyOf(SceneGroup::Ground, RecordKind::Shape, shape.id), shape.level, 0,
            [&](Mesh& mesh, Detail) { addShape(mesh, layout, shape, shape.id); });
}

void SceneKeeper::updateScenery(const Layout& layout, const Grounds& grounds,
                                const std::map<std::int32_t, double>& portals,
                                const ChangedIds& items) {
  for (const std::int32_t id : items.removed) {
    remove(keyOf(SceneGroup::Scenery, RecordKind::Scenery, id));
    standings_.erase(id);
  }
  const TrackSystem system = planSystem(layout);
  for (const SceneryItem& item : layout.content().scenery) {
    const auto portal = portals.find(item.id);
    const Standing standing{
        portal != portals.end() ? portal->second : grounds.standing({item.x, item.y}, item.level),
        system, portal != portals.end()};
    const auto [known, fresh] = standings_.try_emplace(item.id);
    if (!fresh && known->second == standing && !std::ranges::binary_search(items.changed, item.id))
      continue;
    known->second = standing;
    const SceneryModel model{item.item, sceneryFootprint(layout, item), system,
                             static_cast<std::uint32_t>(item.id), standing.leadsOn};
    renew(
        keyOf(SceneGroup::Scenery, RecordKind::Scenery, item.id), item.level,
        kSceneryGrain * gaugeScale(system), [&](Mesh& mesh, Detail detail) {
          addScenery(mesh, frameAt({item.x, item.y, item.heading}, standing.height), model, detail);
        });
  }
}

void SceneKeeper::updateTunnels(const Layout& layout, const Grounds& grounds,
                                const std::map<std::int32_t, double>& portals) {
  std::map<std::int32_t, TunnelHill> before = std::move(tunnels_);
  tunnels_.clear();
  for (const Tunnel& tunnel : layout.content().tunnels) {
    const std::optional<TunnelHill> hill = tunnelHill(layout, grounds, portals, tunnel);
    if (!hill)
      continue;
    tunnels_[tunnel.id] = *hill;
    const auto known = before.find(tunnel.id);
    const bool same = known != before.end() && known->second == *hill;
    before.erase(tunnel.id);
    if (!same)
      renew(keyOf(SceneGroup::Ground, RecordKind::Tunnel, tunnel.id),
            layout.findPiece(tunnel.covers.front()) == nullptr
                ? SceneBatch::kNoLevel
                : layout.findPiece(tunnel.covers.front())->level,
            0, [&](Mesh& mesh, Detail) { addTunnelHill(mesh, *hill); });
  }
  for (const auto& [id, hill] : before)
    remove(keyOf(SceneGroup::Ground, RecordKind::Tunnel, id));
}

void SceneKeeper::updateSupports(const Layout& layout) {
  std::map<std::int32_t, std::vector<Support>> now;
  const SupportPlan plan = supportsOf(layout);
  for (const Support& support : plan.supports)
    now[support.piece].push_back(support);
  for (const auto& [piece, supports] : supports_)
    if (!now.contains(piece))
      remove(keyOf(SceneGroup::Supports, RecordKind::Piece, piece));
  for (const auto& [piece, supports] : now) {
    const SceneKey key = keyOf(SceneGroup::Supports, RecordKind::Piece, piece);
    const std::int32_t level = layout.findPiece(piece)->level;
    const auto known = supports_.find(piece);
    if (known == supports_.end() || known->second != supports ||
        scene_.batches.at(key).level != level)
      renew(key, level, kSceneryGrain, [&standing = supports](Mesh& mesh, Detail detail) {
        for (const Support& support : standing)
          addSupport(mesh, support, detail);
      });
  }
  supports_ = std::move(now);
  updatePosts(plan.posts);
}

void SceneKeeper::updatePosts(const std::vector<DeckPost>& posts) {
  std::map<std::int32_t, std::vector<DeckPost>> now;
  for (const DeckPost& post : posts)
    now[post.level].push_back(post);
  if (now == posts_)
    return;
  for (const auto& [level, standing] : posts_)
    remove(keyOf(SceneGroup::Posts, RecordKind::Piece, level));
  for (const auto& [level, standing] : now)
    renew(keyOf(SceneGroup::Posts, RecordKind::Piece, level), level, 0,
          [&row = standing](Mesh& mesh, Detail) {
            for (const DeckPost& post : row)
              addPost(mesh, post);
          });
  posts_ = std::move(now);
}

void SceneKeeper::updateLabels(const Layout& layout, const Grounds& grounds) {
  std::vector<SceneLabel> labels;
  for (const Label& label : layout.content().labels)
    labels.push_back(
        {label.id,
         label.text,
         {label.x, -label.y, grounds.below({label.x, label.y}, kHighest).height + kLabelHeight}});
  changes_.labels = labels != scene_.labels;
  scene_.labels = std::move(labels);
}

} // namespace trassix
