// The board, decks, painted ground and hills.
#pragma once

#include "document/plan_settings.h"
#include "document/records_fwd.h"
#include "editing/supports/deck_posts.h"
#include "editing/supports/grounds.h"
#include "view3d/scene/mesh.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>

namespace trassix {

class Layout;

/// The baseboard; below a plan without one, a board around all there is, which grows in steps.
/// Empty for an empty plan.
Polygon boardOutline(const Layout& layout);

/// A board of this outline on the plan with its frame and legs.
void addBoard(Mesh& mesh, const Polygon& outline);

/// A deck of its level's outline; nothing for a level without one.
void addPlate(Mesh& mesh, const Level& level);

void addPost(Mesh& mesh, const DeckPost& post);

/// A shape: painted ground at the height of its level or a hill, water where it is blue. `layer`
/// numbers what lies one over another.
void addShape(Mesh& mesh, const Layout& layout, const Shape& shape, int layer);

/// The hill over a tunnel, whose foot runs along one side of the track and back along the other.
struct TunnelHill {
  Polygon foot;
  double base = 0; ///< height of the foot
  double rise = 0;
  std::array<double, 2> open{}; ///< heights up to which portals stand before its ends

  bool operator==(const TunnelHill&) const = default;
};

/// None where its track is not what a tunnel can cover, or where other track leaves no room.
/// `portals`: at which heights they stand, by id.
std::optional<TunnelHill> tunnelHill(const Layout& layout, const Grounds& grounds,
                                     const std::map<std::int32_t, double>& portals,
                                     const Tunnel& tunnel);
/// Dark inside, so that one looks into it and out of it through its portals.
void addTunnelHill(Mesh& mesh, const TunnelHill& hill);

} // namespace trassix
