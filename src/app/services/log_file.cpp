#include "app/services/log_file.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace trassix {

namespace {

#ifdef _WIN32

/// The folder for temporary files is the user's own there.
std::FILE* openLog(const std::filesystem::path& file, LogFile::Start start, bool /*shared*/) {
  return _wfopen(file.c_str(), start == LogFile::Start::Anew ? L"w" : L"a");
}

#else

bool mayBeLog(int descriptor, bool shared) {
  struct stat found {};
  if (::fstat(descriptor, &found) != 0 || !S_ISREG(found.st_mode))
    return false;
  return !shared || (found.st_uid == ::geteuid() && found.st_nlink == 1);
}

std::FILE* openLog(const std::filesystem::path& file, LogFile::Start start, bool shared) {
  constexpr mode_t kNewFile = 0666;
  // Not blocking: a pipe in the log's place would keep the program waiting for a reader. Emptied
  // only when it is known what was opened.
  const int descriptor = ::open(
      file.c_str(),
      O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | (shared ? O_NOFOLLOW : 0), kNewFile);
  if (descriptor < 0)
    return nullptr;
  if (mayBeLog(descriptor, shared) &&
      (start == LogFile::Start::Append || ::ftruncate(descriptor, 0) == 0)) {
    if (std::FILE* log = ::fdopen(descriptor, "a"))
      return log;
  }
  ::close(descriptor);
  return nullptr;
}

#endif

} // namespace

LogFile::LogFile(const LogFolder& folder, std::string_view name, Start start)
    : file_(openLog(folder.path / name, start, folder.shared)) {}

void LogFile::write(std::string_view text) {
  if (!file_) {
    return;
  }
  std::fwrite(text.data(), 1, text.size(), file_.get());
  std::fflush(file_.get());
}

} // namespace trassix
