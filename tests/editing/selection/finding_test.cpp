#include "editing/scenery/annotations.h"
#include "editing/selection/finding.h"
#include "support/plan.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

TEST(Finding, FindsWhatIsVisibleByArticleNameAndText) {
  Layout layout = Plan().place("62636").place("24711", {0, 300, 0}).layout;
  layout.edit().pieces.emplace_back().cat = "A-9";
  addLabel(layout, {900, 40}, "Slim yard");
  SceneryItem item;
  item.item = "72886";
  item.id = 77;
  layout.edit().scenery.push_back(item);
  const std::pair<const char*, const char*> kSearches[] = {
      {"slim", "Slim yard|24711  left, slim, turnout|"},
      {"TURNOUT 247", "24711  left, slim, turnout|"},
      {"arch", "74636T  arch bridge, 360 mm|"},
      {"a-9", "A-9|"},
      {"roundhouse", "roundhouse, 3 stalls at 12 degrees|"},
      {" ", ""},
      {"24130", ""},
  };
  for (const auto& [wanted, expected] : kSearches) {
    std::string found;
    for (const Found& hit : findOnPlan(layout, wanted))
      found += hit.text + "|";
    EXPECT_EQ(found, expected) << wanted;
  }
  const auto box = selectThese(layout, std::vector{findOnPlan(layout, "yard").at(0).record});
  EXPECT_TRUE(box && box->minX == 900 && layout.content().labels[0].sel && !layout.pieces()[1].sel);
  layout.editPiece(1)->cat = "62636";
  EXPECT_EQ(piecesOfArticle(layout, "74636T").size(), 1U) << "placed under its other number";
  layout.editSettings().levels.at(0).visible = false;
  EXPECT_TRUE(findOnPlan(layout, "24711").empty() && piecesOfArticle(layout, "24711").empty());
}

} // namespace
} // namespace trassix
