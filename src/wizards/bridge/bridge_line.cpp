#include "wizards/bridge/bridge_line.h"

#include "document/layout.h"
#include "document/records.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace trassix {

namespace {

constexpr double kChordPlay = 0.02; // mm
constexpr double kRounding = 0.01;  // mm by which joints are told from places

} // namespace

BridgeLine::BridgeLine(const Layout& layout, TrainWay way) : way_(std::move(way)) {
  joints_.push_back(0);
  for (const WayStretch& stretch : way_.stretches) {
    joints_.push_back(joints_.back() + stretch.length);
    const PlacedPiece& piece = *layout.findPiece(stretch.piece);
    Laid laid;
    laid.frame = poseOf(piece);
    for (const Route& route : routesOf(*definitionOf(piece))) {
      const bool onward = route.from == stretch.enter && route.to == stretch.leave;
      const bool backwards = route.to == stretch.enter && route.from == stretch.leave;
      if (laid.line.empty() && (onward || backwards)) {
        laid.line = sampleRoute(route, kChordPlay);
        laid.backwards = backwards;
      }
    }
    laid_.push_back(std::move(laid));
  }
}

Pose BridgeLine::poseAt(double along) const {
  const std::size_t at = stretchAt(along);
  const Laid& laid = laid_[at];
  const double inside = std::clamp(along - joints_[at], 0.0, way_.stretches[at].length);
  const RoutePoint point =
      pointAlong(laid.line, laid.backwards ? way_.stretches[at].length - inside : inside);
  const Point place = toWorld(laid.frame, point.position);
  const double heading =
      normaliseHeading(laid.frame.heading + point.heading + (laid.backwards ? 180 : 0));
  const double past = along - joints_[at] - inside;
  const Point there = toWorld({place.x, place.y, heading}, {past, 0});
  return {there.x, there.y, heading};
}

double BridgeLine::heightAt(double along) const {
  const std::size_t at = stretchAt(along);
  const WayStretch& stretch = way_.stretches[at];
  return stretch.from + stretch.slope() * std::clamp(along - joints_[at], 0.0, stretch.length);
}

std::size_t BridgeLine::stretchAt(double along) const {
  const auto next = std::ranges::upper_bound(joints_, along);
  const auto place = next - joints_.begin() - 1;
  return static_cast<std::size_t>(
      std::clamp<std::ptrdiff_t>(place, 0, static_cast<std::ptrdiff_t>(stretches()) - 1));
}

std::size_t BridgeLine::lastJointUpTo(double along) const {
  const auto next = std::ranges::upper_bound(joints_, along + kRounding);
  return next == joints_.begin() ? 0 : static_cast<std::size_t>(next - joints_.begin()) - 1;
}

std::size_t BridgeLine::firstJointFrom(double along) const {
  const auto found = std::ranges::lower_bound(joints_, along - kRounding);
  return std::min(static_cast<std::size_t>(found - joints_.begin()), stretches());
}

std::size_t BridgeLine::stretchThrough(std::int32_t piece, std::int32_t from,
                                       std::int32_t to) const {
  const auto found = std::ranges::find_if(way_.stretches, [&](const WayStretch& stretch) {
    return stretch.piece == piece && ((stretch.enter == from && stretch.leave == to) ||
                                      (stretch.enter == to && stretch.leave == from));
  });
  return static_cast<std::size_t>(found - way_.stretches.begin());
}

} // namespace trassix
