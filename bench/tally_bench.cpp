// The tally of a large plan, recomputed after each change.
#include "catalog/track_catalog.h"
#include "editing/selection/selection.h"
#include "panels/property_sheet.h"
#include "panels/tally.h"
#include "ratio.h"

#include <benchmark/benchmark.h>

namespace trassix {
namespace {

/// Every piece of the catalogue in turn along a spiral, so that the extent keeps growing.
Layout largePlan(std::int64_t pieces) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  Layout layout;
  for (std::int32_t i = 0; i < pieces; ++i) {
    const PieceDef& piece = *catalog.at(i % catalog.count());
    PlacedPiece placed;
    placed.id = layout.takeId();
    placed.cat = piece.article;
    placed.heading = i % 360;
    placed.x = i * (i % 2 == 0 ? 1.0 : -1.0);
    placed.y = i * (i % 4 < 2 ? 1.0 : -1.0);
    placed.joints.resize(piece.connectors.size());
    layout.edit().pieces.push_back(placed);
  }
  return layout;
}

void tallyOfPlan(benchmark::State& state) {
  const Layout layout = largePlan(state.range(0));
  bench::within(state, 5, [&layout] { benchmark::DoNotOptimize(tallyOf(layout)); });
}
BENCHMARK(tallyOfPlan)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// What the properties panel looks through with nothing or all of a large plan selected.
void sheetOfSelection(benchmark::State& state) {
  Layout layout = largePlan(10000);
  if (state.range(0) != 0)
    selectAll(layout);
  bench::within(state, 5, [&layout] { benchmark::DoNotOptimize(propertySheetOf(layout)); });
}
BENCHMARK(sheetOfSelection)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace trassix
