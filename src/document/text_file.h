// Whole text files, written so that at no moment there is no good file. Messages are empty on
// success and meant for the user; nothing throws. A `report` is optional.
#pragma once

#include "document/file_operations.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>

namespace trassix {

/// The path in UTF-8, for messages.
std::string pathText(const std::filesystem::path& path);

/// What there is to tell besides the message.
struct FileReport {
  std::error_code reason; ///< why the system refused, also where the message says so
};

/// Reads a regular file as it is. On failure `text` is left alone.
std::string readTextFile(const std::filesystem::path& path, std::string& text,
                         FileReport* report = nullptr);

/// Gives the text of a file to the sink it is called with, and returns a message: when that is not
/// empty, the text is thrown away.
using TextProducer = std::function<std::string(const std::function<void(std::string_view)>& sink)>;

/// Writes a temporary file in the target's folder, flushes it to the disk and renames it over the
/// target. A symbolic link stays and what it points to is replaced; the target's permissions are
/// kept. When a step or the producer fails, the target is as it was and the temporary file is
/// removed.
std::string replaceTextFile(const std::filesystem::path& path, const TextProducer& produce,
                            FileReport* report = nullptr);
std::string replaceTextFile(const std::filesystem::path& path, const TextProducer& produce,
                            FileOperations& operations, FileReport* report = nullptr);

/// The same for a text that is there already.
std::string writeTextFile(const std::filesystem::path& path, std::string_view text,
                          FileReport* report = nullptr);

} // namespace trassix
