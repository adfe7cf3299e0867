// What a picture of the plan costs, drawn off-screen at 1920 x 1080 by the toolkit that draws the
// window: against the same picture drawn plainly, on plans of very different sizes, and what a
// mouse move costs until it is painted.
#include "canvas/plain_drawing.h"
#include "canvas/yard.h"
#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/canvas/canvas_script.h"
#include "editing/canvas/layout_painter.h"
#include "editing/placing/placing.h"
#include "editing/selection/content_box.h"
#include "editing/selection/picking.h"
#include "ratio.h"
#include "ui/canvas/gc_surface.h"
#include "ui/canvas/plan_picture.h"

#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace trassix::bench {

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

template <class Draw>
void drawOn(wxBitmap& bitmap, Draw draw) {
  wxMemoryDC memory(bitmap);
  const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(memory));
  draw(*context);
  context->Flush();
}

/// Measures as the screen does and keeps only the texts.
class TextKeeper : public Surface {
 public:
  explicit TextKeeper(Surface& screen) : screen_(screen) {}

  std::vector<ShownText> texts;

  void polyline(std::span<const Point>, const Stroke&) override {}
  void polygon(std::span<const Point>, std::optional<Rgba>, std::optional<Stroke>) override {}
  void segments(std::span<const Point>, const Stroke&) override {}
  void circle(Point, double, std::optional<Rgba>, std::optional<Stroke>) override {}
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override {
    texts.push_back({std::string(text), centre, textSize(text, style), toRadians(degrees), style});
  }
  SizePx textSize(std::string_view text, const TextStyle& style) override {
    return screen_.textSize(text, style);
  }

 private:
  Surface& screen_;
};

/// Draws a plan over and over on one bitmap.
class Screen {
 public:
  Screen(const Layout& layout, const ViewTransform& view)
      : layout_(layout), index_(layout), view_(view) {}

  /// One frame of the plan, as the window makes it.
  void frame() {
    drawOn(bitmap_, [this](wxGraphicsContext& context) {
      GcSurface surface(context);
      draw(surface);
    });
  }
  void plainFrame(const PlainDrawing& drawing) {
    drawOn(bitmap_, [&](wxGraphicsContext& context) { drawing.draw(context); });
  }

  PlainDrawing plainDrawing() {
    std::vector<ShownText> texts;
    drawOn(bitmap_, [&](wxGraphicsContext& context) {
      GcSurface measuring(context);
      TextKeeper keeper(measuring);
      draw(keeper);
      texts = std::move(keeper.texts);
    });
    return {layout_, view_, {kWidth, kHeight}, std::move(texts)};
  }

  wxImage picture() const { return bitmap_.ConvertToImage(); }

  std::vector<std::size_t> visiblePieces() const {
    const Point low = view_.toWorld({0, 0});
    const Point high = view_.toWorld({kWidth, kHeight});
    return index_.inBox({low.x, low.y, high.x, high.y}, false);
  }

 private:
  void draw(Surface& surface) const {
    LayoutPainter(surface, {kWidth, kHeight}, view_, PaintOptions()).paint(layout_, index_);
  }

  const Layout& layout_;
  PlanIndex index_;
  ViewTransform view_;
  wxBitmap bitmap_{kWidth, kHeight};
};

/// The share of pixels that differ by more than 32 of 255 in a colour.
double difference(const wxImage& a, const wxImage& b) {
  constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;
  std::size_t different = 0;
  for (std::size_t i = 0; i < kPixels; ++i) {
    const auto differs = [&](std::size_t k) {
      return std::abs(a.GetData()[i * 3 + k] - b.GetData()[i * 3 + k]) > 32;
    };
    different += differs(0) || differs(1) || differs(2);
  }
  return static_cast<double>(different) / kPixels;
}

ViewTransform fitted(const Layout& layout) {
  ViewTransform view;
  view.fit(contentBox(layout).value_or(Box{}), kWidth, kHeight);
  return view;
}

void frame(benchmark::State& state, const Layout& layout, const ViewTransform& view, double limit) {
  Screen screen(layout, view);
  if (screen.visiblePieces().size() != layout.pieces().size()) {
    state.SkipWithError("not every piece is visible");
    return;
  }
  const PlainDrawing plain = screen.plainDrawing();
  screen.frame();
  const wxImage ours = screen.picture();
  screen.plainFrame(plain);
  const double different = difference(ours, screen.picture());
  state.counters["different pixels"] = different;
  if (different > 0.01) {
    state.SkipWithError("another picture than the plain drawing's");
    return;
  }
  compare(state, limit, "plain drawing of the same", timed([&] { screen.frame(); }),
          timed([&] { screen.plainFrame(plain); }));
}

