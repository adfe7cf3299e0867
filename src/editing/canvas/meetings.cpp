#include "editing/canvas/meetings.h"

#include "editing/canvas/plan_theme.h"
#include "editing/joining/joining.h"
#include "texts/texts.h"

#include <algorithm>

namespace trassix {

void paintMeetings(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                   std::span<const EndContact> meetings) {
  for (const EndContact& meeting : meetings)
    if (meetsInHeight(meeting))
      surface.circle(view.toScreen(meeting.target.at), 6, theme.snapped, Stroke{theme.paper, 2});
}

std::size_t joiningEnds(std::span<const EndContact> meetings) {
  return static_cast<std::size_t>(std::ranges::count_if(
      meetings, [](const EndContact& meeting) { return meetsInHeight(meeting); }));
}

std::string meetingsHint(std::span<const EndContact> meetings) {
  const std::size_t count = joiningEnds(meetings);
  return count == 0 ? std::string() : trCount("%1% end joins", "%1% ends join", count);
}

} // namespace trassix
