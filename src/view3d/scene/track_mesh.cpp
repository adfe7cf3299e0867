#include "view3d/scene/track_mesh.h"

#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/grades.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "editing/track/track_geometry.h"
#include "view3d/scene/bridge_mesh.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace trassix {

namespace {

constexpr Color kBallast{148, 140, 126};
constexpr Color kMouldedBed{138, 135, 129};
constexpr Color kTinBed{134, 116, 94};
constexpr Color kSleeper{84, 70, 58};
constexpr Color kRailSide{98, 80, 66};
constexpr Color kRailTop{188, 188, 186};
constexpr Color kPlywood{196, 168, 124};
constexpr Color kConcrete{158, 154, 146};
constexpr Color kStone{146, 138, 126};
constexpr Color kUnknown{232, 96, 40};

/// A route sampled once for all pieces of its definition.
struct RouteTemplate {
  const Route* route = nullptr;
  std::vector<RoutePoint> near;
  std::vector<RoutePoint> far;
  std::vector<RoutePoint> sleepers;

  const std::vector<RoutePoint>& line(Detail detail) const {
    return detail == Detail::Near ? near : far;
  }
};

RouteTemplate templateOf(const Route& route, double gauge) {
  constexpr double kSleeperSpacing = 0.52; // of the gauge
  RouteTemplate made{
      &route, sampleRoute(route, gauge * 0.008), sampleRoute(route, gauge * 0.08), {}};
  const std::vector<RoutePoint> fine = sampleRoute(route, 0.05);
  const double length = fine.back().along;
  const int count = std::max(1, static_cast<int>(std::lround(length / (kSleeperSpacing * gauge))));
  for (int i = 0; i < count; ++i)
    made.sleepers.push_back(pointAlong(fine, length * (i + 0.5) / count));
  return made;
}

const std::vector<RouteTemplate>& templatesOf(const PieceDef& definition) {
  static const auto known = [] {
    std::unordered_map<const PieceDef*, std::vector<RouteTemplate>> all;
    const TrackCatalog& catalog = TrackCatalog::instance();
    for (std::int32_t i = 0; i < catalog.count(); ++i)
      for (const Route& route : routesOf(*catalog.at(i)))
        all[catalog.at(i)].push_back(templateOf(route, trackGauge(catalog.at(i)->system)));
    return all;
  }();
  return known.at(&definition);
}

/// A point of a cross-section: to the left of the direction of travel, and up.
struct SectionPoint {
  double left = 0;
  double up = 0;
};

/// A route as it lies: in the frame of its piece, at its heights.
class LaidLine {
 public:
  LaidLine(const std::vector<RoutePoint>& line, double from, double to) : from_(from), to_(to) {
    length_ = line.back().along;
    for (const RoutePoint& at : line)
      stations_.push_back(station(at));
  }

  struct Station {
    Vec3 at;
    Vec3 left;
    Vec3 operator()(SectionPoint p) const { return at + p.left * left + Vec3{0, 0, p.up}; }
  };

  Station station(const RoutePoint& at) const {
    const double t = toRadians(-at.heading);
    return {{at.position.x, -at.position.y, from_ + (to_ - from_) * at.along / length_},
            {-std::sin(t), std::cos(t), 0}};
  }

  /// Draws a cross-section, given from left to right over the top, along the line.
  void extrude(MeshBuilder& builder, const std::vector<SectionPoint>& section, Color color) const {
    for (std::size_t i = 0; i + 1 < stations_.size(); ++i)
      for (std::size_t k = 0; k + 1 < section.size(); ++k) {
        const Station& a = stations_[i];
        const Station& b = stations_[i + 1];
        builder.quad(a(section[k + 1]), b(section[k + 1]), b(section[k]), a(section[k]), color);
      }
  }

  /// Closes the section at an end.
  void close(MeshBuilder& builder, const std::vector<SectionPoint>& section, bool atEnd,
             Color color) const {
    const Station& s = atEnd ? stations_.back() : stations_.front();
    for (std::size_t k = 2; k < section.size(); ++k)
      if (atEnd)
        builder.triangle(s(section[0]), s(section[k]), s(section[k - 1]), color);
      else
        builder.triangle(s(section[0]), s(section[k - 1]), s(section[k]), color);
  }

