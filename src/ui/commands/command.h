#pragma once

#include <cstdint>
#include <span>

namespace trassix {

class ToolSite;
class Workspace;
struct Desk;
struct DockedPanel;

/// One command of the main window: what menus and tool bar show of it, when it can be used, and
/// what it does. Menus, tool bar, keys and enable rules all come from these rows. Texts are marked
/// for translation and translated where they are shown.
struct Command {
  enum class Kind : std::uint8_t { Normal, Check, Radio };

  /// What becomes of a piece that is being carried, or of a drag, when the command is given.
  enum class Hand : std::uint8_t { Empties, Keeps };

  /// Where a command of ours stands: behind the given rows of a menu.
  enum class Menu : std::uint8_t { None, File, Edit, View, Layout, Help };

  int id;
  const char* menuText = nullptr;  ///< with mnemonic and, after a tab, its keys; null: in no menu
  const char* menuHelp = nullptr;  ///< shown in the status bar
  const char* toolLabel = nullptr; ///< null when it is no tool
  const char* toolTip = nullptr;   ///< null for none
  Menu menu = Menu::None;          ///< none also for commands that have a given place
  const char* submenu = nullptr;   ///< neighbouring rows of ours with the same one stand in it
  Kind kind = Kind::Normal;
  Hand hand = Hand::Empties;
  /// Why it cannot be used as things are, marked for translation, null while it can; no rule: it
  /// always can.
  const char* (*unusable)(const ToolSite&) = nullptr;
  /// Of a check or radio command: whether it is on. Null for those that are none.
  bool (*checked)(const Workspace&) = nullptr;
  /// The tool's label as things are; null where it never changes.
  const char* (*labelNow)(const Workspace&) = nullptr;
  /// The panel that a check command shows and hides, without any function of its own.
  const DockedPanel* panel = nullptr;
  void (*run)(Desk&) = nullptr;

  /// False: not in this version, shown disabled.
  bool available() const { return run || panel; }
  void perform(Desk& desk) const;
};

// The rows, in a file for each topic.
std::span<const Command> fileCommands();
std::span<const Command> transferCommands();
std::span<const Command> sampleCommands();
std::span<const Command> editCommands();
std::span<const Command> arrangeCommands();
std::span<const Command> viewCommands();
std::span<const Command> layoutCommands();
std::span<const Command> toolCommands();
std::span<const Command> programCommands();

} // namespace trassix
