// Finding what lies where on a plan, at a cost that does not depend on the plan's size.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "geometry/box.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace trassix {

/// Derived from a plan as it was at one `Layout::documentStamp`. Results are positions in
/// `Layout::pieces()`, in drawing order (lower levels first, on each the track that others lead
/// over, else document order) unless said otherwise.
/// Pieces that do not show are left out.
class PlanIndex {
 public:
  PlanIndex();
  explicit PlanIndex(const Layout& layout);
  ~PlanIndex();
  PlanIndex(PlanIndex&&) noexcept;
  PlanIndex& operator=(PlanIndex&&) noexcept;

  std::uint64_t stamp() const;

  /// Pieces whose track bed, widened by `tolerance` mm, holds the point; topmost first.
  std::vector<std::size_t> hits(Point at, double tolerance) const;

  /// Pieces that the box touches, or with `whole` those that lie in it with all of their bed.
  std::vector<std::size_t> inBox(const Box& box, bool whole) const;

  /// The definition of the piece at a position, null when its article is unknown.
  const PieceDef* definition(std::size_t position) const;

  /// Track of one level that leads over other track of it is in a higher storey.
  std::int64_t storey(std::size_t position) const;

 private:
  struct Data;
  std::unique_ptr<Data> data_;
};

} // namespace trassix
