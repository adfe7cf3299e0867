// The small drawings of the palette.
#pragma once

#include "catalog/piece_def.h"
#include "catalog/scenery_catalog.h"
#include "ui/palette/catalog_list.h"

namespace trassix {

struct Block;

/// Width of track pieces, in mm, that the drawings of a system are to hold: longer pieces are drawn
/// to a smaller scale instead of making all others tiny.
double widestToScale(TrackSystem system);

/// `widest` mm fill the room; what does not fit so is drawn smaller.
void drawPiece(Surface& surface, const PictureRoom& room, const PieceDef& piece, double widest);
void drawScenery(Surface& surface, const PictureRoom& room, const SceneryDef& item,
                 const Footprint& size, double widest);

/// The block's track and the places of its scenery, as large as the room allows.
void drawBlock(Surface& surface, const PictureRoom& room, const Block& block);

} // namespace trassix
