#include "wizards/layout/layout_search.h"

#include "catalog/plain_track.h"
#include "wizards/layout/layout_refusals.h"
#include "wizards/layout/loop_builds.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace trassix {

struct LayoutSearch::State {
  LayoutTask task;
  std::int32_t units = 0;
  std::vector<LayoutProposal> proposals;
  std::optional<LayoutRefusal> refusal;
  std::unique_ptr<LoopBuilds> builds; ///< none for a task that has a problem of its own
  std::vector<BuiltLoop> found;       ///< as the proposals
  Micrometres longest = std::numeric_limits<Micrometres>::max(); ///< in the round to come
  bool more = true;
  double progress = 0;
  Steps work;

  Steps round();
  Steps sought(LayoutPreference preference, const LoopPlan& model, std::optional<BuiltLoop>& loop);
  void keep(LayoutPreference preference, std::optional<BuiltLoop> loop);
};

void LayoutSearch::State::keep(LayoutPreference preference, std::optional<BuiltLoop> loop) {
  if (!loop || std::ranges::any_of(found, [&](const BuiltLoop& other) {
        return other.plan.straights == loop->plan.straights &&
               other.plan.station == loop->plan.station &&
               other.proposal.figures.pieces == loop->proposal.figures.pieces &&
               other.proposal.figures.kinds == loop->proposal.figures.kinds;
      }))
    return;
  loop->proposal.bestAt = preference;
  proposals.push_back(loop->proposal);
  found.push_back(std::move(*loop));
}

Steps LayoutSearch::State::sought(LayoutPreference preference, const LoopPlan& model,
                                  std::optional<BuiltLoop>& loop) {
  Steps steps;
  if (preference == LayoutPreference::LongestStation)
    steps = builds->longestStation(longest, loop);
  else if (preference == LayoutPreference::FewestPieces)
    steps = builds->fewestPieces(model, loop);
  else
    steps = builds->fewestKinds(model, loop);
  while (steps.step())
    co_yield 0;
}

/// The longest loop, and from it those that are best at something else; what is preferred first.
Steps LayoutSearch::State::round() {
  std::optional<BuiltLoop> model;
  for (Steps steps = builds->longest(longest, model); steps.step();)
    co_yield 0.05;
  if (!model) {
    more = false;
    if (proposals.empty()) {
      refusal.emplace();
      for (Steps steps = explainRefusal(builds->task(), units, *refusal); steps.step();)
        co_yield 0.5;
    }
    co_return;
  }
  std::vector<LayoutPreference> order{task.preference};
  for (std::size_t i = 0; i < kLayoutPreferenceCount; ++i)
    if (const auto preference = static_cast<LayoutPreference>(i); preference != task.preference)
      order.push_back(preference);
  const LoopPlan plan = model->plan;
  double done = 0.2;
  for (const LayoutPreference preference : order) {
    std::optional<BuiltLoop> loop;
    if (preference == LayoutPreference::LongestRun)
      loop = std::move(model);
    else
      for (Steps steps = sought(preference, plan, loop); steps.step();)
        co_yield done;
    keep(preference, std::move(loop));
    done += 0.2;
    co_yield done;
  }
  longest = plan.total() - builds->shortestStraight();
  more = longest > 0;
}

LayoutSearch::LayoutSearch(LayoutTask task, std::int32_t units)
    : state_(std::make_unique<State>()) {
  state_->task = std::move(task);
  state_->units = units;
  state_->refusal = taskRefusal(state_->task, units);
  if (state_->refusal) {
    state_->more = false;
    return;
  }
  state_->builds = std::make_unique<LoopBuilds>(state_->task);
  state_->work = state_->round();
}

LayoutSearch::~LayoutSearch() = default;
LayoutSearch::LayoutSearch(LayoutSearch&&) noexcept = default;
LayoutSearch& LayoutSearch::operator=(LayoutSearch&&) noexcept = default;

void LayoutSearch::step() {
  if (state_->work.step())
    state_->progress = std::max(state_->progress, state_->work.done());
}

bool LayoutSearch::done() const {
  return state_->work.over();
}

double LayoutSearch::progress() const {
  return done() ? 1 : state_->progress;
}

const std::vector<LayoutProposal>& LayoutSearch::proposals() const {
  return state_->proposals;
}

const std::optional<LayoutRefusal>& LayoutSearch::refusal() const {
  return state_->refusal;
}

void LayoutSearch::searchOn() {
  if (!done() || !state_->more)
    return;
  state_->progress = 0;
  state_->work = state_->round();
}

bool LayoutSearch::mayHaveMore() const {
  return state_->more;
}

const LayoutTask& LayoutSearch::task() const {
  return state_->task;
}

} // namespace trassix
