// Reading what the user types into number fields.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trassix {

/// `problem` says in one sentence why the text is refused; it is empty when `value` is good.
struct NumberInput {
  double value = 0;
  std::string problem;

  bool good() const { return problem.empty(); }
};

/// A length in mm between `least` and `most` (mm, inclusive). The number is in the given unit
/// unless the text names one ("12 cm", "1,5 m", "7.5in", "3\""); point and comma both begin the
/// decimals.
NumberInput readLength(std::string_view text, std::int32_t units, double least, double most);

/// An angle in degrees, with or without the degree sign; comes back in [0, 360).
NumberInput readHeading(std::string_view text);

/// A share in percent, 0 to 100, with or without the sign.
NumberInput readPercent(std::string_view text);

/// A grade up or down in percent or degrees, with or without this sign, no steeper than `most`.
NumberInput readGrade(std::string_view text, std::string_view sign, double most);

/// An angle in degrees with up to three decimals, as short as it goes ("22.5", without a sign).
std::string formatAngle(double degrees);

} // namespace trassix
