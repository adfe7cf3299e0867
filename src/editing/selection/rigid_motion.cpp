#include "editing/selection/rigid_motion.h"

#include "document/helix_records.h"
#include "document/limits.h"
#include "document/record_kinds.h"

#include <algorithm>

namespace trassix {

namespace {

template <bool notes>
void moveSelected(PlanContent& content, const RigidMotion& motion) {
  forEachSelectable(content, [&motion](auto& records) {
    if constexpr (kIsNote<typename std::remove_cvref_t<decltype(records)>::value_type> == notes)
      for (auto& record : records)
        if (record.sel)
          moveRecord(record, motion);
  });
}

} // namespace

bool staysInLimits(const PlanContent& content, const RigidMotion& motion, double rise) {
  const std::vector<std::int32_t> helices = selectedHelices(content);
  for (Helix helix : content.helices) {
    moveRecord(helix, motion);
    if (std::ranges::binary_search(helices, helix.id) && !inLimits(helix))
      return false;
  }
  return !anySelectable(content, [&](const auto& record) {
    bool stays = true;
    forEachPosition(record, [&](Point p) { stays = stays && inLimits(motion(p)); });
    if constexpr (requires { record.z; })
      stays = stays && isLength(record.z + rise);
    return record.sel && !stays;
  });
}

void moveSelectedBodies(PlanContent& content, const RigidMotion& motion) {
  moveSelected<false>(content, motion);
  const std::vector<std::int32_t> helices = selectedHelices(content);
  for (Helix& helix : content.helices)
    if (std::ranges::binary_search(helices, helix.id))
      moveRecord(helix, motion);
}

void moveSelectedNotes(PlanContent& content, const RigidMotion& motion) {
  moveSelected<true>(content, motion);
}

} // namespace trassix
