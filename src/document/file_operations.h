#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace trassix {

/// Writing one file, step by step as the operating system offers it; every step can fail and says
/// so. This is the one place where saving depends on the platform.
class FileOperations {
 public:
  virtual ~FileOperations() = default;

  /// Creates and opens the file; fails when there is one. With `replaced` not empty, the file is
  /// going to replace that one: it gets its permissions as far as the file system has any, and a
  /// file that may not be written cannot be replaced.
  virtual std::error_code create(const std::filesystem::path& file,
                                 const std::filesystem::path& replaced) = 0;
  virtual std::error_code write(std::string_view bytes) = 0;
  /// Returns when everything written is on the disk.
  virtual std::error_code flush() = 0;
  virtual std::error_code close() = 0;
  /// Puts the closed file in place of `target` in one step.
  virtual std::error_code rename(const std::filesystem::path& file,
                                 const std::filesystem::path& target) = 0;
  virtual void remove(const std::filesystem::path& file) = 0;
};

class SystemFileOperations : public FileOperations {
 public:
  SystemFileOperations() = default;
  SystemFileOperations(const SystemFileOperations&) = delete;
  SystemFileOperations& operator=(const SystemFileOperations&) = delete;
  ~SystemFileOperations() override;

  std::error_code create(const std::filesystem::path& file,
                         const std::filesystem::path& replaced) override;
  std::error_code write(std::string_view bytes) override;
  std::error_code flush() override;
  std::error_code close() override;
  std::error_code rename(const std::filesystem::path& file,
                         const std::filesystem::path& target) override;
  void remove(const std::filesystem::path& file) override;

 private:
  int descriptor_ = -1;
};

} // namespace trassix
