#include "panels/tally.h"

#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/supports/pier_stacks.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "editing/track/track_geometry.h"
#include "panels/palette_model.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <unordered_map>

namespace trassix {

namespace {

/// What counting needs of an article, looked up once however often it is placed.
struct Article {
  const PieceDef* piece = nullptr;
  const TrackGeometry* geometry = nullptr;
  double length = 0;
  std::int32_t placed = 0;
};

Article describe(const PieceDef* piece) {
  if (piece == nullptr) {
    return {};
  }
  const std::vector<Route>& routes = routesOf(*piece);
  return {piece, &trackGeometryOf(*piece), routes.empty() ? 0 : routeLength(routes.front())};
}

std::int32_t openEndsOf(const PlacedPiece& placed, const PieceDef& piece) {
  if (piece.kind == PieceKind::Turntable) {
    return 0;
  }
  std::int32_t open = 0;
  for (std::size_t i = 0; i < piece.connectors.size(); ++i) {
    open += placed.joint(i).open() ? 1 : 0;
  }
  return open;
}

class ExtentFinder {
 public:
  /// Most pieces lie wholly inside what the others cover, which their circle tells.
  void add(const Pose& pose, const TrackGeometry& geometry) {
    const PoseFrame frame(pose);
    const Point centre = frame(geometry.centre);
    if (centre.x - geometry.radius >= box_.minX && centre.x + geometry.radius <= box_.maxX &&
        centre.y - geometry.radius >= box_.minY && centre.y + geometry.radius <= box_.maxY) {
      return;
    }
    for (const std::vector<Point>& bed : geometry.beds) {
      for (const Point& corner : bed) {
        const Point at = frame(corner);
        box_.minX = std::min(box_.minX, at.x);
        box_.minY = std::min(box_.minY, at.y);
        box_.maxX = std::max(box_.maxX, at.x);
        box_.maxY = std::max(box_.maxY, at.y);
      }
    }
  }

  std::optional<Box> box() const {
    return box_.minX <= box_.maxX ? std::optional(box_) : std::nullopt;
  }

 private:
  static constexpr double kFar = std::numeric_limits<double>::infinity();
  Box box_{kFar, kFar, -kFar, -kFar};
};

TallyRow rowOf(const Article& article) {
  const std::int32_t placed = article.placed;
  const std::int32_t sold = article.piece->pair ? (placed + 1) / 2 : placed;
  return {article.piece->system, article.piece->article, article.piece->name, placed, sold,
          TallySection::Pieces};
}

/// Whether a look at all supports is worth its while.
bool mayBeRaised(const Layout& layout) {
  const auto high = [](const PlacedPiece& piece) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || (piece.grade == 0 && piece.z <= kRaised))
      return false;
    for (const Connector& end : definition->connectors)
      if (endHeight(piece, *definition, end.id) > kRaised)
        return true;
    return false;
  };
  const auto low = [](const Level& level) { return level.height < 0 && !level.outline.empty(); };
  return std::ranges::any_of(layout.settings().levels, low) ||
         std::ranges::any_of(layout.pieces(), high);
}

void addSupports(const Layout& layout, Tally& tally) {
  const std::vector<SupportPart> parts = supportParts(layout, supportsOf(layout));
  if (parts.empty())
    return;
  tally.rows.push_back({std::nullopt, {}, tr("Supports"), 0, 0, TallySection::SupportsHeading});
  for (const SupportPart& part : parts)
    tally.rows.push_back({part.system,
                          {},
                          nameOf(part, layout.settings().units),
                          part.count,
                          part.count,
                          TallySection::Supports});
}

} // namespace

Tally tallyOf(const Layout& layout) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  Tally tally;
  ExtentFinder extent;
  std::unordered_map<std::string_view, Article> articles; // keys live in the plan
  for (const PlacedPiece& placed : layout.pieces()) {
    const auto [entry, isNew] = articles.try_emplace(placed.cat);
    Article& article = entry->second;
    if (isNew) {
      article = describe(catalog.find(placed.cat));
    }
    ++article.placed;
    ++tally.pieces;
    if (article.piece != nullptr) {
      tally.trackLength += article.length;
      tally.openEnds += openEndsOf(placed, *article.piece);
      extent.add(poseOf(placed), *article.geometry);
    }
  }
  tally.extent = extent.box();

  std::unordered_map<const PieceDef*, std::int32_t> counts;
  for (const auto& [cat, article] : articles) {
    if (article.piece != nullptr) {
      counts[article.piece] += article.placed;
    }
  }
  for (const TrackSystem system : paletteSystems()) {
    for (std::int32_t i = 0; i < catalog.count(); ++i) {
      const PieceDef* piece = catalog.at(i);
      if (piece->system != system) {
        continue;
      }
      if (const auto count = counts.find(piece); count != counts.end()) {
        tally.rows.push_back(rowOf({piece, nullptr, 0, count->second}));
      }
    }
  }
  const auto known = static_cast<std::ptrdiff_t>(tally.rows.size());
  for (const auto& [cat, article] : articles) {
    if (article.piece == nullptr) {
      tally.rows.push_back({std::nullopt,
                            std::string(cat),
                            {},
                            article.placed,
                            article.placed,
                            TallySection::Pieces});
    }
  }
  std::sort(tally.rows.begin() + known, tally.rows.end(),
            [](const TallyRow& a, const TallyRow& b) { return a.article < b.article; });
  if (mayBeRaised(layout))
    addSupports(layout, tally);
  return tally;
}

} // namespace trassix
