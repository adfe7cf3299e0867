#pragma once

#include "ui/commands/command.h"

#include <vector>

namespace trassix {

/// The rows of all topics.
const std::vector<const Command*>& commands();
const Command* findCommand(int id);

/// The command of a key that is pressed on its own; null when there is none. Not every platform
/// lets menus have such keys.
const Command* commandOfPlainKey(int key);

/// True when the command can be used on the document as it is.
bool commandEnabled(const Command& command, const Layout& layout);

} // namespace trassix
