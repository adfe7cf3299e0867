// What keys, wheel and context menu do alike with the selection.
#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/selection/moving.h"

#include <cstdint>

namespace trassix {

/// True, and told in words, when what is selected is locked against this ("move", "rotate", ...).
bool refuseLocked(ToolSite& site, const char* verb);

/// The same for moving or turning the selection as one body.
bool refuseMoving(ToolSite& site, const char* verb);

/// Asks before an edit makes track steeper than any should be; slope as rise over length.
bool maySteepen(ToolSite& site, const std::string& title, double slope);

/// Asks before a move takes the selection apart from graded track.
bool mayLeaveGrades(ToolSite& site, const SelectionMove& move, const std::string& title);

/// By degrees, clockwise; refused in words when the selection is locked, and asked for like a move.
void turnSelection(ToolSite& site, double degrees);

/// Asks before graded track goes; refused in words when the selection is locked.
void deleteSelected(ToolSite& site);

/// To the clipboard; false when nothing is selected that can be copied.
bool copySelection(ToolSite& site);
/// What the clipboard holds, centred on its origin; empty when that is no block.
SharedBlock pastedBlock(const ToolSite& site);
void cutSelection(ToolSite& site);

/// Hangs a copy of the selection on the pointer.
void duplicateSelection(ToolSite& site);

/// Asks for another text of the label with this id.
void askLabelText(ToolSite& site, std::int32_t label);

/// Asks for another form of the shape with this id.
void editShape(ToolSite& site, std::int32_t shape);

/// Asks for other heights of the selected track.
void changeHeights(ToolSite& site);

/// Selects all track that is joined to the piece, and nothing else.
void selectChain(ToolSite& site, std::int32_t piece);

} // namespace trassix
