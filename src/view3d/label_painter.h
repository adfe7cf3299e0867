#pragma once

#include "view3d/scene/orbit_camera.h"
#include "view3d/scene_renderer.h"

#include <map>
#include <string>
#include <vector>

namespace trassix {

/// Labels as upright little signs over their places, as large from everywhere. Whoever calls it has
/// made a context current, the same one each time.
class LabelPainter {
 public:
  /// As the camera sees them from a tile of the picture. `scale`: pixels by those of a normal
  /// display.
  void draw(const std::vector<SceneLabel>& labels, const OrbitCamera& camera,
            const PictureTile& tile, double scale);

 private:
  struct Picture {
    unsigned texture = 0;
    int width = 0;
    int height = 0;
    int side = 0; ///< of the texture, a power of two
  };
  const Picture& pictureOf(const std::string& text, double scale);

  std::map<std::string, Picture> pictures_;
  double scale_ = 0;
};

} // namespace trassix
