#pragma once

#include "geometry/point.h"

#include <cstdint>
#include <vector>

namespace trassix {

class Grounds;
class Layout;
class PierRoom;

/// What a deck stands on; lengths and heights in mm.
struct DeckPost {
  std::int32_t level = -1;
  Point at;
  double foot = 0;
  double head = 0; ///< in the plate of the deck
  double size = 0; ///< of its square section

  bool operator==(const DeckPost&) const = default;
};

/// Along the outlines of raised decks, at their corners and so close together that no edge hangs
/// through. A post that would be in the way of track or a road moves along the edge, or is left
/// out.
std::vector<DeckPost> deckPosts(const Layout& layout, const Grounds& grounds, const PierRoom& room);

} // namespace trassix
