// The list of a plan's pieces as pages.
#pragma once

#include "editing/canvas/surface.h"
#include "output/paper.h"
#include "panels/purchase_list.h"
#include "panels/tally.h"

#include <span>
#include <vector>

namespace trassix {

/// An article of the plan, a support, or the heading of a system or of the supports.
struct PartsLine {
  bool heading = false;
  TallyRow tally;       ///< of a heading only the system, or its name
  PurchaseRow purchase; ///< of a heading nothing
};

/// The tally by system with what is at home and what is to buy.
std::vector<PartsLine> partsLines(const std::vector<TallyRow>& tally, const OwnedStock& owned);

/// How many lines one page takes. A heading is never the last of a page.
std::vector<std::span<const PartsLine>> partsPages(std::span<const PartsLine> lines,
                                                   const Paper& paper);

/// The lines of one page, below a row of column titles, in px of the page.
void paintParts(Surface& surface, std::span<const PartsLine> lines, const Paper& paper);

} // namespace trassix
