#include "catalog/track_catalog.h"
#include "editing/track/short_name.h"
#include "measures/measure_format.h"

#include <gtest/gtest.h>

#include <map>

namespace trassix {
namespace {

TEST(ShortName, beginsWithWhatTellsAPieceFromItsNeighbours) {
  const std::pair<const char*, const char*> kNames[] = {
      {"24188", "188.3 mm|"},
      {"2200", "180 mm|"},
      {"2205", "900 mm, flex|"},
      {"8501", "55 mm, half|"},
      {"24230", "R2 30°|"},
      {"62224", "R2 24.3°|"},
      {"2241", "R 553.9 mm 30°|"},
      {"5120", "R0 45°|"},
      {"5206", "R2 24.17°, compensation|"},
      {"24294", "circuit, R2 15°|"},
      {"24611", "left|R2 24.3°"},
      {"24711", "left, slim|R9 12.1°"},
      {"24772", "right, curved, slim|R3 30°"},
      {"8566", "right, manual|R4 13°"},
      {"2262", "left, R2 22.5°|"},
      {"22715", "left, R 902.4 mm 14.44°|"},
      {"59085", "left, curved|R4 22.5°"},
      {"24630", "three-way|R2 24.3°"},
      {"24720", "double slip slim, 12.1°|236.1 mm"},
      {"24649", "crossing, 48.6°|103.3 mm"},
      {"2257", "crossing, 22.5°, 225 mm|"},
      {"59092", "end piece frog, 15°|"},
      {"24978", "bumper stop with light|48.3 mm"},
      {"7391", "bumper, 40 mm|"},
      {"24997", "uncoupler, 94.2 mm|"},
      {"24922", "K-Track adapter, 180 mm|"},
      {"74861", "turntable|"},
      {"7287", "spoke extension, 57.5 mm|"},
      {"74636", "arch bridge, 360 mm|"},
      {"7268M", "ramp pair, 180 mm|"},
  };
  for (const auto& [article, expected] : kNames) {
    const ShortName name = shortNameOf(*TrackCatalog::instance().find(article), kMillimetres);
    EXPECT_EQ(name.text + "|" + name.rest, expected) << article;
  }
  EXPECT_EQ(shortNameOf(*TrackCatalog::instance().find("24188"), kInches).text, "7.413 in");
}

TEST(ShortName, isTheSameOnlyForPiecesOfTheSameForm) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::map<std::pair<TrackSystem, std::string>, const PieceDef*> known;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    const std::string name = shortNameOf(piece, kMillimetres).text;
    const PieceDef& first = *known.try_emplace({piece.system, name}, &piece).first->second;
    EXPECT_EQ(piece.connectors, first.connectors)
        << name << ": " << piece.name << ", " << first.name;
  }
}

} // namespace
} // namespace trassix
