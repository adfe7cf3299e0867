#pragma once

#include "app/services/file_listing.h"
#include "driver.h"
#include "editing/placing/placing.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/frame/main_frame.h"
#include "ui_test.h"

#include <wx/listbox.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <initializer_list>
#include <utility>

namespace trassix::test {

/// The rescue copy in the folder of a session; empty when there is none.
inline std::filesystem::path latestIn(const std::filesystem::path& session) {
  const auto copies = filesIn(session, ".txl");
  const auto latest = std::ranges::max_element(copies, {}, [](const auto& copy) {
    std::error_code gone;
    return last_write_time(copy, gone);
  });
  return latest == copies.end() ? std::filesystem::path() : *latest;
}

/// A test of the main window's commands.
class FrameTest : public UiTest {
 protected:
  /// Gives a command and these answers to the boxes that it shows.
  void put(int command, std::initializer_list<std::pair<const char*, int>> boxes = {}) {
    for (const auto& [title, answer] : boxes)
      dialogs.answer(title, answer);
    wxCommandEvent event(wxEVT_MENU, command);
    frame().ProcessWindowEvent(event);
  }
  void placePiece(double x = 0) {
    dropPiece(frame().layout(), "24188", {x, 0, 0}, {}, false);
    frame().workspace().changed();
  }
  Layout& plan() { return frame().layout(); }
  Canvas& canvas() { return frame().canvasPanel().canvas(); }
  std::size_t pieces() const { return frame().layout().pieces().size(); }
  Spot onPlan(Point world) {
    const Point px = canvas().view().toScreen(world);
    return {frame().canvasPanel(),
            wxPoint(static_cast<int>(std::lround(px.x)), static_cast<int>(std::lround(px.y)))};
  }
  std::string title() const { return frame().GetTitle().utf8_string(); }

  static wxListBox& list(wxDialog& dialog, const char* name) {
    return dynamic_cast<wxListBox&>(*wxWindow::FindWindowByName(name, &dialog));
  }
  static void choose(wxDialog& dialog, const char* name, const char* row) {
    wxListBox& box = list(dialog, name);
    ASSERT_TRUE(box.SetStringSelection(wxString::FromUTF8(row))) << row;
    wxCommandEvent event(wxEVT_LISTBOX, box.GetId());
    event.SetEventObject(&box);
    box.ProcessWindowEvent(event);
  }
  static void type(wxDialog& dialog, const char* name, const wxString& text) {
    dynamic_cast<wxTextCtrl&>(*wxWindow::FindWindowByName(name, &dialog)).SetValue(text);
  }
  static void press(wxDialog& dialog, int button) {
    wxCommandEvent event(wxEVT_BUTTON, button);
    dialog.ProcessWindowEvent(event);
  }

  /// Answers the dialog that asks for a line of text.
  void answerText(const std::string& dialog, const wxString& text) {
    dialogs.answer(dialog, [text](wxDialog& shown) {
      dynamic_cast<wxTextEntryDialog&>(shown).SetValue(text);
      return wxID_OK;
    });
  }
  void saveAs(const wxString& name) {
    answerText("Save Layout", name);
    put(wxID_SAVEAS);
  }
};

} // namespace trassix::test
