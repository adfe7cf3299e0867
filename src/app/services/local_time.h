#pragma once

#include <ctime>
#include <filesystem>
#include <string>

namespace trassix {

/// The calendar time of the user's zone.
std::tm localTime(std::time_t when);

/// "2026-11-21 22:13:50" in the user's zone; the clock time with `separator` can be part of a
/// file's name.
std::string localTimeText(std::time_t when, char separator = ':');

/// "2026-11-21".
std::string localDateText(std::time_t when);

/// When a file was written last; 0 when there is none.
std::time_t writtenAt(const std::filesystem::path& file);

} // namespace trassix
