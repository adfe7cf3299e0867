#include "editing/elevation/easing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

constexpr double kVertical = 0.999; // no slope is steeper

/// What easing leaves a piece of the way.
struct Bounds {
  double low = -kVertical;
  double high = kVertical;
};

/// By how much neighbours may differ whose middles are so far apart. Ends of the way count as
/// having a neighbour as long as they unless they are told to have another.
double stepBetween(const Climb& climb, std::size_t i) {
  const double left = i > 0                    ? climb.lengths[i - 1]
                      : climb.lengthBefore > 0 ? climb.lengthBefore
                                               : climb.lengths.front();
  const double right = i < climb.lengths.size() ? climb.lengths[i]
                       : climb.lengthAfter > 0  ? climb.lengthAfter
                                                : climb.lengths.back();
  return climb.change * (left + right) / 2;
}

std::vector<Bounds> boundsOf(const Climb& climb) {
  const std::size_t count = climb.lengths.size();
  std::vector<Bounds> bounds(count);
  if (climb.change == 0)
    return bounds;
  const auto narrow = [](Bounds& to, double around, double by) {
    to = {std::max(to.low, around - by), std::min(to.high, around + by)};
  };
  double reach = 0;
  for (std::size_t i = 0; i < count; ++i)
    narrow(bounds[i], climb.before, reach += stepBetween(climb, i));
  reach = 0;
  for (std::size_t i = count; i > 0; --i)
    narrow(bounds[i - 1], climb.after, reach += stepBetween(climb, i));
  return bounds;
}

double within(const Bounds& bounds, double slope) {
  return std::min(std::max(slope, bounds.low), bounds.high);
}

double baseAt(const Climb& climb, std::size_t i) {
  return climb.base.empty() ? 0 : climb.base[i];
}

double riseWith(const Climb& climb, const std::vector<Bounds>& bounds, double more) {
  double rise = 0;
  for (std::size_t i = 0; i < bounds.size(); ++i)
    rise += climb.lengths[i] * within(bounds[i], baseAt(climb, i) + more);
  return rise;
}

} // namespace

std::optional<std::vector<double>> slopesFor(const Climb& climb, double rise) {
  const std::vector<Bounds> bounds = boundsOf(climb);
  if (bounds.empty() || std::ranges::any_of(bounds, [](const Bounds& b) { return b.low > b.high; }))
    return std::nullopt;
  double low = -2;
  double high = 2;
  constexpr double kRounding = 1e-9; // mm
  if (rise < riseWith(climb, bounds, low) - kRounding ||
      rise > riseWith(climb, bounds, high) + kRounding)
    return std::nullopt;
  for (int i = 0; i < 60; ++i) { // to the last bit of a slope
    const double middle = (low + high) / 2;
    (riseWith(climb, bounds, middle) < rise ? low : high) = middle;
  }
  std::vector<double> slopes;
  for (std::size_t i = 0; i < bounds.size(); ++i)
    slopes.push_back(within(bounds[i], baseAt(climb, i) + (low + high) / 2));
  return slopes;
}

std::vector<double> easedBase(const Climb& climb) {
  if (climb.change == 0)
    return climb.base;
  // Midway between the least slopes that no change of which is too large lies above the base, and
  // the greatest that lie below it.
  std::vector<double> above = climb.base;
  std::vector<double> below = climb.base;
  const auto follow = [&](std::size_t i, std::size_t neighbour, double step) {
    above[i] = std::max(above[i], above[neighbour] - step);
    below[i] = std::min(below[i], below[neighbour] + step);
  };
  for (std::size_t i = 1; i < above.size(); ++i)
    follow(i, i - 1, stepBetween(climb, i));
  for (std::size_t i = above.size(); i > 1; --i)
    follow(i - 2, i - 1, stepBetween(climb, i - 1));
  std::vector<double> eased;
  for (std::size_t i = 0; i < above.size(); ++i)
    eased.push_back((above[i] + below[i]) / 2);
  return eased;
}

double mostRise(const Climb& climb, double steepest) {
  Climb level = climb;
  level.base.clear();
  return riseWith(level, boundsOf(level), steepest);
}

} // namespace trassix
