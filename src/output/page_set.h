// The pages of a print, laid out before any of them is drawn.
#pragma once

#include "output/paper.h"
#include "output/parts_pages.h"
#include "output/print_options.h"
#include "output/printed_plan.h"
#include "output/tiling.h"

#include <cstddef>
#include <string>
#include <vector>

namespace trassix {

class Layout;

enum class PageKind : std::uint8_t { Whole, TileOverview, Tile, Parts };

struct Page {
  PageKind kind = PageKind::Whole;
  std::size_t plan = 0;      ///< of `PageSet::plans`
  Tile tile;                 ///< of a page of tiles
  std::size_t firstPart = 0; ///< of a page of the parts list, in `PageSet::parts`
  std::size_t partCount = 0;
};

/// What the pages say of themselves.
struct PrintTitle {
  std::string plan;
  std::string date;

  bool operator==(const PrintTitle&) const = default;
};

struct PageSet {
  PrintOptions options;
  PrintTitle title;
  Paper paper; ///< as its sheets lie
  std::vector<PrintedPlan> plans;
  std::vector<Tiling> tilings; ///< of each plan; not for an overview
  std::vector<PartsLine> parts;
  std::vector<Page> pages;    ///< those that show something
  std::size_t emptyTiles = 0; ///< left out

  /// How many mm of the plan are one of the paper; 0 for a page that shows all of a plan, whose
  /// scale follows from its size.
  double millimetresPerMm() const;
  /// The same of one page.
  double millimetresPerMm(const Page& page) const;
  /// What of the plan a page shows, mm.
  Box shownOn(const Page& page) const;
  /// Whether a tile, given by its place in the tiling of a plan, is one of the pages.
  bool hasTile(std::size_t plan, std::size_t column, std::size_t row) const;
  /// What one of the pages is called: "A1" or "Overview", behind its deck where decks are apart.
  std::string nameOf(std::size_t page) const;
  /// Leaves the pages of these names only.
  void keep(const std::vector<std::string>& names);
};

/// Room for the lines below the picture on a page that shows all of a plan, mm.
inline constexpr double kFooterMm = 14;

/// Lays the pages out on this paper, or on the same lying the other way. None when there is nothing
/// to print, or the margins leave no room. The parts list, where it is asked for, comes last and
/// is that of the whole plan.
PageSet layOutPages(const Layout& layout, const PrintOptions& options, const Paper& paper,
                    const PrintTitle& title, const OwnedStock& owned = {});

} // namespace trassix
