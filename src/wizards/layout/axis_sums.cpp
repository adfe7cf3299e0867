#include "wizards/layout/axis_sums.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr Micrometres kFar = kAnywhere;

Micrometres roundedDown(Micrometres value, Micrometres grain) {
  return value >= 0 ? value / grain * grain : -((-value + grain - 1) / grain * grain);
}

Micrometres roundedUp(Micrometres value, Micrometres grain) {
  return -roundedDown(-value, grain);
}

} // namespace

AxisSearch::AxisSearch(Axis axis) : axis_(std::move(axis)) {
  Micrometres corners = 0;
  long forward = 0;
  for (const AxisSide& side : axis_.sides) {
    corners += side.sign * side.corners;
    forward += side.sign;
  }
  leadSign_ = forward < 0 ? 1 : -1;
  // sum(+) + corners(+) = sum(-) + corners(-) + misfit
  surplus_ = leadSign_ < 0 ? axis_.misfit - corners : corners - axis_.misfit;
  narrow();
}

/// Shortest ways in the graph of what the lines demand of each other say how far apart any two can
/// be; a ring that is shorter than nothing, that all of it is impossible.
void AxisSearch::narrow() {
  const std::size_t n = axis_.lines.size();
  const std::size_t room = n; // what the coordinates are measured from
  std::vector<std::vector<Micrometres>> most(n + 1, std::vector<Micrometres>(n + 1, kFar));
  const auto atMost = [&](std::size_t from, std::size_t to, Micrometres distance) {
    most[from][to] = std::min(most[from][to], distance);
  };
  for (std::size_t i = 0; i <= n; ++i)
    most[i][i] = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const AxisLine& line = axis_.lines[i];
    atMost(line.least ? i : room, line.least ? room : i, line.least ? -line.at : line.at);
    if (line.play < kAnywhere)
      atMost(line.least ? room : i, line.least ? i : room,
             line.play + (line.least ? line.at : -line.at));
    const std::size_t next = (i + 1) % n;
    const AxisSide& side = axis_.sides[i];
    const Micrometres play = next == 0 ? std::abs(axis_.misfit) : 0;
    const std::size_t from = side.sign > 0 ? i : next;
    const std::size_t to = side.sign > 0 ? next : i;
    atMost(to, from, -(side.low + side.corners) + play);
    atMost(from, to, side.high + side.corners + play);
  }
  for (const AxisGap& gap : axis_.gaps)
    atMost(gap.high, gap.low, -gap.least);
  for (std::size_t k = 0; k <= n; ++k)
    for (std::size_t i = 0; i <= n; ++i)
      for (std::size_t j = 0; j <= n; ++j)
        if (most[i][k] < kFar && most[k][j] < kFar)
          atMost(i, j, most[i][k] + most[k][j]);
  possible_ = true;
  for (std::size_t i = 0; i <= n; ++i)
    possible_ = possible_ && most[i][i] >= 0;
  std::array<Range, 2> sums{};
  for (std::size_t i = 0; i < n; ++i) {
    AxisSide& side = axis_.sides[i];
    const std::size_t next = (i + 1) % n;
    const Micrometres play = next == 0 ? std::abs(axis_.misfit) : 0;
    const std::size_t from = side.sign > 0 ? i : next;
    const std::size_t to = side.sign > 0 ? next : i;
    side.high = std::min(side.high, most[from][to] - side.corners + play);
    side.low = std::max(side.low, -most[to][from] - side.corners - play);
    side.low = roundedUp(side.low, axis_.grain);
    side.high = roundedDown(side.high, axis_.grain);
    possible_ = possible_ && side.low <= side.high;
    ideal_.push_back(side.sign * (axis_.lines[next].at - axis_.lines[i].at) - side.corners);
    Range& sum = sums[side.sign == leadSign_ ? 0 : 1];
    sum.low += side.low;
    sum.high += side.high;
  }
  const Range turning = turningRange(most);
  const Micrometres less = leadSign_ > 0 ? 0 : surplus_; // of the leading sum than of the other
  leadLow_ =
      roundedUp(std::max({sums[0].low, sums[1].low - surplus_, turning.low - less}), axis_.grain);
  leadHigh_ = roundedDown(std::min({sums[0].high, sums[1].high - surplus_, turning.high - less}),
                          axis_.grain);
  possible_ = possible_ && leadLow_ <= leadHigh_;
}

