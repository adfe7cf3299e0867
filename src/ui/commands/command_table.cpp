#include "ui/commands/command_table.h"

#include "host/command_ids.h"
#include "ui/commands/desk.h"
#include "ui/docks/dock_area.h"

#include <wx/accel.h>
#include <wx/event.h>
#include <wx/intl.h>

#include <algorithm>
#include <cstring>

namespace trassix {

namespace {

struct PlainKey {
  int key;
  int command;
};

/// With the plus as American keyboards name it, and those of the number pad.
constexpr PlainKey kPlainKeys[] = {{'+', kZoomIn},
                                   {'=', kZoomIn},
                                   {WXK_NUMPAD_ADD, kZoomIn},
                                   {'-', kZoomOut},
                                   {WXK_NUMPAD_SUBTRACT, kZoomOut}};

} // namespace

void Command::perform(Desk& desk) const {
  if (panel)
    desk.docks.toggle(*panel);
  else
    run(desk);
}

const std::vector<const Command*>& commands() {
  static const std::vector<const Command*> all = [] {
    std::vector<const Command*> rows;
    for (const auto topic :
         {fileCommands, transferCommands, sampleCommands, editCommands, arrangeCommands,
          viewCommands, layoutCommands, toolCommands, programCommands})
      for (const Command& command : topic())
        rows.push_back(&command);
    return rows;
  }();
  return all;
}

const Command* findCommand(int id) {
  const auto found = std::ranges::find(commands(), id, &Command::id);
  return found == commands().end() ? nullptr : *found;
}

const Command* commandOfPlainKey(int key) {
  for (const PlainKey& plain : kPlainKeys)
    if (plain.key == key)
      return findCommand(plain.command);
  return nullptr;
}

const Command* commandOfKeys(const wxKeyEvent& event) {
  wxAcceleratorEntry keys;
  for (const Command* command : commands())
    if (const char* tab = command->menuText ? std::strchr(command->menuText, '\t') : nullptr;
        tab && keys.FromString(tab) && keys.GetKeyCode() == event.GetKeyCode() &&
        keys.GetFlags() == event.GetModifiers())
      return command;
  return nullptr;
}

const char* whyUnusable(const Command& command, const ToolSite& site) {
  if (!command.available())
    return wxTRANSLATE("Not available in this version");
  return command.unusable ? command.unusable(site) : nullptr;
}

} // namespace trassix
