// Remembering a plan against a memcpy of the bytes it consists of. With the history full, both copy
// over the oldest of fifty; before that, both into fresh memory.
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

void pushHistory(benchmark::State& state, bool full) {
  const PlanContent content = test::randomPlan(1, static_cast<int>(state.range(0))).content();
  const std::vector<char> bytes(bytesOf(content), 'b');
  History history;
  std::vector<std::unique_ptr<char[]>> copies(History::kUndoLimit);
  std::size_t next = 0;
  const auto copyBytes = [&](bool fresh) {
    std::unique_ptr<char[]>& copy = copies[next];
    next = (next + 1) % copies.size();
    if (fresh || copy == nullptr)
      copy.reset(new char[bytes.size()]);
    std::memcpy(copy.get(), bytes.data(), bytes.size());
    benchmark::DoNotOptimize(copy.get());
  };
  for (std::size_t i = 0; full && i < History::kUndoLimit; ++i) {
    history.push(history.snapshot(content));
    copyBytes(true);
  }
  const auto push = [&] { history.push(history.snapshot(content)); };
  const auto copy = [&] { copyBytes(!full); };
  if (full) {
    compare(state, 3.0, push, copy);
    return;
  }
  const auto fillHistory = [&] {
    History fresh;
    for (int i = 0; i < 10; ++i)
      fresh.push(fresh.snapshot(content));
  };
  const auto fillMemory = [&] {
    std::vector<std::unique_ptr<char[]>> fresh(10);
    for (auto& block : fresh) {
      block.reset(new char[bytes.size()]);
      std::memcpy(block.get(), bytes.data(), bytes.size());
      benchmark::DoNotOptimize(block.get());
    }
  };
  compare(state, 3.0, fillHistory, fillMemory);
}
BENCHMARK_CAPTURE(pushHistory, full, true)->Arg(10000)->Arg(100000)->UseManualTime();
BENCHMARK_CAPTURE(pushHistory, fresh, false)->Arg(10000)->Arg(100000)->UseManualTime();

void pushGrowth(benchmark::State& state) {
  growth(state, 2.0, [](int pieces) {
    return [content = test::randomPlan(1, pieces).content(), history = History()]() mutable {
      history.push(history.snapshot(content));
    };
  });
}
BENCHMARK(pushGrowth)->UseManualTime()->Iterations(1);

} // namespace

} // namespace trassix::bench
