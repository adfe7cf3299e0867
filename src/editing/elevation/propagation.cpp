#include "editing/elevation/propagation.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/elevation/grade_runs.h"
#include "editing/elevation/rigid_bodies.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <unordered_set>

namespace trassix {

namespace {

constexpr double kRounding = 1e-7; // mm: what adding up heights costs
constexpr double kSameSlope = 1e-9;
constexpr int kMostLoops = 1000; // that one change is spread over

using Wanted = std::unordered_map<std::int32_t, PieceHeight>;

double slopeWhenLaid(const PieceHeight& height) {
  PlacedPiece laid;
  lay(laid, height);
  return slopeOf(laid);
}

/// Whether the piece lies otherwise than before, not only higher.
bool tilts(const PlacedPiece& piece, const PieceHeight& wanted) {
  return slopeWhenLaid(wanted) != slopeOf(piece);
}

/// One walk over all that hangs on the changed pieces.
class Walk {
 public:
  Walk(const Layout& layout, const Wanted& wanted)
      : layout_(layout), pieces_(layout.pieces()), wanted_(wanted),
        bodies_(layout, tiltedIds(layout, wanted)), rises_(pieces_.size(), kUnmet),
        cameFrom_(pieces_.size(), -1), cameBy_(pieces_.size(), -1) {}

  /// True when the change adds up everywhere; else `gap` tells where not.
  bool run() {
    std::vector<std::uint32_t> tilted;
    std::vector<std::uint32_t> raised;
    for (const auto& [id, height] : wanted_) {
      const PlacedPiece* piece = layout_.findPiece(id);
      (tilts(*piece, height) ? tilted : raised).push_back(positionOf(piece));
    }
    std::ranges::sort(tilted); // a hash map has no order, and what is met first decides
    std::ranges::sort(raised);
    for (const std::uint32_t at : tilted)
      rises_[at] = kTilted;
    for (const std::uint32_t at : raised)
      seed(at, wanted_.at(pieces_[at].id).z - pieces_[at].z);
    for (const std::uint32_t at : tilted)
      leaveTilted(at);
    for (std::size_t next = 0; next < queue_.size() && !gap_; ++next)
      leaveLifted(queue_[next]);
    return !gap_;
  }

  const LoopGap& gap() const { return *gap_; }
  /// mm; 0 for a piece that does not hang on the change.
  double riseOf(std::uint32_t position) const {
    return std::isfinite(rises_[position]) ? rises_[position] : 0;
  }

  /// The pieces of the loop with the gap that are not changed, from one changed piece round to the
  /// other: each with the ends by which the loop leads through.
  struct Link {
    std::uint32_t position = 0;
    std::int32_t enter = -1;
    std::int32_t leave = -1;
  };
  std::vector<Link> restOfLoop() const {
    std::vector<Link> rest = backFrom(gap_->end);
    std::ranges::reverse(rest);
    for (const Link& link : backFrom(gap_->other))
      rest.push_back({link.position, link.leave, link.enter});
    return rest;
  }
  /// By how much the loop's first and last end are lifted by the change.
  double riseAtStart() const { return riseAt(gap_->end); }
  double riseAtEnd() const { return riseAt(gap_->other); }

 private:
  static constexpr double kUnmet = std::numeric_limits<double>::infinity();
  static constexpr double kTilted = -std::numeric_limits<double>::infinity();

  static std::vector<std::int32_t> tiltedIds(const Layout& layout, const Wanted& wanted) {
    std::vector<std::int32_t> ids;
    for (const auto& [id, height] : wanted)
      if (tilts(*layout.findPiece(id), height))
        ids.push_back(id);
    std::ranges::sort(ids);
    return ids;
  }
  std::uint32_t positionOf(const PlacedPiece* piece) const {
    return static_cast<std::uint32_t>(piece - pieces_.data());
  }

  double riseAt(TrackEnd end) const {
    const PlacedPiece& piece = *layout_.findPiece(end.piece);
    const auto wanted = wanted_.find(end.piece);
    return wanted == wanted_.end() ? rises_[positionOf(&piece)]
                                   : riseOfEnd(piece, wanted->second, end.connector);
  }

  void leaveTilted(std::uint32_t at) {
    const PlacedPiece& piece = pieces_[at];
    const PieceHeight& wanted = wanted_.at(piece.id);
    for (std::size_t i = 0; i < piece.joints.size() && !gap_; ++i)
      if (const PlacedPiece* next = joinedPiece(layout_, piece, i))
        reach(at, i, positionOf(next), riseOfEnd(piece, wanted, static_cast<std::int32_t>(i)));
  }