/// What the sides of greater coordinates can be together: from each line where the way turns back
/// to one where it turns again, of which there are at most two pairs.
AxisSearch::Range
AxisSearch::turningRange(const std::vector<std::vector<Micrometres>>& most) const {
  std::vector<std::size_t> from;
  std::vector<std::size_t> to;
  Micrometres corners = 0;
  const std::size_t n = axis_.sides.size();
  for (std::size_t i = 0; i < n; ++i) {
    const int before = axis_.sides[(i + n - 1) % n].sign;
    if (axis_.sides[i].sign > 0)
      corners += axis_.sides[i].corners;
    if (before != axis_.sides[i].sign)
      (before > 0 ? to : from).push_back(i);
  }
  const auto together = [&](const std::vector<std::size_t>& a, const std::vector<std::size_t>& b) {
    Micrometres least = most[a[0]][b[0]];
    if (a.size() == 2)
      least = std::min(least + most[a[1]][b[1]], most[a[0]][b[1]] + most[a[1]][b[0]]);
    return least + std::abs(axis_.misfit);
  };
  return {-together(to, from) - corners, together(from, to) - corners};
}

Micrometres AxisSearch::totalOf(Micrometres lead) const {
  return 2 * lead + surplus_;
}

AxisSearch::Range AxisSearch::placed(Range range, std::size_t line, Micrometres at) const {
  const AxisLine& bound = axis_.lines[line];
  const Micrometres limit = bound.at - at;
  if (bound.least)
    return {std::max(range.low, limit), std::min(range.high, limit + bound.play)};
  return {std::max(range.low, limit - bound.play), std::min(range.high, limit)};
}

bool AxisSearch::gapsHold(const std::vector<Micrometres>& at, std::size_t line) const {
  return std::ranges::all_of(axis_.gaps, [&](const AxisGap& gap) {
    return std::max(gap.low, gap.high) != line || at[gap.high] - at[gap.low] >= gap.least;
  });
}

AxisSearch::Range AxisSearch::restOf(std::size_t side, int sign) const {
  Range rest;
  for (; side < axis_.sides.size(); ++side)
    if (axis_.sides[side].sign == sign) {
      rest.low += axis_.sides[side].low;
      rest.high += axis_.sides[side].high;
    }
  return rest;
}

struct AxisSearch::Lead {
  std::array<Micrometres, 2> left{}; ///< of the sums still to be given out; the leading one first
  std::array<int, 2> sides{};        ///< that are still to get a part of them
  AxisSums sums;
  std::vector<Micrometres> at; ///< of the lines, from line 0
  long* tries = nullptr;
};

bool AxisSearch::lead(Lead& state, std::size_t index, Range range) const {
  if (index == axis_.sides.size())
    return range.low <= range.high;
  const AxisSide& side = axis_.sides[index];
  const std::size_t group = side.sign == leadSign_ ? 0 : 1;
  const std::size_t next = index + 1;
  const bool last = next == axis_.sides.size();
  const Micrometres left = state.left[group];
  const auto tryLength = [&](Micrometres length) {
    if (!side.sums->allows(length))
      return false;
    --*state.tries;
    Range narrowed = range;
    if (!last) {
      state.at[next] = state.at[index] + side.sign * (length + side.corners);
      narrowed = placed(range, next, state.at[next]);
      if (narrowed.low > narrowed.high || !gapsHold(state.at, next))
        return false;
    }
    state.sums[index] = length;
    state.left[group] -= length;
    --state.sides[group];
    const bool found = lead(state, next, narrowed);
    state.left[group] += length;
    ++state.sides[group];
    return found;
  };
  if (state.sides[group] == 1)
    return left >= side.low && left <= side.high && tryLength(left);
  // What the others of its direction cannot make up it has to.
  const Range others = restOf(index + 1, side.sign);
  Micrometres low = std::max(side.low, left - others.high);
  Micrometres high = std::min(side.high, left - others.low);
  if (!last) {
    // The next line has to lie where line 0 still can.
    const AxisLine& line = axis_.lines[next];
    const Micrometres limit = line.at - (line.least ? range.high : range.low);
    const Micrometres length = side.sign * (limit - state.at[index]) - side.corners;
    if (line.least == (side.sign > 0))
      low = std::max(low, roundedUp(length, axis_.grain));
    else
      high = std::min(high, roundedDown(length, axis_.grain));
  }
  if (low > high)
    return false;
  const std::vector<Micrometres>& choices = side.sums->choices();
  const auto first = std::ranges::lower_bound(choices, low);
  const auto end = std::ranges::upper_bound(choices, high);
  auto above = std::lower_bound(first, end, ideal_[index]);
  auto below = above; // the choices before it
  while ((below != first || above != end) && *state.tries > 0) {
    const bool up =
        below == first || (above != end && *above - ideal_[index] <= ideal_[index] - *(below - 1));
    if (tryLength(up ? *above++ : *--below))
      return true;
  }
  return false;
}

