#include "ui/wizards/layout_proposals.h"

#include "app/services/app_prefs.h"
#include "document/plan_content.h"
#include "texts/texts.h"
#include "ui/canvas/gc_surface.h"
#include "ui/canvas/small_pictures.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

const wxSize kPicture(188, 150); // px
constexpr int kWidth = 980;      // px, room for four beside their names

trassix::Layout planOf(const LayoutProposal& proposal) {
  trassix::Layout plan;
  plan.ensureLevel();
  plan.edit() = proposal.track.content;
  plan.editSettings().baseboard = proposal.outline;
  return plan;
}

void paintFrame(wxGraphicsContext& context, const wxSize& size) {
  GcSurface surface(context);
  const double right = size.x - 1.5;
  const double bottom = size.y - 1.5;
  const Point frame[]{{1.5, 1.5}, {right, 1.5}, {right, bottom}, {1.5, bottom}};
  surface.polygon(frame, {}, Stroke{systemTheme().selected, 3});
}

void setText(wxStaticText& text, const wxString& words) {
  if (text.GetLabelText() != words)
    text.SetLabelText(words);
}

} // namespace

LayoutProposals::LayoutProposals(wxWindow* parent, const trassix::Layout& plan,
                                 LayoutPlacing placing, std::function<void()> accept,
                                 std::function<void()> more)
    : wxPanel(parent), plan_(plan), accept_(std::move(accept)), more_(std::move(more)) {
  const int gap = FromDIP(10);
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(makeCards(), wxSizerFlags(1).Expand());
  page->Add(makeTurning(), wxSizerFlags().Expand().Border(wxTOP, gap));
  page->Add(makePlacing(placing), wxSizerFlags().Border(wxTOP, gap));
  notes_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE, "layoutRemarks");
  notes_->SetMinSize({-1, 3 * GetCharHeight()});
  page->Add(notes_, wxSizerFlags().Expand().Border(wxTOP, gap));
  page->SetMinSize(FromDIP(kWidth), -1);
  SetSizer(page);
}

wxSizer* LayoutProposals::makeCards() {
  auto* grid = new wxFlexGridSizer(kCards + 1, FromDIP(4), FromDIP(12));
  grid->AddGrowableRow(1);
  grid->AddStretchSpacer();
  for (std::size_t i = 0; i < kCards; ++i) {
    grid->AddGrowableCol(i + 1, 1);
    auto* button = new wxRadioButton(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                     wxDefaultSize, i == 0 ? wxRB_GROUP : 0);
    button->SetName(wxString::Format("layoutProposal%zu", i + 1));
    button->Bind(wxEVT_RADIOBUTTON, [this, i](wxCommandEvent&) { choose(first_ + i); });
    button->Hide();
    grid->Add(button, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden());
    cards_.at(i).button = button;
  }
  grid->AddStretchSpacer();
  for (std::size_t i = 0; i < kCards; ++i) {
    Card& card = cards_.at(i);
    card.picture =
        new PicturePanel(this, FromDIP(kPicture),
                         [this, &card, i](wxGraphicsContext& context, const wxSize& size, bool) {
                           paintSmallPlan(context, size, card.plan);
                           if (chosen_ == first_ + i)
                             paintFrame(context, size);
                         });
    card.picture->SetName(wxString::Format("layoutPicture%zu", i + 1));
    card.picture->Bind(wxEVT_LEFT_DOWN, [this, i](wxMouseEvent&) { choose(first_ + i); });
    card.picture->Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent&) { accept_(); });
    card.picture->Hide();
    grid->Add(card.picture, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden());
  }
  for (std::size_t row = 0; row < kMostFacts; ++row) {
    names_.at(row) = new wxStaticText(this, wxID_ANY, wxEmptyString);
    grid->Add(names_.at(row));
    for (Card& card : cards_) {
      auto* fact = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                    wxST_ELLIPSIZE_END);
      fact->SetMinSize({FromDIP(kPicture.x), -1}); // a list of articles may be long
      grid->Add(fact, wxSizerFlags().Expand());
      card.facts.at(row) = fact;
    }
  }
  return grid;
}

wxSizer* LayoutProposals::makeTurning() {
  place_ = new wxStaticText(this, wxID_ANY, wxEmptyString);
  earlier_ = new wxButton(this, wxID_ANY, _("&Earlier Ones"), wxDefaultPosition, wxDefaultSize, 0,
                          wxDefaultValidator, "layoutEarlier");
  earlier_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { turnTo(first_ - kCards); });
  moreButton_ = new wxButton(this, wxID_ANY, _("&More"), wxDefaultPosition, wxDefaultSize, 0,
                             wxDefaultValidator, "layoutMore");
  moreButton_->SetToolTip(_("Searches on for shorter ones"));
  moreButton_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { goOn(); });
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(place_, wxSizerFlags(1).CenterVertical());
  row->Add(earlier_, wxSizerFlags().Border(wxRIGHT, FromDIP(8)));
  row->Add(moreButton_);
  return row;
}

