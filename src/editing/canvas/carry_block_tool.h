#pragma once

#include "document/block_file.h"
#include "editing/canvas/carry_tool.h"
#include "editing/track/track_end.h"

#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// A block on its way to the plan: from the library, the clipboard, or a duplicate. It snaps with
/// any of its open ends.
class CarryBlockTool : public CarryTool {
 public:
  /// The block's origin hangs on the pointer.
  CarryBlockTool(ToolSite& site, SharedBlock block, bool held);

  std::optional<CarriedBody> body() const override;
  void paintBody(Surface& surface) const override;
  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  void posed() override;
  EditResult drop() override;

  SharedBlock block_;
  std::vector<PlacedEnd> ends_; ///< those that are open or will be, as they lie in the block
  Pose landing_;
  std::optional<TrackEnd> landsOn_;  ///< the end that it has snapped to
  std::vector<EndContact> meetings_; ///< ends that lie on others there
};

} // namespace trassix
