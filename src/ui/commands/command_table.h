#pragma once

#include "ui/commands/command.h"

#include <vector>

class wxKeyEvent;

namespace trassix {

/// The rows of all topics.
const std::vector<const Command*>& commands();
const Command* findCommand(int id);

/// The command of a key that is pressed on its own; null when there is none. Not every platform
/// lets menus have such keys.
const Command* commandOfPlainKey(int key);

/// The command whose keys, as its menu shows them, are pressed; null when there is none.
const Command* commandOfKeys(const wxKeyEvent& event);

/// Why the command cannot be used as things are, marked for translation; null when it can.
const char* whyUnusable(const Command& command, const ToolSite& site);

} // namespace trassix
