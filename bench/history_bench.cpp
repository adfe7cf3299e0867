// Remembering a plan against a memcpy of the bytes it consists of. With the history full, both copy
// over the oldest of fifty; before that, both into new memory.
#include "document/history.h"
#include "ratio.h"
#include "support/random_plan.h"

#include <cstring>
#include <memory>
#include <vector>

namespace trassix::bench {

namespace {

template <class Record>
std::size_t bytesOf(const std::vector<Record>& records) {
  return records.size() * sizeof(Record);
}

std::size_t bytesOf(const PlanContent& content) {
  std::size_t bytes = bytesOf(content.pieces) + bytesOf(content.scenery) + bytesOf(content.labels) +
                      bytesOf(content.shapes) + bytesOf(content.tunnels) +
                      bytesOf(content.helices) + bytesOf(content.gradeRuns);
  for (const Shape& shape : content.shapes)
    bytes += bytesOf(shape.points);
  for (const Tunnel& tunnel : content.tunnels)
    bytes += bytesOf(tunnel.covers);
  return bytes;
}

PlanContent planOf(const benchmark::State& state) {
  return test::randomPlan(1, static_cast<int>(state.range(0))).content();
}

void pushOntoFull(benchmark::State& state) {
  const PlanContent content = planOf(state);
  const std::vector<char> bytes(bytesOf(content), 'b');
  History history;
  std::vector<std::vector<char>> copies(History::kUndoLimit, bytes);
  std::size_t oldest = 0;
  const auto push = [&] { history.push(history.snapshot(content)); };
  const auto copy = [&] {
    std::memcpy(copies[oldest].data(), bytes.data(), bytes.size());
    benchmark::DoNotOptimize(copies[oldest].data());
    oldest = (oldest + 1) % copies.size();
  };
  for (std::size_t i = 0; i < History::kUndoLimit; ++i)
    push();
  compare(state, 2.0, "memcpy over its bytes", timed(push), timed(copy));
}
BENCHMARK(pushOntoFull)->Name("history/full")->Arg(10000)->Arg(100000)->Iterations(1);

void pushOntoEmpty(benchmark::State& state) {
  constexpr int kSteps = 10;
  const PlanContent content = planOf(state);
  const std::vector<char> bytes(bytesOf(content), 'b');
  const auto fillHistory = [&] {
    History fresh;
    for (int i = 0; i < kSteps; ++i)
      fresh.push(fresh.snapshot(content));
  };
  const auto fillMemory = [&] {
    std::vector<std::unique_ptr<char[]>> fresh(kSteps);
    for (auto& block : fresh) {
      block.reset(new char[bytes.size()]);
      std::memcpy(block.get(), bytes.data(), bytes.size());
      benchmark::DoNotOptimize(block.get());
    }
  };
  compare(state, 3.0, "memcpy into new blocks", timed(fillHistory, kSteps),
          timed(fillMemory, kSteps));
}
BENCHMARK(pushOntoEmpty)->Name("history/new")->Arg(10000)->Arg(100000)->Iterations(1);

} // namespace

} // namespace trassix::bench
