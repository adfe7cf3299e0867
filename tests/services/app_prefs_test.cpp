#include "app/services/app_prefs.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace trassix::test {
namespace {

struct PrefsCase {
  const char* text;
  AppPrefs expected;
};

TEST(AppPrefs, ReadsEachLineByItsKeyAndFirstCharacter) {
  const PrefsCase cases[] = {
      {"", {true, false, 0}},
      {"units=2", {true, false, 2}},
      {"playful=0\nasked=1\nunits=1\n", {false, true, 1}},
      {"playful=0\r\nasked=1\r\nunits=2\r\n", {false, true, 2}},
      {"playful=10\nasked=19\nunits=12\n", {true, true, 1}},
      {"playful=\nasked=\n", {false, false, 0}},
      {"units=2\nunits=7\n", {true, false, 0}},
      {"units=2\nunits=x\n", {true, false, 0}},
      {"units=2\nunits=\n", {true, false, 0}},
      {"units=2\nunits=-1\n", {true, false, 0}},
      {"Playful=0\n playful=0\nplayful =0\nxplayful=0\n", {true, false, 0}},
      {"playful=0\nplayful=1\nasked=1\nasked=0\n", {true, false, 0}},
      {"something else\n\n=1\nunits=1", {true, false, 1}},
  };
  const TempFolder folder;
  const auto file = folder.path() / "prefs.cfg";
  for (const PrefsCase& given : cases) {
    writeText(file, given.text);
    AppPrefs prefs;
    EXPECT_TRUE(readPrefs(prefs, file));
    EXPECT_EQ(prefs, given.expected) << given.text;
  }
}

TEST(AppPrefs, WhatCannotBeOpenedLeavesTheRecordAlone) {
  const TempFolder folder;
  const AppPrefs chosen{false, true, 2};
  AppPrefs prefs = chosen;
  EXPECT_FALSE(readPrefs(prefs, folder.path() / "missing"));
  EXPECT_FALSE(readPrefs(prefs, folder.path())) << "a folder is not a preferences file";
  EXPECT_EQ(prefs, chosen);

  writeText(folder.path() / "file", "not a folder");
  writePrefs(prefs, folder.path() / "file" / "prefs.cfg");
  EXPECT_EQ(readText(folder.path() / "file"), "not a folder");
#ifndef _WIN32
  const auto pipe = folder.path() / "prefs.cfg"; // where reader and writer wait for each other
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  readPrefsOrMigrate(prefs, pipe, pipe);
  writePrefs(prefs, pipe);
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
#endif
}

TEST(AppPrefs, WritesThreeLinesIntoAFolderItMakes) {
  const TempFolder folder;
  const auto file = folder.path() / "new" / "deep folder" / "prefs.cfg";
  writePrefs({false, true, 2}, file);
  EXPECT_EQ(readText(file), "playful=0\nasked=1\nunits=2\n");
  writePrefs({true, false, 0}, file);
  EXPECT_EQ(readText(file), "playful=1\nasked=0\nunits=0\n");
}

TEST(AppPrefs, MovesFromTheLegacyFileOnce) {
  const TempFolder folder;
  const auto file = folder.path() / "user" / "prefs.cfg";
  const auto legacy = folder.path() / "install" / "prefs.cfg";

  AppPrefs prefs;
  readPrefsOrMigrate(prefs, file, legacy);
  EXPECT_EQ(prefs, AppPrefs{});
  EXPECT_FALSE(std::filesystem::exists(file)) << "nothing was found, so nothing moves";

  writeText(legacy, "units=2\n");
  readPrefsOrMigrate(prefs, file, legacy);
  EXPECT_EQ(prefs, (AppPrefs{true, false, 2}));
  EXPECT_EQ(readText(file), "playful=1\nasked=0\nunits=2\n");
  EXPECT_EQ(readText(legacy), "units=2\n");

  writeText(legacy, "units=1\n");
  AppPrefs next;
  readPrefsOrMigrate(next, file, legacy);
  EXPECT_EQ(next.units, 2) << "the user's file is there now and wins";
}

} // namespace
} // namespace trassix::test
