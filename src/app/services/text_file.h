// Whole files, written so that at no moment there is no good file, as far as their folder allows.
// Messages are empty on success and meant for the user; nothing throws. A `report` is
// optional.
#pragma once

#include "app/services/file_operations.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>

namespace trassix {

/// The path in UTF-8, for messages.
std::string pathText(const std::filesystem::path& path);

/// How a file was written. In place is less safe: a crash or a power cut during the writing leaves
/// a damaged file.
enum class WriteWay : std::uint8_t { Replaced, InPlace };

/// What there is to tell besides the message.
struct FileReport {
  std::error_code reason;            ///< why the system refused, also where the message says so
  WriteWay way = WriteWay::Replaced; ///< of a success
};

/// Reads a regular file as it is. On failure `text` is left alone.
std::string readTextFile(const std::filesystem::path& path, std::string& text,
                         FileReport* report = nullptr);

/// Gives the text of a file to the sink it is called with, and returns a message: when that is not
/// empty, the text is thrown away.
using TextProducer = std::function<std::string(const std::function<void(std::string_view)>& sink)>;

/// Writes a temporary file in the target's folder, flushes it to the disk and renames it over the
/// target. A symbolic link stays and what it points to is replaced; the target's permissions, owner
/// and extended attributes are kept where the system lets them. When a step or the producer fails,
/// the target is as it was and the temporary file is removed.
/// Where the folder takes no new file but the target may be written, that is written in place, and
/// put back as it was when that fails; the producer is asked a second time for that.
std::string replaceTextFile(const std::filesystem::path& path, const TextProducer& produce,
                            FileReport* report = nullptr);
std::string replaceTextFile(const std::filesystem::path& path, const TextProducer& produce,
                            FileOperations& operations, FileReport* report = nullptr);

/// The same for a text that is there already.
std::string writeTextFile(const std::filesystem::path& path, std::string_view text,
                          FileReport* report = nullptr);

/// The same byte for byte, where a text gets the platform's line ends.
std::string writeBytes(const std::filesystem::path& path, std::string_view bytes,
                       FileReport* report = nullptr);

/// Removes the temporary files that a crash or a power cut left in this folder: regular files with
/// their names that nothing was written to for a day.
void removeLeftovers(const std::filesystem::path& folder);

} // namespace trassix
