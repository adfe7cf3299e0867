#pragma once

#include "support/temp_folder.h"

#include <string>

namespace trassix::test {

/// The example of docs/file-format.md that holds this text.
inline std::string documentedExample(const std::string& containing) {
  const std::string page = readText(TRASSIX_SOURCE_DIR "/docs/file-format.md");
  const std::string opening = "```xml\n";
  for (std::size_t begin = page.find(opening); begin != std::string::npos;
       begin = page.find(opening, begin)) {
    begin += opening.size();
    std::string example = page.substr(begin, page.find("```", begin) - begin);
    if (example.find(containing) != std::string::npos)
      return example;
  }
  return {};
}

} // namespace trassix::test
