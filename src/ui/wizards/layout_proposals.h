#pragma once

#include "document/layout.h"
#include "wizards/layout/layout_placing.h"
#include "wizards/layout/layout_search.h"

#include <wx/panel.h>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class wxButton;
class wxRadioButton;
class wxSizer;
class wxStaticText;

namespace trassix {

class PicturePanel;

/// What the Layout Wizard found, up to four layouts side by side with their figures; one of them is
/// chosen.
class LayoutProposals : public wxPanel {
 public:
  /// `plan` is the one on which the chosen layout would be placed. A double-click on a picture
  /// calls `accept`; `more` has the search go on.
  LayoutProposals(wxWindow* parent, const trassix::Layout& plan, LayoutPlacing placing,
                  std::function<void()> accept, std::function<void()> more);

  /// Shows what was found first and chooses the best. The search must outlive its being shown.
  void show(const LayoutSearch& search, bool searching);
  /// To be called when more was found, and when the search has come to an end.
  void follow(bool searching);

  bool anyChosen() const { return search_ && chosen_ < search_->proposals().size(); }
  /// Once there is any.
  const LayoutProposal& chosen() const { return search_->proposals().at(chosen_); }
  LayoutPlacing placing() const;

 private:
  static constexpr std::size_t kCards = LayoutSearch::kAtOnce;
  static constexpr std::size_t kMostFacts = 10;

  struct Card {
    trassix::Layout plan; ///< in the picture
    std::optional<std::size_t> proposal;
    PicturePanel* picture;
    wxRadioButton* button;
    std::array<wxStaticText*, kMostFacts> facts;
  };

  wxSizer* makeCards();
  wxSizer* makeTurning();
  wxSizer* makePlacing(LayoutPlacing placing);
  void turnTo(std::size_t first);
  void fillCards();
  void fillFacts();
  void choose(std::size_t proposal);
  void goOn();
  void showNotes();

  const trassix::Layout& plan_;
  std::function<void()> accept_;
  std::function<void()> more_;
  const LayoutSearch* search_ = nullptr;
  bool searching_ = false;
  bool wantsNext_ = false; ///< as soon as there are more
  std::size_t first_ = 0;  ///< of those that are shown
  std::size_t chosen_ = 0;
  std::array<Card, kCards> cards_{};
  std::array<wxStaticText*, kMostFacts> names_{};
  wxStaticText* place_ = nullptr;
  wxButton* earlier_ = nullptr;
  wxButton* moreButton_ = nullptr;
  wxRadioButton* replace_ = nullptr;
  wxStaticText* notes_ = nullptr;
};

} // namespace trassix
