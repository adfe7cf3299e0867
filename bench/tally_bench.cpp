// What the side panels look through after each change of a large plan, against plain passes over
// its pieces.
#include "catalog/track_catalog.h"
#include "document/record_kinds.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/piece_outline.h"
#include "panels/property_sheet.h"
#include "panels/tally.h"
#include "ratio.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace trassix::bench {

namespace {

constexpr std::int32_t kPieces = 10000;

/// Every piece of the catalogue in turn along a spiral, so that the extent keeps growing.
Layout largePlan() {
  const TrackCatalog& catalog = TrackCatalog::instance();
  Layout layout;
  for (std::int32_t i = 0; i < kPieces; ++i) {
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

void count(const Layout& layout) {
  std::unordered_map<std::string_view, int> counts;
  for (const PlacedPiece& piece : layout.pieces())
    ++counts[piece.cat];
  benchmark::DoNotOptimize(counts);
}

void enclose(const Layout& layout) {
  Box box;
  for (const PlacedPiece& piece : layout.pieces()) {
    const PoseFrame frame(poseOf(piece));
    for (const auto& area : outlineOf(definitionOf(piece)).areas) {
      for (const Point& corner : area) {
        const Point at = frame(corner);
        box = {std::min(box.minX, at.x), std::min(box.minY, at.y), std::max(box.maxX, at.x),
               std::max(box.maxY, at.y)};
      }
    }
  }
  benchmark::DoNotOptimize(box);
}

/// Whether all pieces agree with the first one.
void agree(const Layout& layout) {
  const PlacedPiece& first = layout.pieces().front();
  const auto all = [&](auto same) { return std::ranges::all_of(layout.pieces(), same); };
  benchmark::DoNotOptimize(all([&](const PlacedPiece& p) { return p.sel; }));
  benchmark::DoNotOptimize(all([&](const PlacedPiece& p) { return p.level == first.level; }));
  benchmark::DoNotOptimize(all([&](const PlacedPiece& p) { return p.z == first.z; }));
  benchmark::DoNotOptimize(all([&](const PlacedPiece& p) { return p.hasColor == first.hasColor; }));
}

void tally(benchmark::State& state) {
  const Layout layout = largePlan();
  compare(state, 7, "counting in a hash map",
          timed([&layout] { benchmark::DoNotOptimize(tallyOf(layout)); }),
          timed([&layout] { count(layout); }));
}
BENCHMARK(tally)->Name("tally/10000")->Iterations(1);

Way sheetOf(const Layout& layout) {
  return timed([&layout] { benchmark::DoNotOptimize(propertySheetOf(layout)); });
}

void sheetOfPlan(benchmark::State& state) {
  const Layout layout = largePlan();
  compare(state, 2.3, "counting, and a box around all", sheetOf(layout), timed([&layout] {
            count(layout);
            enclose(layout);
          }));
}
BENCHMARK(sheetOfPlan)->Name("sheetOfPlan/10000")->Iterations(1);

void sheetOfSelection(benchmark::State& state) {
  Layout layout = largePlan();
  selectAll(layout);
  compare(state, 3.5, "counting, and comparing with the first", sheetOf(layout), timed([&layout] {
            count(layout);
            agree(layout);
          }));
}
BENCHMARK(sheetOfSelection)->Name("sheetOfSelection/10000")->Iterations(1);

} // namespace

} // namespace trassix::bench
