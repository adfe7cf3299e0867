#include "bridge_tasks.h"

#include "catalog/plain_track.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/supports/pier_room.h"
#include "editing/supports/supports.h"
#include "editing/track/routes.h"
#include "editing/track/track_geometry.h"
#include "editing/tunnels/tunnel_figures.h"
#include "support/plan.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace trassix {

namespace {

struct Sample {
  std::int32_t piece = -1;
  Pose pose;
  double along = 0; ///< the piece's route from its start
  double z = 0;
  double half = 0; ///< of the free width
};

/// Points on all routes of a piece, about `step` mm apart.
std::vector<Sample> samplesOf(const PlacedPiece& piece, double step) {
  std::vector<Sample> samples;
  const PieceDef& definition = cataloguePiece(piece.cat);
  for (const Route& route : routesOf(definition)) {
    const double from = endHeight(piece, definition, route.from);
    const double rise = endHeight(piece, definition, route.to) - from;
    const double length = routeLength(route);
    for (const RoutePoint& point : sampleRoute(route, 0.05, step)) {
      const Point at = toWorld(poseOf(piece), point.position);
      samples.push_back(
          {piece.id,
           {at.x, at.y, piece.heading + point.heading},
           point.along,
           from + rise * point.along / length,
           std::max(halfFreeWidth(definition.system), trackHalfWidth(definition.system)) +
               sideAddition(definition.system,
                            definition.kind == PieceKind::Curve ? definition.radius : 0)});
    }
  }
  return samples;
}

double distance(const Sample& a, Point b) {
  return std::hypot(a.pose.x - b.x, a.pose.y - b.y);
}

/// Pieces at most so many joints away.
std::set<std::int32_t> near(const Layout& layout, std::int32_t piece, int joints) {
  std::set<std::int32_t> met{piece};
  for (int i = 0; i < joints; ++i)
    for (const std::int32_t id : std::set(met))
      for (const Joint& joint : layout.findPiece(id)->joints)
        if (!joint.open())
          met.insert(joint.target);
  return met;
}

double asked(const BridgeTask& task, TrackSystem system) {
  return task.clearance > 0 ? task.clearance : leastClearance(system);
}

/// Where the deck of `upper` comes over the free width of `lower`.
bool isOver(const Sample& upper, const Sample& lower, double deck) {
  for (const double side : {-deck, 0.0, deck})
    if (distance(lower, toWorld(upper.pose, {0, side})) < lower.half)
      return true;
  return false;
}

/// All samples of a plan by the place of their piece, so that near ones are found fast.
class TrackSamples {
 public:
  TrackSamples(const Layout& layout, double step) {
    for (const PlacedPiece& piece : layout.pieces()) {
      Group group{{piece.x, piece.y}, 0, samplesOf(piece, step)};
      for (const Sample& sample : group.samples)
        group.reach = std::max(group.reach, distance(sample, group.at) + 3 * sample.half);
      groups_.push_back(std::move(group));
    }
  }

  template <class Visit>
  void near(Point at, double reach, Visit visit) const {
    for (const Group& group : groups_)
      if (std::hypot(group.at.x - at.x, group.at.y - at.y) < group.reach + reach)
        for (const Sample& sample : group.samples)
          visit(sample);
  }

