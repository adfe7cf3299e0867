#pragma once

#include "editing/canvas/surface.h"

#include <wx/vlbox.h>

#include <functional>
#include <optional>
#include <vector>

namespace trassix {

/// The part of a list row that holds its drawing, in pixels of the window.
struct PictureRoom {
  Point middle;
  SizePx size;
};

/// One line of a `CatalogList`: a heading, or an entry with drawing, title and a line of detail. A
/// title that is too long is wrapped, a detail is cut.
struct CatalogRow {
  bool heading = false;
  bool bold = false; ///< what tells pieces apart stands out, a name need not
  wxString title;
  wxString detail;
  wxString tip;
  std::function<void(Surface&, const PictureRoom&)> picture;
  double pictureHeight = 0; ///< device independent; of a drawing that is higher than usual
};

/// A list of drawn entries under headings, used by mouse and keyboard alike. Headings are passed
/// over: they are never selected.
class CatalogList : public wxVListBox {
 public:
  static constexpr int kPictureWidth = 88; ///< device independent

  /// Rows are told by their place among all rows, headings included. Each action may be empty.
  struct Actions {
    std::function<void(std::size_t row)> drag; ///< the mouse leaves an entry with its button down
    std::function<void(std::size_t row)> activate; ///< double-click or Enter
    std::function<void(std::size_t row)> menu;     ///< right click
    std::function<void(std::size_t row)> remove;   ///< Del; without it the key is the window's
    std::function<void(const wxString&)> typed;    ///< text that belongs in the search
  };

  CatalogList(wxWindow* parent, const wxString& name, Actions actions);

  /// Shows these rows and selects the first entry. `whenEmpty` is shown in place of no rows.
  void setRows(std::vector<CatalogRow> rows, const wxString& whenEmpty);
  const std::vector<CatalogRow>& rows() const { return rows_; }

  /// How many rows the selected one is below the first one in view; 0 when it is not in view.
  int rowsAboveSelection() const;
  /// Selects this row and scrolls so that `rowsAbove` rows of the list are in view above it.
  void select(std::size_t row, int rowsAbove);

  /// Selects the next entry in the direction of `step`, over headings; stays at the ends.
  void moveSelection(int step);
  void activateSelected();

 private:
  void OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const override;
  void OnDrawBackground(wxDC& dc, const wxRect& rect, size_t row) const override;
  wxCoord OnMeasureItem(size_t row) const override;
  void drawEntry(wxDC& dc, const wxRect& rect, std::size_t index) const;
  void paintEmptyText(wxPaintEvent& event);
  void onMouse(wxMouseEvent& event);
  void onKey(wxKeyEvent& event);
  void onChar(wxKeyEvent& event);
  bool isEntry(int row) const;
  int rowsOnPage() const;
  int pictureWidth() const;

  /// The words of an entry as there is room for them.
  struct Laid {
    wxArrayString title;
    wxString detail;
    int lineHeight = 0;
    int height = 0; ///< of the row
  };
  const Laid& laidOut(std::size_t index) const;

  std::vector<CatalogRow> rows_;
  mutable std::vector<std::optional<Laid>> laid_; ///< by row, as far as they were looked at
  mutable int laidFor_ = 0;                       ///< the width
  wxString whenEmpty_;
  Actions actions_;
  int pressedRow_ = wxNOT_FOUND;
  int tipRow_ = wxNOT_FOUND;
  wxPoint pressedAt_;
};

} // namespace trassix
