#include "ui/dialogs/rectangle_dialog.h"

#include "ui/dialogs/shape_fields.h"
#include "ui/widgets/problem_text.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace trassix {

RectangleDialog::RectangleDialog(wxWindow* parent, trassix::Layout& layout, Point centre)
    : wxDialog(parent, wxID_ANY, _("Rectangle"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "rectangle"),
      layout_(layout), form_(layout, centre) {
  const int gap = FromDIP(10);
  auto* grid = new wxFlexGridSizer(2, FromDIP(8), gap);
  grid->AddGrowableCol(1);
  addTextField(*this, *grid, _("&Width:"), "rectangleWidth", form_.width().text(),
               [this](const std::string& text) {
                 form_.enterWidth(text);
                 refresh();
               });
  addTextField(*this, *grid, _("&Depth:"), "rectangleDepth", form_.depth().text(),
               [this](const std::string& text) {
                 form_.enterDepth(text);
                 refresh();
               });
  addShapeFields(*this, *grid, form_, [this] { refresh(); });
  problem_ = new ProblemText(this, FromDIP(300), 2);
  ok_ = new wxButton(this, wxID_OK, _("&Place"));
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();

  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(grid, wxSizerFlags().Expand().Border(wxALL, gap));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  page->Add(buttons, wxSizerFlags().Right().Border(wxALL, gap));
  ok_->SetDefault();
  SetSizerAndFit(page);
  CentreOnParent();
  auto* width = static_cast<wxTextCtrl*>(FindWindow("rectangleWidth"));
  width->SetFocus();
  width->SelectAll();
}

void RectangleDialog::refresh() {
  problem_->show(form_.problem());
  ok_->Enable(form_.problem().empty());
}

} // namespace trassix
