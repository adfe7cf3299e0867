// The built-in content of the catalogue, one function per stretch of it. The order in which they
// are called is the order in which palette and tallies show the pieces.
#pragma once

namespace trassix {

class TrackCatalog;

void addCTrack(TrackCatalog& catalog);
void addTrixCTrack(TrackCatalog& catalog); ///< needs the C-Track pieces
void addZTrack(TrackCatalog& catalog);
void addKTrack(TrackCatalog& catalog);
void addKTrackTurntable(TrackCatalog& catalog);
void addGauge1(TrackCatalog& catalog);
void addMTrackBridges(TrackCatalog& catalog);
void addMTrack(TrackCatalog& catalog);

/// All of them in order.
void addBuiltinRanges(TrackCatalog& catalog);

} // namespace trassix
