// Helices as units: each edit treats all track of one alike, as one undo step.
#pragma once

#include "editing/edit_result.h"
#include "editing/helix/helix_plan.h"
#include "editing/selection/picking.h"

#include <cstdint>
#include <vector>

namespace trassix {

class Layout;

/// Why a helix cannot be made so: one sentence, empty when it can. Trains without wire have to pass
/// below its turns.
std::string helixProblem(const HelixPlan& plan, std::int32_t units);

/// Places the helix on a level: its track, joined and at its exact heights, and the record. Ends
/// that meet open ends are joined, and those that meet one at another height remarked. It becomes
/// the selection; the result names the helix, then its pieces.
EditResult placeHelix(Layout& layout, const HelixPlan& plan, std::int32_t level);

/// Makes a helix into another one, whatever place and height `plan` tells: the ends that are joined
/// stay where they are, as many as can, else its centre and its bottom. The others are opened. It
/// keeps its id, level and colour, and its pieces get new ids. Refused for what `placeHelix`
/// refuses, and in a tunnel.
EditResult changeHelix(Layout& layout, std::int32_t helix, const HelixPlan& plan);

/// Ids of its pieces, sorted.
std::vector<std::int32_t> piecesOfHelix(const Layout& layout, std::int32_t helix);

/// The helix that a record of the plan is track of, -1 for none.
std::int32_t helixUnder(const Layout& layout, const Pick& pick);

/// The helix whose pieces are selected, all of them and nothing else that is track; -1 for none.
std::int32_t selectedHelix(const Layout& layout);

void selectHelix(Layout& layout, std::int32_t helix);

/// Selects the rest of each helix of which a part is selected.
void selectWholeHelices(Layout& layout);

/// Removes its track and the record.
bool deleteHelix(Layout& layout, std::int32_t helix);

/// Removes the record: the track lies there on its own.
bool turnIntoLooseTrack(Layout& layout, std::int32_t helix);

/// Whether a piece of any helix is selected.
bool anyOfHelixSelected(const Layout& layout);

} // namespace trassix