void frameOfTwoThousand(benchmark::State& state) {
  const Layout layout = yard(44, 46);
  frame(state, layout, ViewTransform::ofScale(0.23, {40, 20}), 0.7);
}
BENCHMARK(frameOfTwoThousand)->Name("frame/2000visible")->Iterations(1);

/// A town all over the yard.
void frameWithScenery(benchmark::State& state) {
  Layout layout = yard(44, 46);
  static constexpr std::array kItems{
      "house.detached", "tree.broad.l", "stn.small",  "tree.fir.m",   "farm.barn", "forest",
      "road.minor",     "shed.loco1",   "tree.fruit", "sig.sem.home", "pond",      "church.village",
      "plat.island77",  "house.corner", "lamp.yard",  "goods.shed",   "tree.bush", "br.girder"};
  constexpr int kColumns = 25;
  for (int i = 0; i < 500; ++i) {
    const Point at{150 + i % kColumns * 330.0, 100 + i / kColumns * 211.0};
    dropScenery(layout, kItems[static_cast<std::size_t>(i) % kItems.size()],
                {at.x, at.y, i % 4 * 90.0});
  }
  layout.clearSelection();
  frame(state, layout, ViewTransform::ofScale(0.23, {40, 20}), 0.7);
}
BENCHMARK(frameWithScenery)->Name("frame/500scenery")->Iterations(1);

void frameOfTenThousand(benchmark::State& state) {
  const Layout layout = yard(100, 100);
  frame(state, layout, fitted(layout), 0.7);
}
BENCHMARK(frameOfTenThousand)->Name("frame/10000visible")->Iterations(1);

/// Of long rows the window sees a part, which is also a plan of its own.
struct CloseUp {
  CloseUp() {
    part.ensureLevel();
    for (const std::size_t position : Screen(all, view).visiblePieces())
      part.edit().pieces.push_back(all.pieces()[position]);
  }

  ViewTransform view = ViewTransform::ofScale(0.78, {40, 20});
  Layout all = yard(100, 100);
  Layout part;
};

void frameFromCloseUp(benchmark::State& state) {
  const CloseUp close;
  frame(state, close.part, close.view, 1.2);
}
BENCHMARK(frameFromCloseUp)->Name("frame/200visible")->Iterations(1);

void frameOfPart(benchmark::State& state) {
  const CloseUp close;
  Screen large(close.all, close.view);
  Screen small(close.part, close.view);
  compare(state, 1.2, "a plan of those alone", timed([&] { large.frame(); }),
          timed([&] { small.frame(); }));
}
BENCHMARK(frameOfPart)->Name("frame/200of10000visible")->Iterations(1);

/// A plan as the window shows it while the mouse moves.
class BusyWindow {
 public:
  BusyWindow() : BusyWindow(yard(kRows, kRows), {kWidth, kHeight}) { script.canvas.fit(); }
  BusyWindow(Layout plan, wxSize size, double contentScale = 1)
      : script(std::move(plan)), shown_{size, contentScale, 1} {
    script.canvas.resize({static_cast<double>(size.x), static_cast<double>(size.y)});
    window_.CreateScaled(size.x, size.y, wxBITMAP_SCREEN_DEPTH, contentScale);
  }

  test::CanvasScript script;

  /// Pieces from the beginnings of some rows, close together.
  std::vector<PlacedPiece> group(std::size_t size) const {
    constexpr std::size_t kColumns = 20;
    std::vector<PlacedPiece> pieces;
    for (std::size_t i = 0; i < size; ++i)
      pieces.push_back(script.pieces()[i / kColumns * kRows + i % kColumns]);
    return pieces;
  }

