#include "editing/elevation/hump.h"

#include "document/layout.h"
#include "document/records.h"
#include "editing/elevation/easing.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/grades.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

namespace trassix {

namespace {

constexpr double kRounding = 1e-9;  // of a slope
constexpr double kSlowest = 0.0005; // slopes between which the one that would do is told
constexpr double kSteepestTold = 0.1;

/// One side of the hump: from the level part outwards, so that both are the same task.
struct Side {
  std::vector<double> lengths; ///< of the pieces, the one at the level part first
  std::vector<double> base;    ///< heights of their outer joints as they are
  std::vector<double> beyond;  ///< slope, seen outwards-in, of what lies outside each of them
  std::vector<double> outside; ///< and its length, at most the piece's own
  double inside = 0;           ///< length of the outermost piece of the level part, likewise
  std::vector<const std::vector<double>*> allowed; ///< at their outer joints
};

/// Heights of the outer joints of a ramp's pieces.
using Heights = std::vector<double>;

class Ramp {
 public:
  Ramp(const Side& side, const HumpTask& task, double change)
      : side_(side), task_(task), change_(change) {}

  /// The ramp with the fewest pieces.
  std::optional<Heights> find(double limit) const {
    if (side_.allowed.empty())
      return evenOne(limit);
    if (auto inOrder = oneByOne(limit))
      return inOrder;
    return anyOf(limit);
  }

 private:
  /// By how much slopes may differ of pieces so long.
  double step(double a, double b) const { return change_ * (a + b) / 2; }

  double lengthOf(std::size_t count) const {
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i)
      sum += side_.lengths[i];
    return sum;
  }

  std::optional<Heights> evenOne(double limit) const {
    for (std::size_t count = 1; count <= side_.lengths.size(); ++count) {
      if (lengthOf(count) < task_.shortest - kRounding)
        continue;
      Climb climb;
      climb.lengths.assign(side_.lengths.rend() - static_cast<std::ptrdiff_t>(count),
                           side_.lengths.rend());
      climb.before = side_.beyond[count - 1];
      climb.lengthBefore = side_.outside[count - 1];
      climb.lengthAfter = side_.inside;
      climb.change = change_;
      const double foot = side_.base[count - 1];
      const auto slopes = slopesFor(climb, task_.height - foot);
      if (!slopes || std::ranges::any_of(*slopes, [limit](double slope) {
            return std::abs(slope) > limit + kRounding;
          }))
        continue;
      Heights heights(count, foot);
      for (std::size_t i = count - 1; i > 0; --i) // the foot's piece is the first of the climb
        heights[i - 1] = heights[i] + climb.lengths[count - 1 - i] * (*slopes)[count - 1 - i];
      return heights;
    }
    return std::nullopt;
  }

  /// Whether a piece may rise so after the one nearer to the level part.
  bool mayFollow(std::size_t i, double slope, double inner, double limit) const {
    const double length = i == 0 ? side_.inside : side_.lengths[i - 1];
    return std::abs(slope) <= limit + kRounding &&
           std::abs(slope - inner) <= step(length, side_.lengths[i]) + kRounding;
  }
  bool mayEnd(std::size_t last, double slope) const {
    return std::abs(slope - side_.beyond[last]) <=
           step(side_.lengths[last], side_.outside[last]) + kRounding;
  }

  std::optional<Heights> oneByOne(double limit) const {
    Heights heights;
    double above = task_.height;
    double inner = 0;
    for (std::size_t i = 0; i < side_.lengths.size(); ++i) {
      const std::vector<double>& allowed = *side_.allowed[i];
      const auto next = std::ranges::lower_bound(allowed, above - kSameHeight);
      const bool toFoot = next == allowed.begin() || *(next - 1) <= side_.base[i] + kSameHeight;
      const double height = toFoot ? side_.base[i] : *(next - 1);
      const double slope = (above - height) / side_.lengths[i];
      if (!mayFollow(i, slope, inner, limit))
        return std::nullopt;
      heights.push_back(height);
      if (toFoot)
        return mayEnd(i, slope) && lengthOf(i + 1) >= task_.shortest - kRounding
                   ? std::optional(heights)
                   : std::nullopt;
      above = height;
      inner = slope;
    }
    return std::nullopt;
  }

