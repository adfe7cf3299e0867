#include "document/text_file.h"

#include <chrono>
#include <exception>
#include <fstream>

namespace trassix {

namespace {

namespace fs = std::filesystem;

std::string cannotOpen(const fs::path& path) {
  return "Cannot open file: " + pathText(path);
}

std::string cannotWrite(const fs::path& path, std::error_code error) {
  return "Cannot write file: " + pathText(path) + " (" + error.message() + ")";
}

/// The file a chain of symbolic links leads to, which need not exist; empty for a loop.
fs::path behindLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int i = 0; i < kMostLinks; ++i) {
    if (!fs::is_symlink(fs::symlink_status(path, error)))
      return path;
    const fs::path link = fs::read_symlink(path, error);
    if (error)
      break;
    path = path.parent_path() / link; // an absolute link replaces the folder
  }
  return {};
}

/// Creates the temporary file beside the target, under a name that nothing else has.
std::error_code createBeside(const fs::path& target, bool exists, FileOperations& operations,
                             fs::path& temporary) {
  constexpr int kAttempts = 100;
  auto number = std::chrono::system_clock::now().time_since_epoch().count();
  std::error_code error;
  for (int i = 0; i < kAttempts; ++i, ++number) {
    temporary = target.parent_path() / (".trassix-" + std::to_string(number) + ".tmp");
    error = operations.create(temporary, exists ? target : fs::path{});
    if (error != std::errc::file_exists)
      break;
  }
  return error;
}

std::string replaceFile(const fs::path& path, std::string_view text, FileOperations& operations) {
  const fs::path target = behindLinks(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  const bool exists = fs::exists(status);
  if (!target.has_filename() || (exists && !fs::is_regular_file(status)))
    return cannotOpen(path);

  fs::path temporary;
  if (createBeside(target, exists, operations, temporary))
    return cannotOpen(path);
  error = operations.write(text);
  if (!error)
    error = operations.flush();
  if (const std::error_code closing = operations.close(); !error)
    error = closing;
  if (!error)
    error = operations.rename(temporary, target);
  if (!error)
    return {};
  operations.remove(temporary);
  return cannotWrite(path, error);
}

} // namespace

std::string pathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string readTextFile(const fs::path& path, std::string& text) {
  try {
    std::error_code error;
    if (!fs::is_regular_file(path, error))
      return cannotOpen(path);
    std::ifstream file(path, std::ios::binary);
    if (!file)
      return cannotOpen(path);
    std::string read(fs::file_size(path), '\0');
    file.read(read.data(), static_cast<std::streamsize>(read.size()));
    // A file that shrinks meanwhile ends early, which is no fault; a broken disk is one.
    if (file.bad())
      return "Cannot read file: " + pathText(path);
    read.resize(static_cast<std::size_t>(file.gcount()));
    text = std::move(read);
    return {};
  } catch (const std::exception& failure) {
    return "Cannot read file: " + pathText(path) + " (" + failure.what() + ")";
  }
}

std::string writeTextFile(const fs::path& path, std::string_view text) {
  SystemFileOperations operations;
  return writeTextFile(path, text, operations);
}

std::string writeTextFile(const fs::path& path, std::string_view text, FileOperations& operations) {
  try {
    return replaceFile(path, text, operations);
  } catch (const std::exception& failure) {
    return "Cannot write file: " + pathText(path) + " (" + failure.what() + ")";
  }
}

} // namespace trassix
