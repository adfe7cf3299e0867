#include "view3d/scene/ground_mesh.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/content_box.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "editing/tunnels/tunnel_figures.h"
#include "editing/tunnels/tunnel_outline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

namespace trassix {

namespace {

constexpr Color kBoardTop{156, 163, 128};
constexpr Color kWood{190, 160, 118};
constexpr Color kPlywood{206, 182, 142};
constexpr Color kGrass{120, 142, 84};
constexpr Color kRock{132, 124, 108};

constexpr double kBoardThickness = 16; // mm
constexpr double kPlateThickness = 10;
constexpr double kFrameDepth = 80; // of a board from this width on, of a smaller one less
constexpr double kFullWidth = 1200;
constexpr double kFrameInset = 12;
constexpr double kLegLength = 700;
constexpr double kLegSize = 40;
constexpr double kBesideTrack = 100; // of board where a plan has none
constexpr double kPaint = 0.3;       // mm that painted ground lies above what it is painted on
constexpr double kLayer = 0.06;      // mm from one layer of it to the next
constexpr int kLayers = 20;
constexpr double kLineWidth = 2;
constexpr double kHillAbove = 25; // mm above the opening of a tunnel
constexpr Color kTunnelDark{78, 73, 68};
constexpr double kLining = 0.9;   // of the way from the foot of such a hill to the edge of its top
constexpr double kLiningUp = 0.9; // of its rise
constexpr double kPortalWall = 0.9; // of a portal's height, below the cap
constexpr double kPassStep = 20;    // mm along track that may pass over a tunnel
constexpr double kTunnelSide = 0.2; // of the rise, by which the sides of such a hill lean

Polygon inScene(const Polygon& plan) {
  Polygon scene;
  for (const Point p : plan)
    scene.push_back({p.x, -p.y});
  return scene;
}

void addHill(Mesh& mesh, const Hill& hill, Color color) {
  MeshBuilder builder(mesh);
  const Polygon top = inScene(hill.top);
  const Color green = color == Color{} ? kGrass : color;
  builder.skirt(inScene(hill.foot), hill.base, top, hill.base + hill.rise,
                mixed(green, kRock, 0.35));
  builder.area(top, hill.base + hill.rise, green);
}

void addLegs(MeshBuilder& builder, const Polygon& corners, double scale) {
  const double half = scale * kLegSize / 2;
  for (const Point at : corners)
    builder.box({at.x - half, at.y - half, -kBoardThickness - scale * kLegLength},
                {at.x + half, at.y + half, -kBoardThickness}, shaded(kWood, 0.85));
}

/// A line along an outline that is only drawn.
void addLine(MeshBuilder& builder, const Polygon& outline, double z, Color color) {
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    builder.bar({a.x, a.y, z}, {b.x, b.y, z}, kLineWidth, color);
  }
}

} // namespace

Polygon boardOutline(const Layout& layout) {
  if (layout.settings().baseboard.size() >= 3)
    return layout.settings().baseboard;
  const std::optional<Box> box = contentBox(layout);
  if (!box)
    return {};
  const auto low = [](double at) { return (std::floor(at / kBesideTrack) - 1) * kBesideTrack; };
  const auto high = [](double at) { return (std::ceil(at / kBesideTrack) + 1) * kBesideTrack; };
  return {{low(box->minX), low(box->minY)},
          {high(box->maxX), low(box->minY)},
          {high(box->maxX), high(box->maxY)},
          {low(box->minX), high(box->maxY)}};
}

void addBoard(Mesh& mesh, const Polygon& plan) {
  if (plan.empty())
    return;
  const Polygon outline = inScene(plan);
  MeshBuilder builder(mesh);
  builder.prism(outline, -kBoardThickness, 0, kWood, kBoardTop);
  builder.area(outline, -kBoardThickness, shaded(kWood, 0.7), false);
  const auto [left, right] = std::ranges::minmax(outline, {}, &Point::x);
  const auto [front, back] = std::ranges::minmax(outline, {}, &Point::y);
  const double scale =
      std::clamp(std::min(right.x - left.x, back.y - front.y) / kFullWidth, 0.4, 1.0);
  const Hill frame = makeHill(outline, 0, 1, kFrameInset);
  builder.skirt(frame.top, -kBoardThickness - scale * kFrameDepth, frame.top, -kBoardThickness,
                shaded(kWood, 0.92));
  addLegs(builder, makeHill(outline, 0, 1, kFrameInset + scale * kLegSize).top, scale);
}

