#pragma once

class wxSize;
class wxTopLevelWindow;

namespace trassix {

/// Gives the main window the size that it had when it was closed last, else the usual one (device
/// independent), as far as its display has room, and centres it there.
void placeWindow(wxTopLevelWindow& window, const wxSize& usual);
/// To be called when it is closed.
void rememberPlace(const wxTopLevelWindow& window);

} // namespace trassix
