// Makes definitions from the numbers a maker prints. Lengths in mm, angles in degrees, all counts,
// flags and lists at their defaults unless said.
#pragma once

#include "catalog/piece_def.h"

#include <string>
#include <vector>

namespace trassix {

/// An end as a catalogue lists it.
struct ListedEnd {
  double x = 0;
  double y = 0;
  double heading = 0;
};

PieceDef makeStraight(TrackSystem system, std::string article, std::string name, double length);

/// Turns right from connector 0 to connector 1; a left turn is the same piece entered at its end.
PieceDef makeCurve(TrackSystem system, std::string article, std::string name, double radius,
                   double angle);

/// A buffer stop: one end, `length` is its footprint.
PieceDef makeTrackEnd(TrackSystem system, std::string article, std::string name, double length);

/// A turnout whose branch is an arc that starts with the straight route. `side` is TurnoutLeft or
/// TurnoutRight, `angle` is positive for both. The branch never ends beyond the straight route: an
/// arc that would is cut at x = length, with the smaller angle reached there.
PieceDef makeTurnout(TrackSystem system, std::string article, std::string name, PieceKind side,
                     double length, double radius, double angle);

/// Two routes of equal length through the common middle. `kind` is Crossing or DoubleSlip.
PieceDef makeCrossing(TrackSystem system, std::string article, std::string name, PieceKind kind,
                      double length, double radius, double angle);

/// Track ends on a ring around the centre, every `spacing` degrees (a divisor of 360), the first on
/// the +x axis. `count` goes to both counts of the definition.
PieceDef makeTurntable(TrackSystem system, std::string article, std::string name, double diameter,
                       double ringRadius, double spacing, std::int32_t count);

/// A piece whose ends are published one by one. Connector 0 is not listed: it is at the origin.
PieceDef makeListed(TrackSystem system, std::string article, std::string name, PieceKind kind,
                    double length, double radius, double angle,
                    const std::vector<ListedEnd>& otherEnds);

/// The same piece as sold under another article and system. Without a source the result is an
/// empty record.
PieceDef copyAs(const PieceDef* source, TrackSystem system, std::string article, std::string name);

} // namespace trassix
