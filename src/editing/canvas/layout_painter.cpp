#include "editing/canvas/layout_painter.h"

#include "document/record_kinds.h"
#include "editing/canvas/grade_painter.h"
#include "editing/canvas/grid_steps.h"
#include "editing/canvas/helix_painter.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/record_pictures.h"
#include "editing/canvas/scenery/scenery_painter.h"
#include "editing/elevation/end_heights.h"
#include "editing/levels/decks.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/any_record.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace trassix {

namespace {

constexpr double kGridFromPx = 9; ///< lines of the grid are at least this far apart

constexpr double kStrokeReachPx = 4; ///< of the widest edge and its joins
constexpr double kDotReachPx = 9;    ///< of the mark of an open end
constexpr double kShadowReach = 60;  ///< mm, of the longest shadow

Rgba bedColor(const PlanTheme& theme, const Layout& layout, const PlacedPiece& piece,
              const PieceDef& definition) {
  if (piece.hasColor)
    return theme.area(piece.color);
  if (const Level* level = layout.findLevel(piece.level); level && level->trackcolor)
    return theme.area(level->color);
  return opaque(theme.bedOf(definition));
}

/// By the middle of its main way.
bool liesBeneath(const Decks& decks, const PlacedPiece& piece, const PieceDef& definition) {
  if (decks.empty())
    return false;
  double highest = piece.z;
  if (isGraded(piece))
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition.connectors.size()); ++i)
      highest = std::max(highest, endHeight(piece, definition, i));
  return decks.cover(toWorld(poseOf(piece), trackGeometryOf(definition).labelSpot), piece.level,
                     highest);
}

std::string groupName(RecordKind kind) {
  switch (kind) {
  case RecordKind::Shape:
    return tr("Shapes");
  case RecordKind::Helix:
    return tr("Helices");
  case RecordKind::Tunnel:
    return tr("Tunnels");
  case RecordKind::Measurement:
    return tr("Dimensions");
  default:
    return tr("Labels");
  }
}

} // namespace

bool LayoutPainter::isFaded(const Layout& layout, std::int32_t level) const {
  return !options_.levelsAlike && level != layout.settings().activeLevel &&
         layout.findLevel(level) != nullptr;
}

struct LayoutPainter::Visible {
  const PlacedPiece* piece;
  const PieceDef* definition;
  PiecePainter::Shape shape;
  PieceLook look;
  std::int64_t storey = 0;

  bool besides(const Visible& other) const {
    return piece->level == other.piece->level && storey == other.storey;
  }
};

LayoutPainter::LayoutPainter(Surface& surface, SizePx size, const ViewTransform& view,
                             const PaintOptions& options)
    : surface_(surface), size_(size),
      part_(options.part.value_or(Box{0, 0, size.width, size.height})), view_(view),
      options_(options), theme_(*options.theme) {}

void LayoutPainter::paint(const Layout& layout, const PlanIndex& index) {
  if (options_.desk) {
    const std::array<Point, 4> sheet{{{part_.minX, part_.minY},
                                      {part_.maxX, part_.minY},
                                      {part_.maxX, part_.maxY},
                                      {part_.minX, part_.maxY}}};
    surface_.polygon(sheet, layout.settings().baseboard.size() < 3 ? theme_.board : theme_.desk,
                     {});
  }
  paintBoard(layout);
  if (options_.grid)
    paintGrid(layout.settings().units);
  const PictureSite site{surface_, part_, view_, layout, theme_, options_.selection};
  forEachKind(layout.content(), [&](const auto& records) {
    constexpr RecordKind kind = std::remove_cvref_t<decltype(records)>::value_type::kKind;
    if constexpr (kind == RecordKind::Piece) {
      paintTrackAndScenery(layout, index);
    } else if constexpr (kind != RecordKind::Scenery) {
      const SurfaceGroup group(surface_, groupName(kind));
      for (const auto& record : records)
        if (isVisible(layout, record))
          paintRecord(site, record);
    }
  });
  if (options_.scaleBar) {
    paintScaleBar(layout.settings().units);
    paintLegend(layout);
  }
}

