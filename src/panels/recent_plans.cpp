#include "panels/recent_plans.h"

#include "app/services/program_memory.h"
#include "app/services/text_file.h"

#include <algorithm>

namespace trassix {

namespace fs = std::filesystem;

namespace {

const std::string kTopic = "recentPlans";
const std::string kFiles = "files";

std::vector<std::string> namesIn(const ProgramMemory::Section& section) {
  std::vector<std::string> names;
  const auto files = section.find(kFiles);
  if (files != section.end() && files->is_array())
    for (const auto& file : *files)
      if (file.is_string())
        names.push_back(file.get<std::string>());
  return names;
}

void change(const ProgramMemory& memory, const fs::path& file, bool first) {
  memory.remember(kTopic, [&](auto& section) {
    std::vector<std::string> names = namesIn(section);
    std::erase(names, pathText(file));
    if (first)
      names.insert(names.begin(), pathText(file));
    names.resize(std::min(names.size(), RecentPlans::kMost));
    section[kFiles] = names;
  });
}

} // namespace

void RecentPlans::add(const ProgramMemory& memory, const fs::path& file) {
  change(memory, file, true);
}

void RecentPlans::forget(const ProgramMemory& memory, const fs::path& file) {
  change(memory, file, false);
}

std::vector<fs::path> RecentPlans::list(const ProgramMemory& memory) {
  std::vector<fs::path> files;
  const auto section = memory.recall(kTopic);
  for (const std::string& name : section ? namesIn(*section) : std::vector<std::string>())
    files.emplace_back(std::u8string(name.begin(), name.end()));
  files.resize(std::min(files.size(), kMost));
  return files;
}

std::vector<std::string> recentLabels(const std::vector<fs::path>& files,
                                      const fs::path& plansFolder) {
  std::vector<std::string> labels;
  labels.reserve(files.size());
  for (const fs::path& file : files)
    labels.push_back(pathText(
        file.parent_path() == plansFolder ? file.stem() : file.parent_path() / file.stem()));
  return labels;
}

} // namespace trassix
