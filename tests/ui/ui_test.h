#pragma once

#include "app/services/app_prefs.h"
#include "modal_script.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

namespace trassix {
class MainFrame;
}

namespace trassix::test {

/// A test of the real program in this process: its own home folder, the real start, real windows.
/// One test a process, since a process keeps its folders and its catalogue for life.
class UiTest : public testing::Test {
 protected:
  UiTest();
  ~UiTest() override;

  /// The user's home of this test, where layouts, preferences and logs go.
  const std::filesystem::path& home() const { return home_.path(); }
  std::filesystem::path logFile() const { return home() / ".trassix" / "trassix.log"; }
  std::filesystem::path prefsFile() const { return home() / ".trassix" / "prefs.cfg"; }
  std::filesystem::path layoutsFolder() const { return home() / "Trassix"; }

  /// Starts the program as it starts for a user with these preferences and waits until its window
  /// is active.
  void startWith(const AppPrefs& prefs);
  /// The usual start of a test: straight to the empty plan.
  void start() { startWith({false, true, 0}); }
  /// The same, until the plan has its size and place: dialogs are placed by it and take its middle,
  /// and what is clicked must not move away. The side panels come last.
  void startLaidOut();
  /// Starts with whatever the test put into the home folder; false when the start failed.
  bool startAsIs();

  /// Runs at the next start where the main window is made; what it throws, the start meets.
  void beforeFrame(std::function<void()> action);

  MainFrame& frame() const { return *frame_; }

  /// Closes the window without a question and ends the program.
  void finish();

  ModalScript dialogs;

 private:
  TempFolder home_;
  MainFrame* frame_ = nullptr;
};

} // namespace trassix::test
