#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "editing/scenery/annotations.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "support/plain_user.h"
#include "ui/dialogs/saved_layouts.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/toolbar.h>

#include <functional>
#include <new>
#include <set>
#include <stdexcept>

namespace trassix::test {
namespace {

constexpr const char* kBase = "Trassix v1.7.1 by Quorrail";

constexpr const char* kBad =
    "<layout name=\"b\">\n<pieces>\n<piece id=\"1\" cat=\"24188\" x=\"what\">\n</piece>\n";

class FileTest : public FrameTest {
 protected:
  using Boxes = std::initializer_list<std::pair<const char*, int>>;

  /// Opens a plan by its row in the Open dialog.
  void open(const char* row, Boxes boxes = {}) {
    dialogs.answer("Open Layout", [row](wxDialog& dialog) {
      wxWindow* accept = dialog.FindWindow(wxID_OK);
      EXPECT_FALSE(accept->IsEnabled() || dialog.FindWindow(wxID_DELETE)->IsEnabled());
      choose(dialog, "layouts", row);
      EXPECT_TRUE(accept->IsEnabled() && dialog.FindWindow(wxID_DELETE)->IsEnabled());
      return wxID_OK;
    });
    put(wxID_OPEN, boxes);
  }
  void import(const std::filesystem::path& folder, const char* row, const char* name) {
    dialogs.answer("Import Layout", [=](wxDialog& dialog) {
      type(dialog, "source", folder.string());
      EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
      choose(dialog, "files", row);
      EXPECT_TRUE(dialog.FindWindow(wxID_OK)->IsEnabled()); // its name is offered
      type(dialog, "name", name);
      return wxID_OK;
    });
  }
  /// What a dialog says about the name in it; what of it is refused stands in brackets.
  static std::string advice(wxDialog& dialog) {
    const wxWindow* line = wxWindow::FindWindowByName("problem", &dialog);
    const std::string text = line == nullptr ? "no line" : line->GetLabel().utf8_string();
    return dialog.FindWindow(wxID_OK)->IsEnabled() ? text : "[" + text + "]";
  }
};

std::size_t piecesIn(const std::filesystem::path& plan) {
  const std::string text = readText(plan);
  std::size_t count = 0;
  for (std::size_t at = 0; (at = text.find("<piece ", at)) != std::string::npos; ++at)
    ++count;
  return count;
}

/// Of the rescue copies.
std::vector<std::size_t> piecesAside(const std::filesystem::path& home) {
  std::vector<std::size_t> pieces;
  std::error_code none;
  for (const auto& session :
       std::filesystem::directory_iterator(home / ".trassix" / "rescue", none))
    if (const auto copy = latestIn(session); !copy.empty())
      pieces.push_back(piecesIn(copy));
  return pieces;
}

TEST_F(FileTest, UnsavedChangesAreAskedForAndNotLost) {
  start();
  const auto leave = [this](int answer) {
    dialogs.answer("Unsaved Changes", [answer](wxDialog& dialog) {
      constexpr long kAsked = wxYES_NO | wxCANCEL | wxICON_QUESTION;
      EXPECT_EQ(dynamic_cast<wxMessageDialogBase&>(dialog).GetMessageDialogStyle() & kAsked,
                kAsked);
      return answer;
    });
  };
  struct Case {
    int answer;          ///< about the second of two pieces; wxID_NONE: there is none
    bool saved;          ///< the first has a file
    const char* newName; ///< under which it is tried to save them; null: that is cancelled
    std::size_t piecesAfter, piecesInFile;
    std::vector<std::size_t> piecesAside;
  };
  for (const Case& c : {Case{wxID_NONE, true, nullptr, 0, 1, {}},
                        {wxID_CANCEL, true, nullptr, 2, 1, {}},
                        {wxID_NO, true, nullptr, 0, 1, {}},
                        {wxID_YES, true, nullptr, 0, 2, {}},
                        {wxID_YES, false, nullptr, 0, 0, {2}},
                        {wxID_YES, false, "none/Yard", 0, 0, {2}}}) {
    SCOPED_TRACE(c.answer);
    std::filesystem::remove(layoutsFolder() / "Yard.txl");
    placePiece();
    if (c.saved)
      saveAs("Yard");
    if (c.answer != wxID_NONE) {
      placePiece(500);
      leave(c.answer);
    }
    if (c.newName) {
      answerText("Save Layout", c.newName);
      dialogs.answer("Save Failed", wxID_OK);
    } else if (c.answer == wxID_YES && !c.saved)
      dialogs.answer("Save Layout", wxID_CANCEL);
    if (!c.piecesAside.empty())
      dialogs.answer("Unsaved Changes", wxID_OK); // told where the plan is
    put(wxID_NEW);
    EXPECT_EQ(pieces(), c.piecesAfter);
    EXPECT_EQ(piecesIn(layoutsFolder() / "Yard.txl"), c.piecesInFile);
    if (c.answer != wxID_CANCEL) {
      EXPECT_EQ(piecesAside(home()), c.piecesAside);
    }
    std::filesystem::remove_all(home() / ".trassix" / "rescue");
    if (c.answer == wxID_CANCEL) {
      leave(wxID_CANCEL);
      EXPECT_FALSE(frame().Close());
      EXPECT_EQ(dialogs.messages().back(), "You have unsaved changes. Save before continuing?");
      EXPECT_TRUE(frame().dirty());
      leave(wxID_NO);
      put(wxID_NEW);
    }
    EXPECT_FALSE(frame().dirty());
    EXPECT_EQ(title(), kBase);
  }
}

/// In every way in which the toolkit calls what the program does.
TEST_F(FrameTest, AFaultIsToldOnceAndThePlanWrittenAside) {
  start();
  CanvasPanel& panel = frame().canvasPanel();
  const auto throwAt = [](wxWindow& window, const auto& type, auto thrown) {
    window.Bind(type, [thrown](wxEvent&) { throw thrown; });
  };
  const std::pair<const char*, std::function<void()>> faults[] = {
      {"posted", [&] { frame().CallAfter([] { throw std::runtime_error("posted"); }); }},
      {"chosen",
       [&] {
         throwAt(frame(), wxEVT_TOOL, std::logic_error("chosen"));
         frame().GetToolBar()->OnLeftClick(kShowGrid, false);
       }},
      {"unknown", [&] { throwAt(frame(), wxEVT_UPDATE_UI, 7); }},
      {"memory", [&] { throwAt(panel, wxEVT_PAINT, std::bad_alloc()); }}};
  dialogs.answer("Unexpected Error", wxID_OK);
  for (const auto& [logged, cause] : faults) {
    placePiece(200.0 * static_cast<double>(pieces()));
    cause();
    waitUntil("the fault is logged and the plan kept", [&, text = logged] {
      panel.Refresh();
      return readText(logFile()).find(text) != std::string::npos &&
             piecesAside(home()) == std::vector{pieces()};
    });
  }
  EXPECT_TRUE(dialogs.finished());
  bool goesOn = false;
  frame().CallAfter([&] { goesOn = true; });
  waitUntil("the program goes on", [&] { return goesOn; });
}

TEST_F(FrameTest, SaveAsksBeforeItReplaces) {
  start();
  placePiece();
  saveAs("   ");
  EXPECT_EQ(title(), std::string(kBase) + " - My Layout");
  const std::string before = readText(layoutsFolder() / "My Layout.txl");
  EXPECT_FALSE(before.empty());

  saveAs("Other");
  placePiece(500);
  answerText("Save Layout", " My Layout ");
  dialogs.answer("Confirm Replace", [](wxDialog& dialog) {
    EXPECT_NE(dynamic_cast<wxMessageDialogBase&>(dialog).GetMessageDialogStyle() & wxNO_DEFAULT, 0);
    return wxID_NO;
  });
  put(wxID_SAVEAS);
  EXPECT_EQ(dialogs.messages().back(),
            "A layout named \"My Layout\" already exists.\n\nReplace it?");
  EXPECT_EQ(readText(layoutsFolder() / "My Layout.txl"), before);
  EXPECT_EQ(title(), std::string(kBase) + " - Other *");
  put(wxID_SAVE); // no question: the plan still belongs to its own file
  EXPECT_EQ(title(), std::string(kBase) + " - Other");

  dialogs.answer("Save Layout", [](wxDialog& dialog) { // a new plan is offered the last name
    EXPECT_EQ(dynamic_cast<wxTextEntryDialog&>(dialog).GetValue(), "Other");
    return wxID_CANCEL;
  });
  put(wxID_CLOSE);
  put(wxID_SAVE);
}

TEST_F(FrameTest, AFailedSaveKeepsTheChangesUnsaved) {
  start();
  placePiece();
  answerText("Save Layout", "no such folder/Yard");
  put(wxID_SAVE, {{"Save Failed", wxID_OK}});
  const auto target = layoutsFolder() / "no such folder" / "Yard.txl";
  EXPECT_NE(dialogs.messages().back().find("No such file or directory"), std::string::npos);
  EXPECT_TRUE(frame().dirty());
  std::filesystem::create_directories(target.parent_path());
  put(wxID_SAVE); // to the same place, without asking
  EXPECT_FALSE(frame().dirty());
  EXPECT_TRUE(std::filesystem::exists(target));
}

TEST_F(FrameTest, AFolderWithoutRoomForNewFilesIsToldOnce) {
  start();
  placePiece();
  saveAs("Yard");
  for (const auto& [path, rights] :
       {std::pair{home(), 0755u}, {layoutsFolder(), 0555u}, {layoutsFolder() / "Yard.txl", 0666u}})
    std::filesystem::permissions(path, std::filesystem::perms(rights));
  dialogs.answer("Saved in Place", wxID_OK);
  for (const double x : {500, 900}) {
    placePiece(x);
    const PlainUser plain;
    put(wxID_SAVE);
    EXPECT_FALSE(frame().dirty());
  }
  std::filesystem::permissions(layoutsFolder(), std::filesystem::perms(0755));
  put(wxID_NEW);
  EXPECT_TRUE(frame().loadLayout(layoutsFolder() / "Yard.txl"));
  EXPECT_EQ(pieces(), 3u);
}

TEST_F(FrameTest, UnitsViewAndThePointersPlaceFollowThePlan) {
  startLaidOut();
  const char* const inches = "x: %.2f  y: %.2f in";
  const auto place = [this](const char* format, double unit) {
    const Point at = canvas().view().toWorld({300, 200});
    return wxString::Format(format, at.x / unit, at.y / unit);
  };
  const auto field = [this] { return frame().GetStatusBar()->GetStatusText(2); };
  dropPiece(plan(), "8500", {9000, 0, 0}, {}, false);
  plan().startGradeRun(plan().pieces().back().id, 1, 2);
  const wxString name(L'\u00fc', 300);
  ASSERT_EQ(saveLayout(plan(), home() / "mm.txl", name.utf8_string()), "");
  moveMouse({frame().canvasPanel(), {300, 200}});
  waitUntil("the place is shown", [&] { return field() == place("x: %.0f  y: %.0f mm", 1); });
  put(kUnitsInch);
  EXPECT_EQ(field(), place(inches, 25.4));
  put(kZoomIn);
  EXPECT_EQ(field(), place(inches, 25.4));
  ASSERT_TRUE(frame().loadLayout(home() / "mm.txl"));
  EXPECT_EQ(field(), place("x: %.0f  y: %.0f mm", 1));
  const wxString runs = "[ELEV] 2.0 deg  (right-click piece to stop)";
  EXPECT_EQ(frame().GetStatusBar()->GetStatusText(0), runs);
  frame().workspace().setHint("a hint");
  EXPECT_EQ(frame().GetStatusBar()->GetStatusText(0), runs + "    a hint");
  EXPECT_TRUE(frame().canvasPanel().GetClientRect().Contains(onPlan({9055, 0}).client))
      << "small track far out is brought into view";
  frame().workspace().changed();
  EXPECT_EQ(frame().GetTitle().length(), 200U) << "a longer one is cut";
  EXPECT_TRUE(frame().GetTitle().EndsWith(L"\u00fc\u2026 *"));
  put(wxID_NEW, {{"Unsaved Changes", wxID_NO}});
  EXPECT_TRUE(frame().GetMenuBar()->IsChecked(kUnitsInch)) << "as the user prefers";
  EXPECT_EQ(field(), place(inches, 25.4));
}

TEST_F(FileTest, OpenListsDeletesAndSurvivesBadFiles) {
  start();
  placePiece();
  saveAs("a");
  writeText(layoutsFolder() / "a.xml", "");
  writeText(layoutsFolder() / "b.xml", kBad);
  placePiece(500);
  saveAs("c");

  open("b", {{"Open Failed", wxID_OK}});
  EXPECT_EQ(pieces(), 2u); // nothing changed
  EXPECT_EQ(title(), std::string(kBase) + " - c");
  open("a");
  EXPECT_EQ(pieces(), 1u);
  EXPECT_EQ(title(), std::string(kBase) + " - a");
  EXPECT_EQ(frame().GetStatusBar()->GetStatusText(1), "Pieces: 1");

  placePiece(900);
  dialogs.answer("Unsaved Changes", wxID_NO);
  dialogs.answer("Open Layout", [](wxDialog& dialog) {
    choose(dialog, "layouts", "a");
    press(dialog, wxID_DELETE); // refused
    EXPECT_EQ(list(dialog, "layouts").GetCount(), 4u);
    press(dialog, wxID_DELETE);
    EXPECT_EQ(list(dialog, "layouts").GetCount(), 3u);
    return wxID_CANCEL;
  });
  put(wxID_OPEN, {{"Delete Layout", wxID_NO}, {"Delete Layout", wxID_YES}});
  EXPECT_FALSE(std::filesystem::exists(layoutsFolder() / "a.txl"));
  EXPECT_EQ(title(), std::string(kBase) + " - a *");
  dialogs.answer("Save Layout", wxID_CANCEL); // the file is gone: Save asks again
  put(wxID_SAVE);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(FileTest, ImportReplacesOnlyWhenTold) {
  start();
  placePiece();
  saveAs("Yard");
  std::string yard = readText(layoutsFolder() / "Yard.txl");
  writeText(home() / "in" / "Station.txl", yard);
  writeText(home() / "in" / "bad.xml", kBad);
  import(home() / "in", "Station.txl", "Yard");
  put(1900, {{"Confirm Replace", wxID_NO}});
  EXPECT_EQ(readText(layoutsFolder() / "Yard.txl"), yard);

  import(home() / "in", "bad.xml", "Yard");
  put(1900, {{"Confirm Replace", wxID_YES}, {"Import Failed", wxID_OK}});
  EXPECT_EQ(dialogs.messages().back().find("This file does not appear to be a Trassix layout:\n\n"),
            0u);
  EXPECT_EQ(readText(layoutsFolder() / "Yard.txl"), yard);

  import(home() / "in", "Station.txl", " Station ");
  put(1900, {{"Import", wxID_YES}});
  EXPECT_EQ(dialogs.messages().back(), "Imported successfully.\n\nOpen \"Station\" now?");
  EXPECT_EQ(title(), std::string(kBase) + " - Station"); // the name went into the file

  // Onto itself: only the stored name is put right.
  writeText(layoutsFolder() / "Renamed.txl", yard);
  import(layoutsFolder(), "Renamed.txl", "Renamed");
  put(1900, {{"Confirm Replace", wxID_YES}, {"Import", wxID_NO}});
  EXPECT_EQ(readText(layoutsFolder() / "Renamed.txl").size(), yard.size() + 3);
}

TEST_F(FileTest, ExportCopiesByteForByteAndAsks) {
  start();
  dialogs.answer("Export Layout", wxID_OK); // nothing there yet
  put(1901);
  EXPECT_EQ(dialogs.messages().back(), "No layouts to export. Save a layout first.");
  placePiece();
  saveAs("Yard");
  const auto out = home() / "out";
  const auto exportTo = [&](Boxes boxes) {
    dialogs.answer("Export Layout", [out](wxDialog& dialog) {
      EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
      choose(dialog, "layouts", "Yard");
      type(dialog, "destination", out.string());
      type(dialog, "name", "plan.xml");
      return wxID_OK;
    });
    put(1901, boxes);
  };
  exportTo({{"Export Failed", wxID_OK}});
  EXPECT_EQ(dialogs.messages().back(), "Destination folder does not exist:\n" + out.string());

  writeText(out / "plan.txl", "precious");
  exportTo({{"Confirm Replace", wxID_NO}});
  EXPECT_EQ(dialogs.messages().back(),
            "\"plan.txl\" already exists in that folder.\n\nReplace it?");
  EXPECT_EQ(readText(out / "plan.txl"), "precious");
  exportTo({{"Confirm Replace", wxID_YES}, {"Export", wxID_OK}});
  EXPECT_EQ(readText(out / "plan.txl"), readText(layoutsFolder() / "Yard.txl"));
}

TEST_F(FileTest, WhatWasNotUnderstoodIsNotWrittenOver) {
  start();
  placePiece();
  saveAs("Odd");
  const auto file = layoutsFolder() / "Odd.txl";
  std::string oneLine = readText(file);
  std::replace(oneLine.begin(), oneLine.end(), '\n', ' ');
  writeText(file, oneLine);
  open("Odd", {{"Open Layout", wxID_OK}});
  EXPECT_TRUE(dialogs.messages().back().starts_with("Not all of this file was understood ("));
  EXPECT_EQ(pieces(), 0u);
  put(wxID_SAVE, {{"Save Layout", wxID_CANCEL}});
  EXPECT_EQ(readText(file), oneLine);

  import(layoutsFolder(), "Odd.txl", "Copy");
  put(1900, {{"Import", wxID_OK}, {"Import", wxID_NO}});
  EXPECT_EQ(readText(layoutsFolder() / "Copy.txl"), oneLine);
}

TEST_F(FileTest, NamesAreJudgedWhileTheyAreTyped) {
  start();
  placePiece();
  const std::string leadsOut = "[This name leads out of the folder.]";
  const std::string device = "Windows keeps this name for a device.";
  dialogs.drive("Save Layout", [&](wxDialog& dialog) {
    pressKey('A', wxMOD_CONTROL);
    typeText("/Yard");
    waitUntil("the name is refused", [&] { return advice(dialog) == leadsOut; });
    pressKey(WXK_RETURN);
    pressKey(WXK_HOME);
    pressKey(WXK_DELETE);
    waitUntil("the name is taken", [&] { return advice(dialog).empty(); });
    pressKey(WXK_RETURN);
  });
  put(wxID_SAVE);
  ASSERT_TRUE(std::filesystem::exists(layoutsFolder() / "Yard.txl"));

  for (const auto& [command, title, rows] :
       {std::tuple{1900, "Import Layout", "files"}, {1901, "Export Layout", "layouts"}}) {
    dialogs.answer(title, [&, rows = rows](wxDialog& dialog) {
      if (list(dialog, rows).IsEmpty())
        type(dialog, "source", layoutsFolder().string());
      choose(dialog, rows, list(dialog, rows).GetString(0).utf8_str());
      EXPECT_EQ(advice(dialog), "");
      type(dialog, "name", "con.txl ");
      EXPECT_EQ(advice(dialog), device);
      type(dialog, "name", "a\\b");
      EXPECT_EQ(advice(dialog), "A name with / or \\ means a folder inside this one.");
      type(dialog, "name", "../b");
      EXPECT_EQ(advice(dialog), leadsOut);
      return wxID_CANCEL;
    });
    put(command);
  }
}

TEST_F(FileTest, NamesInAnyBytesAndOutOfFilesAreTaken) {
  start();
  placePiece();
  saveAs("Yard");
  std::string stored = readText(layoutsFolder() / "Yard.txl");
  stored.replace(stored.find("Yard"), 4, "../A &amp; B");
  const auto file = layoutsFolder() / "K\xf6ln.txl"; // Latin-1
  writeText(file, stored);
  open("Köln");
  EXPECT_EQ(title(), std::string(kBase) + " - ../A & B");
  dialogs.answer("Save Layout", [](wxDialog& dialog) {
    EXPECT_EQ(dynamic_cast<wxTextEntryDialog&>(dialog).GetValue(), "..A & B");
    return wxID_CANCEL;
  });
  put(wxID_SAVEAS);
  put(wxID_SAVE);
  EXPECT_EQ(readText(file), stored);

  import(layoutsFolder(), "Köln.txl", "In");
  put(1900, {{"Import", wxID_YES}});
  EXPECT_EQ(title(), std::string(kBase) + " - In");
  dialogs.answer("Open Layout", [](wxDialog& dialog) {
    choose(dialog, "layouts", "Köln");
    press(dialog, wxID_DELETE);
    return wxID_CANCEL;
  });
  put(wxID_OPEN, {{"Delete Layout", wxID_YES}});
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(FrameTest, FileDialogsSortAlikeAndEscLeavesThem) {
  start();
  placePiece();
  saveAs("Yard");
  for (const char* other : {"yard 2.txl", "Box.txl", "apron.xml", "apron.txl"})
    writeText(layoutsFolder() / other, "");
  struct Case {
    int command;
    const char *title, *list, *rows;
  };
  for (const Case& c :
       {Case{5000, "Open Layout", "layouts", "apron apron Box Yard yard 2 "},
        {1900, "Import Layout", "files", "apron.txl apron.xml Box.txl Yard.txl yard 2.txl "},
        {1901, "Export Layout", "layouts", "apron apron Box Yard yard 2 "}}) {
    dialogs.drive(c.title, [&c, this](wxDialog& dialog) {
      if (c.command == 1900)
        type(dialog, "source", layoutsFolder().string());
      wxString rows;
      for (const wxString& row : list(dialog, c.list).GetStrings())
        rows += row + " ";
      EXPECT_EQ(rows, c.rows);
      pressKey(WXK_ESCAPE);
    });
    put(c.command);
  }
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(FileTest, ABlockGoesToTheLibraryOfTheShownSystem) {
  start();
  put(2001, {{"Save Block", wxID_OK}});
  addLabel(plan(), {0, 0}, "Yard"); // is no part of a block
  put(2001, {{"Save Block", wxID_OK}});
  EXPECT_EQ(dialogs.messages().back(), "Select pieces first to save as library block.");
  placePiece();
  answerText("Save Library Block", "Throat");
  put(2001, {{"Save Block", wxID_OK}});
  EXPECT_EQ(dialogs.messages().back(), "Block saved: Throat");
  EXPECT_TRUE(
      std::filesystem::exists(layoutsFolder() / "library" / "Marklin_C-Track" / "Throat.txl"));
  dialogs.answer("Save Library Block", [](wxDialog& dialog) {
    for (const auto& [name, line] : {std::pair{"Throat", "Replaces the block of that name"},
                                     {"Nul", "Windows keeps this name for a device."},
                                     {"Other", ""}}) {
      dynamic_cast<wxTextEntryDialog&>(dialog).SetValue(name);
      EXPECT_EQ(advice(dialog), line);
    }
    return wxID_CANCEL;
  });
  put(2001);
  EXPECT_EQ(layoutFile(home(), "other/Throat").parent_path(), home() / "other");
  answerText("Save Library Block", "no such folder/Throat");
  put(2001, {{"Save Block Failed", wxID_OK}});
}

} // namespace
} // namespace trassix::test
