#include "app/desktop/frame_trace.h"

#include "app/desktop/standard_folders.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace trassix {

void FrameTrace::write(const char* text) {
  static const LogFolder folder = StandardFolders::logs();
  static bool truncated = false;
  if (!truncated) {
    std::error_code ignored;
    std::filesystem::remove(folder.path / kFileName, ignored);
    truncated = true;
  }
  LogFile(folder, kFileName, LogFile::Start::Append).write(text + std::string("\n"));
}

} // namespace trassix
