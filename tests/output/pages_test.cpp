#include "document/plan_file.h"
#include "document/record_kinds.h"
#include "document/reselecting.h"
#include "editing/canvas/recording_surface.h"
#include "editing/placing/placing.h"
#include "editing/supports/supports.h"
#include "geometry/polygons.h"
#include "output/page_painter.h"
#include "output/pdf_file.h"
#include "output/picture_files.h"
#include "support/plan.h"
#include "support/printed_marks.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace trassix::test {
namespace {

constexpr Paper kPaper{kA4, {10, 10, 10, 10}};

PrintOptions trueSize() {
  PrintOptions options;
  options.mode = static_cast<std::int32_t>(PrintMode::TrueSize);
  options.orientation = static_cast<std::int32_t>(PrintOrientation::Upright);
  return options;
}

PageSet tilesOf(const Layout& layout, const PrintOptions& options = trueSize()) {
  return layOutPages(layout, options, kPaper, {"Süd", "2026-05-01"});
}

std::vector<Page> tilePages(const PageSet& set) {
  std::vector<Page> tiles = set.pages;
  std::erase_if(tiles, [](const Page& page) { return page.kind != PageKind::Tile; });
  return tiles;
}

Layout boardOf(const Polygon& board) {
  Layout layout;
  layout.editSettings().baseboard = board;
  return layout;
}

TEST(Tiling, countsAreTheTradesAndNamesGoOnBehindZ) {
  struct Case {
    double width, height, overlap;
    std::size_t columns, rows;
  };
  for (const Case& c : {Case{1200, 800, 10, 7, 3},
                        {2000, 1000, 10, 12, 4},
                        {190, 277, 10, 1, 1},
                        {190.1, 277, 10, 2, 1},
                        {370, 544, 10, 2, 2},
                        {1200, 800, 0, 7, 3},
                        {300, 300, 500, 3, 2}}) {
    const Box area{-50, 30, -50 + c.width, 30 + c.height};
    const Tiling tiling = tilingOf(area, {190, 277}, c.overlap);
    EXPECT_TRUE(tiling.columns == c.columns && tiling.rows == c.rows)
        << c.width << " " << c.overlap;
    const std::vector<Tile> tiles = tiling.tiles();
    EXPECT_TRUE(tiles.front().box.minX <= area.minX && tiles.back().box.maxX >= area.maxX &&
                tiles.front().box.minY <= area.minY && tiles.back().box.maxY >= area.maxY);
    EXPECT_NEAR(tiles.front().box.minX + tiles.back().box.maxX, area.minX + area.maxX, 1e-9);
  }
  EXPECT_EQ((Tile{0, 0, {}}.name()), "A1");
  EXPECT_EQ((Tile{25, 9, {}}.name()), "Z10");
  EXPECT_EQ((Tile{26, 0, {}}.name()), "AA1");
  EXPECT_EQ((Tile{26 + 26 * 26, 0, {}}.name()), "AAA1");
}

TEST(Pages, emptyTilesAreLeftOutAndFewerSheetsChosen) {
  const Polygon ell{{0, 0}, {2400, 0}, {2400, 600}, {600, 600}, {600, 1800}, {0, 1800}};
  const PageSet bare = tilesOf(boardOf(ell));
  const Tiling& tiling = bare.tilings.at(0);
  EXPECT_EQ(tilePages(bare).size() + bare.emptyTiles, tiling.count());
  for (const Tile& tile : tiling.tiles()) { // the board's edge is in those that are printed
    bool edge = false;
    for (std::size_t i = 0; i < ell.size(); ++i)
      edge = edge || touches({ell[i], ell[(i + 1) % ell.size()]}, tile.box);
    EXPECT_EQ(bare.hasTile(0, tile.column, tile.row), edge) << tile.name();
  }
  Layout withLabel = boardOf(ell);
  withLabel.edit().labels.push_back({.id = 1, .text = "middle", .x = 300, .y = 1000});
  EXPECT_GT(tilePages(tilesOf(withLabel)).size(), tilePages(bare).size());

  Layout wide = boardOf({{0, 0}, {277, 0}, {277, 190}, {0, 190}});
  PrintOptions options = trueSize();
  EXPECT_EQ(tilePages(tilesOf(wide, options)).size(), 2U);
  options.orientation = 0;
  EXPECT_EQ(tilesOf(wide, options).pages.size(), 1U);
  EXPECT_EQ(tilesOf(wide, options).paper.size, kA4.turned());
  EXPECT_TRUE(tilesOf(Layout()).pages.empty());
  EXPECT_TRUE(layOutPages(wide, options, {kA4, {100, 10, 100, 10}}, {}).pages.empty());
  options.mode = 1;
  options.scale = 1000;
  EXPECT_EQ(tilesOf(boardOf({{0, 0}, {2770, 0}, {2770, 1900}, {0, 1900}}), options).pages.size(),
            1U);
}

TEST(Pages, printWhatWasAskedFor) {
  Plan plan;
  plan.place("24188").extend("24188").extend("24188");
  Layout layout = plan.layout;
  layout.edit().labels.push_back({.id = 90, .text = "far", .x = 3000, .y = 0});
  layout.ensureLevel();
  layout.ensureLevel(2);
  layout.edit().pieces[2].level = 2;
  PrintOptions options;
  EXPECT_GT(tilesOf(layout, options).plans.at(0).extent->maxX, 2000);
  options.labels = false;
  EXPECT_LT(tilesOf(layout, options).plans.at(0).extent->maxX, 700);
  options.what = print_what::kDecksApart;
  const PageSet decks = tilesOf(layout, options);
  ASSERT_EQ(decks.plans.size(), 2U);
  EXPECT_TRUE(decks.plans[0].layout.pieceCount() == 2 && decks.plans[1].layout.pieceCount() == 1);
  EXPECT_EQ(decks.plans[1].deck, "Level 2");
  PageSet again = tilesOf(layout, options);
  again.options.mode = 0;
  again.keep({"Level 2"});
  EXPECT_TRUE(again.pages.size() == 1 && again.pages[0].plan == 1);
  options.what = print_what::kActiveLevelOnly;
  EXPECT_EQ(tilesOf(layout, options).plans.at(0).layout.pieceCount(), 2U);
  options.what = print_what::kSupports;
  layout.edit().pieces[1].z = 60;
  EXPECT_EQ(tilesOf(layout, options).plans.at(0).supports.size(),
            supportsOf(layout).supports.size());
  EXPECT_FALSE(supportsOf(layout).supports.empty());
  options = {};
  options.selectionOnly = true;
  layout.reselect([](const auto& record) { return record.id == 1; });
  EXPECT_EQ(tilesOf(layout, options).plans.at(0).layout.pieceCount(), 1U);
  layout.clearSelection();
  EXPECT_TRUE(tilesOf(layout, options).pages.empty());
}

/// Middles of the lines that are drawn across joints on a page, in mm of the plan.
std::vector<Point> jointsOn(const PageSet& set, std::size_t page) {
  RecordingSurface surface;
  paintPage(surface, set, page);
  std::vector<Point> joints;
  for (const RecordingSurface::Line& hatch : surface.hatches)
    for (std::size_t i = 0; i + 1 < hatch.points.size(); i += 2) {
      const Point a = hatch.points[i];
      const Point b = hatch.points[i + 1];
      joints.push_back(viewOf(set, set.pages[page]).toWorld({(a.x + b.x) / 2, (a.y + b.y) / 2}));
    }
  return joints;
}

TEST(Pages, overlapsAgreeAndEveryJointIsOnAPage) {
  for (const char* const sample :
       {"C-Track Two Towns", "Gauge 1 Garden Loop", "Mountain Line", "Z-Track Tabletop"}) {
    SCOPED_TRACE(sample);
    const PlanFile file =
        readPlanFile(std::string(TRASSIX_SOURCE_DIR "/samples/") + sample + ".txl");
    const PageSet set = tilesOf(file.layout);
    std::vector<Point> ends;
    for (const PlacedPiece& piece : file.layout.pieces())
      for (std::size_t end = 0; end < definitionOf(piece)->connectors.size(); ++end)
        if (const WorldConnector at = worldEnd(piece, static_cast<std::int32_t>(end));
            !at.free && piece.id < piece.joint(end).target)
          ends.push_back({at.x, at.y});
    std::vector<bool> seen(ends.size());
    std::size_t shared = 0;
    for (std::size_t page = 0; page < set.pages.size(); ++page) {
      if (set.pages[page].kind != PageKind::Tile)
        continue;
      const std::vector<Point> drawn = jointsOn(set, page);
      for (std::size_t i = 0; i < ends.size(); ++i) {
        if (!holds(set.pages[page].tile.box, ends[i]))
          continue;
        double off = 1000;
        for (const Point& p : drawn)
          off = std::min(off, std::hypot(p.x - ends[i].x, p.y - ends[i].y));
        EXPECT_LT(off, 0.02);
        shared += seen[i] ? 1 : 0;
        seen[i] = true;
      }
    }
    EXPECT_GT(seen.size(), 20U);
    EXPECT_EQ(std::ranges::count(seen, false), 0);
    EXPECT_GT(shared, 1U) << "on two pages";
  }
}

/// Counts what takes ink by the area.
class InkSurface : public RecordingSurface {
 public:
  std::size_t filled = 0;