 private:
  double from_, to_, length_ = 0;
  std::vector<Station> stations_;
};

Color bedColor(const Layout& layout, const PlacedPiece& piece, TrackSystem system) {
  Color color = system == TrackSystem::MTrack ? kTinBed : kBallast;
  if (system == TrackSystem::CTrack || system == TrackSystem::TrixCTrack)
    color = kMouldedBed;
  constexpr double kOwnShare = 0.45;
  const Level* level = layout.findLevel(piece.level);
  if (piece.hasColor)
    return mixed(color, piece.color, kOwnShare);
  return level != nullptr && level->trackcolor ? mixed(color, level->color, kOwnShare) : color;
}

class TrackBuilder {
 public:
  TrackBuilder(Mesh& mesh, const Layout& layout, const PlacedPiece& piece,
               const PieceDef& definition, Detail detail)
      : mesh_(mesh), builder_(mesh, frameAt(poseOf(piece), 0)), piece_(piece),
        definition_(definition), section_(trackSection(definition.system)),
        scale_(section_.gauge / trackGauge(TrackSystem::CTrack)), detail_(detail),
        bed_(bedColor(layout, piece, definition.system)) {}

  void run() {
    for (const RouteTemplate& route : templatesOf(definition_))
      addRoute(route);
    if (const BridgeKind kind = bridgeKindOf(definition_); kind != BridgeKind::None)
      carry(kind);
    if (definition_.kind == PieceKind::TrackEnd)
      stop();
    if (definition_.kind == PieceKind::Uncoupler && fine())
      addUncoupler();
  }

 private:
  bool fine() const { return detail_ == Detail::Near; }
  double heightOf(std::int32_t connector, double otherwise) const {
    return connector == -1 ? otherwise : endHeight(piece_, definition_, connector);
  }

  void addRoute(const RouteTemplate& route) {
    const double from = heightOf(route.route->from, piece_.z);
    const LaidLine line(route.line(detail_), from, heightOf(route.route->to, from));
    addBed(line, *route.route);
    if (fine())
      for (const RoutePoint& at : route.sleepers)
        addSleeper(line.station(at));
    else
      addStrip(line, 0, section_.gauge * 0.85, section_.railFoot, mixed(bed_, kSleeper, 0.5));
    const double w = section_.railWidth / 2;
    for (const double side : {section_.gauge / 2, -section_.gauge / 2}) {
      if (fine()) {
        line.extrude(builder_, {{side + w, section_.railFoot}, {side + w, section_.railTop}},
                     kRailSide);
        line.extrude(builder_, {{side - w, section_.railTop}, {side - w, section_.railFoot}},
                     kRailSide);
      }
      addStrip(line, side, w, section_.railTop, kRailTop);
    }
    if (piece_.helix >= 0)
      addDeck(line);
    if (definition_.ramp)
      addKerbs(line);
  }

  void addStrip(const LaidLine& line, double middle, double half, double up, Color color) {
    line.extrude(builder_, {{middle + half, up}, {middle - half, up}}, color);
  }

  void addBed(const LaidLine& line, const Route& route) {
    const double foot = section_.bedHalf;
    const double top = foot * 0.84;
    const std::vector<SectionPoint> section{
        {foot, 0}, {top, section_.bedTop}, {-top, section_.bedTop}, {-foot, 0}};
    line.extrude(builder_, section, bed_);
    if (fine())
      line.extrude(builder_, {{-foot, 0}, {foot, 0}}, shaded(bed_, 0.7));
    for (const bool atEnd : {false, true}) {
      const std::int32_t end = atEnd ? route.to : route.from;
      if (end == -1 || piece_.joint(static_cast<std::size_t>(end)).open())
        line.close(builder_, section, atEnd, shaded(bed_, 0.9));
    }
  }

  void addSleeper(const LaidLine::Station& s) {
    const Vec3 ahead{s.left.y, -s.left.x, 0};
    const double half = section_.gauge * 0.85;
    const Vec3 wide = section_.gauge * 0.13 * ahead;
    const auto at = [&](double left, double along, double up) {
      return s({left, up}) + along * wide;
    };
    const double top = section_.railFoot;
    const double foot = section_.bedTop;
    builder_.quad(at(-half, -1, top), at(-half, 1, top), at(half, 1, top), at(half, -1, top),
                  kSleeper);
    for (const double side : {-1.0, 1.0}) {
      const Color dark = shaded(kSleeper, 0.8);
      builder_.quad(at(side * half, side, foot), at(-side * half, side, foot),
                    at(-side * half, side, top), at(side * half, side, top), dark);
      builder_.quad(at(side * half, -side, foot), at(side * half, side, foot),
                    at(side * half, side, top), at(side * half, -side, top), dark);
    }
  }