  void leaveLifted(std::uint32_t at) {
    const PlacedPiece& piece = pieces_[at];
    for (std::size_t i = 0; i < piece.joints.size() && !gap_; ++i)
      if (const PlacedPiece* next = joinedPiece(layout_, piece, i))
        reach(at, i, positionOf(next), rises_[at]);
  }

  bool isMet(std::uint32_t at) const { return rises_[at] != kUnmet; }

  void reach(std::uint32_t from, std::size_t connector, std::uint32_t at, double rise) {
    if (!isMet(at)) {
      lift(at, rise, static_cast<std::int32_t>(from), static_cast<std::int32_t>(connector));
      return;
    }
    const Joint joint = pieces_[from].joints[connector];
    const double there = rises_[at] == kTilted ? riseAt({joint.target, joint.tconn}) : rises_[at];
    if (std::abs(there - rise) > kRounding)
      tell({pieces_[from].id, static_cast<std::int32_t>(connector)}, {joint.target, joint.tconn},
           there - rise);
  }

  /// A piece that is to be lifted, and may already be as a member of a body.
  void seed(std::uint32_t at, double rise) {
    if (!isMet(at))
      lift(at, rise, -1, -1);
    else if (std::abs(rises_[at] - rise) > kRounding)
      tear(at, at, rises_[at] - rise);
  }

  /// Lifts the piece, which is not met yet, with its body.
  void lift(std::uint32_t at, double rise, std::int32_t from, std::int32_t connector) {
    meet(at, rise, from, connector);
    for (const std::uint32_t member : bodies_.membersWith(at)) {
      if (!isMet(member))
        meet(member, rise, static_cast<std::int32_t>(at), -1);
      else if (std::abs(rises_[member] - rise) > kRounding)
        tear(at, member, rises_[member] - rise);
    }
  }

  /// Tells that two pieces of a body, which no joint need have, are to be lifted differently.
  void tear(std::uint32_t at, std::uint32_t member, double step) {
    const PlacedPiece& piece = pieces_[member];
    gap_ = LoopGap{{pieces_[at].id, -1}, {piece.id, -1}, {piece.x, piece.y}, step};
  }

  void meet(std::uint32_t at, double rise, std::int32_t from, std::int32_t connector) {
    rises_[at] = rise;
    cameFrom_[at] = from;
    cameBy_[at] = connector;
    queue_.push_back(at);
  }

  /// A step that the change makes smaller is none to complain of.
  void tell(TrackEnd end, TrackEnd other, double step) {
    const double before = endHeight(layout_, other) - endHeight(layout_, end);
    if (std::abs(before + step) <= std::abs(before) + kRounding)
      return;
    gap_ = LoopGap{end, other, placeOf(*layout_.findPiece(end.piece), end.connector), step};
  }

  /// The way the walk took to this end, back to the piece that is changed, which is left out.
  /// `leave` is where it went on towards `end`.
  std::vector<Link> backFrom(TrackEnd end) const {
    std::vector<Link> links;
    std::int32_t at = static_cast<std::int32_t>(positionOf(layout_.findPiece(end.piece)));
    std::int32_t leave = end.connector;
    while (!wanted_.contains(pieces_[static_cast<std::size_t>(at)].id)) {
      const auto here = static_cast<std::size_t>(at);
      const std::int32_t by = cameBy_[here];
      const std::int32_t from = cameFrom_[here];
      // Within a body nothing joins the two; -1 stands for an end that does not matter.
      const std::int32_t enter =
          by == -1
              ? -1
              : pieces_[static_cast<std::size_t>(from)].joints[static_cast<std::size_t>(by)].tconn;
      links.push_back({static_cast<std::uint32_t>(at), enter, leave});
      at = from;
      leave = by;
    }
    return links;
  }

