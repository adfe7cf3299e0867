#include "ui/widgets/remembered_grades.h"

#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"

namespace trassix {

namespace {

const std::string kTopic = "plan";
const std::string kGrades = "grades";

} // namespace

bool rememberedGrades() {
  const auto kept = ProgramMemory(StandardFolders::memoryFile()).recall(kTopic);
  return kept && valueIn<bool>(*kept, kGrades).value_or(false);
}

void rememberGrades(bool shown) {
  // Not worth a word when it fails.
  ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [shown](auto& kept) {
    kept[kGrades] = shown;
  });
}

} // namespace trassix
