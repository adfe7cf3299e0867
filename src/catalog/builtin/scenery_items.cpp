#include "catalog/scenery_catalog.h"

namespace trassix {

namespace {

using enum SceneryCategory;
using enum SceneryForm;

/// An item drawn to scale for each gauge.
constexpr SceneryDef item(std::string_view key, std::string_view name, SceneryCategory category, Footprint h0, Footprint z, Footprint gauge1, SceneryForm form = Rectangle) {
  return {key, name, category, {h0, z, gauge1}, form};
}

/// One that keeps to the lengths of straight track: bridges, level crossings, platforms.
constexpr SceneryDef gridItem(std::string_view key, std::string_view name, SceneryCategory category, Footprint h0, Footprint z, Footprint gauge1) {
  return {key, name, category, {h0, z, gauge1}, Rectangle, true};
}

constexpr SceneryDef h0Article(std::string_view key, std::string_view name, SceneryCategory category, Footprint size, SceneryForm form = Rectangle) {
  return {key, name, category, {size, std::nullopt, std::nullopt}, form};
}

constexpr SceneryDef zArticle(std::string_view key, std::string_view name, SceneryCategory category, Footprint size) {
  return {key, name, category, {std::nullopt, size, std::nullopt}, Rectangle};
}

constexpr std::array kItems{
    item("stn.shelter", "halt shelter", Building, {60, 35, 40}, {24, 14, 16}, {165, 95, 110}),
    item("stn.small", "branch station", Building, {180, 110, 130}, {70, 45, 50}, {490, 300, 355}),
    item("stn.medium", "country-town station", Building, {330, 140, 160}, {130, 55, 65}, {895, 380, 435}),
    item("stn.large", "city station", Building, {600, 190, 210}, {235, 75, 85}, {1630, 515, 570}),
    item("stn.terminus_hall", "train-shed bay (4 tracks)", Building, {450, 330, 170}, {180, 130, 65}, {1225, 895, 460}),
    item("goods.shed", "goods shed with ramp", Building, {180, 110, 85}, {70, 45, 34}, {490, 300, 230}),
    item("goods.ramp", "loading ramp (side)", Building, {150, 60, 14}, {60, 24, 6}, {410, 165, 38}),
    item("goods.gantry", "gantry crane over 1 track", Building, {150, 95, 110}, {60, 38, 45}, {410, 260, 300}),
    item("box.ground", "signal box, ground", Building, {90, 60, 95}, {36, 24, 38}, {245, 165, 260}),
    item("box.tall", "signal box, tall", Building, {120, 70, 130}, {45, 28, 50}, {325, 190, 355}),
    item("box.bridge", "signal box over 2 tracks", Building, {170, 90, 150}, {65, 36, 60}, {460, 245, 410}),
    item("keeper.house", "crossing keeper house", Building, {93, 77, 64}, {37, 30, 25}, {255, 210, 175}),
    item("shed.loco1", "loco shed 1 road", Building, {220, 80, 105}, {85, 32, 40}, {600, 220, 285}),
    item("shed.loco2", "loco shed 2 road", Building, {250, 145, 110}, {100, 55, 45}, {680, 395, 300}),
    item("shed.loco3", "loco shed 3 road, rectangular", Building, {290, 240, 110}, {115, 95, 45}, {790, 650, 300}),
    item("works.hall", "loco works hall 2 road", Building, {620, 190, 150}, {245, 75, 60}, {1685, 515, 410}),
    item("water.tower", "water tower", Building, {75, 75, 170}, {30, 30, 65}, {205, 205, 460}, Ellipse),
    item("water.crane", "water crane", Building, {15, 45, 55}, {6, 18, 22}, {40, 120, 150}),
    item("coal.stage", "coaling stage with crane", Building, {200, 90, 110}, {80, 36, 45}, {545, 245, 300}),
    item("coal.bunker", "high coaling bunker", Building, {160, 120, 190}, {65, 45, 75}, {435, 325, 515}),
    item("sand.tower", "sanding tower", Building, {40, 40, 130}, {16, 16, 50}, {110, 110, 355}),
    item("ash.pit", "ash pit", Building, {180, 35, 2}, {70, 14, 1}, {490, 95, 5}),
    item("diesel.pump", "diesel fuelling point", Building, {90, 60, 60}, {36, 24, 24}, {245, 165, 165}),
    item("house.detached", "detached house", Building, {110, 95, 105}, {45, 38, 40}, {300, 260, 285}),
    item("house.two", "two-family house", Building, {130, 100, 120}, {50, 40, 45}, {355, 270, 325}),
    item("house.shell", "house under construction", Building, {148, 100, 100}, {60, 40, 40}, {400, 270, 270}),
    item("house.timber", "half-timbered town house", Building, {90, 85, 140}, {36, 34, 55}, {245, 230, 380}),
    item("house.row", "town house 4 storeys", Building, {85, 110, 200}, {34, 45, 80}, {230, 300, 545}),
    item("house.corner", "corner town house", Building, {130, 130, 210}, {50, 50, 85}, {355, 355, 570}),
    item("house.block", "block of flats", Building, {240, 120, 240}, {95, 45, 95}, {650, 325, 650}),
    item("inn", "inn", Building, {140, 110, 130}, {55, 45, 50}, {380, 300, 355}),
    item("shop", "shop with flat", Building, {100, 90, 120}, {40, 36, 45}, {270, 245, 325}),
    item("kiosk", "kiosk", Building, {35, 30, 35}, {14, 12, 14}, {95, 80, 95}),
    item("bus.shelter", "bus shelter", Building, {45, 20, 32}, {18, 8, 13}, {120, 55, 85}),
    item("filling.old", "filling station (1950s size)", Building, {100, 50, 45}, {40, 20, 18}, {270, 135, 120}),
    item("church.chapel", "chapel", Building, {70, 50, 110}, {28, 20, 45}, {190, 135, 300}),
    item("church.village", "village church", Building, {190, 110, 270}, {75, 45, 105}, {515, 300, 735}),
    item("church.town", "town church", Building, {260, 140, 420}, {105, 55, 165}, {705, 380, 1140}),
    item("school", "school", Building, {200, 120, 140}, {80, 45, 55}, {545, 325, 380}),
    item("townhall", "town hall", Building, {180, 140, 230}, {70, 55, 90}, {490, 380, 625}),
    item("fire.station", "fire station with tower", Building, {160, 120, 190}, {65, 45, 75}, {435, 325, 515}),
    item("farm.house", "farmhouse", Building, {170, 120, 120}, {65, 45, 45}, {460, 325, 325}),
    item("farm.barn", "barn", Building, {160, 110, 110}, {65, 45, 45}, {435, 300, 300}),
    item("mill", "water mill", Building, {150, 110, 140}, {60, 45, 55}, {410, 300, 380}),
    item("sawmill", "sawmill", Building, {210, 130, 100}, {85, 50, 40}, {570, 355, 270}),
    item("factory.small", "small factory", Building, {230, 130, 130}, {90, 50, 50}, {625, 355, 355}),
    item("factory.large", "factory with saw-tooth roof", Building, {320, 200, 150}, {125, 80, 60}, {870, 545, 410}),
    item("chimney", "factory chimney", Building, {35, 35, 320}, {14, 14, 125}, {95, 95, 870}, Ellipse),
    item("brewery", "brewery", Building, {320, 200, 220}, {125, 80, 85}, {870, 545, 600}),
    item("warehouse", "warehouse", Building, {250, 120, 150}, {100, 45, 60}, {680, 325, 410}),
    item("tank", "storage tank", Building, {80, 80, 90}, {32, 32, 36}, {220, 220, 245}, Ellipse),
    item("gasholder", "gasholder", Building, {140, 140, 160}, {55, 55, 65}, {380, 380, 435}, Ellipse),
    item("silo", "grain silo", Building, {90, 70, 200}, {36, 28, 80}, {245, 190, 545}),
    item("castle.ruin", "castle ruin", Building, {250, 200, 200}, {100, 80, 80}, {680, 545, 545}),
    item("sig.light.home", "colour-light home signal", Signal, {12, 12, 75}, {5, 5, 30}, {33, 33, 205}),
    item("sig.light.distant", "colour-light distant signal", Signal, {12, 12, 58}, {5, 5, 23}, {33, 33, 160}),
    item("sig.light.shunt", "colour-light shunt signal, low", Signal, {12, 10, 16}, {5, 4, 6}, {33, 27, 45}),
    item("sig.light.shunthi", "colour-light shunt signal, mast", Signal, {12, 12, 50}, {5, 5, 20}, {33, 33, 135}),
    item("sig.sem.home", "semaphore home signal", Signal, {15, 20, 110}, {6, 8, 45}, {40, 55, 300}),
    item("sig.sem.distant", "semaphore distant signal", Signal, {15, 20, 75}, {6, 8, 30}, {40, 55, 205}),
    item("sig.sem.shunt", "semaphore shunt signal", Signal, {12, 15, 45}, {5, 6, 18}, {33, 40, 120}),
    item("sig.gantry2", "signal gantry over 2 tracks", Signal, {140, 20, 105}, {55, 8, 40}, {380, 55, 285}),
    item("board.limit", "trackside board / km stone", Signal, {6, 3, 20}, {2, 1, 8}, {16, 8, 55}),
    item("bufferstop", "buffer stop", Signal, {30, 30, 22}, {12, 12, 9}, {80, 80, 60}),
    gridItem("xing.single", "level crossing, 1 track", Road, {180, 130, 20}, {70, 50, 8}, {490, 355, 55}),
    gridItem("xing.double", "level crossing, 2 tracks 77.5", Road, {180, 210, 20}, {70, 85, 8}, {490, 570, 55}),
    item("barrier.half", "half barrier", Road, {70, 10, 90}, {28, 4, 36}, {190, 27, 245}),
    item("mast.line", "catenary mast", Catenary, {10, 12, 88}, {4, 5, 35}, {27, 33, 240}),
    item("mast.tower", "catenary tower mast", Catenary, {16, 16, 130}, {6, 6, 50}, {45, 45, 355}),
    item("mast.portal4", "portal / cross span, 4 tracks", Catenary, {280, 16, 130}, {110, 6, 50}, {760, 45, 355}),
    item("lamp.street", "street lamp", Road, {8, 8, 60}, {3, 3, 24}, {22, 22, 165}),
    item("lamp.yard", "yard light mast", Road, {15, 15, 140}, {6, 6, 55}, {40, 40, 380}),
    item("pole.telegraph", "telegraph pole", Road, {6, 20, 80}, {2, 8, 32}, {16, 55, 220}),
    item("road.minor", "country road, per 250 mm", Road, {250, 63, 0}, {100, 25, 0}, {680, 170, 0}),
    item("road.main", "main road, per 250 mm", Road, {250, 75, 0}, {100, 30, 0}, {680, 205, 0}),
    item("road.track", "farm track, per 250 mm", Road, {250, 23, 0}, {100, 9, 0}, {680, 65, 0}),
    item("road.path", "pavement, per 250 mm", Road, {250, 18, 1}, {100, 7, 0}, {680, 50, 3}),
    item("road.square", "cobbled square", Road, {250, 250, 0}, {100, 100, 0}, {680, 680, 0}),
    item("road.carpark", "car park", Road, {300, 200, 0}, {120, 80, 0}, {815, 545, 0}),
    gridItem("plat.side", "side platform, per 180 mm", Platform, {180, 40, 9}, {70, 16, 4}, {490, 110, 24}),
    gridItem("plat.island77", "island between tracks 77.5", Platform, {180, 35, 9}, {70, 14, 4}, {490, 95, 24}),
    gridItem("plat.island155", "island between tracks 155", Platform, {180, 112, 9}, {70, 45, 4}, {490, 305, 24}),
    gridItem("plat.roof", "platform roof", Platform, {180, 50, 55}, {70, 20, 22}, {490, 135, 150}),
    item("underpass", "platform stairs", Platform, {60, 25, 10}, {24, 10, 4}, {165, 70, 27}),
    item("footbridge", "footbridge over 2 tracks", Bridge, {190, 40, 110}, {75, 16, 45}, {515, 110, 300}),
    item("br.road", "road bridge over 2 tracks", Bridge, {200, 90, 95}, {80, 36, 38}, {545, 245, 260}),
    gridItem("br.girder", "plate girder bridge 180", Bridge, {180, 60, 12}, {70, 24, 5}, {490, 165, 33}),
    gridItem("br.truss", "truss bridge 180", Bridge, {180, 65, 65}, {70, 26, 26}, {490, 175, 175}),
    gridItem("br.arch", "arch (bow) bridge 360", Bridge, {360, 70, 95}, {140, 28, 38}, {980, 190, 260}),
    gridItem("br.viaduct", "stone viaduct section", Bridge, {360, 70, 130}, {140, 28, 50}, {980, 190, 355}),
    item("br.pier", "bridge pier, stone", Bridge, {75, 35, 100}, {30, 14, 40}, {205, 95, 270}),
    item("br.deck", "deck truss (Kuebelbach kit)", Bridge, {400, 73, 57}, {160, 29, 23}, {1090, 200, 155}),
    item("tun.single", "tunnel portal 1 track", Tunnel, {130, 25, 120}, {50, 10, 45}, {355, 70, 325}),
    item("tun.double", "tunnel portal 2 tracks", Tunnel, {230, 25, 140}, {90, 10, 55}, {625, 70, 380}),
    item("tun.oldstone", "tunnel portal 1 track, no catenary", Tunnel, {120, 25, 100}, {45, 10, 40}, {325, 70, 270}),
    item("wall.retain", "retaining wall, per 250 mm", Tunnel, {250, 10, 120}, {100, 4, 45}, {680, 27, 325}),
    item("tree.bush", "bush", Tree, {20, 20, 20}, {8, 8, 8}, {55, 55, 55}, Ellipse),
    item("tree.hedge", "hedge strip", Tree, {500, 6, 10}, {200, 2, 4}, {1360, 16, 27}),
    item("tree.broad.s", "broadleaf, small", Tree, {45, 45, 60}, {18, 18, 24}, {120, 120, 165}, Ellipse),
    item("tree.broad.m", "broadleaf, medium", Tree, {70, 70, 100}, {28, 28, 40}, {190, 190, 270}, Ellipse),
    item("tree.broad.l", "broadleaf, large (12 m)", Tree, {95, 95, 138}, {38, 38, 55}, {260, 260, 375}, Ellipse),
    item("tree.broad.xl", "broadleaf, very large", Tree, {130, 130, 190}, {50, 50, 75}, {355, 355, 515}, Ellipse),
    item("tree.fir.s", "conifer, small", Tree, {30, 30, 89}, {12, 12, 35}, {80, 80, 240}, Ellipse),
    item("tree.fir.m", "conifer, medium", Tree, {45, 45, 140}, {18, 18, 55}, {120, 120, 380}, Ellipse),
    item("tree.fir.l", "conifer, large", Tree, {60, 60, 190}, {24, 24, 75}, {165, 165, 515}, Ellipse),
    item("tree.fir.xl", "conifer, extra large", Tree, {75, 75, 241}, {30, 30, 95}, {205, 205, 655}, Ellipse),
    item("tree.fir.max", "conifer, scale 30-35 m", Tree, {95, 95, 375}, {38, 38, 150}, {260, 260, 1020}, Ellipse),
    item("tree.poplar", "poplar", Tree, {25, 25, 150}, {10, 10, 60}, {70, 70, 410}, Ellipse),
    item("tree.fruit", "fruit tree", Tree, {45, 45, 55}, {18, 18, 22}, {120, 120, 150}, Ellipse),
    item("tree.palmstump", "tree stump / log pile", Tree, {40, 20, 15}, {16, 8, 6}, {110, 55, 40}),
    item("forest", "forest block", Tree, {200, 200, 120}, {80, 80, 45}, {545, 545, 325}),
    item("pond", "pond", Terrain, {200, 130, 0}, {80, 50, 0}, {545, 355, 0}, Ellipse),
    item("field", "field / meadow", Terrain, {300, 200, 0}, {120, 80, 0}, {815, 545, 0}),

    // Articles.
    h0Article("74861", "turntable, C-Track", Turntable, {378, 378, 10}, Ellipse),
    h0Article("7286", "turntable, K-Track", Turntable, {386, 386, 10}, Ellipse),
    h0Article("72886", "roundhouse, 3 stalls at 12 degrees", Roundhouse, {368, 346, 120}),
    h0Article("7161", "plate-girder bridge, M", Bridge, {180, 60, 12}),
    h0Article("7162", "lattice bridge, M", Bridge, {180, 65, 65}),
    h0Article("7163", "arch bridge, M", Bridge, {360, 70, 95}),
    h0Article("7192", "level crossing, M", Road, {180, 130, 20}),
    h0Article("7190", "buffer stop, M", Signal, {30, 30, 22}),
    h0Article("7039", "semaphore home signal", Signal, {30, 45, 110}),
    h0Article("7036", "semaphore distant signal", Signal, {30, 45, 75}),
    h0Article("7040", "semaphore home signal, two arms", Signal, {30, 45, 110}),
    h0Article("7042", "semaphore shunting signal", Signal, {25, 35, 45}),
    h0Article("7187", "colour-light distant signal", Signal, {25, 40, 60}),
    h0Article("7188", "colour-light home signal", Signal, {25, 40, 75}),
    h0Article("76371", "colour-light shunting signal, mast", Signal, {12, 12, 50}),
    h0Article("76372", "colour-light shunting signal, low", Signal, {12, 12, 16}),
    h0Article("76391", "colour-light block signal", Signal, {12, 12, 75}),
    h0Article("76393", "colour-light home signal", Signal, {12, 12, 75}),
    h0Article("76395", "colour-light home with distant signal", Signal, {14, 14, 80}),
    h0Article("74101", "catenary mast, C-Track", Catenary, {10, 12, 88}),
    h0Article("7009", "catenary mast, M-Track", Catenary, {12, 20, 88}),
    zArticle("8970", "station, Z", Building, {110, 45, 50}),
    zArticle("8960", "large station, Z", Building, {300, 90, 95}),
    zArticle("8971", "freight shed, Z", Building, {70, 45, 30}),
    zArticle("8972", "container crane, Z", Building, {120, 110, 70}),
    zArticle("8983", "roundhouse, Z", Roundhouse, {145, 137, 47}),
};

} // namespace

std::span<const SceneryDef> sceneryItems() {
  return kItems;
}

} // namespace trassix
