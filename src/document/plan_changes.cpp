#include "document/plan_changes.h"

#include "document/record_kinds.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace trassix {

namespace {

/// Places in a collection by id.
using Places = std::unordered_map<std::int32_t, std::size_t>;

/// `before` and `after`: ids in the order of the collections; `same` compares the records at two
/// places.
ChangedIds compare(const std::vector<std::int32_t>& before, const std::vector<std::int32_t>& after,
                   const std::function<bool(std::size_t, std::size_t)>& same) {
  ChangedIds ids;
  // Most edits leave nearly all records where they are in the list.
  std::size_t alike = 0;
  for (; alike < std::min(before.size(), after.size()) && before[alike] == after[alike]; ++alike)
    if (!same(alike, alike))
      ids.changed.push_back(after[alike]);
  Places rest;
  for (std::size_t i = alike; i < before.size(); ++i)
    rest.emplace(before[i], i);
  for (std::size_t i = alike; i < after.size(); ++i) {
    const auto found = rest.find(after[i]);
    if (found == rest.end()) {
      ids.added.push_back(after[i]);
      continue;
    }
    if (!same(found->second, i))
      ids.changed.push_back(after[i]);
    rest.erase(found);
  }
  for (const auto& [id, place] : rest)
    ids.removed.push_back(id);
  for (auto* list : {&ids.added, &ids.changed, &ids.removed})
    std::ranges::sort(*list);
  return ids;
}

template <class Record>
std::vector<std::int32_t> idsOf(const std::vector<Record>& records) {
  std::vector<std::int32_t> ids;
  ids.reserve(records.size());
  for (const Record& record : records)
    ids.push_back(record.id);
  return ids;
}

} // namespace

bool PlanChanges::any() const {
  return std::ranges::any_of(ids_, [](const ChangedIds& ids) { return ids.any(); });
}

PlanChanges changesBetween(const PlanContent& before, const PlanContent& after) {
  PlanChanges changes;
  forEachKindOfBoth(before, after, [&changes](const auto& old, const auto& now) {
    using Record = typename std::remove_cvref_t<decltype(now)>::value_type;
    changes.of(Record::kKind) =
        compare(idsOf(old), idsOf(now), [&old, &now](std::size_t was, std::size_t is) {
          return sameButSelected(old[was], now[is]);
        });
  });
  return changes;
}

PlanChanges ChangeTracker::update(const Layout& layout) {
  if (stamp_ == layout.contentStamp())
    return {};
  stamp_ = layout.contentStamp();
  PlanChanges changes = changesBetween(seen_, layout.content());
  seen_ = layout.content();
  return changes;
}

} // namespace trassix
