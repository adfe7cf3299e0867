#include "output/page_set.h"

#include "output/page_painter.h"
#include "texts/texts.h"

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

constexpr double kLeastRoom = 20; ///< mm of paper that a page has to offer

/// Of a plan of this extent on one page.
double scaleToFit(const Box& extent, const Paper& paper) {
  const SizeMm room = paper.printable();
  return std::max({(extent.maxX - extent.minX) / room.width,
                   (extent.maxY - extent.minY) / (room.height - kFooterMm), 1.0});
}

bool hasRoom(const Paper& paper) {
  const SizeMm room = paper.printable();
  return room.width >= kLeastRoom && room.height >= kLeastRoom + kFooterMm;
}

void addWholePages(PageSet& set) {
  for (std::size_t plan = 0; plan < set.plans.size(); ++plan)
    set.pages.push_back({PageKind::Whole, plan, {}, 0, 0});
}

void addTiles(PageSet& set) {
  const double scale = set.millimetresPerMm();
  const SizeMm room = set.paper.printable();
  for (std::size_t plan = 0; plan < set.plans.size(); ++plan) {
    const Tiling tiling =
        tilingOf(*set.plans[plan].extent, {room.width * scale, room.height * scale},
                 set.options.overlap * scale);
    set.tilings.push_back(tiling);
    std::vector<Page> pages;
    for (const Tile& tile : tiling.tiles())
      if (showsAnything(set.plans[plan], tile.box, scale / kPxPerMm))
        pages.push_back({PageKind::Tile, plan, tile, 0, 0});
    set.emptyTiles += tiling.count() - pages.size();
    if (pages.size() > 1)
      set.pages.push_back({PageKind::TileOverview, plan, {}, 0, 0});
    set.pages.insert(set.pages.end(), pages.begin(), pages.end());
  }
}

/// The smaller the better: sheets, then for a plan on one page how much it is reduced.
std::pair<std::size_t, double> costOf(const PageSet& set) {
  double scale = 0;
  for (const Page& page : set.pages)
    if (page.kind == PageKind::Whole)
      scale = std::max(scale, set.millimetresPerMm(page));
  return {set.pages.size(), scale};
}

void layOut(PageSet& set, const Paper& paper) {
  set.paper = paper;
  set.pages.clear();
  set.tilings.clear();
  set.emptyTiles = 0;
  if (!hasRoom(paper))
    return;
  if (set.options.printMode() == PrintMode::Overview)
    addWholePages(set);
  else
    addTiles(set);
  std::size_t first = 0;
  for (const auto& lines : partsPages(set.parts, paper)) {
    set.pages.push_back({PageKind::Parts, 0, {}, first, lines.size()});
    first += lines.size();
  }
}

} // namespace

double PageSet::millimetresPerMm() const {
  switch (options.printMode()) {
  case PrintMode::TrueSize:
    return 1;
  case PrintMode::Scaled:
    return std::clamp(options.scale, kSmallestPrintScale, kLargestPrintScale) / 100.0;
  default:
    return 0;
  }
}

double PageSet::millimetresPerMm(const Page& page) const {
  return page.kind == PageKind::Tile ? millimetresPerMm() : scaleToFit(shownOn(page), paper);
}

Box PageSet::shownOn(const Page& page) const {
  if (page.kind == PageKind::Tile)
    return page.tile.box;
  if (page.kind != PageKind::TileOverview)
    return *plans[page.plan].extent;
  const std::vector<Tile> tiles = tilings[page.plan].tiles();
  return {tiles.front().box.minX, tiles.front().box.minY, tiles.back().box.maxX,
          tiles.back().box.maxY};
}

bool PageSet::hasTile(std::size_t plan, std::size_t column, std::size_t row) const {
  return std::ranges::any_of(pages, [&](const Page& page) {
    return page.kind == PageKind::Tile && page.plan == plan && page.tile.column == column &&
           page.tile.row == row;
  });
}

std::string PageSet::nameOf(std::size_t page) const {
  const Page& named = pages[page];
  const std::string& deck = plans[named.plan].deck;
  const auto onDeck = [&deck](const std::string& name) {
    return deck.empty() ? name : tr("%1%, %2%", {deck, name});
  };
  switch (named.kind) {
  case PageKind::Tile:
    return onDeck(named.tile.name());
  case PageKind::TileOverview:
    return onDeck(tr("Overview"));
  case PageKind::Parts:
    return tr("Parts list %1%",
              {std::ranges::count(std::span(pages).first(page + 1), PageKind::Parts, &Page::kind)});
  default:
    return deck.empty() ? tr("The plan") : deck;
  }
}

void PageSet::keep(const std::vector<std::string>& names) {
  std::vector<Page> kept;
  for (std::size_t page = 0; page < pages.size(); ++page)
    if (std::ranges::find(names, nameOf(page)) != names.end())
      kept.push_back(pages[page]);
  pages = std::move(kept);
}

PageSet layOutPages(const Layout& layout, const PrintOptions& options, const Paper& paper,
                    const PrintTitle& title, const OwnedStock& owned) {
  PageSet set;
  set.options = options;
  set.title = title;
  set.plans = printedPlans(layout, options);
  if (options.has(print_what::kPartsList) && !set.plans.empty())
    set.parts = partsLines(tallyOf(layout).rows, owned);
  const bool lies = paper.size.width > paper.size.height;
  const auto asked = static_cast<PrintOrientation>(options.orientation);
  if (asked == PrintOrientation::Upright || asked == PrintOrientation::Lying) {
    layOut(set, lies == (asked == PrintOrientation::Lying) ? paper : paper.turned());
    return set;
  }
  layOut(set, paper.turned());
  const auto turned = costOf(set);
  layOut(set, paper);
  if (turned < costOf(set) && turned.first > 0)
    layOut(set, paper.turned());
  return set;
}

} // namespace trassix
