#pragma once

#include <cstdint>
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
  /// going to replace that one: it gets its permissions, owner and extended attributes as far as
  /// the system has them and lets them be given, and a file that may not be written cannot be
  /// replaced.
  virtual std::error_code create(const std::filesystem::path& file,
                                 const std::filesystem::path& replaced) = 0;
  /// Opens a file that is there, to write over it from its start. Its end stays until `cut`.
  virtual std::error_code openInPlace(const std::filesystem::path& file) = 0;
  virtual std::error_code write(std::string_view bytes) = 0;
  /// Ends the file behind what was written.
  virtual std::error_code cut() = 0;
  /// Returns when everything written is on the disk.
  virtual std::error_code flush() = 0;
  virtual std::error_code close() = 0;
  /// Puts the closed file in place of `target` in one step.
  virtual std::error_code rename(const std::filesystem::path& file,
                                 const std::filesystem::path& target) = 0;
  virtual void remove(const std::filesystem::path& file) = 0;
  /// Writes over a file with exactly these bytes again, as well as that still works.
  virtual void putBack(const std::filesystem::path& file, std::string_view bytes) = 0;
};

/// What becomes of the line feeds that are written: the platform's line ends, or nothing.
enum class LineEnds : std::uint8_t { Platform, AsGiven };

class SystemFileOperations : public FileOperations {
 public:
  explicit SystemFileOperations(LineEnds lineEnds = LineEnds::Platform) : lineEnds_(lineEnds) {}
  SystemFileOperations(const SystemFileOperations&) = delete;
  SystemFileOperations& operator=(const SystemFileOperations&) = delete;
  ~SystemFileOperations() override;

  std::error_code create(const std::filesystem::path& file,
                         const std::filesystem::path& replaced) override;
  std::error_code openInPlace(const std::filesystem::path& file) override;
  std::error_code write(std::string_view bytes) override;
  std::error_code cut() override;
  std::error_code flush() override;
  std::error_code close() override;
  std::error_code rename(const std::filesystem::path& file,
                         const std::filesystem::path& target) override;
  void remove(const std::filesystem::path& file) override;
  void putBack(const std::filesystem::path& file, std::string_view bytes) override;

 private:
  LineEnds lineEnds_;
  int descriptor_ = -1;
};

} // namespace trassix
