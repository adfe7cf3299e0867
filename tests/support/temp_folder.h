#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace trassix::test {

/// A fresh folder that goes with its content when the object does.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Writes a file byte for byte, making its folder.
inline void writeText(const std::filesystem::path& file, const std::string& text) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

/// The bytes of a file, but the platform's line ends as line feeds; empty when there is none.
inline std::string readText(const std::filesystem::path& file) {
#ifdef _WIN32
  std::ifstream in(file);
#else
  std::ifstream in(file, std::ios::binary);
#endif
  return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace trassix::test
