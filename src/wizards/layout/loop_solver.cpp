#include "wizards/layout/loop_solver.h"

#include "catalog/system_kits.h"
#include "editing/tunnels/tunnel_figures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace trassix {

namespace {

constexpr int kGrid = 33;                  ///< ways to round an inside corner that are tried
constexpr long kTries = 60'000;            ///< for one pair of axes
constexpr long kAllTries = 3'000'000;      ///< for loops that close exactly
constexpr long kMisfitTries = 400'000;     ///< for those of one misfit
constexpr std::size_t kThorough = 12;      ///< pairs where nothing was found so
constexpr long kThoroughTries = 1'500'000; ///< for one of them
constexpr long kTriesInStep = 25'000;
constexpr long kFewTries = 150'000;    ///< for one number of pieces
constexpr std::size_t kPairs = 24;     ///< of equally long loops that are compared
constexpr std::size_t kManyPairs = 6;  ///< where loops in plenty are looked through
constexpr std::size_t kManySums = 400; ///< of one axis
constexpr int kManyRefused = 3000;
constexpr int kRefused = 60; ///< loops that are not accepted before it gives up

/// No side is longer than all of the table.
Micrometres extentOf(const TablePath& path) {
  Micrometres extent = 0;
  for (const std::size_t along : {0U, 1U}) {
    Micrometres least = std::numeric_limits<Micrometres>::max();
    Micrometres most = std::numeric_limits<Micrometres>::min();
    for (std::size_t side = 0; side < path.count(); ++side) {
      least = std::min(least, path.corners[2 * side + along]);
      most = std::max(most, path.corners[2 * side + along]);
    }
    extent = std::max(extent, most - least);
  }
  return extent;
}

} // namespace

Micrometres LoopPlan::total() const {
  return std::accumulate(straights.begin(), straights.end(), Micrometres{0});
}

struct LoopSolver::Pair {
  std::vector<Micrometres> offsets;
  AxisSearch level;
  AxisSearch upright;

  Micrometres longest() const { return level.longestTotal() + upright.longestTotal(); }
};

LoopSolver::LoopSolver(const LayoutTask& task, const TablePath& path, const StationThroat& throat,
                       std::vector<PlainStraight> straights)
    : task_(task), path_(path), throat_(throat), straights_(std::move(straights)),
      runs_(straights_, straightGrain(task.system), extentOf(path)) {
  Micrometres bridge = 0;
  if (task.bridge) {
    const BridgeKit kit = bridgeKit(task.system);
    const PieceDef* piece =
        task.bridge->form == BridgeForm::Arch ? kit.archBridge : kit.trussBridge;
    bridge = piece == nullptr ? 0 : toMicrometres(piece->length);
  }
  if (task.station && !throat.sidings.empty())
    station_.emplace(throat, runs_, task.station->usableLength);
  for (std::size_t i = 0; i < path.count(); ++i) {
    const bool withStation = station_ && path.sides[i].asked == task.station->side;
    const bool withBridge = task.bridge && path.sides[i].asked == task.bridge->side;
    if (withStation)
      stationSide_ = i;
    sides_.push_back(std::make_unique<SideSums>(runs_, task.tracks(), withBridge ? bridge : 0,
                                                withStation ? &*station_ : nullptr));
  }
}

std::vector<std::size_t> LoopSolver::leftTurns() const {
  std::vector<std::size_t> turns;
  for (std::size_t i = 0; i < path_.count(); ++i)
    if (path_.sides[i].turnsLeft)
      turns.push_back(i);
  return turns;
}

/// How far the lines of all sides are off their edges at least, for each way to round the inside
/// corners: nearer to one edge there, or to the other.
std::vector<std::vector<Micrometres>> LoopSolver::offsets(int grid) const {
  std::vector<std::vector<Micrometres>> all{std::vector<Micrometres>(path_.count(), path_.margin)};
  for (const std::size_t turn : leftTurns()) {
    const Micrometres least = path_.clearing(path_.leftRadius);
    const Micrometres most = std::max(least, path_.leftRadius);
    std::vector<std::vector<Micrometres>> further;
    for (const std::vector<Micrometres>& before : all)
      for (int k = 0; k < grid; ++k) {
        std::vector<Micrometres> offs = before;
        const Micrometres off = least + (most - least) * k / std::max(grid - 1, 1);
        Micrometres& first = offs[path_.before(turn)];
        Micrometres& second = offs[turn];
        first = std::max(first, off);
        second = std::max(second, path_.clearing(off));
        further.push_back(std::move(offs));
        if (most == least)
          break;
      }
    all = std::move(further);
  }
  return all;
}

