#include "measures/measure_format.h"
#include "texts/texts.h"
#include "wizards/bridge/bridge_plan.h"
#include "wizards/bridge/span_composing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace trassix {

namespace {

constexpr double kGentler = kComfortableSlope; // what "gentler" asks for
constexpr double kSame = 0.01;                 // mm

std::string percentText(double slope) {
  return formatFixed(percentOf(slope), 1);
}

std::string rampText(const BridgeRamp& ramp, std::int32_t units) {
  return trCount("%2% over %3%, one piece: at most %4% %%, with curves %5% %%",
                 "%2% over %3%, %1% pieces: at most %4% %%, with curves %5% %%", ramp.pieces,
                 {formatLength(ramp.rise, units), formatLength(ramp.length(), units),
                  percentText(ramp.steepest), percentText(ramp.felt)});
}

std::string clearanceText(const CrossedThing& thing, std::int32_t units) {
  return tr("%1% of %2%, at %3%°", {formatLength(thing.clearance, units),
                                    formatLength(thing.least, units), formatFixed(thing.angle, 1)});
}

std::string articlesText(const std::vector<ArticleChange>& articles, bool added) {
  std::string text;
  for (const ArticleChange& article : articles)
    if ((article.count > 0) == added)
      text += (text.empty() ? "" : ", ") + std::to_string(std::abs(article.count)) + " × " +
              article.article;
  return text;
}

std::string spansText(const BridgePlan& plan, std::int32_t units) {
  const auto oneOf = [units](const BridgeSpan& span) {
    const std::string length = formatLength(span.to - span.from, units);
    return span.article.empty() ? tr("deck %1%", {length}) : tr("%1% %2%", {span.article, length});
  };
  std::string text;
  for (auto span = plan.spans.begin(); span != plan.spans.end();) {
    const std::string one = oneOf(*span);
    const auto other =
        std::find_if(span, plan.spans.end(), [&](const auto& next) { return oneOf(next) != one; });
    text += text.empty() ? "" : ", ";
    text += other - span == 1 ? one : std::to_string(other - span) + " × " + one;
    span = other;
  }
  return text;
}

std::string piersText(const BridgePlan& plan) {
  const auto shims = std::ranges::count_if(
      plan.piers, [](const BridgePier& pier) { return !pier.portal && pier.stack.shim > 0; });
  const std::size_t count = plan.piers.size() - plan.portals();
  return shims == 0 ? tr("%1%, none with a shim", {count})
                    : trCount("%2%, one of them with a shim", "%2%, %1% of them with shims",
                              static_cast<std::size_t>(shims), {count});
}

} // namespace

bool builtAlike(const BridgePlan& a, const BridgePlan& b) {
  const auto alike = [](double x, double y) { return std::abs(x - y) < kSame; };
  const auto sameRamp = [&](const BridgeRamp& x, const BridgeRamp& y) {
    return x.pieces == y.pieces && alike(x.rise, y.rise) &&
           alike(x.steepest * 1e4, y.steepest * 1e4);
  };
  const auto sameSpan = [](const BridgeSpan& x, const BridgeSpan& y) {
    return x.article == y.article && x.pieces.size() == y.pieces.size();
  };
  return alike(a.deckHeight, b.deckHeight) && a.articles == b.articles &&
         std::ranges::equal(a.ramps, b.ramps, sameRamp) &&
         std::ranges::equal(a.spans, b.spans, sameSpan);
}

std::vector<BridgeChoice> bridgeIdeas(const Layout& layout, const BridgeTask& task) {
  std::vector<BridgeChoice> ideas;
  const auto add = [&](std::string name, const BridgeTask& other) {
    if (other != task)
      ideas.push_back({std::move(name), other, {}});
  };
  BridgeTask other = task;
  if (task.way != BridgeWay::AsItLies) {
    other.limit = kMostBridgeLimit;
    other.rampLength = 0;
    add(tr("Shorter and steeper"), other);
    other.limit = std::min(task.limit, kGentler);
    add(tr("Longer and gentler"), other);
    other = task;
    other.piers = PierHeights::SeriesOnly;
    other.limit = kMostBridgeLimit;
    add(tr("Piers of the series"), other);
  }
  for (const SpanKind kind : spanKinds(systemOf(layout, task))) {
    other = task;
    other.span = kind;
    add(nameOf(kind), other);
  }
  return ideas;
}

std::vector<BridgeFact> factsOf(const BridgePlan& plan, std::int32_t units) {
  std::vector<BridgeFact> facts;
  for (const CrossedThing& thing : plan.crossed)
    facts.push_back({tr("Over %1%", {thing.name}), clearanceText(thing, units)});
  if (!plan.possible())
    return facts;
  facts.push_back({tr("Deck"), formatLength(plan.deckHeight, units)});
  facts.push_back({tr("Spans"), spansText(plan, units)});
  for (const BridgeRamp& ramp : plan.ramps)
    facts.push_back(
        {&ramp == &plan.ramps.front() ? tr("Ramp") : tr("Other ramp"), rampText(ramp, units)});
  if (!plan.ramps.empty())
    facts.push_back({tr("Steepest grade"), tr("%1% %%", {percentText(plan.steepest())})});
  facts.push_back({tr("Piers"), piersText(plan)});
  if (plan.portals() > 0)
    facts.push_back({tr("Portal frames"), std::to_string(plan.portals())});
  if (const std::string added = articlesText(plan.articles, true); !added.empty())
    facts.push_back({tr("Pieces to add"), added});
  if (const std::string over = articlesText(plan.articles, false); !over.empty())
    facts.push_back({tr("Pieces left over"), over});
  facts.push_back({tr("Residue"), formatFixed(plan.residue, 2) + " mm"});
  for (const std::string& remark : plan.remarks)
    facts.push_back({tr("Note"), remark});
  return facts;
}

} // namespace trassix
