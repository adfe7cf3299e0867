#include "editing/selection/plan_index.h"

#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/piece_outline.h"
#include "geometry/box_tree.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace trassix {

namespace {

Box widened(const Box& box, double margin) {
  return {box.minX - margin, box.minY - margin, box.maxX + margin, box.maxY + margin};
}

/// Track that leads over other track lies in another storey. None begins at a whole or half
/// millimetre, where heights are usual, so that rounding moves nothing up or down.
std::int64_t storeyOf(const PlacedPiece& piece, const PieceDef* definition) {
  double lowest = piece.z;
  if (definition != nullptr && isGraded(piece))
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition->connectors.size()); ++i)
      lowest = std::min(lowest, endHeight(piece, *definition, i));
  return std::llround(lowest / kDeckThickness + 0.137);
}

constexpr double kRounding = 1e-6; // mm, more than the boxes' corners are off

/// True when a piece with these bounds certainly lies in the box.
bool encloses(const Box& box, const Box& bounds) {
  return bounds.minX >= box.minX + kRounding && bounds.maxX <= box.maxX - kRounding &&
         bounds.minY >= box.minY + kRounding && bounds.maxY <= box.maxY - kRounding;
}

} // namespace

struct PlanIndex::Data {
  struct Entry {
    const PieceDef* definition = nullptr;
    const PieceOutline* outline = nullptr;
    Pose pose;
    std::int64_t storey = 0;
    std::uint32_t order = 0; ///< place in drawing order
  };

  std::uint64_t stamp = 0;
  std::vector<Entry> entries; // by position in the document
  BoxTree tree;

  /// Positions whose box meets `box` and that pass `test(entry, its box)`, in drawing order.
  template <class Test>
  std::vector<std::size_t> find(const Box& box, Test test) const {
    std::vector<std::size_t> found;
    tree.query(box, [&](const BoxTree::Entry& entry) {
      if (test(entries[entry.second], entry.first))
        found.push_back(entry.second);
    });
    std::sort(found.begin(), found.end(),
              [this](std::size_t a, std::size_t b) { return entries[a].order < entries[b].order; });
    return found;
  }
};

PlanIndex::PlanIndex() : data_(std::make_unique<Data>()) {}
PlanIndex::~PlanIndex() = default;
PlanIndex::PlanIndex(PlanIndex&&) noexcept = default;
PlanIndex& PlanIndex::operator=(PlanIndex&&) noexcept = default;

PlanIndex::PlanIndex(const Layout& layout) : data_(std::make_unique<Data>()) {
  const std::vector<PlacedPiece>& pieces = layout.pieces();
  data_->stamp = layout.documentStamp();
  data_->entries.resize(pieces.size());
  std::vector<BoxTree::Entry> boxes;
  boxes.reserve(pieces.size());
  std::vector<std::pair<double, std::int64_t>> heights(pieces.size());
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const PlacedPiece& piece = pieces[i];
    const PieceDef* definition = definitionOf(piece);
    data_->entries[i] = {definition, &outlineOf(definition), poseOf(piece),
                         storeyOf(piece, definition), 0};
    heights[i] = {layout.levelHeight(piece.level), data_->entries[i].storey};
    if (!layout.pieceVisible(piece) || !std::isfinite(piece.x) || !std::isfinite(piece.y) ||
        !std::isfinite(piece.heading))
      continue;
    boxes.emplace_back(boundsOf(*data_->entries[i].outline, poseOf(piece)),
                       static_cast<std::uint32_t>(i));
  }
  std::vector<std::uint32_t> drawn(pieces.size());
  std::iota(drawn.begin(), drawn.end(), 0U);
  std::stable_sort(drawn.begin(), drawn.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return heights[a] < heights[b]; });
  for (std::uint32_t order = 0; order < drawn.size(); ++order)
    data_->entries[drawn[order]].order = order;
  data_->tree = BoxTree(boxes);
}

std::uint64_t PlanIndex::stamp() const {
  return data_->stamp;
}

std::vector<std::size_t> PlanIndex::hits(Point at, double tolerance) const {
  std::vector<std::size_t> found =
      data_->find(widened({at.x, at.y, at.x, at.y}, tolerance + kRounding),
                  [&](const Data::Entry& entry, const Box&) {
                    return covers(*entry.outline, entry.pose, at, tolerance);
                  });
  std::reverse(found.begin(), found.end());
  return found;
}

std::vector<std::size_t> PlanIndex::inBox(const Box& box, bool whole) const {
  return data_->find(widened(box, kRounding), [&](const Data::Entry& entry, const Box& bounds) {
    if (encloses(box, bounds))
      return true;
    return whole ? liesIn(*entry.outline, entry.pose, box)
                 : touches(*entry.outline, entry.pose, box);
  });
}

const PieceDef* PlanIndex::definition(std::size_t position) const {
  return position < data_->entries.size() ? data_->entries[position].definition : nullptr;
}

std::int64_t PlanIndex::storey(std::size_t position) const {
  return position < data_->entries.size() ? data_->entries[position].storey : 0;
}

} // namespace trassix
