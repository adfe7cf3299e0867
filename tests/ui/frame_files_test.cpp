#include "driver.h"
#include "editing/annotations.h"
#include "frame_test.h"

#include <wx/button.h>
#include <wx/msgdlg.h>

namespace trassix::test {
namespace {

constexpr const char* kBase = "Trassix v1.7.1 by Quorrail";

constexpr const char* kBad =
    "<layout name=\"b\">\n<pieces>\n<piece id=\"1\" cat=\"24188\" x=\"what\">\n</piece>\n";

struct Leaving {
  const char* name;
  bool dirty;
  bool saved; ///< the plan has a file
  int answer;
  std::size_t piecesAfter;
  std::size_t piecesInFile; ///< of the two that were placed, the second one unsaved
};

void PrintTo(const Leaving& leaving, std::ostream* out) {
  *out << leaving.name;
}

class UnsavedChanges : public FrameTest, public testing::WithParamInterface<Leaving> {};

TEST_P(UnsavedChanges, AreAskedFor) {
  const Leaving& leaving = GetParam();
  start();
  placePiece();
  if (leaving.saved)
    saveAs("Yard");
  if (leaving.dirty)
    placePiece(500);
  if (leaving.dirty)
    dialogs.answer("Unsaved Changes", leaving.answer);
  if (leaving.answer == wxID_YES && !leaving.saved)
    dialogs.answer("Save Layout", wxID_CANCEL);
  put(wxID_NEW);
  EXPECT_EQ(pieces(), leaving.piecesAfter);
  EXPECT_EQ(frame().dirty(), leaving.piecesAfter > 0);
  const std::string file = readText(layoutsFolder() / "Yard.txl");
  std::size_t inFile = 0;
  for (std::size_t at = 0; (at = file.find("<piece ", at)) != std::string::npos; ++at)
    ++inFile;
  EXPECT_EQ(inFile, leaving.piecesInFile);
  if (leaving.piecesAfter == 0) {
    EXPECT_EQ(title(), kBase);
  }
}

INSTANTIATE_TEST_SUITE_P(Answers, UnsavedChanges,
                         testing::Values(Leaving{"NothingToAsk", false, true, wxID_NONE, 0, 1},
                                         Leaving{"Cancel", true, true, wxID_CANCEL, 2, 1},
                                         Leaving{"No", true, true, wxID_NO, 0, 1},
                                         Leaving{"Yes", true, true, wxID_YES, 0, 2},
                                         Leaving{"YesThenNoName", true, false, wxID_YES, 0, 0}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(FrameTest, CloseCanBeVetoed) {
  start();
  placePiece();
  dialogs.answer("Unsaved Changes", [](wxDialog& dialog) {
    EXPECT_EQ(dynamic_cast<wxMessageDialogBase&>(dialog).GetMessageDialogStyle() &
                  (wxYES_NO | wxCANCEL | wxICON_QUESTION),
              wxYES_NO | wxCANCEL | wxICON_QUESTION);
    return wxID_CANCEL;
  });
  EXPECT_FALSE(frame().Close());
  EXPECT_EQ(pieces(), 1u);
  EXPECT_EQ(dialogs.messages().back(), "You have unsaved changes. Save before continuing?");
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
  dialogs.answer("Save Failed", wxID_OK);
  put(wxID_SAVE);
  EXPECT_TRUE(frame().dirty());
  std::filesystem::create_directories(layoutsFolder() / "no such folder");
  put(wxID_SAVE); // to the same place, without asking
  EXPECT_FALSE(frame().dirty());
  EXPECT_TRUE(std::filesystem::exists(layoutsFolder() / "no such folder" / "Yard.txl"));
}

TEST_F(FrameTest, OpenListsDeletesAndSurvivesBadFiles) {
  start();
  placePiece();
  saveAs("a");
  const std::string good = readText(layoutsFolder() / "a.txl");
  writeText(layoutsFolder() / "a.xml", "");
  writeText(layoutsFolder() / "b.xml", kBad);
  placePiece(500);
  saveAs("c");

  const auto openNamed = [this](const char* name) {
    dialogs.answer("Open Layout", [name](wxDialog& dialog) {
      wxWindow* accept = dialog.FindWindow(wxID_OK);
      EXPECT_FALSE(accept->IsEnabled() || dialog.FindWindow(wxID_DELETE)->IsEnabled());
      EXPECT_EQ(list(dialog, "layouts").GetCount(), 4u);
      choose(dialog, "layouts", name);
      EXPECT_TRUE(accept->IsEnabled() && dialog.FindWindow(wxID_DELETE)->IsEnabled());
      return wxID_OK;
    });
  };
  openNamed("b");
  dialogs.answer("Open Failed", wxID_OK);
  put(wxID_OPEN);
  EXPECT_EQ(pieces(), 2u); // nothing changed
  EXPECT_EQ(title(), std::string(kBase) + " - c");
  const std::string half = good.substr(0, good.find("</pieces>"));
  writeText(layoutsFolder() / "b.xml", half);
  openNamed("b");
  dialogs.answer("Open Layout", wxID_OK); // told that the file is not whole
  put(wxID_OPEN);
  EXPECT_EQ(pieces(), 1u);
  dialogs.answer("Save Layout", wxID_CANCEL);
  put(wxID_SAVE);
  EXPECT_EQ(readText(layoutsFolder() / "b.xml"), half) << "what is damaged is not written over";
  openNamed("a");
  put(wxID_OPEN);
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
  dialogs.answer("Delete Layout", wxID_NO);
  dialogs.answer("Delete Layout", wxID_YES);
  put(wxID_OPEN);
  EXPECT_FALSE(std::filesystem::exists(layoutsFolder() / "a.txl"));
  EXPECT_EQ(title(), std::string(kBase) + " - a *");
  dialogs.answer("Save Layout", wxID_CANCEL); // the file is gone: Save asks again
  put(wxID_SAVE);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(FrameTest, ImportReplacesOnlyWhenTold) {
  start();
  placePiece();
  saveAs("Yard");
  std::string yard = readText(layoutsFolder() / "Yard.txl");
  writeText(home() / "in" / "Station.txl", yard);
  writeText(home() / "in" / "bad.xml", kBad);
  const auto import = [this](const std::filesystem::path& folder, const char* file,
                             const char* name) {
    dialogs.answer("Import Layout", [=](wxDialog& dialog) {
      type(dialog, "source", folder.string());
      EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
      choose(dialog, "files", file);
      EXPECT_TRUE(dialog.FindWindow(wxID_OK)->IsEnabled()); // its name is offered
      type(dialog, "name", name);
      return wxID_OK;
    });
  };
  import(home() / "in", "Station.txl", "Yard");
  dialogs.answer("Confirm Replace", wxID_NO);
  put(1900);
  EXPECT_EQ(readText(layoutsFolder() / "Yard.txl"), yard);

  import(home() / "in", "bad.xml", "Yard");
  dialogs.answer("Confirm Replace", wxID_YES);
  dialogs.answer("Import Failed", wxID_OK);
  put(1900);
  EXPECT_EQ(dialogs.messages().back().find("This file does not appear to be a Trassix layout:\n\n"),
            0u);
  EXPECT_EQ(readText(layoutsFolder() / "Yard.txl"), yard);

  import(home() / "in", "Station.txl", " Station ");
  dialogs.answer("Import", wxID_YES);
  put(1900);
  EXPECT_EQ(dialogs.messages().back(), "Imported successfully.\n\nOpen \"Station\" now?");
  EXPECT_EQ(title(), std::string(kBase) + " - Station"); // the name went into the file

  // Onto itself: only the stored name is put right.
  writeText(layoutsFolder() / "Renamed.txl", yard);
  import(layoutsFolder(), "Renamed.txl", "Renamed");
  dialogs.answer("Confirm Replace", wxID_YES);
  dialogs.answer("Import", wxID_NO);
  put(1900);
  EXPECT_EQ(readText(layoutsFolder() / "Renamed.txl").size(), yard.size() + 3);
}

TEST_F(FrameTest, ExportCopiesByteForByteAndAsks) {
  start();
  dialogs.answer("Export Layout", wxID_OK); // nothing there yet
  put(1901);
  EXPECT_EQ(dialogs.messages().back(), "No layouts to export. Save a layout first.");
  placePiece();
  saveAs("Yard");
  const auto out = home() / "out";
  const auto exportTo = [this](const std::filesystem::path& folder) {
    dialogs.answer("Export Layout", [folder](wxDialog& dialog) {
      EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
      choose(dialog, "layouts", "Yard");
      type(dialog, "destination", folder.string());
      type(dialog, "name", "plan.xml");
      return wxID_OK;
    });
  };
  exportTo(out);
  dialogs.answer("Export Failed", wxID_OK);
  put(1901);
  EXPECT_EQ(dialogs.messages().back(), "Destination folder does not exist:\n" + out.string());

  writeText(out / "plan.txl", "precious");
  exportTo(out);
  dialogs.answer("Confirm Replace", wxID_NO);
  put(1901);
  EXPECT_EQ(dialogs.messages().back(),
            "\"plan.txl\" already exists in that folder.\n\nReplace it?");
  EXPECT_EQ(readText(out / "plan.txl"), "precious");
  exportTo(out);
  dialogs.answer("Confirm Replace", wxID_YES);
  dialogs.answer("Export", wxID_OK);
  put(1901);
  EXPECT_EQ(readText(out / "plan.txl"), readText(layoutsFolder() / "Yard.txl"));
}

TEST_F(FrameTest, EscLeavesEveryFileDialog) {
  start();
  placePiece();
  saveAs("Yard");
  for (const auto& [command, title] :
       {std::pair{5000, "Open Layout"}, {1900, "Import Layout"}, {1901, "Export Layout"}}) {
    dialogs.drive(title, [](wxDialog&) { pressKey(WXK_ESCAPE); });
    put(command);
  }
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(FrameTest, ABlockGoesToTheLibraryOfTheShownSystem) {
  start();
  dialogs.answer("Save Block", wxID_OK);
  put(2001);
  addLabel(frame().layout(), {0, 0}, "Yard"); // is no part of a block
  dialogs.answer("Save Block", wxID_OK);
  put(2001);
  EXPECT_EQ(dialogs.messages().back(), "Select pieces first to save as library block.");
  placePiece();
  answerText("Save Library Block", "Throat");
  dialogs.answer("Save Block", wxID_OK);
  put(2001);
  EXPECT_EQ(dialogs.messages().back(), "Block saved: Throat");
  EXPECT_TRUE(
      std::filesystem::exists(layoutsFolder() / "library" / "Marklin_C-Track" / "Throat.txl"));
  answerText("Save Library Block", "no such folder/Throat");
  dialogs.answer("Save Block Failed", wxID_OK);
  put(2001);
}

} // namespace
} // namespace trassix::test