std::optional<AxisSums> AxisSearch::withTotal(Micrometres total, long& tries) const {
  const Micrometres leading = (total - surplus_) / 2;
  if (!possible_ || leading < leadLow_ || leading > leadHigh_)
    return std::nullopt;
  Lead state;
  state.left = {leading, leading + surplus_};
  for (const AxisSide& side : axis_.sides)
    ++state.sides[side.sign == leadSign_ ? 0 : 1];
  state.sums.resize(axis_.sides.size());
  state.at.resize(axis_.sides.size());
  state.tries = &tries;
  --tries;
  if (!lead(state, 0, placed({-kFar, kFar}, 0, 0)))
    return std::nullopt;
  return state.sums;
}

struct AxisSearch::Few {
  const std::vector<std::vector<Value>>* values = nullptr;
  std::vector<int> rest; ///< pieces that sides from this one on take at least
  int pieces = 0;
  AxisSums sums;
  std::vector<Micrometres> at;
  std::optional<AxisSums> best;
  Micrometres bestTotal = -1;
  long* tries = nullptr;
};

void AxisSearch::few(Few& state, std::size_t index, Range range, int pieces) const {
  const AxisSide& side = axis_.sides[index];
  if (index + 1 == axis_.sides.size()) {
    --*state.tries;
    const Micrometres length = side.sign * (axis_.misfit - state.at[index]) - side.corners;
    if (length < side.low || length > side.high)
      return;
    const int own = side.sums->pieces(length);
    if (own < 0 || pieces + own > state.pieces)
      return;
    state.sums[index] = length;
    Micrometres total = 0;
    for (const Micrometres sum : state.sums)
      total += sum;
    if (total > state.bestTotal) {
      state.bestTotal = total;
      state.best = state.sums;
    }
    return;
  }
  for (const Value& value : (*state.values)[index]) {
    if (pieces + value.pieces + state.rest[index + 1] > state.pieces || *state.tries <= 0)
      return;
    --*state.tries;
    if (value.length < side.low || value.length > side.high)
      continue;
    state.at[index + 1] = state.at[index] + side.sign * (value.length + side.corners);
    const Range narrowed = placed(range, index + 1, state.at[index + 1]);
    if (narrowed.low > narrowed.high || !gapsHold(state.at, index + 1))
      continue;
    state.sums[index] = value.length;
    few(state, index + 1, narrowed, pieces + value.pieces);
  }
}

std::optional<AxisSums> AxisSearch::withPieces(const std::vector<std::vector<Value>>& values,
                                               int pieces, long& tries) const {
  if (!possible_)
    return std::nullopt;
  Few state;
  state.values = &values;
  state.pieces = pieces;
  state.rest.assign(values.size() + 1, 0);
  for (std::size_t i = values.size(); i-- > 0;) {
    if (values[i].empty())
      return std::nullopt;
    state.rest[i] = state.rest[i + 1] + values[i].front().pieces;
  }
  state.sums.resize(values.size());
  state.at.resize(values.size());
  state.tries = &tries;
  few(state, 0, placed({-kFar, kFar}, 0, 0), 0);
  return state.best;
}

std::vector<Micrometres> AxisSearch::linesOf(const AxisSums& sums) const {
  std::vector<Micrometres> at(sums.size());
  Range range = placed({-kFar, kFar}, 0, 0);
  for (std::size_t i = 0; i + 1 < sums.size(); ++i) {
    at[i + 1] = at[i] + axis_.sides[i].sign * (sums[i] + axis_.sides[i].corners);
    range = placed(range, i + 1, at[i + 1]);
  }
  const Micrometres shift = range.low + (range.high - range.low) / 2;
  for (Micrometres& line : at)
    line += shift;
  return at;
}

} // namespace trassix
