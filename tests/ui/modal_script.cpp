#include "modal_script.h"

#include "driver.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/msgdlg.h>

#include <utility>

namespace trassix::test {

ModalScript::~ModalScript() {
  for (const Step& step : steps_) {
    ADD_FAILURE() << "this dialog never came: " << step.title;
  }
}

void ModalScript::answer(const std::string& title, int id) {
  answer(title, [id](wxDialog&) { return id; });
}

void ModalScript::answer(const std::string& title, std::function<int(wxDialog&)> respond) {
  steps_.push_back({title, std::move(respond), nullptr});
}

void ModalScript::drive(const std::string& title, std::function<void(wxDialog&)> act) {
  steps_.push_back({title, nullptr, std::move(act)});
}

int ModalScript::Enter(wxDialog* dialog) {
  const std::string title = dialog->GetTitle().utf8_string();
  if (const auto* box = dynamic_cast<wxMessageDialogBase*>(dialog)) {
    messages_.push_back(box->GetMessage().utf8_string());
  }
  if (steps_.empty() || steps_.front().title != title) {
    ADD_FAILURE() << "unexpected dialog: " << title
                  << (messages_.empty() ? "" : ", latest message: " + messages_.back());
    return wxID_CANCEL;
  }
  const Step step = steps_.front();
  steps_.pop_front();
  if (step.respond) {
    return step.respond(*dialog);
  }
  wxTheApp->CallAfter([dialog, step] {
    if (waitUntil(step.title + " is on the screen", [dialog] { return dialog->IsActive(); })) {
      step.act(*dialog);
    }
    if (dialog->IsModal()) {
      waitUntil(step.title + " closed", [dialog] { return !dialog->IsModal(); });
    }
    if (dialog->IsModal()) {
      dialog->EndModal(wxID_CANCEL);
    }
  });
  return wxID_NONE;
}

} // namespace trassix::test
