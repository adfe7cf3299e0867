#pragma once

#include <wx/iconbndl.h>

namespace trassix {

/// The program's emblem in the sizes that title bars, task bars and switchers ask for. Needs the
/// PNG decoder.
wxIconBundle programIcon();

} // namespace trassix
