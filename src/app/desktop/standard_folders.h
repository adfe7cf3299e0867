#pragma once

#include "app/services/log_file.h"

#include <filesystem>

namespace trassix {

/// The platform's folders for this program and user, as the toolkit's standard paths give them.
class StandardFolders {
 public:
  /// Per-user local data, made when missing; the folder for temporary files when that fails.
  static LogFolder logs();

  /// In the per-user local data, not made here: of `RescueSession` and `VersionStore`.
  static std::filesystem::path rescueSessions();
  static std::filesystem::path olderVersions();

  /// Of what the program remembers of its own, in the per-user local data; see `ProgramMemory`.
  static std::filesystem::path memoryFile();

  static std::filesystem::path documents();

  /// Where files from elsewhere arrive: the user's downloads, the home folder when there is none.
  static std::filesystem::path downloads();

  /// Folder of the running executable.
  static std::filesystem::path install();

  static std::filesystem::path prefsFile();

  /// Where older releases kept the preferences: beside the executable, looked up on the current
  /// drive.
  static std::filesystem::path legacyPrefsFile();
};

} // namespace trassix
