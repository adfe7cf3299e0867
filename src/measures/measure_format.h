#pragma once

#include <cstdint>
#include <string>

namespace trassix {

/// Unit codes as the document and the preferences keep them.
inline constexpr std::int32_t kMillimetres = 0;
inline constexpr std::int32_t kCentimetres = 1;
inline constexpr std::int32_t kInches = 2;

/// Millimetres in one unit; any unknown code counts as millimetres.
double millimetresPer(std::int32_t units);

/// "mm", "cm" or "in".
const char* unitName(std::int32_t units);

/// A number with so many decimals, never an exponent.
std::string formatFixed(double value, int decimals);

/// A length as the user reads it, for example "188.3 mm", "18.83 cm" or "7.413 in".
std::string formatLength(double mm, std::int32_t units);

/// The same without zeros at the end, as makers write it: "180 mm".
std::string formatBriefLength(double mm, std::int32_t units);

/// Two lengths in mm with one unit, for example "2410.0 × 1100.0 mm".
std::string formatSize(double width, double depth, std::int32_t units);

} // namespace trassix
