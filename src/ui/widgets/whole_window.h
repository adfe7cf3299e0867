#pragma once

class wxTopLevelWindow;

namespace trassix {

/// Has a window that was given its size shown whole and at once; called before it is placed.
void showWhole(wxTopLevelWindow& window);

} // namespace trassix
