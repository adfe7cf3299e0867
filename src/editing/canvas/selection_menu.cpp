#include "editing/canvas/selection_menu.h"

#include "document/limits.h"
#include "editing/autofill/autofill.h"
#include "editing/canvas/autofill_command.h"
#include "editing/canvas/selection_commands.h"
#include "editing/placing/placing.h"
#include "editing/placing/swapping.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

namespace trassix {

namespace {

/// Tells the ways apart in which one article fits: by its ends, numbered as in the properties, that
/// meet the neighbours.
std::string waysRound(const Layout& layout, std::int32_t piece, const SwapFit& fit) {
  std::string ends;
  for (std::size_t i = 0; i < fit.ends.size(); ++i) {
    if (fit.ends[i] == -1 || layout.findPiece(piece)->joint(i).open())
      continue;
    const std::string end = std::to_string(fit.ends[i] + 1);
    ends = ends.empty() ? end : tr("%1% and %2%", {ends, end});
  }
  return ends.empty() ? ends : tr(", joined by end %1%", {ends});
}

/// "Swap for ...": one row for each article that fits the ends of the piece.
void addSwaps(std::vector<MenuRow>& rows, ToolSite& site, std::int32_t piece) {
  const std::vector<SwapFit> fits = swapFits(site.layout(), piece);
  for (const SwapFit& fit : fits) {
    MenuRow row;
    row.text = fit.definition->name;
    if (std::ranges::count(fits, fit.definition, &SwapFit::definition) > 1 ||
        fit.definition->article == site.layout().findPiece(piece)->cat)
      row.text += waysRound(site.layout(), piece, fit);
    row.submenu = tr("Swap for");
    row.action = [&site, piece, fit] {
      if (!refuseLocked(site, "swap") && swapPiece(site.layout(), piece, fit))
        site.workspace.changed();
    };
    rows.push_back(row);
  }
}

} // namespace

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
    rows.push_back({tr("Extend"), tr("Double-click"), true, [&site, piece] {
                      const ExtensionWish wish{site.choice.end(site.layout()), {}};
                      site.reportExtension(cloneAndExtend(site.layout(), piece, wish));
                    }});
    rows.push_back({tr("Select Joined Track"), tr("Alt+Double-click"), true,
                    [&site, piece] { selectChain(site, piece); }});
  }
  if (onPiece)
    addSwaps(rows, site, under.front().id);
  const auto addEdit = [&](RecordKind kind, const char* text, auto edit) {
    if (under.empty() || under.front().kind != kind)
      return;
    // With track under a label the double-click goes on from that.
    const bool byDoubleClick =
        std::ranges::find(under, RecordKind::Piece, &Pick::kind) == under.end();
    rows.push_back({tr(text), byDoubleClick ? tr("Double-click") : std::string(), true,
                    [edit, id = under.front().id] { edit(id); }});
  };
  addEdit(RecordKind::Label, trLater("Edit Label..."),
          [&site](std::int32_t id) { askLabelText(site, id); });
  addEdit(RecordKind::Shape, trLater("Edit Shape..."),
          [&site](std::int32_t id) { editShape(site, id); });
  if (hasSelection(layout)) {
    separator();
    if (selectionBox(layout)) {
      rows.push_back({tr("Turn Right 15\u00b0"), tr("Ctrl+Wheel"), true,
                      [&site] { turnSelection(site, 15); }});
      rows.push_back({tr("Turn Left 15\u00b0"), tr("Ctrl+Wheel"), true,
                      [&site] { turnSelection(site, -15); }});
    }
    if (canAutofill(layout))
      rows.push_back({tr("Autofill Gap..."), "", true, [&site] { runAutofill(site); }});
    rows.push_back({tr("Cut"), tr("Ctrl+X"), true, [&site] { cutSelection(site); }});
    rows.push_back({tr("Copy"), tr("Ctrl+C"), true, [&site] { copySelection(site); }});
    rows.push_back({tr("Duplicate"), tr("Ctrl+D"), true, [&site] { duplicateSelection(site); }});
    rows.push_back({tr("Delete"), tr("Del"), true, [&site] { deleteSelected(site); }});
  }
  separator();
  const Block pasted = pastedBlock(site);
  rows.push_back(
      {tr("Paste"), tr("Ctrl+V"), !pasted.empty(), [&site, pasted] { site.carry(pasted); }});
  rows.push_back({tr("Select All"), tr("Ctrl+A"), true, [&site] {
                    selectAll(site.layout());
                    site.workspace.selectionChanged();
                  }});
  rows.push_back({tr("Add Label Here..."), "", true, [&site, at] {
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
