#include "document/plan_content.h"
#include "panels/bridge_form.h"
#include "panels/owned_stock.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <tuple>

namespace trassix {
namespace {

using Field = BridgeForm::Field;
using testing::HasSubstr;

/// A long straight line over another one, its middle selected.
Layout crossingLines() {
  Plan plan;
  plan.place("24188", {-5000, 0, 0}).extend("24188", 56);
  const std::int32_t middle = plan.layout.pieces()[27].id;
  plan.place("24188", {60, -700, 90}).extend("24188", 7);
  plan.layout.select(RecordKind::Piece, plan.last(), false);
  plan.layout.select(RecordKind::Piece, middle - 1, true);
  plan.layout.select(RecordKind::Piece, middle, true);
  return std::move(plan.layout);
}

TEST(BridgeForm, WhatWasTypedLastHoldsAndTheRestFollows) {
  const Layout layout = crossingLines();
  BridgeForm form(layout);
  const std::tuple<Field, const char*, const char*, const char*, const char*, const char*> steps[] =
      {{Field::Clearance, "70", "70", "93.0 mm", "4.0", ""},
       {Field::DeckHeight, "100", "80.0 mm", "100", "4.0", ""},
       {Field::Limit, "3", "80.0 mm", "100.0 mm", "3", ""},
       {Field::RampLength, "9 m", "80.0 mm", "100.0 mm", "3.0", ""},
       {Field::RampLength, "4 m", "80.0 mm", "100.0 mm", "3.0", ""},
       {Field::Limit, "6", "80.0 mm", "100.0 mm", "6", "5"},
       {Field::Limit, "5", "80.0 mm", "100.0 mm", "5", ""},
       {Field::DeckHeight, "high", "80.0 mm", "high", "5", "expected"},
       {Field::Clearance, "60", "60", "80.0 mm", "5.0", ""}};
  for (const auto& [field, typed, clearance, deck, limit, problem] : steps) {
    SCOPED_TRACE(typed);
    form.enter(field, typed);
    EXPECT_EQ(form.text(Field::Clearance), clearance);
    if (*problem == '\0') {
      EXPECT_EQ(form.text(Field::DeckHeight), deck);
    }
    EXPECT_EQ(form.text(Field::Limit), limit);
    EXPECT_THAT(form.problem(), HasSubstr(problem));
    EXPECT_EQ(form.ready(), *problem == '\0');
  }
  form.setWire(true);
  EXPECT_TRUE(form.wire());
  EXPECT_EQ(form.text(Field::DeckHeight), "110.0 mm");
  EXPECT_EQ(form.plan().portals(), 0U);
}

TEST(BridgeForm, OffersOtherBridgesAndBuildsTheChosenOne) {
  Layout layout = crossingLines();
  OwnedStock owned;
  owned.set("74636", 2);
  BridgeForm form(layout, &owned);
  EXPECT_EQ(form.crossedNames().size(), 1U);
  while (form.seekChoice()) {
  }
  const std::vector<std::string> names = form.choiceNames();
  const auto arch =
      std::ranges::find_if(names, [](const std::string& name) { return name.starts_with("Arch"); });
  ASSERT_NE(arch, names.end());
  EXPECT_THAT(names, testing::Contains(HasSubstr("steeper")));
  form.take(static_cast<std::size_t>(arch - names.begin()));
  EXPECT_EQ(form.spanNames()[form.span()], "Arch bridge");
  EXPECT_EQ(form.facts().back().text, "24229: 0, 74636: 2");
  const PlanContent before = layout.content();
  EXPECT_TRUE(form.apply(layout).changed());
  layout.undo();
  EXPECT_TRUE(layout.content() == before);
  layout.clearSelection();
  EXPECT_FALSE(BridgeForm(layout).ready());
}

} // namespace
} // namespace trassix
