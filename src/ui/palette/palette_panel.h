#pragma once

#include "editing/canvas/placing_offer.h"
#include "host/workspace.h"
#include "panels/palette_model.h"

#include <wx/panel.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

class wxChoice;
class wxSearchCtrl;
class wxToggleButton;

namespace trassix {

class CatalogList;
struct Carried;
struct LibraryEntry;

/// What can be put on the plan: the track and scenery of one system and the user's own blocks.
class PalettePanel : public wxPanel, private PlanObserver {
 public:
  /// Dragging means that the mouse is leaving an entry with its button down; otherwise it was
  /// double-clicked or chosen with Enter.
  struct Actions {
    std::function<void(const Carried& what)> drag;
    std::function<void(const Carried& what)> use; ///< blocks are centred and never empty
    /// What Enter would do while the focus is here; none while it is elsewhere.
    std::function<void(const std::optional<Offer>& what)> offer;
    /// Turns what is offered to its next way, or with -1 the one before; false when it cannot.
    std::function<bool(int step)> flip;
  };

  PalettePanel(wxWindow* parent, Workspace& workspace, Actions actions);

  /// Takes the systems up and shows the first one.
  void populate();
  void reloadLibrary();
  /// A digit typed on the plan goes to the search; false for other characters.
  bool takeDigit(const wxKeyEvent& typed);

  ~PalettePanel() override;

  TrackSystem system() const { return model_.system(); }
  /// Where blocks of the shown system are kept; not made here.
  std::filesystem::path libraryFolder() const;

 private:
  /// Shows the system that most of the plan is built in; a plan without track changes nothing.
  void planReplaced() override;
  /// Shows the measures in the plan's units.
  void unitsChanged() override;

  enum Tab { kTrackTab, kSceneryTab, kLibraryTab };

  void onFirstPaint(wxPaintEvent& event);
  /// Makes the controls. It waits for the first paint, so that the window is there at once.
  void build();
  CatalogList* makeList(Tab tab);
  /// Makes the list when it is first wanted.
  CatalogList& listOf(Tab tab);
  /// Renews the rows of a list that was made.
  void fill(Tab tab);
  void showSystem(TrackSystem system);
  void markSystem();
  void showTab(Tab tab);
  void searchFor(const wxString& text);
  void emptySearch();
  /// Text that was typed elsewhere: in place of what the search holds, or behind it.
  void typeInSearch(const wxString& text, bool behind);
  void onSearchKey(wxKeyEvent& event);
  void renewOffer();
  Offer offerOfRow(std::size_t row) const;
  /// F turns the piece round where it is no letter of a search.
  bool flipsByF() const;
  bool flipOffered(const wxKeyEvent& event);
  void fillTrack();
  void fillScenery();
  void fillLibrary();
  void usePiece(std::size_t row);
  void noteUse(const PieceDef& piece);
  void loadEntry(const LibraryEntry& entry);
  void showEntryMenu(const LibraryEntry& entry);
  void deleteEntry(const LibraryEntry& entry);

  Workspace& workspace_;
  Actions actions_;
  PaletteModel model_;
  std::vector<TrackSystem> systems_;
  std::optional<Offer> offered_;
  std::vector<const PieceDef*> pieces_;     ///< by row of the list, null for a heading
  std::vector<const HelixKit*> helices_;    ///< likewise, behind the pieces
  std::vector<const SceneryDef*> scenery_;  ///< likewise
  std::vector<LibraryEntry> library_;       ///< all blocks of the folder
  std::vector<const LibraryEntry*> blocks_; ///< by row
  // The controls, none before the first paint.
  wxChoice* choice_ = nullptr;
  wxSearchCtrl* search_ = nullptr;
  bool typedElsewhere_ = false;           ///< the search gets the focus to be typed on
  wxWindow* before_ = nullptr;            ///< that was typed on, to which Esc leads back
  std::array<wxToggleButton*, 3> tabs_{}; ///< by Tab; narrower than the toolkit's own
  Tab shownTab_ = kTrackTab;
  std::int32_t units_ = 0; ///< of the measures in the lists
  wxPanel* pages_ = nullptr;
  std::array<CatalogList*, 3> lists_{}; ///< by Tab; none before it was looked at
};

} // namespace trassix
