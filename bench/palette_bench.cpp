// Filling the palette with the largest system, drawings included, as when a system is chosen.
#include "editing/track_geometry.h"
#include "panels/palette_model.h"

#include <benchmark/benchmark.h>

namespace trassix {
namespace {

void paletteOfLargestSystem(benchmark::State& state) {
  for (auto _ : state) {
    const PaletteModel palette(TrackSystem::KTrack);
    for (const PaletteGroup& group : palette.groups()) {
      for (const PieceDef* piece : group.pieces) {
        benchmark::DoNotOptimize(deriveTrackGeometry(*piece));
      }
    }
  }
}
BENCHMARK(paletteOfLargestSystem)->Unit(benchmark::kMillisecond);

void paletteSearch(benchmark::State& state) {
  PaletteModel palette(TrackSystem::KTrack);
  for (auto _ : state) {
    palette.setSearch("turnout 22.5");
    benchmark::DoNotOptimize(palette.groups());
  }
}
BENCHMARK(paletteSearch)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace trassix