wxSizer* LayoutProposals::makePlacing(LayoutPlacing placing) {
  replace_ = new wxRadioButton(this, wxID_ANY, _("In place of the &track on the plan"),
                               wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
  replace_->SetName("layoutReplace");
  auto* add = new wxRadioButton(this, wxID_ANY, _("&In addition to it"));
  add->SetName("layoutAdd");
  (placing == LayoutPlacing::Replace ? replace_ : add)->SetValue(true);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(replace_, wxSizerFlags().Border(wxRIGHT, FromDIP(16)));
  row->Add(add);
  row->ShowItems(plan_.pieceCount() > 0);
  return row;
}

void LayoutProposals::show(const LayoutSearch& search, bool searching) {
  search_ = &search;
  searching_ = searching;
  wantsNext_ = false;
  for (Card& card : cards_)
    card.proposal.reset();
  turnTo(0);
}

void LayoutProposals::follow(bool searching) {
  searching_ = searching;
  const std::size_t next = first_ + kCards;
  if (wantsNext_ && next < search_->proposals().size())
    return turnTo(next);
  wantsNext_ = wantsNext_ && searching;
  fillCards();
}

void LayoutProposals::turnTo(std::size_t first) {
  first_ = first;
  wantsNext_ = false;
  fillCards();
  choose(first);
  cards_.front().button->SetFocus();
}

void LayoutProposals::fillCards() {
  const std::vector<LayoutProposal>& all = search_->proposals();
  for (std::size_t i = 0; i < kCards; ++i) {
    Card& card = cards_.at(i);
    const bool there = first_ + i < all.size();
    card.button->Show(there);
    card.picture->Show(there);
    if (!there || card.proposal == first_ + i)
      continue;
    const LayoutProposal& proposal = all[first_ + i];
    card.proposal = first_ + i;
    card.plan = planOf(proposal);
    card.button->SetLabel(
        wxString::Format("&%zu  %s", i + 1, fromUtf8(layoutPreferenceName(proposal.bestAt))));
    card.picture->Refresh();
  }
  fillFacts();
  const std::size_t last = std::min(first_ + kCards, all.size());
  setText(*place_, fromUtf8(tr("Layouts %1% to %2% of %3% found", {first_ + 1, last, all.size()})));
  earlier_->Enable(first_ > 0);
  moreButton_->Enable(last < all.size() || (!searching_ && search_->mayHaveMore()));
  Layout();
}

void LayoutProposals::fillFacts() {
  const std::vector<LayoutProposal>& all = search_->proposals();
  std::vector<std::string> names; // a figure may be missing where it means nothing
  std::vector<std::vector<LayoutFact>> facts(kCards);
  for (std::size_t i = 0; i < kCards && first_ + i < all.size(); ++i) {
    facts[i] = factsOf(all[first_ + i], plan_.settings().units, appPrefs().playful);
    for (const LayoutFact& fact : facts[i])
      if (std::ranges::count(names, fact.name) == 0)
        names.push_back(fact.name);
  }
  names.resize(kMostFacts);
  for (std::size_t row = 0; row < kMostFacts; ++row) {
    setText(*names_.at(row), fromUtf8(names[row]));
    for (std::size_t i = 0; i < kCards; ++i) {
      wxStaticText& shown = *cards_.at(i).facts.at(row);
      const auto fact = std::ranges::find(facts[i], names[row], &LayoutFact::name);
      const wxString text = fact == facts[i].end() ? wxString() : fromUtf8(fact->text);
      setText(shown, text);
      shown.SetToolTip(shown.GetTextExtent(text).x > shown.GetMinSize().x ? text : wxString());
    }
  }
}

void LayoutProposals::choose(std::size_t proposal) {
  chosen_ = proposal;
  for (std::size_t i = 0; i < kCards; ++i) {
    if (first_ + i == chosen_)
      cards_.at(i).button->SetValue(true);
    cards_.at(i).picture->Refresh();
  }
  showNotes();
}

void LayoutProposals::goOn() {
  if (const std::size_t next = first_ + kCards; next < search_->proposals().size())
    return turnTo(next);
  wantsNext_ = true;
  more_();
}

void LayoutProposals::showNotes() {
  std::string notes = baseboardNotice(plan_, chosen());
  for (const std::string& remark : chosen().remarks)
    notes = joinTexts({notes, remark}, "\n");
  showWrapped(*notes_, fromUtf8(notes), std::max(GetClientSize().x, FromDIP(kWidth)));
  Layout();
}

LayoutPlacing LayoutProposals::placing() const {
  return replace_->GetValue() ? LayoutPlacing::Replace : LayoutPlacing::Add;
}

} // namespace trassix
