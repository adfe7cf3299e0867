#include "panels/purchase_list.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

TEST(OwnedStock, keepsRemarksAndWhatItCannotRead) {
  const test::TempFolder folder;
  const auto file = folder.path() / "owned.txt";
  OwnedStock stock;
  EXPECT_EQ(stock.load(file), "");
  test::writeText(file, "\xEF\xBB\xBF# mine\r\n24188 12\r\n\n  62636\t1\n74636T 2\n24130 many\n"
                        "24130 -1\n2200 1000000\n8500 3");
  EXPECT_THAT(stock.load(file),
              EndsWith("owned.txt, line 6: an article and a count are expected, found "
                       "\"24130 many\""));
  EXPECT_EQ(stock.count("24188"), 12);
  EXPECT_EQ(stock.count("62636"), 3);
  EXPECT_EQ(stock.count("74636T"), 3);
  EXPECT_EQ(stock.count("24130"), 0);
  stock.set("24188", 0);
  stock.set("24130", 2000000);
  EXPECT_EQ(stock.save(file), "");
  const std::string saved = test::readText(file);
  EXPECT_EQ(saved, "# mine\n\n74636T 3\n24130 many\n24130 -1\n2200 1000000\n8500 3\n"
                   "24130 999999\n");
  EXPECT_NE(stock.load(file), "");
  EXPECT_EQ(stock.save(file), "");
  EXPECT_EQ(test::readText(file), saved);

  EXPECT_NE(stock.load(folder.path()), ""); // a folder is no file: the stock stays as it was
  EXPECT_EQ(stock.count("8500"), 3);
  EXPECT_NE(stock.save(file), "") << "what could not be read is not replaced";
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
} // namespace trassix
