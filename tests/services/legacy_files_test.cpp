#include "app/services/legacy_files.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <map>

namespace trassix::test {
namespace {

namespace fs = std::filesystem;

/// Relative name and content of every file under a folder.
std::map<std::string, std::string> filesUnder(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      const std::u8string name = fs::relative(entry.path(), folder).generic_u8string();
      files[std::string(name.begin(), name.end())] = readText(entry.path());
    }
  }
  return files;
}

class LegacyFiles : public testing::Test {
 protected:
  void install(const std::map<std::string, std::string>& files) {
    for (const auto& [name, text] : files) {
      writeText(installed / std::u8string(name.begin(), name.end()), text);
    }
  }

  TempFolder folder;
  fs::path installed = folder.path() / "install";
  fs::path layouts = folder.path() / "my documents" / "Trassix";

  void SetUp() override {
    fs::create_directories(installed);
    fs::create_directories(layouts);
  }
};

TEST_F(LegacyFiles, CopiesLayoutsAndBlocksButNothingElse) {
  install({{"Yard.txl", "new yard"},
           {"Größe 1.xml", "old"},
           {"catalog.xml", "the program's"},
           {"readme.txt", ""},
           {"plans/Inner.txl", ""},
           {"library/loose.txl", ""},
           {"library/Marklin_C-Track/Fan.txl", "block"},
           {"library/Marklin_C-Track/Fan.xml", ""},
           {"library/Marklin_C-Track/deep/Fan.txl", ""}});
  EXPECT_EQ(copyLegacyFiles(installed, layouts), 3);
  const std::map<std::string, std::string> expected{{"Yard.txl", "new yard"},
                                                    {"Größe 1.xml", "old"},
                                                    {"library/Marklin_C-Track/Fan.txl", "block"}};
  EXPECT_EQ(filesUnder(layouts), expected);
  EXPECT_EQ(filesUnder(installed).size(), 9U) << "sources stay";
  EXPECT_EQ(copyLegacyFiles(installed, layouts), 0) << "a second start finds nothing to do";
}

TEST_F(LegacyFiles, KeepsTheUsersFile) {
  install({{"Yard.txl", "from the install folder"}, {"library/K/Fan.txl", "theirs"}});
  writeText(layouts / "Yard.txl", "mine");
  writeText(layouts / "library/K/Fan.txl", "mine too");
  EXPECT_EQ(copyLegacyFiles(installed, layouts), 0);
  EXPECT_EQ(readText(layouts / "Yard.txl"), "mine");
  EXPECT_EQ(readText(layouts / "library/K/Fan.txl"), "mine too");
  EXPECT_EQ(copyLegacyFiles(installed, installed / "library" / ".."), 0) << "one and the same";
}

TEST_F(LegacyFiles, SkipsWhatCannotBeMadeOrRead) {
  install({{"Yard.txl", ""}, {"library/K/Fan.txl", ""}, {"library/Z/Fan.txl", ""}});
  writeText(layouts / "library/K", "a file where the folder should go");
  EXPECT_EQ(copyLegacyFiles(installed, layouts), 2);
  EXPECT_EQ(copyLegacyFiles(folder.path() / "missing", layouts), 0);
  EXPECT_EQ(copyLegacyFiles(installed, folder.path() / "missing"), 2)
      << "the library's folders are made, the layouts folder is not";
}

TEST_F(LegacyFiles, FallsBackWhereAFolderCannotBeMade) {
  const fs::path wanted = layouts / "a" / "b";
  EXPECT_EQ(folderOrFallback(wanted, installed), wanted);
  EXPECT_TRUE(fs::is_directory(wanted));
  writeText(layouts / "file", "");
  EXPECT_EQ(folderOrFallback(layouts / "file", installed), installed);
  EXPECT_EQ(folderOrFallback(layouts / "file" / "below", installed), installed);
}

} // namespace
} // namespace trassix::test
