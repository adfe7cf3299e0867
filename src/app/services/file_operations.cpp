#include "app/services/file_operations.h"

#include <algorithm>
#include <cerrno>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <string>
#include <sys/xattr.h>
#endif

namespace trassix {

namespace {

constexpr std::size_t kChunk = std::size_t{1} << 26U;

std::error_code lastError() {
  return {errno, std::generic_category()};
}

#ifdef _WIN32

constexpr int kMayWrite = 2;

bool mayWrite(const std::filesystem::path& file) {
  return _waccess(file.c_str(), kMayWrite) == 0;
}

int openToWrite(const std::filesystem::path& file, int flags, LineEnds lineEnds) {
  int descriptor = -1;
  const int mode = lineEnds == LineEnds::Platform ? _O_TEXT : _O_BINARY;
  errno = _wsopen_s(&descriptor, file.c_str(), _O_WRONLY | _O_NOINHERIT | flags | mode, _SH_DENYRW,
                    _S_IREAD | _S_IWRITE);
  return descriptor;
}

int openNew(const std::filesystem::path& file, const std::filesystem::path& /*replaced*/,
            LineEnds lineEnds) {
  return openToWrite(file, _O_CREAT | _O_EXCL, lineEnds);
}

int openExisting(const std::filesystem::path& file, LineEnds lineEnds) {
  return openToWrite(file, 0, lineEnds);
}

int cutHere(int descriptor) {
  errno = _chsize_s(descriptor, _telli64(descriptor));
  return errno;
}

std::ptrdiff_t writeSome(int descriptor, const char* bytes, std::size_t count) {
  return _write(descriptor, bytes, static_cast<unsigned>(count));
}

int flushToDisk(int descriptor) {
  return _commit(descriptor);
}

int closeFile(int descriptor) {
  return _close(descriptor);
}

/// Not by ReplaceFile: that keeps more of the old file's attributes, but takes the old file away
/// before it puts the new one there. Virus scanners and indexers hold fresh files for a moment, so
/// that one refusal is not the last word.
std::error_code renameOver(const std::filesystem::path& file, const std::filesystem::path& target) {
  constexpr int kAttempts = 10;
  constexpr DWORD kPause = 100; // milliseconds
  for (int attempt = 1;; ++attempt) {
    if (MoveFileExW(file.c_str(), target.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
      return {};
    const DWORD error = GetLastError();
    const bool passing = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
    if (!passing || attempt == kAttempts)
      return {static_cast<int>(error), std::system_category()};
    Sleep(kPause);
  }
}

#else

bool mayWrite(const std::filesystem::path& file) {
  return ::access(file.c_str(), W_OK) == 0;
}

/// Access lists are among them.
#ifdef __linux__
void copyExtendedAttributes(const char* from, int to) {
  const ssize_t size = ::listxattr(from, nullptr, 0);
  std::string names(static_cast<std::size_t>(std::max<ssize_t>(size, 0)), '\0');
  const ssize_t listed = ::listxattr(from, names.data(), names.size());
  names.resize(static_cast<std::size_t>(std::max<ssize_t>(listed, 0)));
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* name = names.c_str() + at;
    std::string value(
        static_cast<std::size_t>(std::max<ssize_t>(::getxattr(from, name, nullptr, 0), 0)), '\0');
    const ssize_t read = ::getxattr(from, name, value.data(), value.size());
    if (read >= 0)
      static_cast<void>(::fsetxattr(to, name, value.data(), static_cast<std::size_t>(read), 0));
  }
}
#else
void copyExtendedAttributes(const char* /*from*/, int /*to*/) {}
#endif

/// What the system does not allow here is no reason to fail: the file is the user's all the same.
void makeAlike(int descriptor, const char* replaced, const struct stat& old, mode_t mode) {
  // Only the system's administrator gives files away, but everybody may choose among his groups.
  [[maybe_unused]] const bool alike = ::fchown(descriptor, old.st_uid, old.st_gid) == 0 ||
                                      ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) == 0;
  static_cast<void>(::fchmod(descriptor, mode));
  copyExtendedAttributes(replaced, descriptor);
}

int openNew(const std::filesystem::path& file, const std::filesystem::path& replaced,
            LineEnds /*lineEnds*/) {
  constexpr mode_t kAnyPermission = 07777;
  constexpr mode_t kNewFile = 0666;
  struct stat old {};
  const bool keep = !replaced.empty() && ::stat(replaced.c_str(), &old) == 0;
  const mode_t mode = keep ? old.st_mode & kAnyPermission : kNewFile;
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  if (descriptor >= 0 && keep)
    makeAlike(descriptor, replaced.c_str(), old, mode);
  return descriptor;
}

int openExisting(const std::filesystem::path& file, LineEnds /*lineEnds*/) {
  return ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
}

int cutHere(int descriptor) {
  const off_t end = ::lseek(descriptor, 0, SEEK_CUR);
  return end < 0 ? -1 : ::ftruncate(descriptor, end);
}

std::ptrdiff_t writeSome(int descriptor, const char* bytes, std::size_t count) {
  return ::write(descriptor, bytes, count);
}

int flushToDisk(int descriptor) {
  const int result = ::fsync(descriptor);
  // Some network file systems cannot flush a single file and write through instead.
  return result != 0 && (errno == EINVAL || errno == ENOSYS) ? 0 : result;
}

int closeFile(int descriptor) {
  return ::close(descriptor);
}

/// Makes a rename last through a power cut. Without it there is the old file or the new one, both
/// complete, so that a failure is none to report.
void flushFolderOf(const std::filesystem::path& file) {
  const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0)
    return;
  ::fsync(descriptor);
  ::close(descriptor);
}

std::error_code renameOver(const std::filesystem::path& file, const std::filesystem::path& target) {
  if (::rename(file.c_str(), target.c_str()) != 0)
    return lastError();
  flushFolderOf(target);
  return {};
}

#endif

} // namespace

