#include "ui/wizards/bridge_wizard.h"

#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/program_memory.h"
#include "editing/canvas/canvas_tool.h"
#include "panels/owned_stock.h"
#include "ui/wizards/bridge_dialog.h"

namespace trassix {

void runBridgeWizard(wxWindow& parent, ToolSite& site) {
  OwnedStock owned; // what cannot be read counts as nothing; the purchase list tells of it
  owned.load(ProgramMemory(StandardFolders::memoryFile()),
             UserPaths::layoutsFolder() / OwnedStock::kOlderFileName);
  BridgeDialog dialog(&parent, site.workspace, owned);
  if (dialog.ShowModal() == wxID_OK)
    site.report(dialog.form().apply(site.layout()));
}

} // namespace trassix
