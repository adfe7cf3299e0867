#pragma once

class wxWindow;

namespace trassix {

struct LongWork;

/// Does the work in slices of 20 ms and returns when it is done, true, or was cancelled, false. The
/// window is painted meanwhile; what is typed and clicked waits for half a second, after which a
/// box shows how far the work is. Esc and its button cancel, and so does closing the window, which
/// follows. What a step throws ends the work and is thrown on.
bool finishWork(wxWindow& window, const LongWork& work);

} // namespace trassix
