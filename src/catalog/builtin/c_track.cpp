#include "catalog/builtin/ranges.h"
#include "catalog/range_list.h"

namespace trassix {

void addCTrack(TrackCatalog& catalog) {
  RangeList c(catalog, TrackSystem::CTrack);
  c.straight("24188", "24188 - 188.3mm", 188.3);
  c.straight("24172", "24172 - 171.7mm", 171.7);
  c.straight("24360", "24360 - 360mm", 360);
  c.straight("74636", "74636 Arch Bridge 360mm", 360, Trait::Bridge);
  c.straight("74620", "74620 Truss Bridge 180mm", 188.3, Trait::Bridge);
  c.curve("74623", "74623 Curved Ramp R2 30deg", 437.5, 30, Trait::Ramp);
  c.curve("74613", "74613 Curved Ramp R1 30deg", 360, 30, Trait::Ramp);
  c.straight("74618", "74618 Straight Ramp 180mm (pair)", 180, Trait::RampPair);
  c.straight("24229", "24229 - 229.3mm", 229.3);
  c.straight("24236", "24236 - 236.1mm", 236.1);
  c.straight("24094", "24094 - 94.2mm", 94.2);
  c.straight("24077", "24077 - 77.5mm", 77.5);
  c.straight("24071", "24071 - 70.8mm", 70.8);
  c.straight("24064", "24064 - 64.3mm", 64.3);
  c.curve("24130", "24130 (30°) R1 - 360mm (14-3/16)", 360, 30);
  c.curve("24230", "24230 (30°) R2 - 437.5mm (17-1/4)", 437.5, 30);
  c.curve("24330", "24330 (30°) R3 - 515mm (20-1/4)", 515, 30);
  c.curve("24315", "24315 (15°) R3 - 515mm (20-1/4)", 515, 15);
  c.curve("24430", "24430 (30°) R4 - 579.3mm (22-13/16)", 579.3, 30);
  c.curve("24530", "24530 (30°) R5 - 643.6mm (25-11/32)", 643.6, 30);
  c.curve("24115", "24115 (15°) R1 - 360mm (14-3/16)", 360, 15);
  c.curve("24107", "24107 (7.5°) R1 - 360mm (14-3/16)", 360, 7.5);
  c.curve("24224", "24224 (24.3°) R2 - 437.5mm (17-1/4)", 437.5, 24.3);
  c.curve("24206", "24206 (5.7°) R2 - 437.5mm (17-1/4)", 437.5, 5.7);
  c.curve("24207", "24207 (7.5°) R2 - 437.5mm (17-1/4)", 437.5, 7.5);
  c.curve("24294", "24294 (15°) R2 - 437.5mm (17-1/4) Circuit", 437.5, 15);
  c.straight("24994", "24994 - 94.2mm Circuit", 94.2);
  c.curve("24215", "24215 (15°) R2 - 437.5mm (17-1/4)", 437.5, 15);
  c.curve("24912", "24912 (12.1°) R9 - 1114.6mm (43-7/8)", 1114.6, 12.1);
  c.listedTurnout("24611", "24611 Left Turnout R2=437.5mm 24.3°", PieceKind::TurnoutLeft, 188.3, 437.5, -24.3, {180.04, -38.76, 335.7});
  c.listedTurnout("24612", "24612 Right Turnout R2=437.5mm 24.3°", PieceKind::TurnoutRight, 188.3, 437.5, 24.3, {180.04, 38.76, 24.3});
  c.threeWay("24630", "24630 Three-Way Turnout 2x24.3°", 188.3, 437.5, 24.3, {180.04, 38.76, 24.3}, {180.04, -38.76, 335.7});
  c.curvedTurnout("24671", "24671 Left Curved Turnout (R360)", 257.5, 360, -30, {180, -48.2, 330}, {257.5, -48.2, 330});
  c.curvedTurnout("24672", "24672 Right Curved Turnout (R360)", 257.5, 360, 30, {180, 48.2, 30}, {257.5, 48.2, 30});
  c.listedCrossing("24740", "24740 Wide-Angle Crossing 12.1° 236.1mm", 236.1, 12.1, {2.62, -24.75, 192.1}, {233.48, 24.75, 12.1});
  c.listedCrossing("24649", "24649 Crossing 48.6° 103.3mm", 103.3, 48.6, {17.49, -38.74, 228.6}, {85.81, 38.74, 48.6});
  c.listedCrossing("24640", "24640 Crossing 24.3° 188.3mm", 188.3, 24.3, {8.34, -38.74, 204.3}, {179.96, 38.74, 24.3});
  c.listedSlip("24624", "24624 Double Slip Switch 24.3°", 188.3, 437.4, 24.3, {8.34, -38.74, 204.3}, {179.96, 38.74, 24.3});
  c.listedSlip("24720", "24720 Double Slip Switch slim 12.1°", 236.1, 1114.6, 12.1, {2.62, -24.75, 192.1}, {233.48, 24.75, 12.1});
  c.listedTurnout("24711", "24711 Slim Left Turnout (R1114.6, 236.1mm)", PieceKind::TurnoutLeft, 236.1, 1114.6, -12.1, {233.485, -24.729, 347.908});
  c.listedTurnout("24712", "24712 Slim Right Turnout (R1114.6, 236.1mm)", PieceKind::TurnoutRight, 236.1, 1114.6, -12.1, {233.485, 24.729, 12.092});
  c.curvedTurnout("24771", "24771 Slim Left Curved Turnout (R515)", 321.5, 515, -30, {257.5, -69, 330}, {321.5, -69, 330});
  c.curvedTurnout("24772", "24772 Slim Right Curved Turnout (R515)", 321.5, 515, 30, {257.5, 69, 30}, {321.5, 69, 30});
  c.trackEnd("24977", "24977 Bumper Stop", 48.3);
  c.trackEnd("24978", "24978 Bumper Stop with Light", 48.3);
  c.straight("24997", "24997 Uncoupler 94.2mm", 94.2);
  c.adapter("24922", "24922 Adapter C-Track to K-Track 180mm", 180, TrackSystem::CTrack, TrackSystem::KTrack);
  c.adapter("24951", "24951 Adapter C-Track to M-Track 180mm", 180, TrackSystem::CTrack, TrackSystem::MTrack);
  c.turntable("74861", "74861 Turntable (pit 278mm)", 378, 139, 12, 4);
  c.straight("74871", "74871 Turntable Spoke Extension 57.5mm", 57.5);
}

} // namespace trassix
