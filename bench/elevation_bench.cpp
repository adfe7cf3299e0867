// Lifting all that hangs on a change of height, against a plain walk over the same joints.
#include "editing/elevation/propagation.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "ratio.h"
#include "support/plan.h"

#include <unordered_set>
#include <vector>

namespace trassix::bench {

namespace {

constexpr int kPieces = 10000;

/// A main line in which every tenth piece is a turnout with a siding of eight straights.
Layout mainLine() {
  const PieceDef& straight = cataloguePiece("24188");
  const PieceDef& turnout = cataloguePiece("24612");
  Layout layout;
  layout.ensureLevel();
  const auto goOn = [&layout](const PieceDef& definition, Joint from) {
    const PlacedPiece& last = *layout.findPiece(from.target);
    const Pose pose = AttachPose(definition, 0, worldEnd(last, from.tconn));
    const std::int32_t id = addPiece(layout, definition, pose, 1, 0);
    join(layout, id, 0, from.target, from.tconn);
    return id;
  };
  std::int32_t front = addPiece(layout, straight, {}, 1, 0);
  for (int i = 1; static_cast<int>(layout.pieces().size()) < kPieces; ++i) {
    front = goOn(i % 10 == 0 ? turnout : straight, {front, 1});
    std::int32_t siding = front;
    for (int k = 0; i % 10 == 0 && k < 8; ++k)
      siding = goOn(straight, {siding, siding == front ? 2 : 1});
  }
  return layout;
}

/// Breadth first, over the joints that both sides know of.
void walk(const Layout& layout) {
  std::vector<const PlacedPiece*> queue{&layout.pieces().front()};
  std::unordered_set<std::int32_t> met{queue.front()->id};
  for (std::size_t k = 0; k < queue.size(); ++k)
    for (std::size_t i = 0; i < queue[k]->joints.size(); ++i)
      if (const PlacedPiece* next = joinedPiece(layout, *queue[k], i);
          next != nullptr && met.insert(next->id).second)
        queue.push_back(next);
  benchmark::DoNotOptimize(queue);
}

/// What a grade of the first piece brings about.
void propagation(benchmark::State& state) {
  const Layout layout = mainLine();
  PieceHeight tilted = heightOf(layout.pieces().front());
  tilted.grade = 2;
  compare(state, 3, "a breadth-first walk of the joints",
          timed([&] { benchmark::DoNotOptimize(planHeights(layout, std::span(&tilted, 1))); }),
          timed([&] { walk(layout); }));
}
BENCHMARK(propagation)->Name("propagation/10000")->Iterations(1);

/// The whole edit, which undo has to remember.
void propagationDone(benchmark::State& state) {
  Layout layout = mainLine();
  PieceHeight tilted = heightOf(layout.pieces().front());
  compare(state, 3.5, "a breadth-first walk, and a copy of the plan", timed([&] {
            tilted.grade = tilted.grade == 2 ? 1 : 2;
            applyHeights(layout, planHeights(layout, std::span(&tilted, 1)));
          }),
          timed([&] {
            const PlanContent copy = layout.content();
            benchmark::DoNotOptimize(copy);
            walk(layout);
          }));
}
BENCHMARK(propagationDone)->Name("propagationDone/10000")->Iterations(1);

} // namespace

} // namespace trassix::bench
