#pragma once

#include "document/layout.h"

#include <wx/string.h>

#include <span>

class wxMenuBar;
class wxToolBar;

namespace trassix {

class MainFrame;

/// One command of the main window: what menus and tool bar show of it, when it is enabled, and what
/// it does. Menus, tool bar, keys and enable rules all come from the one table.
struct Command {
  enum class Kind : unsigned char { Normal, Check, Radio };

  /// What becomes of a piece that is being carried, or of a drag, when the command is given.
  enum class Hand : unsigned char { Empties, Keeps };

  int id;
  const char* menuText;  ///< with mnemonic and, after a tab, its keys; null when it is in no menu
  const char* menuHelp;  ///< shown in the status bar
  const char* toolLabel; ///< null when it is no tool
  const char* toolTip;   ///< null for none
  Kind kind;
  Hand hand;
  bool (*enabled)(const Layout&); ///< null: always
  void (MainFrame::*action)();    ///< null: not in this version, shown disabled
};

std::span<const Command> commands();
const Command* findCommand(int id);

/// The command of a key that is pressed on its own; null when there is none. Not every platform
/// lets menus have such keys.
const Command* commandOfPlainKey(int key);

/// True when the command can be used on the document as it is.
bool commandEnabled(const Command& command, const Layout& layout);

wxMenuBar* makeMenuBar();
void fillToolBar(wxToolBar& bar);

} // namespace trassix
