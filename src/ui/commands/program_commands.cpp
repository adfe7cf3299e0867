#include "host/command_ids.h"
#include "host/questions.h"
#include "host/workspace.h"
#include "texts/texts.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/experience_dialog.h"
#include "ui/help/help_dialog.h"

#include <wx/frame.h>

namespace trassix {

namespace {

using Hand = Command::Hand;

template <HelpTopic topic>
void showHelp(Desk& desk) {
  auto* help = dynamic_cast<HelpDialog*>(wxWindow::FindWindowByName("help", &desk.window));
  if (help == nullptr)
    help = new HelpDialog(&desk.window);
  help->showPage(topic);
}

// clang-format off
const Command kCommands[] = {
    {.id = kHelp, .menuText = wxTRANSLATE("&Help\tF1"),
     .menuHelp = wxTRANSLATE("How to use the program"), .hand = Hand::Keeps,
     .run = showHelp<HelpTopic::Plan>},
    {.id = kLayoutWizardHelp, .menuText = wxTRANSLATE("Layout &Wizard Help"),
     .menuHelp = wxTRANSLATE("How a layout is made for a table"), .hand = Hand::Keeps,
     .run = showHelp<HelpTopic::LayoutWizard>},
    {.id = kOptions, .menuText = wxTRANSLATE("&Options..."),
     .menuHelp = wxTRANSLATE("Playful or businesslike"),
     .run = [](Desk& desk) { askExperience(&desk.window); }},
    {.id = kValidate,
     .run = [](Desk& desk) {
       desk.workspace.questions().show(
           {tr("Validate"), tr("Validation not yet implemented.")});
     }},
    {.id = kProperties,
     .run = [](Desk& desk) {
       desk.workspace.questions().show(
           {tr("Properties"), tr("Layout properties not yet implemented.")});
     }},
};
// clang-format on

} // namespace

std::span<const Command> programCommands() {
  return kCommands;
}

} // namespace trassix