  /// Piece by piece all heights that can be come to, each with all slopes: by two neighbouring
  /// joints' heights.
  struct State {
    double height = 0;
    double slope = 0;
    std::size_t from = 0; ///< state of the joint before
    double bends = 0;     ///< sum of the squares of all changes of slope
  };
  std::optional<Heights> anyOf(double limit) const {
    std::vector<std::vector<State>> states{{{task_.height, 0, 0, 0}}};
    for (std::size_t i = 0; i < side_.lengths.size(); ++i) {
      std::vector<State> next;
      std::optional<State> end;
      const auto reach = [&](double height, std::size_t from, std::vector<State>& into) {
        const State& before = states.back()[from];
        const double slope = (before.height - height) / side_.lengths[i];
        if (mayFollow(i, slope, before.slope, limit))
          into.push_back({height, slope, from, before.bends + std::pow(slope - before.slope, 2)});
      };
      std::vector<State> ends;
      for (std::size_t from = 0; from < states.back().size(); ++from) {
        reach(side_.base[i], from, ends);
        for (const double height : *side_.allowed[i])
          if (height > side_.base[i] + kSameHeight && height <= task_.height + kSameHeight)
            reach(height, from, next);
      }
      for (const State& state : ends)
        if (mayEnd(i, state.slope) && lengthOf(i + 1) >= task_.shortest - kRounding &&
            (!end || state.bends < end->bends))
          end = state;
      if (end)
        return traced(states, *end);
      states.push_back(fewer(std::move(next)));
      if (states.back().empty())
        break;
    }
    return std::nullopt;
  }

  /// Of states alike only the one that bends least.
  static std::vector<State> fewer(std::vector<State> states) {
    std::ranges::sort(states, [](const State& a, const State& b) {
      return std::tie(a.height, a.slope, a.bends) < std::tie(b.height, b.slope, b.bends);
    });
    const auto alike = [](const State& a, const State& b) {
      return a.height == b.height && std::abs(a.slope - b.slope) < kRounding;
    };
    states.erase(std::unique(states.begin(), states.end(), alike), states.end());
    return states;
  }

  static Heights traced(const std::vector<std::vector<State>>& states, const State& end) {
    Heights heights{end.height};
    std::size_t from = end.from;
    for (std::size_t i = states.size(); i-- > 1; from = states[i][from].from)
      heights.insert(heights.begin(), states[i][from].height);
    return heights;
  }

