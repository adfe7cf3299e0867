#pragma once

#include "view3d/scene/scene.h"

#include <string>

namespace trassix {

/// What is shown of a scene as a glTF 2.0 file in one binary part (`.glb`): in metres, +y up, +z
/// towards the front edge of the plan, so that seen from above it is the plan and not its mirror
/// image. A node for each group.
std::string glbOf(const Layout& layout, const Scene& scene, const SceneView& view);

} // namespace trassix
