#pragma once

#include "document/rescue/rescue_schedule.h"
#include "document/rescue/rescue_session.h"
#include "host/workspace.h"

#include <wx/eventfilter.h>
#include <wx/timer.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

class wxTopLevelWindow;

namespace trassix {

/// A rescue copy that was written.
struct WrittenCopy {
  std::filesystem::path file;
  std::string problem; ///< why there is none; empty when there is one
};

/// Keeps a copy of the open plan while that has unsaved changes. What goes wrong is told once; the
/// program goes on without.
class RescueKeeper : private PlanObserver, private wxEventFilter {
 public:
  RescueKeeper(wxTopLevelWindow& window, Workspace& workspace);
  ~RescueKeeper() override;

  /// Writes the copy unless it is there as the plan is.
  WrittenCopy write();
  /// The user gives the changes up: the copy goes with the plan, unless that is changed again.
  void giveUp() { givenUp_ = true; }
  /// The program ends: what is unsaved and not given up stays for the next start.
  void end();

  const RescueSession& session() const { return session_; }

 private:
  void planChanged() override;
  void planReplaced() override;
  void fileChanged() override;
  int FilterEvent(wxEvent& event) override;
  void onTimer();
  void followFile();
  void startTimer();
  void note(const std::string& problem);
  void tell();

  wxTopLevelWindow& window_;
  Workspace& workspace_;
  RescueSchedule schedule_;
  RescueSession session_;
  wxTimer timer_;
  RescueSchedule::Time lastInput_;
  std::optional<std::uint64_t> written_; ///< stamp of the document in the copy
  std::string problem_;                  ///< to be told as soon as the window is in front
  bool told_ = false;
  bool givenUp_ = false;
};

} // namespace trassix
