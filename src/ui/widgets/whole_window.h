#pragma once

class wxTopLevelWindow;
class wxWindow;

namespace trassix {

/// Has a window that was given its size shown whole and at once; called before it is placed.
void showWhole(wxTopLevelWindow& window);

/// Moves it, which has its size, over the right part of its parent, so that what the parent shows
/// stays in view.
void placeBeside(wxTopLevelWindow& window, const wxWindow& parent);

} // namespace trassix