void LayoutPainter::paintLegend(const Layout& layout) {
  if (options_.grades)
    GradePainter(surface_, view_, layout, theme_).paintLegend(size_);
}

void LayoutPainter::paintBoard(const Layout& layout) {
  const SurfaceGroup group(surface_, tr("Baseboard and levels"));
  const PlanSettings& settings = layout.settings();
  if (settings.baseboard.size() >= 3)
    surface_.polygon(view_.toScreen(settings.baseboard), theme_.board,
                     Stroke{theme_.boardEdge, 1.5});
  for (const Level& level : settings.levels) {
    if (!level.visible || level.outline.size() < 3)
      continue;
    const bool active = !isFaded(layout, level.id);
    const std::optional<Rgba> tint =
        theme_.fills ? std::optional(opaque(level.color, active ? 60 : 28)) : std::nullopt;
    surface_.polygon(view_.toScreen(level.outline), tint,
                     Stroke{theme_.line(level.color), active ? 2.0 : 1.0, Stroke::Style::Dashed});
  }
}

void LayoutPainter::paintGrid(std::int32_t units) {
  const SurfaceGroup group(surface_, tr("Grid"));
  const GridSteps steps = gridSteps(view_.zoom(), units, kGridFromPx);
  const Box shown = shownBox(1);
  std::vector<Point> fine;
  std::vector<Point> coarse;
  const auto lines = [&](double from, double to, auto add) {
    const auto last = static_cast<std::int64_t>(std::floor(to / steps.fine));
    for (auto i = static_cast<std::int64_t>(std::ceil(from / steps.fine)); i <= last; ++i)
      add(i % steps.major == 0 ? coarse : fine, static_cast<double>(i) * steps.fine);
  };
  // On the middles of the display's pixels thin lines are crisp.
  const double scale = surface_.deviceScale();
  const auto crisp = [scale](double px) { return (std::floor(px * scale) + 0.5) / scale; };
  lines(shown.minX, shown.maxX, [&](std::vector<Point>& to, double mm) {
    const double x = crisp(view_.toScreen({mm, 0}).x);
    to.insert(to.end(), {{x, part_.minY}, {x, part_.maxY}});
  });
  lines(shown.minY, shown.maxY, [&](std::vector<Point>& to, double mm) {
    const double y = crisp(view_.toScreen({0, mm}).y);
    to.insert(to.end(), {{part_.minX, y}, {part_.maxX, y}});
  });
  surface_.segments(fine, {theme_.gridFine, 1});
  surface_.segments(coarse, {theme_.gridCoarse, 1});
}

void LayoutPainter::paintScaleBar(std::int32_t units) {
  const ScaleLength bar = scaleLength(view_.zoom(), units, 160);
  const double width = bar.mm * view_.zoom();
  const double left = 16.5;
  const double base = size_.height - 16.5;
  const std::array<Point, 4> line{
      {{left, base - 6}, {left, base}, {left + width, base}, {left + width, base - 6}}};
  // Readable whatever lies below.
  const std::array<Point, 4> ground{{{left - 6, base - 21},
                                     {left + width + 6, base - 21},
                                     {left + width + 6, base + 5},
                                     {left - 6, base + 5}}};
  surface_.polygon(ground, withAlpha(theme_.plate, 150), {});
  surface_.polyline(line, {theme_.ruler, 1.5});
  surface_.text(bar.text, {left + width / 2, base - 11}, 0, {theme_.ruler, 11, false});
}

/// What stands in view, brought onto the picture level by level with the track.
class LayoutPainter::SceneryOfLevels {
 public:
  SceneryOfLevels(const LayoutPainter& picture, const Layout& layout, const Decks& decks)
      : surface_(picture.surface_), painter_(picture.surface_, picture.view_, picture.theme_) {
    const Box shown = picture.shownBox(kStrokeReachPx);
    for (const SceneryItem& item : layout.content().scenery) {
      if (!layout.levelVisible(item.level))
        continue;
      const Footprint size = sceneryFootprint(layout, item);
      const double reach = std::hypot(size.width, size.depth) / 2 + kShadowReach;
      if (item.x + reach < shown.minX || item.x - reach > shown.maxX ||
          item.y + reach < shown.minY || item.y - reach > shown.maxY)
        continue;
      Standing standing{layout.levelHeight(item.level), SceneryPainter::itemOf(layout, item)};
      standing.item.faded = picture.isFaded(layout, item.level);
      standing.item.beneath = decks.cover({item.x, item.y}, item.level, standing.height);
      all_.push_back(std::move(standing));
    }
    std::ranges::stable_sort(all_, {}, &Standing::height);
  }

