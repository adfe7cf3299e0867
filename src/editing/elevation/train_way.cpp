#include "editing/elevation/train_way.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <optional>
#include <queue>
#include <ranges>
#include <set>
#include <unordered_set>

namespace trassix {

namespace {

/// A piece taken from end to end.
struct Step {
  TrackEnd enter;
  std::int32_t leave = -1;

  auto operator<=>(const Step&) const = default;
  TrackEnd left() const { return {enter.piece, leave}; }
};
using Steps = std::vector<Step>;

/// Calls `visit(step, length)` for each route from this end.
template <class Visit>
void forEachStep(const Layout& layout, TrackEnd enter, Visit visit) {
  const PlacedPiece* piece = layout.findPiece(enter.piece);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  if (definition == nullptr)
    return;
  for (const Route& route : routesOf(*definition)) {
    if (route.to == -1)
      continue;
    if (route.from == enter.connector)
      visit(Step{enter, route.to}, routeLength(route));
    else if (route.to == enter.connector)
      visit(Step{enter, route.from}, routeLength(route));
  }
}

class WaySearch {
 public:
  WaySearch(const Layout& layout, TrackEnd to)
      : layout_(layout), goal_(to), beyondGoal_(beyond(layout, to)) {}

  /// The shortest way that starts at one of these ends, whose first step is none of `banned`, and
  /// which keeps off some pieces.
  std::optional<Steps> find(const std::vector<TrackEnd>& starts, const std::set<Step>& banned,
                            const std::unordered_set<std::int32_t>& keepOff) const {
    std::map<TrackEnd, Reached> reached;
    std::priority_queue<Front, std::vector<Front>, std::greater<>> fronts;
    const auto arrive = [&](TrackEnd at, double distance, std::optional<Step> by) {
      if (at.piece == -1 || keepOff.contains(at.piece))
        return;
      const auto [found, fresh] = reached.try_emplace(at, Reached{distance, by});
      if (!fresh && found->second.distance <= distance)
        return;
      found->second = {distance, by};
      fronts.push({distance, at});
    };
    for (const TrackEnd start : starts)
      arrive(start, 0, std::nullopt);
    std::optional<std::pair<double, Step>> last;
    while (!fronts.empty()) {
      const Front front = fronts.top();
      fronts.pop();
      const Reached& here = reached.at(front.at);
      if (last && front.distance >= last->first)
        break;
      if (front.distance > here.distance)
        continue;
      const bool first = !here.by;
      forEachStep(layout_, front.at, [&](const Step& step, double length) {
        if (first && banned.contains(step))
          return;
        const double distance = front.distance + length;
        if (step.left() == goal_ || step.left() == beyondGoal_) {
          if (!last || distance < last->first)
            last = {distance, step};
        } else {
          arrive(beyond(layout_, step.left()), distance, step);
        }
      });
    }
    if (!last)
      return std::nullopt;
    Steps way{last->second};
    for (auto by = reached.at(way.back().enter).by; by; by = reached.at(by->enter).by)
      way.push_back(*by);
    std::ranges::reverse(way);
    return way;
  }

 private:
  struct Reached {
    double distance = 0;
    std::optional<Step> by;
  };
  struct Front {
    double distance = 0;
    TrackEnd at;
    auto operator<=>(const Front&) const = default;
  };

