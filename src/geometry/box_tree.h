#pragma once

#include "geometry/box.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace trassix {

/// Finds boxes by where they are, in a time that hardly grows with their number.
class BoxTree {
 public:
  using Entry = std::pair<Box, std::uint32_t>; ///< a box and whatever number goes with it

  BoxTree();
  explicit BoxTree(const std::vector<Entry>& entries);
  ~BoxTree();
  BoxTree(BoxTree&&) noexcept;
  BoxTree& operator=(BoxTree&&) noexcept;

  /// Calls `visit` with each entry whose box meets `box`, in no order.
  void query(const Box& box, const std::function<void(const Entry&)>& visit) const;

 private:
  struct Tree;

  std::unique_ptr<Tree> tree_;
};

} // namespace trassix