  /// Before the track at this height: what is under it, and all that is lower.
  void paintUnder(double height) {
    while (under_ < all_.size() && all_[under_].height <= height) {
      paintOver(all_[under_].height, false);
      const SurfaceGroup group(surface_, tr("Scenery"));
      const std::span<const SceneryPainter::Item> level = levelFrom(under_);
      painter_.paint(level, SceneryLayer::Ground);
      painter_.paint(level, SceneryLayer::Standing);
      under_ += level.size();
    }
  }
  /// What spans track that is lower than this, or that is also as high.
  void paintOver(double height, bool alsoThere) {
    while (over_ < under_ &&
           (all_[over_].height < height || (alsoThere && all_[over_].height == height))) {
      const SurfaceGroup group(surface_, tr("Scenery"));
      const std::span<const SceneryPainter::Item> level = levelFrom(over_);
      painter_.paint(level, SceneryLayer::Over);
      over_ += level.size();
    }
  }
  void paintRest() {
    constexpr double kAbove = std::numeric_limits<double>::infinity();
    paintUnder(kAbove);
    paintOver(kAbove, true);
  }

 private:
  struct Standing {
    double height = 0; ///< of its level
    SceneryPainter::Item item;
  };

  std::span<const SceneryPainter::Item> levelFrom(std::size_t from) {
    level_.clear();
    for (std::size_t i = from; i < all_.size() && all_[i].height == all_[from].height; ++i)
      level_.push_back(all_[i].item);
    return level_;
  }

  Surface& surface_;
  SceneryPainter painter_;
  std::vector<Standing> all_; ///< from low to high
  std::vector<SceneryPainter::Item> level_;
  std::size_t under_ = 0; ///< that are drawn under the track
  std::size_t over_ = 0;  ///< whose parts over it are drawn as well
};

bool LayoutPainter::isLeftOut(std::int32_t piece) const {
  return std::ranges::binary_search(options_.leftOut, piece);
}

/// Positions of selected pieces, those in view among them.
std::vector<std::size_t> LayoutPainter::selectedTrack(const Layout& layout,
                                                      const PlanIndex& index) const {
  constexpr std::size_t kFew = 100; // to look for what is in view would take longer
  std::vector<std::size_t> selected;
  for (std::size_t i = 0; i < layout.pieces().size() && selected.size() <= kFew; ++i)
    if (layout.pieces()[i].sel && layout.pieceVisible(layout.pieces()[i]))
      selected.push_back(i);
  if (selected.size() <= kFew)
    return selected;
  selected = index.inBox(shownBox(kDotReachPx), false);
  std::erase_if(selected, [&](std::size_t position) { return !layout.pieces()[position].sel; });
  return selected;
}

std::vector<LayoutPainter::Visible>
LayoutPainter::visibleTrack(const Layout& layout, const PlanIndex& index, const HelixRings& rings,
                            std::span<const std::size_t> positions) {
  const PiecePainter painter(surface_, view_, theme_);
  const Decks decks(layout);
  std::vector<Visible> shown;
  for (const std::size_t position : positions) {
    const PlacedPiece& piece = layout.pieces()[position];
    const PieceDef* definition = index.definition(position);
    if (isLeftOut(piece.id) || rings.hide(piece))
      continue;
    if (!definition) {
      paintUnknown(piece);
      continue;
    }
    PieceLook look;
    look.bed = bedColor(theme_, layout, piece, *definition);
    look.rails = options_.rails;
    look.sleepers = options_.rails && theme_.fills;
    look.beneath = layout.isCovered(piece.id) || liesBeneath(decks, piece, *definition);
    look.faded = isFaded(layout, piece.level);
    if (definition->ramp && isGraded(piece))
      look.climb = endHeight(piece, *definition, 1) > endHeight(piece, *definition, 0) ? 1 : -1;
    if (piece.sel && options_.selection)
      look.accent = theme_.selected;
    shown.push_back(
        {&piece, definition, painter.shapeOf(*definition), look, index.storey(position)});
  }
  return shown;
}

