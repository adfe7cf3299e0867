#include "catalog/builtin/ranges.h"
#include "catalog/range_list.h"

namespace trassix {

void addZTrack(TrackCatalog& catalog) {
  RangeList z(catalog, TrackSystem::ZTrack);
  z.straight("8500", "8500 Straight 110mm / 4-3/8\"", 110);
  z.straight("8501", "8501 Straight 55mm / 2-3/16\" (half)", 55);
  z.straight("8502", "8502 Straight 27.5mm / 1-1/8\" (qtr)", 27.5);
  z.straight("8503", "8503 Straight 55mm / 2-3/16\"", 55);
  z.straight("8504", "8504 Straight 25mm / 1\"", 25);
  z.straight("8505", "8505 Straight 220mm / 8-13/16\"", 220);
  z.straight("8506", "8506 Straight 112.8mm / 4-7/16\"", 112.8);
  z.straight("8507", "8507 Straight 112.8mm / 4-7/16\"", 112.8);
  z.straight("8587", "8587 Uncoupler 55mm / 2-3/16\"", 55);
  z.straight("8588", "8588 Isolating Track 55mm / 2-3/16\"", 55);
  z.straight("8590", "8590 Feeder Track 110mm / 4-3/8\"", 110);
  z.straight("8598", "8598 Isolating Track 55mm / 2-3/16\"", 55);
  z.curve("8510", "8510 Curve R1=145mm 45deg", 145, 45);
  z.curve("8511", "8511 Curve R1=145mm 30deg", 145, 30);
  z.curve("8520", "8520 Curve R2=195mm 45deg", 195, 45);
  z.curve("8521", "8521 Curve R2=195mm 30deg", 195, 30);
  z.curve("8529", "8529 Circuit Curve R2=195mm 45deg", 195, 45);
  z.curve("8530", "8530 Curve R3=220mm 45deg", 220, 45);
  z.curve("8531", "8531 Curve R3=220mm 30deg", 220, 30);
  z.curve("8539", "8539 Circuit Curve R3=220mm 45deg", 220, 45);
  z.curve("8591", "8591 Turnout Branch Curve R4=490mm 13deg", 490, 13);
  z.leftTurnout("8562", "8562 Electric Left Turnout 110mm 13deg", 110, 490, 13);
  z.rightTurnout("8563", "8563 Electric Right Turnout 110mm 13deg", 110, 490, 13);
  z.leftTurnout("8565", "8565 Manual Left Turnout 110mm 13deg", 110, 490, 13);
  z.rightTurnout("8566", "8566 Manual Right Turnout 110mm 13deg", 110, 490, 13);
  z.spacedCurvedTurnout("8568", "8568 Electric Left Curved Turnout R=195mm 30deg", 25, 195, -30, {97.5, -26.125, 330}, {122.5, -26.125, 330});
  z.spacedCurvedTurnout("8569", "8569 Electric Right Curved Turnout R=195mm 30deg", 25, 195, 30, {97.5, 26.125, 30}, {122.5, 26.125, 30});
  z.crossing("8559", "8559 Crossing 112.8mm 13deg", 112.8, 0, 13);
  z.listedSlip("8560", "8560 Double Slip Switch 13°", 112.8, 501.4424, 13, {0, -12.8519, 193}, {112.8, 12.8519, 13});
  z.trackEnd("8991", "8991 Track Bumper 15mm", 15);
  z.straight("8975", "8975 Arch Bridge 220mm", 220, Trait::Bridge);
  z.straight("89759", "89759 Girder Bridge 110mm", 110, Trait::Bridge);
  z.straight("8976", "8976 Straight Ramp 110mm (pair)", 110, Trait::RampPair);
  z.curve("8977", "8977 Curved Ramp R1=145mm 45deg", 145, 45, Trait::Ramp);
}

} // namespace trassix
