#include "random_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>

namespace trassix {

namespace {

/// In units of a notch: forms with their notches, as outlines on a grid of 0 to 3.
using Form = std::vector<std::array<int, 2>>;
const std::array<Form, 7> kForms{{
    {{0, 0}, {3, 0}, {3, 3}, {0, 3}},                                 // rectangle
    {{0, 0}, {3, 0}, {3, 3}, {0, 3}},                                 // again, being common
    {{0, 0}, {1, 0}, {1, 1}, {3, 1}, {3, 3}, {0, 3}},                 // L
    {{0, 0}, {3, 0}, {3, 1}, {2, 1}, {2, 3}, {1, 3}, {1, 1}, {0, 1}}, // T
    {{0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 0}, {3, 0}, {3, 3}, {0, 3}}, // U
    {{0, 0}, {2, 0}, {2, 1}, {3, 1}, {3, 3}, {1, 3}, {1, 2}, {0, 2}}, // Z
    {{0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 2}, {3, 2}, {3, 3}, {0, 3}}, // stairs
}};

} // namespace

LayoutTask randomTask(TrackSystem system, std::mt19937& random) {
  const auto any = [&random](double least, double most) {
    return std::uniform_real_distribution(least, most)(random);
  };
  const auto oneOf = [&random](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  LayoutTask task;
  task.system = system;
  task.distance = std::round(usualEdgeDistance(system) * any(0, 2));
  const std::vector<double> radii = cornerRadii(system);
  task.radius = radii[oneOf(std::min<std::size_t>(radii.size(), 4))];
  if (const std::vector<double> outer = outerRadii(system, task.radius);
      !outer.empty() && oneOf(2) == 0)
    task.secondRadius = outer[oneOf(std::min<std::size_t>(outer.size(), 2))];
  const double bend = 2 * std::max(task.radius, task.secondRadius) + 2 * task.distance;
  const Form& form = kForms.at(oneOf(kForms.size()));
  std::array<double, 4> x{};
  std::array<double, 4> y{};
  for (std::size_t i = 1; i < 4; ++i) {
    // A third of a form's room in each direction, where a rectangle has all three together.
    const double part = form.size() == 4 ? bend / 3 : bend * 0.8;
    x.at(i) = x.at(i - 1) + std::round(part * any(0.8, 2.2));
    y.at(i) = y.at(i - 1) + std::round(part * any(0.8, 2.2));
  }
  for (const auto& [column, row] : form)
    task.outline.push_back(
        {x.at(static_cast<std::size_t>(column)), y.at(static_cast<std::size_t>(row))});
  if (oneOf(2) == 0)
    for (Point& p : task.outline)
      p = {p.y, p.x};
  if (oneOf(2) == 0)
    task.station = StationWish{oneOf(task.outline.size()), 1 + static_cast<int>(oneOf(3)),
                               std::round(bend * any(0, 0.8))};
  if (oneOf(3) == 0)
    task.bridge = BridgeWish{oneOf(task.outline.size()),
                             oneOf(2) == 0 ? BridgeForm::Arch : BridgeForm::Truss};
  return task;
}

std::string describe(const LayoutTask& task) {
  std::ostringstream text;
  text << systemName(task.system) << " r " << task.radius << "/" << task.secondRadius
       << " distance " << task.distance << " outline";
  for (const Point& p : task.outline)
    text << " {" << p.x << ", " << p.y << "},";
  if (task.station)
    text << " station " << task.station->side << " x " << task.station->sidings << " of "
         << task.station->usableLength;
  if (task.bridge)
    text << " bridge " << task.bridge->side << " form " << static_cast<int>(task.bridge->form);
  return text.str();
}

} // namespace trassix