  void polygon(std::span<const Point>, std::optional<Rgba> fill, std::optional<Stroke>) override {
    filled += fill && fill->a != 0 && withAlpha(*fill, 255) != Rgba{255, 255, 255} ? 1 : 0;
  }
};

TEST(Pages, outlinesSpareInkAndTheOverviewShowsAllSheets) {
  const PlanFile file = readPlanFile(TRASSIX_SOURCE_DIR "/samples/C-Track Two Towns.txl");
  PrintOptions options = trueSize();
  for (const bool spare : {false, true}) {
    options.what = spare ? print_what::kOutlines : 0;
    const PageSet set = tilesOf(file.layout, options);
    InkSurface surface;
    for (std::size_t page = 0; page < set.pages.size(); ++page)
      paintPage(surface, set, page);
    EXPECT_EQ(surface.filled == 0, spare) << surface.filled;
    const Box room = pictureOf(set, set.pages[0]);
    for (const Tile& tile : set.tilings[0].tiles()) {
      const Point low = viewOf(set, set.pages[0]).toScreen({tile.box.minX, tile.box.minY});
      EXPECT_TRUE(low.x > room.minX - 0.01 && low.y > room.minY - 0.01) << tile.name();
    }
  }
}

#ifndef _WIN32

/// A page of a PDF as another program sees it.
struct Picture {
  int width = 0;
  int height = 0;
  std::string rgb;

