#include "ui/frame/window_questions.h"

#include "editing/elevation/propagation.h"
#include "host/shape_answer.h"
#include "ui/dialogs/choice_dialog.h"
#include "ui/dialogs/elevation_dialog.h"
#include "ui/dialogs/helix_dialog.h"
#include "ui/dialogs/shape_dialog.h"
#include "ui/dialogs/work_dialog.h"
#include "ui/widgets/menu_help.h"
#include "ui/widgets/utf8.h"

#include <wx/clipbrd.h>
#include <wx/control.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/textdlg.h>

namespace trassix {

WindowQuestions::WindowQuestions(wxFrame& window, std::function<wxPoint(Point)> onScreen)
    : window_(window), onScreen_(std::move(onScreen)) {}

void WindowQuestions::show(const Notice& notice) {
  const long icon = notice.icon == Notice::Icon::Error     ? wxICON_ERROR
                    : notice.icon == Notice::Icon::Warning ? wxICON_EXCLAMATION
                                                           : wxICON_INFORMATION;
  wxMessageBox(fromUtf8(notice.text), fromUtf8(notice.title), static_cast<int>(wxOK | icon),
               &window_);
}

bool WindowQuestions::confirm(const Question& question) {
  const int style = wxYES_NO | wxNO_DEFAULT | (question.warning ? wxICON_WARNING : wxICON_QUESTION);
  return wxMessageBox(fromUtf8(question.text), fromUtf8(question.title), style, &window_) == wxYES;
}

std::optional<std::size_t> WindowQuestions::choose(const Choice& choice) {
  ChoiceDialog dialog(&window_, choice);
  dialog.leaveFree(onScreen_(choice.about));
  if (dialog.ShowModal() != wxID_OK)
    return {};
  return dialog.chosen();
}

std::optional<std::string> WindowQuestions::askText(const std::string& title,
                                                    const std::string& prompt,
                                                    const std::string& value) {
  wxTextEntryDialog dialog(&window_, fromUtf8(prompt), fromUtf8(title), fromUtf8(value));
  if (dialog.ShowModal() != wxID_OK)
    return {};
  return toUtf8(dialog.GetValue());
}

void WindowQuestions::popupMenu(const std::vector<MenuRow>& rows) {
  wxMenu menu;
  std::function<void()> chosen;
  wxMenu* submenu = nullptr;
  std::string submenuName;
  // Names of pieces and levels are among the texts, and shortcuts are not.
  const auto shown = [](const std::string& text) {
    return wxControl::EscapeMnemonics(fromUtf8(text));
  };
  for (const MenuRow& row : rows) {
    if (row.text.empty()) {
      menu.AppendSeparator();
      continue;
    }
    if (row.submenu != submenuName) {
      submenuName = row.submenu;
      submenu = submenuName.empty() ? nullptr : new wxMenu;
      if (submenu)
        menu.AppendSubMenu(submenu, shown(submenuName));
    }
    // The keys are shown in the text: as an accelerator the menu would take them over.
    wxString text = shown(row.text);
    if (!row.keys.empty())
      text += "   (" + shown(row.keys) + ")";
    wxMenuItem* item = (submenu ? *submenu : menu).Append(wxID_ANY, text);
    item->Enable(row.problem.empty());
    tellUnusable(*item, fromUtf8(row.problem));
    menu.Bind(
        wxEVT_MENU, [&chosen, &row](wxCommandEvent&) { chosen = row.action; }, item->GetId());
  }
  window_.PopupMenu(&menu);
  if (chosen)
    chosen();
}

std::optional<ShapeAnswer> WindowQuestions::askShape(const Layout& layout, const Shape& shape) {
  ShapeDialog dialog(&window_, layout, shape);
  switch (dialog.ShowModal()) {
  case wxID_OK:
    return ShapeAnswer{dialog.wanted(), false};
  case ShapeDialog::kUseAsBaseboard:
    return ShapeAnswer{shape, true};
  default:
    return {};
  }
}

std::optional<HeightPlan> WindowQuestions::askHeights(Workspace& workspace) {
  ElevationDialog dialog(&window_, workspace);
  return dialog.ShowModal() == wxID_OK ? std::optional(dialog.plan()) : std::nullopt;
}

std::optional<HelixWish> WindowQuestions::askHelix(Workspace& workspace, const HelixWish& from,
                                                   std::int32_t helix) {
  HelixDialog dialog(&window_, workspace, from, helix);
  return dialog.ShowModal() == wxID_OK ? std::optional(dialog.wish()) : std::nullopt;
}

bool WindowQuestions::finish(const LongWork& work) {
  return finishWork(window_, work);
}

void SystemClipboard::put(const std::string& text) {
  if (!wxTheClipboard->Open())
    return;
  wxTheClipboard->SetData(new wxTextDataObject(fromUtf8(text)));
  wxTheClipboard->Close();
}

std::string SystemClipboard::text() {
  wxTextDataObject data;
  if (!wxTheClipboard->Open())
    return {};
  const bool found = wxTheClipboard->IsSupported(wxDF_UNICODETEXT) && wxTheClipboard->GetData(data);
  wxTheClipboard->Close();
  return found ? toUtf8(data.GetText()) : std::string();
}

} // namespace trassix
