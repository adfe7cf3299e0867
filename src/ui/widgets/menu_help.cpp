#include "ui/widgets/menu_help.h"

#include <wx/menuitem.h>
#include <wx/tooltip.h>

namespace trassix {

void tellUnusable(wxMenuItem& item, const wxString& why, const wxString& help) {
  item.SetHelp(why.empty() ? help : why);
#ifdef __WXGTK__
  // Items that are disabled are never highlighted, so their help is never shown.
  wxToolTip::GTKApply(item.GetMenuItem(), why.empty() ? nullptr : why.utf8_str().data());
#endif
}

} // namespace trassix
