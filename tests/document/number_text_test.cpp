#include "document/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

namespace trassix {
namespace {

constexpr auto kInvalid = NumberError::Invalid;
constexpr auto kOutOfRange = NumberError::OutOfRange;

TEST(NumberText, readsTheFormsOfTheStandardConversions) {
  struct Case {
    const char* text;
    double value;
    NumberError error = NumberError::None;
  };
  const Case reals[] = {{"12.5", 12.5},
                        {"-12.5000", -12.5},
                        {" \t\n+3", 3},
                        {"1e3x", 1000},
                        {".5", 0.5},
                        {"7.", 7},
                        {"1e", 1},
                        {"12.5.7", 12.5},
                        {"0x1.8p3", 12},
                        {"-0X.8", -0.5},
                        {"0x", 0},
                        {"0xg", 0},
                        {"12,5", 12},
                        {"0.1", 0.1},
                        {"123456789012345.6", 123456789012345.6},
                        {"9007199254740993.0000", 9007199254740992.0},
                        {"4e-320", 4e-320},
                        {"", 0, kInvalid},
                        {" ", 0, kInvalid},
                        {"-", 0, kInvalid},
                        {"+-1", 0, kInvalid},
                        {"- 1", 0, kInvalid},
                        {".", 0, kInvalid},
                        {"abc", 0, kInvalid},
                        {"nan", 0, kInvalid},
                        {"-inf", 0, kInvalid},
                        {"INFINITY", 0, kInvalid},
                        {"1e999", 0, kOutOfRange},
                        {"-1e-999", 0, kOutOfRange},
                        {"0x1p9999", 0, kOutOfRange}};
  for (const Case& c : reals) {
    double value = 0;
    EXPECT_EQ(readReal(c.text, value), c.error) << c.text;
    EXPECT_EQ(value, c.value) << c.text;
  }
  const Case integers[] = {{"42", 42},
                           {"\v\f\r -7mm", -7},
                           {"+5.9", 5},
                           {"007", 7},
                           {"2147483647", 2147483647.0},
                           {"-2147483648", -2147483648.0},
                           {"0x10", 0},
                           {"", 0, kInvalid},
                           {"+", 0, kInvalid},
                           {"-+1", 0, kInvalid},
                           {"x1", 0, kInvalid},
                           {"2147483648", 0, kOutOfRange},
                           {"-2147483649", 0, kOutOfRange},
                           {"99999999999999999999999", 0, kOutOfRange}};
  for (const Case& c : integers) {
    std::int32_t value = 0;
    EXPECT_EQ(readInteger(c.text, value), c.error) << c.text;
    EXPECT_EQ(value, c.value) << c.text;
  }
}

TEST(NumberText, roundsRealsExactly) {
  const auto check = [](double value) {
    char ours[kRealSpace];
    char exact[kRealSpace];
    const std::string_view text(ours, static_cast<std::size_t>(writeReal(ours, value) - ours));
    const auto end = std::to_chars(exact, exact + kRealSpace, value, std::chars_format::fixed, 4);
    EXPECT_EQ(text, std::string_view(exact, static_cast<std::size_t>(end.ptr - exact)));
  };
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    // Ties lie only at odd multiples of 1/32; their neighbours are the hardest to round.
    const double tie = static_cast<double>(random() % 2000000) / 32.0 - 31250.0;
    check(tie);
    check(std::nextafter(tie, 1e9));
    check(std::nextafter(tie, -1e9));
    check(static_cast<double>(random() % 100000000) / 10000.0);
    if (const auto any = std::bit_cast<double>(random()); std::isfinite(any))
      check(any);
  }
  for (const double edge : {0.0, -0.0, 0.00005, 0.99995, 9.99995, 4503599627370495.5,
                            std::numeric_limits<double>::max(), -1e-300})
    check(edge);
}

} // namespace
} // namespace trassix
