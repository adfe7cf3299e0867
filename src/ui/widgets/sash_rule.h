#pragma once

#include <functional>

class wxSplitterWindow;
class wxString;
class wxWindow;

namespace trassix {

/// A splitter as all of the main window's are: without border, and following its sash at once.
wxSplitterWindow* makeSplitter(wxWindow* parent, const wxString& name);

/// Keeps the sash where the rule says for the splitter's width or height, until the user moves it;
/// from then on the splitter's own gravity counts. Windows go through odd sizes before they are on
/// the screen, after which gravity alone leaves the sash anywhere.
void keepSash(wxSplitterWindow& splitter, std::function<int(int size)> rule);

} // namespace trassix
