#pragma once

#include "app/services/log_file.h"

#include <string_view>

namespace trassix {

/// The log of this process: one time-stamped line an event, flushed at once so that it survives a
/// crash. Before `open`, after `close` and when the file could not be opened, lines are dropped
/// without a word. Used on the GUI thread only.
class DiagnosticLog {
 public:
  static constexpr std::string_view kFileName = "trassix.log";

  /// Starts the file anew; what an earlier run wrote is lost.
  static void open(const LogFolder& folder);

  /// `text` is one line in the encoding of the file, without the line's end.
  static void write(std::string_view text);

  static void close();
};

} // namespace trassix