  const Layout& layout_;
  TrackEnd goal_;
  TrackEnd beyondGoal_;
};

WayStretch stretchOf(const Layout& layout, const Step& step) {
  WayStretch stretch{step.enter.piece,
                     step.enter.connector,
                     step.leave,
                     0,
                     endHeight(layout, step.enter),
                     endHeight(layout, step.left())};
  forEachStep(layout, step.enter, [&](const Step& same, double length) {
    if (same == step && stretch.length == 0)
      stretch.length = length;
  });
  return stretch;
}

TrainWay wayOf(const Layout& layout, const Steps& steps) {
  TrainWay way;
  for (const Step& step : steps)
    way.stretches.push_back(stretchOf(layout, step));
  return way;
}

/// The shortest of what turns off the known ways, each at one place.
std::optional<Steps> nextWay(const Layout& layout, const WaySearch& search,
                             const std::vector<TrackEnd>& starts, const std::vector<Steps>& known) {
  std::optional<Steps> best;
  double shortest = 0;
  for (const Steps& way : known) {
    std::unordered_set<std::int32_t> passed;
    for (std::size_t i = 0; i < way.size(); ++i) {
      const std::vector<TrackEnd> from = i == 0 ? starts : std::vector{way[i].enter};
      int choices = 0;
      for (const TrackEnd end : from)
        forEachStep(layout, end, [&choices](const Step&, double) { ++choices; });
      if (choices > 1) {
        std::set<Step> banned;
        for (const Steps& other : known)
          if (other.size() > i &&
              std::equal(way.begin(), way.begin() + static_cast<long>(i), other.begin()))
            banned.insert(other[i]);
        if (const auto turned = search.find(from, banned, passed)) {
          Steps whole(way.begin(), way.begin() + static_cast<long>(i));
          whole.insert(whole.end(), turned->begin(), turned->end());
          const double length = wayOf(layout, whole).length();
          if (!best || length < shortest) {
            best = std::move(whole);
            shortest = length;
          }
        }
      }
      passed.insert(way[i].enter.piece);
    }
  }
  return best;
}

/// On from an end, into which a train comes, to an open end or until a piece is met again.
Steps onFrom(const Layout& layout, TrackEnd enter, std::unordered_set<std::int32_t>& met,
             const std::vector<BranchChoice>& branches) {
  Steps steps;
  while (enter.piece != -1 && met.insert(enter.piece).second) {
    std::optional<Step> chosen;
    forEachStep(layout, enter, [&](const Step& step, double) {
      const bool wanted = std::ranges::any_of(branches, [&step](const BranchChoice& branch) {
        return branch.piece == step.enter.piece && branch.leave == step.leave;
      });
      if (!chosen || wanted)
        chosen = step;
    });
    if (!chosen)
      break;
    steps.push_back(*chosen);
    enter = beyond(layout, chosen->left());
  }
  return steps;
}

} // namespace

double TrainWay::length() const {
  return std::accumulate(stretches.begin(), stretches.end(), 0.0,
                         [](double sum, const WayStretch& s) { return sum + s.length; });
}

bool TrainWay::crossesItself() const {
  std::unordered_set<std::int32_t> met;
  return std::ranges::any_of(stretches,
                             [&met](const WayStretch& s) { return !met.insert(s.piece).second; });
}

TrackEnd beyond(const Layout& layout, TrackEnd end) {
  const PlacedPiece* piece = layout.findPiece(end.piece);
  if (piece == nullptr || end.connector < 0)
    return {};
  const auto slot = static_cast<std::size_t>(end.connector);
  const PlacedPiece* other = joinedPiece(layout, *piece, slot);
  return other == nullptr || definitionOf(*other) == nullptr
             ? TrackEnd{}
             : TrackEnd{other->id, piece->joint(slot).tconn};
}

std::vector<TrainWay> trainWays(const Layout& layout, TrackEnd from, TrackEnd to,
                                std::size_t most) {
  const std::vector<TrackEnd> starts{from, beyond(layout, from)};
  const WaySearch search(layout, to);
  std::vector<Steps> found;
  std::vector<TrainWay> ways;
  for (std::optional<Steps> way = search.find(starts, {}, {}); way && found.size() < most;
       way = nextWay(layout, search, starts, found)) {
    ways.push_back(wayOf(layout, *way));
    found.push_back(std::move(*way));
  }
  return ways;
}

TrainWay wayThrough(const Layout& layout, std::int32_t piece,
                    const std::vector<BranchChoice>& branches) {
  const PlacedPiece* middle = layout.findPiece(piece);
  const PieceDef* definition = middle == nullptr ? nullptr : definitionOf(*middle);
  if (definition == nullptr || routesOf(*definition).empty())
    return {};
  const std::vector<Route>& routes = routesOf(*definition);
  const auto chosen = std::ranges::find_if(routes, [&](const Route& route) {
    return std::ranges::any_of(branches, [&](const BranchChoice& branch) {
      return branch.piece == piece && branch.leave == route.to &&
             (branch.enter == -1 || branch.enter == route.from);
    });
  });
  const std::int32_t enter = (chosen == routes.end() ? routes.begin() : chosen)->from;
  std::unordered_set<std::int32_t> met;
  Steps on = onFrom(layout, {piece, enter}, met, branches);
  Steps back = onFrom(layout, beyond(layout, {piece, enter}), met, branches);
  Steps whole;
  std::ranges::reverse(back);
  for (const Step& step : back)
    whole.push_back({step.left(), step.enter.connector});
  whole.insert(whole.end(), on.begin(), on.end());
  return wayOf(layout, whole);
}

} // namespace trassix
