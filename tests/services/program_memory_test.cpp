#include "app/services/program_memory.h"
#include "support/comma_locale.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace trassix::test {
namespace {

using testing::Optional;

TEST(ProgramMemory, ChangesOneSectionAndKeepsWhatItDoesNotKnow) {
  const TempFolder folder;
  const auto file = folder.path() / "new" / "memory.json";
  const ProgramMemory memory(file);
  EXPECT_EQ(memory.recall("window"), std::nullopt);
  for (const bool comma : {false, true}) {
    const CommaLocale locale(comma);
    writeText(file, R"({"later": 0.1, "window": {"title": "Über", "old": null}})");
    EXPECT_EQ(memory.remember("window",
                              [](auto& window) {
                                window["width"] = 1234567;
                                window["zoom"] = 1.5;
                              }),
              "");
    EXPECT_EQ(readText(file), "{\n  \"later\": 0.1,\n  \"window\": {\n    \"old\": null,\n"
                              "    \"title\": \"Über\",\n    \"width\": 1234567,\n"
                              "    \"zoom\": 1.5\n  }\n}\n");
    const auto window = memory.recall("window").value();
    EXPECT_THAT(valueIn<std::string>(window, "title"), Optional(std::string("Über")));
    EXPECT_THAT(valueIn<double>(window, "zoom"), Optional(1.5));
    for (const char* name : {"title", "zoom", "old", "missing", "width"}) // the last is too large
      EXPECT_EQ(valueIn<std::int16_t>(window, name), std::nullopt) << name;
  }
}

TEST(ProgramMemory, ADamagedFileIsKeptBesideAndNoneIsLost) {
  const auto remember = [](auto& section) { section["x"] = 1; };
  const std::string deep(100000, '[');
  for (const std::string& text : {std::string("{\"a\": {\"x\": 3"), std::string("{\"a\": 5}"),
                                  "{\"b\":" + deep + std::string(deep.size(), ']') + "}"}) {
    const TempFolder folder;
    const auto file = folder.path() / "memory.json";
    for (const char* copy : {".damaged", ".damaged-2"}) {
      writeText(file, text);
      EXPECT_EQ(ProgramMemory(file).recall("a"), std::nullopt);
      EXPECT_EQ(ProgramMemory(file).remember("a", remember), "");
      EXPECT_EQ(readText(file), "{\n  \"a\": {\n    \"x\": 1\n  }\n}\n");
      EXPECT_EQ(readText(file.string() + copy), text);
    }
    EXPECT_NE(ProgramMemory(folder.path()).remember("a", remember), "") << "no file";
  }
}

#ifndef _WIN32
TEST(ProgramMemory, ProgramsThatWriteAtTheSameTimeLoseNothing) {
  const TempFolder folder;
  const ProgramMemory memory(folder.path() / "memory.json");
  const pid_t other = fork();
  for (int i = 0; i < 30; ++i)
    for (const char* topic : {"shared", other == 0 ? "theirs" : "ours"})
      memory.remember(topic, [](auto& s) { s["n"] = valueIn<int>(s, "n").value_or(0) + 1; });
  if (other == 0)
    _exit(0);
  waitpid(other, nullptr, 0);
  for (const char* topic : {"shared", "theirs", "ours"})
    EXPECT_EQ(memory.recall(topic)->at("n"), *topic == 's' ? 60 : 30) << topic;
}
#endif

} // namespace
} // namespace trassix::test
