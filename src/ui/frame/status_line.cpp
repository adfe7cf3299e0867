#include "ui/frame/status_line.h"

#include "document/layout.h"
#include "editing/elevation/grade_runs.h"
#include "measures/measure_format.h"
#include "texts/texts.h"
#include "ui/widgets/utf8.h"

#include <wx/frame.h>
#include <wx/statusbr.h>

namespace trassix {

namespace {

/// Is painted when everything is, where the toolkit's own would be at once, and all else that is
/// out of date with it: between a press and a release that would be twice for nothing.
class StatusBar : public wxStatusBar {
 public:
  using wxStatusBar::wxStatusBar;

#ifdef __WXGTK__
 private:
  void DoUpdateStatusText(int field) override {
    wxRect rect;
    GetFieldRect(field, rect);
    Refresh(true, &rect);
  }
#endif
};

} // namespace

StatusLine::StatusLine(wxFrame& window, Workspace& workspace)
    : PlanObserver(workspace), window_(window), workspace_(workspace), hint_(tr("Ready")) {
  auto* bar = new StatusBar(&window_);
  bar->SetFieldsCount(3);
  window_.SetStatusBar(bar);
  const wxString widestCount = "Pieces: 000000";
  const wxString widestPlace = "x: -00000.00  y: -00000.00 mm";
  const int widths[] = {-1, bar->GetTextExtent(widestCount).x + 12,
                        bar->GetTextExtent(widestPlace).x + 12};
  bar->SetStatusWidths(3, widths);
  showHint();
  window_.SetStatusText(_("Pieces: 0"), kPiecesField);
  window_.SetStatusText("x: 0  y: 0 mm", kPointerField);
}

void StatusLine::planChanged() {
  window_.SetStatusText(wxString::Format(_("Pieces: %zu"), workspace_.layout().pieceCount()),
                        kPiecesField);
  showHint();
}

void StatusLine::hintChanged(const std::string& hint) {
  hint_ = hint;
  showHint();
}

/// Open grade runs lead.
void StatusLine::showHint() {
  const wxString text = fromUtf8(joinTexts({elevationStatus(workspace_.layout()), hint_}, "    "));
  if (window_.GetStatusBar()->GetStatusText(kHintField) != text)
    window_.SetStatusText(text, kHintField);
}

void StatusLine::pointerMoved(Point world) {
  pointer_ = world;
  const std::int32_t units = workspace_.units();
  const double unit = millimetresPer(units);
  const int decimals = units == kMillimetres ? 0 : units == kCentimetres ? 1 : 2;
  window_.SetStatusText(wxString::Format("x: %.*f  y: %.*f %s", decimals, world.x / unit, decimals,
                                         world.y / unit, unitName(units)),
                        kPointerField);
}

} // namespace trassix
