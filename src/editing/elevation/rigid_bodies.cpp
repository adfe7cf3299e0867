#include "editing/elevation/rigid_bodies.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/joining/joining.h"

#include <algorithm>
#include <map>
#include <utility>

namespace trassix {

RigidBodies::RigidBodies(const Layout& layout, std::span<const std::int32_t> changing) {
  std::map<std::int32_t, std::vector<std::uint32_t>> helices;
  const std::vector<PlacedPiece>& pieces = layout.pieces();
  for (std::uint32_t i = 0; i < pieces.size(); ++i)
    if (pieces[i].helix != -1)
      helices[pieces[i].helix].push_back(i);
  for (auto& [id, members] : helices)
    unite(std::move(members));
  for (const Tunnel& tunnel : layout.content().tunnels) {
    std::vector<std::int32_t> ids = tunnel.covers;
    ids.insert(ids.end(), {tunnel.portalA, tunnel.portalB});
    if (std::ranges::any_of(ids, [changing](std::int32_t id) { return containsId(changing, id); }))
      continue;
    std::vector<std::uint32_t> members;
    for (const std::int32_t id : ids)
      if (const PlacedPiece* piece = layout.findPiece(id))
        members.push_back(static_cast<std::uint32_t>(piece - pieces.data()));
    if (!members.empty())
      unite(std::move(members));
  }
  if (bodies_.empty())
    return;
  bodyOf_.assign(pieces.size(), -1);
  for (std::size_t i = 0; i < bodies_.size(); ++i)
    for (const std::uint32_t member : bodies_[i])
      bodyOf_[member] = static_cast<std::int32_t>(i);
}

/// Bodies that share a piece, such as two tunnels over one, become one.
void RigidBodies::unite(std::vector<std::uint32_t> members) {
  std::ranges::sort(members);
  members.erase(std::unique(members.begin(), members.end()), members.end());
  for (std::size_t i = 0; i < bodies_.size();) {
    std::vector<std::uint32_t> both;
    std::ranges::set_union(bodies_[i], members, std::back_inserter(both));
    if (both.size() == bodies_[i].size() + members.size()) {
      ++i;
      continue;
    }
    members = std::move(both);
    bodies_.erase(bodies_.begin() + static_cast<std::ptrdiff_t>(i));
  }
  bodies_.push_back(std::move(members));
}

std::span<const std::uint32_t> RigidBodies::membersWith(std::uint32_t position) const {
  if (bodyOf_.empty() || bodyOf_[position] == -1)
    return {};
  return bodies_[static_cast<std::size_t>(bodyOf_[position])];
}

} // namespace trassix