 private:
  struct Group {
    Point at;
    double reach = 0;
    std::vector<Sample> samples;
  };
  std::vector<Group> groups_;
};

std::string lowClearance(const BridgeCase& before, const Layout& after, const BridgePlan& plan) {
  const TrackSystem system = cataloguePiece(after.pieces().front().cat).system;
  const double step = longestSpan(system) / 60;
  const double deck = trackHalfWidth(system);
  const TrackSamples all(after, step);
  std::string fault;
  for (const std::int32_t id : plan.pieces) {
    const std::set<std::int32_t> neighbours = near(after, id, 4);
    for (const Sample& upper : samplesOf(*after.findPiece(id), step))
      all.near({upper.pose.x, upper.pose.y}, 0, [&](const Sample& lower) {
        if (lower.z > upper.z + 1 ||
            distance(upper, {lower.pose.x, lower.pose.y}) > lower.half + deck ||
            neighbours.contains(lower.piece) || !isOver(upper, lower, deck))
          return;
        const double clearance = upper.z - kDeckThickness - lower.z - railTop(system);
        if (clearance < asked(before.task, system) - 0.1)
          fault = "clearance " + std::to_string(clearance) + " over piece " +
                  std::to_string(lower.piece);
      });
  }
  return fault;
}

std::string badGrades(const BridgeCase& before, const Layout& after, const BridgePlan& plan) {
  double lastSlope = 0;
  double lastLength = 0;
  for (std::size_t i = 0; i < plan.pieces.size(); ++i) {
    const PlacedPiece& piece = *after.findPiece(plan.pieces[i]);
    const PieceDef& definition = cataloguePiece(piece.cat);
    const double length = runTo(definition, 1);
    const double direction =
        std::abs(endHeight(piece, definition, 0) - plan.side.rails[i].height) < 1e-6 ? 1 : -1;
    const double slope = direction * slopeOf(piece);
    if (std::abs(slope) > before.task.limit + 1e-6)
      return "grade " + std::to_string(slope);
    const double between = i == 0 ? length : (length + lastLength) / 2;
    const double most = kEasingChange * between / easingLength(definition.system);
    if (std::abs(slope - lastSlope) > most + 1e-6)
      return "change of grade " + std::to_string(slope - lastSlope) + " at piece " +
             std::to_string(i) + " of " + std::to_string(plan.pieces.size());
    lastSlope = slope;
    lastLength = length;
  }
  return {};
}

std::string pierInTheWay(const Layout& after) {
  const TrackSystem system = cataloguePiece(after.pieces().front().cat).system;
  const double high = railTop(system) + leastClearance(system);
  const TrackSamples all(after, longestSpan(system) / 36);
  std::string fault;
  for (const Support& support : supportsOf(after).supports) {
    const std::set<std::int32_t> carried = near(after, support.piece, 1);
    for (const Support& foot : standingParts(support))
      all.near({foot.pose.x, foot.pose.y}, foot.across, [&](const Sample& track) {
        if (track.z + kRaised >= foot.head || track.z + high <= foot.foot)
          return;
        const Point at = toWorld({0, 0, -foot.pose.heading},
                                 {track.pose.x - foot.pose.x, track.pose.y - foot.pose.y});
        const double off = std::hypot(std::max(0.0, std::abs(at.x) - foot.along / 2),
                                      std::max(0.0, std::abs(at.y) - foot.across / 2));
        if (off < track.half - 0.3 && !carried.contains(track.piece))
          fault = "a pier " + std::to_string(off) + " from piece " + std::to_string(track.piece);
      });
  }
  return fault;
}

/// The most that pieces so long climb, trying slopes in small steps from piece to piece.
double slowRise(const std::vector<double>& lengths, double limit, double easing) {
  constexpr int kSteps = 100;
  std::vector<double> best(kSteps + 1, -1);
  double before = lengths.front();
  for (std::size_t i = 0; i < lengths.size(); ++i) {
    std::vector<double> next(kSteps + 1, -1);
    const double change = kEasingChange * (before + lengths[i]) / 2 / easing;
    for (int k = 0; k <= kSteps; ++k) {
      const double slope = limit * k / kSteps;
      for (int from = 0; from <= (i == 0 ? 0 : kSteps); ++from) {
        const double last = i == 0 ? 0 : limit * from / kSteps;
        const double risen = i == 0 ? 0 : best[static_cast<std::size_t>(from)];
        if (risen >= 0 && std::abs(slope - last) <= change)
          next[static_cast<std::size_t>(k)] =
              std::max(next[static_cast<std::size_t>(k)], risen + slope * lengths[i]);
      }
    }
    best = std::move(next);
    before = lengths[i];
  }
  double most = 0;
  for (int k = 0; k <= kSteps; ++k)
    if (limit * k / kSteps <= kEasingChange * before / easing)
      most = std::max(most, best[static_cast<std::size_t>(k)]);
  return most;
}

// Cases.

class Maker {
 public:
  Maker(std::mt19937& random, TrackSystem system)
      : random_(random), system_(system), straight_(*usualStraight(system)) {
    const auto curves = plainCurvesByRadius(system);
    auto wide = curves.begin();
    std::advance(wide, static_cast<long>(std::min<std::size_t>(1, curves.size() - 1)));
    curve_ = wide->second;
  }

