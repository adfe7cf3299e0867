// The frame as canvas, panels and dialogs see it.
#include "host/command_ids.h"
#include "measures/measure_format.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/dialogs/choice_dialog.h"
#include "ui/frame/main_frame.h"
#include "ui/properties/properties_panel.h"
#include "ui/widgets/utf8.h"

#include <wx/clipbrd.h>
#include <wx/control.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>
#include <wx/textdlg.h>
#include <wx/toolbar.h>

namespace trassix {

void MainFrame::tellAll() {
  canvas_->update();
  refreshProperties();
  showPieceCount();
}

void MainFrame::refreshProperties() {
  if (properties_)
    properties_->recompute();
}

void MainFrame::changed() {
  plan_.noteChange();
  refreshTitle();
  tellAll();
}

void MainFrame::selectionChanged() {
  canvas_->canvas().renewHint();
  canvas_->update();
  if (properties_)
    properties_->selectionChanged();
}

void MainFrame::repaint() {
  canvas_->update();
}

void MainFrame::setHint(const std::string& hint) {
  const wxString text = wxGetTranslation(fromUtf8(hint));
  if (GetStatusBar() && GetStatusBar()->GetStatusText(kHintField) != text)
    SetStatusText(text, kHintField);
}

void MainFrame::setPointer(Point world) {
  const std::int32_t units = plan_.layout().settings().units;
  const double unit = millimetresPer(units);
  const int decimals = units == kMillimetres ? 0 : units == kCentimetres ? 1 : 2;
  SetStatusText(wxString::Format("x: %.*f  y: %.*f %s", decimals, world.x / unit, decimals,
                                 world.y / unit, unitName(units)),
                kPointerField);
}

void MainFrame::setToolMode(ToolMode mode) {
  enterMode(mode, {});
}

void MainFrame::enterMode(ToolMode mode, const PolygonUse& use) {
  switches_.mode = mode;
  switches_.polygonUse = use;
  GetToolBar()->ToggleTool(kMeasure, mode == ToolMode::Measure);
  GetToolBar()->ToggleTool(kPolygon, mode == ToolMode::Polygon);
  canvas_->canvas().modeChanged();
  canvas_->update();
}

void MainFrame::show(const Notice& notice) {
  const long icon = notice.icon == Notice::Icon::Error     ? wxICON_ERROR
                    : notice.icon == Notice::Icon::Warning ? wxICON_EXCLAMATION
                                                           : wxICON_INFORMATION;
  wxMessageBox(fromUtf8(notice.text), fromUtf8(notice.title), static_cast<int>(wxOK | icon), this);
}

bool MainFrame::confirm(const Question& question) {
  const int style = wxYES_NO | wxNO_DEFAULT | (question.warning ? wxICON_WARNING : wxICON_QUESTION);
  return wxMessageBox(fromUtf8(question.text), fromUtf8(question.title), style, this) == wxYES;
}

std::optional<std::size_t> MainFrame::choose(const Choice& choice) {
  ChoiceDialog dialog(this, choice);
  const Point px = canvas_->canvas().view().toScreen(choice.about);
  dialog.leaveFree(
      canvas_->ClientToScreen(wxPoint(static_cast<int>(px.x), static_cast<int>(px.y))));
  if (dialog.ShowModal() != wxID_OK)
    return {};
  return dialog.chosen();
}

std::optional<std::string> MainFrame::askText(const std::string& title, const std::string& prompt,
                                              const std::string& value) {
  wxTextEntryDialog dialog(this, fromUtf8(prompt), fromUtf8(title), fromUtf8(value));
  if (dialog.ShowModal() != wxID_OK)
    return {};
  return toUtf8(dialog.GetValue());
}

void MainFrame::popupMenu(const std::vector<MenuRow>& rows) {
  wxMenu menu;
  std::function<void()> chosen;
  wxMenu* submenu = nullptr;
  std::string submenuName;
  // Names of pieces and levels are among the texts, and shortcuts are not.
  const auto shown = [](const std::string& text) {
    return wxControl::EscapeMnemonics(wxGetTranslation(fromUtf8(text)));
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
    item->Enable(row.enabled);
    menu.Bind(
        wxEVT_MENU, [&chosen, &row](wxCommandEvent&) { chosen = row.action; }, item->GetId());
  }
  canvas_->PopupMenu(&menu);
  if (chosen)
    chosen();
}

void MainFrame::putClipboard(const std::string& text) {
  if (!wxTheClipboard->Open())
    return;
  wxTheClipboard->SetData(new wxTextDataObject(fromUtf8(text)));
  wxTheClipboard->Close();
}

std::string MainFrame::clipboard() {
  wxTextDataObject text;
  if (!wxTheClipboard->Open())
    return {};
  const bool found = wxTheClipboard->IsSupported(wxDF_UNICODETEXT) && wxTheClipboard->GetData(text);
  wxTheClipboard->Close();
  return found ? toUtf8(text.GetText()) : std::string();
}

void MainFrame::showPieceCount() {
  SetStatusText(wxString::Format(_("Pieces: %zu"), plan_.layout().pieces().size()), kPiecesField);
}

} // namespace trassix
