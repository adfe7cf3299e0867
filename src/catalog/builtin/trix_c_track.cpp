#include "catalog/builtin/ranges.h"
#include "catalog/range_list.h"

namespace trassix {

void addTrixCTrack(TrackCatalog& catalog) {
  RangeList trix(catalog, TrackSystem::TrixCTrack);
  trix.straight("62064", "62064 Straight 64.3mm / 2-9/16\"", 64.3);
  trix.straight("62071", "62071 Straight 70.8mm / 2-13/16\"", 70.8);
  trix.straight("62077", "62077 Straight 77.5mm / 3-1/16\"", 77.5);
  trix.straight("62094", "62094 Straight 94.2mm / 3-3/4\"", 94.2);
  trix.straight("62172", "62172 Straight 171.7mm / 6-3/4\"", 171.7);
  trix.straight("62188", "62188 Straight 188.3mm / 7-3/8\"", 188.3);
  trix.straight("62229", "62229 Straight 229.3mm / 9\"", 229.3);
  trix.straight("62236", "62236 Straight 236.1mm / 9-5/16\"", 236.1);
  trix.straight("62360", "62360 Straight 360mm / 14-3/16\"", 360);
  trix.curve("62107", "62107 (7.5deg) R1 - 360mm", 360, 7.5);
  trix.curve("62115", "62115 (15deg) R1 - 360mm", 360, 15);
  trix.curve("62130", "62130 (30deg) R1 - 360mm", 360, 30);
  trix.curve("62206", "62206 (5.7deg) R2 - 437.5mm", 437.5, 5.7);
  trix.curve("62207", "62207 (7.5deg) R2 - 437.5mm", 437.5, 7.5);
  trix.curve("62215", "62215 (15deg) R2 - 437.5mm", 437.5, 15);
  trix.curve("62224", "62224 (24.3deg) R2 - 437.5mm", 437.5, 24.3);
  trix.curve("62230", "62230 (30deg) R2 - 437.5mm", 437.5, 30);
  trix.curve("62315", "62315 (15deg) R3 - 515mm", 515, 15);
  trix.curve("62330", "62330 (30deg) R3 - 515mm", 515, 30);
  trix.curve("62912", "62912 (12.1deg) R9 - 1114.6mm", 1114.6, 12.1);
  trix.listedTurnout("62611", "62611 Left Turnout R2=437.5mm 24.3deg", PieceKind::TurnoutLeft, 188.3, 437.5, -24.3, {180.04, -38.76, 335.7});
  trix.listedTurnout("62612", "62612 Right Turnout R2=437.5mm 24.3deg", PieceKind::TurnoutRight, 188.3, 437.5, 24.3, {180.04, 38.76, 24.3});
  trix.curvedTurnout("62671", "62671 Left Curved Turnout", 257.5, 437.5, -24.3, {180, -38.76, 335.7}, {257.5, -38.76, 335.7});
  trix.curvedTurnout("62672", "62672 Right Curved Turnout", 257.5, 437.5, 24.3, {180, 38.76, 24.3}, {257.5, 38.76, 24.3});
  trix.threeWay("62630", "62630 Three-Way Turnout 2x24.3deg", 188.3, 437.5, 24.3, {180.04, 38.76, 24.3}, {180.04, -38.76, 335.7});
  trix.sameAs("24624", "62624", "62624 Double Slip Switch 24.3deg");
  trix.trackEnd("62977", "62977 Track End with Bumper 80.5mm", 80.5);
  trix.straight("62997", "62997 Uncoupler Track 94.2mm", 94.2);
  trix.straight("74636T", "74636 Arch Bridge 360mm (Trix)", 360, Trait::Bridge);
  trix.straight("74620T", "74620 Truss Bridge 180mm (Trix)", 188.3, Trait::Bridge);
  trix.straight("74618T", "74618 Straight Ramp 180mm (Trix, pair)", 180, Trait::RampPair);
  trix.curve("74623T", "74623 Curved Ramp R2 30deg (Trix)", 437.5, 30, Trait::Ramp);
  trix.curve("74613T", "74613 Curved Ramp R1 30deg (Trix)", 360, 30, Trait::Ramp);

  // The bridge articles as TRIX numbers them.
  trix.alias("62636", "74636T");
  trix.alias("62620", "74620T");
  trix.alias("62623", "74623T");
  trix.alias("62613", "74613T");
}

} // namespace trassix
