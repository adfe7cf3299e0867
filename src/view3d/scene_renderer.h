#pragma once

#include "view3d/mesh_store.h"
#include "view3d/scene/orbit_camera.h"
#include "view3d/scene/scene_keeper.h"

#include <array>
#include <map>

namespace trassix {

class Layout;
struct GlAbilities;

/// A piece of the window's picture, for pictures that are larger than the window: how many such
/// tiles there are each way, and which one this is, from the top left.
struct PictureTile {
  int tiles = 1;
  int column = 0;
  int row = 0;
  double right = 0; ///< moved by so many of the window's widths and heights
  double up = 0;
};

/// Draws a scene with what every OpenGL has: fixed functions on arrays of triangles. A mesh is sent
/// when it is first seen from that near. Whoever calls it has made its context current.
class SceneRenderer {
 public:
  struct Look {
    int width = 0; ///< pixels
    int height = 0;
    double dark = 0; ///< from 0 to 1, which a train lights up
    bool shadows = true;
    bool selection = true; ///< what is selected glows
    PictureTile tile;
  };

  /// Asks the driver for no more than `abilities`. Without a stencil there are no shadows.
  explicit SceneRenderer(const GlAbilities& abilities);

  /// Lets go of what is no longer like that.
  void forget(const SceneChanges& changes);

  /// The whole picture but for labels, into the buffer that is drawn into.
  void draw(const Layout& layout, const Scene& scene, const SceneView& view,
            const OrbitCamera& camera, const Look& look);

  std::size_t sentTriangles() const { return store_.sentTriangles(); }
  std::size_t drawnTriangles() const { return drawn_; } ///< of the last picture, without shadows

 private:
  struct Places {
    MeshStore::Place fine;
    MeshStore::Place coarse;
  };
  /// A flat place with what lies on it and the shadows that fall on it.
  struct Ground {
    double height = 0;
    MeshStore::Draws draws;
    MeshStore::Draws shadows;
  };
  using PlaceMap = std::map<SceneKey, Places>;

  void gather(const Layout& layout, const Scene& scene, const SceneView& view,
              const OrbitCamera& camera, const Look& look);
  void prepare(const OrbitCamera& camera, const Matrix4& projection, const Look& look) const;
  void drawShadows(const Ground& ground, int mark);
  static void drawRoom(const Scene& scene, const Look& look);
  void drawBodies(const MeshStore::Draws& draws);
  const MeshStore::Place& sent(Places& places, const SceneBatch& batch, Detail detail);

  MeshStore store_;
  bool masks_; ///< the stencil tells grounds apart
  PlaceMap places_;
  std::size_t drawn_ = 0;

  // Of the picture that is being made.
  std::vector<Ground> grounds_; ///< the board first
  MeshStore::Draws bodies_;
  MeshStore::Draws selected_;
};

} // namespace trassix
