#pragma once

#include "document/block_file.h"
#include "host/clipboard.h"

#include <string>

namespace trassix {

/// What is selected, as a block that is centred on its origin.
SharedBlock copyOfSelection(const Layout& layout);

/// Copies of the selection by way of the system's clipboard, as the text of a plan file, so that
/// they can be carried from one running program to another. What this program copied itself comes
/// back complete, with what files do not hold.
class PlanClipboard {
 public:
  /// False when nothing is selected.
  bool copy(const Layout& layout, Clipboard& clipboard);

  /// Centred on its origin; empty when the clipboard holds neither plan nor block.
  SharedBlock paste(Clipboard& clipboard) const { return blockOf(clipboard.text()); }

  /// Renews what `pastes` says. It reads the clipboard, which may take a while.
  void look(Clipboard& clipboard);
  /// Whether there was something to paste at the last look or copy.
  bool pastes() const { return pastes_; }

 private:
  SharedBlock blockOf(const std::string& text) const;

  SharedBlock copied_;
  std::string text_; ///< of `copied_`
  std::string seen_;
  bool pastes_ = false;
};

} // namespace trassix
