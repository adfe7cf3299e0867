#include "editing/arranging/aligning.h"

#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/selection/record_body.h"
#include "editing/selection/selection.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace trassix {

namespace {

/// Ids of files are unique among their kind only.
using RecordName = std::pair<RecordKind, std::int32_t>;

/// What a selected record covers along an axis.
struct Extent {
  RecordName record;
  double low = 0;
  double high = 0;
};

template <class Record>
constexpr bool kCanAlign = Record::kKind == RecordKind::Scenery ||
                           Record::kKind == RecordKind::Label || Record::kKind == RecordKind::Shape;

template <class Content, class Visit>
void forEachAligned(Content& content, Visit visit) {
  forEachSelectable(content, [&visit](auto& records) {
    if constexpr (kCanAlign<typename std::remove_cvref_t<decltype(records)>::value_type>)
      for (auto& record : records)
        if (record.sel)
          visit(record);
  });
}

template <class Record>
RecordName nameOf(const Record& record) {
  return {Record::kKind, record.id};
}

std::vector<Extent> extentsOf(const Layout& layout, Axis axis) {
  std::vector<Extent> extents;
  forEachAligned(layout.content(), [&](const auto& record) {
    const Polygon outline = bodyOf(layout, record, 0).outline;
    const auto [low, high] =
        std::ranges::minmax(outline, {}, axis == Axis::Across ? &Point::x : &Point::y);
    extents.push_back(axis == Axis::Across ? Extent{nameOf(record), low.x, high.x}
                                           : Extent{nameOf(record), low.y, high.y});
  });
  return extents;
}

std::size_t alignedCount(const Layout& layout) {
  std::size_t count = 0;
  forEachAligned(layout.content(), [&count](const auto&) { ++count; });
  return count;
}

/// Each of these records goes so far along the axis.
ChangeResult shift(Layout& layout, Axis axis, const std::map<RecordName, double>& ways) {
  if (std::optional<Notice> locked = lockGuard(layout, "move"))
    return *locked;
  UndoScope step(layout);
  forEachAligned(layout.edit(), [&](auto& record) {
    constexpr double kStill = 1e-9; // mm
    const double way = ways.at(nameOf(record));
    if (std::abs(way) > kStill)
      moveRecord(record, RigidMotion{{}, axis == Axis::Across ? Pose{way, 0, 0} : Pose{0, way, 0}});
  });
  return step.keep();
}

} // namespace

bool canAlign(const Layout& layout) {
  return alignedCount(layout) >= 2;
}

bool canDistribute(const Layout& layout) {
  return alignedCount(layout) >= 3;
}

ChangeResult alignSelection(Layout& layout, AlignTo to) {
  if (!canAlign(layout))
    return false;
  const Axis axis = to == AlignTo::Left || to == AlignTo::Centre || to == AlignTo::Right
                        ? Axis::Across
                        : Axis::Down;
  const std::vector<Extent> extents = extentsOf(layout, axis);
  const double low = std::ranges::min(extents, {}, &Extent::low).low;
  const double high = std::ranges::max(extents, {}, &Extent::high).high;
  std::map<RecordName, double> ways;
  for (const Extent& extent : extents) {
    const bool toLow = to == AlignTo::Left || to == AlignTo::Top;
    const bool toHigh = to == AlignTo::Right || to == AlignTo::Bottom;
    ways[extent.record] = toLow    ? low - extent.low
                          : toHigh ? high - extent.high
                                   : (low + high - extent.low - extent.high) / 2;
  }
  return shift(layout, axis, ways);
}

ChangeResult distributeSelection(Layout& layout, Axis axis) {
  if (!canDistribute(layout))
    return false;
  std::vector<Extent> extents = extentsOf(layout, axis);
  std::ranges::stable_sort(extents, {}, [](const Extent& e) { return e.low + e.high; });
  double covered = 0;
  for (const Extent& extent : extents)
    covered += extent.high - extent.low;
  const double gap = (extents.back().high - extents.front().low - covered) /
                     static_cast<double>(extents.size() - 1);
  std::map<RecordName, double> ways;
  double at = extents.front().low;
  for (const Extent& extent : extents) {
    ways[extent.record] = at - extent.low;
    at += extent.high - extent.low + gap;
  }
  return shift(layout, axis, ways);
}

} // namespace trassix
