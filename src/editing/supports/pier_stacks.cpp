#include "editing/supports/pier_stacks.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/records.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

namespace trassix {

namespace {

constexpr double kStep = 30;   // mm in H0
constexpr double kPlay = 0.05; // mm: a shim so thin is none
constexpr double kTenths = 10;

using Series = std::array<double, 16>;
constexpr Series kH0Series{4, 10, 18, 27, 36, 45, 54, 63, 72, 80, 87, 93, 98, 102, 104, 105};

/// As clearances are to those of H0.
double scaleOf(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 0.4;
  case Gauge::Gauge1:
    return 2.5;
  case Gauge::H0:
    break;
  }
  return 1;
}

Series scaled(double by) {
  Series series = kH0Series;
  for (double& height : series)
    height = std::round(height * by * kTenths) / kTenths;
  return series;
}

} // namespace

std::span<const double> pierSeries(TrackSystem system) {
  static const Series kZ = scaled(0.4);
  static const Series kGauge1 = scaled(2.5);
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return kZ;
  case Gauge::Gauge1:
    return kGauge1;
  case Gauge::H0:
    break;
  }
  return kH0Series;
}

double pierStep(TrackSystem system) {
  return kStep * scaleOf(system);
}

PierStack stackFor(TrackSystem system, double height) {
  const std::span<const double> series = pierSeries(system);
  const double step = pierStep(system);
  const int most =
      std::max(0, static_cast<int>(std::ceil((height - series.back() - kPlay) / step)));
  PierStack best;
  best.shim = height;
  for (int steps = std::max(0, most - 1); steps <= most; ++steps) {
    const auto next = std::ranges::upper_bound(series, height - steps * step + kPlay);
    if (next == series.begin())
      continue;
    const double shim = height - steps * step - *(next - 1);
    if (shim < best.shim - kPlay)
      best = {*(next - 1), steps, shim};
  }
  best.shim = std::round(std::max(0.0, best.shim) * kTenths) / kTenths;
  return best;
}

std::vector<double> stackHeights(TrackSystem system, double most) {
  const std::span<const double> series = pierSeries(system);
  std::vector<double> heights;
  for (int steps = 0; steps * pierStep(system) <= most; ++steps)
    for (const double base : series) {
      const double height = base + steps * pierStep(system);
      // Lower ones come out of fewer steps.
      if (height <= most + kPlay &&
          (steps == 0 || height > series.back() + (steps - 1) * pierStep(system) + kPlay))
        heights.push_back(height);
    }
  return heights;
}

std::vector<SupportPart> supportParts(const Layout& layout, const SupportPlan& supports) {
  using Key = std::tuple<TrackSystem, SupportPart::Kind, double>;
  std::map<Key, int> counts;
  for (const Support& support : supports.supports) {
    const PlacedPiece* piece = layout.findPiece(support.piece);
    const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
    if (definition == nullptr || support.kind == SupportKind::Rod)
      continue;
    const TrackSystem system = definition->system;
    const double height = std::round((support.head - support.foot) * kTenths) / kTenths;
    if (support.kind == SupportKind::Portal) {
      ++counts[{system, SupportPart::Kind::Portal, height}];
      continue;
    }
    const PierStack stack = stackFor(system, height);
    if (stack.base > 0)
      ++counts[{system, SupportPart::Kind::Pier, stack.base}];
    if (stack.steps > 0)
      counts[{system, SupportPart::Kind::Step, pierStep(system)}] += stack.steps;
    if (stack.shim > 0)
      ++counts[{system, SupportPart::Kind::Shim, stack.shim}];
  }
  std::vector<SupportPart> parts;
  for (const auto& [key, count] : counts)
    parts.push_back({std::get<1>(key), std::get<0>(key), std::get<2>(key), count});
  return parts;
}

std::string nameOf(const SupportPart& part, std::int32_t units) {
  const std::string height = formatLength(part.height, units);
  switch (part.kind) {
  case SupportPart::Kind::Pier:
    return tr("Pier %1%", {height});
  case SupportPart::Kind::Step:
    return tr("Pier on pier %1%", {height});
  case SupportPart::Kind::Shim:
    return tr("Shim %1%", {height});
  case SupportPart::Kind::Portal:
    return tr("Portal frame %1%", {height});
  }
  return {};
}

} // namespace trassix
