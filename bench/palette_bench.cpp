// Filling the palette with the largest system, drawings included, as when a system is chosen, and
// searching in it, as for each letter that is typed.
#include "catalog/track_catalog.h"
#include "editing/track/track_geometry.h"
#include "panels/palette_model.h"
#include "plain_track.h"
#include "ratio.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace trassix::bench {

namespace {

constexpr TrackSystem kLargest = TrackSystem::KTrack;

std::vector<const PieceDef*> piecesOf(TrackSystem system) {
  std::vector<const PieceDef*> pieces;
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i)
    if (catalog.at(i)->system == system)
      pieces.push_back(catalog.at(i));
  return pieces;
}

void fill(benchmark::State& state) {
  const auto fillPalette = [] {
    const PaletteModel palette(kLargest);
    for (const PaletteGroup& group : palette.groups())
      for (const PieceDef* piece : group.pieces)
        benchmark::DoNotOptimize(deriveTrackGeometry(*piece));
  };
  const auto drawAll = [] {
    for (const PieceDef* piece : piecesOf(kLargest))
      benchmark::DoNotOptimize(plainTrack(*piece));
  };
  compare(state, 1.3, "its drawings without a palette", timed(fillPalette), timed(drawAll));
}
BENCHMARK(fill)->Name("palette")->Iterations(1);

void search(benchmark::State& state) {
  PaletteModel palette(kLargest);
  const auto searchPalette = [&palette] {
    palette.setSearch("turnout 22.5");
    benchmark::DoNotOptimize(palette.groups());
  };
  std::vector<std::string> texts;
  for (const PieceDef* piece : piecesOf(kLargest))
    texts.push_back(piece->article + ' ' + piece->name);
  for (const SceneryDef& item : sceneryItems())
    texts.push_back(std::string(item.key) + ' ' + std::string(item.name));
  const auto searchTexts = [&texts] {
    std::vector<const std::string*> found;
    for (const std::string& text : texts) {
      std::string lower(text);
      std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return std::tolower(c); });
      if (lower.find("turnout") != std::string::npos && lower.find("22.5") != std::string::npos)
        found.push_back(&text);
    }
    benchmark::DoNotOptimize(found);
  };
  compare(state, 1.3, "looking through all names", timed(searchPalette), timed(searchTexts));
}
BENCHMARK(search)->Name("paletteSearch")->Iterations(1);

} // namespace

} // namespace trassix::bench
