#include "measures/measure_format.h"

#include <array>
#include <charconv>

namespace trassix {

double millimetresPer(std::int32_t units) {
  switch (units) {
  case kCentimetres:
    return 10.0;
  case kInches:
    return 25.4;
  default:
    return 1.0;
  }
}

const char* unitName(std::int32_t units) {
  switch (units) {
  case kCentimetres:
    return "cm";
  case kInches:
    return "in";
  default:
    return "mm";
  }
}

std::string formatFixed(double value, int decimals) {
  std::array<char, 340> text; // holds any double
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::fixed, decimals);
  return {text.data(), end.ptr};
}

namespace {

std::string lengthNumber(double mm, std::int32_t units) {
  const int decimals = units == kInches ? 3 : units == kCentimetres ? 2 : 1;
  std::string text = formatFixed(mm / millimetresPer(units), decimals);
  // What rounds to nothing has no sign.
  if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos)
    text.erase(0, 1);
  return text;
}

} // namespace

std::string formatLength(double mm, std::int32_t units) {
  return lengthNumber(mm, units) + " " + unitName(units);
}

std::string formatBriefLength(double mm, std::int32_t units) {
  std::string number = lengthNumber(mm, units);
  number.erase(number.find_last_not_of('0') + 1);
  if (number.ends_with('.'))
    number.pop_back();
  return number + " " + unitName(units);
}

std::string formatSize(double width, double depth, std::int32_t units) {
  return lengthNumber(width, units) + " \u00d7 " + formatLength(depth, units);
}

} // namespace trassix