  int pick(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }
  double pickReal(double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random_);
  }

  /// The way of the bridge, about the origin of which the middle of its piece `middle` lies.
  void layWay(BridgeCase& made, int shape) {
    Plan plan;
    const int half = pick(4, 26);
    plan.place(straight_.article);
    if (shape == 0) { // straight on
      plan.extend(straight_.article, 2 * half);
      made.open = true;
      middle_ = static_cast<std::size_t>(half);
    } else if (shape == 1) { // an oval
      const int count = pick(6, 22);
      plan.extend(straight_.article, count - 1);
      plan.extend(curve_->article, turns());
      plan.extend(straight_.article, count);
      plan.extend(curve_->article, turns());
      made.round = true;
      middle_ = static_cast<std::size_t>(pick(1, count - 2));
    } else { // with a curve where it crosses
      plan.extend(straight_.article, half);
      plan.extendLeft(curve_->article, 3);
      plan.extend(straight_.article, half);
      made.open = true;
      middle_ = static_cast<std::size_t>(half + 2);
    }
    finish(made, plan);
  }

  /// A way that comes back over itself by a loop; false when the system has none in the band.
  bool layLoop(BridgeCase& made, double least, double most) {
    for (int more = 1; more <= 4; ++more) {
      const double angle = more * curve_->angle;
      if (angle < least || angle > most)
        continue;
      const double tangent = curve_->radius / std::tan(toRadians(angle / 2));
      const int over = static_cast<int>(tangent / straight_.length);
      const int beyond = pick(2, 16);
      const int between = pick(0, 12); // straights in the loop, which make it longer
      Plan plan;
      plan.place(straight_.article).extend(straight_.article, over + beyond);
      plan.extend(curve_->article, turns() / 2);
      plan.extend(straight_.article, between);
      plan.extend(curve_->article, turns() / 2);
      plan.extend(straight_.article, between);
      plan.extend(curve_->article, more);
      plan.extend(straight_.article, over + beyond);
      finish(made, plan);
      made.open = true;
      for (const TrackCrossing& crossing : trackCrossings(made.layout)) {
        made.ownLower = std::max(crossing.lower.piece, crossing.upper.piece);
        const std::int32_t upper = std::min(crossing.lower.piece, crossing.upper.piece);
        middle_ = static_cast<std::size_t>(std::ranges::find(made.way, upper) - made.way.begin());
      }
      return made.ownLower != -1;
    }
    return false;
  }

  /// Lower track through a place of the way's middle piece.
  void layBelow(BridgeCase& made, double angle, int tracks) {
    const PlacedPiece& piece = *made.layout.findPiece(made.way[middle_]);
    const std::vector<Sample> samples = samplesOf(piece, 5);
    const Sample& at =
        samples[static_cast<std::size_t>(pick(0, static_cast<int>(samples.size()) - 1))];
    layTrack(made, at.pose, angle, tracks);
  }

  void layTrack(BridgeCase& made, const Pose& at, double angle, int tracks) {
    const double heading = at.heading + (pick(0, 1) == 0 ? angle : -angle);
    const double spacing = doubleTrackSpacings(system_).front();
    const bool curved = tracks == 1 && pick(0, 3) == 0;
    for (int i = 0; i < tracks; ++i) {
      const int count = pick(2, 3);
      const double shift = pickReal(0.2, 0.8) * straight_.length;
      Plan plan;
      plan.layout = std::move(made.layout);
      const Point start =
          toWorld({at.x, at.y, heading}, {-count * straight_.length + shift, i * spacing});
      plan.place(straight_.article, {start.x, start.y, heading});
      plan.extend(straight_.article, count - 1);
      curved ? plan.extend(curve_->article) : plan.extend(straight_.article, count);
      made.layout = std::move(plan.layout);
    }
  }

  /// The chosen stretch: the middle piece with so many beside it.
  void choose(BridgeCase& made, std::size_t beside) {
    const std::size_t from = middle_ - std::min(middle_, beside);
    const std::size_t to = std::min(middle_ + beside, made.way.size() - 1);
    made.task.pieces.assign(made.way.begin() + static_cast<long>(from),
                            made.way.begin() + static_cast<long>(to) + 1);
    std::ranges::sort(made.task.pieces);
  }

