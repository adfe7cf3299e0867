#include "wizards/layout/layout_builder.h"

#include "catalog/scenery_catalog.h"
#include "catalog/system_kits.h"
#include "editing/track/routes.h"
#include "wizards/layout/layout_checks.h"
#include "wizards/layout/stock_runs.h"
#include "wizards/layout/track_layer.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace trassix {

namespace {

using End = TrackLayer::End;

/// For an express at scale speed.
double minutesAtScaleSpeed(TrackSystem system, double length) {
  constexpr double kSpeed = 80 / 3.6 * 1000; // mm/s of the prototype
  constexpr double kMinute = 60;
  const auto scale = [&] {
    switch (gaugeOf(system)) {
    case Gauge::Z:
      return 220.0;
    case Gauge::Gauge1:
      return 32.0;
    case Gauge::H0:
      break;
    }
    return 87.0;
  };
  return length * scale() / kSpeed / kMinute;
}

bool onTrack(const LayoutTask& task, int track) {
  return track == task.tracks() - 1; // the station is on the inner track
}

class LayoutBuilder {
 public:
  LayoutBuilder(const LayoutTask& task, const TablePath& path, const LayoutKit& kit,
                const LoopPlan& plan, const StraightStretches& stretches)
      : task_(task), path_(path), kit_(kit), plan_(plan), stretch_(stretches.begin()) {}

  LayoutProposal build();

 private:
  using Pieces = std::vector<const PieceDef*>;

  void layTrack(int track);
  void laySide(std::size_t side, int track);
  void layCorner(std::size_t side, int track);
  void layStation();
  void layThroat(const StationThroat& throat, std::vector<std::int32_t>& ids);
  void laySiding(End from, End to, const Pieces& straights);
  void lay(const PieceDef& piece, std::int32_t enter, std::int32_t leave);
  void lay(const Pieces& straights) {
    for (const PieceDef* piece : straights)
      lay(*piece, 0, 1);
  }
  WorldConnector beginning(int track) const;

