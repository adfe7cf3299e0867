#include "catalog/compatibility.h"
#include "catalog/plain_track.h"
#include "catalog/system_kits.h"
#include "catalog/track_catalog.h"
#include "catalog/track_system.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using enum TrackSystem;

/// Articles in a row, "-" for none.
std::string articles(const std::vector<const PieceDef*>& pieces) {
  std::string text;
  for (const PieceDef* piece : pieces)
    text += (text.empty() ? "" : " ") + (piece ? piece->article : "-");
  return text;
}

TEST(TrackSystem, hasNamesForEveryValueAndFallbacksBeyond) {
  struct Row {
    int value;
    const char *longName, *shortName, *key;
  };
  for (const Row& row : {Row{0, "Marklin C-Track", "Märklin C", "Marklin_C-Track"},
                         {1, "Marklin K-Track", "Märklin K", "Marklin_K-Track"},
                         {2, "Marklin Z-Track", "Märklin Z", "Marklin_Z-Track"},
                         {3, "TRIX C-Track", "TRIX C", "TRIX_C-Track"},
                         {4, nullptr, "Rokuhan Z", "Other"},
                         {5, nullptr, "Minitrix N", "Other"},
                         {6, nullptr, "Kato N", "Other"},
                         {7, "Marklin Gauge 1", "Märklin Gauge 1", "Marklin_Gauge1"},
                         {8, "Marklin M-Track", "Märklin M-Track", "Marklin_M-Track"},
                         {9, nullptr, "Unknown", "Other"},
                         {-1, nullptr, "Unknown", "Other"}}) {
    const auto system = static_cast<TrackSystem>(row.value);
    EXPECT_EQ(systemName(system), row.longName ? row.longName : "Other");
    EXPECT_EQ(systemNameInMessage(system), row.longName ? row.longName : "Unknown");
    EXPECT_EQ(systemShortName(system), row.shortName);
    EXPECT_EQ(paletteKey(systemName(system)), row.key);
  }
  EXPECT_EQ(paletteKey("Minitrix"), "Minitrix-Track");
  EXPECT_EQ(paletteKey("My own  track"), "My_own__track");
}

TEST(Compatibility, advisesTheAdapterInEitherOrder) {
  const std::string none = "There is no adapter track for this combination.";
  const std::string ck = "Use adapter track 24922 to connect C-Track to K-Track.";
  const std::string km = "Use adapter track 2291 to connect K-Track to M-Track.";
  const std::string cm = "Use adapter track 24951 to connect C-Track to M-Track.";
  for (const auto& [a, b, advice] : {std::tuple{CTrack, KTrack, ck},
                                     {KTrack, MTrack, km},
                                     {CTrack, MTrack, cm},
                                     {CTrack, TrixCTrack, none},
                                     {TrixCTrack, KTrack, none},
                                     {ZTrack, Gauge1, none}}) {
    EXPECT_EQ(adapterAdvice(a, b), advice);
    EXPECT_EQ(adapterAdvice(b, a), advice);
  }
  EXPECT_EQ(incompatibilityText(KatoN, CTrack),
            "Unknown cannot connect to Marklin C-Track.\n\nThese track systems are not "
            "compatible.\n" +
                none);
  const PieceDef& adapter = *TrackCatalog::instance().find("24951");
  EXPECT_TRUE(adapter.connectorSystem(1) == MTrack && adapter.connectorSystem(2) == CTrack);
}

TEST(PlainTrack, leavesOutPiecesWithAFunctionOfTheirOwn) {
  const auto straights = [](TrackSystem system) {
    std::vector<const PieceDef*> pieces;
    for (const PlainStraight& straight : plainStraights(system))
      pieces.push_back(straight.length == straight.piece->length ? straight.piece : nullptr);
    return articles(pieces);
  };
  EXPECT_EQ(straights(CTrack), "24360 24236 24229 24188 24172 24094 24077 24071 24064");
  EXPECT_EQ(straights(KTrack), "2205 2209 2200 2206 2207 2201 2202 2293 2208 2203 2204");
  EXPECT_EQ(straights(ZTrack), "8505 8506 8507 8500 8501 8503 8502 8504");
  EXPECT_EQ(straights(KatoN), "");
}

TEST(PlainTrack, keepsOneCornerCurvePerRadius) {
  const auto curves = [](TrackSystem system) {
    std::vector<const PieceDef*> pieces;
    for (const auto& [radius, piece] : plainCurvesByRadius(system))
      pieces.push_back(radius == piece->radius ? piece : nullptr);
    return articles(pieces);
  };
  EXPECT_EQ(curves(CTrack), "24130 24230 24330 24430 24530");
  EXPECT_EQ(curves(KTrack), "2210 2231 2241 2251");
  EXPECT_EQ(curves(ZTrack), "8510 8520 8530");
  EXPECT_EQ(curves(Gauge1), "59035 59072 59073 59076 59077 59078 59071");
}

TEST(SystemKits, holdThePiecesOfTheirSystem) {
  const auto bridge = [](TrackSystem system) {
    const BridgeKit kit = bridgeKit(system);
    return articles({kit.shortStraight, kit.standardStraight, kit.trussBridge, kit.archBridge});
  };
  const auto station = [](TrackSystem system) {
    const StationKit kit = stationKit(system);
    return articles({kit.leftTurnout, kit.rightTurnout, kit.compensationCurve, kit.straight});
  };
  EXPECT_EQ(bridge(CTrack), "24064 24188 74620 74636");
  EXPECT_EQ(bridge(TrixCTrack), "62064 62188 74620T 74636T");
  EXPECT_EQ(bridge(KTrack), "- - - -");
  EXPECT_EQ(station(CTrack), "24611 24612 24224 -");
  EXPECT_EQ(station(TrixCTrack), "62611 62612 62224 -");
  EXPECT_EQ(station(KTrack), "2262 2263 2232 -");
  EXPECT_EQ(station(MTrack), "5117 5119 5100 -");
  EXPECT_EQ(station(ZTrack), "8562 8563 8591 8500");
  EXPECT_EQ(station(Gauge1), "- - - -");
}

} // namespace
} // namespace trassix
