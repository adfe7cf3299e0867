#include "editing/canvas/selection_menu.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/autofill/autofill.h"
#include "editing/canvas/arrange_commands.h"
#include "editing/canvas/autofill_command.h"
#include "editing/canvas/helix_command.h"
#include "editing/canvas/selection_commands.h"
#include "editing/canvas/swap_command.h"
#include "editing/canvas/tunnel_command.h"
#include "editing/elevation/grade_runs.h"
#include "editing/helix/helix_edits.h"
#include "editing/placing/placing.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

namespace trassix {

std::vector<MenuRow> selectionMenu(ToolSite& site, const std::vector<Pick>& under, Point at) {
  Layout& layout = site.layout();
  std::vector<MenuRow> rows;
  const auto separator = [&rows] {
    if (!rows.empty() && !rows.back().text.empty())
      rows.push_back({});
  };
  const bool onPiece = !under.empty() && under.front().kind == RecordKind::Piece;
  if (onPiece) {
    const std::int32_t piece = under.front().id;
    if (const std::int32_t helix = helixUnder(layout, under.front()); helix != -1)
      rows = helixRows(site, helix);
    else
      rows.push_back({tr("Extend"), tr("Double-click"), {}, [&site, piece] {
                        const ExtensionWish wish{site.choice.end(site.layout()), {}};
                        site.reportExtension(cloneAndExtend(site.layout(), piece, wish));
                      }});
    rows.push_back({tr("Select Joined Track"), tr("Alt+Double-click"), {}, [&site, piece] {
                      selectChain(site, piece);
                    }});
    rows.push_back({tr("Elevation..."), "", {}, [&site] { changeHeights(site); }});
    if (runOver(layout, piece) != -1)
      rows.push_back({tr("End Grade Here"), "", {}, [&site, piece] {
                        if (endGradeHere(site.layout(), piece))
                          site.workspace.changed();
                      }});
  }
  if (onPiece && canSwap(layout, under.front().id))
    rows.push_back(
        {tr("Swap..."), "", {}, [&site, piece = under.front().id] { runSwap(site, piece); }});
  const auto addEdit = [&](RecordKind kind, const char* text, auto edit) {
    if (under.empty() || under.front().kind != kind)
      return;
    // With track under a label the double-click goes on from that.
    const bool byDoubleClick =
        std::ranges::find(under, RecordKind::Piece, &Pick::kind) == under.end();
    rows.push_back({tr(text),
                    byDoubleClick ? tr("Double-click") : std::string(),
                    {},
                    [edit, id = under.front().id] { edit(id); }});
  };
  addEdit(RecordKind::Label, trLater("Edit Label..."),
          [&site](std::int32_t id) { askLabelText(site, id); });
  addEdit(RecordKind::Shape, trLater("Edit Shape..."),
          [&site](std::int32_t id) { editShape(site, id); });
  if (hasSelection(layout)) {
    separator();
    if (selectionBox(layout)) {
      rows.push_back(
          {tr("Turn Right 15\u00b0"), tr("Ctrl+Wheel"), {}, [&site] { turnSelection(site, 15); }});
      rows.push_back(
          {tr("Turn Left 15\u00b0"), tr("Ctrl+Wheel"), {}, [&site] { turnSelection(site, -15); }});
    }
    std::ranges::move(arrangeRows(site), std::back_inserter(rows));
    if (canAutofill(layout))
      rows.push_back({tr("Autofill Gap..."), "", {}, [&site] { runAutofill(site); }});
    std::ranges::move(tunnelRows(site), std::back_inserter(rows));
    rows.push_back({tr("Cut"), tr("Ctrl+X"), {}, [&site] { cutSelection(site); }});
    rows.push_back({tr("Copy"), tr("Ctrl+C"), {}, [&site] { copySelection(site); }});
    rows.push_back({tr("Duplicate"), tr("Ctrl+D"), {}, [&site] { duplicateSelection(site); }});
    rows.push_back({tr("Delete"), tr("Del"), {}, [&site] { deleteSelected(site); }});
  }
  separator();
  const SharedBlock pasted = pastedBlock(site);
  rows.push_back({tr("Paste"), tr("Ctrl+V"),
                  isEmpty(*pasted) ? tr("Nothing to paste") : std::string(),
                  [&site, pasted] { site.carry(pasted); }});
  rows.push_back({tr("Select All"), tr("Ctrl+A"), {}, [&site] {
                    selectAll(site.layout());
                    site.workspace.selectionChanged();
                  }});
  rows.push_back({tr("Add Label Here..."), "", {}, [&site, at] {
                    if (!inLimits(at))
                      return site.questions().show(beyondPlan());
                    const auto text = site.questions().askText(tr("Add Label"), tr("Text:"), "");
                    if (!text || addLabel(site.layout(), at, *text) == -1)
                      return;
                    site.workspace.selectionChanged();
                    site.workspace.changed();
                  }});
  return rows;
}

} // namespace trassix
