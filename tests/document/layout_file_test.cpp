#include "catalog/track_catalog.h"
#include "document/block.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "document/repairs.h"
#include "support/comma_locale.h"
#include "support/documented_example.h"
#include "support/loose_records.h"
#include "support/print_records.h"
#include "support/random_plan.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <regex>

namespace trassix {
namespace {

std::string textOf(const Layout& layout, const std::string& name) {
  std::string text;
  EXPECT_EQ(writeLayout(layout, name, text), "");
  return text;
}

std::string withPiece(const std::string& attributes, const std::string& more = "") {
  return "<layout name=\"n\" version=\"1\" units=\"0\">\n  <pieces>\n    <piece " + attributes +
         ">\n" + more + "    </piece>\n  </pieces>\n</layout>\n";
}

TEST(LayoutFile, writesTheDocumentedExampleAsItIs) {
  const std::string example = test::documentedExample("<layout ");
  Layout layout;
  std::string name;
  ASSERT_EQ(readLayout(example, layout, name), "");
  EXPECT_EQ(name, "Südbahn");
  EXPECT_EQ(textOf(layout, name), example);

  ASSERT_EQ(layout.pieces().size(), 3U);
  const PlacedPiece second{2,    "24130", 288.3,         250, 0,  true, 0,       2.29,
                           true, true,    {255, 128, 0}, 2,   11, true, {{1, 1}}};
  EXPECT_EQ(layout.pieces()[1], second);
  EXPECT_EQ(layout.settings().levels[1].color, (Color{255, 128, 0}));
  EXPECT_EQ(layout.content().currentGrade, (CurrentGrade{true, 2.29, 2, 1}));
  EXPECT_EQ(layout.nextPieceId(), 12);
  EXPECT_FALSE(layout.canUndo());

  Layout same;
  const std::string windows = std::regex_replace(example, std::regex("\n"), "\r\n");
  const test::CommaLocale commas(true);
  ASSERT_EQ(readLayout(windows, same, name), "");
  EXPECT_EQ(textOf(same, name), example);
  if (!commas.inTheSystem())
    GTEST_SKIP() << "no such locale in the system, checked for streams only";
}

TEST(LayoutFile, readsWrittenLinesLikeAnyOthers) {
  const std::string example = test::documentedExample("<layout ");
  // clang-format off
  const std::pair<const char*, const char*> changes[] = {
      {"piece id=\"1\"", "piece id=\"2000000001\""}, {"\"24188\"", "\"</pieces>\""},
      {"\"24188\"", "\"\""}, {"288.3000", "-0.0000"}, {"288.3000", "1000000.0001"},
      {"288.3000", "12345678901.2345"}, {"288.3000", "8.30000"}, {"288.3000", "1.300"},
      {"250.0000", "nan"}, {"rev=\"1\"", "rev=\"0\""}, {"rev=\"1\"", "rev=\"10\""},
      {" free", " z=\"5\" free"}, {"level=\"2\" helix", "helix"}, {"16744448", "-1"},
      {"16744448", ""}, {"sel=\"0\">", "sel=\"0\"> color=\"5\">"}, {"conn=\"1\"", "conn=\"48\""},
      {"target=\"2\"", "target=\"-9999999999\""}, {"tconn=\"0\"", "tconn=\"-1\""},
      {"tconn=\"0\"", "tconn=\"-2\""}};
  // clang-format on
  for (const auto& [what, by] : changes) {
    std::string text = example;
    ASSERT_NE(text.find(what), std::string::npos) << what;
    text.replace(text.find(what), std::string_view(what).size(), by);
    Layout written;
    Layout other;
    std::string name;
    const std::string message = readLayout(text, written, name);
    EXPECT_EQ(readLayout(std::regex_replace(text, std::regex("\n"), " \n"), other, name), message);
    EXPECT_EQ(written.content(), other.content()) << by;
  }
}

TEST(LayoutFile, writesAnEmptyPlanInSixLines) {
  EXPECT_EQ(textOf(Layout(), "a & \"b\"\n<c>"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<layout name=\"a &amp; &quot;b&quot; &lt;c&gt;\" version=\"1\" units=\"0\">\n"
            "  <pieces>\n"
            "  </pieces>\n"
            "  <lastshape id=\"0\" w_mm=\"0.0000\" h_mm=\"0.0000\" w2_mm=\"0.0000\" "
            "h2_mm=\"0.0000\"/>\n"
            "</layout>\n");
}

TEST(LayoutFile, keepsEveryKindOfRecord) {
  const test::TempFolder folder;
  const auto file = folder.path() / "plan.txl";
  for (std::uint32_t seed = 0; seed < 40; ++seed) {
    const test::CommaLocale commas(seed % 2 == 1);
    Layout plan = test::randomPlan(seed, static_cast<int>(seed) * 3);
    plan.edit().measurements.push_back({});
    ASSERT_EQ(saveLayout(plan, file, "units="), "");
    plan.edit().measurements.clear(); // which the file does not keep
    Layout loaded;
    loaded.edit().measurements.push_back({});
    std::string name;
    ASSERT_EQ(loadLayout(file, loaded, name), "");
    EXPECT_EQ(name, "units=");
    EXPECT_EQ(loaded.pieces(), plan.pieces());
    EXPECT_EQ(loaded.content(), plan.content()) << "seed " << seed;
    EXPECT_EQ(loaded.settings(), plan.settings()) << "seed " << seed;
    EXPECT_EQ(loaded.nextPieceId(), plan.nextPieceId());
    EXPECT_EQ(textOf(loaded, name), test::readText(file));
  }
}

TEST(LayoutFile, refusesToSaveWhatCouldNotBeLoaded) {
  const test::TempFolder folder;
  const auto file = folder.path() / "plan.txl";
  test::writeText(file, "old");
  Layout layout = test::randomPlan(1, 3);
  layout.edit().pieces[1].heading = std::numeric_limits<double>::quiet_NaN();
  layout.edit().labels[0].x = std::numeric_limits<double>::infinity();
  const std::string message = saveLayout(layout, file, "n");
  EXPECT_TRUE(message.starts_with("Not a finite number: heading in <piece id=\"2\"")) << message;
  EXPECT_EQ(message.find('\n'), std::string::npos);
  EXPECT_EQ(test::readText(file), "old");
  EXPECT_TRUE(std::filesystem::remove(file) && std::filesystem::is_empty(folder.path()));

  const std::uint64_t revision = layout.revision();
  std::string name = "before";
  EXPECT_EQ(loadLayout("no/such/plan.txl", layout, name), "Cannot open file: no/such/plan.txl");
  EXPECT_TRUE(name == "before" && layout.revision() == revision);
}

TEST(LayoutFile, saysWhatIsWrongAndWhere) {
  const std::string good = "id=\"1\" cat=\"24188\" x=\"0\" y=\"0\" heading=\"0\" grade=\"0\"";
  const auto joint = [&good](const std::string& attributes) {
    return withPiece(good, "<joint " + attributes + "/>\n");
  };
  const auto line = [](const std::string& element) { return "<layout >\n\n" + element + "\n"; };
  const auto scenery = [&line](const std::string& scale) {
    return line("<scenery>\n<sceneryitem id=\"1\" x=\"0\" y=\"0\" heading=\"1e308\" scalex=\"" +
                scale + "\"");
  };
  const struct {
    std::string text;
    std::string message;
  } cases[] = {
      {withPiece("id=\"one\""), "invalid stoi argument (line 3, id=\"one\")"},
      {withPiece("id=\"1\" x=\"\""), "invalid stod argument (line 3, x=\"\")"},
      {withPiece("id=\"1\" x=\"1\" y=\"nan\""), "invalid stod argument (line 3, y=\"nan\")"},
      {withPiece("id=\"1\" x=\"1\" y=\"1e999\""),
       "stod argument out of range (line 3, y=\"1e999\")"},
      {withPiece("id=\"4294967296\""), "stoi argument out of range (line 3, id=\"4294967296\")"},
      {withPiece("id=\"2147483647\""), "id too large (line 3, id=\"2147483647\")"},
      {withPiece(good + " color=\"red\""), "invalid stoi argument (line 3, color=\"red\")"},
      {withPiece(good + " x=\"unclosed"), ""},
      {withPiece("x=\"unclosed"), "invalid stoi argument (line 3, id=\"\")"},
      {joint("conn=\"2147483647\" target=\"2\" tconn=\"0\""),
       "no such connector (line 4, conn=\"2147483647\")"},
      {joint("conn=\"-1\" target=\"2\" tconn=\"0\""), "no such connector (line 4, conn=\"-1\")"},
      {joint("conn=\"0\" target=\"2\" tconn=\"48\""), "no such connector (line 4, tconn=\"48\")"},
      {joint("conn=\"0\" target=\"2\" tconn=\"\""), "invalid stoi argument (line 4, tconn=\"\")"},
      {joint("conn=\"47\" target=\"2\" tconn=\"47\""), ""},
      {withPiece(good + " z=\"1000000.01\""), "length out of range (line 3, z=\"1000000.01\")"},
      {withPiece(good + " z=\"-1e6\""), ""},
      {line("<label id=\"1\" x=\"-1e19\""), "length out of range (line 3, x=\"-1e19\")"},
      {line("<helix id=\"1\" cx=\"0\" cy=\"1e7\""), "length out of range (line 3, cy=\"1e7\")"},
      {line("<lastshape id=\"0\" w_mm=\"1e7\""), "length out of range (line 3, w_mm=\"1e7\")"},
      {line("<baseboard>\n<vertex x=\"0\" y=\"1e7\"/>"), "length out of range (line 4, y=\"1e7\")"},
      {line("<levels active=\"1\">\n<level id=\"1\" height=\"1e7\""),
       "length out of range (line 4, height=\"1e7\")"},
      {scenery("1000\" scaley=\"0.0009"), "scale out of range (line 4, scaley=\"0.0009\")"},
      {scenery("-1"), "scale out of range (line 4, scalex=\"-1\")"},
      {line("<run deg=\"x\""), "invalid stod argument (line 3, deg=\"x\")"},
      {line("<lastshape id=\"0\" w_mm=\"wide\""), "invalid stod argument (line 3, w_mm=\"wide\")"},
      {line("<levels active=\"\">"), "invalid stoi argument (line 3, active=\"\")"},
      {line("<label id=\"1\" x=\"2\" text=\"t\"/>"), "invalid stod argument (line 3, y=\"\")"},
      {line("<shape id=\"1\" r=\"1\" g=\"1\" b=\"1\" a=\"\xc3\xa4\t\""),
       "invalid stoi argument (line 3, a=\"???\")"},
      {line("<helix id=\"" + std::string(50, 'z') + "\""),
       "invalid stoi argument (line 3, id=\"" + std::string(40, 'z') + "...\")"},
      {line("<tunnel id=\"1\" portalA=\"-99999999999\""),
       "stoi argument out of range (line 3, portalA=\"-99999999999\")"},
  };
  for (std::int32_t i = 0; i < TrackCatalog::instance().count(); ++i)
    EXPECT_LE(TrackCatalog::instance().at(i)->connectors.size(), 48U);
  for (const auto& c : cases) {
    Layout layout;
    std::string name;
    EXPECT_EQ(readLayout(c.text, layout, name), c.message) << c.text;
    EXPECT_EQ(layout.settings().levels.size(), 1U) << "fit for use also after a failure";
  }
}

TEST(LayoutFile, readsByPlainSearchAndSkipsTheUnknown) {
  const std::string text =
      "<joint conn=\"0\" target=\"1\" tconn=\"0\"/>\n<piece id=\"x\"/>\nnoise \" <pieces> noise\n"
      "  <joint conn=\"x\"/>\n"
      "  <piece id=\"7\" cat=\"a\" x=\"1e1\" y=\" +2mm\" heading=\"0\" grade=\"0\" new=\"1\"><b/>\n"
      "  <joint conn=\"2\" target=\"9\" tconn=\"1\"/>\n  <label id=\"x\"/>\n"
      "</pieces>\n<future id=\"x\"/>\n<pt x=\"x\"/>\n<v x=\"x\"/>\n<covers piece=\"1\"/>\n"
      "<levels active=\"4\">\n<pt x=\"x\"/>\n<level id=\"4\" name=\"n\" visible=\"yes\" "
      "height=\"1\" trackcolor=\"1\" r=\"300\" g=\"-1\" b=\"3\"/>\n</levels>\n"
      "<helix id=\"9\" cx=\"0\" cy=\"0\" heading=\"0\" bottomR1=\"1\" bottomR2=\"1\" topR1=\"1\" "
      "topR2=\"1\"/>";
  Layout layout;
  std::string name = "before";
  ASSERT_EQ(readLayout(text, layout, name), "");
  EXPECT_EQ(name, "");
  EXPECT_EQ(layout.pieces(),
            std::vector<PlacedPiece>{test::loosePiece(7, "a", {10, 2}, {{}, {}, {9, 1}})});
  EXPECT_EQ(layout.settings().levels,
            (std::vector<Level>{{4, "n", false, 1, true, {44, 255, 3}, {}}}));
  EXPECT_EQ(layout.settings().activeLevel, 4);
  EXPECT_EQ(layout.content().helices[0].variant, "proses_2_5_r1r2");
  EXPECT_TRUE(layout.content().tunnels.empty());
  EXPECT_EQ(layout.nextPieceId(), 10);
}

TEST(LayoutFile, survivesTruncationAndMonstrousLines) {
  const std::string example = test::documentedExample("<layout ");
  Layout layout;
  std::string name;
  for (std::size_t length = 0; length <= example.size(); ++length) {
    static_cast<void>(readLayout(std::string_view(example).substr(0, length), layout, name));
    static_cast<void>(textOf(layout, name));
  }
  const std::string filler(8 << 20, 'x');
  std::string attributes;
  while (attributes.size() < filler.size())
    attributes += "id=\"<pieces>\" ";
  for (const std::string& filling : {filler, std::string(8 << 20, '\0'), std::string(8 << 20, '<'),
                                     std::string(8 << 20, '"'), attributes}) {
    EXPECT_NE(readLayout("<run " + filling, layout, name), "");
    EXPECT_NE(readLayout("<run deg=\"1\" anchor=\"" + filling + "\"", layout, name), "");
  }
  EXPECT_EQ(readLayout("<label id=\"1\" x=\"0\" y=\"0\" text=\"" + filler + "\"/>", layout, name),
            "");
  EXPECT_EQ(layout.content().labels[0].text, filler);
}

TEST(LayoutFile, isMadeSoundAfterTheLoad) {
  const auto piece = [](std::int32_t id, const char* article, JointTable joints) {
    return test::loosePiece(id, article, {}, std::move(joints));
  };
  // A joint of two pieces at an end beyond, one-sided ones, ids twice and -1, an unknown article.
  const std::vector<PlacedPiece> damaged{
      piece(5, "24188", {{}, {7, 0}, {6, 0}}), piece(6, "24188", {{5, 2}, {5, 9}}),
      piece(5, "24188", {{6, 1}, {}, {6, 1}, {}}), piece(-1, "24188", {{9, 47}}),
      piece(9, "no such", {{}, {}, {6, 0}})};
  const std::vector<PlacedPiece> sound{
      piece(5, "24188", {{}, {7, 0}}), piece(6, "24188", {{}, {5, 9}}),
      piece(12, "24188", {{6, 1}, {}}), piece(13, "24188", {{9, 47}}),
      piece(9, "no such", {{}, {}, {6, 0}})};
  Layout layout;
  layout.edit().pieces = damaged;
  layout.edit().pieces[4].level = -1;
  layout.edit().helices.resize(2);
  layout.edit().pairs = {{-1, 6}};
  layout.editSettings().levels.resize(4);
  for (std::size_t i = 0; i < 4; ++i)
    layout.editSettings().levels[i].id = std::array{3, -1, 3, 1}[i];
  layout.editSettings().activeLevel = -1;
  layout.setNextPieceId(10);
  EXPECT_EQ(makeSound(layout), (Repairs{2, 6}));
  EXPECT_EQ(layout.pieces()[4].level, 2);
  layout.edit().pieces[4].level = -1; // which is nobody's by now
  EXPECT_EQ(makeSound(layout), (Repairs{0, 0, 1}));
  EXPECT_EQ(layout.pieces(), sound);
  EXPECT_TRUE(layout.content().pairs.empty());
  EXPECT_NE(layout.content().helices[0].id, layout.content().helices[1].id);
  EXPECT_EQ(layout.takeId(), 14);
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_EQ(layout.settings().levels[i].id, (std::array{3, 2, 4, 1}[i]));
  EXPECT_EQ(layout.settings().activeLevel, 2);
  EXPECT_EQ(describeRepairs(makeSound(layout)), "");
  layout.editSettings().activeLevel = -1;
  EXPECT_EQ(makeSound(layout), (Repairs{0, 0, 1}));
  EXPECT_EQ(layout.settings().activeLevel, 3);

  layout.edit().pieces = {piece(Layout::kLargestId, "", {}), piece(1, "", {}), piece(1, "", {}),
                          piece(3, "", {})};
  layout.setNextPieceId(Layout::kLargestId + 1);
  makeSound(layout);
  EXPECT_EQ(layout.pieces()[2].id, 2);
  EXPECT_GT(layout.takeId(), 3) << "they have started over";

  Block block;
  block.content.pieces = damaged;
  block.content.pairs = {{-1, 6}};
  block.content.scenery.resize(2);
  block.content.scenery[1].id = block.content.scenery[0].id = 5;
  block.content.scenery[1].level = -1;
  EXPECT_EQ(
      describeRepairs(makeSound(block)),
      "This file was damaged in places, which were mended. 2 joints at ends that their pieces "
      "do not have were opened. 3 records without numbers of their own got new ones. What stood on "
      "a level that cannot be was put on another.");
  EXPECT_FALSE(makeSound(block).any() || !block.content.pairs.empty());
}

} // namespace
} // namespace trassix
