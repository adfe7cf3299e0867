#include "output/printed_plan.h"

#include "document/record_kinds.h"
#include "document/reselecting.h"
#include "editing/selection/content_box.h"
#include "editing/selection/record_body.h"
#include "editing/supports/supports.h"

#include <algorithm>

namespace trassix {

namespace {

template <class Record>
bool isAsked(const Record& record, const PrintOptions& options) {
  constexpr RecordKind kKind = Record::kKind;
  if constexpr (kKind == RecordKind::Scenery || kKind == RecordKind::Shape)
    return !options.has(print_what::kNoScenery);
  if constexpr (kKind == RecordKind::Measurement)
    return !options.has(print_what::kNoDimensions);
  if constexpr (kKind == RecordKind::Label)
    return options.labels;
  return static_cast<void>(record), true;
}

/// Leaves tunnels and helices whose track is left.
void dropEmptyUnits(PlanContent& content) {
  const auto has = [&content](auto belongs) {
    return std::ranges::any_of(content.pieces, belongs);
  };
  std::erase_if(content.helices, [&](const Helix& helix) {
    return !has([&helix](const PlacedPiece& piece) { return piece.helix == helix.id; });
  });
  std::erase_if(content.tunnels, [&](const Tunnel& tunnel) {
    return !has([&tunnel](const PlacedPiece& piece) {
      return std::ranges::find(tunnel.covers, piece.id) != tunnel.covers.end();
    });
  });
}

PrintedPlan partOf(const Layout& layout, const PrintOptions& options,
                   std::optional<std::int32_t> deck) {
  PrintedPlan plan; // a copy of the layout itself would bring its history along
  plan.layout.edit() = layout.content();
  plan.layout.editSettings() = layout.settings();
  forEachKind(plan.layout.edit(), [&](auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    std::erase_if(records, [&](const Record& record) {
      if constexpr (Selectable<Record>)
        if (options.selectionOnly && !record.sel)
          return true;
      if constexpr (OnLevel<Record>)
        if (!layout.levelVisible(record.level) || (deck && record.level != *deck))
          return true;
      return !isAsked(record, options);
    });
  });
  if (options.selectionOnly || deck)
    dropEmptyUnits(plan.layout.edit());
  plan.layout.reselect([](const auto&) { return false; });
  PlanSettings& settings = plan.layout.editSettings();
  std::erase_if(settings.levels, [deck](const Level& level) {
    return !level.visible || (deck && level.id != *deck);
  });
  if (deck) {
    settings.activeLevel = *deck;
    if (const Level* level = layout.findLevel(*deck))
      plan.deck = level->name;
  }
  if (options.selectionOnly) {
    settings.baseboard.clear();
    for (Level& level : settings.levels)
      level.outline.clear();
  }
  plan.index = PlanIndex(plan.layout);
  plan.extent = contentBox(plan.layout);
  return plan;
}

bool hasRecordsOn(const Layout& layout, std::int32_t level) {
  bool found = false;
  forEachOnLevels(layout.content(), [&](const auto& records) {
    found = found || std::ranges::any_of(
                         records, [level](const auto& record) { return record.level == level; });
  });
  return found;
}

bool edgeTouches(const Polygon& outline, const Box& box) {
  for (std::size_t i = 0; i < outline.size(); ++i)
    if (touches({outline[i], outline[(i + 1) % outline.size()]}, box))
      return true;
  return false;
}

} // namespace

std::vector<PrintedPlan> printedPlans(const Layout& layout, const PrintOptions& options) {
  const PlanSettings& settings = layout.settings();
  std::vector<PrintedPlan> plans;
  if (options.has(print_what::kActiveLevelOnly)) {
    plans.push_back(partOf(layout, options, settings.activeLevel));
  } else if (options.has(print_what::kDecksApart)) {
    std::vector<Level> decks = settings.levels;
    std::ranges::stable_sort(decks, {}, &Level::height);
    for (const Level& deck : decks)
      if (deck.visible && hasRecordsOn(layout, deck.id))
        plans.push_back(partOf(layout, options, deck.id));
  } else {
    plans.push_back(partOf(layout, options, {}));
  }
  std::erase_if(plans, [](const PrintedPlan& plan) { return !plan.extent; });
  if (options.has(print_what::kSupports))
    for (const Support& support : supportsOf(layout).supports)
      for (PrintedPlan& plan : plans)
        if (plan.layout.findPiece(support.piece) != nullptr)
          for (const Support& foot : standingParts(support))
            plan.supports.push_back({foot.pose, foot.along, foot.across, foot.head - foot.foot});
  return plans;
}

bool showsAnything(const PrintedPlan& plan, const Box& box, double mmPerPx) {
  if (!plan.index.inBox(box, false).empty())
    return true;
  bool found = false;
  forEachKind(plan.layout.content(), [&](const auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    if constexpr (Record::kKind != RecordKind::Piece)
      found = found || std::ranges::any_of(records, [&](const Record& record) {
                return touches(bodyOf(plan.layout, record, mmPerPx).outline, box);
              });
  });
  const PlanSettings& settings = plan.layout.settings();
  return found || edgeTouches(settings.baseboard, box) ||
         std::ranges::any_of(settings.levels, [&box](const Level& level) {
           return level.outline.size() >= 3 && edgeTouches(level.outline, box);
         });
}

} // namespace trassix