SystemFileOperations::~SystemFileOperations() {
  if (descriptor_ >= 0)
    closeFile(descriptor_);
}

std::error_code SystemFileOperations::create(const std::filesystem::path& file,
                                             const std::filesystem::path& replaced) {
  if (!replaced.empty() && !mayWrite(replaced))
    return lastError();
  descriptor_ = openNew(file, replaced, lineEnds_);
  return descriptor_ < 0 ? lastError() : std::error_code{};
}

std::error_code SystemFileOperations::openInPlace(const std::filesystem::path& file) {
  descriptor_ = openExisting(file, lineEnds_);
  return descriptor_ < 0 ? lastError() : std::error_code{};
}

std::error_code SystemFileOperations::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::ptrdiff_t written =
        writeSome(descriptor_, bytes.data(), std::min(bytes.size(), kChunk));
    if (written < 0) {
      if (errno == EINTR)
        continue;
      return lastError();
    }
    if (written == 0)
      return std::make_error_code(std::errc::io_error);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

std::error_code SystemFileOperations::cut() {
  return cutHere(descriptor_) == 0 ? std::error_code{} : lastError();
}

std::error_code SystemFileOperations::flush() {
  return flushToDisk(descriptor_) == 0 ? std::error_code{} : lastError();
}

std::error_code SystemFileOperations::close() {
  if (descriptor_ < 0)
    return {};
  const int descriptor = descriptor_;
  // Even a close that fails gives the descriptor back.
  descriptor_ = -1;
  return closeFile(descriptor) == 0 ? std::error_code{} : lastError();
}

std::error_code SystemFileOperations::rename(const std::filesystem::path& file,
                                             const std::filesystem::path& target) {
  return renameOver(file, target);
}

void SystemFileOperations::remove(const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
}

void SystemFileOperations::putBack(const std::filesystem::path& file, std::string_view bytes) {
  SystemFileOperations exact(LineEnds::AsGiven);
  if (!exact.openInPlace(file) && !exact.write(bytes) && !exact.cut())
    exact.flush();
}

} // namespace trassix
