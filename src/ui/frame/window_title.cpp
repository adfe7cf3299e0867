#include "ui/frame/window_title.h"

#include "document/open_plan.h"
#include "ui/widgets/utf8.h"

#include <wx/frame.h>

namespace trassix {

namespace {

constexpr std::size_t kLongest = 200; ///< in characters

} // namespace

WindowTitle::WindowTitle(wxFrame& window, Workspace& workspace)
    : PlanObserver(workspace), window_(window), workspace_(workspace) {}

void WindowTitle::planReplaced() {
  window_.SetTitle(kBase);
}

void WindowTitle::refresh() {
  const OpenPlan& plan = workspace_.plan();
  wxString name = fromUtf8(plan.name());
  if (name.empty() && !plan.file().empty())
    name = fromUtf8(plan.file().stem().u8string());
  wxString title = kBase;
  const wxString mark = plan.unsaved() ? " *" : "";
  if (!name.empty()) {
    title += " - ";
    title += shortened(name, kLongest - title.length() - mark.length());
  }
  window_.SetTitle(title + mark);
}

} // namespace trassix
