#include "app/services/program_memory.h"
#include "panels/purchase_list.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace trassix::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

TEST(OwnedStock, IsRememberedAndTakesOverTheOlderFileOnce) {
  const TempFolder folder;
  const auto older = folder.path() / "owned.txt";
  const ProgramMemory memory(folder.path() / "memory.json");
  OwnedStock stock;
  EXPECT_EQ(stock.load(memory, older), "");
  writeText(older, "\xEF\xBB\xBF# mine\r\n24188 12\r\n\n  62636\t1\n74636T 2\n24130 many\n"
                   "24130 -1\n2200 1000000\n8500 3");
  EXPECT_THAT(stock.load(memory, older),
              EndsWith("owned.txt, line 6: an article and a count are expected, found "
                       "\"24130 many\""));
  EXPECT_EQ(stock.count("62636"), 3);
  stock.set("24188", 0);
  stock.set("24130", 2000000);
  EXPECT_EQ(stock.save(memory), "");
  EXPECT_EQ(OwnedStock().load(memory, older), "") << "the older file counts no more";
  EXPECT_EQ(memory.recall("ownedStock")->dump(), R"({"24130":999999,"74636T":3,"8500":3})");

  memory.remember("ownedStock", [](auto& section) {
    section = {{"62636", 1}, {"74636T", 2}, {"24188", "x"}, {"24172", -4}, {"8500", 3}};
  });
  stock.load(memory, older);
  OwnedStock elsewhere; // in another program, which runs as well
  elsewhere.load(memory, older);
  EXPECT_EQ(stock.count("24188") + stock.count("24172"), 0);
  stock.set("62636", stock.count("62636") + 1);
  elsewhere.set("8500", 4);
  EXPECT_EQ(stock.save(memory) + elsewhere.save(memory), "");
  EXPECT_EQ(memory.recall("ownedStock")->dump(), R"({"24172":-4,"24188":"x","74636T":4,"8500":4})");

  EXPECT_NE(stock.load(ProgramMemory(folder.path()), older), ""); // a folder is no file
  EXPECT_EQ(stock.count("8500"), 3) << "as it was";
  EXPECT_NE(stock.save(memory), "");
}

TEST(PurchaseList, buysWhatIsNotOwned) {
  OwnedStock stock;
  stock.set("24188", 5);
  stock.set("24130", 12);
  const std::vector<TallyRow> tally{{TrackSystem::CTrack, "24188", "Straight", 8, 8},
                                    {TrackSystem::CTrack, "24130", "Curve", 12, 12},
                                    {TrackSystem::CTrack, "74618", "Ramps", 3, 2},
                                    {std::nullopt, "Ö & 1/2?", "", 1, 1}};
  const std::vector<PurchaseRow> rows = purchaseList(tally, stock);
  EXPECT_THAT(rows, ElementsAre(PurchaseRow{"24188", "Straight", 8, 5, 3},
                                PurchaseRow{"24130", "Curve", 12, 12, 0},
                                PurchaseRow{"74618", "Ramps", 2, 0, 2},
                                PurchaseRow{"Ö & 1/2?", "", 1, 0, 1}));
  EXPECT_EQ(cartUrl("shop.example", rows),
            "https://shop.example/cart/?24188=3&74618=2&%C3%96%20%26%201%2F2%3F=1");
  EXPECT_EQ(cartUrl("shop.example", {rows[1]}), "");
}

} // namespace
} // namespace trassix::test
