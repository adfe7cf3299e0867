#include "editing/canvas/plan_clipboard.h"

#include "document/entities.h"

namespace trassix {

Block copyOfSelection(const Layout& layout) {
  Block block = blockFromSelection(layout);
  centreBlock(block);
  return block;
}

bool PlanClipboard::copy(const Layout& layout, Clipboard& clipboard) {
  Block block = copyOfSelection(layout);
  if (block.empty())
    return false;
  std::string text;
  if (!writeBlock(block, [&text](std::string_view part) { text += part; }).empty())
    return false;
  copied_ = std::move(block);
  text_ = std::move(text);
  clipboard.put(text_);
  return true;
}

Block PlanClipboard::paste(Clipboard& clipboard) const {
  const std::string text = clipboard.text();
  if (!text_.empty() && text == text_)
    return copied_;
  Block block;
  if (!readBlock(text, block).empty())
    return {};
  decodeTexts(block);
  centreBlock(block);
  return block;
}

} // namespace trassix
