#include "editing/canvas/plan_clipboard.h"

#include "document/block.h"
#include "document/entities.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/plan_content.h"

namespace trassix {

SharedBlock copyOfSelection(const Layout& layout) {
  auto block = std::make_shared<Block>(blockFromSelection(layout));
  centreBlock(*block);
  return block;
}

namespace {

/// From another running program, or the text of a block file.
Block blockFromText(const std::string& text) {
  Block block;
  if (!isWholeLayout(text)) {
    if (!readBlock(text, block).empty())
      return {};
    decodeTexts(block);
    return block;
  }
  Layout whole;
  std::string name;
  if (!readLayout(text, whole, name).empty())
    return {};
  decodeTexts(whole, name);
  block.content = whole.content();
  return block;
}

} // namespace

bool PlanClipboard::copy(const Layout& layout, Clipboard& clipboard) {
  SharedBlock block = copyOfSelection(layout);
  if (isEmpty(*block))
    return false;
  std::string text;
  Layout whole;
  whole.edit() = block->content;
  if (!writeLayout(whole, "", text).empty())
    return false;
  copied_ = std::move(block);
  text_ = std::move(text);
  clipboard.put(text_);
  seen_ = text_;
  pastes_ = true;
  return true;
}

void PlanClipboard::look(Clipboard& clipboard) {
  std::string text = clipboard.text();
  if (text == seen_)
    return;
  pastes_ = !isEmpty(*blockOf(text));
  seen_ = std::move(text);
}

SharedBlock PlanClipboard::blockOf(const std::string& text) const {
  if (!text_.empty() && text == text_)
    return copied_;
  auto block = std::make_shared<Block>(blockFromText(text));
  centreBlock(*block);
  return block;
}

} // namespace trassix
