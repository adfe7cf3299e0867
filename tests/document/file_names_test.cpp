#include "document/file_names.h"

#include <gtest/gtest.h>

namespace trassix {
namespace {

TEST(FileNames, areJudgedByTheRulesOfAllSystems) {
  const std::string longest(200, 'n');
  for (const std::string& good :
       {std::string(), longest, std::string("Süd 1.2"), std::string("a..b"), std::string("Console"),
        std::string("COM10"), std::string("Lpt0"), std::string("it's 100 % (new)")})
    EXPECT_EQ(adviseOnName(good), NameAdvice{}) << good;
  for (const char* outside : {"/etc/x", "..\\x", "a/..", "..", "C:plan", "d:"})
    EXPECT_TRUE(adviseOnName(outside).leadsOut) << outside;
  for (const std::string& odd :
       {std::string("a/b"), std::string("a\\b..\\"), std::string("a\tb"), std::string("a\x7f"),
        std::string("a\xc2\x85"), std::string(1, '\0'), std::string("A: main"),
        std::string("what?"), std::string("<a>"), std::string("con"), std::string("Nul.v2"),
        std::string("LPT9 .x"), std::string("com1"), longest + "n"}) {
    EXPECT_NE(adviseOnName(odd).line, "") << odd;
    EXPECT_FALSE(adviseOnName(odd).leadsOut) << odd;
  }
  EXPECT_EQ(withoutSeparators("../a\\b & c/"), "..ab & c");
}

TEST(FileNames, ofPlansAreSafeInAnyFolder) {
  for (const auto& [name, safe] :
       {std::pair<std::string, std::string>{"Süd / \"West\"", "Süd _ _West_"},
        {"..", ".."},
        {"", "Unnamed"},
        {std::string(149, 'n') + "\u00fc", std::string(149, 'n')}})
    EXPECT_EQ(asFileName(name), safe);
}

} // namespace
} // namespace trassix