void addPlate(Mesh& mesh, const Level& level) {
  if (level.outline.size() < 3)
    return;
  MeshBuilder builder(mesh);
  const Polygon outline = inScene(level.outline);
  const Color top = mixed(kBoardTop, kPlywood, 0.35);
  if (std::abs(level.height) < kPaint) // it is the board, with another colour
    return builder.area(outline, level.height + kPaint / 2, top);
  builder.prism(outline, level.height - kPlateThickness, level.height, kPlywood, top);
  builder.area(outline, level.height - kPlateThickness, shaded(kPlywood, 0.75), false);
}

void addPost(Mesh& mesh, const DeckPost& post) {
  const double half = post.size / 2;
  MeshBuilder(mesh).box({post.at.x - half, -post.at.y - half, post.foot},
                        {post.at.x + half, -post.at.y + half, post.head}, shaded(kWood, 0.9));
}

void addShape(Mesh& mesh, const Layout& layout, const Shape& shape, int layer) {
  if (shape.points.size() < 3)
    return;
  const double base = layout.levelHeight(shape.level);
  if (isHill(shape) && !isWater(shape))
    return addHill(mesh, hillOf(layout, shape), shape.color);
  MeshBuilder builder(mesh);
  const double z = base + (isHill(shape) ? shape.height : 0) + kPaint + kLayer * (layer % kLayers);
  const Polygon outline = inScene(shape.points);
  if (shape.outline)
    return addLine(builder, outline, z, shape.color);
  if (isWater(shape))
    builder.setFinish(Finish::Glossy);
  const Color color = mixed(kBoardTop, shape.color, shape.a / 255.0);
  if (isHill(shape))
    builder.prism(outline, base, z, shaded(color, 0.8), color);
  else
    builder.area(outline, z, color);
}

bool passesOver(const PlacedPiece& piece, const PieceDef& definition, const Polygon& place) {
  const auto within = [&](const RoutePoint& at) {
    return inside(place, toWorld(poseOf(piece), at.position));
  };
  return std::ranges::any_of(routesOf(definition), [&](const Route& route) {
    return std::ranges::any_of(sampleRoute(route, 1, kPassStep), within);
  });
}

/// What else passes over or under a place at other heights than these, track and decks.
struct Passing {
  double over = 1e9; ///< the lowest underside above
  bool under = false;
};

Passing passing(const Layout& layout, const Polygon& place, double low, double high) {
  Passing passing;
  for (const Level& level : layout.settings().levels)
    if (level.height - kPlateThickness > high &&
        std::ranges::any_of(place, [&](Point at) { return inside(level.outline, at); }))
      passing.over = std::min(passing.over, level.height - kPlateThickness);
  for (const PlacedPiece& piece : layout.pieces()) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr)
      continue;
    double lowest = piece.z;
    double highest = piece.z;
    for (std::size_t end = 0; end < definition->connectors.size(); ++end) {
      const double height = endHeight(piece, *definition, static_cast<std::int32_t>(end));
      lowest = std::min(lowest, height);
      highest = std::max(highest, height);
    }
    lowest -= kPlateThickness;
    const bool over = lowest > high && lowest < passing.over;
    if ((over || (highest < low && !passing.under)) && passesOver(piece, *definition, place)) {
      if (over)
        passing.over = lowest;
      else
        passing.under = true;
    }
  }
  return passing;
}

