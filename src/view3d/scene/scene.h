// The layout as it will stand in the room: plain meshes, for whoever draws, picks or exports them.
// In the frame of vec3.h: x as on the plan, the plan's y mirrored, z up; mm.
#pragma once

#include "document/records_fwd.h"
#include "view3d/scene/mesh.h"
#include "view3d/scene/track_mesh.h"

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

class Layout;

enum class SceneGroup : std::uint8_t {
  Board,
  Plates,
  Ground,
  Track,
  Supports,
  Scenery,
  Grades,
  Posts
};

/// Whose triangles these are. Of the board, of plates and of their posts, which are no records,
/// only the id of the level counts.
struct SceneKey {
  SceneGroup group = SceneGroup::Track;
  RecordKind kind = RecordKind::Piece;
  std::int32_t id = -1;

  auto operator<=>(const SceneKey&) const = default;
  bool isRecord() const {
    return group != SceneGroup::Board && group != SceneGroup::Plates && group != SceneGroup::Posts;
  }
};

/// The triangles of one record in one group, which are made, sent and drawn together.
struct SceneBatch {
  static constexpr std::int32_t kNoLevel = -1;

  std::int32_t level = kNoLevel;
  Mesh fine;
  Mesh coarse;
  Vec3 least; ///< box around them
  Vec3 most;
  double grain = 0; ///< mm: where this is less than about a pixel, `coarse` will do

  const Mesh& mesh(Detail detail) const { return detail == Detail::Near ? fine : coarse; }
};

constexpr double kLabelHeight = 20; ///< mm of labels above the ground

struct SceneLabel {
  std::int32_t id = -1;
  std::string text;
  Vec3 at;

  bool operator==(const SceneLabel&) const = default;
};

struct Scene {
  std::map<SceneKey, SceneBatch> batches;
  std::vector<SceneLabel> labels;

  std::size_t triangles(Detail detail) const;
  /// Around everything but the board's frame and legs, which nobody wants to have in the middle.
  /// No extent for an empty plan.
  struct Bounds {
    Vec3 least;
    Vec3 most;
  };
  Bounds bounds() const;
};

/// What of a scene is to be seen. Nothing of it changes any mesh.
struct SceneView {
  bool scenery = true;
  bool supports = true;
  bool labels = true;
  bool grades = false;
  std::optional<double> cut;           ///< nothing above this height
  std::map<std::int32_t, bool> levels; ///< shown here or not, whatever the plan does with them
};

bool levelShown(const Layout& layout, std::int32_t level, const SceneView& view);
/// Whether a batch is to be seen at all.
bool isShown(const Layout& layout, const SceneKey& key, const SceneBatch& batch,
             const SceneView& view);

/// What a ray meets first.
struct SceneHit {
  SceneKey key;
  Vec3 at;
  double distance = 0; ///< in lengths of the ray's direction
};

/// Goes through the fine triangles, whichever way round they run.
std::optional<SceneHit> hitOf(const Layout& layout, const Scene& scene, const SceneView& view,
                              Vec3 origin, Vec3 direction);

} // namespace trassix
