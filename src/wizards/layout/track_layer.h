#pragma once

#include "document/records.h"
#include "editing/track/connector_geometry.h"

#include <vector>

namespace trassix {

/// Lays pieces one onto the other, with ids from 1.
class TrackLayer {
 public:
  struct End {
    std::int32_t piece = -1; ///< id
    std::int32_t connector = 0;
  };

  /// A piece by itself, its end where a train comes in that leaves `from`.
  std::int32_t begin(const PieceDef& piece, std::int32_t enter, const WorldConnector& from);
  /// A piece joined to an end by its own end `enter`.
  std::int32_t add(const PieceDef& piece, std::int32_t enter, End onto);
  /// Joins two ends that lie where they lie.
  void join(End a, End b);

  WorldConnector at(End end) const;
  double gap(End a, End b) const;  ///< mm
  double turn(End a, End b) const; ///< degrees off exactly facing

  const std::vector<PlacedPiece>& pieces() const { return pieces_; }
  std::vector<PlacedPiece> take() { return std::move(pieces_); }

 private:
  std::vector<PlacedPiece> pieces_;
};

} // namespace trassix
