#pragma once

#include "editing/canvas/carry_tool.h"
#include "editing/helix/helix_ends.h"

#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// A helix on its way to the plan. It hangs on the pointer by one of its ends, and F goes on to the
/// next one; that end snaps first, else any other. It lies as high as the end that it joins, else
/// the end at the pointer as high as the level it lands on.
class CarryHelixTool : public CarryTool {
 public:
  CarryHelixTool(ToolSite& site, const HelixWish& wish, bool held);

  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  void posed() override;
  bool turnRound(int step) override;
  EditResult drop() override;

  HelixPlan hanging() const;
  std::int32_t level() const;

  HelixPlan plan_;
  std::size_t end_; ///< by which it hangs, by its place in the list of ends
  HelixPlan landing_;
  std::optional<EndContact> snap_;
  std::vector<EndContact> meetings_; ///< ends that lie on others there
};

} // namespace trassix