Axis LoopSolver::axisOf(bool level, const std::vector<Micrometres>& offsets, Micrometres misfit,
                        const std::vector<Window>* windows) const {
  const Micrometres apart = toMicrometres(doubleTrackSpacings(task_.system).front());
  Axis axis;
  axis.grain = runs_.grain();
  axis.misfit = misfit;
  const std::size_t n = path_.count();
  const std::size_t first = path_.sides[0].level() == level ? 0 : 1;
  const auto lineOf = [&](std::size_t side) { return (side + 1 + n - first) % n / 2; };
  for (std::size_t i = first; i < n; i += 2) {
    const std::size_t across = path_.before(i);
    const PathSide& line = path_.sides[across];
    const Micrometres off = offsets[across];
    // The end of an aisle would go all the way to the other side for the sake of length.
    const bool aisle = line.turnsLeft && path_.sides[i].turnsLeft;
    axis.lines.push_back({line.tableBeyond(), line.edge + (line.tableBeyond() ? off : -off),
                          aisle && near_ ? apart : kAnywhere});
    AxisSide side{path_.sides[i].sign(), path_.cornersOf(i), sides_[i].get(), sides_[i]->least(),
                  sides_[i]->least() < 0 ? -1 : runs_.longest()};
    if (windows != nullptr) {
      side.low = std::max(side.low, (*windows)[i].low);
      side.high = std::min(side.high, (*windows)[i].high);
    }
    axis.sides.push_back(side);
  }
  for (const FacingSides& facing : path_.facing()) {
    if (path_.sides[facing.low].level() == level)
      continue;
    Micrometres least = apart + 2 * path_.spacing;
    if (station_ && stationApart_ && (facing.low == stationSide_ || facing.high == stationSide_))
      least += static_cast<Micrometres>(std::ceil(throat_.width * 1000));
    axis.gaps.push_back({lineOf(facing.low), lineOf(facing.high), least});
  }
  return axis;
}

std::vector<LoopSolver::Pair> LoopSolver::pairsOf(int grid, Micrometres misfitX,
                                                  Micrometres misfitY,
                                                  const std::vector<Window>* windows) const {
  std::vector<Pair> pairs;
  for (std::vector<Micrometres>& offs : offsets(grid)) {
    AxisSearch level(axisOf(true, offs, misfitX, windows));
    if (!level.possible())
      continue;
    AxisSearch upright(axisOf(false, offs, misfitY, windows));
    if (upright.possible())
      pairs.push_back({std::move(offs), std::move(level), std::move(upright)});
  }
  // Of equally long loops those that keep nearest to the edges come first.
  const auto off = [](const Pair& pair) {
    return std::accumulate(pair.offsets.begin(), pair.offsets.end(), Micrometres{0});
  };
  std::ranges::stable_sort(pairs, [&](const Pair& a, const Pair& b) {
    return a.longest() != b.longest() ? a.longest() > b.longest() : off(a) < off(b);
  });
  return pairs;
}

LoopPlan LoopSolver::planOf(const Pair& pair, const AxisSums& level,
                            const AxisSums& upright) const {
  const std::size_t n = path_.count();
  LoopPlan plan;
  plan.straights.resize(n);
  plan.lines.resize(n);
  for (const bool isLevel : {true, false}) {
    const AxisSearch& axis = isLevel ? pair.level : pair.upright;
    const AxisSums& sums = isLevel ? level : upright;
    const std::vector<Micrometres> lines = axis.linesOf(sums);
    std::size_t side = path_.sides[0].level() == isLevel ? 0 : 1;
    for (std::size_t i = 0; i < sums.size(); ++i, side += 2) {
      plan.straights[side] = sums[i];
      plan.lines[path_.before(side)] = lines[i];
    }
  }
  for (std::size_t i = 0; i < n; ++i)
    plan.pieces += sides_[i]->pieces(plan.straights[i]);
  if (station_)
    plan.station = sides_[stationSide_]->stationOn(plan.straights[stationSide_]);
  for (const PlainStraight& straight : straights_)
    plan.kinds.push_back(straight.piece);
  return plan;
}

