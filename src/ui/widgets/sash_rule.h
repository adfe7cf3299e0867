#pragma once

#include <functional>

class wxSplitterWindow;

namespace trassix {

/// Keeps the sash where the rule says for the splitter's width or height, until the user moves it;
/// from then on the splitter's own gravity counts. Windows go through odd sizes before they are on
/// the screen, after which gravity alone leaves the sash anywhere.
void keepSash(wxSplitterWindow& splitter, std::function<int(int size)> rule);

} // namespace trassix
