#include "document/record_kinds.h"
#include "driver.h"
#include "frame_test.h"
#include "host/long_work.h"
#include "host/questions.h"
#include "ui/canvas/canvas_panel.h"

#include <wx/gauge.h>
#include <wx/stopwatch.h>
#include <wx/uiaction.h>

#include <stdexcept>

namespace trassix::test {
namespace {

using Step = std::function<std::optional<double>(const TimeSlice&)>;

bool work(MainFrame& frame, const Step& step) {
  return frame.workspace().questions().finish({"Searching", "Looking for loops.", step});
}

TEST_F(FrameTest, LongWorkShowsHowFarItIsUntilItIsDoneOrCancelled) {
  startLaidOut();
  enum Ending { Done, Cancelled, Failed, Closed };
  int steps = 0;
  std::optional<Ending> told; ///< to the work itself
  const std::pair<std::function<void()>, Ending> cases[] = {
      {[&] { told = Done; }, Done},
      {[] { pressKey(WXK_ESCAPE); }, Cancelled},
      {[] { click(*findLabelled("Cancel")); }, Cancelled},
      {[&] { told = Failed; }, Failed},
      {[this] { EXPECT_FALSE(frame().Close()) << "only afterwards"; }, Closed}};
  for (const auto& [end, ending] : cases) {
    placePiece();
    told.reset();
    const wxStopWatch watch;
    dialogs.drive("Searching", [&, &act = end](wxDialog&) {
      EXPECT_GE(watch.Time(), 450);
      auto& gauge = dynamic_cast<wxGauge&>(*findNamed("progress"));
      waitUntil("it is shown how far it is", [&] { return gauge.GetValue() == 250; });
      act();
    });
    if (ending == Closed)
      dialogs.answer("Unsaved Changes", wxID_CANCEL);
    const auto all = [&] {
      return work(frame(), [&](const TimeSlice&) {
        ++steps;
        if (told == Failed)
          throw std::runtime_error("work");
        return told == Done ? std::nullopt : std::optional(0.25);
      });
    };
    if (ending == Failed)
      EXPECT_THROW(all(), std::runtime_error);
    else
      EXPECT_EQ(all(), ending == Done);
    waitUntil("the dialogs are gone", [&] { return dialogs.finished() && !findNamed("progress"); });
    const int last = std::exchange(steps, 0);
    settle();
    EXPECT_TRUE(last > 0 && steps == 0) << "nothing goes on";
  }
}

TEST_F(FrameTest, InputWaitsForShortWork) {
  startLaidOut();
  placePiece();
  frame().canvasPanel().SetFocus();
  settle();
  int steps = 0;
  EXPECT_TRUE(work(frame(), [&](const TimeSlice&) {
    if (++steps == 3)
      wxUIActionSimulator().Char(WXK_DELETE);
    EXPECT_EQ(pieces(), 1u);
    return steps < 12 ? std::optional(0.5) : std::nullopt;
  }));
  waitUntil("the piece is deleted", [this] { return pieces() == 0; });
}

} // namespace
} // namespace trassix::test
