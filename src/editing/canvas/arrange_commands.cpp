#include "editing/canvas/arrange_commands.h"

#include "editing/arranging/parallel_pieces.h"
#include "editing/arranging/parallel_track.h"
#include "editing/canvas/selection_commands.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "host/plan_preview.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>

namespace trassix {

namespace {

constexpr std::size_t kGapsTold = 8;

std::string linesOf(const Layout& layout, const std::vector<ParallelGap>& gaps) {
  std::string lines;
  for (std::size_t i = 0; i < std::min(gaps.size(), kGapsTold); ++i)
    lines.append("\n").append(gapText(layout, gaps[i]));
  if (gaps.size() > kGapsTold)
    lines.append("\n").append(trCount("and one more", "and %1% more", gaps.size() - kGapsTold));
  return lines;
}

/// What comes of an offer, in one line.
std::string noteOf(const Layout& layout, double distance) {
  Layout scratch = layout;
  const ParallelResult result = layParallel(scratch, distance);
  if (result.edit.refusal)
    return result.gaps.empty() ? result.edit.refusal->text : gapText(layout, result.gaps.front());
  const std::string pieces = trCount("One piece", "%1% pieces", result.edit.placed.size());
  return result.gaps.empty() ? tr("%1%, all joints within 1 mm of the true parallel", {pieces})
                             : joinTexts({pieces, gapText(layout, result.gaps.front())}, ". ");
}

Point placeOfSelection(const Layout& layout) {
  const std::optional<MirrorLine> middle = mirrorLine(layout, MirrorWay::LeftToRight);
  return middle ? middle->on : Point{};
}

/// The row that the user takes: a distance, or with `another` the last row, which is none.
std::optional<std::size_t> chooseOffer(ToolSite& site, const std::vector<ParallelOffer>& offers,
                                       bool another) {
  const Layout& layout = site.layout();
  PlanPreview preview(site.workspace);
  Choice choice;
  choice.title = tr("Parallel Track");
  choice.line = tr("From middle to middle of the two tracks:");
  for (const ParallelOffer& offer : offers) {
    choice.rows.push_back(tr(
        "%1%, %2%", {offer.side, formatLength(std::abs(offer.distance), layout.settings().units)}));
    choice.notes.push_back(noteOf(layout, offer.distance));
  }
  if (another) {
    choice.rows.push_back(tr("Another Distance..."));
    choice.notes.emplace_back();
  }
  choice.accept = tr("Place");
  choice.about = placeOfSelection(layout);
  choice.highlighted = [&](std::size_t row) {
    if (row < offers.size())
      preview.showEdit([&](Layout& scratch) { layParallel(scratch, offers[row].distance); });
    else
      preview.showNothing();
  };
  return site.questions().choose(choice);
}

std::optional<double> askDistance(ToolSite& site, double usual) {
  constexpr double kLeast = 5; // mm
  constexpr double kMost = 5000;
  const std::int32_t units = site.layout().settings().units;
  std::string text = formatLength(usual, units);
  for (;;) {
    const auto typed = site.questions().askText(
        tr("Parallel Track"), tr("From middle to middle of the two tracks:"), text);
    if (!typed)
      return {};
    const NumberInput distance = readLength(*typed, units, kLeast, kMost);
    if (distance.good())
      return distance.value;
    site.questions().show({tr("Parallel Track"), distance.problem});
    text = *typed;
  }
}

void layChosen(ToolSite& site, double distance) {
  ParallelResult result = layParallel(site.layout(), distance);
  if (!result.gaps.empty() && result.edit.changed())
    result.edit.remark = Notice{tr("Parallel Track"), tr("The new track is not whole:%1%",
                                                         {linesOf(site.layout(), result.gaps)})};
  site.report(result.edit);
}

} // namespace

void runMirror(ToolSite& site, MirrorWay way) {
  Layout& layout = site.layout();
  const std::optional<MirrorLine> line = mirrorLine(layout, way);
  if (!line || refuseLocked(site, "mirror"))
    return;
  if (detachmentOf(layout, selectedPieces(layout)).opensGradedJoints &&
      !site.questions().confirm(
          {tr("Mirror"), tr("This takes the selection apart from graded track. Go on?"), true}))
    return;
  ChangeResult result = mirrorSelection(layout, *line);
  const std::vector<std::int32_t> without = selectedWithoutTwin(layout);
  if (!without.empty() && selectsMoreThan(layout, without)) {
    if (!site.questions().confirm(
            {tr("Mirror"), joinTexts({result.refusal->text,
                                      tr("Mirror the rest and leave these pieces as they are?")},
                                     "\n\n")}))
      return;
    result = mirrorSelection(layout, *line, true);
    site.workspace.selectionChanged();
  }
  site.report(result);
}

void runParallelTrack(ToolSite& site) {
  std::string problem;
  std::vector<ParallelOffer> offers = parallelOffers(site.layout(), problem);
  if (offers.empty())
    return site.questions().show({tr("Parallel Track"), problem});
  std::optional<std::size_t> row = chooseOffer(site, offers, true);
  if (row == offers.size()) {
    const std::optional<double> distance = askDistance(site, offers.back().distance);
    if (!distance)
      return;
    offers = parallelOffers(site.layout(), *distance);
    row = chooseOffer(site, offers, false);
  }
  if (row)
    layChosen(site, offers.at(*row).distance);
}

std::vector<MenuRow> arrangeRows(ToolSite& site) {
  std::vector<MenuRow> rows;
  const auto add = [&rows](const char* text, const char* submenu, std::string problem, auto action,
                           const std::string& keys = {}) {
    rows.push_back(
        {tr(text), keys, std::move(problem), action, submenu ? tr(submenu) : std::string()});
  };
  const Layout& layout = site.layout();
  if (!selectedPieces(layout).empty())
    add(
        trLater("Parallel Track..."), nullptr, {}, [&site] { runParallelTrack(site); },
        tr("Ctrl+L"));
  constexpr auto kMirror = trLater("Mirror");
  add(
      trLater("Left to Right"), kMirror, {}, [&site] { runMirror(site, MirrorWay::LeftToRight); },
      tr("Ctrl+M"));
  add(
      trLater("Top to Bottom"), kMirror, {}, [&site] { runMirror(site, MirrorWay::TopToBottom); },
      tr("Ctrl+Shift+M"));
  add(trLater("To the Other Side of Its Track"), kMirror,
      mirrorLine(layout, MirrorWay::AcrossTrack) ? std::string()
                                                 : tr("The selection goes on from no track"),
      [&site] { runMirror(site, MirrorWay::AcrossTrack); });
  if (!canAlign(layout))
    return rows;
  constexpr auto kAlign = trLater("Align");
  constexpr std::array<std::pair<const char*, AlignTo>, 6> kEdges{
      {{trLater("Left"), AlignTo::Left},
       {trLater("Centre"), AlignTo::Centre},
       {trLater("Right"), AlignTo::Right},
       {trLater("Top"), AlignTo::Top},
       {trLater("Middle"), AlignTo::Middle},
       {trLater("Bottom"), AlignTo::Bottom}}};
  for (const auto& [text, to] : kEdges)
    add(text, kAlign, {}, [&site, to = to] { site.report(alignSelection(site.layout(), to)); });
  const std::string tooFew = canDistribute(layout)
                                 ? std::string()
                                 : tr("Select scenery, labels or shapes, three at least");
  add(trLater("Even Gaps Across"), kAlign, tooFew,
      [&site] { site.report(distributeSelection(site.layout(), Axis::Across)); });
  add(trLater("Even Gaps Down"), kAlign, tooFew,
      [&site] { site.report(distributeSelection(site.layout(), Axis::Down)); });
  return rows;
}

} // namespace trassix
