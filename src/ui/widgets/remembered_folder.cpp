#include "ui/widgets/remembered_folder.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"
#include "ui/widgets/utf8.h"

#include <system_error>

namespace trassix {

namespace {

const std::string kTopic = "folders";

} // namespace

std::filesystem::path rememberedFolder(const std::string& purpose,
                                       const std::filesystem::path& usual) {
  const auto folders = ProgramMemory(StandardFolders::memoryFile()).recall(kTopic);
  const auto kept = folders ? valueIn<std::string>(*folders, purpose) : std::nullopt;
  if (!kept)
    return usual;
  std::filesystem::path folder = toPath(fromUtf8(*kept));
  std::error_code none;
  return std::filesystem::is_directory(folder, none) ? folder : usual;
}

void rememberFolder(const std::string& purpose, const std::filesystem::path& folder) {
  const std::string text = toUtf8(toText(folder));
  // Not worth a word when it fails; nor is a name that its text does not lead back to.
  if (toPath(fromUtf8(text)) == folder)
    ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [&](auto& folders) {
      folders[purpose] = text;
    });
}

} // namespace trassix
