#include "catalog/builtin/ranges.h"
#include "catalog/range_list.h"

namespace trassix {

void addKTrack(TrackCatalog& catalog) {
  RangeList k(catalog, TrackSystem::KTrack);
  k.straight("2200", "2200 Straight Track Length 180 mm / 7-3/32\"", 180);
  k.straight("2201", "2201 Straight Track Length 90 mm / 3-9/16\"", 90);
  k.straight("2202", "2202 Straight Track Length 45 mm / 1-3/4\"", 45);
  k.straight("2203", "2203 Straight Track Length 30 mm / 1-3/16\"", 30);
  k.straight("2204", "2204 Straight Track Length 22.5 mm / 7/8\"", 22.5);
  k.straight("2205", "2205 Flex Track Length 900 mm / 35-7/16\"", 900);
  k.straight("2206", "2206 Straight Track Length 168.9 mm / 6-5/8\"", 168.9);
  k.straight("2207", "2207 Straight Track Length 156 mm / 6-1/8\"", 156);
  k.straight("2208", "2208 Straight Track Length 35.1 mm / 1-3/8\"", 35.1);
  k.straight("2209", "2209 Straight Track Length 217.9 mm / 8-9/16\"", 217.9);
  k.straight("2293", "2293 Straight Track Length 41.3 mm / 1-5/8\"", 41.3);
  k.straight("2290", "2290 Straight Feeder Track Length 180 mm / 7-3/32\"", 180);
  k.adapter("2291", "2291 Adapter Track for M Track Length 180 mm / 7-3/32\"", 180, TrackSystem::KTrack, TrackSystem::MTrack);
  k.straight("2292", "2292 Straight Feeder Track Length 180 mm / 7-3/32\"", 180);
  k.straight("2295", "2295 Contact Track Set Length 2 x 90 mm / 3-9/16\"", 90);
  k.straight("2297", "2297 Straight Uncoupler Track Length 90 mm / 3-9/16\"", 90);
  k.straight("2299", "2299 Straight Circuit Track Length 90 mm / 3-9/16\"", 90);
  k.curve("2210", "2210 Industrial Curve 30deg (360mm)", 360, 30);
  k.curve("2229", "2229 Curved Circuit Track Radius 360 mm", 360, 15);
  k.curve("2221", "2221 Standard Curve 30deg (360mm)", 360, 30);
  k.curve("2223", "2223 Standard Curve 15deg (360mm)", 360, 15);
  k.curve("2224", "2224 Standard Curve 30deg (360mm)", 360, 30);
  k.curve("2239", "2239 Curved Circuit Track Radius 424.6 mm / 16-3/4\"", 424.6, 15);
  k.curve("2231", "2231 Standard Curve II 30deg (424.6mm)", 424.6, 30);
  k.curve("2232", "2232 Standard Curve II 22deg (424.6mm)", 424.6, 22.5);
  k.curve("2233", "2233 Standard Curve II 15deg (424.6mm)", 424.6, 15);
  k.curve("2234", "2234 Standard Curve II 7deg (424.6mm)", 424.6, 7);
  k.curve("2235", "2235 Standard Curve II 3deg (424.6mm)", 424.6, 3);
  k.curve("2241", "2241 Large Curve 30deg (553.9mm)", 553.9, 30);
  k.curve("2251", "2251 Large Curve 30deg (618.5mm)", 618.5, 30);
  k.curve("2274", "2274 Curved Track 14deg (pairs with 22715/16)", 902.4, 14.4382);
  k.listedCrossing("2257", "2257 Crossing Length 225 mm / 8-7/8\"", 225, 22.5, {8.56, -43.05, 202.5}, {216.44, 43.05, 22.5});
  k.listedCrossing("2258", "2258 Crossing Length 90 mm / 3-9/16\"", 90, 45, {13.18, -31.82, 225}, {76.82, 31.82, 45});
  k.listedCrossing("2259", "2259 Crossing Length 168.9 mm / 6-5/8\"", 168.9, 22.5, {6.43, -32.32, 202.5}, {162.47, 32.32, 22.5});
  k.leftTurnout("2262", "2262 Left Turnout Length 168.9 mm / 6-5/8\"", 168.9, 424.6, 22.5);
  k.rightTurnout("2263", "2263 Right Turnout Length 168.9 mm / 6-5/8\"", 168.9, 424.6, 22.5);
  k.leftTurnout("2265", "2265 Left Turnout Length 168.9 mm / 6-5/8\" (manual)", 168.9, 424.6, 22.5);
  k.rightTurnout("2266", "2266 Right Turnout Length 168.9 mm / 6-5/8\" (manual)", 168.9, 424.6, 22.5);
  k.spacedCurvedTurnout("2269", "2269 Right Curved Turnout Outer Curve 30° Spacing 64.6 mm / 2-1/2\"", 64.6, 360, 30, {180, 48.23, 30}, {244.6, 48.23, 30}, 2);
  k.spacedCurvedTurnout("2268", "2268 Left Curved Turnout Outer Curve 30° Spacing 64.6 mm / 2-1/2\"", 64.6, 360, -30, {180, -48.23, 330}, {244.6, -48.23, 330}, 2);
  k.threeWay("2270", "2270 Symmetrical Three-Way Turnout Length 168.9 mm / Radius 424.6 mm / 16-3/4\"", 168.9, 424.6, 22.5, {162.49, 32.32, 22.5}, {162.49, -32.32, 337.5});
  k.leftTurnout("22715", "22715 Left Turnout Length 225 mm / 8-7/8\" / Radius 902.4 mm / 35-1/2\"", 225, 902.4, 14.4382);
  k.rightTurnout("22716", "22716 Right Turnout Length 225 mm / 8-7/8\" / Radius 902.4 mm / 35-1/2\"", 225, 902.4, 14.4382);
  k.listedSlip("2260", "2260 Double Slip Switch Length 168.9 mm / 6-5/8\"", 168.9, 424.6, 22.5, {6.41, -32.32, 202.5}, {162.49, 32.32, 22.5});
  k.listedSlip("2275", "2275 Double Slip Switch Length 225 mm / 8-7/8\" / Radius 902.4 mm / 35-1/2\"", 225, 902.4, 14.3, {3.49, -27.79, 194.3}, {221.51, 27.79, 14.3});
  k.trackEnd("7389", "7389 Track Bumper", 60);
  k.trackEnd("7391", "7391 Track Bumper", 40);
  k.straight("7263", "7263 Arch Bridge 360mm", 360, Trait::Bridge);
  k.straight("7262", "7262 Truss Bridge 180mm", 180, Trait::Bridge);
  k.curve("7569", "7569 Curved Ramp R2 30deg", 424.6, 30, Trait::Ramp);
  k.curve("7267", "7267 Curved Ramp R1 45deg", 360, 45, Trait::Ramp);
  k.straight("7268", "7268 Straight Ramp 180mm (pair)", 180, Trait::RampPair);
}

void addKTrackTurntable(TrackCatalog& catalog) {
  RangeList k(catalog, TrackSystem::KTrack);
  k.turntable("7286", "7286 Turntable (pit 386mm)", 386, 193, 7.5, 5);
  k.straight("7287", "7287 Turntable Spoke Extension 57.5mm", 57.5);
}

} // namespace trassix
