#include "app/desktop/user_paths.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/services/legacy_files.h"
#include "catalog/track_system.h"

#include <wx/intl.h>
#include <wx/log.h>

#include <system_error>

namespace trassix {

namespace fs = std::filesystem;

const fs::path& UserPaths::layoutsFolder() {
  static const fs::path folder =
      folderOrFallback(StandardFolders::documents() / "Trassix", StandardFolders::install());
  return folder;
}

fs::path UserPaths::libraryRoot() {
  fs::path root = layoutsFolder() / "library";
  std::error_code ignored;
  fs::create_directories(root, ignored);
  return root;
}

fs::path UserPaths::libraryFolder(std::string_view systemName) {
  return libraryRoot() / paletteKey(systemName);
}

void MigrateLegacyUserFiles() {
  const fs::path& layouts = UserPaths::layoutsFolder();
  const int copied = copyLegacyFiles(StandardFolders::install(), layouts);
  if (copied > 0) {
    wxLogMessage(_("Trassix: moved %d file(s) from the install folder to %s"), copied,
                 toText(layouts));
  }
}

} // namespace trassix
