// What it costs to pull a handle of the height profile, until all that changes is known, against
// drawing it: on the plan, over its kept picture, and in the profile.
#include "editing/canvas/canvas_script.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/profile/height_profile.h"
#include "ratio.h"
#include "support/plan.h"
#include "ui/canvas/gc_surface.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <cmath>
#include <memory>

namespace trassix::bench {

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr int kProfileHeight = 200;

/// One track of 2,016 pieces, which goes to and fro.
Layout serpentine() {
  constexpr int kRows = 21;
  constexpr int kStraights = 90;
  Layout layout;
  layout.ensureLevel();
  TrackEnd front;
  const auto add = [&](const char* article, std::int32_t enter) {
    const PieceDef& definition = cataloguePiece(article);
    const Pose pose = front.piece == -1
                          ? Pose{}
                          : AttachPose(definition, enter,
                                       worldEnd(*layout.findPiece(front.piece), front.connector));
    const std::int32_t id = addPiece(layout, definition, pose, 1, 0);
    if (front.piece != -1)
      join(layout, id, enter, front.piece, front.connector);
    front = {id, 1 - enter};
  };
  for (int row = 0; row < kRows; ++row) {
    for (int i = 0; i < kStraights; ++i)
      add("24188", 0);
    for (int i = 0; i < 6; ++i)
      add("24130", row % 2);
  }
  return layout;
}

void profileDrag(benchmark::State& state) {
  constexpr int kMoves = 10;
  test::CanvasScript script(serpentine());
  script.canvas.resize({kWidth, kHeight});
  script.canvas.fit();
  selectOnly(script.host.plan, 1);
  HeightProfile profile(script.host.workspace);
  profile.resize({kWidth, kProfileHeight});
  const std::vector<ProfileHandle> handles = profile.handles();
  const Point from = handles[handles.size() / 3].px;
  profile.press({from, {}});

  wxBitmap kept(kWidth, kHeight);
  wxBitmap window(kWidth, kHeight);
  wxBitmap dock(kWidth, kProfileHeight);
  const auto draw = [](wxBitmap& bitmap, const auto& paint) {
    wxMemoryDC memory(bitmap);
    paint(memory);
  };
  const auto paintWith = [](wxMemoryDC& memory, const auto& paint) {
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(memory));
    GcSurface surface(*context);
    paint(surface);
    context->Flush();
  };
  int moves = 0;
  const Way drag = timed(
      [&] {
        for (int i = 0; i < kMoves; ++i, ++moves)
          profile.move({{from.x, from.y - 40 - 30 * std::sin(moves * 0.37)}, {}});
      },
      kMoves);
  const Way drawing = timed(
      [&] {
        for (int i = 0; i < kMoves; ++i) {
          draw(window, [&](wxMemoryDC& memory) {
            memory.DrawBitmap(kept, 0, 0);
            paintWith(memory, [&](Surface& surface) { script.canvas.paintOverlay(surface); });
          });
          draw(dock, [&](wxMemoryDC& memory) {
            paintWith(memory, [&](Surface& surface) { profile.paint(surface); });
          });
        }
      },
      kMoves);
  profile.move({{from.x, from.y - 40}, {}});
  if (script.host.workspace.preview() == nullptr ||
      script.host.workspace.preview()->records().pieces.size() < 2000)
    return state.SkipWithError("not all track is lifted");
  compare(state, 0.2, "drawing it on plan and profile", drag, drawing);
}
BENCHMARK(profileDrag)->Name("profileDrag/2000")->Iterations(1);

} // namespace

} // namespace trassix::bench