void LayoutPainter::paintTrackAndScenery(const Layout& layout, const PlanIndex& index) {
  const HelixRings rings(layout);
  const std::vector<Visible> track =
      visibleTrack(layout, index, rings, index.inBox(shownBox(kDotReachPx), false));
  SceneryOfLevels scenery(*this, layout, Decks(layout));
  PiecePainter painter(surface_, view_, theme_);
  std::vector<PiecePainter::Piece> pieces;
  // One storey after the other, beds before rails: joined beds read as one, and what leads over
  // other track hides it.
  for (std::size_t from = 0; from < track.size();) {
    std::size_t to = from;
    while (to < track.size() && track[to].besides(track[from]))
      ++to;
    const Level* level = layout.findLevel(track[from].piece->level);
    const SurfaceGroup levelGroup(surface_, level ? level->name : "");
    const double height = layout.levelHeight(track[from].piece->level);
    scenery.paintOver(height, false);
    scenery.paintUnder(height);
    const SurfaceGroup trackGroup(surface_, tr("Track"));
    pieces.clear();
    for (std::size_t i = from; i < to; ++i)
      pieces.push_back({track[i].shape, poseOf(*track[i].piece), track[i].look});
    painter.paintBeds(pieces);
    painter.paintRails(pieces);
    painter.paintAccents(pieces);
    if (options_.labels)
      paintJoinDots(layout, std::span(track).subspan(from, to - from));
    from = to;
  }
  scenery.paintRest();
  if (options_.selection)
    for (const SceneryItem& item : layout.content().scenery)
      if (item.sel && layout.levelVisible(item.level))
        paintSelected(PictureSite{surface_, part_, view_, layout, theme_}, item);
  paintTexts(layout, index, rings, track, paintOnRings(layout, rings));
}

void LayoutPainter::paintUnknown(const PlacedPiece& piece) {
  // Its article is in no catalogue here: it is shown where it lies so that it can be found and
  // removed.
  const Point at = view_.toScreen({piece.x, piece.y});
  const std::array<Point, 4> box{
      {{at.x - 7, at.y - 7}, {at.x + 7, at.y - 7}, {at.x + 7, at.y + 7}, {at.x - 7, at.y + 7}}};
  surface_.polygon(box, theme_.paper,
                   Stroke{piece.sel && options_.selection ? theme_.selected : theme_.openEnd, 2});
  surface_.text("?", at, 0, {theme_.article, 11, true});
  if (options_.labels)
    surface_.text(piece.cat, {at.x, at.y + 16}, 0, {theme_.article, 10.5, false});
}

void LayoutPainter::paintJoinDots(const Layout& layout, std::span<const Visible> pieces) {
  for (const Visible& shown : pieces) {
    const double reach = shown.shape.geometry.halfWidth * view_.zoom();
    const double radius = std::clamp(reach * 0.3, 2.0, 6.0);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(shown.definition->connectors.size());
         ++i) {
      const WorldConnector end = ConnectorToWorld(*shown.piece, *shown.definition, i);
      const Point at = view_.toScreen({end.x, end.y});
      if (end.free) {
        // The unused tracks of a turntable wait for nothing.
        if (shown.definition->kind == PieceKind::Turntable)
          continue;
        surface_.circle(at, radius, theme_.paper, Stroke{theme_.openEnd, 2});
        continue;
      }
      // A joint belongs to two pieces and gets one dot.
      const std::int32_t other = shown.piece->joint(static_cast<std::size_t>(i)).target;
      if (reach >= 4 && (shown.piece->id < other || !layout.findPiece(other)))
        surface_.circle(at, radius * 0.6, theme_.joinedEnd, {});
    }
  }
}

