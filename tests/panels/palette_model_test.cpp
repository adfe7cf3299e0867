#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "document/record_kinds.h"
#include "editing/selection/plan_systems.h"
#include "panels/palette_model.h"

#include <gmock/gmock.h>

#include <set>

namespace trassix {
namespace {

using testing::ElementsAre;

/// Groups as "Name radius: articles", one a line.
std::string shown(const PaletteModel& palette) {
  std::string text;
  for (const PaletteGroup& group : palette.groups()) {
    text += text.empty() ? "" : "\n";
    text += groupName(group.group);
    if (group.radius > 0)
      text.append(" ").append(std::to_string(static_cast<int>(group.radius)));
    text += ":";
    for (const PieceDef* piece : group.pieces)
      text.append(" ").append(piece->article);
  }
  return text;
}

TEST(PaletteModel, filesEveryPieceOfASystemOnce) {
  std::size_t all = 0;
  for (const TrackSystem system : paletteSystems()) {
    std::set<const PieceDef*> pieces;
    const PaletteModel palette(system);
    for (const PaletteGroup& group : palette.groups()) {
      for (const PieceDef* piece : group.pieces) {
        EXPECT_EQ(piece->system, system);
        EXPECT_TRUE(pieces.insert(piece).second) << piece->name;
      }
    }
    all += pieces.size();
  }
  EXPECT_EQ(all, static_cast<std::size_t>(TrackCatalog::instance().count()));
  EXPECT_EQ(shown(PaletteModel(TrackSystem::Gauge1)),
            "Straights: 59051 59052 59053 59054 59055 59056 59057 59058 59059 59061\n"
            "Curves 1020: 59035\nCurves 1176: 59072\nCurves 1394: 59073 59075\n"
            "Curves 1550: 59074 59076\nCurves 1715: 59077\nCurves 2321: 59078\n"
            "Curves 2461: 59071\nTurnouts: 59092 59083 59084 59085 59086 59091\n"
            "Crossings and slips: 59093 59094\nSpecials: 5602 59099");
  const auto group = [](const char* article) {
    return groupOf(*TrackCatalog::instance().find(article));
  };
  EXPECT_EQ(group("24294"), PieceGroup::Specials); // circuit curve
  EXPECT_EQ(group("5206"), PieceGroup::Curves);    // compensation curve
  EXPECT_EQ(group("24951"), PieceGroup::Specials);
  EXPECT_EQ(group("5214"), PieceGroup::Turnouts);
  EXPECT_EQ(group("74623"), PieceGroup::Bridges);
}

TEST(PaletteModel, findsByArticleNameSortAndNumbers) {
  PaletteModel palette(TrackSystem::CTrack);
  const auto found = [&palette](const char* search) {
    palette.setSearch(search);
    return shown(palette);
  };
  EXPECT_EQ(found("437 30"), "Curves 437: 24230\nTurnouts: 24630\nBridges and ramps: 74623");
  EXPECT_EQ(found("24,3 CURVE"), "Curves 437: 24224");
  EXPECT_EQ(found("turnout left"), "Turnouts: 24611 24671 24711 24771");
  EXPECT_EQ(found("r9 slim"), "Turnouts: 24711 24712");
  EXPECT_EQ(palette.count(), 1);
  for (const char* counted : {"6x24130", " 6 X 24130", "6*24130", "6\u00d724130"}) {
    EXPECT_EQ(found(counted), "Curves 360: 24130") << counted;
    EXPECT_EQ(palette.count(), 6);
  }
  EXPECT_EQ(found("100x24130") + found("0x24130") + found("x24130"), "");
  EXPECT_EQ(found("103.3"), "Crossings and slips: 24649");
  EXPECT_EQ(found("buffer"), "Specials: 24977 24978");
  EXPECT_EQ(found("nothing like it"), "");
  EXPECT_TRUE(palette.helices().empty());
  EXPECT_EQ(found("spiral 437.5"), "");
  ASSERT_EQ(palette.helices().size(), 3U);
  EXPECT_EQ(palette.helices()[1]->radii, "R1/R2");
  EXPECT_EQ(found("  "), shown(PaletteModel(TrackSystem::CTrack)));
  palette.setSystem(TrackSystem::ZTrack);
  EXPECT_EQ(found("113.8"), ""); // the arc length of 8510, nowhere written
}

TEST(PaletteModel, putsRecentPiecesOfTheSystemOnTop) {
  PaletteModel palette(TrackSystem::TrixCTrack);
  const auto recent = [&palette] {
    const std::string text = shown(palette);
    return text.substr(0, text.find('\n'));
  };
  for (const char* article : {"62188", "62130", "24188", "62636", "62188", "no such piece"})
    palette.noteUse(article);
  EXPECT_EQ(recent(), "Recently used: 62188 74636T 62130");
  palette.setSearch("bridge");
  EXPECT_EQ(recent(), "Recently used: 74636T");
  palette.setSystem(TrackSystem::CTrack);
  palette.setSearch("");
  for (const char* article :
       {"24172", "24360", "24094", "24077", "24071", "24064", "24130", "24230"})
    palette.noteUse(article);
  EXPECT_EQ(recent(), "Recently used: 24230 24130 24064 24071 24077 24094 24360 24172");
}

TEST(PaletteModel, showsTheSceneryOfTheGauge) {
  PaletteModel palette(TrackSystem::ZTrack);
  const auto keys = [&palette] {
    std::vector<std::string_view> found;
    for (const SceneryGroup& group : palette.scenery())
      for (const SceneryDef* item : group.items)
        found.push_back(item->key);
    return found;
  };
  EXPECT_EQ(keys().size(), 118U);
  palette.setSearch("roundhouse");
  EXPECT_THAT(keys(), ElementsAre("8983"));
  palette.setSystem(TrackSystem::MTrack);
  EXPECT_THAT(keys(), ElementsAre("72886"));
}

TEST(PaletteModel, followsTheSystemMostOfAPlanIsOf) {
  Layout layout;
  EXPECT_EQ(chiefSystem(layout), std::nullopt);
  for (const char* article : {"9999", "9999", "9999", "24188", "8500", "2200", "8510"})
    layout.edit().pieces.emplace_back().cat = article;
  EXPECT_EQ(chiefSystem(layout), TrackSystem::ZTrack);
  layout.edit().pieces.pop_back();
  EXPECT_EQ(chiefSystem(layout), TrackSystem::CTrack);
}

} // namespace
} // namespace trassix