  const Side& side_;
  const HumpTask& task_;
  double change_;
};

double runOf(const Layout& layout, const WayStretch& stretch) {
  const PieceDef& definition = *definitionOf(*layout.findPiece(stretch.piece));
  return std::abs(runTo(definition, stretch.leave) - runTo(definition, stretch.enter));
}

/// The slope of what is joined outside the way's end, for a train that comes in; 0 for nothing.
double slopeIn(const Layout& layout, TrackEnd end) {
  const TrackEnd outer = beyond(layout, end);
  const PlacedPiece* piece = layout.findPiece(outer.piece);
  return piece == nullptr ? 0 : slopeOut(*piece, *definitionOf(*piece), outer.connector);
}

Side sideOf(const Layout& layout, const HumpTask& task, bool up) {
  Side side;
  const auto& stretches = task.way.stretches;
  const std::size_t count = up ? task.first - task.from : task.to - task.last;
  const std::size_t level = up ? task.first : task.last - 1; // its outermost stretch
  for (std::size_t k = 0; k < count; ++k) {
    const std::size_t at = up ? task.first - 1 - k : task.last + k;
    const WayStretch& stretch = stretches[at];
    const std::size_t joint = up ? at : at + 1;
    side.lengths.push_back(runOf(layout, stretch));
    side.base.push_back(up ? stretch.from : stretch.to);
    double slope = 0;
    if (joint == 0 || joint == stretches.size())
      slope = slopeIn(layout, up ? task.way.start() : task.way.end());
    else
      slope = up ? stretches[joint - 1].slope() : -stretches[joint].slope();
    side.beyond.push_back(slope);
    const bool has = up ? at > 0 : at + 1 < stretches.size();
    side.outside.push_back(
        has ? std::min(side.lengths.back(), runOf(layout, stretches[up ? at - 1 : at + 1]))
            : side.lengths.back());
    if (!task.allowed.empty())
      side.allowed.push_back(&task.allowed[joint]);
  }
  if (count > 0)
    side.inside = std::min(side.lengths.front(), runOf(layout, stretches[level]));
  return side;
}

bool staysLevel(const Layout& layout, const HumpTask& task, bool up) {
  const auto& stretches = task.way.stretches;
  const std::size_t joint = up ? task.first : task.last;
  const double height = joint < stretches.size() ? stretches[joint].from : stretches.back().to;
  double slope = 0;
  if (joint > 0 && joint < stretches.size())
    slope = up ? stretches[joint - 1].slope() : stretches[joint].slope();
  else
    slope = slopeIn(layout, up ? task.way.start() : task.way.end());
  return std::abs(height - task.height) <= kSameHeight && std::abs(slope) < kRounding;
}

/// Says by how much the side is too short.
void tellMissing(const Side& side, const HumpTask& task, const Ramp& ramp, double change,
                 HumpRamp& told) {
  const double total = told.available;
  for (double limit = task.limit + kSlowest; task.allowed.empty() && limit <= kSteepestTold;
       limit += kSlowest)
    if (ramp.find(limit)) {
      told.bestLimit = limit;
      break;
    }
  Climb climb;
  climb.lengths.assign(side.lengths.rbegin(), side.lengths.rend());
  climb.change = change;
  const double foot = side.base.empty() ? 0 : side.base.back();
  const double rise = std::abs(task.height - foot);
  const double most = side.lengths.empty() ? 0 : mostRise(climb, task.limit);
  // Each end takes some way more to be eased, as much as lies between the slope and none.
  const double easing = side.lengths.empty() ? 0.5 * task.limit / change : 0;
  told.missing = std::max({(rise - most) / task.limit + easing, task.shortest - total, 1.0});
}

HumpRamp planSide(const Layout& layout, const HumpTask& task, bool up, Heights& heights) {
  HumpRamp told;
  told.foot = up ? task.first : task.last;
  const Side side = sideOf(layout, task, up);
  for (const double length : side.lengths)
    told.available += length;
  if (staysLevel(layout, task, up)) {
    told.possible = true;
    return told;
  }
  const TrackSystem system =
      definitionOf(*layout.findPiece(task.way.stretches.front().piece))->system;
  const double change = kEasingChange / easingLength(system);
  const Ramp ramp(side, task, change);
  if (auto found = ramp.find(task.limit)) {
    heights = std::move(*found);
    told.possible = true;
    told.foot = up ? task.first - heights.size() : task.last + heights.size();
  } else {
    tellMissing(side, task, ramp, change, told);
  }
  return told;
}

} // namespace

HumpPlan planHump(const Layout& layout, const HumpTask& task) {
  HumpPlan plan;
  Heights up;
  Heights down;
  plan.up = planSide(layout, task, true, up);
  plan.down = planSide(layout, task, false, down);
  if (!plan.possible())
    return plan;
  for (const WayStretch& stretch : task.way.stretches)
    plan.heights.push_back(stretch.from);
  plan.heights.push_back(task.way.stretches.back().to);
  for (std::size_t i = task.first; i <= task.last; ++i)
    plan.heights[i] = task.height;
  for (std::size_t k = 0; k < up.size(); ++k)
    plan.heights[task.first - 1 - k] = up[k];
  for (std::size_t k = 0; k < down.size(); ++k)
    plan.heights[task.last + 1 + k] = down[k];
  return plan;
}

} // namespace trassix
