#include "editing/canvas/plan_clipboard.h"

namespace trassix {

bool PlanClipboard::copy(LayoutHost& host) {
  Block block = blockFromSelection(host.layout());
  if (block.empty())
    return false;
  centreBlock(block);
  std::string text;
  if (!writeBlock(block, [&text](std::string_view part) { text += part; }).empty())
    return false;
  copied_ = std::move(block);
  text_ = std::move(text);
  host.putClipboard(text_);
  return true;
}

Block PlanClipboard::paste(LayoutHost& host) const {
  const std::string text = host.clipboard();
  if (!text_.empty() && text == text_)
    return copied_;
  Block block;
  if (!readBlock(text, block).empty())
    return {};
  centreBlock(block);
  return block;
}

} // namespace trassix
