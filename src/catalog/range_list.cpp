#include "catalog/range_list.h"

#include <utility>

namespace trassix {

void RangeList::straight(std::string article, std::string name, double length, Trait trait) {
  add(makeStraight(system_, std::move(article), std::move(name), length), trait);
}

void RangeList::uncoupler(std::string article, std::string name, double length) {
  PieceDef piece = makeStraight(system_, std::move(article), std::move(name), length);
  piece.kind = PieceKind::Uncoupler;
  add(std::move(piece));
}

void RangeList::adapter(std::string article, std::string name, double length, TrackSystem at0,
                        TrackSystem at1) {
  PieceDef piece = makeStraight(system_, std::move(article), std::move(name), length);
  piece.adapterSystems = {at0, at1};
  add(std::move(piece));
}

void RangeList::curve(std::string article, std::string name, double radius, double angle,
                      Trait trait) {
  add(makeCurve(system_, std::move(article), std::move(name), radius, angle), trait);
}

void RangeList::trackEnd(std::string article, std::string name, double length) {
  add(makeTrackEnd(system_, std::move(article), std::move(name), length));
}

void RangeList::leftTurnout(std::string article, std::string name, double length, double radius,
                            double angle, Trait trait) {
  add(makeTurnout(system_, std::move(article), std::move(name), PieceKind::TurnoutLeft, length,
                  radius, angle),
      trait);
}

void RangeList::rightTurnout(std::string article, std::string name, double length, double radius,
                             double angle, Trait trait) {
  add(makeTurnout(system_, std::move(article), std::move(name), PieceKind::TurnoutRight, length,
                  radius, angle),
      trait);
}

void RangeList::crossing(std::string article, std::string name, double length, double radius,
                         double angle) {
  add(makeCrossing(system_, std::move(article), std::move(name), PieceKind::Crossing, length,
                   radius, angle));
}

void RangeList::doubleSlip(std::string article, std::string name, double length, double radius,
                           double angle) {
  add(makeCrossing(system_, std::move(article), std::move(name), PieceKind::DoubleSlip, length,
                   radius, angle));
}

void RangeList::turntable(std::string article, std::string name, double diameter, double ringRadius,
                          double spacing, std::int32_t count) {
  add(makeTurntable(system_, std::move(article), std::move(name), diameter, ringRadius, spacing,
                    count));
}

void RangeList::listedTurnout(std::string article, std::string name, PieceKind side, double length,
                              double radius, double angle, ListedEnd branch) {
  addSpanned(makeListed(system_, std::move(article), std::move(name), side, length, radius, angle,
                        {{length, 0, 0}, branch}),
             1);
}

void RangeList::threeWay(std::string article, std::string name, double length, double radius,
                         double angle, ListedEnd right, ListedEnd left, PieceKind kind) {
  addSpanned(makeListed(system_, std::move(article), std::move(name), kind, length, radius, angle,
                        {{length, 0, 0}, right, left}),
             2);
}

void RangeList::listedCrossing(std::string article, std::string name, double length, double angle,
                               ListedEnd end2, ListedEnd end3) {
  addSpanned(makeListed(system_, std::move(article), std::move(name), PieceKind::Crossing, length,
                        0, angle, {{length, 0, 0}, end2, end3}),
             1);
}

void RangeList::listedSlip(std::string article, std::string name, double length, double radius,
                           double angle, ListedEnd end2, ListedEnd end3) {
  addSpanned(makeListed(system_, std::move(article), std::move(name), PieceKind::DoubleSlip, length,
                        radius, angle, {{length, 0, 0}, end2, end3}),
             2);
}

void RangeList::curvedTurnout(std::string article, std::string name, double length, double radius,
                              double angle, ListedEnd end1, ListedEnd end2) {
  addSpanned(makeListed(system_, std::move(article), std::move(name), PieceKind::CurvedTurnout,
                        length, radius, angle, {end1, end2}),
             1);
}

void RangeList::spacedCurvedTurnout(std::string article, std::string name, double spacing,
                                    double radius, double angle, ListedEnd end1, ListedEnd end2,
                                    std::int32_t spanB) {
  addSpanned(makeListed(system_, std::move(article), std::move(name),
                        PieceKind::CurvedTurnoutSpaced, spacing, radius, angle, {end1, end2}),
             spanB);
}

void RangeList::frog(std::string article, std::string name, double length, double angle,
                     ListedEnd end1, ListedEnd end2, ListedEnd end3) {
  PieceDef piece = makeListed(system_, std::move(article), std::move(name), PieceKind::Crossing,
                              length, 0, angle, {end1, end2, end3});
  piece.frogPiece = true;
  add(std::move(piece));
}

void RangeList::sameAs(std::string_view source, std::string article, std::string name) {
  add(copyAs(catalog_.find(source), system_, std::move(article), std::move(name)));
}

void RangeList::alias(const std::string& article, const std::string& existing) {
  catalog_.alias(article, existing);
}

void RangeList::add(PieceDef piece, Trait trait) {
  if (trait != Trait::Plain) {
    piece.ramp = trait == Trait::Ramp || trait == Trait::RampPair;
    piece.bridge = piece.ramp || trait == Trait::Bridge;
    piece.pair = trait == Trait::RampPair;
    piece.turnoutSet = trait == Trait::TurnoutSet;
  }
  catalog_.add(std::move(piece));
}

void RangeList::addSpanned(PieceDef piece, std::int32_t spanB) {
  piece.spanA = 2;
  piece.spanB = spanB;
  add(std::move(piece));
}

} // namespace trassix
