// Measures the time from the start of a process to its first painted window, for two programs in
// turns, and compares the medians: startup_probe PROGRAM BARE_PROGRAM RUNS GREATEST_RATIO
// The display tells when something was drawn into a window, so that both are measured alike and
// neither knows of it.

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

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

double startOnce(PaintWatch& screen, const char* program) {
  const auto start = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    execl(program, program, nullptr);
    _exit(127);
  }
  const Window window = screen.waitForPaintedWindow();
  const std::chrono::duration<double, std::milli> time = Clock::now() - start;
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  screen.waitUntilGone(window);
  return time.count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::fprintf(stderr, "usage: %s PROGRAM BARE_PROGRAM RUNS GREATEST_RATIO\n", argv[0]);
    return 2;
  }
  const int runs = std::atoi(argv[3]);
  const double greatest = std::atof(argv[4]);
  try {
    PaintWatch screen;
    std::vector<double> program;
    std::vector<double> bare;
    for (int run = 0; run <= runs; ++run) {
      const double bareTime = startOnce(screen, argv[2]);
      const double programTime = startOnce(screen, argv[1]);
      if (run > 0) { // the first run only warms the disk's cache
        bare.push_back(bareTime);
        program.push_back(programTime);
      }
    }
    const double ratio = median(program) / median(bare);
    std::printf("start to painted window, median of %d: program %.0f ms, bare frame %.0f ms, "
                "ratio %.2f (at most %.2f)\n",
                runs, median(program), median(bare), ratio, greatest);
    return ratio <= greatest ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}
