// The measures for the start of the program, of the same toolkit and size: a frame with nothing in
// it; with the argument "bars" one with as many menus, tools and fields of the status bar; with
// "panels" also with the controls and rows of the panels, put into it by the toolkit's usual ways.
#include "document/layout.h"
#include "panels/palette_model.h"
#include "panels/property_sheet.h"
#include "panels/tally.h"
#include "ui/commands/command_table.h"
#include "ui/widgets/utf8.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dc.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/srchctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>
#include <wx/toolbar.h>
#include <wx/vlbox.h>

#include <utility>
#include <vector>

namespace trassix::bench {

namespace {

/// Whichever menu a row stands in, it takes as long.
void addBars(wxFrame& frame) {
  const char* titles[] = {"File", "Edit", "View", "Layout", "Help"};
  std::vector<wxMenu*> menus;
  auto* bar = new wxMenuBar;
  for (const char* title : titles) {
    menus.push_back(new wxMenu);
    bar->Append(menus.back(), title);
  }
  wxToolBar* tools = frame.CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NOICONS);
  std::size_t next = 0;
  for (const Command* command : commands()) {
    const wxItemKind kind = command->kind == Command::Kind::Check   ? wxITEM_CHECK
                            : command->kind == Command::Kind::Radio ? wxITEM_RADIO
                                                                    : wxITEM_NORMAL;
    if (command->menuText)
      menus[next++ % menus.size()]->Append(command->id, command->menuText, command->menuHelp, kind);
    if (command->toolLabel)
      tools->AddTool(command->id, command->toolLabel, wxNullBitmap,
                     command->toolTip ? command->toolTip : "", kind);
  }
  tools->Realize();
  frame.SetMenuBar(bar);
  frame.CreateStatusBar(3);
  frame.SetStatusText("Ready");
}

class Rows : public wxVListBox {
 public:
  explicit Rows(wxWindow* parent) : wxVListBox(parent) {
    const PaletteModel model;
    for (const PaletteGroup& group : model.groups()) {
      rows_.emplace_back(fromUtf8(groupName(group.group)), wxString());
      for (const PieceDef* piece : group.pieces)
        rows_.emplace_back(fromUtf8(piece->name), fromUtf8(piece->article));
    }
    SetItemCount(rows_.size());
  }

 private:
  void OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const override {
    dc.DrawText(rows_[row].first, rect.x + 90, rect.y + 4);
    dc.DrawText(rows_[row].second, rect.x + 90, rect.y + 22);
  }
  wxCoord OnMeasureItem(size_t) const override { return 46; }

  std::vector<std::pair<wxString, wxString>> rows_;
};

wxWindow* makePalette(wxWindow* parent) {
  auto* panel = new wxPanel(parent);
  auto* column = new wxBoxSizer(wxVERTICAL);
  auto* choice = new wxChoice(panel, wxID_ANY);
  for (const TrackSystem system : paletteSystems())
    choice->Append(fromUtf8(systemName(system)));
  choice->SetSelection(0);
  column->Add(choice, wxSizerFlags().Expand());
  column->Add(new wxSearchCtrl(panel, wxID_ANY), wxSizerFlags().Expand());
  auto* tabs = new wxBoxSizer(wxHORIZONTAL);
  for (const char* title : {"Track", "Scenery", "Library"})
    tabs->Add(
        new wxToggleButton(panel, wxID_ANY, title, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT),
        wxSizerFlags(1).Expand());
  column->Add(tabs, wxSizerFlags().Expand());
  column->Add(new Rows(panel), wxSizerFlags(1).Expand());
  panel->SetSizer(column);
  return panel;
}

wxWindow* makeEditor(wxWindow* parent, const Property& property) {
  if (property.editor == PropertyEditor::Choice)
    return new wxChoice(parent, wxID_ANY);
  if (property.editor == PropertyEditor::Text)
    return new wxTextCtrl(parent, wxID_ANY, fromUtf8(property.value));
  return new wxStaticText(parent, wxID_ANY, fromUtf8(property.value));
}

wxWindow* makeProperties(wxWindow* parent) {
  auto* splitter = new wxSplitterWindow(parent);
  auto* fields = new wxScrolledWindow(splitter);
  Layout plan;
  plan.ensureLevel();
  const PropertySheet sheet = propertySheetOf(plan);
  auto* grid = new wxFlexGridSizer(2, 3, 6);
  grid->Add(new wxStaticText(fields, wxID_ANY, fromUtf8(sheet.title)));
  grid->AddSpacer(1);
  for (const Property& property : sheet.rows) {
    grid->Add(new wxStaticText(fields, wxID_ANY, fromUtf8(property.name)));
    grid->Add(makeEditor(fields, property));
  }
  fields->SetSizer(grid);
  auto* tally = new wxPanel(splitter);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(new wxStaticText(tally, wxID_ANY, "Pieces on the plan"));
  auto* list = new wxListCtrl(tally, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                              wxLC_REPORT | wxLC_SINGLE_SEL | wxLC_VIRTUAL);
  for (std::size_t i = 0; i < kTallyColumnCount; ++i)
    list->AppendColumn("Column", wxLIST_FORMAT_LEFT, 50);
  column->Add(list, wxSizerFlags(1).Expand());
  column->Add(new wxStaticText(tally, wxID_ANY, "Pieces: 0\nTrack length: 0\nTrack extent: 0"));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  for (const char* label : {"Copy", "Save...", "Purchase List..."})
    buttons->Add(
        new wxButton(tally, wxID_ANY, label, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT));
  column->Add(buttons);
  tally->SetSizer(column);
  splitter->SplitHorizontally(fields, tally, 420);
  return splitter;
}

void addPanels(wxFrame& frame) {
  auto* outer = new wxSplitterWindow(&frame);
  wxWindow* palette = makePalette(outer);
  auto* inner = new wxSplitterWindow(outer);
  inner->SplitVertically(new wxPanel(inner), makeProperties(inner), -280);
  outer->SplitVertically(palette, inner, 235);
}

class BareApp : public wxApp {
 public:
  bool OnInit() override {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Bare frame", wxDefaultPosition, {1400, 900});
    if (argc > 1)
      addBars(*frame);
    if (argc > 1 && argv[1] == "panels")
      addPanels(*frame);
    frame->Show();
    return true;
  }
};

} // namespace

} // namespace trassix::bench

wxIMPLEMENT_APP(trassix::bench::BareApp);