std::optional<TunnelHill> tunnelHill(const Layout& layout, const Grounds& grounds,
                                     const std::map<std::int32_t, double>& portals,
                                     const Tunnel& tunnel) {
  const Polygon foot = hillOver(layout, tunnel);
  if (foot.size() < 3)
    return std::nullopt;
  double low = 1e9;
  double high = -1e9;
  for (const std::int32_t id : tunnel.covers) {
    const PlacedPiece* piece = layout.findPiece(id);
    const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
    if (definition == nullptr)
      continue;
    const double opening = openingOf(definition->system, TunnelOpening::WithWire, 1).height +
                           railTop(definition->system);
    for (std::int32_t end = 0; end < static_cast<std::int32_t>(definition->connectors.size());
         ++end) {
      const double height = endHeight(*piece, *definition, end);
      low = std::min(low, height);
      high = std::max(high, height + opening + kHillAbove);
    }
  }
  // Too little room for a hill: what passes over the tunnel hides it. A hill that stood on what
  // passes below would close that, so it begins at its own track.
  const Passing others = passing(layout, foot, low - kHillAbove, low + kHillAbove);
  if (others.over < high - kHillAbove)
    return std::nullopt;
  high = std::min(high, others.over);
  const double base =
      others.under ? low - kPlateThickness : std::min(grounds.below(foot.front(), low).height, low);
  TunnelHill hill{foot, base, high - base, {base, base}};
  const std::size_t half = foot.size() / 2;
  const double width = std::hypot(foot.front().x - foot.back().x, foot.front().y - foot.back().y);
  for (const auto& [end, left, right] :
       {std::tuple(0, foot.front(), foot.back()), {1, foot[half - 1], foot[half]}})
    for (const SceneryItem& item : layout.content().scenery) {
      const Point middle{(left.x + right.x) / 2, (left.y + right.y) / 2};
      const auto at = portals.find(item.id);
      if (at != portals.end() && (item.id == tunnel.portalA || item.id == tunnel.portalB) &&
          std::hypot(item.x - middle.x, item.y - middle.y) < width / 2)
        hill.open[static_cast<std::size_t>(end)] =
            at->second + kPortalWall * sceneryFootprint(layout, item).height;
    }
  return hill;
}

void addTunnelHill(Mesh& mesh, const TunnelHill& hill) {
  // It has little room, and is rounded where the portals leave it free.
  struct Round {
    double inwards; ///< share of the way from the foot to the top's edge
    double up;      ///< share of the rise
  };
  constexpr std::array<Round, 4> kRounds{{{0, 0}, {0.1, 0.6}, {0.4, 0.87}, {1, 1}}};
  MeshBuilder builder(mesh);
  const Polygon foot = inScene(hill.foot);
  const Polygon top =
      inScene(makeHill(hill.foot, hill.base, hill.rise, kTunnelSide * hill.rise).top);
  const std::size_t count = foot.size();
  const auto at = [&](std::size_t corner, double inwards, double up) {
    const std::size_t i = corner % count;
    return Vec3{foot[i].x + inwards * (top[i].x - foot[i].x),
                foot[i].y + inwards * (top[i].y - foot[i].y), hill.base + up * hill.rise};
  };
  const Color side = mixed(kGrass, kRock, 0.35);
  const double turn = signedArea(foot) > 0 ? 1 : -1;
  const auto wall = [&](std::size_t i, Round low, Round high, Color color) {
    const Vec3 a = at(i, low.inwards, low.up);
    const Vec3 b = at(i + 1, low.inwards, low.up);
    const Vec3 c = at(i + 1, high.inwards, high.up);
    const Vec3 d = at(i, high.inwards, high.up);
    turn > 0 ? builder.quad(a, b, c, d, color) : builder.quad(d, c, b, a, color);
  };
  for (std::size_t i = 0; i < count; ++i) {
    const bool last = i + 1 == count;
    const bool atEnd = last || 2 * (i + 1) == count;
    const double free = atEnd ? (hill.open[last ? 0 : 1] - hill.base) / hill.rise : 0;
    for (std::size_t k = 0; k + 1 < kRounds.size(); ++k) {
      Round low = kRounds[k];
      const Round high = kRounds[k + 1];
      if (high.up <= free)
        continue;
      if (low.up < free) {
        low.inwards += (free - low.up) / (high.up - low.up) * (high.inwards - low.inwards);
        low.up = free;
      }
      wall(i, low, high, mixed(side, kGrass, static_cast<double>(k) / 2));
    }
    if (!atEnd)
      wall(i, {kLining, 0}, {kLining, kLiningUp}, kTunnelDark);
  }
  builder.area(top, hill.base + hill.rise, kGrass);
  Polygon ceiling;
  for (std::size_t i = 0; i < count; ++i)
    ceiling.push_back({at(i, kLining, 0).x, at(i, kLining, 0).y});
  builder.area(ceiling, hill.base + kLiningUp * hill.rise, kTunnelDark);
}

} // namespace trassix
