#pragma once

#include "catalog/piece_def.h"

#include <wx/vlbox.h>

#include <functional>
#include <vector>

namespace trassix {

/// A list of catalogue pieces, each with its drawing to one common scale, article and name.
class PieceList : public wxVListBox {
 public:
  PieceList(wxWindow* parent, std::function<void(const PieceDef&)> drag,
            std::function<void(const PieceDef&)> activate);

  /// The definitions are the catalogue's own.
  void setPieces(std::vector<const PieceDef*> pieces);
  const PieceDef* selected() const;

 private:
  void OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const override;
  void OnDrawBackground(wxDC& dc, const wxRect& rect, size_t row) const override;
  wxCoord OnMeasureItem(size_t row) const override;
  void onMouse(wxMouseEvent& event);
  double scale() const;

  std::vector<const PieceDef*> pieces_;
  std::function<void(const PieceDef&)> drag_;
  std::function<void(const PieceDef&)> activate_;
  double longest_ = 0; ///< mm, of the pieces shown
  int pressedRow_ = wxNOT_FOUND;
  wxPoint pressedAt_;
};

} // namespace trassix
