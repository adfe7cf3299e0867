#pragma once

#include "catalog/scenery_catalog.h"
#include "view3d/scene/track_mesh.h"

#include <cstdint>
#include <string_view>

namespace trassix {

/// An item as it is to be made: lengths in mm.
struct SceneryModel {
  std::string_view key;
  Footprint size; ///< with the item's scales
  TrackSystem system = TrackSystem::CTrack;
  std::uint32_t variant = 0; ///< items alike differ a little by it
  bool leadsOn = false;      ///< a portal with its tunnel behind it
};

/// Within its footprint about the origin of the frame, width along x. An item that the catalogue
/// does not have is a marked block.
void addScenery(Mesh& mesh, const MeshFrame& frame, const SceneryModel& model, Detail detail);

} // namespace trassix
