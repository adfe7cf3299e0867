// From the start of a process to its first painted window, or until all of it is there, against
// bare frames of the same toolkit. The display tells when something was drawn into a window, so
// that both are measured alike and neither knows of it.
#include "ratio.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>
#include <chrono>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace trassix::bench {

namespace {

using Clock = std::chrono::steady_clock;

class PaintWatch {
 public:
  PaintWatch() : display_(XOpenDisplay(nullptr)) {
    int errors = 0;
    if (display_ == nullptr || XDamageQueryExtension(display_, &damage_, &errors) == 0) {
      throw std::runtime_error("no display that tells of drawing");
    }
    // A window may be gone before it is asked about; that is no reason to end.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
    XSync(display_, False);
  }
  ~PaintWatch() { XCloseDisplay(display_); }
  PaintWatch(const PaintWatch&) = delete;
  PaintWatch& operator=(const PaintWatch&) = delete;

  /// Returns when a window of a document's size is drawn into for the first time. Small windows are
  /// the toolkit's helpers, unmanaged ones the window manager's.
  Window waitForPaintedWindow() {
    const auto deadline = Clock::now() + std::chrono::seconds(30);
    while (Clock::now() < deadline) {
      if (XPending(display_) == 0) {
        pollfd socket{ConnectionNumber(display_), POLLIN, 0};
        poll(&socket, 1, 100);
        continue;
      }
      XEvent event;
      XNextEvent(display_, &event);
      if (event.type == CreateNotify && event.xcreatewindow.override_redirect == False) {
        XDamageCreate(display_, event.xcreatewindow.window, XDamageReportRawRectangles);
      } else if (event.type == damage_ + XDamageNotify) {
        const auto& drawn = reinterpret_cast<const XDamageNotifyEvent&>(event);
        if (drawn.geometry.width > 600 && drawn.geometry.height > 400) {
          return drawn.drawable;
        }
      }
    }
    throw std::runtime_error("no window was painted");
  }

  /// Returns when a window is gone, after which nothing it caused can be taken for the next one's.
  void waitUntilGone(Window window) {
    XWindowAttributes attributes;
    while (XGetWindowAttributes(display_, window, &attributes) != 0) {
      usleep(1000);
    }
    XSync(display_, True);
  }

 private:
  Display* display_;
  int damage_ = 0;
};

/// What a start takes: the user's time, and the processor's, until the first paint and until there
/// is nothing left to do.
struct Start {
  double wall = 0;
  double processor = 0;
  double atRest = 0;
};

double processorTime(pid_t process) {
  clockid_t clock{};
  timespec used{};
  clock_getcpuclockid(process, &clock);
  clock_gettime(clock, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

double timeAtRest(pid_t process) {
  constexpr double kNothing = 0.0005; // that timers take
  constexpr int kRestful = 6;
  double used = processorTime(process);
  for (int restful = 0; restful < kRestful; ++restful) {
    usleep(50'000);
    const double now = processorTime(process);
    if (now - used > kNothing)
      restful = -1;
    used = now;
  }
  return used;
}

Start startOnce(PaintWatch& screen, const char* program, const char* argument, bool all) {
  const auto start = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    execl(program, program, argument, nullptr);
    _exit(127);
  }
  const Window window = screen.waitForPaintedWindow();
  const std::chrono::duration<double> wall = Clock::now() - start;
  const double processor = processorTime(process);
  const double atRest = all ? timeAtRest(process) : 0;
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  screen.waitUntilGone(window);
  return {wall.count(), processor, atRest};
}

/// `bare` is the argument of the bare frame, or null.
void start(benchmark::State& state, double limit, double Start::*time, const char* bare,
           const char* name) {
  PaintWatch screen;
  const bool all = time == &Start::atRest;
  const auto starts = [&](const char* program, const char* argument) {
    return Way{[&screen, program, argument, time, all] {
      return startOnce(screen, program, argument, all).*time;
    }};
  };
  compare(state, limit, name, starts(TRASSIX_PROGRAM, nullptr), starts(TRASSIX_BARE_FRAME, bare));
}
BENCHMARK_CAPTURE(start, wallClock, 1.5, &Start::wall, nullptr, "bare frame")->Iterations(1);
BENCHMARK_CAPTURE(start, processor, 1.9, &Start::processor, nullptr, "bare frame")->Iterations(1);
BENCHMARK_CAPTURE(start, firstPaint, 1.25, &Start::wall, "bars", "frame with the same bars")
    ->Iterations(1);
BENCHMARK_CAPTURE(start, firstPaintProcessor, 1.25, &Start::processor, "bars",
                  "frame with the same bars")
    ->Iterations(1);
BENCHMARK_CAPTURE(start, panels, 1.5, &Start::atRest, "panels", "frame with the same controls")
    ->Iterations(1);

} // namespace

} // namespace trassix::bench

BENCHMARK_MAIN();