  void wish(BridgeCase& made) {
    constexpr double kLimits[]{0.03, 0.035, 0.04, 0.05};
    made.task.limit = kLimits[pick(0, 3)];
    made.task.clearance = leastClearance(system_, pick(0, 3) == 0);
    made.task.piers = pick(0, 1) == 0 ? PierHeights::Any : PierHeights::Preferred;
    made.task.span = pick(0, 4) == 0 ? SpanKind::Deck : SpanKind::Auto;
    made.task.rampPieces = pick(0, 5) == 0;
    if (pick(0, 3) == 0) {
      const std::vector<SpanKind> kinds = spanKinds(system_);
      made.task.span = kinds[static_cast<std::size_t>(pick(0, static_cast<int>(kinds.size()) - 1))];
    } else if (pick(0, 9) == 0) {
      made.task.piers = PierHeights::SeriesOnly;
      made.task.limit = 0.05;
    }
  }

  const PieceDef& straight() const { return straight_; }

 private:
  static void finish(BridgeCase& made, Plan& plan) {
    made.layout = std::move(plan.layout);
    made.way.clear();
    for (const PlacedPiece& piece : made.layout.pieces())
      made.way.push_back(piece.id);
  }

  int turns() const { return static_cast<int>(std::lround(180 / std::abs(curve_->angle))); }

  std::mt19937& random_;
  TrackSystem system_;
  const PieceDef& straight_;
  const PieceDef* curve_ = nullptr;
  std::size_t middle_ = 0;
};

} // namespace

BridgeCase randomCase(std::mt19937& random, TrackSystem system, BridgeWay way, double leastAngle,
                      double mostAngle) {
  Maker make(random, system);
  BridgeCase made;
  made.task.way = way;
  const double angle = make.pickReal(leastAngle, mostAngle);
  const int tracks = make.pick(0, 3) == 0 ? 2 : 1;
  int shape = way == BridgeWay::FromEnd ? 0 : make.pick(0, 3);
  if (shape == 3 && (way != BridgeWay::LiftOver || !make.layLoop(made, leastAngle, mostAngle)))
    shape = 1;
  if (way == BridgeWay::FromEnd) {
    Plan plan;
    plan.place(make.straight().article, {-make.straight().length, 0, 0});
    made.layout = std::move(plan.layout);
    made.task.end = {made.layout.pieces().front().id, 1};
    made.open = true;
    const double ahead = make.pickReal(0.3, 30) * make.straight().length;
    make.layTrack(made, {ahead, 0, 0}, angle, tracks);
    make.wish(made);
  } else {
    if (shape != 3)
      make.layWay(made, shape);
    make.wish(made);
    if (way == BridgeWay::AsItLies) {
      const double height = make.pickReal(1.35, 2.5) * made.task.clearance + railTop(system) +
                            kDeckThickness + 0.02 * longestSpan(system);
      for (PlacedPiece& piece : made.layout.edit().pieces)
        piece.z = height;
    }
    if (shape != 3)
      make.layBelow(made, angle, tracks);
    make.choose(made, shape == 3 ? 0 : tracks == 1 ? 1 : 3);
  }
  made.about = std::string(systemName(system)) + ", way " + std::to_string(static_cast<int>(way)) +
               ", shape " + std::to_string(shape) + ", " + std::to_string(tracks) + " at " +
               std::to_string(angle) + " degrees, limit " + std::to_string(made.task.limit);
  return made;
}

std::string faultIn(const BridgeCase& before, const Layout& after, const BridgePlan& plan) {
  if (std::string rule = brokenRule(after); !rule.empty())
    return rule;
  const Play was = largestPlay(before.layout);
  const Play play = largestPlay(after);
  if (play.step > was.step + 0.01 || play.distance > was.distance + 0.21)
    return "a joint with a step of " + std::to_string(play.step) + " and a gap of " +
           std::to_string(play.distance);
  if (openEnds(after) != openEnds(before.layout))
    return "other open ends";
  if (std::string fault = lowClearance(before, after, plan); !fault.empty())
    return fault;
  if (before.task.way != BridgeWay::AsItLies)
    if (std::string fault = badGrades(before, after, plan); !fault.empty())
      return fault;
  return pierInTheWay(after);
}

