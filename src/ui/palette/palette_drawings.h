// The small drawings of the palette.
#pragma once

#include "catalog/piece_def.h"
#include "catalog/scenery_catalog.h"
#include "ui/palette/catalog_list.h"

#include <span>

namespace trassix {

struct Block;
struct HelixPlan;

/// The one scale to which the pieces of a group, never empty, are drawn, px per mm: all of them fit
/// the width, unless track would get too thin to be told apart; then the longest straights show
/// their beginning only.
double scaleOfGroup(std::span<const PieceDef* const> pieces, double width);

/// How high a piece is at a scale, px.
double drawnHeight(const PieceDef& piece, double scale);

void drawPiece(Surface& surface, const PictureRoom& room, const PieceDef& piece, double scale);
/// `widest` mm, at least the item's own width and depth, fill the room's width.
void drawScenery(Surface& surface, const PictureRoom& room, const SceneryDef& item,
                 const Footprint& size, double widest);

/// `widest` mm, at least the helix's own width, fill the room's width.
void drawHelix(Surface& surface, const PictureRoom& room, const HelixPlan& plan, double widest);

/// The block's track and the places of its scenery, as large as the room allows.
void drawBlock(Surface& surface, const PictureRoom& room, const Block& block);

} // namespace trassix
