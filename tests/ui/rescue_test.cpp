#include "app/desktop/path_text.h"
#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "document/rescue/rescue_session.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "support/plain_user.h"
#include "ui/commands/plan_files.h"

#include <wx/dnd.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/statusbr.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trassix::test {
namespace {

namespace fs = std::filesystem;

class RescueTest : public FrameTest {
 protected:
  RescueTest() { setenv("TRASSIX_RESCUE_INTERVAL", "200", 1); }

  fs::path sessions() const { return home() / ".trassix" / "rescue"; }
  fs::path yard() const { return layoutsFolder() / "Yard.txl"; }

  std::vector<std::string> copies() const {
    std::vector<std::string> texts;
    std::error_code none;
    for (const auto& session : fs::directory_iterator(sessions(), none))
      if (const fs::path copy = latestIn(session); !copy.empty())
        texts.push_back(readText(copy));
    return texts;
  }
  /// A copy is there that holds the plan as it is.
  void awaitCopy() {
    waitUntil("a copy is there", [this] {
      std::string text;
      writeLayout(plan(), "Yard", text);
      return copies() == std::vector{text};
    });
  }
  void dropOnPlan(const fs::path& file);
  /// As a program that crashed with this many pieces on a plan leaves it.
  void leave(int count, const fs::path& file) {
    Layout layout;
    for (int i = 0; i < count; ++i)
      dropPiece(layout, "24188", {500. * i, 0, 0}, {}, false);
    RescueSession session(sessions());
    EXPECT_EQ(session.belongTo({file, contentMarkOf(file), 0}), "");
    EXPECT_EQ(session.write(layout, "Yard"), "");
  }
};

TEST_F(RescueTest, UnsavedChangesOfACrashAreOfferedUntilAnswered) {
  leave(3, yard());
  writeText(sessions() / "damaged" / "plan-1.txl", "<layout");
  dialogs.answer("Rescued Plans", wxID_OK); // of the damaged one
  dialogs.drive("Rescued Plans", [](wxDialog&) { pressKey(WXK_ESCAPE); });
  start();
  waitUntil("the offer was put off", [this] { return dialogs.finished(); });
  EXPECT_EQ(pieces(), 0U);
  EXPECT_NE(dialogs.messages().back().find("plan-1.damaged"), std::string::npos);

  placePiece();
  saveAs("Yard");
  dialogs.drive("Rescued Plans", [](wxDialog&) { pressKey(WXK_RETURN); });
  EXPECT_TRUE(frame().loadLayout(yard()));
  EXPECT_EQ(pieces(), 3U);
  EXPECT_TRUE(frame().dirty() && title().ends_with(" - Yard *"));
  awaitCopy();
  put(wxID_SAVE, {{"File Changed", wxID_YES}}); // the file was not there when the copy was made
  EXPECT_TRUE(!frame().dirty() && copies().empty());

  leave(4, yard());
  leave(5, {});
  dialogs.drive("Rescued Plans", [this](wxDialog& dialog) {
    for (const std::size_t left : {1, 0}) {
      dialogs.answer("Throw Away", wxID_YES);
      press(dialog, wxID_DELETE);
      EXPECT_EQ(copies().size(), left);
    }
  });
  frame().files().startWith(yard());
  EXPECT_TRUE(pieces() == 3 && !frame().dirty());
}

TEST_F(RescueTest, CopiesGoWithTheChangesOnly) {
  start();
  placePiece();
  saveAs("Yard");
  placePiece(500);
  awaitCopy();
  fs::remove_all(sessions()); // by somebody who tidies up
  placePiece(900);
  awaitCopy();
  std::error_code none;
  fs::remove_all(layoutsFolder(), none);
  put(wxID_SAVE, {{"Save Failed", wxID_OK}});
  awaitCopy();
  put(wxID_NEW, {{"Unsaved Changes", wxID_NO}});
  EXPECT_TRUE(copies().empty());
  placePiece();
  const std::string unsaved = [this] {
    std::string text;
    writeLayout(plan(), "Yard", text);
    return text;
  }();
  put(wxID_NEW,
      {{"Unsaved Changes", wxID_YES}, {"Save Layout", wxID_CANCEL}, {"Unsaved Changes", wxID_OK}});
  EXPECT_EQ(copies(), std::vector{unsaved});
  placePiece(200); // has a copy of its own
  waitUntil("both are kept", [this] { return copies().size() == 2; });
}

TEST_F(RescueTest, OtherProgramsChangesAreNotWrittenOverUnasked) {
  start();
  placePiece();
  saveAs("Yard");
  const std::string before = readText(yard());
  writeText(yard(), "theirs");
  placePiece(500);
  put(wxID_SAVE, {{"File Changed", wxID_NO}});
  EXPECT_TRUE(frame().dirty() && readText(yard()) == "theirs");
  put(wxID_SAVE, {{"File Changed", wxID_YES}});
  EXPECT_FALSE(frame().dirty());
  placePiece(900);
  fs::last_write_time(yard(), fs::file_time_type::clock::now() + std::chrono::hours(1));
  put(wxID_SAVE); // the same content at another time
  std::set<std::string> kept;
  for (const auto& plan : frame().files().versions().plans())
    for (const auto& copy : plan.copies)
      kept.insert(readText(copy));
  EXPECT_TRUE(kept.size() == 2 && kept.contains("theirs"));

  const pid_t other = fork();
  if (other == 0) {
    execl(TRASSIX_PROGRAM, "trassix", yard().c_str(), nullptr);
    _exit(127);
  }
  waitUntil("the other window has the plan", [this] {
    return openElsewhere(sessions(), frame().files().rescue().session(), yard());
  });
  dialogs.answer("Open Layout", wxID_OK);
  EXPECT_TRUE(frame().loadLayout(yard()));
  EXPECT_NE(dialogs.messages().back().find("also open in another window"), std::string::npos);
  kill(other, SIGKILL);
  waitpid(other, nullptr, 0);
  EXPECT_TRUE(frame().loadLayout(yard()));
}

struct Trouble {
  const char* name;
  void (*begin)(const fs::path& data);
  void (*end)(const fs::path& data);
};

class DataFolder : public RescueTest, public testing::WithParamInterface<Trouble> {};

TEST_P(DataFolder, ThatTakesNoCopiesIsToldOnceAndWorkGoesOn) {
  start();
  fs::permissions(home(), fs::perms(0755));
  GetParam().begin(home() / ".trassix");
  {
    const PlainUser plain;
    dialogs.answer("Rescue Copies", wxID_OK);
    placePiece();
    waitUntil("it is told", [this] { return dialogs.finished(); });
    placePiece(500);
    bool tried = false;
    wxTimer wait;
    wait.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { tried = true; });
    wait.SetOwner(&wait);
    wait.StartOnce(600);
    waitUntil("it was tried again", [&] { return tried; });
    EXPECT_TRUE(copies().empty());
  }
  GetParam().end(home() / ".trassix");
  waitUntil("a copy is there", [this] { return copies().size() == 1; });
}

