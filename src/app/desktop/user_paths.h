#pragma once

#include <filesystem>
#include <string_view>

namespace trassix {

/// Where the user's own files live.
class UserPaths {
 public:
  /// "Trassix" in the user's documents, made on the first call; the install folder when it cannot
  /// be made. Decided once for the life of the process.
  static const std::filesystem::path& layoutsFolder();

  /// The layouts folder's "library", made when missing.
  static std::filesystem::path libraryRoot();

  /// Library folder of the track system with this long name ("Marklin C-Track"); not made here.
  static std::filesystem::path libraryFolder(std::string_view systemName);
};

/// Copies what an older release kept in the install folder to the user's folders and, when there
/// was anything, says so through the toolkit's log. Cheap when there is nothing to do; meant for
/// every start, before the palette lists the library.
void MigrateLegacyUserFiles();

} // namespace trassix
