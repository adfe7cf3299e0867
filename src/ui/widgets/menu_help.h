#pragma once

class wxMenuItem;
class wxString;

namespace trassix {

/// Has the item tell, where the toolkit lets items that are disabled tell anything, why it is so;
/// one that can be used, with an empty `why`, tells what it does.
void tellUnusable(wxMenuItem& item, const wxString& why, const wxString& help = {});

} // namespace trassix
