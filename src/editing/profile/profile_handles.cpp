#include "editing/profile/profile_handles.h"

#include "editing/elevation/way_handles.h"

#include <algorithm>
#include <limits>

namespace trassix {

namespace {

constexpr double kRoomPx = 11; ///< joints nearer to one another have no handle of their own

} // namespace

std::vector<ProfileHandle> handlesOf(const ProfileContent& content, const TrainWay& way,
                                     std::span<const std::size_t> knees, const ProfileScale& plot,
                                     std::optional<std::size_t> chosen) {
  std::vector<ProfileHandle> handles;
  const std::size_t count = way.stretches.size();
  double before = -std::numeric_limits<double>::infinity(); // px of the handle or knee before
  auto next = knees.begin();
  for (std::size_t joint = 0; count > 0 && joint <= count; ++joint) {
    const Point px = plot.toScreen(content.along[joint], heightOfJoint(way, joint));
    bool knee = next != knees.end() && *next == joint;
    if (knee)
      ++next;
    // Going round, the end is the start once more.
    knee = knee || (joint == count && content.round && !knees.empty() && knees.front() == 0);
    const double after = next == knees.end() ? std::numeric_limits<double>::infinity()
                                             : plot.toScreen(content.along[*next], 0).x;
    const bool room = px.x - before >= kRoomPx && after - px.x >= kRoomPx;
    const bool inView = px.x >= plot.low.x - 1 && px.x <= plot.high.x + 1;
    if (!knee && !room && joint != chosen)
      continue;
    before = px.x;
    if (inView)
      handles.push_back({joint, px, knee});
  }
  // Knees lie over the others.
  std::stable_partition(handles.begin(), handles.end(),
                        [](const ProfileHandle& handle) { return !handle.knee; });
  return handles;
}

} // namespace trassix
