// What is selected, and the edits that act on a selection as a whole.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"
#include "geometry/box.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace trassix {

bool hasSelection(const Layout& layout);                        ///< any record at all
std::vector<std::int32_t> selectedPieces(const Layout& layout); ///< ids, sorted
void selectOnly(Layout& layout, std::int32_t piece);
void selectAll(Layout& layout); ///< every record that shows

/// Nothing stays selected that does not show, since it could be changed unseen.
void deselectHidden(Layout& layout);

/// All pieces joined to `piece` directly or through others, `piece` included; sorted ids. Joints
/// that only one side knows of do not count.
std::vector<std::int32_t> chainOf(const Layout& layout, std::int32_t piece);

/// The box that a rotation of the selection turns about: positions, ends and curve apexes of
/// pieces, footprints of scenery, vertices of shapes. Empty when nothing of these is selected.
std::optional<Box> selectionBox(const Layout& layout);

/// Turns the selection as one rigid body about the centre of its box, as one undo step. Joints to
/// unselected pieces open; ends that meet others where it lands are joined. Nothing changes when no
/// piece, scenery item or shape is selected or all comes to lie as it was; refused beyond the
/// limits of a plan.
ChangeResult rotateSelection(Layout& layout, double degrees);

/// Why the selection must not be changed ("Helix track is locked", "Tunnel is locked"). `verb` is
/// put into the text, for example "delete".
std::optional<Notice> lockGuard(const Layout& layout, const std::string& verb);

/// The same for what moves the selection as one body: helices that are selected whole go along.
std::optional<Notice> moveGuard(const Layout& layout, const std::string& verb);

/// The same for pieces that need not be selected (sorted ids).
std::optional<Notice> lockGuard(const Layout& layout, std::span<const std::int32_t> pieces,
                                const std::string& verb);

/// Of that only what concerns helices.
std::optional<Notice> helixGuard(const Layout& layout, std::span<const std::int32_t> pieces,
                                 const std::string& verb);

bool selectionHasGrades(const Layout& layout);

/// Removes everything selected as one undo step; neighbours' joints open. A piece that came as one
/// of a pair takes the other one with it, wherever that lies now, unless it is locked or on a
/// hidden level. Grade runs that start on a removed piece end, tunnels forget it. False when
/// nothing was selected.
bool deleteSelection(Layout& layout);

/// Selects what deleting takes along besides, so that it can be kept.
void selectPartners(Layout& layout);

/// The part of deleting which concerns pieces (sorted ids), as a step of other edits: records no
/// history.
void removePieces(PlanContent& content, std::span<const std::int32_t> pieces);

} // namespace trassix
