#include "editing/canvas/swap_command.h"

#include "document/plan_content.h"
#include "editing/canvas/selection_commands.h"
#include "editing/elevation/grades.h"
#include "editing/placing/flipping.h"
#include "editing/placing/swapping.h"
#include "host/plan_preview.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kShownChange = 0.0005; // of a slope: less would read the same

/// One way in which something takes the piece's place.
struct SwapRow {
  std::string text;
  std::function<ChangeResult(Layout&)> edit;
  double steeper = 0; ///< slope of the piece when that gets more, rise over length
};

/// What is placed, where, and by which of its ends it takes the place of the present one's first
/// joined end.
struct Laid {
  const PieceDef& definition;
  Pose pose;
  std::int32_t enter = 0;
};

/// To which side the track bends that comes in by the end; empty for straight on.
std::string bend(const Laid& laid) {
  const auto ends = WorldConnectorsOf(pieceAt(laid.pose), laid.definition);
  const auto& enter = ends[static_cast<std::size_t>(laid.enter)];
  const auto& leave = ends[laid.enter == 0 ? 1 : 0];
  const double turn = std::remainder(leave.heading - (enter.heading + 180), 360.0);
  return std::abs(turn) < 1 ? std::string()
         : turn < 0         ? tr("bends to the left")
                            : tr("bends to the right");
}

/// Where on the screen an end is, as seen from the middle of all.
std::string sideOfTip(const Laid& laid) {
  const auto ends = WorldConnectorsOf(pieceAt(laid.pose), laid.definition);
  Point middle;
  for (const WorldConnector& end : ends)
    middle = {middle.x + end.x / static_cast<double>(ends.size()),
              middle.y + end.y / static_cast<double>(ends.size())};
  const Point away{ends[0].x - middle.x, ends[0].y - middle.y};
  if (std::abs(away.x) >= std::abs(away.y))
    return away.x < 0 ? tr("tip at the left end") : tr("tip at the right end");
  return away.y < 0 ? tr("tip at the upper end") : tr("tip at the lower end");
}

/// What tells one way of lying from another, in words.
std::string lies(const Laid& laid) {
  if (laid.definition.connectors.size() == 2)
    return bend(laid);
  if (laid.definition.connectors.size() != 3)
    return tr("laid by end %1%", {laid.enter + 1});
  const char* branch = laid.definition.connectors[2].y < laid.definition.connectors[1].y
                           ? trLater("branch to the left")
                           : trLater("branch to the right");
  const std::string by = laid.enter == 2 ? tr("laid by its branch") : std::string();
  return joinTexts({tr(branch), sideOfTip(laid), by}, ", ");
}

std::int32_t firstJoined(const PlacedPiece& piece) {
  for (std::size_t i = 0; i < piece.joints.size(); ++i)
    if (!piece.joint(i).open())
      return static_cast<std::int32_t>(i);
  return 0;
}

/// The ends, numbered as in the properties, that meet the neighbours.
std::string joinedBy(const PlacedPiece& piece, const SwapFit& fit) {
  std::string ends;
  for (std::size_t i = 0; i < fit.ends.size(); ++i) {
    if (fit.ends[i] == -1 || piece.joint(i).open())
      continue;
    const std::string end = std::to_string(fit.ends[i] + 1);
    ends = ends.empty() ? end : tr("%1% and %2%", {ends, end});
  }
  return ends.empty() ? ends : tr("joined by end %1%", {ends});
}

std::vector<SwapRow> swapRows(const Layout& layout, std::int32_t id) {
  const PlacedPiece* piece = layout.findPiece(id);
  const PieceDef* present = piece == nullptr ? nullptr : definitionOf(*piece);
  if (present == nullptr)
    return {};
  std::vector<SwapRow> rows;
  const auto add = [&rows](const PieceDef& definition, const std::string& words, auto edit) {
    rows.push_back({joinTexts({definition.name, words}, ": "), edit, 0});
  };
  const std::int32_t joined = firstJoined(*piece);
  // The curve's other side and the turnout's other ends.
  for (const Flip& how : flipsOf(layout, id))
    add(*present, lies({*present, how.pose, how.to}),
        [how](Layout& plan) { return flip(plan, how); });
  const std::size_t flips = rows.size();
  const std::vector<SwapFit> fits = swapFits(layout, id);
  for (const SwapFit& fit : fits) {
    const std::int32_t enter = fit.ends[static_cast<std::size_t>(joined)];
    add(*fit.definition, lies({*fit.definition, fit.pose, std::max(enter, 0)}),
        [id, fit](Layout& plan) { return swapPiece(plan, id, fit); });
    if (const double slope = std::abs(slopeAfterSwap(layout, id, fit));
        slope > std::abs(slopeOf(*piece)) + kShownChange)
      rows.back().steeper = slope;
  }
  // Where words do not tell two apart, their ends do.
  const std::vector<SwapRow> before = rows;
  for (std::size_t i = flips; i < rows.size(); ++i)
    if (std::ranges::count(before, before[i].text, &SwapRow::text) > 1)
      rows[i].text = joinTexts({before[i].text, joinedBy(*piece, fits[i - flips])}, ", ");
  return rows;
}

} // namespace

bool canSwap(const Layout& layout, std::int32_t piece) {
  return !swapRows(layout, piece).empty();
}

void runSwap(ToolSite& site, std::int32_t piece) {
  const std::vector<SwapRow> rows = swapRows(site.layout(), piece);
  const PlacedPiece* present = site.layout().findPiece(piece);
  if (rows.empty() || present == nullptr || refuseLocked(site, "swap"))
    return;
  PlanPreview preview(site.workspace);
  Choice choice;
  choice.title = tr("Swap");
  choice.line = tr("What takes the place of %1%:", {definitionOf(*present)->name});
  for (const SwapRow& row : rows) {
    choice.rows.push_back(row.text);
    choice.notes.push_back(
        row.steeper == 0 ? std::string()
                         : tr("It will climb %1% %%.", {formatFixed(percentOf(row.steeper), 1)}));
  }
  choice.accept = tr("Swap");
  choice.about = {present->x, present->y};
  choice.highlighted = [&](std::size_t row) {
    preview.showEdit([&](Layout& scratch) { rows[row].edit(scratch); });
  };
  const std::optional<std::size_t> chosen = site.questions().choose(choice);
  if (chosen && maySteepen(site, tr("Swap"), rows[*chosen].steeper))
    site.report(rows[*chosen].edit(site.layout()));
}

} // namespace trassix
