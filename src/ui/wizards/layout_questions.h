#pragma once

#include "panels/layout_form.h"
#include "wizards/layout/layout_proposal.h"

#include <wx/panel.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

class wxButton;
class wxCheckBox;
class wxChoice;
class wxFlexGridSizer;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class ProblemText;
class TablePicture;

/// What the Layout Wizard asks, with the table drawn as it is asked for.
class LayoutQuestions : public wxPanel {
 public:
  /// The form must outlive it. `changed` is called after each change of the form. Why the stock
  /// cannot be told, if so, is shown where it is asked for.
  LayoutQuestions(wxWindow* parent, LayoutForm& form, const std::string& stockProblem,
                  std::function<void()> changed);

  /// Says why there is no such layout and offers what would help, until something is changed.
  void refuse(const LayoutRefusal& refusal);
  void focusFirst();

 private:
  struct TableRow {
    LayoutForm::Table table;
    std::size_t usual;
    std::string name;
  };

  struct Measure {
    wxStaticText* name;
    wxTextCtrl* field;
  };

  wxSizer* makeRow(int columns);
  wxSizer* makeTrack();
  wxSizer* makeTable();
  wxSizer* makeMeasures();
  wxSizer* makeSideLength();
  wxSizer* makeTurns();
  wxSizer* makeWishes(const std::string& stockProblem);
  wxSizer* makeRemedies();
  wxButton* addRemedy(wxSizer& row, const wxString& label, const char* name,
                      std::function<void()> take);
  wxChoice* makeChoice(const char* name, std::function<void(std::size_t)> chosen);
  wxChoice* addChoice(wxSizer& row, const wxString& label, const char* name,
                      std::function<void(std::size_t)> chosen);
  wxTextCtrl* addLength(wxSizer& row, const wxString& label, const char* name,
                        std::function<void(const std::string&)> enter);
  wxCheckBox* makeCheck(const wxString& label, const char* name, std::function<void(bool)> checked);
  void change(); ///< what was asked is another thing now
  void refresh();
  void showTable();
  void showTracks();
  void showWishes();
  void showNotes();

  LayoutForm& form_;
  std::function<void()> changed_;
  LayoutRefusal refusal_;
  std::vector<TableRow> tables_;
  wxChoice* system_ = nullptr;
  wxChoice* tracks_ = nullptr;
  wxChoice* radius_ = nullptr;
  wxChoice* outer_ = nullptr;
  wxTextCtrl* distance_ = nullptr;
  wxCheckBox* station_ = nullptr;
  wxChoice* stationSide_ = nullptr;
  wxChoice* sidings_ = nullptr;
  wxTextCtrl* usable_ = nullptr;
  wxCheckBox* bridge_ = nullptr;
  wxChoice* bridgeSide_ = nullptr;
  wxChoice* bridgeForm_ = nullptr;
  wxCheckBox* ownOnly_ = nullptr;
  wxChoice* preference_ = nullptr;
  wxChoice* table_ = nullptr;
  std::array<Measure, LayoutForm::kMeasures> measures_{};
  wxSizer* sideLength_ = nullptr; ///< of the free outline
  wxChoice* measuredSide_ = nullptr;
  wxTextCtrl* sideLengthField_ = nullptr;
  TablePicture* picture_ = nullptr;
  wxStaticText* notes_ = nullptr;
  ProblemText* problem_ = nullptr;
  wxButton* useTable_ = nullptr;
  wxButton* useRadius_ = nullptr;
  wxButton* useLength_ = nullptr;
};

} // namespace trassix