  const LayoutTask& task_;
  const TablePath& path_;
  const LayoutKit& kit_;
  const LoopPlan& plan_;
  StraightStretches::const_iterator stretch_; ///< the next one to lay
  TrackLayer layer_;
  WorldConnector start_;
  End first_; ///< of the track that is being laid
  End front_;
  double length_ = 0; ///< of the lap
  LayoutFigures figures_;
};

void LayoutBuilder::lay(const PieceDef& piece, std::int32_t enter, std::int32_t leave) {
  const std::int32_t id =
      front_.piece == -1 ? layer_.begin(piece, enter, start_) : layer_.add(piece, enter, front_);
  if (first_.piece == -1)
    first_ = {id, enter};
  front_ = {id, leave};
  for (const Route& route : routesOf(piece))
    if ((route.from == enter && route.to == leave) || (route.from == leave && route.to == enter)) {
      length_ += routeLength(route);
      break;
    }
}

/// Where the track's first side begins, behind its corner.
WorldConnector LayoutBuilder::beginning(int track) const {
  const Micrometres inward = track == 0 ? 0 : path_.spacing;
  const auto lineOf = [&](std::size_t side) {
    return plan_.lines[side] + (path_.sides[side].tableBeyond() ? inward : -inward);
  };
  const PathSide& side = path_.sides[0];
  const Micrometres radius = path_.cornerAt(0) + (side.turnsLeft ? inward : -inward);
  const Micrometres along = lineOf(path_.before(0)) + side.sign() * radius;
  const double a = toMillimetres(along);
  const double b = toMillimetres(lineOf(0));
  return {side.level() ? a : b, side.level() ? b : a, side.direction * 90.0, true, 0};
}

void LayoutBuilder::layTrack(int track) {
  first_ = front_ = {};
  length_ = 0;
  start_ = beginning(track);
  for (std::size_t side = 0; side < path_.count(); ++side) {
    laySide(side, track);
    layCorner(path_.after(side), track);
  }
  figures_.residue = std::max(figures_.residue, layer_.gap(front_, first_));
  figures_.length = length_;
  layer_.join(front_, first_);
}

void LayoutBuilder::layCorner(std::size_t side, int track) {
  const bool left = path_.sides[side].turnsLeft;
  const bool outer = task_.tracks() == 2 && (track == 0) != left;
  const PieceDef& curve = outer ? *kit_.outerCurve : *kit_.innerCurve;
  // A curve bends to the right of trains that come in at its end 0.
  const std::int32_t enter = left ? 1 : 0;
  for (long i = std::lround(90 / curve.angle); i > 0; --i)
    lay(curve, enter, 1 - enter);
}

void LayoutBuilder::laySide(std::size_t side, int track) {
  const std::size_t asked = path_.sides[side].asked;
  const bool station = plan_.station > 0 && onTrack(task_, track) && task_.station->side == asked;
  const bool bridge = kit_.bridge != nullptr && task_.bridge->side == asked;
  Pieces rest = *stretch_++;
  if (bridge && station)
    rest.insert(rest.begin(), kit_.bridge);
  if (!bridge && !station) {
    lay(rest);
    return;
  }
  // What stands out comes to the middle.
  std::array<Pieces, 2> ends;
  std::array<double, 2> lengths{};
  for (const PieceDef* piece : rest) {
    const std::size_t shorter = lengths[0] <= lengths[1] ? 0 : 1;
    ends[shorter].push_back(piece);
    lengths[shorter] += piece->length;
  }
  lay(ends[0]);
  if (station)
    layStation();
  else
    lay(*kit_.bridge, 0, 1);
  lay(ends[1]);
}

/// Lays what hangs on the main line's turnout, which is there.
void LayoutBuilder::layThroat(const StationThroat& throat, std::vector<std::int32_t>& ids) {
  for (std::size_t i = 1; i < throat.pieces.size(); ++i) {
    const ThroatPiece& piece = throat.pieces[i];
    ids.push_back(layer_.add(*piece.piece, piece.enter, {ids[piece.onto], piece.ontoEnd}));
  }
}

void LayoutBuilder::layStation() {
  std::vector<std::int32_t> entry;
  std::vector<std::int32_t> exit;
  lay(*kit_.entry.pieces[0].piece, 0, 1);
  entry.push_back(front_.piece);
  lay(*stretch_++);
  lay(*kit_.exit.pieces[0].piece, 1, 0);
  exit.push_back(front_.piece);
  layThroat(kit_.entry, entry);
  layThroat(kit_.exit, exit);
  for (std::size_t i = 0; i < kit_.entry.sidings.size(); ++i) {
    const StationThroat::Siding& from = kit_.entry.sidings[i];
    const StationThroat::Siding& to = kit_.exit.sidings[i];
    laySiding({entry[from.piece], from.end}, {exit[to.piece], to.end}, *stretch_++);
  }
}

/// From both ends towards each other; they meet where they miss each other least.
void LayoutBuilder::laySiding(End from, End to, const Pieces& straights) {
  const auto ahead = [](const WorldConnector& end, double length) {
    return toWorld({end.x, end.y, end.heading}, {length, 0});
  };
  const WorldConnector a = layer_.at(from);
  const WorldConnector b = layer_.at(to);
  double whole = 0;
  for (const PieceDef* piece : straights)
    whole += piece->length;
  std::size_t meeting = 0;
  double least = 1e9;
  double before = 0;
  for (std::size_t i = 0; i <= straights.size(); ++i) {
    const Point p = ahead(a, before);
    const Point q = ahead(b, whole - before);
    if (const double gap = std::hypot(p.x - q.x, p.y - q.y); gap < least - 1e-9) {
      least = gap;
      meeting = i;
    }
    if (i < straights.size())
      before += straights[i]->length;
  }
  for (std::size_t i = 0; i < meeting; ++i)
    from = {layer_.add(*straights[i], 0, from), 1};
  for (std::size_t i = straights.size(); i-- > meeting;)
    to = {layer_.add(*straights[i], 1, to), 0};
  figures_.sidingResidue = std::max(figures_.sidingResidue, layer_.gap(from, to));
  figures_.sidingTurn = std::max(figures_.sidingTurn, layer_.turn(from, to));
  layer_.join(from, to);
}

LayoutProposal LayoutBuilder::build() {
  for (int track = 0; track < task_.tracks(); ++track)
    layTrack(track);
  LayoutProposal proposal;
  proposal.outline = task_.outline;
  proposal.figures = figures_;
  std::vector<PlacedPiece> pieces = layer_.take();
  LayoutFigures& figures = proposal.figures;
  figures.lapMinutes = minutesAtScaleSpeed(task_.system, figures.length);
  figures.pieces = pieces.size();
  figures.edgeDistance = leastEdgeDistance(pieces, task_.outline);
  figures.beyondReach = lengthBeyondReach(pieces, task_.outline);
  PieceStock needed;
  for (const PlacedPiece& piece : pieces)
    ++needed[piece.cat];
  figures.kinds = needed.size();
  figures.missing = missingFrom(task_.stock, needed);
  proposal.track.content.pieces = std::move(pieces);
  return proposal;
}

const PieceDef* curveOf(TrackSystem system, double radius) {
  for (const auto& [known, curve] : plainCurvesByRadius(system))
    if (std::abs(known - radius) < 1e-6)
      return curve;
  return nullptr;
}

} // namespace

