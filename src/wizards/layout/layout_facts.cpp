#include "measures/measure_format.h"
#include "texts/texts.h"
#include "wizards/layout/layout_proposal.h"

#include <numeric>

namespace trassix {

namespace {

std::string residueText(double mm, std::int32_t units) {
  constexpr double kExact = 0.0005; // mm
  return mm < kExact ? tr("none, it closes exactly") : formatLength(mm, units);
}

std::string sidingText(const LayoutFigures& figures, std::int32_t units) {
  constexpr double kFacing = 0.005; // degrees
  const std::string gap = residueText(figures.sidingResidue, units);
  return figures.sidingTurn < kFacing
             ? gap
             : tr("%1%, turned by %2%°", {gap, formatFixed(figures.sidingTurn, 2)});
}

std::string missingText(const PieceStock& missing) {
  if (missing.empty())
    return tr("nothing");
  std::string list;
  for (const auto& [article, count] : missing)
    list = joinTexts({list, tr("%1% x %2%", {count, article})}, ", ");
  return list;
}

} // namespace

std::int32_t LayoutFigures::missingCount() const {
  return std::accumulate(
      missing.begin(), missing.end(), 0,
      [](std::int32_t sum, const auto& article) { return sum + article.second; });
}

std::vector<LayoutFact> factsOf(const LayoutProposal& proposal, std::int32_t units, bool playful) {
  const LayoutFigures& figures = proposal.figures;
  std::vector<LayoutFact> facts{{tr("Length of a lap"), formatLength(figures.length, units)}};
  if (playful)
    facts.push_back(
        {tr("A lap at scale speed"), tr("%1% minutes", {formatFixed(figures.lapMinutes, 1)})});
  facts.push_back({tr("Pieces"), std::to_string(figures.pieces)});
  facts.push_back({tr("Kinds of pieces"), std::to_string(figures.kinds)});
  facts.push_back({tr("Missing at home"), missingText(figures.missing)});
  facts.push_back({tr("Gap where the loop closes"), residueText(figures.residue, units)});
  if (figures.usableLength > 0) {
    facts.push_back({tr("Gap in the sidings"), sidingText(figures, units)});
    facts.push_back({tr("Usable station length"), formatLength(figures.usableLength, units)});
  }
  facts.push_back({tr("Smallest distance to the edge"), formatLength(figures.edgeDistance, units)});
  facts.push_back({tr("Track beyond arm's reach"), formatLength(figures.beyondReach, units)});
  return facts;
}

} // namespace trassix
