// What the kinds of records have in common. Whoever treats all records alike walks the list of
// kinds, and asks of a kind what it has, not which one it is.
#pragma once

#include "document/limits.h"
#include "document/plan_content.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace trassix {

/// The collection of this type.
template <class Records, class Content>
auto& recordsOf(Content& content) {
  std::conditional_t<std::is_const_v<Content>, const Records, Records>* found = nullptr;
  forEachKind(content, [&found](auto& records) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(records)>, Records>)
      found = &records;
  });
  return *found;
}

/// Calls `visit` with the collections of both contents, kind by kind.
template <class Visit>
void forEachKindOfBoth(const PlanContent& a, const PlanContent& b, Visit visit) {
  forEachKind(a, [&](const auto& records) {
    visit(records, recordsOf<std::remove_cvref_t<decltype(records)>>(b));
  });
}

template <class Record>
concept Selectable = requires(Record& record) {
  record.sel = true;
};
template <class Record>
concept OnLevel = requires(Record& record) {
  record.level = 1;
};
/// Lies turned; others only lie somewhere.
template <class Record>
concept Posed = requires(Record& record) {
  record.x = record.y = record.heading;
};

/// Lies on the plan without a heading of its own; others are bodies that turn with the track.
template <class Record>
constexpr bool kIsNote =
    Record::kKind == RecordKind::Label || Record::kKind == RecordKind::Measurement;

/// Whether two records are the same but for being selected.
template <class Record>
bool sameButSelected(const Record& a, const Record& b) {
  if constexpr (Selectable<Record>) {
    if (a.sel != b.sel) {
      Record likewise = a;
      likewise.sel = b.sel;
      return likewise == b;
    }
  }
  return a == b;
}

/// The records of those kinds that can be selected, likewise.
template <class Content, class Visit>
void forEachSelectable(Content& content, Visit visit) {
  forEachKind(content, [&visit](auto& records) {
    if constexpr (Selectable<typename std::remove_cvref_t<decltype(records)>::value_type>)
      visit(records);
  });
}

/// The same of those that stand on levels.
template <class Content, class Visit>
void forEachOnLevels(Content& content, Visit visit) {
  forEachKind(content, [&visit](auto& records) {
    if constexpr (OnLevel<typename std::remove_cvref_t<decltype(records)>::value_type>)
      visit(records);
  });
}

/// Whether `holds` is true of any record that can be selected.
template <class Predicate>
bool anySelectable(const PlanContent& content, Predicate holds) {
  bool found = false;
  forEachSelectable(
      content, [&](const auto& records) { found = found || std::ranges::any_of(records, holds); });
  return found;
}

/// Every point of the plan that the record is made of: where it lies, its vertices, its ends. In
/// mm; none of a record that lies where others do.
template <class Record, class Visit>
void forEachPosition(const Record& record, Visit visit) {
  if constexpr (requires { record.points; })
    std::ranges::for_each(record.points, visit);
  else if constexpr (requires { record.from; }) {
    visit(record.from);
    visit(record.to);
  } else if constexpr (requires { record.cx; })
    visit(Point{record.cx, record.cy});
  else if constexpr (requires { record.x; })
    visit(Point{record.x, record.y});
}

/// Whether a plan can hold whatever the record has of positions, heights, headings, grades and
/// scales.
template <class Record>
requires requires {
  Record::kKind;
}
bool inLimits(const Record& record) {
  bool in = true;
  forEachPosition(record, [&in](Point p) { in = in && inLimits(p); });
  if constexpr (requires { record.z; })
    in = in && isLength(record.z) && std::isfinite(record.grade);
  if constexpr (requires { record.height; })
    in = in && isLength(record.height);
  if constexpr (requires { record.heading; })
    in = in && std::isfinite(record.heading);
  if constexpr (requires { record.scalex; })
    in = in && isScale(record.scalex) && isScale(record.scaley);
  return in;
}

/// Every text of the record that a file holds escaped.
template <class Record, class Visit>
void forEachText(Record& record, Visit visit) {
  if constexpr (requires { record.cat; })
    visit(record.cat);
  if constexpr (requires { record.item; })
    visit(record.item);
  if constexpr (requires { record.text; })
    visit(record.text);
  if constexpr (requires { record.label; })
    visit(record.label);
  if constexpr (requires { record.variant; })
    visit(record.variant);
}

/// Moves the record by a motion of points and poses, such as a `RigidMotion`.
template <class Record, class Motion>
void moveRecord(Record& record, const Motion& motion) {
  if constexpr (Posed<Record>) {
    const Pose pose = motion(Pose{record.x, record.y, record.heading});
    record.x = pose.x;
    record.y = pose.y;
    record.heading = pose.heading;
  } else if constexpr (requires { record.points; }) {
    for (Point& point : record.points)
      point = motion(point);
  } else if constexpr (requires { record.from; }) {
    record.from = motion(record.from);
    record.to = motion(record.to);
  } else if constexpr (requires { record.cx; }) {
    const Pose pose = motion(Pose{record.cx, record.cy, record.heading});
    record.cx = pose.x;
    record.cy = pose.y;
    record.heading = pose.heading;
  } else if constexpr (requires { record.x; }) {
    const Point at = motion(Point{record.x, record.y});
    record.x = at.x;
    record.y = at.y;
  }
}

} // namespace trassix
