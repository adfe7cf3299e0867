#include "app/fault_guard.h"

#include "app/desktop/path_text.h"
#include "app/services/diagnostic_log.h"
#include "app/services/text_file.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/plan_files.h"
#include "ui/frame/main_frame.h"
#include "ui/widgets/utf8.h"

#include <wx/msgdlg.h>

#include <exception>
#include <new>

namespace trassix {

namespace {

std::string textOfCurrentException() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return "out of memory";
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "unknown exception";
  }
}

wxString whereThePlanIs(const WrittenCopy& copy) {
  if (copy.problem.empty())
    return _("A copy of the plan as it is now was written to:\n") + toText(copy.file);
  return _("The plan could not be written aside:\n") + fromUtf8(copy.problem);
}

} // namespace

void FaultGuard::caught(MainFrame* frame) noexcept {
  try {
    const std::string what = textOfCurrentException();
    // A fault in what is done with every move of the mouse comes again and again.
    if (what != logged_)
      DiagnosticLog::write("EXCEPTION in an event handler: " + what);
    logged_ = what;
    if (frame != nullptr && kept_ != frame->layout().revision())
      keepPlan(*frame, what);
  } catch (...) {
    DiagnosticLog::write("EXCEPTION while an exception was handled");
  }
}

void FaultGuard::keepPlan(MainFrame& frame, const std::string& what) {
  kept_ = frame.layout().revision();
  const WrittenCopy copy = frame.files().rescue().write();
  DiagnosticLog::write("Plan written aside: " +
                       (copy.problem.empty() ? pathText(copy.file) : copy.problem));
  // Not from within a handler, which may be one that paints.
  frame.CallAfter([this, &frame, what, copy, again = told_] {
    try {
      // What was broken off may have changed the plan and be shown nowhere yet.
      frame.canvasPanel().canvas().cancel();
      frame.workspace().changed();
    } catch (...) {
      caught(&frame);
    }
    if (again)
      return frame.SetStatusText(whereThePlanIs(copy));
    wxMessageBox(_("Something unexpected went wrong:\n") + fromUtf8(what) + "\n\n" +
                     whereThePlanIs(copy) +
                     _("\n\nYou can go on working. If the program behaves strangely, save the plan "
                       "under another name and start the program anew."),
                 _("Unexpected Error"), wxOK | wxICON_ERROR);
  });
  told_ = true;
}

} // namespace trassix