  void addDeck(const LaidLine& line) {
    const double half = section_.bedHalf + 10 * scale_;
    line.extrude(builder_,
                 {{half, -kDeckThickness * scale_},
                  {half, 0},
                  {-half, 0},
                  {-half, -kDeckThickness * scale_},
                  {half, -kDeckThickness * scale_}},
                 kPlywood);
  }

  void addKerbs(const LaidLine& line) {
    const double out = section_.bedHalf + 2 * scale_;
    const double in = section_.bedHalf - 1 * scale_;
    const double top = section_.bedTop + 1 * scale_;
    line.extrude(builder_, {{out, 0}, {out, top}, {in, top}, {in, 0}}, kConcrete);
    line.extrude(builder_, {{-in, 0}, {-in, top}, {-out, top}, {-out, 0}}, kConcrete);
  }

  void carry(BridgeKind kind) {
    const double from = heightOf(0, piece_.z);
    MeshFrame frame = frameAt(poseOf(piece_), from);
    frame.slope = definition_.length > 0 ? (heightOf(1, from) - from) / definition_.length : 0;
    MeshBuilder builder(mesh_, frame);
    const auto [item, height] = likeOf(kind);
    const Footprint like = findScenery(item)->footprint(definition_.system);
    addBridge(builder,
              {kind, definition_.length, like.depth / 2, like.height * height,
               kDeckThickness * scale_ * 0.8},
              fine());
  }

  /// The scenery item of the same sort, and the share of its height that stands above the track's.
  static std::pair<std::string_view, double> likeOf(BridgeKind kind) {
    switch (kind) {
    case BridgeKind::Arch:
      return {"br.arch", 1};
    case BridgeKind::Truss:
      return {"br.truss", 1};
    default:
      return {"br.girder", 0.6};
    }
  }

  void stop() {
    const RoutePoint& end = templatesOf(definition_).front().near.back();
    const Point at = toWorld(poseOf(piece_), end.position);
    MeshBuilder builder(mesh_, frameAt({at.x, at.y, piece_.heading + end.heading}, piece_.z));
    addBufferStop(builder, section_.gauge, section_.railFoot, section_.railTop);
  }

  void addUncoupler() {
    const double half = section_.gauge * 0.2;
    const double middle = definition_.length / 2;
    const double reach = std::min(middle, 1.2 * section_.gauge);
    builder_.box({middle - reach, -half, piece_.z + section_.railFoot},
                 {middle + reach, half, piece_.z + section_.railTop * 0.95}, {150, 120, 60});
  }

  Mesh& mesh_;
  MeshBuilder builder_;
  const PlacedPiece& piece_;
  const PieceDef& definition_;
  TrackSection section_;
  double scale_;
  Detail detail_;
  Color bed_;
};

void addUnknown(Mesh& mesh, const PlacedPiece& piece) {
  constexpr double kHalf = 20;
  MeshBuilder builder(mesh, frameAt(poseOf(piece), piece.z));
  builder.box({-kHalf, -kHalf, 0}, {kHalf, kHalf, kHalf}, kUnknown, shaded(kUnknown, 1.1));
  for (const double turn : {-1.0, 1.0})
    builder.bar({-kHalf, turn * kHalf, kHalf + 1}, {kHalf, -turn * kHalf, kHalf + 1}, 4,
                {250, 240, 225});
}

Color colorOf(GradeBand band) {
  switch (band) {
  case GradeBand::Comfortable:
    return {70, 160, 80};
  case GradeBand::Caution:
    return {232, 170, 40};
  default:
    return {208, 56, 48};
  }
}

} // namespace

TrackSection trackSection(TrackSystem system) {
  TrackSection section;
  section.gauge = trackGauge(system);
  section.bedHalf = trackHalfWidth(system);
  section.railTop = railTop(system);
  section.railFoot = section.railTop - section.gauge * 0.15;
  section.bedTop = section.railFoot - section.gauge * 0.055;
  section.railWidth = section.gauge * 0.065;
  return section;
}

MeshFrame frameAt(const Pose& pose, double height) {
  return {{pose.x, -pose.y, height}, -pose.heading, 0};
}