  const Layout& layout_;
  const std::vector<PlacedPiece>& pieces_;
  const Wanted& wanted_;
  RigidBodies bodies_;
  std::vector<double> rises_;
  std::vector<std::int32_t> cameFrom_; ///< position
  std::vector<std::int32_t> cameBy_;   ///< connector there
  std::vector<std::uint32_t> queue_;
  std::optional<LoopGap> gap_;
};

/// mm by which the link's far end rises with each unit of the piece's slope.
double runOf(const PlacedPiece& piece, const Walk::Link& link) {
  if (link.enter == -1 || link.leave == -1 || !takesGrade(piece))
    return 0;
  const PieceDef& definition = *definitionOf(piece);
  return runTo(definition, link.leave) - runTo(definition, link.enter);
}

/// Lays the rest of the loop so that it takes up what does not add up. False when nothing of it
/// can.
bool spread(const Layout& layout, const Walk& walk, Wanted& wanted) {
  const std::vector<Walk::Link> rest = walk.restOfLoop();
  double length = 0;
  for (const Walk::Link& link : rest)
    length += std::abs(runOf(layout.pieces()[link.position], link));
  if (length == 0)
    return false;
  double rise = walk.riseAtStart();
  const double change = (walk.riseAtEnd() - rise) / length; // of slope
  for (const Walk::Link& link : rest) {
    const PlacedPiece& piece = layout.pieces()[link.position];
    const double run = runOf(piece, link);
    if (run == 0) {
      PieceHeight height = heightOf(piece);
      height.z += rise;
      wanted[piece.id] = height;
      continue;
    }
    const PieceDef& definition = *definitionOf(piece);
    const double slope = std::copysign(1, run) * slopeOf(piece) + change;
    if (std::abs(slope) >= 1)
      return false;
    wanted[piece.id] = layTowards(piece, definition, link.enter, link.leave,
                                  endHeight(piece, definition, link.enter) + rise, slope);
    rise += std::abs(run) * change;
  }
  return true;
}

HeightPlan refused(Notice notice) {
  HeightPlan plan;
  plan.refusal = std::move(notice);
  return plan;
}

HeightPlan refused(const Layout& layout, const LoopGap& gap) {
  HeightPlan plan = refused(
      {tr("Heights"),
       tr("The track comes round to itself, and the change does not add up: at %1% there would be "
          "a step of %2%.",
          {placeText(layout, gap.end, gap.other),
           formatLength(std::abs(gap.step), layout.settings().units)})});
  plan.gap = gap;
  return plan;
}

HeightPlan planOf(const Layout& layout, const Wanted& wanted, const Walk& walk) {
  HeightPlan plan;
  const auto take = [&](const PlacedPiece& piece, const PieceHeight& height) {
    if (height == heightOf(piece))
      return true;
    plan.pieces.push_back(height);
    return isLength(height.z) && std::isfinite(height.grade);
  };
  bool inLimits = true;
  for (std::uint32_t i = 0; i < layout.pieces().size(); ++i) {
    const PlacedPiece& piece = layout.pieces()[i];
    PieceHeight height = heightOf(piece);
    height.z += walk.riseOf(i);
    if (const auto found = wanted.find(piece.id); found != wanted.end())
      height = found->second;
    inLimits = take(piece, height) && inLimits;
  }
  return inLimits ? plan : refused(beyondPlan());
}

/// The piece that is steeper than the limit, and than it was, though nobody asked for that.
std::optional<Notice> spreadRefusal(const Layout& layout, HeightPlan plan,
                                    std::span<const PieceHeight> wanted, double limit) {
  std::unordered_set<std::int32_t> asked;
  for (const PieceHeight& height : wanted)
    asked.insert(height.piece);
  std::erase_if(plan.pieces, [&](const PieceHeight& height) {
    const double before = std::abs(slopeOf(*layout.findPiece(height.piece)));
    return asked.contains(height.piece) || std::abs(slopeWhenLaid(height)) <= before + kSameSlope;
  });
  const SteepPiece steepest = steepestOf(layout, plan);
  if (std::abs(steepest.slope) <= limit + kSameSlope)
    return std::nullopt;
  const PlacedPiece& piece = *layout.findPiece(steepest.piece);
  const auto percent = [](double slope) { return formatFixed(percentOf(std::abs(slope)), 1); };
  return Notice{tr("Heights"), tr("Spread over the loop that would be %1% %% at %2% (x %3%, y %4% "
                                  "mm), and %5% %% are allowed.",
                                  {percent(steepest.slope), piece.cat, std::llround(piece.x),
                                   std::llround(piece.y), percent(limit)})};
}

/// A helix is tilted by nobody; one that is lifted goes whole, so one of its pieces is enough.
std::optional<Notice> helixRefusal(const Layout& layout, std::span<const PieceHeight> wanted) {
  std::vector<std::int32_t> tilted;
  for (const PieceHeight& height : wanted)
    if (const PlacedPiece* piece = layout.findPiece(height.piece);
        piece != nullptr && tilts(*piece, height))
      tilted.push_back(piece->id);
  return helixGuard(layout, tilted, "grad");
}

} // namespace

HeightPlan planHeights(const Layout& layout, std::span<const PieceHeight> wantedHeights,
                       LoopRule rule, double limit) {
  if (auto refusal = helixRefusal(layout, wantedHeights))
    return refused(std::move(*refusal));
  Wanted wanted;
  for (const PieceHeight& height : wantedHeights)
    if (layout.findPiece(height.piece) != nullptr)
      wanted.emplace(height.piece, height);
  for (int loops = 0;; ++loops) {
    Walk walk(layout, wanted);
    if (walk.run()) {
      HeightPlan plan = planOf(layout, wanted, walk);
      auto refusal = loops == 0 ? std::nullopt : spreadRefusal(layout, plan, wantedHeights, limit);
      return refusal ? refused(std::move(*refusal)) : plan;
    }
    if (rule == LoopRule::Refuse || loops == kMostLoops || !spread(layout, walk, wanted))
      return refused(layout, walk.gap());
  }
}

ChangeResult applyHeights(Layout& layout, const HeightPlan& plan, bool continued) {
  if (plan.refusal)
    return *plan.refusal;
  if (plan.pieces.empty() && !plan.run)
    return false;
  std::optional<UndoScope> step;
  if (!continued)
    step.emplace(layout);
  std::vector<std::int32_t> changed;
  std::vector<std::int32_t> open; // most track has no end that could meet another
  for (const PieceHeight& height : plan.pieces) {
    PlacedPiece* piece = layout.editPiece(height.piece);
    if (piece == nullptr)
      continue;
    lay(*piece, height);
    changed.push_back(piece->id);
    const PieceDef* definition = definitionOf(*piece);
    if (definition != nullptr && (piece->joints.size() < definition->connectors.size() ||
                                  std::ranges::any_of(piece->joints, &Joint::open)))
      open.push_back(piece->id);
  }
  std::ranges::sort(changed);
  std::ranges::sort(open);
  closeMeetingEnds(layout, open, MeetingPlay::none());
  if (plan.run)
    layout.startGradeRun(plan.run->anchor, plan.run->conn, plan.run->deg);
  dropStaleRuns(layout, changed);
  return continued || step->keep();
}

SteepPiece steepestOf(const Layout& layout, const HeightPlan& plan) {
  SteepPiece steepest;
  for (const PieceHeight& height : plan.pieces) {
    const PlacedPiece* piece = layout.findPiece(height.piece);
    if (piece == nullptr || !tilts(*piece, height))
      continue;
    const double slope = slopeWhenLaid(height);
    if (steepest.piece == -1 || std::abs(slope) > std::abs(steepest.slope))
      steepest = {height.piece, slope};
  }
  return steepest;
}

Point placeOf(const PlacedPiece& piece, std::int32_t connector) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr || connector < 0)
    return {piece.x, piece.y};
  const WorldConnector at = ConnectorToWorld(piece, *definition, connector);
  return {at.x, at.y};
}

