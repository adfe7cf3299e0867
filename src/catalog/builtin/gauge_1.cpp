#include "catalog/builtin/ranges.h"
#include "catalog/range_list.h"

namespace trassix {

void addGauge1(TrackCatalog& catalog) {
  RangeList g(catalog, TrackSystem::Gauge1);
  g.straight("59051", "59051 Straight 59.5mm / 2-5/16\"", 59.5);
  g.straight("59052", "59052 Straight 79mm / 3-1/8\"", 79);
  g.straight("59053", "59053 Straight 100mm / 3-15/16\"", 100);
  g.straight("59054", "59054 Straight 116mm / 4-9/16\"", 116);
  g.straight("59055", "59055 Straight 150mm / 5-7/8\"", 150);
  g.straight("59056", "59056 Straight 152.2mm (diagonal)", 152.2);
  g.straight("59057", "59057 Straight 200mm / 7-7/8\"", 200);
  g.straight("59058", "59058 Straight 300mm / 11-13/16\"", 300);
  g.straight("59059", "59059 Straight 600mm / 23-5/8\"", 600);
  g.straight("59061", "59061 Straight 900mm / 35-7/16\"", 900);
  g.curve("59035", "59035 Curve R1=1020mm 22.5°", 1020, 22.5);
  g.curve("59072", "59072 Curve R2=1176mm 22.5°", 1176, 22.5);
  g.curve("59073", "59073 Curve R3=1394mm 22.5°", 1394, 22.5);
  g.curve("59075", "59075 Curve R3=1394mm 15°", 1394, 15);
  g.curve("59074", "59074 Curve R4=1550mm 15°", 1550, 15);
  g.curve("59076", "59076 Curve R4=1550mm 22.5°", 1550, 22.5);
  g.curve("59077", "59077 Curve R5=1715mm 22.5°", 1715, 22.5);
  g.curve("59078", "59078 Curve R6=2321mm 10°", 2321, 10);
  g.curve("59071", "59071 Curve R7=2461mm 10°", 2461, 10);
  g.frog("59092", "59092 Turnout End Piece (frog) 15°", 118, 15, {110, 0, 0}, {-0.83, 45.43, 195}, {105.42, 73.9, 15});
  g.rightTurnout("59083", "59083 Right Turnout Set 600mm R2321mm 10°", 600, 2321, 10, Trait::TurnoutSet);
  g.leftTurnout("59084", "59084 Left Turnout Set 600mm R2321mm 10°", 600, 2321, 10, Trait::TurnoutSet);
  g.spacedCurvedTurnout("59085", "59085 Left Curved Turnout R1394/1550mm 22.5°", 59.5, 1550, -22.5, {593.2, 118, 22.5}, {533.5, 106.1, 22.5});
  g.spacedCurvedTurnout("59086", "59086 Right Curved Turnout R1394/1550mm 22.5°", 59.5, 1550, 22.5, {593.2, -118, 337.5}, {533.5, -106.1, 337.5});
  g.threeWay("59091", "59091 Three-Way Turnout R1394mm 15°", 360.8, 1394, 15, {360.8, 47.5, 15}, {360.8, -47.5, 345});
  g.listedSlip("59093", "59093 Double Slip Switch R1394mm 22.5°", 533.5, 1394, 22.5, {0, 106.1, 202.5}, {533.5, 106.1, 22.5});
  g.listedSlip("59094", "59094 Double Crossover R1394mm 22.5°", 533.5, 1394, 22.5, {0, 106.1, 202.5}, {533.5, 106.1, 22.5});
  g.trackEnd("5602", "5602 Track Bumper", 100);
  g.trackEnd("59099", "59099 Old-Timer Track Bumper", 100);
}

} // namespace trassix
