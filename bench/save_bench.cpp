// Putting together a layout file, against nothing but the conversion of the numbers in it, and
// writing a rescue copy, against putting it together.
#include "document/layout_writer.h"
#include "document/rescue/rescue_session.h"
#include "ratio.h"
#include "support/random_plan.h"
#include "support/temp_folder.h"

#include <array>
#include <charconv>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <vector>

namespace trassix::bench {

namespace {

struct Numbers {
  std::vector<std::int32_t> integers;
  std::vector<double> reals;
};

/// Every number of the file, as it stands there.
void collect(const pugi::xml_node& node, Numbers& numbers) {
  static const std::set<std::string> kTexts{"version", "encoding", "name",  "cat",
                                            "item",    "text",     "label", "variant"};
  for (const pugi::xml_attribute& attribute : node.attributes()) {
    if (kTexts.contains(attribute.name()))
      continue;
    if (std::string_view(attribute.value()).find('.') == std::string_view::npos)
      numbers.integers.push_back(attribute.as_int());
    else
      numbers.reals.push_back(attribute.as_double());
  }
  for (const pugi::xml_node& child : node.children())
    collect(child, numbers);
}

void save(benchmark::State& state) {
  const Layout plan = test::randomPlan(1, static_cast<int>(state.range(0)));
  std::string text;
  writeLayout(plan, "plan", text);
  pugi::xml_document document;
  document.load_buffer(text.data(), text.size());
  Numbers numbers;
  collect(document, numbers);

  const auto write = [&plan] {
    writeLayout(plan, "plan", [](std::string_view part) { benchmark::DoNotOptimize(part.data()); });
  };
  const auto convert = [&numbers] {
    std::array<char, 64> out{};
    for (const std::int32_t value : numbers.integers)
      benchmark::DoNotOptimize(std::to_chars(out.begin(), out.end(), value));
    for (const double value : numbers.reals)
      benchmark::DoNotOptimize(
          std::to_chars(out.begin(), out.end(), value, std::chars_format::fixed, 4));
  };
  compare(state, 1.0, "to_chars of its numbers only", timed(write), timed(convert));
}
BENCHMARK(save)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(1);

void rescueCopy(benchmark::State& state) {
  const Layout plan = test::randomPlan(1, static_cast<int>(state.range(0)));
  const test::TempFolder folder;
  RescueSession session(folder.path());
  std::string text;
  const auto copy = [&] {
    if (const std::string problem = session.write(plan, "plan"); !problem.empty())
      state.SkipWithError(problem.c_str());
  };
  const auto make = [&] { writeLayout(plan, "plan", text); };
  compare(state, 3.0, "making its text", timed(copy), timed(make));
}
BENCHMARK(rescueCopy)->Arg(10000)->Iterations(1);

} // namespace

} // namespace trassix::bench
