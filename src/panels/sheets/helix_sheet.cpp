#include "document/plan_content.h"
#include "editing/helix/helix_edits.h"
#include "editing/helix/helix_figures.h"
#include "measures/measure_format.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

namespace trassix {

namespace {

constexpr double kHighest = 10000; // mm

auto pitching(std::int32_t helix, HelixPlan plan) {
  return [helix, plan](Layout& layout, double pitch, const Confirm&) -> ChangeResult {
    HelixPlan wanted = plan;
    wanted.pitch = pitch;
    EditResult result = changeHelix(layout, helix, wanted);
    if (result.refusal)
      return *std::move(result.refusal);
    ChangeResult change(result.changed());
    change.remark = std::move(result.remark);
    return change;
  };
}

auto lifting(std::int32_t bottom, double rise) {
  return [bottom, rise](Layout& layout, double height, const Confirm&) -> ChangeResult {
    const PlacedPiece* piece = layout.findPiece(bottom);
    return piece == nullptr ? ChangeResult(false) : setTrackHeight(layout, bottom, height + rise);
  };
}

} // namespace

void describeHelix(SheetBuilder& build, const Helix& helix) {
  const std::optional<HelixPlan> plan = planOfHelix(build.layout, helix);
  if (!plan) {
    build.sheet.title = tr("Helix");
    build.fixed(tr("Kit"), helix.variant);
    build.fixed(tr("Pieces"), piecesOfHelix(build.layout, helix.id).size());
    return;
  }
  build.sheet.title = tr("Helix %1%", {plan->kit->radii});
  build.fixed(tr("System"), std::string(systemShortName(plan->kit->system)));
  build.fixed(tr("Turns"), plan->hand == HelixHand::Right
                               ? tr("%1%, clockwise uphill", {turnsText(plan->kit->turns)})
                               : tr("%1%, anticlockwise uphill", {turnsText(plan->kit->turns)}));
  const PlacedPiece& bottom = *build.layout.findPiece(helix.bottomR1);
  build
      .length("pitch", tr("Pitch"), plan->pitch, leastPitch(plan->kit->system, false), kHighest,
              pitching(helix.id, *plan))
      .note = tr("Rise of one turn. Ends that are joined stay where they are, as many as can.");
  build
      .length("height", tr("Height"), plan->height, -kHighest, kHighest,
              lifting(bottom.id, bottom.z - plan->height))
      .note = tr("Of its bottom. All track joined to it goes along.");
  build.fixedLength(tr("Height of the top"), plan->height + plan->climb());
  build.fixedLength(tr("Climb"), plan->climb());
  for (HelixFact& fact : factsOf(*plan, build.units))
    build.fixed(std::move(fact.name), std::move(fact.text));
  build.level(bottom.level);
  build.trackColor(bottom.hasColor ? OwnColor(bottom.color) : std::nullopt);
}

} // namespace trassix
