#include "slow_search.h"

#include "catalog/plain_track.h"
#include "catalog/system_kits.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace trassix {

namespace {

double halfBed(TrackSystem system) {
  return system == TrackSystem::ZTrack ? 6 : system == TrackSystem::Gauge1 ? 31.5 : 18.7;
}

long tenths(double mm) {
  return std::lround(mm * 10);
}

/// A pencil that draws ways by nominal measures.
struct Pencil {
  double x = 0, y = 0, heading = 0; ///< radians, positive to the right
  std::vector<Point> line = {{0, 0}};

  void ahead(double length) {
    for (double s = 0; s < length; s += 1) {
      const double step = std::min(1.0, length - s);
      x += step * std::cos(heading);
      y += step * std::sin(heading);
      line.push_back({x, y});
    }
  }
  void bend(double radius, double angle) {
    const int steps = static_cast<int>(std::ceil(radius * std::abs(angle)));
    for (int i = 0; i < steps; ++i) {
      heading += angle / steps / 2;
      const double step = 2 * radius * std::sin(std::abs(angle) / steps / 2);
      x += step * std::cos(heading);
      y += step * std::sin(heading);
      heading += angle / steps / 2;
      line.push_back({x, y});
    }
  }
};

struct Siding {
  double start = 0; ///< where its straights begin, along the main line
  double foul = 0;
};

double foulingOf(TrackSystem system) {
  // H0: 36 wide and 7 more to each side in its turnouts' curves; Z: 14.5 and 1.
  return system == TrackSystem::ZTrack ? 16.5 : system == TrackSystem::MTrack ? 52 : 50;
}

std::vector<Siding> drawThroat(TrackSystem system, int sidings) {
  const StationKit kit = stationKit(system);
  const PieceDef& turnout = *kit.rightTurnout;
  const double angle = std::abs(turnout.angle) * kPi / 180;
  const double first = 2 * turnout.radius * (1 - std::cos(angle));
  double ladder = turnout.length;
  std::vector<PlainStraight> straights = plainStraights(system);
  std::ranges::reverse(straights);
  if (ladder * std::sin(angle) < first - 0.5)
    for (const PlainStraight& straight : straights)
      if ((turnout.length + straight.length) * std::sin(angle) >= first - 0.5) {
        ladder += straight.length;
        break;
      }
  std::vector<std::vector<Point>> ways{{{0, 0}, {6000, 0}}};
  std::vector<Siding> all;
  for (int k = 0; k < sidings; ++k) {
    Pencil pencil;
    pencil.bend(turnout.radius, angle);
    pencil.ahead(k * ladder);
    pencil.bend(turnout.radius, -angle);
    all.push_back({pencil.x, pencil.x});
    pencil.line.push_back({6000, pencil.y});
    ways.push_back(pencil.line);
  }
  for (std::size_t k = 0; k < all.size(); ++k) {
    const auto clear = [&](Point p) {
      for (std::size_t i = 0; i < ways.size(); ++i)
        for (std::size_t j = 0; i != k + 1 && j + 1 < ways[i].size(); ++j)
          if (distanceToEdge(p, ways[i][j], ways[i][j + 1]) < foulingOf(system))
            return false;
      return true;
    };
    const std::vector<Point>& own = ways[k + 1];
    const double y = own.back().y;
    while (!clear({all[k].foul, y}))
      all[k].foul += 1;
    if (all[k].foul == all[k].start)
      for (std::size_t p = own.size() - 2; clear(own[p - 1]); --p)
        all[k].foul -= std::hypot(own[p].x - own[p - 1].x, own[p].y - own[p - 1].y);
  }
  return all;
}

const std::vector<Siding>& throatOf(TrackSystem system, int sidings) {
  static std::map<std::pair<TrackSystem, int>, std::vector<Siding>> known;
  auto& throat = known[{system, sidings}];
  if (throat.empty())
    throat = drawThroat(system, sidings);
  return throat;
}

bool hasStation(const LayoutTask& task, std::size_t side) {
  return task.station && task.station->side == side && hasStationKit(task.system);
}

double bridgeOn(const LayoutTask& task, std::size_t side) {
  if (!task.bridge || task.bridge->side != side || !hasBridge(task.system, task.bridge->form))
    return 0;
  const BridgeKit kit = bridgeKit(task.system);
  return (task.bridge->form == BridgeForm::Arch ? kit.archBridge : kit.trussBridge)->length;
}

/// What the straight part of a side may be as long as, in tenths.
std::vector<bool> sideSums(const LayoutTask& task, std::size_t side, double longest) {
  const std::vector<bool> plain = straightSums(task.system, longest);
  const auto bridge = static_cast<std::size_t>(tenths(bridgeOn(task, side)));
  std::vector<bool> sums(plain.size(), false);
  std::vector<long> cores{0};
  if (hasStation(task, side))
    cores = stationSums(task, longest);
  for (const long core : cores)
    for (std::size_t rest = 0; rest + static_cast<std::size_t>(core) + bridge < sums.size(); ++rest)
      if (plain[rest])
        sums[rest + static_cast<std::size_t>(core) + bridge] = true;
  return sums;
}

double outerRadius(const LayoutTask& task) {
  return std::max(task.radius, task.secondRadius);
}

double margin(const LayoutTask& task) {
  return task.distance + halfBed(task.system);
}

SlowVerdict searchRectangle(const LayoutTask& task) {
  for (const std::size_t side : {0U, 1U}) {
    const Point a = task.outline[side];
    const Point b = task.outline[side + 1];
    const double room = std::hypot(a.x - b.x, a.y - b.y) - 2 * margin(task) - 2 * outerRadius(task);
    if (room < -1e-6)
      return SlowVerdict::Impossible;
    const std::vector<bool> first = sideSums(task, side, room);
    const std::vector<bool> second = sideSums(task, side + 2, room);
    bool any = false;
    for (std::size_t i = 0; i < first.size(); ++i)
      any = any || (first[i] && second[i]);
    if (!any)
      return SlowVerdict::Impossible;
  }
  return SlowVerdict::Possible;
}

/// Lines beside the table's edges: which of them may move, and what has to hold between them.
class LineSearch {
 public:
  explicit LineSearch(const LayoutTask& task);
  bool anyRoom();

