// What a picture of the plan costs, drawn off-screen at 1920 x 1080 by the toolkit that draws the
// window: against the same lines and polygons alone, on plans of very different sizes, and what a
// mouse move costs before anything is drawn.
#include "canvas/drawn_calls.h"
#include "catalog/track_catalog.h"
#include "editing/canvas/canvas_script.h"
#include "editing/canvas/layout_painter.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/selection/picking.h"
#include "ratio.h"
#include "ui/canvas/gc_surface.h"

#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace trassix::bench {

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

/// Lays a winding track of straights, turnouts and curves, joined all along, on to the right.
void addRow(Layout& layout, Point from, int pieces) {
  struct Step {
    const char* article;
    std::int32_t enter;
  };
  static constexpr std::array<Step, 6> kSteps{
      {{"24172", 0}, {"24611", 0}, {"24130", 0}, {"24130", 1}, {"24130", 1}, {"24130", 0}}};
  WorldConnector front;
  front.x = from.x;
  front.y = from.y;
  std::int32_t before = -1;
  std::int32_t exit = -1;
  for (int i = 0; i < pieces; ++i) {
    const Step& step = kSteps[static_cast<std::size_t>(i) % kSteps.size()];
    const PieceDef& definition = *TrackCatalog::instance().find(step.article);
    const std::int32_t id =
        addPiece(layout, definition, AttachPose(definition, step.enter, front), 1, 0);
    if (before != -1)
      join(layout, id, step.enter, before, exit);
    before = id;
    exit = 1 - step.enter;
    front = ConnectorToWorld(*layout.findPiece(id), definition, exit);
  }
}

constexpr double kRowGap = 96;

/// Rows below one another, beginning at the origin.
Layout yard(int rows, int piecesInRow) {
  Layout layout;
  layout.ensureLevel();
  for (int row = 0; row < rows; ++row)
    addRow(layout, {0, row * kRowGap}, piecesInRow);
  return layout;
}

/// Draws a plan over and over on one bitmap.
class Screen {
 public:
  Screen(const Layout& layout, double zoom)
      : layout_(layout), index_(layout), view_(ViewTransform::ofScale(zoom, {40, 20})) {}

  void draw(Surface& surface) const {
    LayoutPainter(surface, {kWidth, kHeight}, view_, PaintOptions()).paint(layout_, index_);
  }

  /// One frame of the plan, as the window makes it.
  void frame() {
    withContext([this](wxGraphicsContext& context) {
      GcSurface surface(context);
      draw(surface);
    });
  }

  template <class Draw>
  void withContext(Draw draw) {
    wxMemoryDC memory(bitmap_);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(memory));
    draw(*context);
    context->Flush();
  }

  std::vector<std::size_t> visiblePieces() const {
    const Point low = view_.toWorld({0, 0});
    const Point high = view_.toWorld({kWidth, kHeight});
    return index_.inBox({low.x, low.y, high.x, high.y}, false);
  }

 private:
  const Layout& layout_;
  PlanIndex index_;
  ViewTransform view_;
  wxBitmap bitmap_{kWidth, kHeight};
};

void twoThousandPieces(benchmark::State& state) {
  const Layout layout = yard(44, 46);
  Screen screen(layout, 0.23);
  if (screen.visiblePieces().size() != layout.pieces().size()) {
    state.SkipWithError("not every piece is visible");
    return;
  }
  screen.withContext([&](wxGraphicsContext& context) {
    GcSurface measuring(context);
    DrawnCalls calls(measuring);
    screen.draw(calls);
    state.counters["lines and polygons"] = static_cast<double>(calls.count());
    state.counters["texts"] = static_cast<double>(calls.textCount());
    compare(
        state, 1.5, [&] { screen.frame(); },
        [&] { screen.withContext([&](wxGraphicsContext& other) { calls.handTo(other); }); });
  });
}
BENCHMARK(twoThousandPieces)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

void fewOfTenThousandPieces(benchmark::State& state) {
  // The window sees a part of the long rows, which is also drawn as a plan of its own.
  const Layout all = yard(100, 100);
  Screen large(all, 0.78);
  Layout part;
  part.ensureLevel();
  for (const std::size_t position : large.visiblePieces())
    part.edit().pieces.push_back(all.pieces()[position]);
  Screen small(part, 0.78);
  state.counters["visible"] = static_cast<double>(part.pieces().size());
  compare(
      state, 1.2, [&] { large.frame(); }, [&] { small.frame(); });
}
BENCHMARK(fewOfTenThousandPieces)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

/// The worst of many mouse moves over a plan of 10,000 pieces while something is carried: all that
/// happens before the window is painted, and the question whether the plan itself is to be drawn.
void mouseMoves(benchmark::State& state, void (*takeUp)(test::CanvasScript&)) {
  test::CanvasScript script(yard(100, 100));
  takeUp(script);
  double worst = 0;
  double sum = 0;
  constexpr int kMoves = 500;
  for (auto _ : state) {
    worst = sum = 0;
    for (int i = 0; i < kMoves; ++i) {
      const Point to{1000 + i * 3.7, 800 + i * 2.1};
      auto moved = [&] {
        script.move(to);
        benchmark::DoNotOptimize(script.canvas.planStamp());
      };
      const double time = seconds(moved);
      worst = std::max(worst, time);
      sum += time;
    }
    state.SetIterationTime(sum / kMoves);
  }
  char text[80];
  std::snprintf(text, sizeof text, "mean %.3f ms, worst %.3f ms, at most 1 ms", sum / kMoves * 1e3,
                worst * 1e3);
  state.SetLabel(text);
  if (worst > 1e-3)
    state.SkipWithError((std::string("too slow: ") + text).c_str());
}

void carryPiece(test::CanvasScript& script) {
  script.carry("24611", {900, 700});
}

void carryBlock(test::CanvasScript& script) {
  Block block;
  const std::vector<PlacedPiece>& pieces = script.pieces();
  block.content.pieces.assign(pieces.begin(), pieces.begin() + 200);
  script.canvas.carry(std::move(block), script.at({900, 700}), true);
}

void moveSelection(test::CanvasScript& script) {
  for (std::int32_t id = 1; id <= 200; ++id)
    setSelected(script.host.plan, {RecordKind::Piece, id}, true);
  script.dragTo({60, 0}, {900, 700});
}

BENCHMARK_CAPTURE(mouseMoves, carryingAPiece, carryPiece)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(mouseMoves, carryingABlock, carryBlock)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(mouseMoves, movingTheSelection, moveSelection)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace trassix::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  wxApp::SetInstance(new wxApp);
  if (!wxEntryStart(argc, argv))
    return 2;
  benchmark::RunSpecifiedBenchmarks();
  wxEntryCleanup();
}
