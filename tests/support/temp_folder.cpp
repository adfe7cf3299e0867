#include "support/temp_folder.h"

#include <random>
#include <system_error>

namespace trassix::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
  std::random_device random;
  do {
    path_ = fs::temp_directory_path() / ("trassix-test-" + std::to_string(random()));
  } while (!fs::create_directory(path_));
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

} // namespace trassix::test
