#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"

#include <gmock/gmock.h>

#include <set>

namespace trassix {
namespace {

TEST(SceneryCatalog, holdsEveryItemOnceWithASizeInItsGauges) {
  std::set<std::string_view> keys;
  std::set<SceneryCategory> categories;
  for (const SceneryDef& item : sceneryItems()) {
    SCOPED_TRACE(item.key);
    EXPECT_TRUE(keys.insert(item.key).second);
    EXPECT_EQ(findScenery(item.key), &item);
    EXPECT_FALSE(categoryName(item.category).empty());
    categories.insert(item.category);
    for (const auto& size : item.sizes)
      EXPECT_TRUE(!size || (size->width > 0 && size->depth > 0 && size->height >= 0));
    // The three scales are 1:87, 1:220 and 1:32; small measures are rounded too much to compare.
    const auto& [h0, z, gauge1] = item.sizes;
    EXPECT_TRUE(h0 || z);
    EXPECT_EQ(h0 && z, gauge1.has_value());
    for (const auto side : {&Footprint::width, &Footprint::depth, &Footprint::height}) {
      if (gauge1 && (*h0).*side >= 15) {
        EXPECT_NEAR((*z).*side / (*h0).*side, 87.0 / 220, 0.06);
        EXPECT_NEAR((*gauge1).*side / (*h0).*side, 87.0 / 32, 0.12);
      }
    }
  }
  EXPECT_EQ(keys.size(), 139U);
  EXPECT_EQ(categories.size(), kSceneryCategoryCount);
  EXPECT_EQ(findScenery(""), nullptr);
  EXPECT_EQ(findScenery("72887"), nullptr);
}

TEST(SceneryCatalog, sizesAnItemForTheSystemBesideIt) {
  using enum TrackSystem;
  struct Row {
    const char* key;
    TrackSystem system;
    Footprint size;
  };
  for (const Row& row : {Row{"stn.small", CTrack, {180, 110, 130}},
                         {"stn.small", ZTrack, {70, 45, 50}},
                         {"stn.small", Gauge1, {490, 300, 355}},
                         {"stn.small", RokuhanZ, {70, 45, 50}},
                         {"72886", CTrack, {368, 346, 120}},
                         {"74861", CTrack, {378, 378, 10}}, // as its track
                         {"72886", ZTrack, {368, 346, 120}},
                         {"8983", MTrack, {145, 137, 47}},
                         {"br.truss", TrixCTrack, {188.3, 65, 65}},
                         {"br.truss", KTrack, {180, 65, 65}},
                         {"br.arch", ZTrack, {220, 28, 38}},
                         {"plat.side", Gauge1, {300, 110, 24}}})
    EXPECT_EQ(findScenery(row.key)->footprint(row.system), row.size) << row.key;
}

TEST(HelixKits, reachBeyondTheirOuterTrack) {
  ASSERT_NE(findHelixKit(kDefaultHelixKit), nullptr);
  EXPECT_EQ(findHelixKit(kDefaultHelixKit)->outermost().radius, 437.5);
  for (const HelixKit& kit : helixKits()) {
    EXPECT_EQ(findHelixKit(kit.key), &kit);
    EXPECT_GT(helixHalfSize(kit.key), kit.outermost().radius + 15);
  }
  EXPECT_EQ(helixHalfSize("unknown"), 500.0);
}

} // namespace
} // namespace trassix
