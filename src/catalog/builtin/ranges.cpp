#include "catalog/builtin/ranges.h"

namespace trassix {

void addBuiltinRanges(TrackCatalog& catalog) {
  addCTrack(catalog);
  addTrixCTrack(catalog);
  addZTrack(catalog);
  addKTrack(catalog);
  addMTrackBridges(catalog);
  addKTrackTurntable(catalog);
  addGauge1(catalog);
  addMTrack(catalog);
}

} // namespace trassix
