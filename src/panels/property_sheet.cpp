#include "panels/property_sheet.h"

#include "document/layout.h"
#include "editing/helix/helix_edits.h"
#include "editing/selection/selection.h"
#include "panels/sheets/sheet_builder.h"

namespace trassix {

PropertySheet propertySheetOf(const Layout& layout) {
  SheetBuilder build(layout);
  std::size_t selected = 0;
  forEachSelectable(layout.content(), [&selected](const auto& records) {
    for (const auto& record : records)
      selected += record.sel ? 1 : 0;
  });
  if (selected == 0)
    describePlan(build);
  else if (const Helix* helix = recordWithId(layout.content().helices, selectedHelix(layout));
           helix != nullptr && selectedPieces(layout).size() == selected)
    describeHelix(build, *helix);
  else if (selected > 1)
    describeSeveral(build);
  else
    forEachSelectable(layout.content(), [&build](const auto& records) {
      for (const auto& record : records)
        if (record.sel)
          describe(build, record);
    });
  return std::move(build.sheet);
}

} // namespace trassix
