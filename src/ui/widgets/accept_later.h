#pragma once

class wxDialog;

namespace trassix {

/// Presses the dialog's OK button, if it is enabled, as soon as the present event is over. A dialog
/// that closes while a list in it still handles the key leaves the window below without the next
/// key.
void acceptLater(wxDialog& dialog);

} // namespace trassix
