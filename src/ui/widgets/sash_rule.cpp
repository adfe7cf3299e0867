#include "ui/widgets/sash_rule.h"

#include <wx/splitter.h>

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

/// While it is bound, the rule alone moves the sash.
class SashRule : public wxEvtHandler {
 public:
  SashRule(wxSplitterWindow& splitter, std::function<int(int)> rule)
      : splitter_(splitter), rule_(std::move(rule)), gravity_(splitter.GetSashGravity()) {
    splitter_.SetSashGravity(0);
    splitter_.Bind(wxEVT_SIZE, &SashRule::onSize, this);
    splitter_.Bind(wxEVT_SPLITTER_SASH_POS_CHANGING, &SashRule::onUserMoves, this);
  }

 private:
  void onSize(wxSizeEvent& event) {
    event.Skip();
    const wxSize size = event.GetSize();
    const int wanted = rule_(splitter_.GetSplitMode() == wxSPLIT_VERTICAL ? size.x : size.y);
    if (!userMoved_)
      splitter_.SetSashPosition(std::max(wanted, splitter_.GetMinimumPaneSize()));
  }

  void onUserMoves(wxSplitterEvent& event) {
    event.Skip();
    // The events of splitters inside this one come by here too.
    if (event.GetEventObject() != &splitter_)
      return;
    userMoved_ = true;
    splitter_.SetSashGravity(gravity_);
  }

  wxSplitterWindow& splitter_;
  std::function<int(int)> rule_;
  double gravity_;
  bool userMoved_ = false;
};

} // namespace

wxSplitterWindow* makeSplitter(wxWindow* parent, const wxString& name) {
  return new wxSplitterWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                              wxSP_NOBORDER | wxSP_3DSASH | wxSP_LIVE_UPDATE, name);
}

void keepSash(wxSplitterWindow& splitter, std::function<int(int size)> rule) {
  auto* kept = new SashRule(splitter, std::move(rule));
  splitter.Bind(wxEVT_DESTROY, [kept, &splitter](wxWindowDestroyEvent& event) {
    event.Skip();
    if (event.GetEventObject() == &splitter)
      delete kept;
  });
}

} // namespace trassix
