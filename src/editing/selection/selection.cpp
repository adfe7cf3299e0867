#include "editing/selection/selection.h"

#include "document/helix_records.h"
#include "document/record_kinds.h"
#include "document/reselecting.h"
#include "document/undo_scope.h"
#include "editing/joining/joining.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/any_record.h"
#include "editing/selection/rigid_motion.h"
#include "editing/track/connector_geometry.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

namespace trassix {

namespace {

class BoxBuilder {
 public:
  void add(Point p) {
    box_.minX = std::min(box_.minX, p.x);
    box_.minY = std::min(box_.minY, p.y);
    box_.maxX = std::max(box_.maxX, p.x);
    box_.maxY = std::max(box_.maxY, p.y);
  }
  std::optional<Box> box() const {
    return box_.minX > box_.maxX ? std::nullopt : std::optional(box_);
  }

 private:
  static constexpr double kFar = std::numeric_limits<double>::max();
  Box box_{kFar, kFar, -kFar, -kFar};
};

void add(BoxBuilder& box, const Layout&, const PlacedPiece& piece) {
  box.add({piece.x, piece.y});
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr)
    return;
  for (const WorldConnector& end : WorldConnectorsOf(piece, *definition))
    box.add({end.x, end.y});
  if (definition->kind == PieceKind::Curve && definition->connectors.size() >= 2) {
    const double bow = (1 - std::cos(toRadians(definition->angle / 2))) * definition->radius;
    box.add(
        toWorld(poseOf(piece), {0.5 * definition->length, definition->angle >= 0 ? -bow : bow}));
  }
}

/// The footprint counts unturned; an item that the catalogue does not know is a point.
void add(BoxBuilder& box, const Layout& layout, const SceneryItem& item) {
  Footprint size{};
  if (findScenery(item.item) != nullptr)
    size = sceneryFootprint(layout, item);
  box.add({item.x - size.width / 2, item.y - size.depth / 2});
  box.add({item.x + size.width / 2, item.y + size.depth / 2});
}

void add(BoxBuilder& box, const Layout&, const auto& record) {
  forEachPosition(record, [&box](Point p) { box.add(p); });
}

std::optional<Notice> guard(const Layout& layout, std::span<const std::int32_t> pieces,
                            std::span<const std::int32_t> scenery, const std::string& verb) {
  std::unordered_set<std::int32_t> locked;
  for (const Tunnel& tunnel : layout.content().tunnels) {
    locked.insert(tunnel.covers.begin(), tunnel.covers.end());
    locked.insert({tunnel.portalA, tunnel.portalB});
  }
  locked.erase(-1);
  const auto isLocked = [&locked](std::int32_t id) { return locked.contains(id); };
  if (std::optional<Notice> notice = helixGuard(layout, pieces, verb))
    return notice;
  if (std::ranges::any_of(pieces, isLocked) || std::ranges::any_of(scenery, isLocked))
    return Notice{tr("Tunnel is locked"),
                  tr("Selection includes tunnel track or portals. Remove the tunnel first, then "
                     "%1%.",
                     {verb})};
  return std::nullopt;
}

/// Ids to remove, sorted: what is selected and the other pieces of pairs, where these can be seen
/// and are not locked.
std::vector<std::int32_t> doomedPieces(const Layout& layout) {
  const std::vector<std::int32_t> selected = selectedPieces(layout);
  std::vector<std::int32_t> ids = selected;
  for (const PiecePair& pair : layout.content().pairs) {
    const bool first = containsId(selected, pair.first);
    if (first == containsId(selected, pair.second))
      continue;
    const std::int32_t other = first ? pair.second : pair.first;
    const PlacedPiece* piece = layout.findPiece(other);
    if (piece != nullptr && layout.pieceVisible(*piece) &&
        !lockGuard(layout, std::span(&other, 1), "delete"))
      ids.push_back(other);
  }
  std::ranges::sort(ids);
  return ids;
}

} // namespace

bool hasSelection(const Layout& layout) {
  return anySelectable(layout.content(), [](const auto& record) { return record.sel; });
}

std::vector<std::int32_t> selectedPieces(const Layout& layout) {
  std::vector<std::int32_t> ids;
  for (const PlacedPiece& piece : layout.pieces())
    if (piece.sel)
      ids.push_back(piece.id);
  std::sort(ids.begin(), ids.end());
  return ids;
}

void selectOnly(Layout& layout, std::int32_t piece) {
  layout.clearSelection();
  layout.select(RecordKind::Piece, piece, true);
}

void selectAll(Layout& layout) {
  layout.reselect([&layout](const auto& record) { return isVisible(layout, record); });
}

void deselectHidden(Layout& layout) {
  layout.reselect(
      [&layout](const auto& record) { return record.sel && isVisible(layout, record); });
}