  bool isMark(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height)
      return false;
    const auto* p = reinterpret_cast<const unsigned char*>(rgb.data()) + 3 * (y * width + x);
    return p[0] > 190 && p[1] < 120 && p[2] > 190;
  }
};

std::string outputOf(const std::string& command) {
  std::string output;
  FILE* pipe = popen(command.c_str(), "r");
  std::array<char, 1 << 16> buffer{};
  for (std::size_t n = 0; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
    output.append(buffer.data(), n);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return output;
}

Picture pictureOf(const std::string& command) {
  const std::string ppm = outputOf(command);
  Picture picture;
  int header = 0;
  EXPECT_EQ(std::sscanf(ppm.c_str(), "P6 %d %d 255%n", &picture.width, &picture.height, &header),
            2);
  picture.rgb = ppm.substr(static_cast<std::size_t>(header) + 1);
  return picture;
}

TEST(PdfFile, marksLieInPlaceAndNamesAreText) {
  const MarkedPlan plan = MarkedPlan::make();
  const PageSet set = layOutPages(plan.layout, trueSize(), kPaper, {"Süd Łódź Жи", "2026-05-01"});
  PdfFile pdf(set.title.plan);
  for (std::size_t i = 0; i < set.pages.size(); ++i)
    paintPage(pdf.addPage(set.paper.size), set, i);
  const TempFolder folder;
  const std::string file = (folder.path() / "tiles.pdf").string();
  writeText(file, pdf.take());
  EXPECT_EQ(pdf.problem(), "");
  std::size_t counted = 0;
  for (std::size_t page = 1; page < set.pages.size(); ++page) {
    const std::string number = std::to_string(page + 1);
    const Picture picture =
        pictureOf("pdftoppm -r 254 -f " + number + " -l " + number + " '" + file + "' 2>&1");
    EXPECT_LT(farthestMark(
                  plan, set, set.pages[page], 10, 10,
                  [&](int x, int y) { return picture.isMark(x, y); }, counted),
              0.1);
  }
  EXPECT_GT(counted, plan.marks.size() / 2);
  EXPECT_NE(outputOf("pdfinfo '" + file + "' 2>&1").find("Süd Łódź Жи"), std::string::npos);
  EXPECT_NE(outputOf("pdftotext -f 1 -l 1 -raw '" + file + "' - 2>&1").find("Süd Łódź Жи"),
            std::string::npos);
  std::istringstream fonts(outputOf("pdffonts '" + file + "' 2>&1 | tail -n +3"));
  for (std::string font; std::getline(fonts, font);)
    EXPECT_NE(font.find(" yes yes "), std::string::npos) << "not embedded: " << font;
}

TEST(PictureFiles, svgIsInMillimetresWithNamedGroupsAndTexts) {
  MarkedPlan plan = MarkedPlan::make();
  plan.layout.edit().labels.push_back({.id = 9000, .text = "Süd & <Nord>", .x = 600, .y = 400});
  dropPiece(plan.layout, "24188", {300, 300, 0}, {}, false);
  const PictureFile svg = svgPicture(plan.layout, {}, {"Süd", ""});
  const TempFolder folder;
  const std::string file = (folder.path() / "plan.svg").string();
  writeText(file, svg.bytes);
  EXPECT_EQ(outputOf("rsvg-convert '" + file + "' -o '" + file + ".png' 2>&1"), "");
  for (const char* const part :
       {"<title>Track</title>", "<title>Level 1</title>", "Süd &amp; &lt;Nord&gt;</text>",
        "<g id=\"Cutting\" display=\"none\"><title>Cutting</title>", ">24188</text>"})
    EXPECT_NE(svg.bytes.find(part), std::string::npos) << part;
  const Box extent = *pictureExtent(plan.layout, {});
  std::size_t found = 0;
  for (std::size_t at = 0; (at = svg.bytes.find("<path d=\"M", at)) != std::string::npos; ++at) {
    const std::size_t end = svg.bytes.find("/>", at);
    if (svg.bytes.substr(at, end - at).find("fill=\"#ff00ff\"") == std::string::npos)
      continue;
    std::array<double, 8> c{};
    ASSERT_EQ(std::sscanf(svg.bytes.c_str() + at, "<path d=\"M%lf %lfL%lf %lfL%lf %lfL%lf %lfZ",
                          &c[0], &c[1], &c[2], &c[3], &c[4], &c[5], &c[6], &c[7]),
              8);
    const Point mark = plan.marks.at(found++);
    EXPECT_NEAR((c[0] + c[4]) / 2 + extent.minX, mark.x, 0.001);
    EXPECT_NEAR((c[1] + c[5]) / 2 + extent.minY, mark.y, 0.001);
  }
  EXPECT_EQ(found, plan.marks.size());
}

TEST(PictureFiles, pdfSheetsFitOrAreRefused) {
  Layout layout = boardOf({{0, 0}, {2000, 0}, {2000, 1000}, {0, 1000}});
  struct Case {
    PdfLayout how;
    double longer, width, height; ///< mm
    int pages;
  };
  for (const Case& c : {Case{PdfLayout::OneSheet, 2000, 2020, 1020, 1},
                        {PdfLayout::Roll610, 2000, 2020, 610, 2},
                        {PdfLayout::Roll914, 5060, 5080, 914, 2},
                        // Three lengths that overlap by 10 and two widths, all with edges of board.
                        {PdfLayout::Roll610, 12000, 11990. / 3 + 30, 610, 6}}) {
    layout.editSettings().baseboard[1].x = layout.editSettings().baseboard[2].x = c.longer - 0.02;
    const PictureFile pdf = pdfPicture(layout, {}, {"Plan", ""}, c.how, kPaper);
    ASSERT_EQ(pdf.problem, "");
    const TempFolder folder;
    const std::string file = (folder.path() / "sheet.pdf").string();
    writeText(file, pdf.bytes);
    std::istringstream info(
        outputOf("pdfinfo -l 99 '" + file + "' 2>&1 | grep -E 'size:|Pages:' | head -n -1"));
    std::string count;
    std::getline(info, count);
    EXPECT_EQ(std::atoi(count.c_str() + count.find(':') + 1), c.pages);
    double width = 0;
    double height = 0;
    std::string line;
    std::getline(info, line);
    ASSERT_EQ(std::sscanf(line.c_str() + line.find(':') + 1, "%lf x %lf", &width, &height), 2)
        << line;
    EXPECT_NEAR(width / 72 * 25.4, c.width, 0.1);
    EXPECT_NEAR(height / 72 * 25.4, c.height, 0.1);
  }
  layout.editSettings().baseboard[1].x = 6000;
  EXPECT_NE(pdfPicture(layout, {}, {}, PdfLayout::OneSheet, kPaper).problem, "");
  EXPECT_EQ(pdfPicture(layout, {}, {}, PdfLayout::Tiles, kPaper).problem, "");
  EXPECT_NE(svgPicture(Layout(), {}, {}).problem, "");

  Plan large;
  for (int row = 0; row < 40; ++row)
    large.place("24188", {0, row * 80.0, 0}).extend("24188", 49);
  PrintOptions options = trueSize();
  options.what = print_what::kPartsList;
  EXPECT_LT(pdfPicture(large.layout, options, {"Large", ""}, PdfLayout::Tiles, kPaper).bytes.size(),
            5'000'000U);
}

#endif

} // namespace
} // namespace trassix::test