bool couldClimb(const BridgeCase& task) {
  const TrackSystem system = cataloguePiece(task.layout.pieces().front().cat).system;
  const double need = railTop(system) + kDeckThickness + asked(task.task, system);
  const bool free = task.task.span == SpanKind::Auto || task.task.span == SpanKind::Deck;
  if (!free || task.task.piers == PierHeights::SeriesOnly)
    return false; // such a wish may stand in the way of what could be built
  if (task.task.way == BridgeWay::AsItLies)
    return true;
  const double usual = usualStraight(system)->length;
  std::vector<double> lengths;
  std::vector<std::int32_t> below;
  std::vector<Sample> above;
  if (task.task.way == BridgeWay::FromEnd) {
    lengths.assign(60, usual);
    for (double at = 0; at < 60 * usual; at += 5)
      above.push_back({-1, {at, 0, 0}, at, 0, 0});
  }
  for (const std::int32_t id : task.way)
    lengths.push_back(runTo(cataloguePiece(task.layout.findPiece(id)->cat), 1));
  std::vector<double> joints{0};
  for (const double length : lengths)
    joints.push_back(joints.back() + length);
  for (std::size_t i = 0; i < task.way.size(); ++i) {
    const bool chosen = std::ranges::binary_search(task.task.pieces, task.way[i]);
    // Only the order matters along a piece: which end it begins with is told by its neighbour.
    std::vector<Sample> samples = samplesOf(*task.layout.findPiece(task.way[i]), 5);
    const auto back = [&](const Sample& sample) {
      const PlacedPiece& piece = *task.layout.findPiece(task.way[i]);
      return i + 1 < task.way.size() && piece.joints[0].target == task.way[i + 1]
                 ? lengths[i] - sample.along
                 : sample.along;
    };
    for (Sample sample : samples) {
      sample.along = joints[i] + back(sample);
      if (chosen)
        above.push_back(sample);
    }
  }
  const TrackSamples all(task.layout, longestSpan(system) / 60);
  double from = 1e9;
  double to = -1e9;
  for (const Sample& sample : above)
    all.near({sample.pose.x, sample.pose.y}, 0, [&](const Sample& lower) {
      const bool own = std::ranges::find(task.way, lower.piece) != task.way.end();
      if ((own && lower.piece != task.ownLower) || lower.piece == task.task.end.piece ||
          !isOver(sample, lower, trackHalfWidth(system)))
        return;
      from = std::min(from, sample.along);
      to = std::max(to, sample.along);
    });
  const auto first =
      static_cast<std::size_t>(std::ranges::upper_bound(joints, from) - joints.begin()) - 1;
  const auto last = static_cast<std::size_t>(std::ranges::lower_bound(joints, to) - joints.begin());
  // Pieces of each ramp from the bridge outwards, and how many it takes.
  const auto pieces = [&](bool up, std::size_t most) {
    std::vector<double> ramp;
    while (ramp.size() < most) {
      const std::size_t k = ramp.size();
      const bool within = up ? k < first : last + k < lengths.size();
      if (!within && !task.round && (up && task.task.way == BridgeWay::FromEnd))
        break;
      const std::size_t at = up ? (first + lengths.size() - 1 - k % lengths.size()) % lengths.size()
                                : (last + k) % lengths.size();
      ramp.push_back(within || task.round ? lengths[at] : usual);
      if (slowRise(ramp, task.task.limit, easingLength(system)) >= need)
        return ramp.size();
    }
    return std::size_t{1000};
  };
  std::size_t room = 200;
  if (task.ownLower != -1) // the loop lies between the bridge and what it leads over
    room = static_cast<std::size_t>(std::ranges::find(task.way, task.ownLower) - task.way.begin()) -
           last - 1;
  const std::size_t up = pieces(true, 200);
  const std::size_t down = pieces(false, room);
  return up < 1000 && down < 1000 &&
         (!task.round || up + down + (last - first) + 1 <= lengths.size());
}

} // namespace trassix
