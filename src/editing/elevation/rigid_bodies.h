// Track that is lifted as a whole.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace trassix {

class Layout;

/// The helices of a plan, and its tunnels with their portals, by positions in the list of pieces.
/// Turntables and their tracks are joined and need no body.
class RigidBodies {
 public:
  /// Tunnels over one of the `changing` pieces (sorted ids) are no bodies.
  RigidBodies(const Layout& layout, std::span<const std::int32_t> changing);

  /// The other members of the piece's body; none when it is part of none.
  std::span<const std::uint32_t> membersWith(std::uint32_t position) const;

 private:
  void unite(std::vector<std::uint32_t> members);

  std::vector<std::vector<std::uint32_t>> bodies_;
  std::vector<std::int32_t> bodyOf_; ///< empty when there are none
};

} // namespace trassix
