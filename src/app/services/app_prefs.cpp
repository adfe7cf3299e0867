#include "app/services/app_prefs.h"

#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace trassix {

namespace {

/// The character after `key` when the line starts with it; '\0' when the line ends there.
std::optional<char> valueOf(std::string_view line, std::string_view key) {
  if (!line.starts_with(key)) {
    return std::nullopt;
  }
  return line.size() > key.size() ? line[key.size()] : '\0';
}

void takeLine(AppPrefs& prefs, std::string_view line) {
  if (const auto playful = valueOf(line, "playful=")) {
    prefs.playful = *playful == '1';
  } else if (const auto asked = valueOf(line, "asked=")) {
    prefs.asked = *asked == '1';
  } else if (const auto units = valueOf(line, "units=")) {
    prefs.units = *units >= '0' && *units <= '2' ? *units - '0' : 0;
  }
}

} // namespace

AppPrefs& appPrefs() {
  static AppPrefs prefs;
  return prefs;
}

bool readPrefs(AppPrefs& prefs, const std::filesystem::path& file) {
  // Asked first: to open a pipe is to wait until somebody writes into it.
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(file, ignored)) {
    return false;
  }
  std::ifstream in(file);
  if (!in) {
    return false;
  }
  for (std::string line; std::getline(in, line);) {
    takeLine(prefs, line);
  }
  return true;
}

void readPrefsOrMigrate(AppPrefs& prefs, const std::filesystem::path& file,
                        const std::filesystem::path& legacyFile) {
  if (!readPrefs(prefs, file) && readPrefs(prefs, legacyFile)) {
    writePrefs(prefs, file);
  }
}

void writePrefs(const AppPrefs& prefs, const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::create_directories(file.parent_path(), ignored);
  if (std::filesystem::exists(file, ignored) && !std::filesystem::is_regular_file(file, ignored)) {
    return;
  }
  std::ofstream out(file);
  // Whole text at once, digits by to_string: a stream would group digits by the user's locale.
  out << "playful=" + std::string(prefs.playful ? "1" : "0") +
             "\nasked=" + (prefs.asked ? "1" : "0") + "\nunits=" + std::to_string(prefs.units) +
             "\n";
}

} // namespace trassix
