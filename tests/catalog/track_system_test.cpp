#include "catalog/compatibility.h"
#include "catalog/plain_track.h"
#include "catalog/system_kits.h"
#include "catalog/track_catalog.h"
#include "catalog/track_system.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using enum TrackSystem;
using testing::ElementsAre;

std::string articleOf(const PieceDef* piece) {
  return piece == nullptr ? "-" : piece->article;
}

TEST(TrackSystem, hasNamesForEveryValueAndFallbacksBeyond) {
  struct Row {
    int value;
    const char* longName;
    const char* shortName;
    const char* key;
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
  EXPECT_EQ(paletteKey(""), "");
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
  EXPECT_EQ(adapter.connectorSystem(0), CTrack);
  EXPECT_EQ(adapter.connectorSystem(1), MTrack);
  EXPECT_EQ(adapter.connectorSystem(2), CTrack);
}

TEST(PlainTrack, leavesOutPiecesWithAFunctionOfTheirOwn) {
  const auto articles = [](TrackSystem system) {
    std::vector<std::string> result;
    for (const PlainStraight& straight : plainStraights(system)) {
      EXPECT_EQ(straight.length, straight.piece->length);
      result.push_back(straight.piece->article);
    }
    return result;
  };
  EXPECT_THAT(articles(CTrack), ElementsAre("24360", "24236", "24229", "24188", "24172", "24094",
                                            "24077", "24071", "24064"));
  EXPECT_THAT(articles(KTrack), ElementsAre("2205", "2209", "2200", "2206", "2207", "2201", "2202",
                                            "2293", "2208", "2203", "2204"));
  EXPECT_THAT(articles(ZTrack),
              ElementsAre("8505", "8506", "8507", "8500", "8501", "8503", "8502", "8504"));
  EXPECT_THAT(articles(MTrack),
              ElementsAre("5106", "5107", "5129", "5108", "5109", "5110", "5210", "5208"));
  EXPECT_TRUE(articles(KatoN).empty());
}

TEST(PlainTrack, keepsOneCornerCurvePerRadius) {
  const auto articles = [](TrackSystem system) {
    std::vector<std::string> result;
    for (const auto& [radius, piece] : plainCurvesByRadius(system)) {
      EXPECT_EQ(radius, piece->radius);
      result.push_back(piece->article);
    }
    return result;
  };
  EXPECT_THAT(articles(CTrack), ElementsAre("24130", "24230", "24330", "24430", "24530"));
  EXPECT_THAT(articles(KTrack), ElementsAre("2210", "2231", "2241", "2251"));
  EXPECT_THAT(articles(ZTrack), ElementsAre("8510", "8520", "8530"));
  EXPECT_THAT(articles(MTrack), ElementsAre("5120", "5100", "5200"));
  EXPECT_THAT(articles(Gauge1),
              ElementsAre("59035", "59072", "59073", "59076", "59077", "59078", "59071"));
}

TEST(SystemKits, holdThePiecesOfTheirSystem) {
  const auto bridge = [](TrackSystem system) {
    const BridgeKit kit = bridgeKit(system);
    return articleOf(kit.shortStraight) + " " + articleOf(kit.standardStraight) + " " +
           articleOf(kit.trussBridge) + " " + articleOf(kit.archBridge);
  };
  const auto station = [](TrackSystem system) {
    const StationKit kit = stationKit(system);
    return articleOf(kit.leftTurnout) + " " + articleOf(kit.rightTurnout) + " " +
           articleOf(kit.compensationCurve) + " " + articleOf(kit.straight);
  };
  EXPECT_EQ(bridge(CTrack), "24064 24188 74620 74636");
  EXPECT_EQ(bridge(TrixCTrack), "62064 62188 74620T 74636T");
  EXPECT_EQ(bridgeKit(KTrack), BridgeKit{});
  EXPECT_EQ(station(CTrack), "24611 24612 24224 -");
  EXPECT_EQ(station(TrixCTrack), "62611 62612 62224 -");
  EXPECT_EQ(station(KTrack), "2262 2263 2232 -");
  EXPECT_EQ(station(MTrack), "5117 5119 5100 -");
  EXPECT_EQ(station(ZTrack), "8562 8563 8591 8500");
  EXPECT_EQ(stationKit(Gauge1), StationKit{});
}

} // namespace
} // namespace trassix