std::vector<std::int32_t> chainOf(const Layout& layout, std::int32_t piece) {
  std::vector<std::int32_t> chain;
  if (layout.findPiece(piece) == nullptr)
    return chain;
  std::unordered_set<std::int32_t> met{piece};
  chain.push_back(piece);
  for (std::size_t k = 0; k < chain.size(); ++k) {
    const PlacedPiece& from = *layout.findPiece(chain[k]);
    for (std::size_t i = 0; i < from.joints.size(); ++i)
      if (const PlacedPiece* next = joinedPiece(layout, from, i);
          next != nullptr && met.insert(next->id).second)
        chain.push_back(next->id);
  }
  std::sort(chain.begin(), chain.end());
  return chain;
}

std::optional<Box> selectionBox(const Layout& layout) {
  BoxBuilder box;
  forEachSelectable(layout.content(), [&](const auto& records) {
    if constexpr (!kIsNote<typename std::remove_cvref_t<decltype(records)>::value_type>)
      for (const auto& record : records)
        if (record.sel)
          add(box, layout, record);
  });
  return box.box();
}

ChangeResult rotateSelection(Layout& layout, double degrees) {
  const std::optional<Box> box = selectionBox(layout);
  if (!box || isStill({}, {0, 0, degrees}))
    return false;
  const Point centre{(box->minX + box->maxX) / 2, (box->minY + box->maxY) / 2};
  const RigidMotion motion{centre, {centre.x, centre.y, degrees}};
  if (!staysInLimits(layout.content(), motion))
    return beyondPlan();
  UndoScope step(layout);
  const std::vector<std::int32_t> pieces = selectedPieces(layout);
  detach(layout, pieces);
  moveSelectedBodies(layout.edit(), motion);
  closeMeetingEnds(layout, pieces, MeetingPlay::none());
  return step.keep();
}

namespace {

std::vector<std::int32_t> selectedScenery(const Layout& layout) {
  std::vector<std::int32_t> scenery;
  for (const SceneryItem& item : layout.content().scenery)
    if (item.sel)
      scenery.push_back(item.id);
  return scenery;
}

} // namespace

std::optional<Notice> lockGuard(const Layout& layout, const std::string& verb) {
  return guard(layout, selectedPieces(layout), selectedScenery(layout), verb);
}

std::optional<Notice> moveGuard(const Layout& layout, const std::string& verb) {
  std::vector<std::int32_t> pieces = selectedPieces(layout);
  const std::vector<std::int32_t> whole = selectedHelices(layout.content());
  std::erase_if(pieces,
                [&](std::int32_t id) { return containsId(whole, layout.findPiece(id)->helix); });
  return guard(layout, pieces, selectedScenery(layout), verb);
}

std::optional<Notice> lockGuard(const Layout& layout, std::span<const std::int32_t> pieces,
                                const std::string& verb) {
  return guard(layout, pieces, {}, verb);
}

std::optional<Notice> helixGuard(const Layout& layout, std::span<const std::int32_t> pieces,
                                 const std::string& verb) {
  const bool inHelix = std::ranges::any_of(pieces, [&layout](std::int32_t id) {
    const PlacedPiece* piece = layout.findPiece(id);
    return piece != nullptr && piece->helix != -1;
  });
  if (!inHelix)
    return std::nullopt;
  return Notice{tr("Helix track is locked"),
                tr("Selection includes track that is part of a helix. Helix track cannot be "
                   "%1%ed individually.",
                   {verb})};
}

bool selectionHasGrades(const Layout& layout) {
  return std::any_of(layout.pieces().begin(), layout.pieces().end(),
                     [](const PlacedPiece& piece) { return piece.sel && isGraded(piece); });
}

void selectPartners(Layout& layout) {
  for (const std::int32_t id : doomedPieces(layout))
    layout.select(RecordKind::Piece, id, true);
}

void removePieces(PlanContent& content, std::span<const std::int32_t> ids) {
  std::erase_if(content.pieces,
                [ids](const PlacedPiece& piece) { return containsId(ids, piece.id); });
  for (PlacedPiece& piece : content.pieces)
    for (Joint& joint : piece.joints)
      if (containsId(ids, joint.target))
        joint = {};
  for (Tunnel& tunnel : content.tunnels)
    std::erase_if(tunnel.covers, [ids](std::int32_t id) { return containsId(ids, id); });
  std::erase_if(content.pairs, [ids](const PiecePair& pair) {
    return containsId(ids, pair.first) || containsId(ids, pair.second);
  });
  if (std::erase_if(content.gradeRuns,
                    [ids](const GradeRun& run) { return containsId(ids, run.anchor); }) != 0)
    content.mirrorLastGradeRun();
}

bool deleteSelection(Layout& layout) {
  if (!hasSelection(layout))
    return false;
  UndoScope step(layout);
  const std::vector<std::int32_t> doomed = doomedPieces(layout);
  PlanContent& content = layout.edit();
  removePieces(content, doomed);
  forEachSelectable(content, [](auto& records) {
    std::erase_if(records, [](const auto& record) { return record.sel; });
  });
  return step.keep();
}

} // namespace trassix
