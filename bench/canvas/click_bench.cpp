// What a click takes in the real window, from pressing the button until canvas, properties and
// tally are at rest again, against drawing all of the plan.
#include "canvas/yard.h"
#include "document/plan_content.h"
#include "editing/canvas/canvas.h"
#include "editing/selection/selection.h"
#include "ratio.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/frame/main_frame.h"

#include <wx/dcmemory.h>
#include <wx/evtloop.h>

#include <memory>
#include <utility>
#include <vector>

namespace trassix::bench {

namespace {

/// The program's window over a plan, with so much room for it.
class RealWindow {
 public:
  RealWindow(Layout plan, wxSize room) : frame_(new MainFrame) {
    frame_->layout() = std::move(plan);
    frame_->Show();
    while (wxWindow::FindWindowByName("tally", frame_) == nullptr)
      settle();
    frame_->SetSize(frame_->GetSize() + room - panel().GetClientSize());
    settle();
    frame_->workspace().planReplaced();
    canvas().fit();
    settle();
  }
  ~RealWindow() {
    frame_->Destroy();
    settle();
  }
  RealWindow(const RealWindow&) = delete;
  RealWindow& operator=(const RealWindow&) = delete;

  Canvas& canvas() { return panel().canvas(); }
  CanvasPanel& panel() { return frame_->canvasPanel(); }
  Layout& plan() { return frame_->layout(); }

  /// Clicks there and waits until everything has followed.
  void click(Point world) {
    const Point px = canvas().view().toScreen(world);
    for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP}) {
      wxMouseEvent event(type);
      event.SetPosition({static_cast<int>(px.x), static_cast<int>(px.y)});
      event.SetEventObject(&panel());
      panel().ProcessWindowEvent(event);
    }
    settle();
  }

 private:
  /// Until nothing happens for a while, which takes no processor time.
  void settle() {
    while (loop_.DispatchTimeout(30) != -1) {
    }
  }

  wxGUIEventLoop loop_;
  wxEventLoopActivator active_{&loop_};
  MainFrame* frame_;
};

/// Clicks pieces in turns that are so many apart: of one kind, or of several.
void click(benchmark::State& state) {
  constexpr std::size_t kClicks = 6;
  const wxSize room(1378, 926);
  RealWindow window(yard(100, 100), room);
  if (window.panel().GetClientSize() != room)
    return state.SkipWithError("the window has another size");
  std::vector<Point> spots;
  for (std::size_t i = 0; i < kClicks; ++i) {
    const auto apart = static_cast<std::size_t>(state.range(0));
    const PlacedPiece& piece = window.plan().pieces()[4000 + i * apart];
    spots.push_back({piece.x + 20, piece.y});
  }
  bool selected = true;
  const Way clicks = timed(
      [&] {
        for (const Point spot : spots) {
          window.plan().clearSelection();
          window.click(spot);
          selected = selected && selectedPieces(window.plan()).size() == 1;
        }
      },
      kClicks);
  wxBitmap bitmap(room);
  PlanPicture picture(window.canvas());
  const Way whole = timed([&] {
    picture.forget();
    wxMemoryDC memory(bitmap);
    picture.draw(memory, {room, 1, 1}, false);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(memory));
    GcSurface surface(*context, 1, &picture.texts());
    window.canvas().paintOverlay(surface);
  });
  compare(state, 0.15, "the whole picture", clicks, whole);
  if (!selected)
    state.SkipWithError("a click did not select its piece");
}
BENCHMARK(click)->Name("click/10000")->Arg(1)->Arg(6)->Iterations(1);

} // namespace

} // namespace trassix::bench
