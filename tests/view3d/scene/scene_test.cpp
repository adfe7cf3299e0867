#include "catalog/scenery_catalog.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/track/routes.h"
#include "support/loose_records.h"
#include "support/plan.h"
#include "support/random_plan.h"
#include "view3d/scene/glb_writer.h"
#include "view3d/scene/orbit_camera.h"
#include "view3d/scene/scene_keeper.h"
#include "view3d/scene/track_ride.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <nlohmann/json.hpp>
#include <tuple>

namespace trassix {
namespace {

Scene sceneOf(const Layout& layout) {
  SceneKeeper keeper;
  keeper.update(layout);
  return keeper.scene();
}

SceneKey trackKey(std::int32_t id) {
  return {SceneGroup::Track, RecordKind::Piece, id};
}

Vec3 vec(const std::array<float, 3>& v) {
  return {v[0], v[1], v[2]};
}

/// What is wrong with a mesh; empty when it is sound.
std::string faultOf(const Mesh& mesh) {
  for (const MeshVertex& vertex : mesh.vertices)
    if (!(std::abs(lengthOf(vec(vertex.normal)) - 1) < 1e-3))
      return "normal";
  for (const std::vector<std::uint32_t>& list : mesh.indices) {
    if (list.size() % 3 != 0)
      return "count";
    for (std::size_t i = 0; i + 2 < list.size(); i += 3) {
      if (std::max({list[i], list[i + 1], list[i + 2]}) >= mesh.vertices.size())
        return "index";
      const Vec3 a = vec(mesh.vertices[list[i]].position);
      const Vec3 n = cross(vec(mesh.vertices[list[i + 1]].position) - a,
                           vec(mesh.vertices[list[i + 2]].position) - a);
      if (!(lengthOf(n) > 1e-4))
        return "empty triangle";
      if (dot(n, vec(mesh.vertices[list[i]].normal)) <= 0)
        return "inside out at " + std::to_string(a.x) + " " + std::to_string(a.y) + " " +
               std::to_string(a.z);
    }
  }
  return {};
}

void expectSound(const Scene& scene) {
  for (const auto& [key, batch] : scene.batches) {
    EXPECT_EQ(faultOf(batch.fine), "") << key.id;
    EXPECT_EQ(faultOf(batch.coarse), "") << key.id;
    EXPECT_FALSE(batch.coarse.empty()) << key.id;
  }
}

TEST(Scene, EveryPieceIsBuiltWithItsRailsAtTheHeightsOfItsEnds) {
  std::size_t seenFromAfar = 0;
  for (const PieceDef& definition : wholeCatalogue()) {
    SCOPED_TRACE(definition.article);
    Layout layout = Plan().place(definition.article, {300, -200, 33}).layout;
    PlacedPiece& piece = layout.edit().pieces[0];
    piece.z = 40;
    piece.grade = definition.kind == PieceKind::Turntable ? 0 : 2;
    const Scene scene = sceneOf(layout);
    expectSound(scene);
    const Mesh& mesh = scene.batches.at(trackKey(piece.id)).fine;
    const TrackSection section = trackSection(definition.system);
    for (const WorldConnector& end : WorldConnectorsOf(piece, definition)) {
      int rails = 0;
      for (const MeshVertex& vertex : mesh.vertices) {
        const Vec3 p = vec(vertex.position);
        const double d = std::hypot(p.x - end.x, p.y + end.y);
        rails += std::abs(d - section.gauge / 2) < section.railWidth &&
                 std::abs(p.z - endHeight(piece, definition, end.index) - section.railTop) < 0.01;
      }
      EXPECT_GE(rails, 4) << end.index;
    }
    double way = 0;
    for (const Route& route : routesOf(definition))
      way += routeLength(route);
    EXPECT_LE(static_cast<double>(mesh.triangles()), 1500 * std::max(1.0, way / 180));
    for (const auto& [key, batch] : scene.batches)
      seenFromAfar += key.group == SceneGroup::Board ? 0 : batch.coarse.triangles();
  }
  EXPECT_LT(seenFromAfar, 130 * wholeCatalogue().size()); // and 240 for an item
}

TEST(Scene, EverySceneryItemFillsItsFootprint) {
  std::size_t seenFromAfar = 0; // 2000 pieces and 500 items stay below 400,000
  for (const char* track : {"24188", "8500", "59059"})
    for (const SceneryDef& definition : sceneryItems()) {
      SCOPED_TRACE(std::string(definition.key) + " beside " + track);
      Layout layout = Plan().place(track, {5000, 0, 0}).layout;
      SceneryItem item;
      item.id = 7;
      item.item = definition.key;
      item.heading = 90;
      item.scalex = 1.5;
      layout.edit().scenery = {item};
      const Scene scene = sceneOf(layout);
      expectSound(scene);
      const SceneBatch& batch = scene.batches.at({SceneGroup::Scenery, RecordKind::Scenery, 7});
      const Footprint size = definition.footprint(cataloguePiece(track).system);
      if (definition.category != SceneryCategory::Turntable) { // whose cabin stands higher
        EXPECT_NEAR(batch.most.z, size.height, 0.12 * size.height + 5);
      }
      if (definition.category == SceneryCategory::Building ||
          definition.category == SceneryCategory::Tree) {
        EXPECT_LE(batch.most.y - batch.least.y, 1.06 * 1.5 * size.width + 6);
        EXPECT_GE(batch.most.y - batch.least.y, 0.5 * size.width);
      }
      EXPECT_GT(batch.fine.triangles(), 10U) << "a plain box";
      seenFromAfar += batch.coarse.triangles();
    }
  EXPECT_LT(seenFromAfar, 240 * 3 * sceneryItems().size());
}

TEST(Scene, UnknownThingsAreMarkedAndGroundsSound) {
  Layout layout = test::randomPlan(4, 60);
  layout.edit().pieces[0].cat = "no such article";
  layout.edit().scenery[0].item = "no such item";
  const Scene scene = sceneOf(layout);
  expectSound(scene);
  EXPECT_TRUE(scene.batches.contains(trackKey(layout.pieces()[0].id)));
}

TEST(SceneKeeper, MakesAnewOnlyWhatLooksDifferent) {
  Plan plan;
  for (int i = 0; i < 12; ++i) {
    plan.place("24188", {0, 100.0 * i, 0}).extend("24188", 9);
    for (PlacedPiece& piece : plan.layout.edit().pieces)
      piece.z = 60;
  }
  Layout layout = plan.layout;
  layout.editSettings().baseboard = {{-100, -100}, {2200, -100}, {2200, 1400}, {-100, 1400}};
  SceneKeeper keeper;
  keeper.update(layout);
  const auto lift = [&](double z) { layout.editPiece(33)->z = z; };
  for (const double z : {80.0, 0.0, 60.0}) {
    lift(z);
    const SceneChanges changes = keeper.update(layout);
    std::size_t renewed = 0;
    for (const SceneKey& key : changes.renewed)
      renewed += keeper.scene().batches.at(key).fine.triangles();
    EXPECT_GT(renewed, 0U);
    EXPECT_LE(50 * renewed, keeper.scene().triangles(Detail::Near));
    const Scene whole = sceneOf(layout);
    ASSERT_EQ(whole.batches.size(), keeper.scene().batches.size());
    for (const auto& [key, batch] : whole.batches)
      EXPECT_EQ(batch.fine, keeper.scene().batches.at(key).fine) << key.id;
  }
  layout.editSettings().levels[0].visible = false;
  EXPECT_FALSE(keeper.update(layout).any());
}

TEST(SceneKeeper, ComesToTheSameAsASceneMadeAnew) {
  Layout layout = test::randomPlan(18, 40);
  SceneKeeper keeper;
  const std::function<void(PlanContent&)> edits[] = {
      [](PlanContent& c) { c.pieces[3].z += 40; },
      [](PlanContent& c) { c.pieces.erase(c.pieces.begin()); }, // perhaps with the plan's gauge
      [](PlanContent& c) {
        c.shapes.push_back(test::shapeOf(9001, {{-900, -900}, {900, -900}, {0, 900}}, 1, 50));
      },
      [](PlanContent& c) { c.scenery[0].x += 10; },
      [](PlanContent& c) { c.shapes.clear(); },
      [](PlanContent& c) { c.tunnels.clear(); },
      [](PlanContent& c) { c.labels.clear(); },
      [](PlanContent& c) { std::ranges::reverse(c.pieces); },
  };
  const auto compare = [&](const std::string& when) {
    keeper.update(layout);
    const Scene whole = sceneOf(layout);
    EXPECT_EQ(whole.labels, keeper.scene().labels) << when;
    ASSERT_EQ(whole.batches.size(), keeper.scene().batches.size()) << when;
    for (const auto& [key, batch] : whole.batches) {
      ASSERT_TRUE(keeper.scene().batches.contains(key)) << when;
      EXPECT_EQ(batch.fine, keeper.scene().batches.at(key).fine) << when << " " << key.id;
    }
  };
  for (std::size_t i = 0; i < std::size(edits); ++i) {
    layout.pushHistory();
    edits[i](layout.edit());
    compare("after edit " + std::to_string(i));
  }
  while (layout.undo())
    compare("after undo");
  layout.editSettings().levels[0].height += 30;
  compare("with a level lifted");
  layout.editSettings().baseboard.clear();
  compare("without a board");
}

TEST(Scene, SceneryStandsOnWhatIsBelowIt) {
  Layout layout = Plan().place("24188").layout;
  layout.editPiece(1)->z = 25;
  layout.ensureLevel(2);
  layout.editSettings().levels.back().height = 120;
  layout.ensureLevel(3);
  layout.editSettings().levels.back().height = 80;
  layout.editSettings().levels.back().outline = {{0, 600}, {700, 600}, {700, 900}, {0, 900}};
  PlanContent& content = layout.edit();
  content.shapes = {test::shapeOf(5, {{900, 0}, {1300, 0}, {1300, 400}, {900, 400}}, 1, 60)};
  const std::tuple<Point, std::int32_t, double> cases[] = {
      {{500, 500}, 1, 0},    {{500, 500}, 2, 120}, {{1100, 200}, 1, 60},
      {{1100, 200}, 2, 120}, {{0, 0}, 1, 25},                            // the portal of the tunnel
      {{500, 700}, 3, 80},   {{500, 500}, 3, 0},   {{1100, 200}, 3, 60}, // on and beside a deck
  };
  for (const auto& [at, level, height] : cases) {
    SceneryItem item;
    item.id = 20 + static_cast<std::int32_t>(content.scenery.size());
    item.item = "tun.single";
    item.x = at.x;
    item.y = at.y;
    item.level = level;
    content.scenery.push_back(item);
  }
  Tunnel tunnel;
  tunnel.id = 8;
  tunnel.portalA = 24;
  tunnel.anchorA = 1;
  tunnel.covers = {1};
  content.tunnels = {tunnel};
  const Scene scene = sceneOf(layout);
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_NEAR(
        scene.batches.at({SceneGroup::Scenery, RecordKind::Scenery, content.scenery[i].id}).least.z,
        std::get<2>(cases[i]), 1e-3);
  const SceneBatch& hill = scene.batches.at({SceneGroup::Ground, RecordKind::Tunnel, 8});
  EXPECT_NEAR(hill.most.z, 25 + 10 + 72 + 25, 1e-3); // track, rails, opening, and hill above it
}

TEST(Scene, HillsOverTunnelsLeaveOtherTrackFree) {
  struct Case {
    double covered;
    double other; ///< height of the track that crosses it
    double foot;  ///< of the hill, as high as its top without one
    double top;
  };
  for (const Case& c : {Case{200, 199, 0, 307},
                        {200, 0, 190, 307},
                        {25, 140, 0, 130},
                        {25, 90, 0, 0},
                        {25, 300, 0, 132}}) {
    Layout layout = Plan().place("24188").place("24188", {94, -94, 90}).layout;
    layout.editPiece(1)->z = c.covered;
    layout.editPiece(2)->z = c.other;
    Tunnel tunnel;
    tunnel.id = 8;
    tunnel.anchorA = 1;
    tunnel.covers = {1};
    layout.edit().tunnels = {tunnel};
    const Scene scene = sceneOf(layout);
    const auto hill = scene.batches.find({SceneGroup::Ground, RecordKind::Tunnel, 8});
    ASSERT_EQ(hill != scene.batches.end(), c.top > c.foot) << c.other;
    if (hill != scene.batches.end()) {
      EXPECT_NEAR(hill->second.least.z, c.foot, 1e-3) << c.other;
      EXPECT_NEAR(hill->second.most.z, c.top, 1e-3) << c.other;
    }
  }
}

TEST(Scene, RaysMeetWhatTheyPointAt) {
  const Layout layout = Plan().place("24188").extend("24130").extend("24671").layout;
  const Scene scene = sceneOf(layout);
  OrbitCamera camera;
  camera.look(CameraView::Oblique, scene.bounds());
  for (const PlacedPiece& piece : layout.pieces()) {
    const Vec3 rail{worldEnd(piece, 0).x, -worldEnd(piece, 0).y, 5};
    const Point inner = toWorld(poseOf(piece), {30, 0});
    const auto pixel = camera.project({inner.x, -inner.y, 8});
    ASSERT_TRUE(pixel);
    const OrbitCamera::Ray ray = camera.ray(*pixel);
    const auto hit = hitOf(layout, scene, {}, ray.origin, ray.direction);
    ASSERT_TRUE(hit) << rail.x;
    EXPECT_EQ(hit->key, trackKey(piece.id));
  }
}

TEST(OrbitCamera, WhatIsHeldStaysUnderThePointer) {
  const Scene::Bounds bounds{{0, -1200, 0}, {2000, 0, 150}};
  const Vec3 held{700, -300, 40};
  for (const CameraView view :
       {CameraView::Top, CameraView::Front, CameraView::Side, CameraView::Oblique}) {
    OrbitCamera camera;
    camera.look(view, bounds);
    const auto before = *camera.project(held);
    EXPECT_TRUE(before.x > 0 && before.x < camera.width && before.y > 0 &&
                before.y < camera.height);
    OrbitCamera moved = camera;
    moved.zoom(held, 3);
    EXPECT_NEAR(moved.project(held)->x, before.x, 1e-6);
    moved.orbit(held, 40, 0);
    EXPECT_NEAR(moved.project(held)->y, before.y, 1e-6);
    moved.pan(held, 25, -10);
    EXPECT_NEAR(moved.project(held)->x, before.x + 25, 1e-6);
    EXPECT_NEAR(moved.project(held)->y, before.y - 10, 1e-6);
    const OrbitCamera::Ray ray = moved.ray(*moved.project(held));
    EXPECT_NEAR(lengthOf(cross(held - ray.origin, ray.direction)), 0, 1e-3);
    // The matrices say the same.
    const Matrix4 all = product(camera.projection(bounds), camera.view());
    const auto clip = [&](std::size_t row) {
      return all[row] * held.x + all[4 + row] * held.y + all[8 + row] * held.z + all[12 + row];
    };
    EXPECT_NEAR((clip(0) / clip(3) + 1) / 2 * camera.width, before.x, 1e-6);
    EXPECT_NEAR((1 - clip(1) / clip(3)) / 2 * camera.height, before.y, 1e-6);
    EXPECT_LE(std::abs(clip(2)), clip(3));
  }
  OrbitCamera top;
  top.look(CameraView::Top, bounds);
  EXPECT_LT(top.project({0, 0, 0})->x, top.project({2000, 0, 0})->x);
  EXPECT_LT(top.project({0, 0, 0})->y, top.project({0, -1200, 0})->y); // the plan's y, downwards
}

TEST(TrackRide, GoesWhereTrackLeads) {
  // Straight, left turnout entered at its points, straight on its main way.
  const Plan plan =
      Plan().place("24188").extendBy("24611", 0, 1).extend("24188").at(2, 2).extend("24188");
  const Layout& layout = plan.layout;
  // Branch, way from the middle of the first piece, where it comes to, whether it still goes.
  const std::tuple<RideBranch, double, std::int32_t, bool> cases[] = {
      {RideBranch::Straight, 10, 1, true},  {RideBranch::Straight, 200, 2, true},
      {RideBranch::Straight, 400, 3, true}, {RideBranch::Left, 400, 4, true},
      {RideBranch::Right, 400, 3, true},    {RideBranch::Straight, 4000, 3, false},
      {RideBranch::Straight, -50, 1, true}, {RideBranch::Straight, -500, 1, false},
  };
  for (const auto& [branch, way, piece, goes] : cases) {
    TrackRide ride(layout, 1);
    ride.choose(branch);
    EXPECT_EQ(ride.advance(layout, way), goes) << way;
    EXPECT_EQ(ride.piece(), piece) << way;
    EXPECT_NEAR(lengthOf(ride.view(layout).forward), 1, 1e-9);
  }
  TrackRide there(layout, 1);
  const RideView start = there.view(layout);
  EXPECT_NEAR(start.eye.x, 94.15, 1e-6);
  there.advance(layout, 300);
  there.turnRound(layout);
  there.advance(layout, 300);
  EXPECT_NEAR(there.view(layout).eye.x, start.eye.x, 1e-6);
  EXPECT_NEAR(there.view(layout).forward.x, -1, 1e-9);
  EXPECT_TRUE(TrackRide(layout, 99).isOver(layout));

  // Backwards, too, left is where the eyes have it. Before a buffer there is room for an engine.
  const Layout behind =
      Plan().place("24188").extend("24977").at(1, 0).extendBy("24611", 0, 1).layout;
  for (const auto& [branch, side] : {std::pair(RideBranch::Left, 1.0), {RideBranch::Right, -1.0}}) {
    TrackRide back(behind, 1);
    back.choose(branch);
    back.advance(behind, -350);
    EXPECT_EQ(back.piece(), 3);
    const RideView seen = back.view(behind);
    EXPECT_GE(side * seen.eye.y, -1e-6) << side; // the eyes look along +x
  }
  TrackRide buffer(behind, 1);
  EXPECT_FALSE(buffer.advance(behind, 1000));
  EXPECT_LT(buffer.view(behind).eye.x, 188.3 + 77.5 - 45);
}

/// The positions of a `.glb`, by node.
std::map<std::string, std::vector<Vec3>> positionsIn(const std::string& file) {
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    std::memcpy(&value, file.data() + at, 4);
    return static_cast<std::size_t>(value);
  };
  EXPECT_EQ(file.substr(0, 4), "glTF");
  EXPECT_EQ(number(8), file.size());
  const std::size_t head = number(12);
  const auto root = nlohmann::json::parse(file.substr(20, head));
  const std::size_t data = 20 + head + 8;
  std::map<std::string, std::vector<Vec3>> found;
  if (!root.contains("nodes"))
    return found;
  for (const auto& node : root["nodes"])
    for (const auto& primitive : root["meshes"][node["mesh"].get<std::size_t>()]["primitives"]) {
      const auto& accessor =
          root["accessors"][primitive["attributes"]["POSITION"].get<std::size_t>()];
      const auto& view = root["bufferViews"][accessor["bufferView"].get<std::size_t>()];
      for (std::size_t i = 0; i < accessor["count"].get<std::size_t>(); ++i) {
        std::array<float, 3> p{};
        std::memcpy(p.data(), file.data() + data + view["byteOffset"].get<std::size_t>() + 12 * i,
                    12);
        found[node["name"].get<std::string>()].push_back(vec(p));
      }
    }
  return found;
}

TEST(Glb, IsThePlanAndNotItsMirrorImage) {
  for (const auto& [article, side] : {std::pair("24611", -1.0), std::pair("24612", 1.0)}) {
    const Layout layout = Plan().place(article).layout;
    auto nodes = positionsIn(glbOf(layout, sceneOf(layout), {}));
    ASSERT_FALSE(nodes["track"].empty());
    // A train comes along +x with +y up: +z is on its right.
    double farthest = 0;
    double high = 0;
    for (const Vec3 p : nodes["track"]) {
      farthest = std::abs(p.z) > std::abs(farthest) ? p.z : farthest;
      high = std::max(high, p.y);
    }
    EXPECT_GT(side * farthest, 0.04) << article;
    EXPECT_LT(std::abs(farthest), 0.09);
    EXPECT_NEAR(high, 0.01, 1e-4);
  }
  EXPECT_TRUE(positionsIn(glbOf(Layout(), Scene(), {})).empty());
}

} // namespace
} // namespace trassix
