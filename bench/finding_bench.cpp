// Finding things on large plans: where a carried piece snaps, what lies under the pointer, which
// piece has an id; and what the indexes for it cost.
#include "catalog/track_catalog.h"
#include "document/record_kinds.h"
#include "editing/joining/joining.h"
#include "editing/joining/snapping.h"
#include "editing/placing/placing.h"
#include "editing/selection/plan_index.h"
#include "editing/track/piece_outline.h"
#include "ratio.h"

#include <cmath>
#include <random>
#include <unordered_map>
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

/// The plain way to find what is near: ends filed in a hash map by the cell that they lie in.
class PlainGrid {
 public:
  explicit PlainGrid(const Layout& layout) {
    for (const PlacedPiece& piece : layout.pieces()) {
      const PieceDef& definition = *definitionOf(piece);
      for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition.connectors.size()); ++i) {
        const WorldConnector end = ConnectorToWorld(piece, definition, i);
        cells_[cellAt(end.x, end.y)].push_back({&piece, end});
      }
    }
  }

  /// The piece whose end is nearest, at most a cell away.
  const PlacedPiece* nearest(const Pose& to) const {
    const PlacedPiece* found = nullptr;
    double least = kCell;
    for (const double x : {to.x - kCell, to.x, to.x + kCell}) {
      for (const double y : {to.y - kCell, to.y, to.y + kCell}) {
        const auto cell = cells_.find(cellAt(x, y));
        if (cell == cells_.end())
          continue;
        for (const auto& [piece, end] : cell->second) {
          if (const double away = std::hypot(end.x - to.x, end.y - to.y); away < least) {
            least = away;
            found = piece;
          }
        }
      }
    }
    return found;
  }

 private:
  static constexpr double kCell = 25; // mm

  static std::int64_t cellAt(double x, double y) {
    return static_cast<std::int64_t>(std::floor(x / kCell)) * 1000003 +
           static_cast<std::int64_t>(std::floor(y / kCell));
  }

  struct End {
    const PlacedPiece* piece;
    WorldConnector at;
  };
  std::unordered_map<std::int64_t, std::vector<End>> cells_;
};

/// Where a pointer may be, all over the yard.
std::vector<Pose> spots(const Layout& layout, int count) {
  const PlacedPiece& last = layout.pieces().back();
  double right = 0;
  for (const PlacedPiece& piece : layout.pieces())
    right = std::max(right, piece.x);
  std::mt19937 random(7);
  std::uniform_real_distribution<double> x(0, right);
  std::uniform_real_distribution<double> y(0, last.y);
  std::uniform_real_distribution<double> turn(-30, 30);
  std::vector<Pose> poses;
  for (int i = 0; i < count; ++i)
    poses.push_back({x(random), y(random), turn(random)});
  return poses;
}

/// One query at each of many spots, once after the other.
template <class Query>
Way queries(const Layout& layout, int count, Query query) {
  return timed(
      [poses = spots(layout, count), query] {
        for (const Pose& pose : poses)
          query(pose);
      },
      count);
}

constexpr int kQueries = 2000;
constexpr int kPlainQueries = 20;

struct Snap {
  explicit Snap(int pieces) : plan(yard(pieces)) {}

  Way indexed() {
    return queries(plan, kQueries, [this](const Pose& pose) {
      benchmark::DoNotOptimize(index.findSnap(carried, pose));
    });
  }
  Way plain() {
    return queries(plan, kPlainQueries, [this](const Pose& pose) {
      benchmark::DoNotOptimize(FindSnap(carried, pose, plan.pieces()));
    });
  }

  const PieceDef& carried = *TrackCatalog::instance().find("24612");
  Layout plan;
  SnapIndex index{plan};
};

struct HitTest {
  explicit HitTest(int pieces) : plan(yard(pieces)) {
    for (const PlacedPiece& piece : plan.pieces())
      outlines.push_back(&outlineOf(definitionOf(piece)));
  }

  Way indexed() {
    return queries(plan, kQueries, [this](const Pose& pose) {
      benchmark::DoNotOptimize(index.hits({pose.x, pose.y}, 4));
    });
  }
  /// The loops have the outlines at hand, which is all that could be spared them.
  Way plain() {
    return queries(plan, kPlainQueries, [this](const Pose& pose) {
      std::vector<std::size_t> hits;
      for (std::size_t i = 0; i < outlines.size(); ++i)
        if (covers(*outlines[i], poseOf(plan.pieces()[i]), {pose.x, pose.y}, 4))
          hits.push_back(i);
      benchmark::DoNotOptimize(hits);
    });
  }

  Layout plan;
  PlanIndex index{plan};
  std::vector<const PieceOutline*> outlines;
};

template <class Finding>
void againstLoops(benchmark::State& state) {
  Finding finding(10000);
  compare(state, 1.0 / 50, "plain loops", finding.indexed(), finding.plain());
}
BENCHMARK(againstLoops<Snap>)->Name("snap/10000")->Iterations(1);
BENCHMARK(againstLoops<HitTest>)->Name("hitTest/10000")->Iterations(1);

/// On a plan whose size would show in anything that looks at all of it, or at a share.
template <class Finding>
void againstGrid(benchmark::State& state) {
  Finding finding(100000);
  const PlainGrid grid(finding.plan);
  compare(state, 1.0, "nearest end by a hash map of cells", finding.indexed(),
          queries(finding.plan, kQueries,
                  [&grid](const Pose& pose) { benchmark::DoNotOptimize(grid.nearest(pose)); }));
}
BENCHMARK(againstGrid<Snap>)->Name("snap/100000")->Iterations(1);
BENCHMARK(againstGrid<HitTest>)->Name("hitTest/100000")->Iterations(1);

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
  compare(state, 0.6, "the same, ids in document order", timed([&] { lookUpEvery(falling); }),
          timed([&] { lookUpEvery(rising); }));
}
BENCHMARK(idsInAnyOrder)->Name("fallingIds/10000")->Iterations(1);

void edit(benchmark::State& state) {
  Layout layout = yard(10000);
  const auto dropAndUndo = [&layout] {
    dropPiece(layout, "24188", {-500, -500, 90}, {}, true);
    layout.undo();
  };
  PlanContent before;
  PlanContent after;
  const auto copyAndLookAtEnds = [&] {
    before = layout.content();
    after = layout.content();
    for (const PlacedPiece& piece : layout.pieces()) {
      const PieceDef& definition = *definitionOf(piece);
      for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition.connectors.size()); ++i)
        benchmark::DoNotOptimize(ConnectorToWorld(piece, definition, i));
    }
  };
  compare(state, 2.8, "two copies, and where all ends lie", timed(dropAndUndo),
          timed(copyAndLookAtEnds));
}
BENCHMARK(edit)->Name("dropAndUndo/10000")->Iterations(1);

void indexes(benchmark::State& state) {
  const Layout layout = yard(10000);
  const auto indexBoth = [&layout] {
    benchmark::DoNotOptimize(SnapIndex(layout));
    benchmark::DoNotOptimize(PlanIndex(layout));
  };
  const auto fileEnds = [&layout] { benchmark::DoNotOptimize(PlainGrid(layout)); };
  compare(state, 1.6, "a hash map of cells", timed(indexBoth), timed(fileEnds));
}
BENCHMARK(indexes)->Name("indexes/10000")->Iterations(1);

} // namespace

} // namespace trassix::bench
