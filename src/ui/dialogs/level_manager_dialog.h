#pragma once

#include "panels/level_list.h"

#include <wx/dialog.h>

#include <cstdint>
#include <optional>

class wxButton;
class wxCheckBox;
class wxColourPickerCtrl;
class wxListView;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class ProblemText;

/// Edits the levels of a plan; the plan itself changes only by `apply`, after wxID_OK.
class LevelManagerDialog : public wxDialog {
 public:
  LevelManagerDialog(wxWindow* parent, trassix::Layout& layout);

  ChangeResult apply();

  /// The level whose outline the user wants to draw now.
  std::optional<std::int32_t> levelToDraw() const { return levelToDraw_; }

 private:
  void makeList();
  wxSizer* makeFields();
  wxSizer* makeOutlineRow();
  wxSizer* makeButtons();
  void bindFields();

  void fillList();
  void showRow(std::size_t place);
  void select(std::size_t place);
  void showLevel(std::size_t place);
  void keepSelection();
  void showSwatches();
  void refresh(); ///< what depends on the entries: the rows, what is enabled, the problem

  void add();
  void remove();
  void makeActive();
  void draw();
  /// Asks before the levels' track comes apart.
  bool mayOpenTrack();
  void onCharHook(wxKeyEvent& event);

  trassix::Layout& layout_;
  LevelList levels_;
  std::size_t shown_ = 0; ///< place of the level in the fields
  std::optional<std::int32_t> levelToDraw_;
  std::vector<Color> swatches_; ///< shown in the list
  wxListView* list_ = nullptr;
  wxButton* remove_ = nullptr;
  wxTextCtrl* name_ = nullptr;
  wxTextCtrl* height_ = nullptr;
  wxCheckBox* visible_ = nullptr;
  wxButton* active_ = nullptr;
  wxColourPickerCtrl* color_ = nullptr;
  wxCheckBox* trackColor_ = nullptr;
  wxStaticText* outline_ = nullptr;
  wxButton* fromBoard_ = nullptr;
  wxButton* fromShape_ = nullptr;
  wxButton* draw_ = nullptr;
  wxButton* noOutline_ = nullptr;
  ProblemText* problem_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
