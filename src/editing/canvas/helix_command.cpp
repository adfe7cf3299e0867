#include "editing/canvas/helix_command.h"

#include "document/plan_content.h"
#include "editing/helix/helix_edits.h"
#include "editing/records_by_id.h"
#include "texts/texts.h"

namespace trassix {

void runEditHelix(ToolSite& site, std::int32_t helix) {
  Layout& layout = site.layout();
  const Helix* record = recordWithId(layout.content().helices, helix);
  const auto present = record == nullptr ? std::nullopt : planOfHelix(layout, *record);
  if (!present)
    return site.questions().show(
        {tr("Edit Helix"), tr("This helix is of a kit that is not known here. Its track can be "
                              "turned into loose track.")});
  if (const auto wish = site.questions().askHelix(site.workspace, {*present}, helix))
    site.report(changeHelix(layout, helix, wish->plan));
}

std::vector<MenuRow> helixRows(ToolSite& site, std::int32_t helix) {
  const auto edit = [&site, helix](bool (*change)(Layout&, std::int32_t)) {
    return [&site, helix, change] {
      if (change(site.layout(), helix))
        site.workspace.changed();
    };
  };
  return {
      {tr("Edit Helix..."), tr("Double-click"), {}, [&site, helix] { runEditHelix(site, helix); }},
      {tr("Delete Helix"), "", {}, edit(deleteHelix)},
      {tr("Turn into Loose Track"), "", {}, edit(turnIntoLooseTrack)}};
}

} // namespace trassix