bool LoopSolver::hasRoom() {
  return !pairsOf(kGrid, 0, 0, nullptr).empty();
}

Steps LoopSolver::longestOf(const std::vector<const Pair*>& pairs, Micrometres mostTotal,
                            long& tries, long share, std::optional<LoopPlan>& found) const {
  const auto offOf = [this](const LoopPlan& plan) {
    Micrometres off = 0;
    for (std::size_t i = 0; i < path_.count(); ++i)
      off += std::abs(plan.lines[i] - path_.sides[i].edge);
    return off;
  };
  std::size_t asLong = 0;
  for (const Pair* const candidate : pairs) {
    const Pair& pair = *candidate;
    const Micrometres best = found ? found->total() : -1;
    if (pair.longest() < best || asLong > kPairs || tries <= 0)
      break;
    std::array<std::optional<AxisSums>, 2> sums;
    std::array<Micrometres, 2> totals{};
    for (const std::size_t k : {0U, 1U}) {
      const AxisSearch& axis = k == 0 ? pair.level : pair.upright;
      const Micrometres other = k == 0 ? pair.upright.leastTotal() : totals[0];
      const Micrometres otherMost = k == 0 ? pair.upright.longestTotal() : totals[0];
      Micrometres total = axis.longestTotal();
      if (const Micrometres over = total + other - mostTotal; over > 0)
        total -= (over + axis.step() - 1) / axis.step() * axis.step();
      long left = share;
      for (; !sums[k] && total >= axis.leastTotal() && total + otherMost >= best && left > 0;
           total -= axis.step()) {
        const long before = left;
        long slice = std::min(left, kTriesInStep);
        sums[k] = axis.withTotal(total, slice);
        left -= std::min(before, kTriesInStep) - slice;
        if (sums[k])
          totals[k] = total;
        if ((before - left) > kTriesInStep / 2 || before / kTriesInStep != left / kTriesInStep)
          co_yield 0;
      }
      tries -= share - left;
      if (!sums[k])
        break;
    }
    if (!sums[0] || !sums[1] || totals[0] + totals[1] > mostTotal)
      continue;
    LoopPlan plan = planOf(pair, *sums[0], *sums[1]);
    if (!found || plan.total() > best || (plan.total() == best && offOf(plan) < offOf(*found)))
      found = std::move(plan);
    asLong = found->total() == best ? asLong + 1 : 0;
    co_yield 0;
  }
}

/// Where few of the loops that close are accepted: sides of both axes in every combination, the
/// longest first.
Steps LoopSolver::longestOfMany(const std::vector<Pair>& pairs, Micrometres mostTotal,
                                Accept accept, std::optional<LoopPlan>& found) const {
  struct Combination {
    Micrometres total = 0;
    std::size_t level = 0;
    std::size_t upright = 0;
  };
  int refused = 0;
  for (std::size_t p = 0; p < std::min(pairs.size(), kManyPairs); ++p) {
    std::array<std::vector<std::pair<Micrometres, AxisSums>>, 2> sums;
    for (const std::size_t k : {0U, 1U}) {
      const AxisSearch& axis = k == 0 ? pairs[p].level : pairs[p].upright;
      long tries = kThoroughTries;
      for (Micrometres total = std::min(axis.longestTotal(), mostTotal / axis.step() * axis.step() +
                                                                 axis.longestTotal() % axis.step());
           total >= axis.leastTotal() && tries > 0 && sums[k].size() < kManySums;
           total -= axis.step()) {
        const long before = tries;
        if (std::optional<AxisSums> made = axis.withTotal(total, tries))
          sums[k].push_back({total, std::move(*made)});
        if (before / kTriesInStep != tries / kTriesInStep)
          co_yield 0;
      }
    }
    std::vector<Combination> all;
    for (std::size_t i = 0; i < sums[0].size(); ++i)
      for (std::size_t k = 0; k < sums[1].size(); ++k)
        if (const Micrometres total = sums[0][i].first + sums[1][k].first; total <= mostTotal)
          all.push_back({total, i, k});
    std::ranges::stable_sort(all, std::greater<>(), &Combination::total);
    co_yield 0;
    for (const Combination& both : all) {
      if (++refused > kManyRefused)
        co_return;
      LoopPlan plan = planOf(pairs[p], sums[0][both.level].second, sums[1][both.upright].second);
      if (accept(plan)) {
        found = std::move(plan);
        co_return;
      }
      co_yield 0;
    }
  }
}

