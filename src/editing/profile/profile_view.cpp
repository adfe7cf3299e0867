#include "editing/profile/profile_view.h"

#include "editing/elevation/way_handles.h"
#include "editing/profile/profile_content.h"

#include <algorithm>

namespace trassix {

namespace {

// Room for the numbers at the left, and for distances and marks below the plot; px.
constexpr double kLeft = 46;
constexpr double kTop = 8;
constexpr double kRight = 14;
constexpr double kBottom = 42;

constexpr double kMostPxPerMm = 4;
constexpr double kLeastRange = 120; ///< mm of height that are shown at least
constexpr double kAir = 0.22;       ///< of the range, left free above and below

} // namespace

ProfileScale ProfileView::scale() const {
  ProfileScale scale = plot_;
  if (exaggeration_ > 0)
    scale.perRise = scale.perMm * exaggeration_;
  return scale;
}

void ProfileView::showAll() {
  zoom_ = 1;
  plot_.from = 0;
}

void ProfileView::begin(const ProfileContent& content, double from) {
  plot_.from = std::clamp(from, 0.0, std::max(0.0, content.length() - shown()));
}

void ProfileView::fit(const ProfileContent& content) {
  plot_.low = {kLeft, kTop};
  plot_.high = {std::max(size_.width - kRight, kLeft + 1),
                std::max(size_.height - kBottom, kTop + 1)};
  if (content.empty())
    return;
  plot_.perMm = plot_.width() / content.length() * zoom_;
  begin(content, plot_.from);
  double least = heightOfJoint(content.way, 0);
  double most = least;
  const auto take = [&](double height) {
    least = std::min(least, height);
    most = std::max(most, height);
  };
  for (const WayStretch& stretch : content.way.stretches) {
    take(stretch.from);
    take(stretch.to);
  }
  for (const ProfileCrossing& at : content.crossings)
    take(at.over ? at.crossing.upper.height : at.crossing.lower.height);
  const double range = std::max((most - least) * (1 + 2 * kAir), kLeastRange);
  // Level track is there to be raised.
  const bool flat = most - least < kLeastRange / 2;
  plot_.middle = flat ? least + range * 0.3 : (least + most) / 2;
  plot_.perRise = plot_.depth() / range;
}

void ProfileView::zoom(const ProfileContent& content, double x, double factor) {
  if (content.empty())
    return;
  const double at = plot_.alongAt(x);
  const double most = std::max(1.0, kMostPxPerMm * content.length() / plot_.width());
  zoom_ = std::clamp(zoom_ * factor, 1.0, most);
  plot_.perMm = plot_.width() / content.length() * zoom_;
  begin(content, at - (x - plot_.low.x) / plot_.perMm);
}

void ProfileView::pan(const ProfileContent& content, Point px) {
  begin(content, plot_.from - px.x / plot_.perMm);
  plot_.middle += px.y / scale().perRise;
}

void ProfileView::keepInView(const ProfileContent& content, double along) {
  if (along < plot_.from || along > plot_.from + shown())
    begin(content, along - shown() / 2);
}

void ProfileView::follow(double height) {
  const ProfileScale now = scale();
  const double y = now.toScreen(0, height).y;
  plot_.middle += (std::clamp(y, now.low.y, now.high.y) - y) / now.perRise;
}

} // namespace trassix
