#include "document/plan_changes.h"

#include <algorithm>
#include <unordered_map>

namespace trassix {

namespace {

template <class Record>
ChangedIds compare(const std::vector<Record>& before, const std::vector<Record>& after) {
  ChangedIds ids;
  // Most edits leave nearly all records where they are in the list.
  std::size_t alike = 0;
  const auto count = std::min(before.size(), after.size());
  while (alike < count && before[alike].id == after[alike].id) {
    if (!sameButSelected(before[alike], after[alike]))
      ids.changed.push_back(after[alike].id);
    ++alike;
  }
  std::unordered_map<std::int32_t, const Record*> rest;
  for (std::size_t i = alike; i < before.size(); ++i)
    rest.emplace(before[i].id, &before[i]);
  for (std::size_t i = alike; i < after.size(); ++i) {
    const auto found = rest.find(after[i].id);
    if (found == rest.end()) {
      ids.added.push_back(after[i].id);
      continue;
    }
    if (!sameButSelected(*found->second, after[i]))
      ids.changed.push_back(after[i].id);
    rest.erase(found);
  }
  for (const auto& [id, record] : rest)
    ids.removed.push_back(id);
  for (auto* list : {&ids.added, &ids.changed, &ids.removed})
    std::ranges::sort(*list);
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
    changes.of(Record::kKind) = compare(old, now);
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
