#include "view3d/scene/scenery_mesh.h"

#include "editing/track/track_geometry.h"
#include "view3d/scene/scenery_kit.h"

#include <algorithm>
#include <array>

namespace trassix {

namespace {

constexpr Color kPlaster{212, 198, 168};
constexpr Color kCream{222, 212, 190};
constexpr Color kOchre{204, 172, 118};
constexpr Color kBrick{154, 90, 72};
constexpr Color kSandstone{190, 164, 128};
constexpr Color kGrey{166, 162, 156};
constexpr Color kWood{128, 98, 70};
constexpr Color kStone{150, 142, 130};
constexpr Color kTiles{146, 86, 68};
constexpr Color kSlate{92, 94, 100};
constexpr Color kFelt{96, 92, 90};
constexpr Color kAsphalt{104, 103, 101};

struct Recipe {
  std::string_view key;
  SceneryBuilder build;
  SceneryLook look = {};
};

constexpr std::array kRecipes = std::to_array<Recipe>({
    {"stn.shelter", addShelter, {kWood, kTiles, 1}},
    {"stn.small", addStation, {kOchre, kTiles, 2}},
    {"stn.medium", addStation, {kBrick, kSlate, 2}},
    {"stn.large", addStation, {kSandstone, kSlate, 3}},
    {"stn.terminus_hall", addTrainShed, {}},
    {"goods.shed", addHall, {kWood, kSlate, 1}},
    {"goods.ramp", addLoadingRamp, {}},
    {"goods.gantry", addGantryCrane, {}},
    {"box.ground", addSignalBox, {kCream, kSlate, 1}},
    {"box.tall", addSignalBox, {kPlaster, kTiles, 2}},
    {"box.bridge", addBridgeBox, {kCream, kSlate, 1}},
    {"keeper.house", addHouse, {kBrick, kSlate, 1}},
    {"shed.loco1", addLocoShed, {kBrick, kSlate, 1}},
    {"shed.loco2", addLocoShed, {kBrick, kSlate, 1}},
    {"shed.loco3", addLocoShed, {kBrick, kFelt, 1}},
    {"works.hall", addLocoShed, {kSandstone, kSlate, 1}},
    {"water.tower", addWaterTower, {}},
    {"water.crane", addWaterCrane, {}},
    {"coal.stage", addCoalStage, {}},
    {"coal.bunker", addBunker, {}},
    {"sand.tower", addSandTower, {}},
    {"ash.pit", addAshPit, {}},
    {"diesel.pump", addPump, {}},
    {"house.detached", addHouse, {kPlaster, kTiles, 1}},
    {"house.two", addHouse, {kCream, kTiles, 2}},
    {"house.shell", addShell, {}},
    {"house.timber", addTimberHouse, {kCream, kTiles, 2}},
    {"house.row", addHouse, {kOchre, kSlate, 4}},
    {"house.corner", addHouse, {kSandstone, kSlate, 4}},
    {"house.block", addFlats, {kCream, kFelt, 6}},
    {"inn", addTimberHouse, {kPlaster, kTiles, 2}},
    {"shop", addHouse, {kOchre, kTiles, 2}},
    {"kiosk", addShelter, {{120, 138, 112}, kFelt, 1}},
    {"bus.shelter", addShelter, {kGrey, kFelt, 1}},
    {"filling.old", addPump, {}},
    {"church.chapel", addChurch, {kCream, kTiles, 1}},
    {"church.village", addChurch, {kCream, kTiles, 1}},
    {"church.town", addChurch, {kSandstone, kSlate, 1}},
    {"school", addHouse, {kBrick, kSlate, 3}},
    {"townhall", addTownHall, {kSandstone, kSlate, 3}},
    {"fire.station", addTownHall, {kBrick, kTiles, 2}},
    {"farm.house", addTimberHouse, {kCream, kTiles, 2}},
    {"farm.barn", addHall, {kWood, kTiles, 1}},
    {"mill", addMill, {kCream, kTiles, 2}},
    {"sawmill", addHall, {kWood, kFelt, 1}},
    {"factory.small", addSawTooth, {kBrick, kFelt, 2}},
    {"factory.large", addSawTooth, {kBrick, kSlate, 2}},
    {"chimney", addFactoryChimney, {}},
    {"brewery", addTownHall, {kBrick, kSlate, 4}},
    {"warehouse", addFlats, {kBrick, kFelt, 3}},
    {"tank", addTank, {}},
    {"gasholder", addGasholder, {}},
    {"silo", addSilo, {}},
    {"castle.ruin", addCastle, {kStone, kSlate, 1}},
    {"sig.light.home", addLightSignal, {}},
    {"sig.light.distant", addLightSignal, {}},
    {"sig.light.shunt", addLightSignal, {}},
    {"sig.light.shunthi", addLightSignal, {}},
    {"sig.sem.home", addSemaphore, {{}, {}, 1}},
    {"sig.sem.distant", addSemaphore, {{}, {}, 1}},
    {"sig.sem.shunt", addSemaphore, {{}, {}, 1}},
    {"sig.gantry2", addSignalGantry, {}},
    {"board.limit", addBoardSign, {}},
    {"bufferstop", addBuffer, {}},
    {"xing.single", addLevelCrossing, {}},
    {"xing.double", addLevelCrossing, {}},
    {"barrier.half", addBarrier, {}},
    {"mast.line", addLineMast, {}},
    {"mast.tower", addTowerMast, {}},
    {"mast.portal4", addPortalMast, {}},
    {"lamp.street", addLamp, {}},
    {"lamp.yard", addYardLight, {}},
    {"pole.telegraph", addTelegraphPole, {}},
    {"road.minor", addRoad, {kAsphalt, {}, 1}},
    {"road.main", addRoad, {{84, 84, 86}, {}, 1}},
    {"road.track", addFarmTrack, {}},
    {"road.path", addPavement, {}},
    {"road.square", addSquare, {}},
    {"road.carpark", addCarPark, {}},
    {"plat.side", addPlatform, {}},
    {"plat.island77", addPlatform, {}},
    {"plat.island155", addPlatform, {}},
    {"plat.roof", addPlatformRoof, {}},
    {"underpass", addStairs, {}},
    {"footbridge", addFootbridge, {}},
    {"br.road", addRoadBridge, {}},
    {"br.girder", addGirderBridge, {}},
    {"br.truss", addTrussBridge, {}},
    {"br.arch", addArchBridge, {}},
    {"br.viaduct", addViaduct, {}},
    {"br.pier", addStonePier, {}},
    {"br.deck", addDeckTruss, {}},
    {"tun.single", addPortal, {kGrey, {}, 1}},
    {"tun.double", addPortal, {kGrey, {}, 1}},
    {"tun.oldstone", addPortal, {kStone, {}, 1}},
    {"wall.retain", addRetainingWall, {}},
    {"tree.bush", addBush, {}},
    {"tree.hedge", addHedge, {}},
    {"tree.broad.s", addBroadleaf, {}},
    {"tree.broad.m", addBroadleaf, {}},
    {"tree.broad.l", addBroadleaf, {}},
    {"tree.broad.xl", addBroadleaf, {}},
    {"tree.fir.s", addConifer, {}},
    {"tree.fir.m", addConifer, {}},
    {"tree.fir.l", addConifer, {}},
    {"tree.fir.xl", addConifer, {}},
    {"tree.fir.max", addConifer, {}},
    {"tree.poplar", addPoplar, {}},
    {"tree.fruit", addFruitTree, {}},
    {"tree.palmstump", addLogs, {}},
    {"forest", addForest, {}},
    {"pond", addPond, {}},
    {"field", addField, {}},
    {"7161", addGirderBridge, {}},
    {"7162", addTrussBridge, {}},
    {"7163", addArchBridge, {}},
    {"7192", addLevelCrossing, {}},
    {"7190", addBuffer, {}},
    {"7039", addSemaphore, {{}, {}, 1}},
    {"7036", addSemaphore, {{}, {}, 1}},
    {"7040", addSemaphore, {{}, {}, 2}},
    {"7042", addSemaphore, {{}, {}, 1}},
    {"74101", addLineMast, {}},
    {"7009", addLineMast, {}},
    {"8970", addStation, {kBrick, kSlate, 2}},
    {"8960", addStation, {kSandstone, kSlate, 3}},
    {"8971", addHall, {kWood, kSlate, 1}},
    {"8972", addGantryCrane, {}},
});

/// What an item looks like that has no recipe of its own.
Recipe usualFor(SceneryCategory category) {
  switch (category) {
  case SceneryCategory::Building:
    return {"", addHouse, {kPlaster, kTiles, 2}};
  case SceneryCategory::Platform:
    return {"", addPlatform};
  case SceneryCategory::Signal:
    return {"", addLightSignal};
  case SceneryCategory::Road:
    return {"", addRoad, {kAsphalt, {}, 1}};
  case SceneryCategory::Bridge:
    return {"", addGirderBridge};
  case SceneryCategory::Tunnel:
    return {"", addRetainingWall};
  case SceneryCategory::Catenary:
    return {"", addLineMast};
  case SceneryCategory::Tree:
    return {"", addBroadleaf};
  case SceneryCategory::Terrain:
    return {"", addField};
  case SceneryCategory::Turntable:
    return {"", addTurntableItem};
  case SceneryCategory::Roundhouse:
    return {"", addRoundhouse, {kBrick, kSlate, 1}};
  }
  return {"", addHouse};
}

void addUnknown(MeshBuilder& builder, const Footprint& size) {
  constexpr Color kUnknown{232, 96, 40};
  constexpr double kHeight = 40;
  builder.box({-size.width / 2, -size.depth / 2, 0}, {size.width / 2, size.depth / 2, kHeight},
              kUnknown, shaded(kUnknown, 1.1));
  for (const double turn : {-1.0, 1.0})
    builder.bar({-size.width / 2, -turn * size.depth / 2, kHeight},
                {size.width / 2, turn * size.depth / 2, kHeight}, 5, {250, 240, 225});
}

/// An article of one gauge stays what it is beside track of another.
TrackSystem systemOf(const SceneryDef& definition, TrackSystem beside) {
  if (definition.madeFor(gaugeOf(beside)))
    return beside;
  return definition.madeFor(Gauge::H0) ? TrackSystem::CTrack : TrackSystem::ZTrack;
}

} // namespace

void addScenery(Mesh& mesh, const MeshFrame& frame, const SceneryModel& model, Detail detail) {
  MeshBuilder builder(mesh, frame);
  const SceneryDef* definition = findScenery(model.key);
  if (definition == nullptr)
    return addUnknown(builder, model.size);
  const auto known = std::ranges::find(kRecipes, model.key, &Recipe::key);
  const Recipe recipe = known != kRecipes.end() ? *known : usualFor(definition->category);
  const TrackSystem system = systemOf(*definition, model.system);
  recipe.build({builder, model.size.width, model.size.depth, model.size.height,
                trackGauge(system) / trackGauge(TrackSystem::CTrack), detail == Detail::Near,
                model.variant, recipe.look, system, model.leadsOn});
}

} // namespace trassix
