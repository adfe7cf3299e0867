#include "modal_script.h"

#include "driver.h"

#include <gtest/gtest.h>
#include <wx/anybutton.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace trassix::test {

namespace {

void collectControls(wxWindow& parent, std::vector<wxWindow*>& controls) {
  for (auto node = parent.GetChildren().GetFirst(); node; node = node->GetNext()) {
    wxWindow* child = node->GetData();
    if (!child->IsShown())
      continue;
    controls.push_back(child);
    collectControls(*child, controls);
  }
}

/// True when the controls have got their places, which some dialogs do only once they are shown.
bool laidOut(wxDialog& dialog) {
  std::vector<wxWindow*> controls;
  collectControls(dialog, controls);
  return std::all_of(controls.begin(), controls.end(), [](const wxWindow* control) {
    return control->GetSize().x > 1 && control->GetSize().y > 1;
  });
}

/// True when the dialog is over its window. It may give way upwards or downwards, or lie at the
/// right edge beside what it shows; the window manager moves it there after it is shown.
bool inPlace(const wxDialog& dialog) {
  const wxWindow* parent = dialog.GetParent();
  if (parent == nullptr)
    return true;
  const int right = parent->GetScreenRect().GetRight() - dialog.GetScreenRect().GetRight();
  return std::abs(middleOf(dialog).x - middleOf(*parent).x) <= 4 ||
         (right >= 0 && right <= dialog.FromDIP(20));
}

/// Tab goes in reading order, and no text is cut off.
void expectTidy(wxDialog& dialog) {
  std::vector<wxWindow*> controls;
  collectControls(dialog, controls);
  wxRect last;
  for (wxWindow* control : controls) {
    const wxString what = control->GetLabel().empty() ? control->GetName() : control->GetLabel();
    if (dynamic_cast<wxStaticText*>(control) || dynamic_cast<wxAnyButton*>(control)) {
      EXPECT_GE(control->GetSize().x, control->GetBestSize().x) << what;
      EXPECT_TRUE(dialog.GetScreenRect().Contains(control->GetScreenRect())) << what;
    }
    if (!control->AcceptsFocusFromKeyboard() || !control->GetChildren().empty())
      continue;
    const wxRect rect = control->GetScreenRect();
    const bool sameRow = rect.y < last.GetBottom() && last.y < rect.GetBottom();
    EXPECT_TRUE(sameRow ? rect.x > last.x : rect.y >= last.y)
        << what << " in " << dialog.GetTitle();
    last = rect;
  }
}

} // namespace

ModalScript::~ModalScript() {
  for (const Step& step : steps_)
    ADD_FAILURE() << "this dialog never came: " << step.title;
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
  if (const auto* box = dynamic_cast<wxMessageDialogBase*>(dialog))
    messages_.push_back(box->GetMessage().utf8_string());
  if (steps_.empty() || steps_.front().title != title) {
    ADD_FAILURE() << "unexpected dialog: " << title
                  << (messages_.empty() ? "" : ", latest message: " + messages_.back());
    return wxID_CANCEL;
  }
  const Step step = steps_.front();
  steps_.pop_front();
  if (step.respond)
    return step.respond(*dialog);
  wxTheApp->CallAfter([dialog, step] {
    if (waitUntil(step.title + " is in its place on the screen", [dialog] {
          return dialog->IsActive() && laidOut(*dialog) && inPlace(*dialog);
        })) {
      expectTidy(*dialog);
      step.act(*dialog);
    }
    if (dialog->IsModal()) {
      waitUntil(step.title + " closed", [dialog] { return !dialog->IsModal(); });
    }
    if (dialog->IsModal())
      dialog->EndModal(wxID_CANCEL);
  });
  return wxID_NONE;
}

} // namespace trassix::test
