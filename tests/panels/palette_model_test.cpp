#include "catalog/track_catalog.h"
#include "panels/palette_model.h"

#include <gmock/gmock.h>

#include <set>

namespace trassix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Groups as "Name radius: articles".
std::vector<std::string> shown(const PaletteModel& palette) {
  std::vector<std::string> lines;
  for (const PaletteGroup& group : palette.groups()) {
    std::string line(groupName(group.group));
    line += group.radius > 0 ? " " + std::to_string(static_cast<int>(group.radius)) : "";
    line += ":";
    for (const PieceDef* piece : group.pieces) {
      line += " " + piece->article;
    }
    lines.push_back(line);
  }
  return lines;
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
  EXPECT_THAT(shown(PaletteModel(TrackSystem::Gauge1)),
              ElementsAre("Straights: 59051 59052 59053 59054 59055 59056 59057 59058 59059 59061",
                          "Curves 1020: 59035", "Curves 1176: 59072", "Curves 1394: 59073 59075",
                          "Curves 1550: 59074 59076", "Curves 1715: 59077", "Curves 2321: 59078",
                          "Curves 2461: 59071", "Turnouts: 59092 59083 59084 59085 59086 59091",
                          "Crossings and slips: 59093 59094", "Specials: 5602 59099"));
  for (const auto& [article, group] : {std::pair{"24294", PieceGroup::Specials}, // circuit curve
                                       {"5206", PieceGroup::Curves}, // compensation curve
                                       {"24997", PieceGroup::Specials},
                                       {"24951", PieceGroup::Specials},
                                       {"5214", PieceGroup::Turnouts},
                                       {"74623", PieceGroup::Bridges},
                                       {"7286", PieceGroup::Specials}}) {
    EXPECT_EQ(groupOf(*TrackCatalog::instance().find(article)), group) << article;
  }
}

TEST(PaletteModel, findsByArticleNameSortAndNumbers) {
  PaletteModel palette(TrackSystem::CTrack);
  const auto articles = [&palette](const char* search) {
    palette.setSearch(search);
    std::vector<std::string> found;
    for (const PaletteGroup& group : palette.groups()) {
      for (const PieceDef* piece : group.pieces) {
        found.push_back(piece->article);
      }
    }
    return found;
  };
  EXPECT_THAT(articles("437 30"), ElementsAre("24230", "24630", "74623"));
  EXPECT_THAT(articles("24.3 curve"), ElementsAre("24224"));
  EXPECT_THAT(articles("24,3 CURVE"), ElementsAre("24224"));
  EXPECT_THAT(articles("turnout left"), ElementsAre("24611", "24671", "24711", "24771"));
  EXPECT_THAT(articles("103.3"), ElementsAre("24649"));
  EXPECT_THAT(articles("buffer"), ElementsAre("24977", "24978"));
  EXPECT_THAT(articles("24188"), ElementsAre("24188"));
  EXPECT_THAT(articles("nothing like it"), IsEmpty());
  EXPECT_EQ(articles("  ").size(), 50U);
  palette.setSystem(TrackSystem::ZTrack);
  EXPECT_THAT(articles("113.8"), IsEmpty()); // the arc length of 8510, nowhere written
}

TEST(PaletteModel, putsRecentPiecesOfTheSystemOnTop) {
  PaletteModel palette(TrackSystem::TrixCTrack);
  for (const char* article : {"62188", "62130", "24188", "62636", "62188", "no such piece"}) {
    palette.noteUse(article);
  }
  EXPECT_EQ(shown(palette).front(), "Recently used: 62188 74636T 62130");
  palette.setSearch("bridge");
  EXPECT_EQ(shown(palette).front(), "Recently used: 74636T");
  palette.setSystem(TrackSystem::CTrack);
  palette.setSearch("");
  EXPECT_EQ(shown(palette).front(), "Recently used: 24188");
  for (const char* article :
       {"24172", "24360", "24094", "24077", "24071", "24064", "24130", "24230"}) {
    palette.noteUse(article);
  }
  EXPECT_EQ(shown(palette).front(),
            "Recently used: 24230 24130 24064 24071 24077 24094 24360 24172");
}

TEST(PaletteModel, showsTheSceneryOfTheGauge) {
  PaletteModel palette(TrackSystem::ZTrack);
  const auto keys = [&palette] {
    std::vector<std::string_view> found;
    for (const SceneryGroup& group : palette.scenery()) {
      for (const SceneryDef* item : group.items) {
        EXPECT_EQ(item->category, group.category);
        found.push_back(item->key);
      }
    }
    return found;
  };
  EXPECT_EQ(keys().size(), 118U);
  palette.setSearch("roundhouse");
  EXPECT_THAT(keys(), ElementsAre("8983"));
  palette.setSystem(TrackSystem::MTrack);
  EXPECT_THAT(keys(), ElementsAre("72886"));
  palette.setSearch("tree small");
  EXPECT_THAT(keys(), ElementsAre("tree.broad.s", "tree.fir.s"));
}

TEST(PaletteModel, followsTheSystemMostOfAPlanIsOf) {
  Layout layout;
  EXPECT_EQ(chiefSystem(layout), std::nullopt);
  for (const char* article : {"9999", "9999", "9999", "24188", "8500", "2200", "8510"}) {
    layout.edit().pieces.emplace_back().cat = article;
  }
  EXPECT_EQ(chiefSystem(layout), TrackSystem::ZTrack);
  layout.edit().pieces.pop_back();
  EXPECT_EQ(chiefSystem(layout), TrackSystem::CTrack);
}

} // namespace
} // namespace trassix
