#include "document/entities.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/open_plan.h"
#include "document/unread_part.h"
#include "support/documented_example.h"
#include "support/loose_records.h"
#include "support/print_records.h"
#include "support/random_plan.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <regex>

namespace trassix {
namespace {

std::string replaced(std::string text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), by);
}

TEST(OpenPlan, findsWhatTheReaderPassesOver) {
  const std::string example = test::documentedExample("<layout ");
  const struct {
    const char* what;
    const char* by;
    const char* unread;
  } cases[] = {
      {"</layout>", "", "it does not hold a whole layout"},
      {"<layout ", "<block ", "it does not hold a whole layout"},
      {"version=\"1\"", "version=\"1.1\"", "version 1.1"},
      {"version=\"1\"", "version=\"two\"", "version two"},
      {"  <pieces>", "  <pieces> <piece id=\"9\" cat=\"a\" x=\"1\"/>", "line 6, <piece>"},
      {"<pieces>\n", "<pieces >\n", "line 7, <piece>"},
      {"<scenery>\n", "<scenery> ", "line 16, <sceneryitem>"},
      {"    </piece>\n    <piece id=\"3\"", "</piece><piece id=\"8\"/><piece id=\"3\"",
       "line 12, <piece>"},
      {" cat=\"24188\"", "\n cat=\"24188\"", "line 7, <piece>"},
      {"    <piece", "    <!--\n--><joint conn=\"1\" target=\"2\" tconn=\"0\"/>\n    <piece",
       "line 8, <joint>"},
      {"</pieces>", "", "line 17, <sceneryitem>"},
      {"<baseboard>", "<scenery></scenery>\n<baseboard>", "line 29, <vertex>"},
      {"  </scenery>", "<piece id=\"9\"/>\n  </scenery>", "line 18, <piece>"},
      {"</baseboard>", "</baseboard>\n  <vertex x=\"0\" y=\"0\"/>", "line 33, <vertex>"},
      {"<level ", "<pt x=\"1\" y=\"1\"/>\n<level ", "line 20, <pt>"},
      {"outline=\"0\"", "outline=\"0\" label=\"<label 1\"", "line 38, <shape>"},
      {"<tunnels>", "<covers piece=\"1\"/>\n<tunnels>", "line 44, <covers>"},
      {"<helices>", "<helices bend=\"1\">", "line 50, <helices>"},
      {"<labels>", "<bridges>", "line 34, <bridges>"},
      {" sel=\"0\">", " sel=\"0\" gauge=\"H0\">", "line 7, gauge of <piece>"},
      {"x=\"500.0000\" y=\"120.0000\" heading=\"90.0000\" scalex=\"1.0000\"",
       "scalex=\"1.0000\" x=\"500.0000\" y=\"120.0000\" heading=\"90.0000\"",
       "line 17, x of <sceneryitem>"},
      {"id=\"5\" x", "id='5' x", "line 35, <label>"},
      {"text=\"Platform 1\"", "text=\"Platform \"1\"\"", "line 35, <label>"},
      {"<baseboard>", "<lastshape id=\"0\" w_mm=\"1\"/>\n<baseboard>", "line 34, <lastshape>"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(unreadPart(replaced(example, c.what, c.by)), c.unread) << c.by;
  EXPECT_NE(unreadPart(std::regex_replace(example, std::regex("\n"), "\r")), "");
}

TEST(OpenPlan, raisesNoFalseAlarm) {
  const std::string example = test::documentedExample("<layout ");
  const auto withText = [&](const char* text) { return replaced(example, "Platform 1", text); };
  std::vector<std::string> texts = {
      example,
      std::regex_replace(example, std::regex("\n"), "\r\n"),
      std::regex_replace(example, std::regex("\n *"), "\n\n\t"),
      std::regex_replace(example, std::regex("/>"), " />"),
      "\xef\xbb\xbf" + replaced(example, "?>\n", "?>\n<!DOCTYPE layout>\n<!-- <old> -->\n"),
      replaced(example, "<labels>",
               "<!-- a\n<b c> of the 1 < 2 \"yard -->\n free \" text\n<labels>"),
      replaced(example, " version=\"1\"", ""),
      replaced(example, "  <pieces>\n", "  <pieces>\n  </pieces>\n  <pieces>\n"),
      replaced(example, "x=\"40.0000\" y=\"30.0000\"", "y=\"30.0000\" x=\"40.0000\""),
      withText("a <b> & <shape 'c'> /> -- x='1' y="),
      withText("<!-- &lt;tunnel "),
      withText("\xff\x01 /"),
  };
  for (const auto& sample : std::filesystem::directory_iterator(TRASSIX_SOURCE_DIR "/samples"))
    texts.push_back(test::readText(sample.path()));
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    Layout plan = test::randomPlan(seed, static_cast<int>(seed));
    plan.edit().labels.push_back({77, "<!-- \"<piece \n&lt;", 0, 0});
    EXPECT_EQ(writeLayout(plan, "<layout \"/>", texts.emplace_back()), "");
  }
  for (const std::string& text : texts)
    EXPECT_EQ(unreadPart(text), "") << text;
}

TEST(OpenPlan, keepsTextsThroughSavesAndImports) {
  const test::TempFolder folder;
  const auto file = folder.path() / "plan.txl";
  const auto copy = folder.path() / "copy.txl";
  const std::string typed = "Müller & Söhne <\"1\"> &amp; &lt; &quot &#38;";
  OpenPlan plan;
  plan.startNew(2);
  EXPECT_EQ(plan.layout().settings().units, 2);
  plan.layout().editSettings().levels.at(0).name = typed;
  PlanContent& content = plan.layout().edit();
  content.pieces = {test::loosePiece(1, typed, {})};
  content.scenery = {{2, typed}};
  content.labels = {{3, typed}};
  content.shapes = {{4, {}, {}, 255, false, 1, 0, typed}};
  content.helices = {{5, 0, 0, 0, typed}};
  const PlanContent before = content;
  ASSERT_FALSE(plan.saveAs(file, typed).failed());
  const std::string bytes = test::readText(file);
  for (int i = 0; i < 10; ++i) {
    const auto& imported = i % 2 == 0 ? copy : file;
    ASSERT_FALSE(importPlan(file, imported, typed).failed());
    const FileResult opened = plan.load(imported);
    EXPECT_TRUE(!opened.failed() && opened.notices.empty()) << opened.message;
    EXPECT_EQ(plan.layout().content(), before);
    EXPECT_EQ(plan.layout().settings().levels.at(0).name, typed);
    EXPECT_EQ(plan.name(), typed);
    ASSERT_FALSE(plan.save().failed());
    EXPECT_EQ(test::readText(imported), bytes);
  }
  for (const auto& [written, meant] :
       {std::pair{"&amp;lt;", "&lt;"}, {"&amp", "&amp"}, {"&&gt;&quot;&apos;", "&>\"&apos;"}})
    EXPECT_EQ(decodeEntities(written), meant);
}

TEST(OpenPlan, belongsToAFileThatItMayReplace) {
  const test::TempFolder folder;
  const auto file = folder.path() / "plan.txl";
  const auto missing = folder.path() / "no" / "plan.txl";
  const auto odd = folder.path() / "odd.txl";
  OpenPlan plan;
  plan.layout() = test::randomPlan(1, 5);
  ASSERT_FALSE(plan.saveAs(file, "A").failed());
  plan.noteChange();
  test::writeText(odd, "<layout >\n<run deg=\"x\"/>\n</layout>");
  EXPECT_EQ(plan.load(missing).reason, std::errc::no_such_file_or_directory);
  EXPECT_TRUE(plan.load(odd).failed());
  EXPECT_EQ(plan.layout().pieces().size(), 5U);
  EXPECT_TRUE(plan.file() == file && plan.name() == "A" && plan.unsaved());

  EXPECT_EQ(plan.saveAs(missing, "B").reason, std::errc::no_such_file_or_directory);
  plan.fileDeleted(file);
  EXPECT_TRUE(plan.file() == missing && plan.name() == "B" && plan.unsaved());
  plan.fileDeleted(missing);
  EXPECT_EQ(plan.file(), "");

  test::writeText(odd, replaced(test::readText(file), "<layout ", "<new/><layout "));
  EXPECT_EQ(plan.load(odd).notices.size(), 1U);
  EXPECT_TRUE(plan.file().empty() && plan.name() == "A" && !plan.unsaved());
  EXPECT_EQ(importPlan(odd, file, "C").notices.size(), 1U);
  EXPECT_EQ(test::readText(file), test::readText(odd));
  test::writeText(odd, replaced(test::readText(odd), "<new/>", ""));
  test::writeText(
      odd, std::regex_replace(test::readText(odd), std::regex("<piece id=\"."), "<piece id=\"7"));
  EXPECT_EQ(plan.load(odd).notices.size(), 1U);
  EXPECT_NE(plan.layout().pieces()[0].id, plan.layout().pieces()[1].id);
  EXPECT_EQ(importPlan(odd, file, "C").notices.size(), 1U);
  EXPECT_TRUE(plan.load(file).notices.empty());
  EXPECT_EQ(importPlan(odd, missing, "C").step, ImportResult::Step::Copy);
  EXPECT_EQ(importPlan(missing, file, "C").step, ImportResult::Step::Read);
}

} // namespace
} // namespace trassix