 private:
  std::size_t n() const { return task_.outline.size(); }
  double cornerOf(std::size_t i) const {
    return left_[i % n()] ? task_.radius : outerRadius(task_);
  }
  bool fits(const std::vector<double>& off, bool level) const;
  void collect(bool level, std::size_t side, std::vector<double>& off,
               std::vector<std::vector<double>>& found) const;
  bool clears(const std::vector<double>& off) const;
  double coordinate(std::size_t side, const std::vector<double>& off) const;

  LayoutTask task_;
  std::vector<bool> left_;   ///< turns at the beginning of each side
  std::vector<double> need_; ///< straights that each side needs at least
};

LineSearch::LineSearch(const LayoutTask& task) : task_(task) {
  Polygon& outline = task_.outline;
  const std::size_t count = outline.size();
  for (std::size_t i = 0; i < count; ++i) {
    double need = bridgeOn(task, i);
    if (hasStation(task, i)) {
      const std::vector<long> sums = stationSums(task, 12000);
      need += sums.empty() ? 1e9 : static_cast<double>(sums.front()) / 10;
    }
    need_.push_back(need);
  }
  if (signedArea(outline) < 0) {
    std::ranges::reverse(outline);
    std::ranges::reverse(need_); // side i now leads to the corner it began at
    std::ranges::rotate(need_, need_.begin() + 1);
  }
  for (std::size_t i = 0; i < count; ++i) {
    const Point a = outline[(i + count - 1) % count];
    const Point b = outline[i];
    const Point c = outline[(i + 1) % count];
    left_.push_back((b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x) < 0);
  }
}

/// Of the line beside an edge: inward is to the right of its direction.
double LineSearch::coordinate(std::size_t side, const std::vector<double>& off) const {
  const Point a = task_.outline[side];
  const Point b = task_.outline[(side + 1) % n()];
  if (std::abs(a.y - b.y) < std::abs(a.x - b.x))
    return a.y + (b.x > a.x ? off[side] : -off[side]);
  return a.x + (b.y > a.y ? -off[side] : off[side]);
}

/// Sides along one axis, between lines of the other one, have their straights.
bool LineSearch::fits(const std::vector<double>& off, bool level) const {
  for (std::size_t i = 0; i < n(); ++i) {
    const Point a = task_.outline[i];
    const Point b = task_.outline[(i + 1) % n()];
    if ((std::abs(a.y - b.y) < std::abs(a.x - b.x)) != level)
      continue;
    const double sign = level ? (b.x > a.x ? 1 : -1) : (b.y > a.y ? 1 : -1);
    const double length =
        sign * (coordinate((i + 1) % n(), off) - coordinate((i + n() - 1) % n(), off));
    if (length - cornerOf(i) - cornerOf(i + 1) < need_[i] - 1e-6)
      return false;
  }
  return true;
}

void LineSearch::collect(bool level, std::size_t side, std::vector<double>& off,
                         std::vector<std::vector<double>>& found) const {
  if (side == n()) {
    if (fits(off, level))
      found.push_back(off);
    return;
  }
  const Point a = task_.outline[side];
  const Point b = task_.outline[(side + 1) % n()];
  const bool across = (std::abs(a.y - b.y) < std::abs(a.x - b.x)) != level;
  if (!across || (!left_[side] && !left_[(side + 1) % n()]))
    return collect(level, side + 1, off, found);
  const double most = std::max(task_.radius, margin(task_));
  constexpr int kSteps = 20;
  for (int i = 0; i <= kSteps; ++i) {
    off[side] = margin(task_) + (most - margin(task_)) * i / kSteps;
    collect(level, side + 1, off, found);
  }
  off[side] = margin(task_);
}

/// The curve around each inside corner keeps its distance from it.
bool LineSearch::clears(const std::vector<double>& off) const {
  for (std::size_t i = 0; i < n(); ++i) {
    if (!left_[i])
      continue;
    const double x = std::max(task_.radius - off[i], 0.0);
    const double y = std::max(task_.radius - off[(i + n() - 1) % n()], 0.0);
    if (std::hypot(x, y) > std::max(task_.radius - margin(task_), 0.0) - 0.5)
      return false;
  }
  // Where two lines cross or run beside each other inside the table, tracks lie on each other.
  const double least = 2 * halfBed(task_.system) + 2 * (outerRadius(task_) - task_.radius);
  std::vector<Point> corners;
  for (std::size_t i = 0; i < n(); ++i) {
    const double own = coordinate(i, off);
    const double before = coordinate((i + n() - 1) % n(), off);
    const bool level = task_.outline[i].y == task_.outline[(i + 1) % n()].y;
    corners.push_back(level ? Point{before, own} : Point{own, before});
  }
  for (std::size_t i = 0; i < n(); ++i)
    for (std::size_t k = i + 2; k < n() && !(i == 0 && k == n() - 1); ++k) {
      const Point a = corners[i];
      const Point b = corners[(i + 1) % n()];
      const Point c = corners[k];
      const Point d = corners[(k + 1) % n()];
      const auto gap = [](double p, double q, double r, double s) {
        return std::max(std::min(r, s) - std::max(p, q), std::min(p, q) - std::max(r, s));
      };
      const double dx = gap(a.x, b.x, c.x, d.x);
      const double dy = gap(a.y, b.y, c.y, d.y);
      if (std::max(dx, dy) < least)
        return false;
    }
  return true;
}

bool LineSearch::anyRoom() {
  std::vector<double> off(n(), margin(task_));
  std::vector<std::vector<double>> level;
  std::vector<std::vector<double>> upright;
  collect(true, 0, off, level);
  collect(false, 0, off, upright);
  for (const std::vector<double>& x : level)
    for (const std::vector<double>& y : upright) {
      for (std::size_t i = 0; i < n(); ++i)
        off[i] = std::max(x[i], y[i]);
      if (clears(off))
        return true;
    }
  return false;
}

} // namespace

