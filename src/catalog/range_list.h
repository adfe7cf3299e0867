#pragma once

#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"

#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// What a piece is besides its shape. A ramp is a bridge piece as well.
enum class Trait : std::uint8_t { Plain, Bridge, Ramp, RampPair, TurnoutSet };

/// Writes one system's rows into the catalogue, in the order a maker's list has them. Lengths and
/// radii in mm, angles in degrees. The `listed` pieces have published ends that differ from what
/// their length, radius and angle give, if only by rounding; their angle is stored with its sign.
class RangeList {
 public:
  RangeList(TrackCatalog& catalog, TrackSystem system) : catalog_(catalog), system_(system) {}

  void straight(std::string article, std::string name, double length, Trait trait = Trait::Plain);
  void uncoupler(std::string article, std::string name, double length);
  void adapter(std::string article, std::string name, double length, TrackSystem at0,
               TrackSystem at1);
  void curve(std::string article, std::string name, double radius, double angle,
             Trait trait = Trait::Plain);
  void trackEnd(std::string article, std::string name, double length);

  void leftTurnout(std::string article, std::string name, double length, double radius,
                   double angle, Trait trait = Trait::Plain);
  void rightTurnout(std::string article, std::string name, double length, double radius,
                    double angle, Trait trait = Trait::Plain);
  void crossing(std::string article, std::string name, double length, double radius, double angle);
  void doubleSlip(std::string article, std::string name, double length, double radius,
                  double angle);
  void turntable(std::string article, std::string name, double diameter, double ringRadius,
                 double spacing, std::int32_t count);

  // These have a straight route from the origin to (length, 0); the other ends are listed.
  void listedTurnout(std::string article, std::string name, PieceKind side, double length,
                     double radius, double angle, ListedEnd branch);
  void threeWay(std::string article, std::string name, double length, double radius, double angle,
                ListedEnd right, ListedEnd left, PieceKind kind = PieceKind::TurnoutLeft);
  void listedCrossing(std::string article, std::string name, double length, double angle,
                      ListedEnd end2, ListedEnd end3);
  void listedSlip(std::string article, std::string name, double length, double radius, double angle,
                  ListedEnd end2, ListedEnd end3);

  // These have no such route; all ends but the one at the origin are listed.
  void curvedTurnout(std::string article, std::string name, double length, double radius,
                     double angle, ListedEnd end1, ListedEnd end2);
  void spacedCurvedTurnout(std::string article, std::string name, double spacing, double radius,
                           double angle, ListedEnd end1, ListedEnd end2, std::int32_t spanB = 1);
  void frog(std::string article, std::string name, double length, double angle, ListedEnd end1,
            ListedEnd end2, ListedEnd end3);

  /// A piece of another system, already listed, under this one's article and name.
  void sameAs(std::string_view source, std::string article, std::string name);

  /// `article` is another number for `existing`.
  void alias(const std::string& article, const std::string& existing);

 private:
  void add(PieceDef piece, Trait trait = Trait::Plain);
  void addSpanned(PieceDef piece, std::int32_t spanB);

  TrackCatalog& catalog_;
  TrackSystem system_;
};

} // namespace trassix
