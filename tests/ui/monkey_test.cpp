// Thousands of random commands, keys and clicks. TRASSIX_MONKEY_STEPS and TRASSIX_MONKEY_SEED set
// how many and which.
#include "catalog/track_catalog.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "editing/canvas/carried.h"
#include "frame_test.h"
#include "support/plan.h"
#include "ui/commands/command_table.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/toolbar.h>

#include <cstdlib>
#include <random>

namespace trassix::test {
namespace {

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int upTo(int largest) { return std::uniform_int_distribution<int>(0, largest)(engine_); }
  bool oneIn(int n) { return upTo(n - 1) == 0; }
  template <std::size_t N>
  int any(const int (&of)[N]) {
    return of[upTo(static_cast<int>(N) - 1)];
  }

 private:
  std::mt19937 engine_;
};

/// Answers every dialog without showing it, as far as its buttons allow.
class RandomAnswers : public wxModalDialogHook {
 public:
  explicit RandomAnswers(Dice& dice) : dice_(dice) { Register(); }
  int count = 0;

 protected:
  int Enter(wxDialog* dialog) override {
    ++count;
    if (auto* text = dynamic_cast<wxTextEntryDialog*>(dialog)) {
      text->SetValue(wxString::Format("name %d", dice_.upTo(3)));
      return dice_.oneIn(4) ? wxID_CANCEL : wxID_OK;
    }
    if (auto* box = dynamic_cast<wxMessageDialogBase*>(dialog)) {
      return (box->GetMessageDialogStyle() & wxYES_NO) == 0
                 ? wxID_OK
                 : dice_.any(
                       {wxID_YES, wxID_NO, wxID_NO,
                        (box->GetMessageDialogStyle() & wxCANCEL) != 0 ? wxID_CANCEL : wxID_YES});
    }
    for (wxWindow* child : dialog->GetChildren()) {
      auto* rows = dynamic_cast<wxListBox*>(child);
      if (rows == nullptr || rows->IsEmpty())
        continue;
      rows->SetSelection(dice_.upTo(static_cast<int>(rows->GetCount()) - 1));
      wxCommandEvent chosen(wxEVT_LISTBOX, rows->GetId());
      rows->ProcessWindowEvent(chosen);
    }
    const wxWindow* accept = dialog->FindWindow(wxID_OK);
    return accept != nullptr && accept->IsEnabled() && !dice_.oneIn(4) ? wxID_OK : wxID_CANCEL;
  }

 private:
  Dice& dice_;
};

int numberFrom(const char* variable, int usual) {
  const char* text = std::getenv(variable);
  return text == nullptr ? usual : std::atoi(text);
}

class MonkeyTest : public FrameTest {
 protected:
  void command(Dice& dice) {
    const auto& all = commands();
    const Command& command =
        *all[static_cast<std::size_t>(dice.upTo(static_cast<int>(all.size()) - 1))];
    // Printing asks the system, and the exit would end the game.
    if (command.id == wxID_EXIT || command.id == wxID_PAGE_SETUP ||
        whyUnusable(command, canvas().site()))
      return;
    if (command.kind == Command::Kind::Check && command.menuText != nullptr)
      frame().GetMenuBar()->Check(command.id, dice.oneIn(2));
    else if (command.kind == Command::Kind::Check)
      frame().GetToolBar()->ToggleTool(command.id, dice.oneIn(2));
    put(command.id);
  }

  void mouse(Dice& dice) {
    CanvasPanel& panel = frame().canvasPanel();
    const bool busy = panel.canvas().wantsCapture();
    wxMouseEvent event(dice.any({wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_MOTION, wxEVT_MOTION,
                                 wxEVT_MOTION, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MOUSEWHEEL,
                                 wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_UP,
                                 // Without anything under way it opens a menu, which waits.
                                 busy ? wxEVT_RIGHT_DOWN : wxEVT_MOTION}));
    if (event.GetEventType() != wxEVT_MOTION && event.GetEventType() != wxEVT_MOUSEWHEEL)
      event.m_clickCount = 1;
    const wxSize size = panel.GetClientSize();
    event.SetPosition({dice.upTo(size.x), dice.upTo(size.y)});
    event.m_wheelRotation = dice.oneIn(2) ? 120 : -120;
    event.m_wheelDelta = 120;
    event.SetControlDown(dice.oneIn(4));
    event.SetShiftDown(dice.oneIn(4));
    event.SetAltDown(dice.oneIn(6));
    panel.ProcessWindowEvent(event);
  }

  void key(Dice& dice) {
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = dice.any({WXK_ESCAPE, WXK_RETURN, WXK_LEFT, WXK_UP, 'R', 'C', 'X', 'V', 'D'});
    event.SetControlDown(dice.oneIn(3));
    event.SetShiftDown(dice.oneIn(3));
    frame().canvasPanel().ProcessWindowEvent(event);
  }

  void carry(Dice& dice) {
    const TrackCatalog& catalog = TrackCatalog::instance();
    const std::string& article = catalog.at(dice.upTo(catalog.count() - 1))->article;
    if (dice.oneIn(2))
      frame().canvasPanel().pickUp(CarriedPiece{article});
    else
      frame().canvasPanel().drag(CarriedPiece{dice.oneIn(2) ? "24188" : "24130"});
  }
};

TEST_F(MonkeyTest, BreaksNothing) {
  for (const auto& sample : std::filesystem::directory_iterator(TRASSIX_SOURCE_DIR "/samples"))
    writeText(layoutsFolder() / sample.path().filename(), readText(sample.path()));
  start();
  const int steps = numberFrom("TRASSIX_MONKEY_STEPS", 1500);
  const int seed = numberFrom("TRASSIX_MONKEY_SEED", 20);
  std::printf("%d steps, seed %d\n", steps, seed);
  Dice dice(static_cast<unsigned>(seed));
  const RandomAnswers answers(dice);
  for (int step = 1; step <= steps; ++step) {
    switch (dice.upTo(9)) {
    case 0:
    case 1:
      command(dice);
      break;
    case 2:
      key(dice);
      break;
    case 3:
      carry(dice);
      break;
    default:
      mouse(dice);
    }
    if (step % 50 == 0)
      settle();
    ASSERT_EQ(brokenRule(frame().layout()), "") << "after step " << step;
    ASSERT_EQ(title().ends_with(" *"), frame().dirty()) << "after step " << step;
  }
  frame().canvasPanel().canvas().cancel();
  std::string text;
  ASSERT_EQ(writeLayout(frame().layout(), "monkey", text), "");
  Layout again;
  std::string name;
  ASSERT_EQ(readLayout(text, again, name), "");
  std::string second;
  ASSERT_EQ(writeLayout(again, name, second), "");
  EXPECT_EQ(second, text);
  EXPECT_GT(answers.count, 0);
}

} // namespace
} // namespace trassix::test
