#pragma once

#include <wx/modalhook.h>

#include <deque>
#include <functional>
#include <string>

namespace trassix::test {

/// The modal dialogs a test expects, in order. A dialog that comes unexpectedly, or one that never
/// comes, fails the test; an unexpected one is cancelled unseen, so that nothing hangs.
class ModalScript : public wxModalDialogHook {
 public:
  ModalScript() { Register(); }
  ~ModalScript() override;

  /// Answers the dialog of this title with an id (wxID_YES, wxID_OK, ...) without showing it.
  void answer(const std::string& title, int id);

  /// The same, and fills in or looks at the dialog first.
  void answer(const std::string& title, std::function<int(wxDialog&)> respond);

  /// Shows the dialog for real and runs `act` once it is on the screen; that must close it.
  void drive(const std::string& title, std::function<void(wxDialog&)> act);

  bool finished() const { return steps_.empty(); }

  /// Message texts of the boxes met so far, the latest at the end.
  const std::deque<std::string>& messages() const { return messages_; }

 protected:
  int Enter(wxDialog* dialog) override;

 private:
  struct Step {
    std::string title;
    std::function<int(wxDialog&)> respond;
    std::function<void(wxDialog&)> act;
  };

  std::deque<Step> steps_;
  std::deque<std::string> messages_;
};

} // namespace trassix::test
