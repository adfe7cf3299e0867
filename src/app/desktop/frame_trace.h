#pragma once

#include <string_view>

namespace trassix {

/// Untimed trace of the main window's construction in "mainframe.log", beside the diagnostic log.
/// The first line of a process starts the file anew. The file is closed between lines, so the last
/// line tells how far a start came that ended badly.
class FrameTrace {
 public:
  static constexpr std::string_view kFileName = "mainframe.log";

  /// Dropped when the file cannot be opened.
  static void write(const char* text);
};

} // namespace trassix
