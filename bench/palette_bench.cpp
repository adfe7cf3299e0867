// Filling the palette with the largest system, drawings included, as when a system is chosen.
#include "editing/track/track_geometry.h"
#include "panels/palette_model.h"
#include "ratio.h"

#include <benchmark/benchmark.h>

namespace trassix {
namespace {

void paletteOfLargestSystem(benchmark::State& state) {
  bench::within(state, 30, [] {
    const PaletteModel palette(TrackSystem::KTrack);
    for (const PaletteGroup& group : palette.groups()) {
      for (const PieceDef* piece : group.pieces) {
        benchmark::DoNotOptimize(deriveTrackGeometry(*piece));
      }
    }
  });
}
BENCHMARK(paletteOfLargestSystem)->UseManualTime()->Unit(benchmark::kMillisecond);

void paletteSearch(benchmark::State& state) {
  PaletteModel palette(TrackSystem::KTrack);
  // It is done anew for each letter that is typed.
  bench::within(state, 5, [&palette] {
    palette.setSearch("turnout 22.5");
    benchmark::DoNotOptimize(palette.groups());
  });
}
BENCHMARK(paletteSearch)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace trassix
