#include "document/layout_reader.h"
#include "embedded/samplePlans.h"
#include "host/command_ids.h"
#include "host/questions.h"
#include "host/workspace.h"
#include "texts/texts.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"

#include <wx/intl.h>

#include <string_view>

namespace trassix {

namespace {

std::string_view textOf(std::span<const unsigned char> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

void openSample(Desk& desk) {
  Choice choice;
  choice.title = tr("Open a Sample");
  choice.line = tr("The sample is opened as a copy that belongs to no file yet.");
  for (const auto bytes : samplePlans()) {
    trassix::Layout plan;
    readLayout(textOf(bytes), plan, choice.rows.emplace_back());
  }
  choice.accept = tr("Open");
  const std::optional<std::size_t> chosen = desk.workspace.questions().choose(choice);
  if (chosen && desk.files.promptUnsaved())
    desk.files.startFrom(textOf(samplePlans()[*chosen]));
}

// clang-format off
const Command kCommands[] = {
    {.id = kOpenSample, .menuText = wxTRANSLATE("Open a Sa&mple..."),
     .menuHelp = wxTRANSLATE("Open a copy of a finished plan, to look at and to try"),
     .menu = Command::Menu::File, .run = openSample},
};
// clang-format on

} // namespace

std::span<const Command> sampleCommands() {
  return kCommands;
}

} // namespace trassix
