// Figures for grades, and grades as users know them. Slopes are rise over length of way: 0.03 is
// three percent.
#pragma once

#include "catalog/piece_def.h"
#include "editing/track/routes.h"

#include <cstdint>

namespace trassix {

inline constexpr double kComfortableSlope = 0.03; ///< for all trains, published for all gauges
inline constexpr double kCautionSlope = 0.04;     ///< steeper is marked red; the most in a helix
inline constexpr double kSteepestSlope = 0.05;    ///< for short trains; published, never above

/// How steep a slope is to the eye: up to 3 %, to 4 %, to 5 %, above.
enum class GradeBand : std::uint8_t { Comfortable, Caution, Steep, TooSteep };
GradeBand gradeBand(double slope);

/// Grades beside one another differ by at most 2.5 % for so many mm of way between the middles of
/// their pieces, by our own measure: 180 in H0, 75 in Z, 490 in Gauge 1.
double easingLength(TrackSystem system);
inline constexpr double kEasingChange = 0.025;

/// The straight that the system's runs are made of, about as long; null where there is none.
const PieceDef* usualStraight(TrackSystem system);

/// What curves add to the slope that a train feels, as the rule of thumb has it: 8.13 / R, of which
/// the share of the route counts that is curved; 3.21 / R in Z, 22.1 / R in Gauge 1. Never part of
/// a grade, only said beside it.
double curveResistance(const PieceDef& definition, const Route& route);
/// The same of the piece's first route between these ends.
double curveResistance(const PieceDef& definition, std::int32_t enter, std::int32_t leave);

/// A grade as a user enters it.
struct GradeValue {
  enum class Unit : std::uint8_t { Percent, Degrees, Rise };

  double value = 0; ///< percent, degrees, or mm
  Unit unit = Unit::Percent;
  double length = 0; ///< mm of way in which `value` mm are climbed

  /// Not between -1 and 1 for what is no grade.
  double slope() const;
};

double degreesOf(double slope);
double percentOf(double slope);

} // namespace trassix
