#include "catalog/builtin/ranges.h"
#include "catalog/range_list.h"

namespace trassix {

void addMTrackBridges(TrackCatalog& catalog) {
  RangeList m(catalog, TrackSystem::MTrack);
  m.straight("7263M", "7263 Arch Bridge 360mm (M)", 360, Trait::Bridge);
  m.straight("7262M", "7262 Truss Bridge 180mm (M)", 180, Trait::Bridge);
  m.curve("7267M", "7267 Curved Ramp R1 45deg (M)", 360, 45, Trait::Ramp);
  m.straight("7268M", "7268 Straight Ramp 180mm (M, pair)", 180, Trait::RampPair);
}

void addMTrack(TrackCatalog& catalog) {
  RangeList m(catalog, TrackSystem::MTrack);
  m.straight("5106", "5106 Straight 180mm", 180);
  m.straight("5107", "5107 Straight 90mm", 90);
  m.straight("5129", "5129 Straight 70mm", 70);
  m.straight("5108", "5108 Straight 45mm", 45);
  m.straight("5109", "5109 Straight 33.8mm", 33.8);
  m.straight("5110", "5110 Straight 22.5mm", 22.5);
  m.straight("5210", "5210 Straight 16mm", 16);
  m.straight("5208", "5208 Straight 8mm", 8);
  m.straight("5105", "5105 Contact Track 180mm", 180);
  m.straight("5145", "5145 Contact Track 90mm", 90);
  m.uncoupler("5112", "5112 Uncoupler Track 90mm", 90);
  m.curve("5120", "5120 Curve R0=286mm 45°", 286, 45);
  m.curve("5100", "5100 Curve R1=360mm 30°", 360, 30);
  m.curve("5101", "5101 Curve R1=360mm 15°", 360, 15);
  m.curve("5102", "5102 Curve R1=360mm 7.5°", 360, 7.5);
  m.curve("5200", "5200 Curve R2=437.4mm 30°", 437.4, 30);
  m.curve("5201", "5201 Curve R2=437.4mm 15°", 437.4, 15);
  m.curve("5206", "5206 Curve R2 Compensation 24.17°", 437.4, 24.17);
  m.curve("5205", "5205 Curve R2 Comp Extension 5.83°", 437.4, 5.83);
  m.curve("5208C", "5208C Lean Compensation Curve 1.1°", 416.7, 1.1);
  m.leftTurnout("5117", "5117 Left Turnout R1 30° Electric", 180, 360, 30);
  m.leftTurnout("5118", "5118 Left Turnout R1 30°", 180, 360, 30);
  m.rightTurnout("5119", "5119 Right Turnout R1 30°", 180, 360, 30);
  m.leftTurnout("5121", "5121 Left Turnout R1 30° Manual", 180, 360, 30);
  m.leftTurnout("5122", "5122 Left Turnout R1 30° Manual", 180, 360, 30);
  m.rightTurnout("5123", "5123 Right Turnout R1 30° Manual", 180, 360, 30);
  m.leftTurnout("3600", "3600 Turnout R1 30°", 180, 360, 30);
  m.leftTurnout("5137", "5137 Turnout R1 3/4 Electric", 180, 360, 22.5);
  m.leftTurnout("5202", "5202 Turnout R2 24.17° Electric", 179.1, 437.4, 24.17);
  m.leftTurnout("5203", "5203 Left Turnout R2 24.17° Electric", 179.1, 437.4, 24.17);
  m.rightTurnout("5204", "5204 Right Turnout R2 24.17° Electric", 179.1, 437.4, 24.17);
  m.leftTurnout("5221", "5221 Turnout R2 24.17° Manual", 179.1, 437.4, 24.17);
  m.spacedCurvedTurnout("5142", "5142 Right Curved Turnout R360 30deg", 77.4, 360, 30, {180, 48.2309, 30}, {257.4, 48.2309, 30});
  m.spacedCurvedTurnout("5143", "5143 Left Curved Turnout R360 30deg", 77.4, 360, -30, {180, -48.2309, 330}, {257.4, -48.2309, 330});
  m.crossing("5114", "5114 Crossing 30° 193mm", 193, 360, 30);
  m.crossing("5211", "5211 Crossing 48.5° 98mm", 98, 360, 48.5);
  m.crossing("5215", "5215 Crossing 23.27° 180mm", 180, 437.4, 23.267);
  m.doubleSlip("5207", "5207 Double Slip 23.27° Electric", 180, 437.4, 23.267);
  m.doubleSlip("5128", "5128 Double Slip R360 30° Electric", 193, 360, 30);
  m.threeWay("5214", "5214 Three-Way Turnout R2 24.17°", 179.1, 437.4, 24.17, {179.1, 38.3, 24.17}, {179.1, -38.3, 335.83}, PieceKind::CurvedTurnout);
  m.trackEnd("5190", "5190 Track Bumper", 90);
  m.trackEnd("5191", "5191 Track Bumper Remote", 90);
}

} // namespace trassix
