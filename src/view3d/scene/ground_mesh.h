// The board, decks, painted ground and hills.
#pragma once

#include "document/plan_settings.h"
#include "document/records_fwd.h"
#include "editing/supports/deck_posts.h"
#include "editing/supports/grounds.h"
#include "view3d/scene/mesh.h"

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

/// The hill over a tunnel; none where its track is not what a tunnel can cover.
std::optional<Hill> tunnelHill(const Layout& layout, const Grounds& grounds, const Tunnel& tunnel);
void addHill(Mesh& mesh, const Hill& hill, Color color);

} // namespace trassix
