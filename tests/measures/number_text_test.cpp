#include "measures/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

namespace trassix {
namespace {

template <class Number>
struct Forms {
  NumberError (*read)(std::string_view, Number&);
  std::vector<std::pair<const char*, Number>> good;
  std::vector<const char*> invalid;
  std::vector<const char*> outOfRange;

  void check() const {
    Number value = 77;
    for (const auto& [text, number] : good) {
      EXPECT_EQ(read(text, value), NumberError::None) << text;
      EXPECT_EQ(value, number) << text;
    }
    value = 77;
    for (const char* text : invalid)
      EXPECT_EQ(read(text, value), NumberError::Invalid) << text;
    for (const char* text : outOfRange)
      EXPECT_EQ(read(text, value), NumberError::OutOfRange) << text;
    EXPECT_EQ(value, 77);
  }
};

TEST(NumberText, readsTheFormsOfTheStandardConversions) {
  // clang-format off
  Forms<double>{readReal,
    {{"12.5", 12.5}, {"-12.5000", -12.5}, {" \t\n+3", 3}, {"1e3x", 1000}, {".5", 0.5}, {"7.", 7},
     {"1e", 1}, {"12.5.7", 12.5}, {"0x1.8p3", 12}, {"-0X.8", -0.5}, {"0x", 0}, {"0xg", 0},
     {"12,5", 12}, {"0.1", 0.1}, {"123456789012345.6", 123456789012345.6},
     {"9007199254740993.0000", 9007199254740992.0}, {"4e-320", 4e-320}},
    {"", " ", "-", "+-1", "- 1", ".", "abc", "nan", "-inf", "INFINITY"},
    {"1e999", "-1e-999", "0x1p9999"}}.check();
  Forms<std::int32_t>{readInteger,
    {{"42", 42}, {"\v\f\r -7mm", -7}, {"+5.9", 5}, {"007", 7}, {"2147483647", 2147483647},
     {"-2147483648", -2147483647 - 1}, {"0x10", 0}},
    {"", "+", "-+1", "x1"},
    {"2147483648", "-2147483649", "99999999999999999999999"}}.check();
  // clang-format on
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