std::string placeText(const Layout& layout, TrackEnd end, TrackEnd other) {
  const PlacedPiece* piece = layout.findPiece(end.piece);
  const PlacedPiece* next = layout.findPiece(other.piece);
  if (piece == nullptr || next == nullptr)
    return {};
  const Point at = placeOf(*piece, end.connector);
  return tr("%1% and %2% (x %3%, y %4% mm)",
            {piece->cat, next->cat, std::llround(at.x), std::llround(at.y)});
}

std::vector<std::int32_t> hangingBeyond(const Layout& layout, TrackEnd end) {
  const TrackEnd cut = beyond(layout, end);
  std::vector<std::int32_t> side;
  if (cut.piece == -1)
    return side;
  std::unordered_set<std::int32_t> met{cut.piece};
  side.push_back(cut.piece);
  for (std::size_t k = 0; k < side.size(); ++k) {
    const PlacedPiece& from = *layout.findPiece(side[k]);
    for (std::size_t i = 0; i < from.joints.size(); ++i) {
      const TrackEnd here{from.id, static_cast<std::int32_t>(i)};
      const PlacedPiece* next = joinedPiece(layout, from, i);
      if (next != nullptr && here != cut && here != end && met.insert(next->id).second)
        side.push_back(next->id);
    }
  }
  std::ranges::sort(side);
  return side;
}

} // namespace trassix
