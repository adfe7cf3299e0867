#include "wizards/layout/layout_refusals.h"

#include "measures/measure_format.h"
#include "texts/texts.h"
#include "wizards/layout/loop_builds.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

constexpr Micrometres kAny = std::numeric_limits<Micrometres>::max();

constexpr double kLargestTable = 30000; ///< mm, so that a search stays short

/// Does a longest loop of the task.
Steps findAny(LayoutTask task, std::optional<BuiltLoop>& found) {
  LoopBuilds builds(std::move(task));
  co_yield 0;
  for (Steps steps = builds.longest(kAny, found); steps.step();)
    co_yield 0;
}

struct Size {
  double width = 0;
  double depth = 0;
};

Size sizeOf(const Polygon& outline) {
  const auto [left, right] = std::ranges::minmax(outline, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(outline, {}, &Point::y);
  return {right.x - left.x, bottom.y - top.y};
}

Polygon stretched(const Polygon& outline, double factor) {
  constexpr double kStep = 1; // mm
  const Point corner = outline.front();
  Polygon larger = outline;
  const auto away = [&](double from, double at) {
    return from +
           std::copysign(std::ceil(std::abs(at - from) * factor / kStep - 1e-9) * kStep, at - from);
  };
  for (Point& p : larger)
    p = {p.x == corner.x ? p.x : away(corner.x, p.x), p.y == corner.y ? p.y : away(corner.y, p.y)};
  return larger;
}

/// A rectangle grows only in the direction in which it is too small; others as they are.
Polygon roomyRectangle(const LayoutTask& task) {
  const TablePath path = pathOf(task);
  const double least = 2 * toMillimetres(path.rightRadius + path.margin);
  const Size size = sizeOf(task.outline);
  Polygon larger = task.outline;
  const Point corner{std::ranges::min(task.outline, {}, &Point::x).x,
                     std::ranges::min(task.outline, {}, &Point::y).y};
  for (Point& p : larger) {
    if (p.x > corner.x + size.width / 2)
      p.x = std::max(p.x, corner.x + least);
    if (p.y > corner.y + size.depth / 2)
      p.y = std::max(p.y, corner.y + least);
  }
  return larger;
}

/// The task's table, no larger than it must be for a loop.
Steps nearestOutline(LayoutTask task, Polygon& outline) {
  constexpr double kLargest = 64;
  const Polygon own = task.outline;
  std::optional<BuiltLoop> found;
  if (own.size() == 4) {
    task.outline = roomyRectangle(task);
    for (Steps steps = findAny(task, found); steps.step();)
      co_yield 0;
    if (found) {
      outline = task.outline;
      co_return;
    }
  }
  double low = 1;
  double high = 2;
  const auto roomAt = [&](double factor) {
    task.outline = stretched(own, factor);
    return LoopBuilds(task).hasRoom();
  };
  for (; high < kLargest && !roomAt(high); high *= 2) {
    low = high;
    co_yield 0;
  }
  for (int i = 0; i < 14; ++i) {
    const double middle = (low + high) / 2;
    (roomAt(middle) ? high : low) = middle;
    co_yield 0;
  }
  for (int i = 0; i < 12 && !found; ++i, high *= 1.01) {
    task.outline = stretched(own, high);
    for (Steps steps = findAny(task, found); steps.step();)
      co_yield 0;
  }
  if (found)
    outline = task.outline;
}

/// The next smaller radius, or pair of radii, with which there is a loop.
Steps smallerRadius(LayoutTask task, double& radius) {
  std::vector<double> radii = cornerRadii(task.system);
  std::ranges::reverse(radii);
  const bool two = task.tracks() == 2;
  for (const double smaller : radii) {
    if (smaller >= task.radius - 1e-6)
      continue;
    LayoutTask other = task;
    other.radius = smaller;
    if (two) {
      const std::vector<double> outer = outerRadii(task.system, smaller);
      if (outer.empty())
        continue;
      other.secondRadius = outer.front();
    }
    std::optional<BuiltLoop> found;
    for (Steps steps = findAny(std::move(other), found); steps.step();)
      co_yield 0;
    if (found) {
      radius = smaller;
      co_return;
    }
  }
}

Steps explainTable(LayoutTask task, std::int32_t units, LayoutRefusal& refusal) {
  const bool room = LoopBuilds(task).hasRoom();
  co_yield 0;
  for (Steps steps = nearestOutline(task, refusal.outline); steps.step();)
    co_yield 0;
  for (Steps steps = smallerRadius(task, refusal.radius); steps.step();)
    co_yield 0;
  const std::string radius = formatBriefLength(std::max(task.radius, task.secondRadius), units);
  refusal.reason = room ? tr("The straights of this track system close no loop around this table.")
                        : tr("The table is too small for corners of %1%.", {radius});
  std::string size;
  if (!refusal.outline.empty()) {
    const Size least = sizeOf(refusal.outline);
    size =
        tr("They need a table of this form of %1%.", {formatSize(least.width, least.depth, units)});
    if (room)
      size = tr("One of %1% would do.", {formatSize(least.width, least.depth, units)});
  }
  const std::string other = refusal.radius == 0 ? std::string()
                                                : tr("A radius of %1% would fit.",
                                                     {formatBriefLength(refusal.radius, units)});
  refusal.remedy = joinTexts({size, other}, " ");
}

Steps explainStation(LayoutTask task, std::int32_t units, LayoutRefusal& refusal, bool& helped) {
  task.station->usableLength = 0;
  std::optional<BuiltLoop> found;
  {
    LoopBuilds builds(task);
    co_yield 0;
    for (Steps steps = builds.longestStation(kAny, found); steps.step();)
      co_yield 0;
  }
  helped = found.has_value();
  if (found) {
    // Cut, not rounded: what is told has to be possible.
    const double most = std::floor(found->proposal.figures.usableLength * 10) / 10;
    refusal.reason = tr("The station is too long for this side.");
    refusal.remedy =
        tr("Its sidings can be usable for at most %1% there.", {formatLength(most, units)});
    refusal.usableLength = most;
    co_return;
  }
  refusal.reason = trCount("There is no room for a station with one siding on this side.",
                           "There is no room for a station with %1% sidings on this side.",
                           static_cast<std::uint64_t>(task.station->sidings));
  for (int sidings = task.station->sidings - 1; sidings > 0 && !found; --sidings) {
    task.station->sidings = sidings;
    for (Steps steps = findAny(task, found); steps.step();)
      co_yield 0;
  }
  if (found)
    refusal.remedy = trCount("There is room for one siding.", "There is room for %1% sidings.",
                             static_cast<std::uint64_t>(task.station->sidings));
  for (std::size_t side = 0; side < task.outline.size() && !found; ++side) {
    task.station->side = side;
    for (Steps steps = findAny(task, found); steps.step();)
      co_yield 0;
    if (found)
      refusal.remedy = tr("It would fit on this side: %1%.", {tableSideName(task.outline, side)});
  }
}

void explainStock(const BuiltLoop& loop, LayoutRefusal& refusal) {
  std::string list;
  for (const auto& [article, count] : loop.proposal.figures.missing)
    list = joinTexts({list, tr("%1% x %2%", {count, article})}, ", ");
  refusal.reason = tr("The track at home does not make such a layout.");
  refusal.remedy = list.empty()
                       ? tr("Choose all track, and see what is missing.")
                       : tr("A layout of all track would need these besides: %1%.", {list});
}

} // namespace

