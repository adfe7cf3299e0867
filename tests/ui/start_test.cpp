#include "driver.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/frame/main_frame.h"
#include "ui_test.h"

#include <wx/app.h>
#include <wx/splitter.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <regex>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace trassix::test {
namespace {

/// The log without the times of its lines.
std::string eventsOf(const std::filesystem::path& log) {
  return std::regex_replace(readText(log), std::regex(R"((^|\n)\d\d:\d\d:\d\d\.\d\d\d )"), "$1");
}

TEST_F(UiTest, StartWritesItsLogAndTraceAnew) {
  const auto trace = home() / ".trassix" / "mainframe.log";
  writeText(logFile(), "from the run before\n");
  writeText(trace, "from the run before\n");
  const auto leftover = layoutsFolder() / "library" / "Marklin_C-Track" / ".trassix-1.tmp";
  writeText(leftover, "half a block");
  std::filesystem::last_write_time(leftover, std::filesystem::file_time_type::clock::now() -
                                                 std::chrono::hours(48));
  start();
  finish();
  EXPECT_FALSE(std::filesystem::exists(leftover));
  EXPECT_EQ(eventsOf(logFile()),
            "=== Trassix starting ===\nImage handlers registered\n"
            "Built-in catalog loaded - 246 pieces\nCreating MainFrame...\nMainFrame created OK\n"
            "Show OK\nOnExit\n");
  EXPECT_EQ(std::regex_replace(readText(trace), std::regex("\nBuildPanels: "), " + "),
            "A: wxFrame base constructed\nB: MenuBar done\nC: ToolBar done + start + "
            "root panel created + palette created + splitter created + canvas created + properties "
            "created + split done + adding to sizer + outerSplit added + sizer set + layout done + "
            "palette populated\nD: Panels done\nE: StatusBar done\n"
            "F: MainFrame constructor complete\n");
}

/// Counts how often windows are painted anew, as large as they are: a window manager may give them
/// another size, and strips of them may come into view.
class PaintCounter : public wxEventFilter {
 public:
  PaintCounter() { wxEvtHandler::AddFilter(this); }
  ~PaintCounter() override { wxEvtHandler::RemoveFilter(this); }

  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() != wxEVT_PAINT)
      return Event_Skip;
    auto* window = dynamic_cast<wxWindow*>(event.GetEventObject());
    const wxSize size = window->GetClientSize();
    const wxSize part = window->GetUpdateRegion().GetBox().GetSize();
    if (2 * part.x * part.y >= size.x * size.y)
      ++times[{window, size.x, size.y}];
    return Event_Skip;
  }
  bool painted(wxWindow* window) const {
    return std::ranges::any_of(
        times, [window](const auto& entry) { return std::get<0>(entry.first) == window; });
  }

  std::map<std::tuple<wxWindow*, int, int>, int> times; ///< by window and its size
};

TEST_F(UiTest, NoPanelIsPaintedMoreThanTwiceByAStart) {
  PaintCounter counter;
  startLaidOut();
  for (const char* list : {"pieces", "tally"})
    waitUntil("the panels are painted", [&] { return counter.painted(findNamed(list)); });
  settle();
  for (const auto& [sized, times] : counter.times)
    if (wxWindow* window = std::get<0>(sized);
        window->GetParent() != nullptr && dynamic_cast<wxSplitterWindow*>(window) == nullptr &&
        window->GetParent() != &frame().canvasPanel()) { // which paints what lies on it again
      EXPECT_LE(times, 2) << window->GetName();
    }
}

struct Answer {
  const char* name;
  void (*give)();
  const char* prefs; ///< the file afterwards
};

class FirstStart : public UiTest, public testing::WithParamInterface<Answer> {};

TEST_P(FirstStart, WelcomesAndThenAsksForTheExperience) {
  dialogs.drive("Welcome to Trassix", [](wxDialog&) { pressKey(WXK_RETURN); });
  dialogs.drive("Choose Your Experience", [this](wxDialog&) {
    EXPECT_FALSE(std::filesystem::exists(prefsFile()));
    GetParam().give();
  });
  ASSERT_TRUE(startAsIs());
  waitUntil("the question is answered",
            [this] { return dialogs.finished() && frame().IsActive(); });
  EXPECT_EQ(readText(prefsFile()), GetParam().prefs);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, FirstStart,
    testing::Values(Answer{"Enter", [] { pressKey(WXK_RETURN); }, "playful=1\nasked=1\nunits=0\n"},
                    Answer{"Playful", [] { click(*findLabelled("Keep it Playful")); },
                           "playful=1\nasked=1\nunits=0\n"},
                    Answer{"Business", [] { click(*findLabelled("Down to Business")); },
                           "playful=0\nasked=1\nunits=0\n"},
                    Answer{"Esc", [] { pressKey(WXK_ESCAPE); }, ""}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(UiTest, AFailingStartIsLoggedAndEnds) {
  const auto expectLogged = [this](const char* last, const std::function<void()>& fault) {
    beforeFrame(fault);
    EXPECT_FALSE(startAsIs());
    EXPECT_TRUE(eventsOf(logFile()).ends_with(last)) << last;
  };
  expectLogged("\nEXCEPTION: no palette\n", [] { throw std::runtime_error("no palette"); });
  expectLogged("\nUNKNOWN EXCEPTION in MainFrame\n", [] { throw 7; });
}

/// Where a window of another program is, as a program of the desktop tells it.
wxRect foreignWindow(const std::string& title) {
  const std::string command = "xdotool search --onlyvisible --name '" + title +
                              "' getwindowgeometry --shell %1 2>/dev/null";
  wxRect rect;
  FILE* answer = popen(command.c_str(), "r");
  std::fscanf(answer, "WINDOW=%*d X=%d Y=%d WIDTH=%d HEIGHT=%d", &rect.x, &rect.y, &rect.width,
              &rect.height);
  pclose(answer);
  return rect;
}

/// The real program, started from an install folder that an older release has used.
TEST_F(UiTest, TheFirstStartTakesOverAnOlderReleasesFiles) {
  const auto installed = home() / "install";
  const std::string oldPrefs = "playful=0\nasked=1\nunits=2\n";
  writeText(installed / "prefs.cfg", oldPrefs);
  writeText(installed / "Yard.txl", "a plan");
  writeText(installed / "catalog.xml", "");
  std::filesystem::copy_file(TRASSIX_PROGRAM, installed / "trassix");

  const pid_t program = fork();
  if (program == 0) {
    execl((installed / "trassix").c_str(), "trassix", nullptr);
    _exit(127);
  }
  waitUntil("the program runs",
            [this] { return readText(logFile()).find("Show OK") != std::string::npos; });
  waitUntil("it tells of the copied file, over its window", [] {
    const wxRect notice = foreignWindow("^Trassix Information$");
    const wxRect window = foreignWindow("^Trassix v");
    const wxPoint off = middleOf(notice) - middleOf(window);
    return !notice.IsEmpty() && !window.IsEmpty() && std::hypot(off.x, off.y) <= 40;
  });
  kill(program, SIGTERM);
  waitpid(program, nullptr, 0);

  EXPECT_EQ(readText(prefsFile()), oldPrefs);
  EXPECT_EQ(readText(installed / "prefs.cfg"), oldPrefs);
  EXPECT_EQ(readText(layoutsFolder() / "Yard.txl"), "a plan");
  EXPECT_FALSE(std::filesystem::exists(layoutsFolder() / "catalog.xml"));
}

} // namespace
} // namespace trassix::test
