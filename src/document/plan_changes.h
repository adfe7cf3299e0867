#pragma once

#include "document/layout.h"
#include "document/plan_content.h"

#include <array>
#include <cstdint>
#include <vector>

namespace trassix {

/// Ids, each list sorted. Only what is selected is no change.
struct ChangedIds {
  std::vector<std::int32_t> added;
  std::vector<std::int32_t> changed;
  std::vector<std::int32_t> removed;

  bool any() const { return !added.empty() || !changed.empty() || !removed.empty(); }
  bool operator==(const ChangedIds&) const = default;
};

/// By kind.
class PlanChanges {
 public:
  const ChangedIds& of(RecordKind kind) const { return ids_[static_cast<std::size_t>(kind)]; }
  ChangedIds& of(RecordKind kind) { return ids_[static_cast<std::size_t>(kind)]; }
  bool any() const;

 private:
  std::array<ChangedIds, kRecordKinds> ids_;
};

PlanChanges changesBetween(const PlanContent& before, const PlanContent& after);

/// Tells what became of a plan since it was asked last, whatever happened meanwhile: edits, undo,
/// redo, or another plan in its place. It compares, which takes about as long as copying the plan,
/// and only when the content's stamp has changed.
class ChangeTracker {
 public:
  /// At first everything has been added.
  PlanChanges update(const Layout& layout);

 private:
  PlanContent seen_;
  std::uint64_t stamp_ = 0;
};

} // namespace trassix