void addTrack(Mesh& mesh, const Layout& layout, const PlacedPiece& piece, Detail detail) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr)
    return addUnknown(mesh, piece);
  if (definition->kind != PieceKind::Turntable)
    return TrackBuilder(mesh, layout, piece, *definition, detail).run();
  MeshBuilder builder(mesh, frameAt(poseOf(piece), piece.z));
  double outer = definition->radius;
  for (const Connector& end : definition->connectors)
    outer = std::max(outer, std::hypot(end.x, end.y));
  const TrackSection section = trackSection(definition->system);
  addTurntable(builder, {std::min(definition->radius, outer - section.gauge), outer, section},
               detail);
  for (const Connector& end : definition->connectors) { // stubs of rails on the rim
    const double t = toDegrees(std::atan2(-end.y, end.x));
    MeshFrame frame = frameAt(poseOf(piece), piece.z);
    frame.turn += t;
    MeshBuilder stub(mesh, frame);
    const double w = section.railWidth / 2;
    for (const double side : {-section.gauge / 2, section.gauge / 2})
      stub.box({outer - section.gauge, side - w, section.railFoot},
               {outer, side + w, section.railTop}, kRailSide, kRailTop);
  }
}

void addGradeStrip(Mesh& mesh, const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr || !isGraded(piece) || definition->kind == PieceKind::Turntable)
    return;
  const TrackSection section = trackSection(definition->system);
  const Color color = colorOf(gradeBand(std::sin(toRadians(piece.grade))));
  MeshBuilder builder(mesh, frameAt(poseOf(piece), 0));
  const double half = section.gauge * 0.3;
  for (const RouteTemplate& route : templatesOf(*definition)) {
    const double from = endHeight(piece, *definition, route.route->from);
    const double to = route.route->to == -1 ? from : endHeight(piece, *definition, route.route->to);
    LaidLine(route.far, from, to)
        .extrude(builder, {{half, section.railTop}, {-half, section.railTop}}, color);
  }
}

void addPortal(Mesh& mesh, const Support& portal) {
  const double height = portal.head - portal.foot;
  const auto rectangle = [](double x, double y) {
    return Polygon{{-x / 2, -y / 2}, {x / 2, -y / 2}, {x / 2, y / 2}, {-x / 2, y / 2}};
  };
  for (const Support& leg : standingParts(portal))
    MeshBuilder(mesh, frameAt(leg.pose, leg.foot))
        .prism(rectangle(leg.along * 0.8, leg.across * 0.8), 0, height - portal.beam, kStone,
               kStone);
  MeshBuilder(mesh, frameAt(portal.pose, portal.foot))
      .prism(rectangle(portal.along, portal.across), height - portal.beam, height,
             shaded(kStone, 1.08), shaded(kStone, 1.12));
}

void addSupport(Mesh& mesh, const Support& support, Detail detail) {
  if (support.kind == SupportKind::Portal)
    return addPortal(mesh, support);
  MeshBuilder builder(mesh, frameAt(support.pose, support.foot));
  const double height = support.head - support.foot;
  const double along = support.along / 2;
  const double across = support.across / 2;
  if (support.kind == SupportKind::Rod)
    return builder.cone({}, along, height, along, detail == Detail::Near ? 8 : 4, {150, 150, 148});
  const double cap = std::min(height / 3, along * 0.3);
  const auto rectangle = [](double x, double y) {
    return Polygon{{-x, -y}, {x, -y}, {x, y}, {-x, y}};
  };
  builder.skirt(rectangle(along, across), 0, rectangle(along * 0.72, across * 0.8), height - cap,
                kStone);
  if (detail == Detail::Near)
    builder.area(rectangle(along, across), height - cap, shaded(kStone, 0.8), false);
  builder.prism(rectangle(along, across), height - cap, height, shaded(kStone, 1.08),
                shaded(kStone, 1.12));
}

void addBufferStop(MeshBuilder& builder, double gauge, double railFoot, double railTop) {
  constexpr Color kRed{176, 44, 36};
  constexpr Color kTimber{110, 86, 62};
  const double t = gauge * 0.12;
  for (const double y : {-gauge / 2, gauge / 2}) {
    builder.bar({-t, y, railFoot}, {-t, y, railTop + gauge * 0.75}, t, kRailSide);
    builder.bar({-gauge * 0.9, y, railTop}, {-t, y, railTop + gauge * 0.7}, t, kRailSide);
  }
  const double beam = railTop + gauge * 0.6;
  builder.box({-2.2 * t, -gauge * 0.85, beam - t}, {-t, gauge * 0.85, beam + 1.6 * t}, kTimber);
  for (const double y : {-gauge * 0.5, gauge * 0.5})
    builder.box({-3.4 * t, y - 1.2 * t, beam - 0.8 * t}, {-2.2 * t, y + 1.2 * t, beam + 1.4 * t},
                kRed);
}

} // namespace trassix
