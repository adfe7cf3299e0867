#include "document/block.h"
#include "document/record_kinds.h"
#include "panels/block_library.h"
#include "support/loose_records.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <regex>

namespace trassix {
namespace {

TEST(BlockLibrary, listsTheFilesOfAFolderByName) {
  const test::TempFolder folder;
  EXPECT_TRUE(libraryBlocks(folder.path() / "missing").empty());

  Layout layout;
  layout.edit().pieces.push_back(test::loosePiece(1, "24188", {500, 0}));
  layout.edit().pieces[0].sel = true;
  layout.edit().pieces[0].cat = "a & <b>";
  layout.edit().scenery = {{2, "c & d", 500, 0}};
  layout.edit().scenery[0].sel = true;
  ASSERT_EQ(saveBlock(layout, folder.path() / u8"Züge.txl", "e & f"), "");
  ASSERT_EQ(saveBlock(layout, folder.path() / "Yard.v2.txl", "Yard"), "");
  test::writeText(folder.path() / "Broken.txl", "<block name=\"x\">\n<piece id=\"a\" />\n");
  test::writeText(folder.path() / "notes.txt", "");
  test::writeText(folder.path() / "A.TXL", "");
  test::writeText(folder.path() / "folder.txl" / "inner.txl", "");

  std::vector<LibraryEntry> entries = libraryBlocks(folder.path());
#ifdef _WIN32 // where names differ by more than capitals
  EXPECT_EQ(entries.at(0).name, "A");
  entries.erase(entries.begin());
#endif
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries[0].name, "Broken");
  EXPECT_NE(entries[0].problem, "");
  EXPECT_EQ(entries[1].name, "Yard.v2");
  EXPECT_EQ(entries[2].name, "Züge");
  EXPECT_EQ(entries[2].problem, "");
  ASSERT_EQ(entries[2].block->content.pieces.size(), 1U);
  EXPECT_EQ(entries[2].block->content.pieces[0].x, 0);
  EXPECT_EQ(entries[2].block->content.pieces[0].cat, "a & <b>");
  EXPECT_EQ(entries[2].block->content.scenery.at(0).item, "c & d");
  EXPECT_EQ(entries[2].block->name, "e & f");

  test::writeText(folder.path() / "Yard.v2.txl",
                  std::regex_replace(test::readText(entries[1].file), std::regex("item id=\"2"),
                                     "item id=\"-1"));
  FileResult mended;
  const SharedBlock block = openBlock(entries[1].file, mended);
  EXPECT_EQ(mended.notices.size(), 1U);
  EXPECT_GE(block->content.scenery.at(0).id, 0);
}

} // namespace
} // namespace trassix
