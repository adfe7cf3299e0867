#include "texts/texts.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

class Texts : public testing::Test {
 protected:
  ~Texts() override { setTranslator({}); }
};

TEST_F(Texts, PlaceholdersMayTurnTheirOrderAndBadOnesAreNoFailure) {
  EXPECT_EQ(tr("%1% of %2% %%", {3, "ten"}), "3 of ten %");
  EXPECT_EQ(trCount("%1% piece on %2%", "%1% pieces on %2%", 1, {"level"}), "1 piece on level");
  EXPECT_EQ(trCount("%1% piece", "%1% pieces", 1200), "1200 pieces");
  setTranslator({[](const char*) { return std::string("%2% (%1%) %3% 100%"); },
                 [](const char*, const char* many, std::uint64_t) { return std::string(many); }});
  EXPECT_THAT(tr("%1%, %2%", {"a", "b"}), testing::StartsWith("b (a) "));
  EXPECT_EQ(tr("plain 100 %"), "%2% (%1%) %3% 100%");
  EXPECT_EQ(tr("%1%", {"a", "b", "c", "d"}), "b (a) c 100%");
  EXPECT_EQ(trCount("one", "%1% many", 1), "1 many");
}

} // namespace
} // namespace trassix
