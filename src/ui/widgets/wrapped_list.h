#pragma once

#include <wx/vlbox.h>

namespace trassix {

/// A list of texts of which none is cut: what is too long for the width goes on over more lines.
class WrappedList : public wxVListBox {
 public:
  WrappedList(wxWindow* parent, const wxArrayString& rows, const wxString& name);

  /// Shows these and selects the first one.
  void setRows(const wxArrayString& rows);

 private:
  wxArrayString linesOf(const wxDC& dc, size_t row) const;
  void OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const override;
  wxCoord OnMeasureItem(size_t row) const override;

  wxArrayString rows_;
};

} // namespace trassix
