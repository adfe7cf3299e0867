// Reading a layout file into a plan, against a general XML parser that only parses the same bytes.
// Either finds the process as a file is opened in it: the memory it fills has to be got first.
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "ratio.h"
#include "support/random_plan.h"

#include <pugixml.hpp>
#include <string>

namespace trassix::bench {

namespace {

void load(benchmark::State& state) {
  std::string text;
  writeLayout(test::randomPlan(1, static_cast<int>(state.range(0))), "plan", text);
  const auto read = [&text] {
    Layout layout;
    std::string name;
    readLayout(text, layout, name);
    benchmark::DoNotOptimize(layout.pieces().data());
  };
  const auto parse = [&text] {
    pugi::xml_document document;
    document.load_buffer(text.data(), text.size());
    benchmark::DoNotOptimize(document.first_child());
  };
  compare(state, 1.1, "parsing the XML only", timedInFreshMemory(read), timedInFreshMemory(parse));
}
BENCHMARK(load)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(1);

} // namespace

} // namespace trassix::bench
