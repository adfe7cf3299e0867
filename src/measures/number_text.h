// Numbers in plan files, independent of any locale. Read are the forms that stoi and stod accept:
// leading white space, a sign, and any text after the number; hexadecimal for reals.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trassix {

enum class NumberError : std::uint8_t { None, Invalid, OutOfRange };

/// Base 10. `value` is left alone on an error.
NumberError readInteger(std::string_view text, std::int32_t& value);

/// Infinity and NaN are invalid; a number too large or too small for a double is out of range.
/// `value` is left alone on an error.
NumberError readReal(std::string_view text, double& value);

/// Read a number from the front of a text in the very form in which the functions below write it,
/// with at most 9 and 11 digits before the point; the value is the same as above. Return the end of
/// the number, null for any other text.
const char* takeInteger(const char* text, const char* end, std::int32_t& value);
const char* takeReal(const char* text, const char* end, double& value);

/// Longest text of a real: 309 digits, sign, point and four decimals.
inline constexpr std::size_t kRealSpace = 320;
inline constexpr std::size_t kIntegerSpace = 12;

/// Writes the number at `out`, which has `kIntegerSpace` bytes, and returns the end.
char* writeInteger(char* out, std::int32_t value);

/// Fixed-point with four decimals, exactly rounded, ties to even. `value` must be finite and `out`
/// have `kRealSpace` bytes. Returns the end.
char* writeReal(char* out, double value);

} // namespace trassix
