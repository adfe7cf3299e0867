#include "measures/measure_input.h"

#include "geometry/pose.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

namespace trassix {

namespace {

constexpr double kMostDegrees = 100000;

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kBlank);
  return first == std::string_view::npos
             ? std::string_view{}
             : text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

/// The number that the text begins with, and what follows it.
std::optional<std::pair<double, std::string_view>> leadingNumber(std::string_view text) {
  text = trimmed(text);
  if (text.starts_with('+'))
    text.remove_prefix(1);
  std::string pointed(text);
  std::ranges::replace(pointed, ',', '.');
  double value = 0;
  const auto [end, error] = std::from_chars(pointed.data(), pointed.data() + pointed.size(), value,
                                            std::chars_format::fixed);
  if (error != std::errc{} || !std::isfinite(value))
    return {};
  return {{value, trimmed(text.substr(static_cast<std::size_t>(end - pointed.data())))}};
}

/// Millimetres in the unit of this name.
std::optional<double> unitNamed(std::string_view name) {
  constexpr std::array<std::pair<std::string_view, double>, 6> kNames{
      {{"mm", 1}, {"cm", 10}, {"m", 1000}, {"in", 25.4}, {"inch", 25.4}, {"\"", 25.4}}};
  std::string lower(name);
  for (char& letter : lower)
    if (letter >= 'A' && letter <= 'Z')
      letter = static_cast<char>(letter - 'A' + 'a');
  const auto found = std::ranges::find(kNames, lower, &std::pair<std::string_view, double>::first);
  return found == kNames.end() ? std::nullopt : std::optional(found->second);
}

NumberInput refused(std::string problem) {
  return {0, std::move(problem)};
}

} // namespace

NumberInput readLength(std::string_view text, std::int32_t units, double least, double most) {
  const auto number = leadingNumber(text);
  // A second comma or point means digits in groups, which nothing tells from decimals.
  if (!number || number->second.starts_with('.') || number->second.starts_with(','))
    return refused(tr("A length is expected here, for example %1%.", {formatLength(188.3, units)}));
  const auto& [value, name] = *number;
  const std::optional<double> unit = name.empty() ? millimetresPer(units) : unitNamed(name);
  if (!unit)
    return refused(tr("The unit can be mm, cm, m or in."));
  const double mm = value * *unit;
  if (mm < least)
    return refused(tr("At least %1% is needed here.", {formatLength(least, units)}));
  if (mm > most)
    return refused(tr("At most %1% is possible here.", {formatLength(most, units)}));
  return {mm, {}};
}

NumberInput readHeading(std::string_view text) {
  const auto number = leadingNumber(text);
  if (!number || !(number->second.empty() || number->second == "\u00b0") ||
      std::abs(number->first) > kMostDegrees)
    return refused(tr("An angle in degrees is expected here, for example 22.5."));
  return {normaliseHeading(number->first), {}};
}

NumberInput readPercent(std::string_view text) {
  const auto number = leadingNumber(text);
  if (!number || !(number->second.empty() || number->second == "%") || number->first < 0 ||
      number->first > 100)
    return refused(tr("A share from 0 to 100 % is expected here."));
  return {number->first, {}};
}

NumberInput readGrade(std::string_view text, std::string_view sign, double most) {
  const auto number = leadingNumber(text);
  if (!number || !(number->second.empty() || number->second == sign))
    return refused(tr("A grade is expected here, for example %1%.", {formatFixed(2.5, 1)}));
  if (std::abs(number->first) > most)
    return refused(
        tr("At most %1% is possible here.", {formatAngle(most) + " " + std::string(sign)}));
  return {number->first, {}};
}

std::string formatAngle(double degrees) {
  constexpr double kThousandths = 1000;
  const double rounded = std::round(degrees * kThousandths) / kThousandths;
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), rounded + 0.0);
  return {text.data(), end.ptr};
}

} // namespace trassix
