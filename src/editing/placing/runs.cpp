#include "editing/placing/runs.h"

#include "document/undo_scope.h"

namespace trassix {

Run placeRun(Layout& layout, std::string_view article, int count, const ExtensionWish& wish,
             const std::function<EditResult()>& first) {
  UndoScope step(layout);
  Run run{first()};
  std::vector<std::int32_t>& placed = run.result.placed;
  if (!run.result.changed())
    return run;
  for (run.count = 1; run.count < count; ++run.count) {
    const EditResult next = extendSelected(layout, article, wish);
    if (!next.changed())
      break;
    placed.insert(placed.end(), next.placed.begin(), next.placed.end());
  }
  step.keep();
  return run;
}

} // namespace trassix