LayoutKit layoutKit(const LayoutTask& task) {
  LayoutKit kit;
  kit.innerCurve = curveOf(task.system, task.radius);
  if (task.tracks() == 2)
    kit.outerCurve = curveOf(task.system, task.secondRadius);
  if (task.bridge) {
    const BridgeKit bridges = bridgeKit(task.system);
    kit.bridge = task.bridge->form == BridgeForm::Arch ? bridges.archBridge : bridges.trussBridge;
  }
  if (task.station) {
    kit.entry = stationThroat(task.system, task.station->sidings, true);
    kit.exit = stationThroat(task.system, task.station->sidings, false);
  }
  return kit;
}

std::optional<StraightStretches> stretchesOf(const LayoutTask& task, const TablePath& path,
                                             const LayoutKit& kit, const LoopPlan& plan,
                                             const LoopSolver& solver) {
  const Micrometres bridge = kit.bridge == nullptr ? 0 : toMicrometres(kit.bridge->length);
  std::vector<Micrometres> lengths;
  for (int track = 0; track < task.tracks(); ++track)
    for (std::size_t side = 0; side < path.count(); ++side) {
      const std::size_t asked = path.sides[side].asked;
      const bool station = plan.station > 0 && onTrack(task, track) && task.station->side == asked;
      Micrometres rest = plan.straights[side] - (station ? plan.station : 0);
      if (kit.bridge != nullptr && task.bridge->side == asked)
        rest -= bridge;
      lengths.push_back(rest);
      if (!station)
        continue;
      lengths.push_back(plan.station - solver.station()->mainLength());
      for (std::size_t i = 0; i < kit.entry.sidings.size(); ++i)
        lengths.push_back(solver.station()->siding(plan.station, i));
    }
  if (!task.ownStockOnly) {
    StraightStretches stretches;
    for (const Micrometres length : lengths)
      stretches.push_back(solver.runs().run(length));
    return stretches;
  }
  return runsFromStock(task.system, task.stock, lengths);
}

LayoutProposal buildLayout(const LayoutTask& task, const TablePath& path, const LayoutKit& kit,
                           const LoopPlan& plan, const LoopSolver& solver,
                           const StraightStretches& stretches) {
  LayoutProposal proposal = LayoutBuilder(task, path, kit, plan, stretches).build();
  if (plan.station > 0)
    proposal.figures.usableLength = solver.station()->usable(plan.station);
  return proposal;
}

} // namespace trassix
