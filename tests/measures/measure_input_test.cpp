#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "support/comma_locale.h"

#include <gmock/gmock.h>

#include <optional>

namespace trassix {
namespace {

using testing::HasSubstr;

struct Case {
  const char* text;
  std::int32_t units;
  std::optional<double> value;
  const char* problem = "";
};

template <class Read>
void expectAll(const std::vector<Case>& cases, const Read& read) {
  for (const bool commas : {false, true}) {
    const test::CommaLocale locale(commas);
    for (const Case& tried : cases) {
      SCOPED_TRACE(tried.text);
      const NumberInput input = read(tried);
      EXPECT_EQ(input.good(), tried.value.has_value());
      if (input.good())
        EXPECT_NEAR(input.value, *tried.value, 1e-9);
      else
        EXPECT_THAT(input.problem, HasSubstr(tried.problem));
    }
  }
}

TEST(MeasureInput, readsLengths) {
  const std::vector<Case> cases{
      {"188.3", kMillimetres, 188.3},
      {" 188,3 mm ", kInches, 188.3},
      {"+7.5", kInches, 190.5},
      {"7.5in", kMillimetres, 190.5},
      {"3\"", kMillimetres, 76.2},
      {"1 INCH", kCentimetres, 25.4},
      {"-12", kCentimetres, -120},
      {",5", kCentimetres, 5},
      {"0,75 m", kMillimetres, 750},
      {"-250", kMillimetres, -250},
      {"1000", kMillimetres, 1000},
      {"", kMillimetres, {}, "A length is expected here, for example 188.3 mm."},
      {"  ", kInches, {}, "for example 7.413 in."},
      {"wide", kMillimetres, {}, "A length is expected"},
      {"nan", kMillimetres, {}, "A length is expected"},
      {"inf", kMillimetres, {}, "A length is expected"},
      {"1.234,5", kMillimetres, {}, "A length is expected"},
      {"12 ft", kMillimetres, {}, "The unit can be mm, cm, m or in."},
      {"12 3", kMillimetres, {}, "The unit can be"},
      {"-250.1", kMillimetres, {}, "At least -250.0 mm is needed here."},
      {"2 m", kInches, {}, "At most 39.370 in is possible here."},
  };
  expectAll(cases,
            [](const Case& tried) { return readLength(tried.text, tried.units, -250, 1000); });
}

TEST(MeasureInput, readsHeadingsAndShares) {
  expectAll({{"22.5", 0, 22.5},
             {"22,5\u00b0", 0, 22.5},
             {"-90", 0, 270},
             {"720 \u00b0", 0, 0},
             {"north", 0, {}, "An angle in degrees is expected here, for example 22.5."},
             {"5 mm", 0, {}, "An angle"},
             {"1000001", 0, {}, "An angle"}},
            [](const Case& tried) { return readHeading(tried.text); });
  expectAll({{"0", 0, 0},
             {"62,5 %", 0, 62.5},
             {"100%", 0, 100},
             {"-1", 0, {}, "A share from 0 to 100 % is expected here."},
             {"100.1", 0, {}, "A share"},
             {"half", 0, {}, "A share"}},
            [](const Case& tried) { return readPercent(tried.text); });
}

TEST(MeasureInput, showsNumbersAsShortAsTheyGo) {
  EXPECT_EQ(formatAngle(22.5), "22.5");
  EXPECT_EQ(formatAngle(24.28749), "24.287");
  EXPECT_EQ(formatAngle(-0.0001), "0");
  EXPECT_EQ(formatLength(-0.04, kMillimetres), "0.0 mm");
  EXPECT_EQ(formatSize(2410, 1100.04, kCentimetres), "241.00 \u00d7 110.00 cm");
}

} // namespace
} // namespace trassix
