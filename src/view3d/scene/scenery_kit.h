// What the models of scenery are made of. Each builder fills a footprint about the origin.
#pragma once

#include "view3d/scene/scenery_mesh.h"

namespace trassix {

struct SceneryLook {
  Color wall{206, 190, 160};
  Color roof{142, 74, 58};
  int storeys = 2;
};

struct SceneryKit {
  MeshBuilder& b;
  double w = 0; ///< size
  double d = 0;
  double h = 0;
  double u = 1; ///< size of the gauge, 1 in H0
  bool fine = true;
  std::uint32_t variant = 0;
  SceneryLook look;
  TrackSystem system = TrackSystem::CTrack;
  bool leadsOn = false; ///< a portal that one looks through
};

using SceneryBuilder = void (*)(const SceneryKit&);

// Houses and halls.
void addHouse(const SceneryKit& kit);
void addTimberHouse(const SceneryKit& kit);
void addShell(const SceneryKit& kit);
void addFlats(const SceneryKit& kit);
void addStation(const SceneryKit& kit);
void addShelter(const SceneryKit& kit);
void addHall(const SceneryKit& kit);
void addLocoShed(const SceneryKit& kit);
void addTrainShed(const SceneryKit& kit);
void addSawTooth(const SceneryKit& kit);
void addRoundhouse(const SceneryKit& kit);
void addSignalBox(const SceneryKit& kit);
void addBridgeBox(const SceneryKit& kit);
void addChurch(const SceneryKit& kit);
void addTownHall(const SceneryKit& kit);
void addCastle(const SceneryKit& kit);
void addMill(const SceneryKit& kit);
// Works.
void addGantryCrane(const SceneryKit& kit);
void addWaterTower(const SceneryKit& kit);
void addWaterCrane(const SceneryKit& kit);
void addCoalStage(const SceneryKit& kit);
void addBunker(const SceneryKit& kit);
void addSandTower(const SceneryKit& kit);
void addAshPit(const SceneryKit& kit);
void addPump(const SceneryKit& kit);
void addFactoryChimney(const SceneryKit& kit);
void addTank(const SceneryKit& kit);
void addGasholder(const SceneryKit& kit);
void addSilo(const SceneryKit& kit);
void addLoadingRamp(const SceneryKit& kit);
// Beside the track and the road.
void addPlatform(const SceneryKit& kit);
void addPlatformRoof(const SceneryKit& kit);
void addStairs(const SceneryKit& kit);
void addLightSignal(const SceneryKit& kit);
void addSemaphore(const SceneryKit& kit);
void addSignalGantry(const SceneryKit& kit);
void addBoardSign(const SceneryKit& kit);
void addBuffer(const SceneryKit& kit);
void addLineMast(const SceneryKit& kit);
void addTowerMast(const SceneryKit& kit);
void addPortalMast(const SceneryKit& kit);
void addLamp(const SceneryKit& kit);
void addYardLight(const SceneryKit& kit);
void addTelegraphPole(const SceneryKit& kit);
void addLevelCrossing(const SceneryKit& kit);
void addBarrier(const SceneryKit& kit);
void addRoad(const SceneryKit& kit);
void addFarmTrack(const SceneryKit& kit);
void addPavement(const SceneryKit& kit);
void addSquare(const SceneryKit& kit);
void addCarPark(const SceneryKit& kit);
// Bridges, tunnels and walls.
void addFootbridge(const SceneryKit& kit);
void addRoadBridge(const SceneryKit& kit);
void addGirderBridge(const SceneryKit& kit);
void addTrussBridge(const SceneryKit& kit);
void addArchBridge(const SceneryKit& kit);
void addDeckTruss(const SceneryKit& kit);
void addViaduct(const SceneryKit& kit);
void addStonePier(const SceneryKit& kit);
void addPortal(const SceneryKit& kit);
void addRetainingWall(const SceneryKit& kit);
void addTurntableItem(const SceneryKit& kit);
// What grows, and water.
void addBush(const SceneryKit& kit);
void addHedge(const SceneryKit& kit);
void addBroadleaf(const SceneryKit& kit);
void addConifer(const SceneryKit& kit);
void addPoplar(const SceneryKit& kit);
void addFruitTree(const SceneryKit& kit);
void addLogs(const SceneryKit& kit);
void addForest(const SceneryKit& kit);
void addPond(const SceneryKit& kit);
void addField(const SceneryKit& kit);

// Parts that several models share.

/// Rows of windows on an upright wall from `corner` to the right as seen from outside.
struct Facade {
  Vec3 corner;
  Vec3 right; ///< of length 1
  double width = 0;
  double height = 0;
  int rows = 1;
};
void addWindows(const SceneryKit& kit, const Facade& wall);

/// Upright walls about the origin with windows on all sides.
void addWalls(const SceneryKit& kit, double w, double d, double bottom, double top, int rows);

/// A pitched roof over walls of this size, its ridge along x; `hip` slopes the ends as well.
struct PitchedRoof {
  double w = 0;
  double d = 0;
  double eaves = 0;
  double ridge = 0;
  double overhang = 0;
  bool hip = false;
};
void addRoof(const SceneryKit& kit, const PitchedRoof& roof);

/// A number in [0, 1) that depends on the item's variant and `salt` only.
double chance(const SceneryKit& kit, std::uint32_t salt);

} // namespace trassix
