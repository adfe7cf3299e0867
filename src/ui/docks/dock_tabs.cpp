#include "ui/docks/dock_tabs.h"

#include "ui/docks/docked_panel.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/tglbtn.h>

#include <algorithm>

namespace trassix {

DockTabs::DockTabs(wxWindow* parent, std::function<void(const DockedPanel&)> close)
    : wxPanel(parent), close_(std::move(close)), row_(new wxBoxSizer(wxHORIZONTAL)) {
  closeButton_ =
      new wxButton(this, wxID_ANY, wxString::FromUTF8("\u00d7"), wxDefaultPosition, wxDefaultSize,
                   wxBU_EXACTFIT | wxBORDER_NONE, wxDefaultValidator, "closeDocked");
  closeButton_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { close_(*front_); });
  row_->AddStretchSpacer();
  row_->Add(closeButton_);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(row_, wxSizerFlags().Expand());
  SetSizer(sizer);
}

void DockTabs::add(const DockedPanel& panel, wxWindow* page) {
  auto* button =
      new wxToggleButton(this, wxID_ANY, wxGetTranslation(panel.title), wxDefaultPosition,
                         wxDefaultSize, wxBU_EXACTFIT | wxBORDER_NONE);
  button->Bind(wxEVT_TOGGLEBUTTON, [this, &panel](wxCommandEvent&) { bringToFront(panel); });
  // Tab goes along the row and then into the panel.
  button->MoveBeforeInTabOrder(closeButton_);
  row_->Insert(tabs_.size(), button);
  GetSizer()->Add(page, wxSizerFlags(1).Expand());
  tabs_.push_back({&panel, button, page});
  bringToFront(panel);
}

void DockTabs::remove(const DockedPanel& panel) {
  const auto tab = std::ranges::find(tabs_, &panel, &Tab::panel);
  const auto at = tab - tabs_.begin();
  for (wxWindow* window : {static_cast<wxWindow*>(tab->button), tab->page}) {
    window->Hide();
    window->GetContainingSizer()->Detach(window);
    wxTheApp->ScheduleForDestruction(window); // it may be what asked for it
  }
  tabs_.erase(tab);
  if (front_ != &panel)
    Layout();
  else if (tabs_.empty())
    front_ = nullptr;
  else
    bringToFront(*tabs_[std::min<std::size_t>(at, tabs_.size() - 1)].panel);
}

void DockTabs::bringToFront(const DockedPanel& panel) {
  front_ = &panel;
  for (const Tab& tab : tabs_) {
    tab.button->SetValue(tab.panel == front_);
    tab.page->Show(tab.panel == front_);
  }
  closeButton_->SetToolTip(wxString::Format(_("Close %s"), wxGetTranslation(panel.title)));
  Layout();
}

void DockTabs::turn(int by) {
  const int count = static_cast<int>(tabs_.size());
  const auto at = static_cast<int>(std::ranges::find(tabs_, front_, &Tab::panel) - tabs_.begin());
  bringToFront(*tabs_[static_cast<std::size_t>((at + by + count) % count)].panel);
}

wxWindow* DockTabs::page(const DockedPanel& panel) const {
  const auto tab = std::ranges::find(tabs_, &panel, &Tab::panel);
  return tab == tabs_.end() ? nullptr : tab->page;
}

} // namespace trassix