void limitFiles(rlim_t bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, RLIM_INFINITY};
  setrlimit(RLIMIT_FSIZE, &limit);
}

INSTANTIATE_TEST_SUITE_P(
    Troubles, DataFolder,
    testing::Values(Trouble{"Unwritable",
                            [](const fs::path& data) { fs::permissions(data, fs::perms(0555)); },
                            [](const fs::path& data) { fs::permissions(data, fs::perms(0755)); }},
                    Trouble{"Full",
                            [](const fs::path& data) {
                              fs::permissions(data, fs::perms(0777));
                              limitFiles(100);
                            },
                            [](const fs::path&) { limitFiles(RLIM_INFINITY); }}),
    [](const auto& test) { return std::string(test.param.name); });

/// Drags a file, as a program of the desktop does, and lets it go over the plan.
void RescueTest::dropOnPlan(const fs::path& file) {
  wxWindow& bar = *frame().GetStatusBar();
  const wxPoint from = middleOf(bar);
  const wxPoint to = middleOf(frame().canvasPanel());
  int step = 0;
  wxTimer hand;
  hand.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
    wxUIActionSimulator mouse;
    constexpr int kSteps = 20;
    if (++step <= kSteps)
      mouse.MouseMove(from + (to - from) * step / kSteps);
    else
      mouse.MouseUp();
  });
  hand.SetOwner(&hand);
  bool dragged = false;
  bar.Bind(wxEVT_LEFT_DOWN, [&](wxMouseEvent&) {
    wxFileDataObject files;
    files.AddFile(toText(file));
    hand.Start(20);
    wxDropSource(files, &bar).DoDragDrop();
    hand.Stop();
    dragged = true;
  });
  pressMouse({bar});
  waitUntil("the file was dragged", [&] { return dragged; });
}

