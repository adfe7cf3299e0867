#include "document/text_file.h"

#include <cerrno>
#include <chrono>
#include <exception>
#include <fstream>

namespace trassix {

namespace {

namespace fs = std::filesystem;

void tell(FileReport* report, std::error_code reason) {
  if (report != nullptr)
    report->reason = reason;
}

std::string cannotOpen(const fs::path& path, std::error_code reason, FileReport* report) {
  tell(report, reason);
  return "Cannot open file: " + pathText(path);
}

/// What is wrong with a path that leads to no regular file, after `error`.
std::error_code noFile(const fs::file_status& status, std::error_code error) {
  if (error)
    return error;
  return std::make_error_code(fs::is_directory(status) ? std::errc::is_a_directory
                              : fs::exists(status)     ? std::errc::invalid_argument
                                                       : std::errc::no_such_file_or_directory);
}

std::string cannotWrite(const fs::path& path, std::error_code error, FileReport* report) {
  tell(report, error);
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

/// Writes what is produced and makes sure that it is on the disk. A failure of the producer comes
/// first: it is what the user can do something about.
std::string fill(const fs::path& path, const TextProducer& produce, FileOperations& operations,
                 FileReport* report) {
  std::error_code error;
  std::string message = produce([&error, &operations](std::string_view text) {
    if (!error)
      error = operations.write(text);
  });
  if (!error)
    error = operations.flush();
  if (const std::error_code closing = operations.close(); !error)
    error = closing;
  return error && message.empty() ? cannotWrite(path, error, report) : message;
}

} // namespace

std::string pathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string readTextFile(const fs::path& path, std::string& text, FileReport* report) {
  try {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::is_regular_file(status))
      return cannotOpen(path, noFile(status, error), report);
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file)
      return cannotOpen(path, {errno, std::generic_category()}, report);
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

std::string replaceTextFile(const fs::path& path, const TextProducer& produce, FileReport* report) {
  SystemFileOperations operations;
  return replaceTextFile(path, produce, operations, report);
}

std::string replaceTextFile(const fs::path& path, const TextProducer& produce,
                            FileOperations& operations, FileReport* report) {
  const fs::path target = behindLinks(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  const bool exists = fs::exists(status);
  if (!target.has_filename() || (exists && !fs::is_regular_file(status)))
    return cannotOpen(path,
                      target.empty()
                          ? std::make_error_code(std::errc::too_many_symbolic_link_levels)
                          : noFile(status, error),
                      report);

  fs::path temporary;
  error = createBeside(target, exists, operations, temporary);
  if (error)
    return cannotOpen(path, error, report);
  std::string message;
  try {
    message = fill(path, produce, operations, report);
    if (message.empty()) {
      error = operations.rename(temporary, target);
      if (error)
        message = cannotWrite(path, error, report);
    }
  } catch (const std::exception& failure) {
    static_cast<void>(operations.close());
    message = "Cannot write file: " + pathText(path) + " (" + failure.what() + ")";
  }
  if (!message.empty())
    operations.remove(temporary);
  return message;
}

std::string writeTextFile(const fs::path& path, std::string_view text, FileReport* report) {
  const auto produce = [text](const std::function<void(std::string_view)>& sink) {
    sink(text);
    return std::string{};
  };
  return replaceTextFile(path, produce, report);
}

} // namespace trassix
