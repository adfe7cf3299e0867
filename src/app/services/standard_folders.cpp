#include "app/services/standard_folders.h"

#include "app/services/legacy_files.h"
#include "app/services/path_text.h"

#include <wx/filefn.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

namespace trassix {

namespace fs = std::filesystem;

fs::path StandardFolders::logs() {
  return folderOrFallback(toPath(wxStandardPaths::Get().GetUserLocalDataDir()),
                          toPath(wxStandardPaths::Get().GetTempDir()));
}

fs::path StandardFolders::documents() {
  return toPath(wxStandardPaths::Get().GetDocumentsDir());
}

fs::path StandardFolders::downloads() {
  const wxString folder = wxStandardPaths::Get().GetUserDir(wxStandardPaths::Dir_Downloads);
  return toPath(!folder.empty() && wxDirExists(folder) ? folder : wxGetHomeDir());
}

fs::path StandardFolders::install() {
  return toPath(wxStandardPaths::Get().GetExecutablePath()).parent_path();
}

fs::path StandardFolders::prefsFile() {
  return toPath(wxStandardPaths::Get().GetUserDataDir()) / "prefs.cfg";
}

fs::path StandardFolders::legacyPrefsFile() {
  const fs::path folder = install();
  return folder.root_directory() / folder.relative_path() / "prefs.cfg";
}

} // namespace trassix
