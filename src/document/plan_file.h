#pragma once

#include "app/services/text_file.h"
#include "document/layout.h"

#include <filesystem>
#include <string>
#include <vector>

namespace trassix {

/// How reading or writing a plan went.
struct FileResult : FileReport {
  std::string message; ///< why it failed; empty on success
  /// What the user should know although it went well: whole sentences.
  std::vector<std::string> notices;

  bool failed() const { return !message.empty(); }
};

/// A plan from a file as the program uses it: sound, and with texts as they were typed.
struct PlanFile {
  FileResult result;
  std::string text;
  Layout layout;
  std::string name;
  std::string unread;  ///< see `unreadPart`
  std::string repairs; ///< see `describeRepairs`

  /// The file is read and goes from its first line to its last.
  bool whole() const;
};

PlanFile planFromText(std::string text);
PlanFile readPlanFile(const std::filesystem::path& path);

} // namespace trassix