std::vector<ArticlePlaces::Place> LayoutPainter::paintOnRings(const Layout& layout,
                                                              const HelixRings& rings) {
  std::vector<ArticlePlaces::Place> texts;
  for (const HelixRing& ring : rings.rings()) {
    std::vector<Visible> lowerEnds; // over which more of its track lies
    for (const std::int32_t id : ring.bottoms)
      if (const PlacedPiece* piece = layout.findPiece(id);
          piece != nullptr && layout.pieceVisible(*piece) && !isLeftOut(id))
        if (const PieceDef* definition = definitionOf(*piece))
          lowerEnds.push_back({piece,
                               definition,
                               PiecePainter(surface_, view_, theme_).shapeOf(*definition),
                               {},
                               0});
    if (lowerEnds.empty())
      continue;
    if (options_.labels)
      paintJoinDots(layout, lowerEnds);
    std::ranges::move(paintHelixTexts({surface_, part_, view_, layout, theme_}, ring),
                      std::back_inserter(texts));
  }
  return texts;
}

void LayoutPainter::paintTexts(const Layout& layout, const PlanIndex& index,
                               const HelixRings& rings, std::span<const Visible> pieces,
                               std::vector<ArticlePlaces::Place> others) {
  if (!options_.labels && !options_.grades)
    return;
  ArticlePlaces ownArticles;
  ArticlePlaces& articles = options_.articles ? *options_.articles : ownArticles;
  GradePlaces ownGrades;
  GradePlaces& grades = options_.gradePlaces ? *options_.gradePlaces : ownGrades;
  const Point origin = view_.origin();
  for (ArticlePlaces::Place& other : others)
    other.at = {other.at.x - origin.x, other.at.y - origin.y};
  articles.follow(layout, index, view_.zoom(), options_.leftOut);
  if (options_.grades) {
    grades.follow(surface_,
                  {layout, index, rings, options_.leftOut, options_.crossings, others, theme_},
                  view_.zoom(), articles);
    std::vector<GradePainter::Track> track;
    for (const Visible& shown : pieces)
      track.push_back({shown.piece, shown.definition, shown.look.beneath});
    GradePainter(surface_, view_, layout, theme_).paintColors(std::move(track), &grades);
    grades.paint(surface_, origin, part_);
  }
  if (!options_.labels)
    return;
  articles.visit(
      {part_.minX - origin.x, part_.minY - origin.y, part_.maxX - origin.x, part_.maxY - origin.y},
      surface_, [&](std::size_t position, const ArticlePlaces::Place& place) {
        if ((options_.grades && !grades.isFree(place.at, place.size, place.angle)) ||
            std::ranges::any_of(others, [&](const auto& other) { return place.overlaps(other); }))
          return;
        const PlacedPiece& piece = layout.pieces()[position];
        surface_.text(index.definition(position)->article,
                      {place.at.x + origin.x, place.at.y + origin.y}, place.angle,
                      articleStyle(theme_, isFaded(layout, piece.level)));
      });
}

Box LayoutPainter::shownBox(double marginPx) const {
  const Point low = view_.toWorld({part_.minX - marginPx, part_.minY - marginPx});
  const Point high = view_.toWorld({part_.maxX + marginPx, part_.maxY + marginPx});
  return {low.x, low.y, high.x, high.y};
}

void LayoutPainter::paintSelection(const Layout& layout, const PlanIndex& index) {
  const std::vector<Visible> track =
      visibleTrack(layout, index, HelixRings(layout), selectedTrack(layout, index));
  std::vector<PiecePainter::Piece> pieces;
  for (const Visible& shown : track)
    pieces.push_back({shown.shape, poseOf(*shown.piece), shown.look});
  PiecePainter(surface_, view_, theme_).paintAccents(pieces);
  if (options_.labels)
    paintJoinDots(layout, track);
  const PictureSite site{surface_, part_, view_, layout, theme_};
  for (const Tunnel& tunnel : layout.content().tunnels)
    paintSelected(site, tunnel);
  forEachSelectable(layout.content(), [&](const auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    if constexpr (Record::kKind != RecordKind::Piece)
      for (const auto& record : records)
        if (record.sel && isVisible(layout, record))
          paintSelected(site, record);
  });
}

} // namespace trassix
