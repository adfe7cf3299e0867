#include "output/page_painter.h"

#include "document/plan_content.h"
#include "editing/canvas/halo.h"
#include "editing/canvas/layout_painter.h"
#include "editing/canvas/record_pictures.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr Rgba kInk{20, 24, 30};
constexpr Stroke kThin{kInk, 0.5};
constexpr Stroke kCutLine{{90, 96, 104}, 0.6, Stroke::Style::Dashed};
constexpr double kCross = 4; ///< mm, half a register cross
constexpr double kTextPx = 10;
constexpr double kRulerMm = 100;
constexpr double kRulerInches = 4;
constexpr double kInch = 25.4;
constexpr double kRulerRoom = 118; ///< mm that the ruler takes with its text

class PagePainter {
 public:
  PagePainter(Surface& surface, const PageSet& set, std::size_t number)
      : surface_(surface), set_(set), page_(set.pages[number]), plan_(set.plans[page_.plan]),
        number_(number), picture_(pictureOf(set, page_)), view_(viewOf(set, page_)) {}

  void paint() {
    if (page_.kind == PageKind::Parts) {
      paintParts(surface_, std::span(set_.parts).subspan(page_.firstPart, page_.partCount),
                 set_.paper);
      return paintTitle();
    }
    surface_.clip(picture_);
    paintPlan();
    paintSupports(surface_, plan_, view_);
    if (page_.kind == PageKind::Tile && set_.millimetresPerMm(page_) == 1)
      paintJointNotes();
    if (page_.kind == PageKind::TileOverview)
      paintSheets();
    surface_.unclip();
    if (page_.kind == PageKind::Tile)
      paintCutLines();
    paintRuler();
    paintTitle();
  }

 private:
  static double px(double mm) { return mm * kPxPerMm; }

  void paintPlan() {
    PaintOptions options = paintOptionsOf(set_.options);
    std::vector<TrackCrossing> crossings;
    if (options.grades)
      crossings = trackCrossings(plan_.layout);
    options.crossings = crossings;
    options.part = picture_;
    LayoutPainter(surface_, {px(set_.paper.size.width), px(set_.paper.size.height)}, view_, options)
        .paint(plan_.layout, plan_.index);
  }

  /// At each joint a line across the track, with the articles that meet and their height, so that
  /// track can be laid and roadbed be sawn by the sheet alone.
  void paintJointNotes() {
    std::vector<Point> ticks;
    const Box seen = page_.tile.box;
    for (const std::size_t position : plan_.index.inBox(seen, false)) {
      const PlacedPiece& piece = plan_.layout.pieces()[position];
      const PieceDef* definition = plan_.index.definition(position);
      if (definition == nullptr)
        continue;
      for (std::int32_t end = 0; end < static_cast<std::int32_t>(definition->connectors.size());
           ++end)
        paintJointNote(piece, *definition, end, ticks);
    }
    surface_.segments(ticks, {kInk, 0.8});
  }

  void paintJointNote(const PlacedPiece& piece, const PieceDef& definition, std::int32_t end,
                      std::vector<Point>& ticks) {
    const WorldConnector at = ConnectorToWorld(piece, definition, end);
    const PlacedPiece* other =
        at.free ? nullptr
                : plan_.layout.findPiece(piece.joint(static_cast<std::size_t>(end)).target);
    if ((at.free && definition.kind == PieceKind::Turntable) || (other && other->id < piece.id))
      return;
    const double reach = px(trackGeometryOf(definition).halfWidth);
    const Point middle = view_.toScreen({at.x, at.y});
    const double across = toRadians(at.heading + 90);
    const Point way{std::cos(across) * reach, std::sin(across) * reach};
    ticks.insert(ticks.end(),
                 {{middle.x - way.x, middle.y - way.y}, {middle.x + way.x, middle.y + way.y}});
    const std::string height = formatFixed(endHeight(piece, definition, end), 1);
    const PieceDef* beyond = other ? definitionOf(*other) : nullptr;
    const std::string text =
        beyond ? tr("%1% · %2%  h %3%", {definition.article, beyond->article, height})
               : tr("%1%  h %2%", {definition.article, height});
    const double gap = (reach + 7) / reach;
    paintTextWithHalo(surface_, text, {middle.x + way.x * gap, middle.y + way.y * gap},
                      uprightAngle(at.heading), {kInk, 8});
  }

