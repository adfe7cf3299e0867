#include "wizards/layout/loop_builds.h"

#include "catalog/plain_track.h"
#include "texts/texts.h"
#include "wizards/layout/layout_checks.h"

#include <algorithm>
#include <limits>

namespace trassix {

namespace {

constexpr double kDrawn = 0.05; ///< mm: beds are drawn with chords

/// Each length once, longest first; of those at home only where the task wants that.
std::vector<PlainStraight> straightsFor(const LayoutTask& task) {
  std::vector<PlainStraight> straights = plainStraights(task.system);
  if (task.ownStockOnly)
    std::erase_if(straights, [&](const PlainStraight& straight) {
      const auto own = task.stock.find(straight.piece->article);
      return own == task.stock.end() || own->second <= 0;
    });
  straights.erase(std::unique(straights.begin(), straights.end(),
                              [](const PlainStraight& a, const PlainStraight& b) {
                                return toMicrometres(a.length) == toMicrometres(b.length);
                              }),
                  straights.end());
  return straights;
}

} // namespace

LoopBuilds::LoopBuilds(LayoutTask task) : task_(std::move(task)) {
  if (task_.station && !hasStationKit(task_.system)) {
    task_.station.reset();
    remarks_.push_back(tr("There are no pieces for a station in this track system: the layout is "
                          "made without one."));
  }
  if (task_.bridge && !hasBridge(task_.system, task_.bridge->form)) {
    task_.bridge.reset();
    remarks_.push_back(tr("There is no such bridge in this track system: the layout is made "
                          "without one."));
  }
  path_ = pathOf(task_);
  kit_ = layoutKit(task_);
  straights_ = straightsFor(task_);
  solver_ = std::make_unique<LoopSolver>(task_, path_, kit_.entry, straights_);
}

Micrometres LoopBuilds::shortestStraight() const {
  const std::vector<PlainStraight> all = plainStraights(task_.system);
  return all.empty() ? 0 : toMicrometres(all.back().length);
}

bool LoopBuilds::build(const LoopPlan& plan, const LoopSolver& solver) {
  const auto stretches = stretchesOf(task_, path_, kit_, plan, solver);
  if (!stretches)
    return false;
  LayoutProposal proposal = buildLayout(task_, path_, kit_, plan, solver, *stretches);
  if (proposal.figures.edgeDistance < task_.distance - kDrawn ||
      (task_.ownStockOnly && !proposal.figures.missing.empty()) ||
      anyOverlap(proposal.track.content.pieces))
    return false;
  proposal.remarks = remarks_;
  last_ = BuiltLoop{plan, std::move(proposal)};
  return true;
}

void LoopBuilds::hand(std::optional<LoopPlan>& plan, std::optional<BuiltLoop>& found) {
  found.reset();
  if (plan)
    found = std::move(last_);
  last_.reset();
}

Steps LoopBuilds::longest(Micrometres mostTotal, std::optional<BuiltLoop>& found) {
  std::optional<LoopPlan> plan;
  const LoopSolver::Accept accept = [this](const LoopPlan& loop) { return build(loop, *solver_); };
  for (Steps steps = solver_->longest(mostTotal, accept, plan); steps.step();)
    co_yield 0;
  hand(plan, found);
}

Steps LoopBuilds::longestStation(Micrometres mostTotal, std::optional<BuiltLoop>& found) {
  std::optional<LoopPlan> plan;
  const LoopSolver::Accept accept = [this](const LoopPlan& loop) { return build(loop, *solver_); };
  for (Steps steps = solver_->longestStation(mostTotal, accept, plan); steps.step();)
    co_yield 0;
  hand(plan, found);
}

Steps LoopBuilds::fewestPieces(const LoopPlan& model, std::optional<BuiltLoop>& found) {
  std::optional<LoopPlan> plan;
  const LoopSolver::Accept accept = [this](const LoopPlan& loop) { return build(loop, *solver_); };
  for (Steps steps = solver_->fewest(model, shortestStraight(), std::numeric_limits<int>::max(),
                                     accept, plan);
       steps.step();)
    co_yield 0;
  hand(plan, found);
}

/// All sets of straights, the smallest first, until one makes a loop.
Steps LoopBuilds::fewestKinds(const LoopPlan& model, std::optional<BuiltLoop>& found) {
  std::optional<LoopPlan> best;
  std::optional<BuiltLoop> bestBuilt;
  for (std::size_t size = 0; size <= straights_.size() && !best; ++size) {
    std::vector<char> chosen(straights_.size(), 0);
    std::fill_n(chosen.begin(), size, char{1});
    do {
      std::vector<PlainStraight> kinds;
      for (std::size_t i = 0; i < chosen.size(); ++i)
        if (chosen[i] != 0)
          kinds.push_back(straights_[i]);
      LoopSolver solver(task_, path_, kit_.entry, std::move(kinds));
      co_yield 0;
      std::optional<LoopPlan> plan;
      const LoopSolver::Accept accept = [this, &solver](const LoopPlan& loop) {
        return build(loop, solver);
      };
      const int most = best ? best->pieces - 1 : std::numeric_limits<int>::max();
      for (Steps steps = solver.fewest(model, shortestStraight(), most, accept, plan);
           steps.step();)
        co_yield 0;
      if (plan) {
        best = std::move(plan);
        bestBuilt = std::move(last_);
      }
    } while (std::ranges::prev_permutation(chosen).found);
  }
  found = std::move(bestBuilt);
  last_.reset();
}

} // namespace trassix
