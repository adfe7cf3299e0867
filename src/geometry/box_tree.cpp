#include "geometry/box_tree.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>

namespace trassix {

namespace {

namespace bg = boost::geometry;

using TreePoint = bg::model::d2::point_xy<double>;
using TreeBox = bg::model::box<TreePoint>;

TreeBox treeBox(const Box& box) {
  return {{box.minX, box.minY}, {box.maxX, box.maxY}};
}

} // namespace

struct BoxTree::Tree {
  bg::index::rtree<std::pair<TreeBox, std::uint32_t>, bg::index::rstar<16>> boxes;
};

BoxTree::BoxTree() : tree_(std::make_unique<Tree>()) {}
BoxTree::~BoxTree() = default;
BoxTree::BoxTree(BoxTree&&) noexcept = default;
BoxTree& BoxTree::operator=(BoxTree&&) noexcept = default;

BoxTree::BoxTree(const std::vector<Entry>& entries) : tree_(std::make_unique<Tree>()) {
  std::vector<std::pair<TreeBox, std::uint32_t>> boxes;
  boxes.reserve(entries.size());
  for (const auto& [box, number] : entries)
    boxes.emplace_back(treeBox(box), number);
  tree_->boxes = decltype(tree_->boxes)(boxes);
}

void BoxTree::query(const Box& box, const std::function<void(const Entry&)>& visit) const {
  const auto& boxes = tree_->boxes;
  for (auto it = boxes.qbegin(bg::index::intersects(treeBox(box))); it != boxes.qend(); ++it) {
    const TreeBox& found = it->first;
    visit({{found.min_corner().x(), found.min_corner().y(), found.max_corner().x(),
            found.max_corner().y()},
           it->second});
  }
}

} // namespace trassix
