#include "ui/dialogs/shape_dialog.h"

#include "geometry/polygons.h"
#include "ui/dialogs/shape_fields.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/sizer.h>

namespace trassix {

ShapeDialog::ShapeDialog(wxWindow* parent, const trassix::Layout& layout, const Shape& shape)
    : wxDialog(parent, wxID_ANY, _("Shape"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "shape"),
      form_(layout, shape) {
  const int gap = FromDIP(10);
  auto* grid = new wxFlexGridSizer(2, FromDIP(8), gap);
  grid->AddGrowableCol(1);
  addShapeFields(*this, *grid, form_, [this] { refresh(); });
  problem_ = new ProblemText(this, FromDIP(300), 2);
  auto* baseboard = new wxButton(this, wxID_ANY, _("Use as &Baseboard"));
  ok_ = new wxButton(this, wxID_OK);
  baseboard->SetName("shapeBaseboard");
  const wxString problem = fromUtf8(outlineProblem(shape.points));
  baseboard->Enable(problem.empty());
  baseboard->SetToolTip(
      problem.empty() ? _("The outline becomes the baseboard, and the shape is no shape any more")
                      : problem);
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(baseboard);
  row->AddStretchSpacer();
  row->AddSpacer(FromDIP(16));
  row->Add(buttons);

  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(grid, wxSizerFlags().Expand().Border(wxALL, gap));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  page->Add(row, wxSizerFlags().Expand().Border(wxALL, gap));
  ok_->SetDefault();
  SetSizerAndFit(page);
  CentreOnParent();
  FindWindow("shapeLabel")->SetFocus();
  baseboard->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(kUseAsBaseboard); });
}

void ShapeDialog::refresh() {
  problem_->show(form_.problem());
  ok_->Enable(form_.problem().empty());
}

} // namespace trassix
