#include "ui/wizards/layout_wizard.h"

#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/program_memory.h"
#include "document/layout.h"
#include "document/open_plan.h"
#include "editing/canvas/canvas.h"
#include "host/questions.h"
#include "panels/owned_stock.h"
#include "panels/piece_stock.h"
#include "ui/wizards/layout_wizard_dialog.h"

namespace trassix {

namespace {

ProgramMemory memory() {
  return ProgramMemory(StandardFolders::memoryFile());
}

} // namespace

void LayoutWizard::run(wxWindow& parent, Canvas& canvas, TrackSystem system) {
  Layout& layout = workspace_.layout();
  OwnedStock owned;
  const std::string stockProblem =
      owned.load(memory(), UserPaths::layoutsFolder() / OwnedStock::kOlderFileName);
  LayoutWizardDialog dialog(&parent, layout, system, piecesAtHome(owned), stockProblem,
                            memory_.recall(memory(), workspace_.plan().file(), layout));
  if (dialog.ShowModal() != wxID_OK || dialog.chosen() == nullptr)
    return;
  const EditResult placed = placeLayout(layout, *dialog.chosen(), dialog.placing());
  if (placed.refusal)
    workspace_.questions().show(*placed.refusal);
  if (!placed.changed())
    return;
  memory_.made(dialog.task(), layout);
  workspace_.selectionChanged();
  workspace_.changed();
  canvas.fit();
}

void LayoutWizard::fileChanged() {
  // Not worth a word when it fails.
  if (!workspace_.plan().file().empty() && !workspace_.plan().unsaved())
    memory_.saved(memory(), workspace_.plan().file());
}

} // namespace trassix
