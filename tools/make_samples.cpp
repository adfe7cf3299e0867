// Writes the sample plans: make_samples FOLDER. Each is built piece by piece with the functions
// that also serve the mouse, so that every joint is what the program itself would have made.
#include "document/layout_writer.h"
#include "editing/elevation/grade_edits.h"
#include "editing/helix/helix_edits.h"
#include "editing/placing/placing.h"
#include "editing/scenery/annotations.h"
#include "editing/tunnels/tunnel_edits.h"
#include "support/plan.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <numeric>
#include <vector>

namespace trassix {

namespace {

/// A plan with what stands around its track.
class Sample : public Plan {
 public:
  void table(double left, double top, double width, double height) {
    PlanSettings& settings = layout.editSettings();
    settings.baseboard = {
        {left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}};
    settings.lastShape = {0, width, height, 0, 0};
  }

  void scenery(std::string_view key, double x, double y, double heading = 0) {
    dropScenery(layout, key, {x, y, heading});
  }

  void row(std::string_view key, double x, double y, double stepX, double stepY, int count) {
    for (int i = 0; i < count; ++i)
      scenery(key, x + i * stepX, y + i * stepY);
  }

  void trees(std::initializer_list<Point> places) {
    static constexpr std::string_view kKinds[] = {"tree.broad.m", "tree.fir.l", "tree.broad.s",
                                                  "tree.broad.l", "tree.fir.m"};
    std::size_t kind = 0;
    for (const Point& place : places)
      scenery(kKinds[kind++ % std::size(kKinds)], place.x, place.y);
  }

  void area(const std::vector<Point>& outline, Color color, std::string_view label = {}) {
    const std::int32_t id = addShape(layout, outline);
    for (Shape& shape : layout.edit().shapes) {
      if (shape.id != id)
        continue;
      shape.color = color;
      shape.label = label;
    }
  }

