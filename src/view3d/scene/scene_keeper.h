#pragma once

#include "document/plan_changes.h"
#include "document/plan_settings.h"
#include "editing/supports/supports.h"
#include "view3d/scene/ground_mesh.h"
#include "view3d/scene/scene.h"

#include <cstdint>
#include <map>
#include <vector>

namespace trassix {

/// What became of a scene.
struct SceneChanges {
  std::vector<SceneKey> renewed; ///< batches that are new or made anew
  std::vector<SceneKey> removed;
  bool labels = false;

  bool any() const { return !renewed.empty() || !removed.empty() || labels; }
};

/// Keeps the scene of a plan: makes anew only what looks different, which is found out by comparing
/// what the meshes are made of. Which levels are hidden changes nothing.
class SceneKeeper {
 public:
  /// Follows the plan, whatever happened to it since the last time.
  SceneChanges update(const Layout& layout);

  const Scene& scene() const { return scene_; }

 private:
  template <class Build>
  void renew(const SceneKey& key, std::int32_t level, double grain, Build build);
  void remove(const SceneKey& key);

  void updateBoard(const Layout& layout);
  void updatePlates(const Layout& layout);
  void updateTrack(const Layout& layout, const ChangedIds& pieces, bool all);
  void updateShapes(const Layout& layout, const ChangedIds& shapes, bool all);
  void updateScenery(const Layout& layout, const Grounds& grounds,
                     const std::map<std::int32_t, double>& portals, const ChangedIds& items);
  void updateTunnels(const Layout& layout, const Grounds& grounds,
                     const std::map<std::int32_t, double>& portals);
  void updateSupports(const Layout& layout);
  void updatePosts(const std::vector<DeckPost>& posts);
  void updateLabels(const Layout& layout, const Grounds& grounds);
  void addPiece(const Layout& layout, const PlacedPiece& piece);

  struct Standing {
    double height = 0;
    TrackSystem system{};
    bool leadsOn = false; ///< the portal of a tunnel
    bool operator==(const Standing&) const = default;
  };

  Scene scene_;
  ChangeTracker tracker_;
  SceneChanges changes_;
  std::uint64_t stamp_ = 0;
  PlanSettings settings_; ///< as far as anything depends on them
  Polygon board_;
  std::map<std::int32_t, Standing> standings_;
  std::map<std::int32_t, TunnelHill> tunnels_;
  std::map<std::int32_t, std::vector<Support>> supports_; ///< by the piece they carry
  std::map<std::int32_t, std::vector<DeckPost>> posts_;   ///< by level
};

} // namespace trassix
