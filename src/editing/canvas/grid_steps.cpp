#include "editing/canvas/grid_steps.h"

#include "measures/measure_format.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kInch = 25.4;

constexpr std::array<GridSteps, 10> kMetric{{{1, 10},
                                             {5, 10},
                                             {10, 10},
                                             {50, 10},
                                             {100, 10},
                                             {500, 10},
                                             {1000, 10},
                                             {5000, 10},
                                             {10000, 10},
                                             {50000, 10}}};
constexpr std::array<GridSteps, 9> kImperial{{{kInch / 8, 8},
                                              {kInch / 4, 4},
                                              {kInch / 2, 2},
                                              {kInch, 12},
                                              {kInch * 3, 4},
                                              {kInch * 6, 2},
                                              {kInch * 12, 10},
                                              {kInch * 60, 4},
                                              {kInch * 240, 5}}};

template <std::size_t N>
GridSteps firstWideEnough(const std::array<GridSteps, N>& steps, double mm) {
  const auto found = std::find_if(steps.begin(), steps.end(),
                                  [mm](const GridSteps& step) { return step.fine >= mm; });
  return found == steps.end() ? steps.back() : *found;
}

} // namespace

GridSteps gridSteps(double zoom, std::int32_t units, double minPx) {
  const double mm = minPx / zoom;
  return units == kInches ? firstWideEnough(kImperial, mm) : firstWideEnough(kMetric, mm);
}

ScaleLength scaleLength(double zoom, std::int32_t units, double maxPx) {
  const bool metric = units != kInches;
  const double unit = millimetresPer(units);
  const double room = maxPx / zoom / unit;
  const double decade = std::pow(10.0, std::floor(std::log10(room)));
  const double lead = room / decade;
  const double value = (lead >= 5 ? 5 : lead >= 2 ? 2 : 1) * decade;
  const double mm = value * unit;
  if (metric && mm >= 1000)
    return {mm, std::to_string(std::lround(mm / 1000)) + " m"};
  if (value >= 1)
    return {mm, std::to_string(std::lround(value)) + " " + unitName(units)};
  return {mm, formatLength(mm, units)};
}

} // namespace trassix
