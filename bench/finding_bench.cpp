// Finding things on large plans: where a carried piece snaps, what lies under the pointer, which
// piece has an id. Against plain loops over all pieces, on plans of very different sizes and with
// ids in another order.
#include "catalog/track_catalog.h"
#include "editing/joining/joining.h"
#include "editing/joining/snapping.h"
#include "editing/placing/placing.h"
#include "editing/selection/plan_index.h"
#include "editing/track/piece_outline.h"
#include "ratio.h"

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace trassix::bench {

namespace {

/// A yard of parallel tracks, each open at every tenth joint.
Layout yard(int pieces) {
  const PieceDef& straight = *TrackCatalog::instance().find("24188");
  Layout layout;
  layout.ensureLevel();
  const int inRow = std::max(1, static_cast<int>(std::sqrt(pieces / 3.0)));
  for (int i = 0; i < pieces; ++i) {
    const int column = i % inRow;
    const int gaps = column / 10;
    const Pose pose{column * straight.length + gaps * 60.0, i / inRow * 64.3, 0};
    const std::int32_t id = addPiece(layout, straight, pose, 1, 0);
    if (column % 10 != 0)
      join(layout, id, 0, id - 1, 1);
  }
  return layout;
}

/// Where a pointer may be that wanders about in the middle of the yard.
std::vector<Pose> spots(const Layout& layout, int count) {
  const PlacedPiece& middle = layout.pieces()[layout.pieces().size() / 2];
  std::mt19937 random(7);
  std::uniform_real_distribution<double> aside(-1000, 1000);
  std::uniform_real_distribution<double> turn(-30, 30);
  std::vector<Pose> poses;
  for (int i = 0; i < count; ++i)
    poses.push_back({middle.x + aside(random), middle.y + aside(random), turn(random)});
  return poses;
}

/// Seconds that one of the queries takes, the best of some runs over all.
template <class Query>
double secondsFor(const std::vector<Pose>& poses, int runs, Query query) {
  auto all = [&] {
    for (const Pose& pose : poses)
      query(pose);
  };
  double best = std::numeric_limits<double>::infinity();
  for (int run = 0; run < runs; ++run)
    best = std::min(best, seconds(all));
  return best / static_cast<double>(poses.size());
}

const PieceDef& carried() {
  return *TrackCatalog::instance().find("24612");
}

/// What a query of one kind costs in seconds, by index and by plain loops.
struct Cost {
  double indexed = 0;
  double plain = 0;
};

constexpr int kQueries = 2000;
constexpr int kPlainQueries = 10;

Cost snapCost(int pieces) {
  const Layout layout = yard(pieces);
  const SnapIndex index(layout);
  Cost cost;
  cost.indexed = secondsFor(spots(layout, kQueries), 30, [&](const Pose& pose) {
    benchmark::DoNotOptimize(index.findSnap(carried(), pose));
  });
  cost.plain = secondsFor(spots(layout, kPlainQueries), 5, [&](const Pose& pose) {
    benchmark::DoNotOptimize(FindSnap(carried(), pose, layout.pieces()));
  });
  return cost;
}

Cost hitCost(int pieces) {
  const Layout layout = yard(pieces);
  const PlanIndex index(layout);
  // The loops have the outlines at hand, which is all that could be spared them.
  std::vector<const PieceOutline*> outlines;
  for (const PlacedPiece& piece : layout.pieces())
    outlines.push_back(&outlineOf(definitionOf(piece)));
  Cost cost;
  cost.indexed = secondsFor(spots(layout, kQueries), 30, [&](const Pose& pose) {
    benchmark::DoNotOptimize(index.hits({pose.x, pose.y}, 4));
  });
  cost.plain = secondsFor(spots(layout, kPlainQueries), 5, [&](const Pose& pose) {
    std::vector<std::size_t> hits;
    for (std::size_t i = 0; i < outlines.size(); ++i)
      if (covers(*outlines[i], poseOf(layout.pieces()[i]), {pose.x, pose.y}, 4))
        hits.push_back(i);
    benchmark::DoNotOptimize(hits);
  });
  return cost;
}

/// At 10,000 pieces the index has to be 50 times as fast as the loops, and from 1,000 to 100,000
/// pieces a query must not become slower but for memory that is farther away.
void finding(benchmark::State& state, Cost (*costOf)(int)) {
  keepMemory();
  Cost small;
  Cost medium;
  Cost large;
  for (auto _ : state) {
    small = costOf(1000);
    medium = costOf(10000);
    large = costOf(100000);
    state.SetIterationTime(medium.indexed);
  }
  const double times = medium.plain / medium.indexed;
  const double growth = large.indexed / small.indexed;
  char text[160];
  std::snprintf(text, sizeof text,
                "%.2f us against %.0f us: %.0f times; %.2f, %.2f, %.2f us at 1, 10, 100 thousand",
                medium.indexed * 1e6, medium.plain * 1e6, times, small.indexed * 1e6,
                medium.indexed * 1e6, large.indexed * 1e6);
  state.SetLabel(text);
  if (times < 50 || growth > 1.5)
    state.SkipWithError((std::string("too slow: ") + text).c_str());
}
BENCHMARK_CAPTURE(finding, snap, snapCost)->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(finding, hitTest, hitCost)->UseManualTime()->Iterations(1);

/// The same plan as if it came from elsewhere, with its ids falling.
Layout withFallingIds(Layout layout) {
  std::vector<PlacedPiece>& pieces = layout.edit().pieces;
  const auto turned = [count = static_cast<std::int32_t>(pieces.size())](std::int32_t id) {
    return id == -1 ? -1 : count + 1 - id;
  };
  for (PlacedPiece& piece : pieces) {
    piece.id = turned(piece.id);
    for (Joint& joint : piece.joints)
      joint.target = turned(joint.target);
  }
  return layout;
}

/// Every piece and as many that do not exist, edited or looked for in turns after an edit of the
/// plan.
void lookUpEvery(Layout& layout) {
  const auto count = static_cast<std::int32_t>(layout.pieces().size());
  layout.edit().currentGrade = {};
  for (std::int32_t id = 1; id <= 2 * count; ++id)
    benchmark::DoNotOptimize(id % 2 == 0 ? layout.findPiece(id) : layout.editPiece(id));
}

void idsInAnyOrder(benchmark::State& state) {
  Layout rising = yard(10000);
  Layout falling = withFallingIds(rising);
  compare(
      state, 1.5, [&] { lookUpEvery(falling); }, [&] { lookUpEvery(rising); });
}
BENCHMARK(idsInAnyOrder)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

/// What an edit on a large plan costs, and bringing both indexes up to date after it.
void editOfTenThousandPieces(benchmark::State& state) {
  Layout layout = yard(10000);
  for (auto _ : state) {
    dropPiece(layout, "24188", {-500, -500, 90}, {}, true);
    layout.undo();
  }
}
BENCHMARK(editOfTenThousandPieces)->Unit(benchmark::kMillisecond);

void indexesOfTenThousandPieces(benchmark::State& state) {
  const Layout layout = yard(10000);
  for (auto _ : state) {
    benchmark::DoNotOptimize(SnapIndex(layout));
    benchmark::DoNotOptimize(PlanIndex(layout));
  }
}
BENCHMARK(indexesOfTenThousandPieces)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace trassix::bench
