#include "document/layout.h"
#include "document/record_kinds.h"
#include "editing/helix/helix_edits.h"
#include "panels/purchase_list.h"
#include "panels/tally.h"
#include "support/loose_records.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

Layout planOf(const std::vector<const char*>& articles) {
  Layout layout;
  for (const char* article : articles)
    layout.edit().pieces.push_back(test::loosePiece(layout.takeId(), article));
  return layout;
}

TEST(Tally, countsArticlesAsTheyAreSold) {
  const Tally tally = tallyOf(planOf({"8500", "unknown", "24188", "74618", "74618", "74618",
                                      "62636", "74636T", "24188", "7286", "2200", "another"}));
  std::string counts;
  for (const TallyRow& row : tally.rows)
    counts += row.article + " " + std::to_string(row.placed) + "/" + std::to_string(row.sold) + " ";
  EXPECT_EQ(counts, "24188 2/2 74618 3/2 74636T 2/2 8500 1/1 2200 1/1 7286 1/1 another 1/1 "
                    "unknown 1/1 ");
  EXPECT_EQ(tally.rows[1].name, "74618 Straight Ramp 180mm (pair)");
  EXPECT_EQ(tally.rows[2].system, TrackSystem::TrixCTrack);
  EXPECT_EQ(tally.pieces, 12);
}

TEST(Tally, HasASectionOfSupportsThatIsNeverBought) {
  Layout layout = planOf({"24188", "24130"});
  for (PlacedPiece& piece : layout.edit().pieces)
    piece.z = 50;
  Tally tally = tallyOf(layout);
  std::string names;
  for (const TallyRow& row : tally.rows)
    names += row.article + "|" + row.name.substr(0, 12) + "|" + std::to_string(row.sold) + "; ";
  EXPECT_EQ(names, "24188|24188 - 188.|1; 24130|24130 (30\u00b0)|1; |Supports|0; |Pier 45.0 mm|4; "
                   "|Shim 5.0 mm|4; ");
  EXPECT_EQ(tally.pieces, 2);
  sortTally(tally.rows, TallyColumn::Sold, false);
  EXPECT_EQ(tally.rows[2].name, "Supports");
  const std::string csv = tallyAsCsv(tally.rows, tallyHeadings());
  EXPECT_NE(csv.find("\r\nSupports,,,,\r\nMärklin C,,Pier 45.0 mm,4,4\r\n"), csv.npos) << csv;
  const std::vector<PurchaseRow> bought = purchaseList(tally.rows, OwnedStock());
  EXPECT_EQ(bought.size(), 2U);
  EXPECT_EQ(cartUrl("shop.example", bought).find("Pier"), std::string::npos);
}

TEST(Tally, measuresThePlan) {
  Layout layout = planOf({"24188", "24130", "24977", "24611", "unknown"});
  std::vector<PlacedPiece>& pieces = layout.edit().pieces;
  pieces[0].joints = {{}, {2, 0}};
  pieces[1].joints = {{1, 1}, {}};
  pieces[1].x = 188.3;
  pieces[2].heading = 90;
  pieces[3].y = 500;
  const Tally tally = tallyOf(layout);
  EXPECT_NEAR(tally.trackLength, 188.3 + 188.496 + 48.3 + 188.3, 0.01);
  EXPECT_EQ(tally.openEnds, 1 + 1 + 1 + 3);
  ASSERT_TRUE(tally.extent);
  EXPECT_NEAR(tally.extent->minX, -18.7, 0.01); // half the bed of the turned bumper
  EXPECT_NEAR(tally.extent->minY, -18.7, 0.01);
  EXPECT_NEAR(tally.extent->maxX, 188.3 + 180 + 18.7 / 2, 0.01);
  EXPECT_NEAR(tally.extent->maxY, 518.7, 0.01); // the left branch bends away from this side

  EXPECT_FALSE(tallyOf(planOf({"unknown"})).extent);
  EXPECT_EQ(tallyOf(planOf({"74861"})).openEnds, 0);
}

TEST(Tally, countsTheTrackOfHelices) {
  Layout layout;
  placeHelix(layout, usualHelix(*findHelixKit("proses_2_5_r1r2")).plan, 1);
  const Tally tally = tallyOf(layout);
  ASSERT_EQ(tally.rows.size(), 2U);
  EXPECT_EQ(tally.rows[0].placed + tally.rows[1].placed, 60);
  EXPECT_NEAR(tally.trackLength, 5 * 3.14159265 * (360 + 437.5), 0.01);
}

TEST(Tally, sortsByAnyColumn) {
  std::vector<TallyRow> rows =
      tallyOf(planOf({"24188", "8500", "24130", "24130", "74636T", "74636", "x1"})).rows;
  const auto sorted = [&rows](TallyColumn column, bool ascending) {
    sortTally(rows, column, ascending);
    std::string articles;
    for (const TallyRow& row : rows)
      articles += row.article + " ";
    return articles;
  };
  EXPECT_EQ(sorted(TallyColumn::Article, true), "8500 24130 24188 74636 74636T x1 ");
  EXPECT_EQ(sorted(TallyColumn::Placed, false), "24130 8500 24188 74636 74636T x1 ");
  EXPECT_EQ(sorted(TallyColumn::System, true), "x1 24130 24188 74636 8500 74636T ");
  EXPECT_EQ(sorted(TallyColumn::Name, false), "8500 74636T 74636 24188 24130 x1 ");
}

TEST(Tally, goesOutAsTableAndCsv) {
  const TallyHeadings headings{"S", "A", "N", "P", "O"};
  const std::vector<TallyRow> rows = tallyOf(planOf({"8500", "a\tb,\"c\"\n"})).rows;
  EXPECT_EQ(tallyAsTable(rows, headings), "S\tA\tN\tP\tO\n"
                                          "Märklin Z\t8500\t8500 Straight 110mm / 4-3/8\"\t1\t1\n"
                                          "\ta b,\"c\" \t\t1\t1\n");
  EXPECT_EQ(tallyAsCsv(rows, headings), "S,A,N,P,O\r\n"
                                        "Märklin Z,8500,\"8500 Straight 110mm / 4-3/8\"\"\",1,1\r\n"
                                        ",\"a\tb,\"\"c\"\"\n\",,1,1\r\n");

  for (const std::string text : {"=1+1", "+5", "@SUM(A1)", "-A1", " =2", "-", "-1.5.2"}) {
    const std::vector<TallyRow> formula = tallyOf(planOf({text.c_str()})).rows;
    EXPECT_EQ(tallyAsCsv(formula, headings), "S,A,N,P,O\r\n,'" + text + ",,1,1\r\n");
    EXPECT_EQ(tallyAsTable(formula, headings), "S\tA\tN\tP\tO\n\t'" + text + "\t\t1\t1\n");
  }
  EXPECT_EQ(tallyAsCsv(tallyOf(planOf({"-12.5", "\t3", "a=1"})).rows, headings),
            "S,A,N,P,O\r\n,'\t3,,1,1\r\n,-12.5,,1,1\r\n,a=1,,1,1\r\n");
}

} // namespace
} // namespace trassix
