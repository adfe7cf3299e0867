#include "editing/canvas/meetings.h"

#include "editing/canvas/plan_colors.h"
#include "texts/texts.h"

namespace trassix {

void paintMeetings(Surface& surface, const ViewTransform& view,
                   std::span<const EndContact> meetings) {
  for (const EndContact& meeting : meetings)
    surface.circle(view.toScreen(meeting.target.at), 6, plan_colors::kSnapped,
                   Stroke{plan_colors::kPaper, 2});
}

std::string meetingsHint(std::span<const EndContact> meetings) {
  return meetings.empty() ? std::string()
                          : trCount("%1% end joins", "%1% ends join", meetings.size());
}

} // namespace trassix
