#include "document/helix_records.h"

#include <algorithm>
#include <set>

namespace trassix {

std::vector<std::int32_t> selectedHelices(const PlanContent& content) {
  std::vector<std::int32_t> helices;
  if (content.helices.empty())
    return helices;
  std::set<std::int32_t> touched;
  std::set<std::int32_t> partly;
  for (const PlacedPiece& piece : content.pieces)
    (piece.sel ? touched : partly).insert(piece.helix);
  for (const Helix& helix : content.helices)
    if (touched.contains(helix.id) && !partly.contains(helix.id))
      helices.push_back(helix.id);
  std::ranges::sort(helices);
  return helices;
}

} // namespace trassix
