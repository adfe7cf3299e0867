#pragma once

#include "panels/layout_form.h"
#include "wizards/layout/layout_placing.h"
#include "wizards/layout/layout_search.h"

#include <wx/dialog.h>

#include <optional>
#include <string>

class wxButton;
class wxGauge;
class wxSimplebook;
class wxSizer;
class wxStaticText;

namespace trassix {

class LayoutProposals;
class LayoutQuestions;

/// Asks for a layout and searches for it while the user already looks at what was found; the plan
/// stays as it is. After wxID_OK `chosen` is what the user wants.
class LayoutWizardDialog : public wxDialog {
 public:
  /// The plan must outlive the dialog. `stockProblem` says why what is at home is not known.
  LayoutWizardDialog(wxWindow* parent, const trassix::Layout& plan, TrackSystem system,
                     const PieceStock& stock, const std::string& stockProblem,
                     const std::optional<RememberedLayout>& remembered);

  /// Null while none was found.
  const LayoutProposal* chosen() const;
  LayoutPlacing placing() const;
  const LayoutTask& task() const { return search_->task(); }

 private:
  wxSizer* makeButtons();
  void showPage(std::size_t page);
  void search();
  void stop();
  /// Shows how far the search is and what it has found.
  void follow();
  void onIdle(wxIdleEvent& event);
  void onKey(wxKeyEvent& event);

  const trassix::Layout& plan_;
  LayoutForm form_;
  std::optional<LayoutSearch> search_;
  bool searching_ = false;
  std::size_t shown_ = 0; ///< proposals that the user knows of
  wxSimplebook* pages_ = nullptr;
  LayoutQuestions* questions_ = nullptr;
  LayoutProposals* proposals_ = nullptr;
  wxStaticText* busy_ = nullptr;
  wxGauge* gauge_ = nullptr;
  wxButton* stop_ = nullptr;
  wxButton* back_ = nullptr;
  wxButton* find_ = nullptr;
  wxButton* place_ = nullptr;
};

} // namespace trassix
