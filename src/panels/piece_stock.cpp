#include "panels/piece_stock.h"

#include "catalog/track_catalog.h"
#include "panels/owned_stock.h"

namespace trassix {

PieceStock piecesAtHome(const OwnedStock& owned) {
  PieceStock stock;
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    if (const std::int32_t count = owned.count(piece.article); count > 0)
      stock[piece.article] = piece.pair ? 2 * count : count;
  }
  return stock;
}

} // namespace trassix