/// No loop is longer than all straights at home.
Micrometres LoopSolver::stockTotal() const {
  Micrometres total = 0;
  for (const PlainStraight& straight : plainStraights(task_.system))
    if (const auto own = task_.stock.find(straight.piece->article); own != task_.stock.end())
      total += own->second * toMicrometres(straight.length);
  for (const std::unique_ptr<SideSums>& side : sides_)
    total += std::max<Micrometres>(side->least(), 0) * task_.tracks();
  return total / task_.tracks();
}

Steps LoopSolver::longest(Micrometres mostTotal, Accept accept, std::optional<LoopPlan>& found) {
  found.reset();
  if (task_.ownStockOnly) {
    const std::vector<Pair> pairs = pairsOf(kGrid, 0, 0, nullptr);
    co_yield 0;
    for (Steps steps = longestOfMany(pairs, std::min(mostTotal, stockTotal()), accept, found);
         steps.step();)
      co_yield 0;
    co_return;
  }
  const bool complex = path_.count() > 4;
  // Exactly closed first; misfits only where there is no other loop, the least of them first.
  std::vector<std::pair<Micrometres, Micrometres>> misfits{{0, 0}};
  if (path_.count() > 4) {
    const Micrometres most = toMicrometres(kClosingPlay) - 10;
    for (Micrometres x = -most / runs_.grain() * runs_.grain(); x <= most; x += runs_.grain())
      for (Micrometres y = -most / runs_.grain() * runs_.grain(); y <= most; y += runs_.grain())
        if (x * x + y * y <= most * most && (x == 0 || y == 0) && (x != 0 || y != 0))
          misfits.push_back({x, y});
    std::ranges::stable_sort(misfits, {},
                             [](const auto& m) { return m.first * m.first + m.second * m.second; });
  }
  constexpr std::array<std::pair<bool, bool>, 3> kManners{
      {{true, true}, {true, false}, {false, false}}};
  for (const auto& [apart, near] : kManners) {
    if (!complex && !near)
      break;
    stationApart_ = apart;
    near_ = near;
    for (const auto& [x, y] : misfits) {
      const bool exact = x == 0 && y == 0;
      const std::vector<Pair> pairs = pairsOf(kGrid, x, y, nullptr);
      co_yield 0;
      if (pairs.empty())
        break;
      // Where sums are few and far between, some pairs are searched through and through.
      for (const bool thorough : {false, true}) {
        if (thorough && !exact)
          break;
        std::vector<const Pair*> some;
        const std::size_t step = thorough ? (pairs.size() + kThorough - 1) / kThorough : 1;
        for (std::size_t i = 0; i < pairs.size(); i += step)
          some.push_back(&pairs[i]);
        const long share = thorough ? kThoroughTries : kTries;
        long tries = thorough ? kThoroughTries * 2 * static_cast<long>(kThorough)
                     : exact  ? kAllTries
                              : kMisfitTries;
        Micrometres most = mostTotal;
        for (int refused = 0; refused < kRefused; ++refused) {
          std::optional<LoopPlan> plan;
          for (Steps steps = longestOf(some, most, tries, share, plan); steps.step();)
            co_yield 0;
          if (!plan)
            break;
          if (accept(*plan)) {
            found = std::move(plan);
            co_return;
          }
          most = plan->total() - runs_.grain();
          co_yield 0;
        }
      }
    }
  }
}