std::string LayoutRefusal::text() const {
  return joinTexts({reason, remedy}, " ");
}

std::optional<LayoutRefusal> taskRefusal(const LayoutTask& task, std::int32_t units) {
  LayoutRefusal refusal;
  if (std::string problem = tableProblem(task.outline); !problem.empty()) {
    refusal.reason = std::move(problem);
    refusal.remedy = tr("Choose another table, or drag its corners.");
    return refusal;
  }
  const Size size = sizeOf(task.outline);
  if (std::max(size.width, size.depth) > kLargestTable) {
    refusal.reason = tr("The table is larger than %1%.", {formatBriefLength(kLargestTable, units)});
    return refusal;
  }
  const std::size_t sides = task.outline.size();
  if ((task.station && task.station->side >= sides) ||
      (task.bridge && task.bridge->side >= sides)) {
    refusal.reason = tr("The table has no such side.");
    return refusal;
  }
  const std::vector<double> radii = cornerRadii(task.system);
  const auto among = [](const std::vector<double>& all, double radius) {
    return std::ranges::any_of(all, [&](double r) { return std::abs(r - radius) < 1e-6; });
  };
  if (!among(radii, task.radius)) {
    refusal.reason =
        tr("This track system has no corners of %1%.", {formatBriefLength(task.radius, units)});
    return refusal;
  }
  if (task.tracks() == 2 && !among(outerRadii(task.system, task.radius), task.secondRadius)) {
    refusal.reason = mayHaveTwoTracks(task.system)
                         ? tr("These two radii do not make two tracks: they lie too near to each "
                              "other.")
                         : tr("No two radii of this track system make two tracks.");
    return refusal;
  }
  return std::nullopt;
}

Steps explainRefusal(LayoutTask task, std::int32_t units, LayoutRefusal& refusal) {
  std::optional<BuiltLoop> found;
  if (task.ownStockOnly) {
    task.ownStockOnly = false;
    for (Steps steps = findAny(task, found); steps.step();)
      co_yield 0;
    if (found) {
      explainStock(*found, refusal);
      co_return;
    }
  }
  LayoutTask bare = task;
  bare.station.reset();
  bare.bridge.reset();
  for (Steps steps = findAny(bare, found); steps.step();)
    co_yield 0;
  if (!found) {
    for (Steps steps = explainTable(bare, units, refusal); steps.step();)
      co_yield 0;
    co_return;
  }
  if (task.bridge) {
    LayoutTask bridged = bare;
    bridged.bridge = task.bridge;
    for (Steps steps = findAny(bridged, found); steps.step();)
      co_yield 0;
    if (!found) {
      refusal.reason = tr("There is no room for the bridge on this side.");
      refusal.remedy = tr("Choose another side, a shorter bridge or a larger table.");
      co_return;
    }
  }
  if (!task.station) {
    refusal.reason = tr("There is no such layout on this table.");
    co_return;
  }
  bool helped = false;
  for (Steps steps = explainStation(task, units, refusal, helped); steps.step();)
    co_yield 0;
  if (!helped && task.bridge && task.station->side == task.bridge->side) {
    refusal.reason = tr("There is no room for the station and the bridge on one side.");
    refusal.remedy = tr("Choose another side for one of them.");
  }
}

} // namespace trassix
