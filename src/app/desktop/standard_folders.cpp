#include "app/desktop/standard_folders.h"

#include "app/desktop/path_text.h"
#include "app/services/legacy_files.h"
#include "app/services/program_memory.h"

#include <wx/filefn.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

namespace trassix {

namespace fs = std::filesystem;

LogFolder StandardFolders::logs() {
  const fs::path own = toPath(wxStandardPaths::Get().GetUserLocalDataDir());
  const fs::path folder = folderOrFallback(own, toPath(wxStandardPaths::Get().GetTempDir()));
  return {folder, folder != own};
}

fs::path StandardFolders::rescueSessions() {
  return toPath(wxStandardPaths::Get().GetUserLocalDataDir()) / "rescue";
}

fs::path StandardFolders::olderVersions() {
  return toPath(wxStandardPaths::Get().GetUserLocalDataDir()) / "versions";
}

fs::path StandardFolders::memoryFile() {
  return toPath(wxStandardPaths::Get().GetUserLocalDataDir()) / ProgramMemory::kFileName;
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
