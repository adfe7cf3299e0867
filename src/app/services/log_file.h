#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>

namespace trassix {

/// Where logs go.
struct LogFolder {
  std::filesystem::path path;
  /// Other users may put files there too, as into the folder for temporary files.
  bool shared = false;
};

/// A file of lines that are written at once. Only a regular file becomes a log; in a shared folder
/// moreover no link is followed, and a file that belongs to somebody else is left alone, so that
/// nobody can have another file of the user's written over. A log that could not be opened drops
/// what is written.
class LogFile {
 public:
  enum class Start : std::uint8_t { Anew, Append };

  LogFile(const LogFolder& folder, std::string_view name, Start start);

  void write(std::string_view text);

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Close> file_;
};

} // namespace trassix
