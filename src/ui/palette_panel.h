#pragma once

#include "catalog/piece_def.h"

#include <wx/panel.h>

#include <functional>
#include <string_view>

class wxChoice;
class wxSearchCtrl;

namespace trassix {

class PieceList;

/// The pieces of one track system, to be dragged onto the plan.
class PalettePanel : public wxPanel {
 public:
  struct Actions {
    /// The mouse is leaving an entry with its button down.
    std::function<void(std::string_view article)> drag;
    /// Double-click or Enter on an entry.
    std::function<void(std::string_view article)> activate;
  };

  PalettePanel(wxWindow* parent, Actions actions);

  /// Fills the list of systems and shows the first one.
  void populate();
  void showSystem(TrackSystem system);
  TrackSystem system() const;

 private:
  void fill();

  Actions actions_;
  std::vector<TrackSystem> systems_;
  wxChoice* choice_;
  wxSearchCtrl* search_;
  PieceList* list_;
};

} // namespace trassix
