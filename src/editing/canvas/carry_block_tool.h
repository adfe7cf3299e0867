#pragma once

#include "document/block_file.h"
#include "editing/canvas/carry_tool.h"

#include <string>

namespace trassix {

/// A block on its way to the plan: from the library, the clipboard, or a
/// duplicate.
class CarryBlockTool : public CarryTool {
 public:
  /// The block's origin hangs on the pointer.
  CarryBlockTool(ToolSite& site, Block block, bool held)
      : CarryTool(site, held), block_(std::move(block)) {}

  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  EditResult drop() override;

  Block block_;
};

} // namespace trassix
