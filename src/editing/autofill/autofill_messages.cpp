#include "editing/autofill/autofill_messages.h"

#include "catalog/track_catalog.h"
#include "texts/texts.h"

#include <array>
#include <charconv>

namespace trassix {

namespace {

constexpr const char* kNoSolution = trLater("Autofill - No Solution");

std::string oneDecimal(double value) {
  std::array<char, 340> text; // holds any double
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 1);
  return {text.data(), end.ptr};
}

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
  const std::string distance = oneDecimal(result.gap->distance);
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
  return tr("Gap: %1% mm. Select fill:", {oneDecimal(gap.distance)});
}

std::string autofillRow(GapKind kind, const FillCandidate& candidate) {
  if (kind == GapKind::Arc)
    return std::to_string(candidate.articles.size()) + " x " +
           (candidate.articles.empty() ? "" : displayName(candidate.articles.front())) + "  (" +
           oneDecimal(candidate.total) + " deg)";
  std::string row;
  for (const std::string& article : candidate.articles)
    row += (row.empty() ? "" : " + ") + displayName(article);
  return row + "  (" + oneDecimal(candidate.total) + " mm)";
}

std::string autofillRest(const Rest& rest) {
  constexpr double kShown = 0.05; // mm: less would read 0.0
  const auto apart = [](double mm, const char* text) {
    return mm < kShown ? std::string() : tr(text, {oneDecimal(mm)});
  };
  return joinTexts({rest.joins() ? tr("Joins both ends") : tr("Leaves the far end open"),
                    apart(rest.distance, trLater("%1% mm apart")),
                    apart(rest.height, trLater("%1% mm apart in height"))},
                   ", ") +
         ".";
}

} // namespace trassix
