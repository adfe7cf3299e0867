#include "editing/levels/decks.h"

#include "document/layout.h"
#include "editing/elevation/crossings.h"
#include "geometry/polygons.h"

#include <algorithm>

namespace trassix {

Decks::Decks(const Layout& layout) : layout_(layout) {
  for (const Level& level : layout.settings().levels)
    if (level.visible && level.outline.size() >= 3)
      decks_.push_back(&level);
}

bool Decks::cover(Point at, std::int32_t level, double height) const {
  return std::ranges::any_of(decks_, [&](const Level* deck) {
    return deck->height >= height + kDeckThickness && deck->height > layout_.levelHeight(level) &&
           inside(deck->outline, at);
  });
}

} // namespace trassix