  /// Where the sheets lie on the plan.
  void paintSheets() {
    for (const Tile& tile : set_.tilings[page_.plan].tiles()) {
      const bool printed = set_.hasTile(page_.plan, tile.column, tile.row);
      const Point low = view_.toScreen({tile.box.minX, tile.box.minY});
      const Point high = view_.toScreen({tile.box.maxX, tile.box.maxY});
      const std::array<Point, 4> corners{{low, {high.x, low.y}, high, {low.x, high.y}}};
      surface_.polygon(corners, {}, printed ? kThin : Stroke{kCutLine.color, 0.4, kCutLine.style});
      const Point middle{(low.x + high.x) / 2, (low.y + high.y) / 2};
      if (printed)
        paintTextWithHalo(surface_, tile.name(), middle, 0,
                          {kInk, std::clamp((high.y - low.y) / 4, 6.0, 22.0), true});
    }
  }

  /// In the middle of each overlap, at the same place of the plan on both sheets: there they are
  /// cut, and cross lies on cross.
  void paintCutLines() {
    const Tiling& tiling = set_.tilings[page_.plan];
    const double half = px(set_.options.overlap) / 2;
    const auto [column, row] = std::pair(page_.tile.column, page_.tile.row);
    const auto side = [&](bool exists, std::size_t toColumn, std::size_t toRow, Point from,
                          Point to) {
      if (!exists)
        return;
      surface_.polyline(std::array{from, to}, kCutLine);
      paintCross(from);
      paintCross(to);
      if (set_.hasTile(page_.plan, toColumn, toRow))
        paintNeighbour(Tile{toColumn, toRow, {}}.name(), from, to);
    };
    const bool left = column > 0;
    const bool right = column + 1 < tiling.columns;
    const bool top = row > 0;
    const bool bottom = row + 1 < tiling.rows;
    const double x0 = picture_.minX + (left ? half : 0);
    const double x1 = picture_.maxX - (right ? half : 0);
    const double y0 = picture_.minY + (top ? half : 0);
    const double y1 = picture_.maxY - (bottom ? half : 0);
    side(left, column - 1, row, {x0, y0}, {x0, y1});
    side(right, column + 1, row, {x1, y0}, {x1, y1});
    side(top, column, row - 1, {x0, y0}, {x1, y0});
    side(bottom, column, row + 1, {x0, y1}, {x1, y1});
  }

  void paintCross(Point at) {
    const double r = px(kCross);
    paintLinesWithHalo(
        surface_,
        std::array<Point, 4>{
            {{at.x - r, at.y}, {at.x + r, at.y}, {at.x, at.y - r}, {at.x, at.y + r}}},
        kThin);
    surface_.circle(at, r / 2, {}, kThin);
  }

  void paintNeighbour(const std::string& name, Point from, Point to) {
    const bool upright = from.x == to.x;
    paintTextWithHalo(surface_, name, {(from.x + to.x) / 2, (from.y + to.y) / 2}, upright ? 90 : 0,
                      {kInk, kTextPx, true});
  }

  /// A hundred millimetres and four inches in both directions, by which a printer is checked.
  void paintRuler() {
    const Box room = printablePx();
    const double low = room.maxY - px(3);
    const double left = room.minX + px(3);
    if (room.maxX - room.minX >= px(kRulerRoom))
      paintRuler({left + px(8), low}, {1, 0});
    if (room.maxY - room.minY >= px(kRulerRoom))
      paintRuler({left, low - px(8)}, {0, -1});
  }

  void paintRuler(Point start, Point way) {
    const Point side{-way.y, -way.x}; // into the page
    const auto at = [&](double mm, double off) {
      return Point{start.x + px(way.x * mm + side.x * off),
                   start.y + px(way.y * mm + side.y * off)};
    };
    std::vector<Point> lines{at(0, 0), at(kRulerMm, 0)};
    for (int mm = 0; mm <= kRulerMm; mm += 10)
      lines.insert(lines.end(), {at(mm, 0), at(mm, mm % 50 == 0 ? 2.0 : 1.2)});
    const double inchOff = 3.2;
    lines.insert(lines.end(), {at(0, inchOff), at(kRulerInches * kInch, inchOff)});
    for (int inch = 0; inch <= kRulerInches; ++inch)
      lines.insert(lines.end(), {at(inch * kInch, inchOff), at(inch * kInch, inchOff + 1.2)});
    paintLinesWithHalo(surface_, lines, kThin);
    const double angle = way.x != 0 ? 0 : -90;
    paintTextWithHalo(surface_, tr("100 mm"), at(kRulerMm + 7, 0.6), angle, {kInk, 8});
    paintTextWithHalo(surface_, tr("4 in"), at(kRulerMm + 6, inchOff + 0.6), angle, {kInk, 8});
  }