  void paint() {
    wxMemoryDC window(window_);
    picture_.draw(window, shown_, false);
    const bool bodyDrawn = picture_.drawBody(window);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(window));
    GcSurface surface(*context, shown_.contentScale, &picture_.texts());
    script.canvas.paintOverlay(surface, !bodyDrawn);
  }

  /// As if nothing of it had been kept.
  void paintAll() {
    picture_.forget();
    paint();
  }

  /// The mouse goes about, so far that what hangs on it stays in view, and each move is painted.
  Way moves() {
    constexpr int kMoves = 10;
    return timed(
        [this] {
          for (int i = 0; i < kMoves; ++i) {
            ++moves_;
            script.move(script.canvas.view().toWorld(
                {std::round(kWidth * (0.4 + 0.3 * std::sin(moves_ * 0.37))),
                 std::round(kHeight * (0.4 + 0.3 * std::cos(moves_ * 0.23)))}));
            paint();
          }
        },
        kMoves);
  }

  /// The least that a move takes: the kept picture, and over it a plain drawing of so many pieces.
  Way plainMoves(std::size_t pieces) {
    auto part = std::make_shared<Layout>();
    part->edit().pieces = group(pieces);
    const PlainDrawing plain(*part, script.canvas.view(), {kWidth, kHeight}, {});
    return timed([this, part, plain] {
      wxMemoryDC window(window_);
      picture_.draw(window, shown_, false);
      const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(window));
      plain.drawTrack(*context);
    });
  }

 private:
  static constexpr std::size_t kRows = 100;

  int moves_ = 0;
  PlanPicture picture_{script.canvas};
  PlanPicture::Window shown_;
  wxBitmap window_;
};

void point(BusyWindow&, std::size_t) {}

void takeFromPalette(BusyWindow& window, std::size_t) {
  window.script.carry("24611", {900, 700});
}

void carryBlock(BusyWindow& window, std::size_t pieces) {
  const auto block = std::make_shared<Block>();
  block->content.pieces = window.group(pieces);
  window.script.canvas.carry(block, window.script.at({900, 700}), true);
}

void drag(BusyWindow& window, std::size_t pieces) {
  for (const PlacedPiece& piece : window.group(pieces))
    setSelected(window.script.host.plan, {RecordKind::Piece, piece.id}, true);
  window.script.dragTo({60, 0}, {900, 700});
}

void move(benchmark::State& state, void (*takeUp)(BusyWindow&, std::size_t)) {
  const auto pieces = static_cast<std::size_t>(state.range(0));
  BusyWindow window;
  takeUp(window, pieces);
  compare(state, 1.3, "kept picture, plain drawing of those", window.moves(),
          window.plainMoves(pieces));
}
BENCHMARK_CAPTURE(move, pointing, point)->Arg(0)->Iterations(1);
BENCHMARK_CAPTURE(move, fromPalette, takeFromPalette)->Arg(1)->Iterations(1);
BENCHMARK_CAPTURE(move, block, carryBlock)->Arg(500)->Iterations(1);
BENCHMARK_CAPTURE(move, drag, drag)->Arg(1)->Arg(500)->Iterations(1);

void pan(benchmark::State& state, bool grades) {
  Layout plan = yard(44, 46);
  if (grades)
    for (PlacedPiece& piece : plan.edit().pieces)
      piece.grade = piece.id % 5;
  BusyWindow window(std::move(plan), {1378, 926}, static_cast<double>(state.range(0)));
  EditorSwitches switches = window.script.host.workspace.switches();
  switches.grades = grades;
  window.script.host.workspace.setSwitches(switches);
  window.script.canvas.fit();
  window.paint();
  int step = 0;
  const auto panned = [&] {
    // There and back on both axes, so that every piece stays near.
    const double by = step++ % 2 == 0 ? 60 : -60;
    ViewTransform& view = window.script.canvas.view();
    view.panTo({view.origin().x + by, view.origin().y + by});
    window.paint();
  };
  compare(state, 0.10, "the whole picture", timed(panned), timed([&] { window.paintAll(); }));
}
BENCHMARK_CAPTURE(pan, plain, false)->Name("pan")->Arg(1)->Arg(2)->Iterations(1);
BENCHMARK_CAPTURE(pan, grades, true)->Name("pan/grades")->Arg(1)->Iterations(1);

void dragOfFiveHundred(benchmark::State& state) {
  BusyWindow window;
  drag(window, 500);
  compare(state, 0.2, "the whole picture", window.moves(), timed([&] { window.paintAll(); }));
}
BENCHMARK(dragOfFiveHundred)->Name("drag/500of10000")->Iterations(1);

} // namespace

} // namespace trassix::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  wxApp::SetInstance(new wxApp);
  if (!wxEntryStart(argc, argv))
    return 2;
  wxInitAllImageHandlers();
  benchmark::RunSpecifiedBenchmarks();
  wxEntryCleanup();
}
