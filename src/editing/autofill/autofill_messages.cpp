#include "editing/autofill/autofill_messages.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

namespace trassix {

namespace {

constexpr const char* kNoSolution = trLater("Autofill - No Solution");

std::string describe(const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  std::string text = "\n  - " + piece.cat + " (";
  if (definition != nullptr)
    text += systemNameInMessage(definition->system);
  return text + ")";
}

std::string displayName(const std::string& article) {
  const PieceDef* definition = TrackCatalog::instance().find(article);
  return definition == nullptr ? article : definition->name;
}

} // namespace

std::optional<Notice> autofillNotice(const Layout& layout, std::int32_t a, std::int32_t b,
                                     const Autofill& result) {
  if (result.success())
    return std::nullopt;
  if (result.mixedSystems)
    return Notice{
        tr("Autofill - Mixed Track Systems"),
        tr("Autofill can only run on pieces of the same track series.\n\nSelected pieces:") +
            describe(*layout.findPiece(a)) + describe(*layout.findPiece(b))};
  if (!result.gap)
    return Notice{
        tr(kNoSolution),
        tr("No combination of catalog track fills the gap between these two pieces.\n\n"
           "Autofill can bridge a straight gap, or a gap spanned by a single arc (a corner, "
           "a semicircle, or the rest of a circle). Gaps needing an S-curve, or a mix of "
           "curves and straights, are not supported.")};
  const std::string distance = formatFixed(result.gap->distance, 1);
  if (result.gap->kind == GapKind::Straight)
    return Notice{tr(kNoSolution), tr("Gap is %1%mm. No combination of catalog straights fills it "
                                      "within tolerance.",
                                      {distance})};
  // The two-character sequences are part of the text as users know it.
  return Notice{
      tr(kNoSolution),
      tr("Gap is %1%mm. No single arc of catalog curves fills it within tolerance.\\n\\nAutofill "
         "can bridge a gap with one arc (a corner, a semicircle, or the rest of a circle). Gaps "
         "needing an S-curve, or a mix of curves and straights, are not supported.",
         {distance})};
}

std::string autofillPrompt(const Gap& gap) {
  return tr("Gap: %1% mm. Select fill:", {formatFixed(gap.distance, 1)});
}

std::string autofillRow(GapKind kind, const FillCandidate& candidate) {
  if (kind == GapKind::Arc && !candidate.isS())
    return std::to_string(candidate.articles.size()) + " x " +
           (candidate.articles.empty() ? "" : displayName(candidate.articles.front())) + "  (" +
           formatFixed(candidate.total, 1) + " deg)";
  std::string row;
  for (const std::string& article : candidate.articles)
    row += (row.empty() ? "" : " + ") + displayName(article);
  return row + "  (" + formatFixed(candidate.total, 1) + " mm)";
}

std::string autofillRest(const Rest& rest) {
  constexpr double kShown = 0.05; // mm: less would read 0.0
  const auto apart = [](double mm, const char* text) {
    return mm < kShown ? std::string() : tr(text, {formatFixed(mm, 1)});
  };
  const std::string percent = formatFixed(std::abs(percentOf(rest.slope)), 1);
  const std::string climb = rest.slope == 0  ? std::string()
                            : rest.slope > 0 ? tr("climbing %1% %%", {percent})
                                             : tr("falling %1% %%", {percent});
  return joinTexts({rest.joins() ? tr("Joins both ends") : tr("Leaves the far end open"), climb,
                    apart(rest.distance, trLater("%1% mm apart")),
                    apart(rest.height, trLater("%1% mm apart in height"))},
                   ", ") +
         ".";
}

} // namespace trassix