TEST_F(RescueTest, OlderVersionsAndRecentPlansComeBack) {
  startLaidOut();
  placePiece();
  saveAs("Yard");
  placePiece(500);
  put(wxID_SAVE);
  writeText(home() / "in" / "Yard.txl", readText(yard()));
  placePiece(900);
  put(wxID_SAVE);
  dialogs.answer("Import Layout", [this](wxDialog& dialog) {
    type(dialog, "source", (home() / "in").string());
    choose(dialog, "files", "Yard.txl");
    return wxID_OK;
  });
  put(kImportLayout, {{"Confirm Replace", wxID_YES}, {"Import", wxID_YES}});
  EXPECT_EQ(pieces(), 2U);
  dialogs.answer("Open Layout", [](wxDialog& dialog) {
    choose(dialog, "layouts", "Yard");
    press(dialog, wxID_DELETE);
    return wxID_CANCEL;
  });
  put(wxID_OPEN, {{"Delete Layout", wxID_YES}});
  EXPECT_TRUE(
      frame().GetStatusBar()->GetStatusText().StartsWith("Deleted. Its versions are kept until 2"));
  dialogs.drive("Older Versions", [](wxDialog& dialog) {
    const auto& rows =
        dynamic_cast<wxListCtrl&>(*wxWindow::FindWindowByName("storedPlans", &dialog));
    std::string counts;
    for (int row = 0; row < rows.GetItemCount(); ++row)
      counts += rows.GetItemText(row, 1).utf8_string();
    EXPECT_EQ(counts.size(), 4U) << "two saved over, one replaced, one deleted";
    EXPECT_EQ(std::ranges::count(counts, '3'), 1);
    for (std::size_t i = 0; i < counts.find('3'); ++i)
      pressKey(WXK_DOWN);
    pressKey(WXK_RETURN);
  });
  put(kOlderVersions);
  EXPECT_TRUE(pieces() == 3 && frame().dirty());
  put(wxID_SAVE, {{"Save Layout", wxID_CANCEL}}); // it belongs to no file
  saveAs("Other");
  saveAs("Third");

  const wxMenu* recent = frame().GetMenuBar()->FindItem(wxID_FILE1)->GetMenu();
  put(wxID_FILE2);
  EXPECT_TRUE(frame().GetTitle().EndsWith(" - Other"));
  EXPECT_EQ(recent->FindItemByPosition(0)->GetItemLabelText(), "1  Other");
  placePiece();
  dialogs.answer("Unsaved Changes", wxID_NO);
  dropOnPlan(home() / "in" / "Yard.txl");
  waitUntil("the dropped plan is open", [this] { return pieces() == 2; });
  EXPECT_EQ(recent->FindItemByPosition(0)->GetItemLabelText(),
            "1  " + toText(home() / "in" / "Yard"));
}

} // namespace
} // namespace trassix::test
