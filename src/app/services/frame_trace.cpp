#include "app/services/frame_trace.h"

#include "app/services/standard_folders.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace trassix {

void FrameTrace::write(const char* text) {
  static const std::filesystem::path file = StandardFolders::logs() / kFileName;
  static bool truncated = false;
  if (!truncated) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    truncated = true;
  }
  std::ofstream out(file, std::ios::app);
  out << text + std::string("\n");
}

} // namespace trassix
