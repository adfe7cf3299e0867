#include "ui/widgets/remembered_look.h"

#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"

namespace trassix {

namespace {

const std::string kTopic = "plan";
const std::string kGrades = "grades";
const std::string kHidden = "hidden";

} // namespace

EditorSwitches rememberedLook(EditorSwitches switches) {
  if (const auto kept = ProgramMemory(StandardFolders::memoryFile()).recall(kTopic)) {
    switches.grades = valueIn<bool>(*kept, kGrades).value_or(switches.grades);
    switches.hidden = valueIn<bool>(*kept, kHidden).value_or(switches.hidden);
  }
  return switches;
}

void rememberLook(const EditorSwitches& switches) {
  // Not worth a word when it fails.
  ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [&switches](auto& kept) {
    kept[kGrades] = switches.grades;
    kept[kHidden] = switches.hidden;
  });
}

} // namespace trassix