  void label(double x, double y, std::string_view text) { addLabel(layout, {x, y}, text); }
};

constexpr Color kMeadow{168, 200, 132};
constexpr Color kWater{132, 182, 214};
constexpr Color kHill{186, 176, 138};
constexpr Color kGround{206, 196, 178};

/// Main line on R2 with a passing siding in the station and a goods siding off it.
Sample cTrackOval() {
  Sample s;
  s.table(-560, -300, 2410, 1400);
  s.area({{120, 360}, {1150, 330}, {1230, 620}, {1010, 760}, {170, 740}, {60, 540}}, kMeadow);
  s.area({{1010, 520}, {1110, 500}, {1180, 560}, {1150, 640}, {1050, 660}, {980, 600}}, kWater,
         "Mill pond");
  s.place("24612");
  const std::int32_t west = s.last();
  s.extend("24172").extend("24188", 3).extend("24172").extendBy("24611", 1, 0);
  const std::int32_t east = s.last();
  s.extend("24230", 6).extend("24172").extend("24188", 5).extend("24172").extend("24230", 6);
  s.at(west, 2).extendLeft("24224").extend("24188").extend("24612");
  const std::int32_t goods = s.last();
  s.extend("24188").extendLeft("24224");
  s.at(goods, 2).extendLeft("24224").extend("24188").extendBy("24977", 0, 0);
  static_cast<void>(east);

  s.scenery("stn.medium", 640, -130);
  s.row("plat.side", 460, -42, 180, 0, 3);
  s.row("plat.island77", 460, 39, 180, 0, 3);
  s.scenery("goods.shed", 1060, 262);
  s.scenery("box.ground", 60, -95);
  s.scenery("sig.light.home", -150, -40);
  s.scenery("sig.light.home", 1430, 120);
  s.scenery("bus.shelter", 900, -120);
  s.row("road.minor", -380, -257, 250, 0, 9);
  s.scenery("church.village", 420, 560, 20);
  s.scenery("inn", 640, 480);
  s.scenery("house.detached", 250, 480, 10);
  s.scenery("house.timber", 800, 470, 350);
  s.scenery("house.two", 560, 660);
  s.scenery("farm.barn", 800, 640, 15);
  s.scenery("mill", 940, 470, 30);
  s.trees({{180, 600}, {290, 660}, {720, 600}, {900, 690}, {330, 400}, {1180, 450}, {1230, 700}});
  s.trees({{-480, -120},
           {-500, 160},
           {-490, 420},
           {-500, 700},
           {-460, 980},
           {1760, -120},
           {1790, 180},
           {1770, 470},
           {1780, 760},
           {1750, 1000},
           {300, 1040},
           {700, 1050},
           {1100, 1040}});
  s.label(560, -140, "Neustadt");
  s.label(900, 240, "Goods");
  return s;
}

/// Five tracks off one ladder, with a headshunt and the road to the engine shed.
Sample kTrackYard() {
  Sample s;
  s.table(-1020, -330, 3150, 900);
  s.area({{880, -60}, {1940, -60}, {1940, 320}, {880, 320}}, kGround);
  s.place("2263");
  const std::int32_t first = s.last();
  struct Road {
    std::int32_t turnout;
    std::int32_t end;
  };
  std::vector<Road> roads{{first, 1}};
  s.at(first, 2);
  for (int i = 0; i < 3; ++i) {
    s.extend("2262");
    roads.push_back({s.last(), 2});
  }
  s.extendLeft("2232");
  roads.push_back({s.last(), 0});
  // Each turnout further up the ladder begins its track one 156 mm straight further on.
  for (std::size_t i = 0; i < roads.size(); ++i) {
    s.at(roads[i].turnout, roads[i].end);
    s.extend("2207", static_cast<int>(roads.size() - 1 - i)).extend("2200", 2).extend("2297");
    s.extend("2200", 3).extendBy("7389", 0, 0);
  }
  s.at(first, 0).extend("2200", 2).extendBy("2263", 1, 0);
  const std::int32_t shed = s.last();
  s.extend("2200", 2).extendBy("7389", 0, 0);
  s.at(shed, 2).extend("2232").extend("2200", 1).extend("2201");
  const WorldConnector shedRoad = s.front();
  s.extendBy("7391", 0, 0);

  s.scenery("shed.loco1", shedRoad.x, shedRoad.y, shedRoad.heading);
  s.scenery("water.tower", -330, 60);
  s.scenery("coal.stage", -560, 120, 45);
  s.scenery("diesel.pump", -620, -110);
  s.scenery("house.two", -330, -160);
  s.scenery("box.tall", 40, -110);
  s.scenery("goods.shed", 1120, -130);
  s.scenery("warehouse", 1420, -140);
  s.scenery("goods.ramp", 1680, -100);
  s.scenery("goods.gantry", 1500, 259);
  s.scenery("lamp.yard", 800, -60);
  s.scenery("lamp.yard", 1500, 330);
  s.scenery("lamp.yard", 840, 330);
  s.row("road.main", -780, -270, 250, 0, 12);
  s.scenery("factory.small", 400, 440);
  s.scenery("tank", 640, 440);
  s.scenery("tank", 740, 440);
  s.scenery("silo", 860, 450);
  s.trees({{-880, 200},
           {-760, 350},
           {-620, 420},
           {-420, 430},
           {-20, 330},
           {120, 450},
           {1200, 460},
           {1420, 480},
           {1640, 450},
           {1880, 470}});
  s.label(-930, 90, "Headshunt");
  s.label(1000, 400, "Freight yard");
  return s;
}

/// Two loops on a table top, the inner one with a passing siding.
Sample zTrackTabletop() {
  Sample s;
  s.table(-270, -90, 1310, 570);
  s.area({{60, 130}, {640, 120}, {720, 250}, {600, 325}, {90, 320}}, kMeadow);
  s.area({{470, 190}, {560, 180}, {580, 250}, {500, 290}, {450, 250}}, kWater);
  s.place("8563", {0, 25, 0});
  const std::int32_t west = s.last();
  s.extend("8500").extend("8500", 3).extend("8500").extendBy("8562", 1, 0);
  s.extend("8520", 4).extend("8500", 7).extend("8520", 4);
  s.at(west, 2).extendLeft("8591").extend("8500", 3).extendLeft("8591");
  s.place("8500", {0, 0, 0}).extend("8500", 6).extend("8530", 4).extend("8500", 7);
  s.extend("8530", 4);

  s.scenery("8970", 385, -40);
  s.row("plat.side", 275, 75, 110, 0, 3);
  s.scenery("goods.shed", 640, 90);
  s.scenery("church.village", 150, 200, 15);
  s.scenery("house.detached", 240, 180);
  s.scenery("house.timber", 300, 230, 340);
  s.scenery("inn", 370, 170);
  s.scenery("house.two", 220, 280);
  s.scenery("mill", 430, 200, 30);
  s.row("road.minor", 110, 345, 100, 0, 6);
  s.trees({{100, 160},
           {330, 290},
           {420, 300},
           {620, 290},
           {-60, 180},
           {-90, 260},
           {740, 200},
           {780, 300},
           {850, 160},
           {880, 250},
           {-235, -55},
           {-230, 450},
           {1000, -50},
           {1005, 445},
           {30, 380},
           {760, 370}});
  s.label(470, -50, "Seebach");
  return s;
}

/// Two ovals; a line branches off the inner one and crosses the outer one on the level.
Sample mTrackCrossing() {
  Sample s;
  s.table(-600, -460, 2100, 1430);
  s.area({{60, 150}, {820, 140}, {900, 360}, {760, 560}, {120, 570}, {0, 360}}, kMeadow);
  s.place("5117");
  const std::int32_t branch = s.last();
  s.extend("5106", 4).extend("5100", 6).extend("5106", 5).extend("5100", 6);
  s.at(branch, 2).extendBy("5114", 0, 1);
  const std::int32_t crossing = s.last();
  s.extend("5100").extend("5106", 2).extend("5112").extendBy("5190", 0, 0);
  s.at(crossing, 3).extend("5106", 3).extend("5200", 3).extend("5110").extend("5200", 3);
  s.extend("5106", 5).extend("5200", 3).extend("5110").extend("5200", 3);
  s.extend("5107").extend("5108").extend("5210", 2);

  s.scenery("stn.small", 450, 118);
  s.row("plat.side", 270, 41, 180, 0, 3);
  s.scenery("goods.shed", 760, -280);
  s.scenery("goods.ramp", 560, -265);
  s.scenery("7039", -150, -150);
  s.scenery("box.ground", 130, -190);
  s.row("road.minor", -400, -400, 250, 0, 7);
  s.scenery("house.detached", 180, 300, 12);
  s.scenery("house.timber", 330, 280);
  s.scenery("church.chapel", 470, 330, 20);
  s.scenery("inn", 640, 290);
  s.scenery("house.two", 300, 450, 350);
  s.scenery("farm.house", 620, 470);
  s.trees({{100, 420},
           {200, 520},
           {450, 480},
           {780, 400},
           {760, 220},
           {100, 200},
           {-520, -260},
           {-530, 0},
           {-535, 330},
           {-520, 700},
           {1400, -280},
           {1420, 100},
           {1430, 420},
           {1400, 760},
           {200, 890},
           {560, 900},
           {900, 890}});
  s.label(390, 205, "Birkenau");
  s.label(700, -350, "Sawmill siding");
  return s;
}

/// A loop for the garden with a long passing siding.
Sample gauge1Loop() {
  Sample s;
  s.table(-1350, -500, 5620, 3050);
  s.area({{300, 700}, {2500, 650}, {2800, 1200}, {2300, 1700}, {500, 1650}, {150, 1200}}, kMeadow);
  s.area({{1700, 1050}, {2050, 980}, {2350, 1150}, {2250, 1420}, {1850, 1450}, {1600, 1260}},
         kWater, "Garden pond");
  s.place("59083");
  const std::int32_t west = s.last();
  s.extend("59061").extend("59053").extend("59051", 2).extend("59059").extendBy("59084", 1, 0);
  s.extend("59035", 8).extend("59061", 3).extend("59053").extend("59051", 2).extend("59035", 8);
  s.at(west, 2).extend("59058").extendLeft("59078").extend("59059").extend("59054");
  s.extendLeft("59078").extend("59058");

  s.scenery("stn.small", 1450, -330);
  s.row("plat.side", 970, -100, 490, 0, 3);
  s.scenery("goods.shed", 1460, 420);
  s.scenery("water.crane", 500, 240);
  s.scenery("house.detached", 700, 950, 10);
  s.scenery("kiosk", 1200, 850);
  s.trees({{500, 1250},
           {900, 1450},
           {1250, 1250},
           {1400, 1500},
           {2450, 900},
           {2600, 1500},
           {-1100, -250},
           {-1150, 600},
           {-1150, 1500},
           {-1050, 2300},
           {4000, -250},
           {4070, 700},
           {4060, 1500},
           {3950, 2300},
           {600, 2350},
           {1450, 2380},
           {2300, 2350}});
  s.label(1250, -340, "Garden Halt");
  return s;
}

/// A double-track main line below, a terminus on its own deck above.
Sample trixTwoLevels() {
  Sample s;
  s.table(-700, -160, 2520, 1360);
  s.layout.ensureLevel();
  s.layout.editSettings().levels.front().name = "Main line";
  s.place("62612");
  const std::int32_t outer = s.last();
  s.extend("62172").extend("62188", 4).extend("62330", 6).extend("62172").extend("62188", 5);
  s.extend("62330", 6);
  s.at(outer, 2).extendBy("62612", 2, 1).extend("62172").extendLeft("62230", 6);
  s.extend("62188", 5).extend("62172").extendLeft("62230", 6).extend("62188", 4);
  s.row("plat.island77", 560, 39, 180, 0, 3);
  s.scenery("box.ground", 190, -90);
  s.trees({{-620, 20},
           {-630, 300},
           {-620, 640},
           {-600, 1000},
           {1740, 20},
           {1750, 320},
           {1740, 660},
           {1720, 1000},
           {200, 1150},
           {700, 1150},
           {1100, 1150}});
  s.label(600, -110, "Main line, level 0");

  Level deck;
  deck.id = 2;
  deck.name = "Upper deck";
  deck.height = 120;
  deck.trackcolor = true;
  deck.color = {176, 132, 92};
  deck.outline = {{-60, 290}, {1240, 290}, {1240, 760}, {-60, 760}};
  s.layout.editSettings().levels.push_back(deck);
  s.layout.editSettings().activeLevel = 2;
  s.place("62188", {70, 530, 0});
  const std::int32_t start = s.last();
  s.extend("62188").extend("62630");
  const std::int32_t fan = s.last();
  s.at(fan, 1).extend("62172").extend("62188", 2).extendBy("62977", 0, 0);
  s.at(fan, 2).extendLeft("62224").extend("62188", 2).extendBy("62977", 0, 0);
  s.at(fan, 3).extend("62224").extend("62188", 2).extendBy("62977", 0, 0);
  s.at(start, 0).extendBy("62977", 0, 0);
  s.scenery("stn.small", 960, 370);
  s.row("plat.island77", 900, 491, 180, 0, 2);
  s.row("plat.island77", 900, 569, 180, 0, 2);
  s.scenery("shed.loco1", 140, 640);
  s.scenery("water.tower", 320, 640);
  s.scenery("house.timber", 160, 390, 10);
  s.scenery("church.chapel", 330, 390);
  s.scenery("house.two", 500, 390, 350);
  s.trees({{620, 360}, {20, 340}, {430, 690}, {560, 690}, {720, 700}});
  s.label(60, 265, "Terminus, level +120");
  s.layout.editSettings().activeLevel = 1;
  return s;
}

/// A double-track main line around an engine yard with its turntable; its western bend lies in a
/// tunnel under a hill, on which a branch line ends in the upper town.
Sample cTrackTwoTowns() {
  Sample s;
  s.table(-700, -720, 2620, 1800);
  s.layout.ensureLevel();
  s.layout.editSettings().levels.front().name = "Valley";
  s.area({{60, 190}, {480, 150}, {560, 230}, {500, 310}, {230, 330}, {60, 310}}, kMeadow);
  s.area({{1240, -390}, {1890, -420}, {1890, -180}, {1650, -150}, {1300, -180}}, kMeadow);
  s.area({{700, 560}, {1250, 380}, {1400, 470}, {1400, 690}, {1000, 790}, {250, 760}, {230, 470}},
         kGround);

  std::vector<std::int32_t> covered;
  const auto bend = [&](std::string_view curve) {
    for (int i = 0; i < 6; ++i)
      covered.push_back(s.extend(curve).last());
  };
  // Inner track with the passing loop and the way to the engine yard.
  s.place("24612");
  const std::int32_t west = s.last();
  s.extend("24172").extend("24188", 3).extend("24172").extendBy("24611", 1, 0);
  s.extend("24230", 6).extend("24172").extend("24188", 5).extend("24172");
  bend("24230");
  s.at(west, 2).extendLeft("24224").extend("24188").extend("24612");
  const std::int32_t yard = s.last();
  s.extend("24188").extendLeft("24224");
  s.at(yard, 2).extend("24206").extend("24130", 2);
  s.extendBy("74861", 22, 0);
  const std::int32_t turntable = s.last();
  for (const std::int32_t end : {29, 1})
    s.at(s.layout.findPiece(turntable)->joint(static_cast<std::size_t>(end)).target, 1)
        .extend("24188")
        .extendBy("24977", 0, 0);
  for (const std::int32_t end : {14, 15, 16})
    s.at(s.layout.findPiece(turntable)->joint(static_cast<std::size_t>(end)).target, 1)
        .extend("24188")
        .extend("24188")
        .extendBy("24977", 0, 0);
  // The engine shed looks at the turntable.
  const PlacedPiece& table = *s.layout.findPiece(turntable);
  const WorldConnector opposite = ConnectorToWorld(table, *definitionOf(table), 15);
  const Point shed = toWorld({table.x, table.y, opposite.heading}, {349.6 + 173, 0});
  s.scenery("72886", shed.x, shed.y, opposite.heading - 90);
  // Outer track.
  s.place("24188", {0, -77.5, 0});
  s.extend("24172").extend("24188", 3).extend("24172").extend("24188").extend("24330", 6);
  s.extend("24172").extend("24188", 5).extend("24172");
  bend("24330");

  s.scenery("stn.medium", 650, -215);
  s.row("plat.side", 470, -122, 180, 0, 3);
  s.scenery("goods.shed", 1010, 210);
  s.scenery("water.tower", 700, 330);
  s.scenery("coal.stage", 1180, 330);
  s.scenery("box.ground", 1180, -160);
  s.scenery("sig.light.home", 60, -120);
  s.scenery("sig.light.home", 1330, 40);
  s.row("road.minor", 130, -345, 250, 0, 5);
  s.scenery("house.detached", 140, 250, 10);
  s.scenery("church.village", 300, 240, 15);
  s.scenery("house.timber", 460, 225, 350);
  s.scenery("house.two", 1380, -260);
  s.scenery("farm.barn", 1560, -240, 15);
  s.scenery("farm.house", 1720, -270, 350);
  s.trees({{90, 390},    {120, 500},   {1320, -350}, {1480, -340}, {1650, -350}, {1800, -220},
           {1840, -350}, {1260, 760},  {1340, 740},  {1100, 770},  {1840, 60},   {1860, 420},
           {1850, 760},  {1820, 1000}, {1650, 1030}, {300, 1030},  {620, 1030},  {940, 1035},
           {1240, 1030}, {1840, -560}, {1700, -620}, {1590, -540}});
  s.label(650, -290, "Lindenau");
  s.label(1010, 745, "Engine yard");

  Level hill;
  hill.id = 2;
  hill.name = "Hochfels";
  hill.height = 150;
  hill.trackcolor = true;
  hill.color = {186, 142, 96};
  hill.outline = {{-680, -700}, {1500, -700}, {1500, -440}, {260, -420},
                  {20, -250},   {-20, 200},   {-20, 1060},  {-680, 1060}};
  s.layout.editSettings().levels.push_back(hill);
  s.layout.editSettings().activeLevel = 2;
  s.place("24630", {-200, 250, 90});
  const std::int32_t fan = s.last();
  s.at(fan, 1).extend("24172").extend("24188", 2).extendBy("24977", 0, 0);
  s.at(fan, 2).extendLeft("24224").extend("24188", 2).extendBy("24977", 0, 0);
  s.at(fan, 3).extend("24224").extend("24188", 2).extendBy("24977", 0, 0);
  s.at(fan, 0).extend("24188").extend("24172").extend("24130", 3).extend("24188");
  s.extend("74620", 2).extend("24188", 3).extendBy("24977", 0, 0);
  s.scenery("stn.small", -340, 880, 90);
  s.scenery("shed.loco1", -420, 330, 90);
  s.scenery("church.chapel", -480, 560);
  s.scenery("house.timber", -570, 680, 10);
  s.scenery("house.two", -560, 420, 350);
  s.scenery("castle.ruin", 60, -590);
  s.scenery("inn", 1050, -640);
  s.trees({{-620, -600},
           {-540, -520},
           {-600, -420},
           {-500, -300},
           {-600, -160},
           {-420, -640},
           {-620, 60},
           {-560, 220},
           {-620, 860},
           {-540, 1000},
           {-440, 1010},
           {-80, 980},
           {420, -660},
           {800, -660},
           {1250, -650},
           {1420, -500},
           {1440, -640}});
  s.label(-200, 1010, "Hochfels");

  s.layout.editSettings().activeLevel = 1;
  Tunnel tunnel;
  s.scenery("tun.double", 10, -39, 90);
  tunnel.portalA = s.layout.content().scenery.back().id;
  s.scenery("tun.double", 10, 914, 90);
  tunnel.portalB = s.layout.content().scenery.back().id;
  tunnel.id = s.layout.takeId();
  tunnel.anchorA = covered.front();
  tunnel.anchorB = covered.back();
  tunnel.covers = covered;
  s.layout.edit().tunnels.push_back(tunnel);
  return s;
}

/// Lets the way between two ends of track climb by `rise` mm, and lifts what hangs on its end.
void climb(Layout& layout, TrackEnd from, TrackEnd to, double rise) {
  TargetTask task;
  task.way = trainWays(layout, from, to).at(0);
  task.height = endHeight(layout, from) + rise;
  applyHeights(layout, planTarget(layout, task).heights);
}

/// A loop that climbs over itself: from the station down and under the line, then round the hill.
Sample cMountainLine() {
  Sample s;
  constexpr double kDrop = 42; // half of what lies between the tracks at the crossing
  s.table(-520, -1860, 3740, 2440);
  s.area({{2200, -960},
          {2420, -1010},
          {2640, -940},
          {2770, -720},
          {2740, -480},
          {2560, -310},
          {2320, -290},
          {2120, -430},
          {2060, -690}},
         kHill, "Hohe Warte");
  s.area({{180, -1130}, {420, -1010}, {560, -760}, {520, -420}, {330, -220}, {180, -150}}, kMeadow);
  s.place("24612", {0, 0, 270});
  const std::int32_t west = s.last();
  s.extend("24172").extend("24188", 3).extend("24172").extendBy("24611", 1, 0);
  const std::int32_t east = s.last();
  s.at(west, 2).extendLeft("24224").extend("24188", 3).extendLeft("24224");
  s.at(east, 0).extend("24230", 4).extend("24215").extend("24188", 4).extend("24172", 3);
  const std::int32_t valley = s.last();
  s.extend("24172");
  const std::int32_t under = s.last();
  s.extend("24172", 2).extend("24077").extendLeft("24330", 9).extend("24077").extend("24172", 2);
  const std::int32_t summit = s.last();
  s.extend("24172");
  const std::int32_t over = s.last();
  s.extend("24172", 3).extend("24188", 4).extend("24215").extend("24230", 3);
  climb(s.layout, {east, 0}, {valley, 1}, -kDrop);
  climb(s.layout, {under, 1}, {summit, 1}, 2 * kDrop);
  climb(s.layout, {over, 1}, {s.last(), 1}, -kDrop);
  s.extend("24230");
  applyHeights(s.layout, planRaise(s.layout, west, kDrop));

  s.scenery("stn.medium", -150, -640, 270);
  for (const double y : {-460.0, -640.0, -820.0})
    s.scenery("plat.side", -42, y, 270);
  s.scenery("box.ground", -95, -60);
  s.scenery("church.village", 330, -620, 20);
  s.scenery("inn", 280, -880);
  s.scenery("house.timber", 430, -830, 350);
  s.scenery("house.two", 300, -400);
  s.scenery("farm.barn", 440, -480, 15);
  s.scenery("castle.ruin", 2420, -640, 20);
  s.trees({{2230, -860}, {2600, -830}, {2640, -480},  {2380, -380},  {2190, -520},  {240, -1040},
           {470, -700},  {230, -280},  {1200, -1700}, {1500, -1650}, {2450, -1600}, {2980, -1500},
           {3060, 100},  {2500, 300},  {1300, 380},   {1650, 330},   {-430, -1700}, {-440, -1300},
           {-450, 200},  {-420, 460},  {2100, 460},   {1250, -640},  {1100, -560}});
  s.label(-330, -640, "Talhausen");
  return s;
}

/// The pieces between two of them, both included, in the order in which they were placed.
std::vector<std::int32_t> from(std::int32_t first, std::int32_t last) {
  std::vector<std::int32_t> ids(static_cast<std::size_t>(last - first + 1));
  std::iota(ids.begin(), ids.end(), first);
  return ids;
}

void cover(Layout& layout, const std::vector<std::int32_t>& pieces) {
  layout.clearSelection();
  for (const std::int32_t id : pieces)
    layout.select(RecordKind::Piece, id, true);
  placeTunnel(layout);
}

/// A double-track line through a town that goes down in a helix to a station under it, and turns
/// back at both ends.
Sample cHiddenYard() {
  Sample s;
  constexpr double kTown = 220;
  s.table(-3460, -1060, 4080, 2140);
  s.area({{-560, -1030}, {380, -1000}, {590, -700}, {590, 820}, {330, 1040}, {-560, 1050}}, kHill);
  s.area({{-2950, 330}, {-2700, 270}, {-2500, 400}, {-2520, 610}, {-2760, 700}, {-2980, 560}},
         kWater, "Forest lake");
  s.area({{-2150, -950}, {-760, -960}, {-720, -100}, {-1100, 130}, {-2050, 60}, {-2200, -400}},
         kMeadow);
  s.layout.ensureLevel();
  s.layout.editSettings().levels.front().name = "Hidden yard";
  Level town;
  town.id = 2;
  town.name = "Hochwald";
  town.height = kTown;
  town.trackcolor = true;
  town.color = {196, 178, 142};
  town.outline = {{-3460, -1060}, {-575, -1060}, {-575, 1080}, {-3460, 1080}};
  s.layout.editSettings().levels.push_back(town);
  for (Shape& shape : s.layout.edit().shapes)
    if (shape.points.front().x < -600) // the ground by the helix lies below
      shape.level = town.id;

  const HelixPlan down{findHelixKit("helix_2_5_r2r3"), HelixHand::Right, kTown / 2.5, {}, 0};
  placeHelix(s.layout, down, 1);
  const Helix helix = s.layout.content().helices.front();

  // The station below: two tracks with a siding beside each.
  s.at(helix.bottomR1, 0).extend("24188", 2).extend("24611");
  const std::int32_t innerYard = s.last();
  s.extend("24172").extend("24188", 5).extend("24172").extendBy("24612", 1, 0);
  const std::int32_t innerEnd = s.last();
  s.at(innerYard, 2).extend("24224").extend("24188", 5).extend("24224");
  s.at(helix.bottomR2, 0).extend("24188", 2).extend("24612");
  const std::int32_t outerYard = s.last();
  s.extend("24172").extend("24188", 5).extend("24172").extendBy("24611", 1, 0);
  s.at(outerYard, 2).extendLeft("24224").extend("24188", 5).extendLeft("24224");
  s.at(innerEnd, 0);
  s.extendLeft("24230", 2).extend("24330", 10).extendLeft("24230", 2);

  // The line through the town.
  const std::int32_t above = s.layout.nextPieceId();
  s.at(helix.topR1, 1).extend("24188", 2);
  const std::int32_t mouth = s.last();
  s.extend("24612");
  const std::int32_t platform = s.last();
  s.extend("24172").extend("24188", 5).extend("24172").extendBy("24611", 1, 0);
  const std::int32_t west = s.last();
  s.at(platform, 2).extendLeft("24224").extend("24188", 5).extendLeft("24224");
  s.at(helix.topR2, 1).extend("24188", 2);
  const std::int32_t outerMouth = s.last();
  s.extend("24611");
  const std::int32_t goods = s.last();
  s.extend("24172").extend("24188", 5).extend("24172").extendBy("24612", 1, 0);
  s.at(goods, 2).extend("24224").extend("24188", 5).extend("24224");
  s.at(west, 0).extend("24230", 2);
  const std::int32_t loop = s.layout.nextPieceId();
  s.extendLeft("24330", 10).extend("24230", 2);
  for (PlacedPiece& piece : s.layout.edit().pieces)
    if (piece.id >= above)
      piece.level = town.id;
  s.layout.editSettings().activeLevel = town.id;
  std::vector<std::int32_t> mouths = from(mouth - 1, mouth);
  mouths.insert(mouths.end(), {outerMouth - 1, outerMouth});
  cover(s.layout, mouths);
  cover(s.layout, from(loop + 2, loop + 7));

  s.row("plat.island77", -840, 399, -180, 0, 5);
  s.row("plat.island77", -840, 554, -180, 0, 5);
  s.row("plat.side", -840, 637, -180, 0, 5);
  s.scenery("stn.medium", -1200, 725, 180);
  s.scenery("goods.shed", -1560, 715, 180);
  s.scenery("box.ground", -700, 300);
  s.scenery("sig.light.home", -620, 395);
  s.scenery("sig.light.home", -1960, 560);
  s.row("road.minor", -2070, 860, 250, 0, 6);
  s.row("road.minor", -2000, 200, 250, 0, 6);
  s.scenery("church.village", -1450, -330, 20);
  s.scenery("inn", -1150, -200);
  s.scenery("house.timber", -1750, -150, 350);
  s.scenery("house.two", -1700, -450, 8);
  s.scenery("house.detached", -1000, -480, 12);
  s.scenery("house.timber", -1250, -650);
  s.scenery("farm.house", -1900, -700, 10);
  s.scenery("farm.barn", -1650, -760, 15);
  s.scenery("house.detached", -900, 30, 350);
  s.scenery("kiosk", -1400, 60);
  s.scenery("castle.ruin", -2900, -330, 15);
  s.trees({{-3330, -900}, {-3150, -700}, {-3300, -520}, {-2900, -850}, {-2700, -620}, {-3350, -200},
           {-2620, -330}, {-2550, -800}, {-2450, -450}, {-2600, -150}, {-2350, -700}, {-3150, 100},
           {-2350, 60},   {-2250, 250},  {-2350, 800},  {-2500, 950},  {-3000, 250},  {-2550, 720},
           {-2850, 780},  {-1900, 960},  {-1500, 980},  {-1100, 970},  {-750, 950},   {-1000, -850},
           {-1350, -900}, {-800, -700},  {-1550, -550}, {-480, -900},  {-150, -850},  {200, -900},
           {480, -700},   {-450, 900},   {-100, 800},   {250, 900},    {500, 650},    {540, -420}});
  s.label(-1200, 800, "Hochwald");
  s.label(-2890, -590, "Hidden yard below");
  return s;
}

struct File {
  const char* name;
  Sample (*make)();
};

constexpr File kFiles[] = {
    {"C-Track Oval with Siding", cTrackOval},
    {"K-Track Freight Yard", kTrackYard},
    {"Z-Track Tabletop", zTrackTabletop},
    {"M-Track Oval with Crossing", mTrackCrossing},
    {"Gauge 1 Garden Loop", gauge1Loop},
    {"TRIX on Two Levels", trixTwoLevels},
    {"C-Track Two Towns", cTrackTwoTowns},
    {"Mountain Line", cMountainLine},
    {"Hidden Yard", cHiddenYard},
};

int writeAll(const std::filesystem::path& folder) {
  for (const File& file : kFiles) {
    Sample sample = file.make();
    sample.layout.ensureLevel();
    sample.layout.clearSelection();
    const std::string message =
        saveLayout(sample.layout, folder / (std::string(file.name) + ".txl"), file.name);
    const Play play = largestPlay(sample.layout);
    std::printf("%-28s %3zu pieces, %d open ends, largest play %.3f mm %.3f deg %s\n", file.name,
                sample.layout.pieces().size(), openEnds(sample.layout), play.distance, play.heading,
                message.c_str());
    if (!message.empty())
      return 1;
  }
  return 0;
}

} // namespace

} // namespace trassix

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("make_samples FOLDER\n", stderr);
    return 2;
  }
  try {
    return trassix::writeAll(argv[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