std::vector<bool> straightSums(TrackSystem system, double longest) {
  std::vector<bool> sums(static_cast<std::size_t>(std::max(tenths(longest - 0.05), 0L)) + 1, false);
  sums[0] = true;
  const std::vector<PlainStraight> straights = plainStraights(system);
  for (std::size_t i = 0; i < sums.size(); ++i)
    for (const PlainStraight& straight : straights)
      if (const auto length = static_cast<std::size_t>(tenths(straight.length));
          sums[i] && i + length < sums.size())
        sums[i + length] = true;
  return sums;
}

double usableOf(const LayoutTask& task, double length) {
  double least = 1e9;
  for (const Siding& siding : throatOf(task.system, task.station->sidings))
    least = std::min(least, length - 2 * siding.foul);
  return least;
}

std::vector<long> stationSums(const LayoutTask& task, double longest) {
  const std::vector<bool> plain = straightSums(task.system, longest);
  const long turnouts = 2 * tenths(stationKit(task.system).rightTurnout->length);
  std::vector<long> sums;
  for (long length = turnouts; length < static_cast<long>(plain.size()); ++length) {
    const double mm = static_cast<double>(length) / 10;
    // Fouling points are drawn in steps of a millimetre.
    bool good = plain[static_cast<std::size_t>(length - turnouts)] &&
                usableOf(task, mm) >= task.station->usableLength + 6;
    for (const Siding& siding : throatOf(task.system, task.station->sidings)) {
      bool closes = false;
      const double wanted = mm - 2 * siding.start;
      for (long off = -9; off <= 9 && !closes; ++off) {
        const long run = std::lround(wanted * 10) + off;
        closes = run >= 0 && std::abs(static_cast<double>(run) / 10 - wanted) < 0.9 &&
                 plain[static_cast<std::size_t>(run)];
      }
      good = good && closes;
    }
    if (good)
      sums.push_back(length);
  }
  return sums;
}

SlowVerdict slowSearch(const LayoutTask& task) {
  if (task.outline.size() == 4)
    return searchRectangle(task);
  return LineSearch(task).anyRoom() ? SlowVerdict::Unknown : SlowVerdict::Impossible;
}

} // namespace trassix
