#include "app/services/text_file.h"

#include <cerrno>
#include <chrono>
#include <exception>
#include <fstream>
#include <optional>

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

/// Names of temporary files; between them stands a number.
constexpr std::string_view kTemporaryStart = ".trassix-";
constexpr std::string_view kTemporaryEnd = ".tmp";

/// Creates the temporary file beside the target, under a name that nothing else has.
std::error_code createBeside(const fs::path& target, bool exists, FileOperations& operations,
                             fs::path& temporary) {
  constexpr int kAttempts = 100;
  auto number = std::chrono::system_clock::now().time_since_epoch().count();
  std::error_code error;
  for (int i = 0; i < kAttempts; ++i, ++number) {
    temporary = target.parent_path() / (std::string(kTemporaryStart) + std::to_string(number) +
                                        std::string(kTemporaryEnd));
    error = operations.create(temporary, exists ? target : fs::path{});
    if (error != std::errc::file_exists)
      break;
  }
  return error;
}

/// Makes sure that what was written is on the disk, and closes the file; the first error counts.
std::error_code finish(FileOperations& operations, std::error_code error) {
  if (!error)
    error = operations.flush();
  const std::error_code closing = operations.close();
  return error ? error : closing;
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
  error = finish(operations, error);
  return error && message.empty() ? cannotWrite(path, error, report) : message;
}

/// Whether the folder is what refused, by its permissions or as a place that is mounted file by
/// file: then the file itself may still be written. A full disk is no such case.
bool refusedByFolder(std::error_code error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system || error == std::errc::device_or_resource_busy;
}

/// The message of a save by way of a temporary file; nothing where the folder refused it.
std::optional<std::string> writeBeside(const fs::path& path, const fs::path& target, bool exists,
                                       const TextProducer& produce, FileOperations& operations,
                                       FileReport* report) {
  fs::path temporary;
  if (const std::error_code error = createBeside(target, exists, operations, temporary))
    return exists && refusedByFolder(error) ? std::nullopt
                                            : std::optional(cannotOpen(path, error, report));
  std::optional<std::string> message;
  try {
    message = fill(path, produce, operations, report);
    if (message->empty()) {
      if (const std::error_code error = operations.rename(temporary, target))
        message = exists && refusedByFolder(error)
                      ? std::nullopt
                      : std::optional(cannotWrite(path, error, report));
    }
  } catch (...) {
    static_cast<void>(operations.close());
    operations.remove(temporary);
    throw;
  }
  if (message != "")
    operations.remove(temporary);
  return message;
}

/// Everything that can fail without the file comes first. Its old end is cut only behind the new
/// text, so that the old text has its room on the disk while it may have to be put back.
std::string writeInPlace(const fs::path& path, const fs::path& target, const TextProducer& produce,
                         FileOperations& operations, FileReport* report) {
  std::string text;
  std::string message = produce([&text](std::string_view part) { text += part; });
  if (!message.empty())
    return message;
  std::string old;
  FileReport reading;
  if (!readTextFile(target, old, &reading).empty())
    return cannotOpen(path, reading.reason, report);
  std::error_code error = operations.openInPlace(target);
  if (error)
    return cannotOpen(path, error, report);
  error = operations.write(text);
  if (!error)
    error = operations.cut();
  error = finish(operations, error);
  if (!error)
    return {};
  operations.putBack(target, old);
  return cannotWrite(path, error, report);
}

TextProducer asIs(std::string_view text) {
  return [text](const std::function<void(std::string_view)>& sink) {
    sink(text);
    return std::string{};
  };
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
  try {
    std::optional<std::string> message =
        writeBeside(path, target, exists, produce, operations, report);
    const WriteWay taken = message ? WriteWay::Replaced : WriteWay::InPlace;
    if (!message)
      message = writeInPlace(path, target, produce, operations, report);
    if (report != nullptr && message->empty())
      report->way = taken;
    return *message;
  } catch (const std::exception& failure) {
    return "Cannot write file: " + pathText(path) + " (" + failure.what() + ")";
  }
}

std::string writeTextFile(const fs::path& path, std::string_view text, FileReport* report) {
  return replaceTextFile(path, asIs(text), report);
}

std::string writeBytes(const fs::path& path, std::string_view bytes, FileReport* report) {
  SystemFileOperations operations(LineEnds::AsGiven);
  return replaceTextFile(path, asIs(bytes), operations, report);
}

void removeLeftovers(const fs::path& folder) {
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
  // As the system has them: not every name can be told in UTF-8.
  const fs::path start = kTemporaryStart;
  const fs::path end = kTemporaryEnd;
  std::error_code error;
  for (fs::directory_iterator file(folder, error); !error && file != fs::directory_iterator();
       file.increment(error)) {
    std::error_code unknown;
    const fs::path name = file->path().filename();
    if (name.native().starts_with(start.native()) && name.native().ends_with(end.native()) &&
        fs::is_regular_file(file->symlink_status(unknown)) &&
        file->last_write_time(unknown) < longAgo && !unknown)
      fs::remove(file->path(), unknown);
  }
}

} // namespace trassix
