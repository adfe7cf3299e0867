#include "measures/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <system_error>

namespace trassix {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isHexDigit(char c) {
  return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Takes white space and the sign off the front; true for a minus.
bool takeSign(std::string_view& text) {
  std::size_t start = 0;
  while (start < text.size() &&
         (text[start] == ' ' || (text[start] >= '\t' && text[start] <= '\r')))
    ++start;
  const bool negative = start < text.size() && text[start] == '-';
  if (negative || (start < text.size() && text[start] == '+'))
    ++start;
  text.remove_prefix(start);
  return negative;
}

/// So many digits a double holds whatever they are.
constexpr std::ptrdiff_t kExactDigits = 15;

/// What files are full of: digits, a point and digits, with so few digits that the quotient of two
/// exact doubles is the correctly rounded value. False when the text is of any other form.
bool readPlainDecimal(std::string_view text, double& magnitude) {
  constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (text.empty() || text.size() > std::size_t{kExactDigits + 1})
    return false;
  std::int64_t digits = 0;
  std::size_t i = 0;
  while (i < text.size() && isDigit(text[i]))
    digits = digits * 10 + (text[i++] - '0');
  if (i == 0 || i == text.size() || text[i] != '.')
    return false;
  const std::size_t fraction = ++i;
  while (i < text.size() && isDigit(text[i]))
    digits = digits * 10 + (text[i++] - '0');
  if (i != text.size())
    return false;
  magnitude = static_cast<double>(digits) / kPowers[i - fraction];
  return true;
}

bool isHexadecimal(std::string_view text) {
  if (text.size() < 3 || text[0] != '0' || (text[1] != 'x' && text[1] != 'X'))
    return false;
  return isHexDigit(text[2]) || (text[2] == '.' && text.size() > 3 && isHexDigit(text[3]));
}

/// Puts up to `most` digits from the front of the text onto the number; returns where they end.
const char* takeDigits(const char* text, const char* end, std::ptrdiff_t most,
                       std::int64_t& number) {
  for (end = text + std::min(most, end - text); text != end && isDigit(*text); ++text)
    number = number * 10 + (*text - '0');
  return text;
}

/// From 2^52 on doubles have no fraction.
constexpr double kFirstWhole = 4503599627370496.0;

/// From here up a double's last bit is worth 2^-64 or more.
constexpr double kFirstExact = 1.0 / 2048;

char* writeDigits(char* out, std::uint64_t value) {
  return std::to_chars(out, out + 20, value).ptr;
}

} // namespace

NumberError readInteger(std::string_view text, std::int32_t& value) {
  const bool negative = takeSign(text);
  // An unsigned type, because the sign is taken and a second one must not be accepted.
  std::uint64_t magnitude = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude);
  if (error == std::errc::invalid_argument)
    return NumberError::Invalid;
  constexpr std::uint64_t kLargest = std::numeric_limits<std::int32_t>::max();
  if (error == std::errc::result_out_of_range || magnitude > kLargest + (negative ? 1 : 0))
    return NumberError::OutOfRange;
  const auto wide = static_cast<std::int64_t>(magnitude);
  value = static_cast<std::int32_t>(negative ? -wide : wide);
  return NumberError::None;
}

NumberError readReal(std::string_view text, double& value) {
  const bool negative = takeSign(text);
  double magnitude = 0;
  if (!readPlainDecimal(text, magnitude)) {
    if (text.empty() || (!isDigit(text[0]) && text[0] != '.'))
      return NumberError::Invalid; // also a second sign, and the words for infinity and NaN
    auto format = std::chars_format::general;
    if (isHexadecimal(text)) {
      text.remove_prefix(2);
      format = std::chars_format::hex;
    }
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), magnitude, format);
    if (error == std::errc::invalid_argument)
      return NumberError::Invalid;
    if (error == std::errc::result_out_of_range || !std::isfinite(magnitude))
      return NumberError::OutOfRange;
  }
  value = negative ? -magnitude : magnitude;
  return NumberError::None;
}

const char* takeInteger(const char* text, const char* end, std::int32_t& value) {
  constexpr std::ptrdiff_t kSurelyInRange = 9;
  const bool negative = text != end && *text == '-';
  const char* first = negative ? text + 1 : text;
  std::int64_t number = 0;
  const char* last = takeDigits(first, end, kSurelyInRange, number);
  value = static_cast<std::int32_t>(negative ? -number : number);
  return last == first ? nullptr : last;
}

const char* takeReal(const char* text, const char* end, double& value) {
  constexpr std::ptrdiff_t kDecimals = 4;
  constexpr std::ptrdiff_t kWhole = kExactDigits - kDecimals;
  const bool negative = text != end && *text == '-';
  const char* first = negative ? text + 1 : text;
  std::int64_t digits = 0;
  const char* point = takeDigits(first, end, kWhole, digits);
  if (point == first || point == end || *point != '.')
    return nullptr;
  const char* last = takeDigits(point + 1, end, kDecimals, digits);
  const double magnitude = static_cast<double>(digits) / 10000;
  value = negative ? -magnitude : magnitude;
  return last == point + 1 + kDecimals ? last : nullptr;
}

char* writeInteger(char* out, std::int32_t value) {
  return std::to_chars(out, out + kIntegerSpace, value).ptr;
}

char* writeReal(char* out, double value) {
  const double magnitude = std::abs(value);
  if (!(magnitude < kFirstWhole) || (magnitude < kFirstExact && magnitude != 0))
    return std::to_chars(out, out + kRealSpace, value, std::chars_format::fixed, 4).ptr;

  if (std::signbit(value))
    *out++ = '-';
  auto whole = static_cast<std::uint64_t>(magnitude);
  // The fraction in units of 2^-64: exact.
  const double fraction = magnitude - static_cast<double>(whole);
  const auto bits = static_cast<std::uint64_t>(fraction * 18446744073709551616.0);
  const std::uint64_t low = (bits & 0xffffffffU) * 10000U;
  const std::uint64_t high = (bits >> 32U) * 10000U + (low >> 32U);
  auto decimals = static_cast<std::uint32_t>(high >> 32U);
  const std::uint64_t rest = (high << 32U) | (low & 0xffffffffU);
  constexpr std::uint64_t kHalf = std::uint64_t{1} << 63U;
  if (rest > kHalf || (rest == kHalf && decimals % 2 == 1))
    ++decimals;
  if (decimals == 10000) {
    decimals = 0;
    ++whole;
  }
  out = writeDigits(out, whole);
  *out++ = '.';
  *out++ = static_cast<char>('0' + decimals / 1000);
  *out++ = static_cast<char>('0' + decimals / 100 % 10);
  *out++ = static_cast<char>('0' + decimals / 10 % 10);
  *out++ = static_cast<char>('0' + decimals % 10);
  return out;
}

} // namespace trassix
