#pragma once

#include <cstdint>
#include <filesystem>

namespace trassix {

/// How lengths are shown to the user; the values are stored in the preferences and in the frame.
enum class UnitsOfMeasure : std::int32_t { Millimetres = 0, Centimetres = 1, Inches = 2 };

/// What the user chose once for all plans. The file holds one "key=value" line for each field.
struct AppPrefs {
  /// True "Keep it Playful": splash at the start, pictures in help and purchase panel.
  bool playful = true;
  /// The experience question was answered; while false it is put once after start-up.
  bool asked = false;
  std::int32_t units = 0; ///< a `UnitsOfMeasure`

  bool operator==(const AppPrefs&) const = default;
};

/// The record of this process. Used on the GUI thread only.
AppPrefs& appPrefs();

/// Takes the fields that the file names into `prefs`, keeps the others. A key counts only from the
/// first column and in lower case, of the value only the first character; unknown lines are
/// skipped, the last of several lines wins. False, and nothing is changed, when it is no regular
/// file or cannot be opened.
bool readPrefs(AppPrefs& prefs, const std::filesystem::path& file);

/// Reads `file`; when that cannot be opened, `legacyFile`, whose content is then written to `file`
/// so that it is found there from now on. The legacy file stays.
void readPrefsOrMigrate(AppPrefs& prefs, const std::filesystem::path& file,
                        const std::filesystem::path& legacyFile);

/// Writes all fields, making the folder when it is missing. What cannot be written, or is no
/// regular file, is left alone without a word: the choice then holds for this run.
void writePrefs(const AppPrefs& prefs, const std::filesystem::path& file);

} // namespace trassix
