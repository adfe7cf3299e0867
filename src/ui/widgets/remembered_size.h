#pragma once

class wxTopLevelWindow;

namespace trassix {

/// Gives a window that can be resized the size that it had when it was closed last; called when it
/// has the one that it starts with, which is the least, and before it is placed. It is remembered
/// by the window's name.
void rememberSize(wxTopLevelWindow& window);

} // namespace trassix
