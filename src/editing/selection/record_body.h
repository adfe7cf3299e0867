#pragma once

#include "document/layout.h"
#include "geometry/polygons.h"

#include <vector>

namespace trassix {

/// What a record covers on the plan, by which it is pointed at, caught with a box and brought into
/// view.
struct RecordBody {
  Polygon outline;      ///< mm; two points are a line, one is a place, none shows by others
  bool byEdge = false;  ///< pointed at by its edge,
  bool byInside = true; ///< by what the edge encloses
};

// One for each kind of record but track. `mmPerPx` for what is as large as it looks, 0 for its
// place only.
RecordBody bodyOf(const Layout& layout, const Shape& shape, double mmPerPx);
RecordBody bodyOf(const Layout& layout, const Helix& helix, double mmPerPx);
RecordBody bodyOf(const Layout& layout, const Tunnel& tunnel, double mmPerPx);
RecordBody bodyOf(const Layout& layout, const SceneryItem& item, double mmPerPx);
RecordBody bodyOf(const Layout& layout, const Measurement& tape, double mmPerPx);
RecordBody bodyOf(const Layout& layout, const Label& label, double mmPerPx);

/// A polygon for each of the piece's beds; its place when its article is unknown.
std::vector<Polygon> bedsOf(const PlacedPiece& piece);

/// The outlines of any record.
template <class Record>
std::vector<Polygon> outlinesOf(const Layout& layout, const Record& record, double mmPerPx) {
  if constexpr (Record::kKind == RecordKind::Piece)
    return bedsOf(record);
  else
    return {bodyOf(layout, record, mmPerPx).outline};
}

/// Height of the text of labels in pixels. Seen from afar they are smaller, so that they do not
/// hide the plan.
double labelTextSize(double mmPerPx);

} // namespace trassix