  void paintTitle() {
    const Box room = printablePx();
    const bool tile = page_.kind == PageKind::Tile;
    const bool parts = page_.kind == PageKind::Parts;
    std::string text = set_.title.plan;
    if (!plan_.deck.empty() && !parts)
      text = tr("%1%, %2%", {text, plan_.deck});
    text = tr("%1%  |  %2%  |  %3%  |  page %4% of %5%",
              {text, parts ? tr("Parts list") : scaleText(set_.millimetresPerMm(page_)),
               set_.title.date, number_ + 1, set_.pages.size()});
    if (tile && set_.tilings[page_.plan].count() > 1)
      text = tr("%1%  |  %2%", {page_.tile.name(), text});
    const TextStyle style{kInk, kTextPx, tile};
    const SizePx size = surface_.textSize(text, style);
    const double right = room.maxX - px(3) - size.width / 2;
    // On a tile away from the ruler and the names of neighbours.
    const Point at = tile ? Point{std::max(right, room.minX + size.width / 2), room.minY + px(2.4)}
                          : Point{std::max(right, room.minX + size.width / 2), room.maxY - px(9)};
    paintTextWithHalo(surface_, text, at, 0, style);
  }

  Box printablePx() const {
    const Paper& paper = set_.paper;
    return {px(paper.margins.left), px(paper.margins.top),
            px(paper.size.width - paper.margins.right),
            px(paper.size.height - paper.margins.bottom)};
  }

  Surface& surface_;
  const PageSet& set_;
  const Page& page_;
  const PrintedPlan& plan_;
  std::size_t number_;
  Box picture_;
  ViewTransform view_;
};

} // namespace

Box pictureOf(const PageSet& set, const Page& page) {
  const PaperMargins& margins = set.paper.margins;
  const SizeMm room = set.paper.printable();
  const double footer = page.kind == PageKind::Tile ? 0 : kFooterMm;
  return {margins.left * kPxPerMm, margins.top * kPxPerMm, (margins.left + room.width) * kPxPerMm,
          (margins.top + room.height - footer) * kPxPerMm};
}

ViewTransform viewOf(const PageSet& set, const Page& page) {
  const double zoom = kPxPerMm / set.millimetresPerMm(page);
  const Box picture = pictureOf(set, page);
  const Box extent = set.shownOn(page);
  return ViewTransform::ofScale(
      zoom, {(picture.minX + picture.maxX - (extent.minX + extent.maxX) * zoom) / 2,
             (picture.minY + picture.maxY - (extent.minY + extent.maxY) * zoom) / 2});
}

std::string scaleText(double millimetresPerMm) {
  std::string n = formatFixed(millimetresPerMm, 1);
  if (n.ends_with(".0"))
    n.resize(n.size() - 2);
  return std::string("1:").append(n);
}

void paintSupports(Surface& surface, const PrintedPlan& plan, const ViewTransform& view) {
  if (plan.supports.empty())
    return;
  constexpr double kTextFromPx = 30; ///< of the foot's longer side
  const SurfaceGroup group(surface, tr("Supports"));
  for (const SupportFoot& support : plan.supports) {
    const PoseFrame frame(support.pose);
    const double a = support.along / 2;
    const double b = support.across / 2;
    const std::array<Point, 4> foot{{view.toScreen(frame({-a, -b})), view.toScreen(frame({a, -b})),
                                     view.toScreen(frame({a, b})), view.toScreen(frame({-a, b}))}};
    surface.polygon(foot, {}, Stroke{kInk, 0.8});
    const std::array<Point, 4> cross{{foot[0], foot[2], foot[1], foot[3]}};
    surface.segments(cross, kThin);
    if (std::max(support.along, support.across) * view.zoom() >= kTextFromPx)
      paintTextWithHalo(surface, formatFixed(support.height, 1),
                        view.toScreen({support.pose.x, support.pose.y}), 0, {kInk, 8});
  }
}

PaintOptions paintOptionsOf(const PrintOptions& options) {
  PaintOptions how;
  how.desk = how.scaleBar = how.selection = false;
  how.levelsAlike = true;
  how.grid = options.has(print_what::kGrid);
  how.theme = options.has(print_what::kOutlines) ? &outlineTheme() : &paperTheme();
  how.labels = options.labels;
  how.grades = options.has(print_what::kHeights);
  return how;
}

void paintPage(Surface& surface, const PageSet& set, std::size_t page) {
  PagePainter(surface, set, page).paint();
}

} // namespace trassix
