#include "editing/helix/helix_figures.h"

#include "editing/elevation/crossings.h"
#include "editing/elevation/grades.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

std::string percentText(double slope) {
  return tr("%1% %%", {formatFixed(percentOf(slope), 1)});
}

HelixVerdict verdictOn(const HelixFigures& figures) {
  if (figures.clearance < figures.least - kPitchPlay)
    return HelixVerdict::Refused;
  const GradeBand band = gradeBand(figures.tracks.front().slope);
  if (band == GradeBand::Comfortable && figures.clearance >= figures.leastWithWire - kPitchPlay)
    return HelixVerdict::Good;
  return band <= GradeBand::Caution ? HelixVerdict::Fair : HelixVerdict::Steep;
}

std::string gradeText(const HelixFigures::Track& track) {
  return tr("%1%, felt %2%", {percentText(track.slope), percentText(track.felt)});
}

std::string neededText(const HelixFigures& figures, double least, std::int32_t units) {
  return tr(figures.clearance < least - kPitchPlay ? trLater("%1%: too low")
                                                   : trLater("%1%: enough"),
            {formatBriefLength(least, units)});
}

/// Of inner ends that pass the outer track.
std::string crossingText(const HelixFigures& figures, std::int32_t units) {
  const double room = figures.crossing + kPitchPlay;
  return tr(room < figures.least           ? trLater("%1%: too low")
            : room < figures.leastWithWire ? trLater("%1%: too low for wire")
                                           : trLater("%1%: enough"),
            {formatBriefLength(figures.crossing, units)});
}

std::string piecesText(const HelixFigures& figures) {
  std::string text;
  for (const HelixFigures::Track& track : figures.tracks)
    text.append(text.empty() ? "" : ", ")
        .append(tr("%1% \u00d7 %2%", {track.pieces, track.curve->article}));
  return text;
}

/// Where the top is, seen from the bottom.
std::string exitText(const HelixKit& kit) {
  return kit.turns == std::floor(kit.turns) ? tr("Above, straight on") : tr("Other side, back");
}

} // namespace

HelixFigures figuresOf(const HelixPlan& plan) {
  HelixFigures figures;
  const auto add = [&](const PieceDef& curve, bool outer) {
    const double slope = plan.slope(outer);
    figures.tracks.push_back(
        {&curve, static_cast<std::size_t>(std::lround(plan.kit->turns * 360 / curve.angle)), slope,
         slope + curveResistance(curve, routesOf(curve).front())});
  };
  add(*plan.kit->inner, false);
  if (plan.kit->outer != nullptr)
    add(*plan.kit->outer, true);
  const TrackSystem system = plan.kit->system;
  figures.clearance = plan.pitch - railTop(system) - kDeckThickness;
  if (plan.kit->outer != nullptr) {
    const double missing = toDegrees(std::acos(plan.kit->inner->radius / plan.kit->outer->radius));
    figures.crossing = figures.clearance - plan.pitch * missing / 360;
  }
  figures.least = leastClearance(system, false);
  figures.leastWithWire = leastClearance(system, true);
  figures.board = 2 * plan.kit->outerSize;
  figures.verdict = verdictOn(figures);
  return figures;
}

std::string verdictText(const HelixFigures& figures) {
  const double slope = figures.tracks.front().slope;
  switch (figures.verdict) {
  case HelixVerdict::Refused:
    return tr("Too low: trains do not pass below its turns.");
  case HelixVerdict::Steep:
    return tr("Too steep: more than %1%.", {percentText(kCautionSlope)});
  case HelixVerdict::Good:
    return tr("Good: comfortable for all trains, and high enough for wire.");
  case HelixVerdict::Fair:
    break;
  }
  const bool steep = gradeBand(slope) != GradeBand::Comfortable;
  const bool low = figures.clearance < figures.leastWithWire - kPitchPlay;
  return steep && low
             ? tr("Fair: steeper than %1%, and too low for wire.", {percentText(kComfortableSlope)})
         : low ? tr("Fair: too low for wire.")
               : tr("Fair: steeper than %1%.", {percentText(kComfortableSlope)});
}

std::vector<HelixFact> factsOf(const HelixPlan& plan, std::int32_t units) {
  const HelixFigures figures = figuresOf(plan);
  std::vector<HelixFact> facts;
  if (figures.tracks.size() == 1) {
    facts.push_back({tr("Grade"), gradeText(figures.tracks[0])});
  } else {
    facts.push_back({tr("Grade, inner track"), gradeText(figures.tracks[0])});
    facts.push_back({tr("Grade, outer track"), gradeText(figures.tracks[1])});
    facts.push_back({tr("Keeping right"), plan.hand == HelixHand::Right
                                              ? tr("Up on the inner track")
                                              : tr("Up on the outer track")});
  }
  facts.push_back({tr("Clearance"), formatLength(figures.clearance, units)});
  facts.push_back({tr("Needed, no wire"), neededText(figures, figures.least, units)});
  facts.push_back({tr("Needed for wire"), neededText(figures, figures.leastWithWire, units)});
  if (figures.crossing != 0)
    facts.push_back({tr("Inner ends cross"), crossingText(figures, units)});
  facts.push_back({tr("Exit"), exitText(*plan.kit)});
  facts.push_back({tr("Board"), formatSize(figures.board, figures.board, units)});
  facts.push_back({tr("Pieces"), piecesText(figures)});
  return facts;
}

std::string turnsText(double turns) {
  return formatFixed(turns, turns == std::floor(turns) ? 0 : 1);
}

std::string radiusAdvice(TrackSystem system, std::int32_t units) {
  HelixPlan plan;
  plan.pitch = leastPitch(system, true);
  for (const HelixKit* kit : helixSizes(system)) {
    plan.kit = kit;
    if (gradeBand(plan.slope(false)) == GradeBand::Comfortable)
      return tr("Both, wire and at most %1%, take %2% or more: radius %3%.",
                {percentText(kComfortableSlope), kit->radii,
                 formatBriefLength(kit->inner->radius, units)});
  }
  return tr("Both, wire and at most %1%, take a larger radius than this system has.",
            {percentText(kComfortableSlope)});
}

} // namespace trassix
