// A run of selected track in one direction.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "geometry/pose.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

/// A straight or circular part of the way through a chain, or one that is neither.
struct ChainPart {
  enum class Form : std::uint8_t { Straight, Arc, Other };

  Form form = Form::Straight;
  std::int32_t piece = -1; ///< id
  const PieceDef* definition = nullptr;
  Pose start; ///< where it begins, with the direction of travel
  Pose end;
  double length = 0;      ///< mm
  double radius = 0;      ///< of an arc
  double sweep = 0;       ///< degrees of an arc, positive to the right
  double startHeight = 0; ///< mm above the baseboard
  double endHeight = 0;
  bool endToRight = false; ///< the piece has other ends on this side of the way
  bool endToLeft = false;
};

/// Selected pieces that are joined one after the other.
struct TrackChain {
  std::vector<ChainPart> parts;
  bool closed = false;
  std::string problem; ///< why the selection is no chain, one sentence; empty when it is one
};

/// The chain begins at its end that lies more to the left. Buffer stops are no part of it.
TrackChain selectedChain(const Layout& layout);

} // namespace trassix