Steps LoopSolver::longestStation(Micrometres mostTotal, Accept accept,
                                 std::optional<LoopPlan>& found) {
  found.reset();
  if (!station_)
    co_return;
  Micrometres most = 0;
  const bool level = path_.sides[stationSide_].level();
  for (const Pair& pair : pairsOf(kGrid, 0, 0, nullptr)) {
    const Axis& axis = (level ? pair.level : pair.upright).axis();
    most = std::max(most, axis.sides[stationSide_ / 2].high);
  }
  co_yield 0;
  SideSums& side = *sides_[stationSide_];
  const auto& lengths = station_->lengths();
  for (auto at = lengths.rbegin(); at != lengths.rend(); ++at) {
    if (at->length > most)
      continue;
    side.holdStation(at->length);
    for (Steps steps = longest(mostTotal, accept, found); steps.step();)
      co_yield 0;
    if (found)
      break;
  }
  side.holdStation(0);
}

Steps LoopSolver::fewestValues(const std::vector<Window>& windows,
                               std::vector<std::vector<AxisSearch::Value>>& values) const {
  for (std::size_t i = 0; i < path_.count(); ++i) {
    for (Micrometres length = windows[i].low; length <= windows[i].high; length += runs_.grain()) {
      if (const int pieces = sides_[i]->pieces(length); pieces >= 0)
        values[i].push_back({length, pieces});
    }
    std::ranges::stable_sort(values[i], [](const auto& a, const auto& b) {
      return a.pieces != b.pieces ? a.pieces < b.pieces : a.length > b.length;
    });
  }
  co_yield 0;
}

Steps LoopSolver::fewest(const LoopPlan& model, Micrometres play, int most, Accept accept,
                         std::optional<LoopPlan>& found) {
  found.reset();
  std::vector<Window> windows;
  for (const Micrometres length : model.straights)
    windows.push_back({(std::max<Micrometres>(length - play, 0) + runs_.grain() - 1) /
                           runs_.grain() * runs_.grain(),
                       (length + play) / runs_.grain() * runs_.grain()});
  std::vector<std::vector<AxisSearch::Value>> values(path_.count());
  for (Steps steps = fewestValues(windows, values); steps.step();)
    co_yield 0;
  std::array<std::vector<std::vector<AxisSearch::Value>>, 2> byAxis;
  std::array<int, 2> least{};
  std::array<int, 2> greatest{};
  for (std::size_t i = 0; i < path_.count(); ++i) {
    if (values[i].empty())
      co_return;
    const std::size_t axis = path_.sides[i].level() ? 0 : 1;
    greatest[axis] += values[i].back().pieces;
    least[axis] += values[i].front().pieces;
    byAxis[axis].push_back(std::move(values[i]));
  }
  for (const Pair& pair : pairsOf(leftTurns().size() > 1 ? 9 : kGrid, 0, 0, &windows)) {
    std::array<std::optional<AxisSums>, 2> sums;
    std::array<int, 2> pieces{};
    for (const std::size_t k : {0U, 1U}) {
      const int other = k == 0 ? least[1] : pieces[0];
      const int limit = std::min((found ? found->pieces : most) - other, greatest[k]);
      for (pieces[k] = least[k]; !sums[k] && pieces[k] <= limit; ++pieces[k]) {
        long tries = kFewTries;
        sums[k] = (k == 0 ? pair.level : pair.upright).withPieces(byAxis[k], pieces[k], tries);
        co_yield 0;
        if (sums[k])
          break;
      }
      if (!sums[k])
        break;
    }
    if (!sums[0] || !sums[1])
      continue;
    LoopPlan plan = planOf(pair, *sums[0], *sums[1]);
    if (!found || plan.pieces < found->pieces ||
        (plan.pieces == found->pieces && plan.total() > found->total()))
      if (accept(plan))
        found = std::move(plan);
    co_yield 0;
  }
}

} // namespace trassix
