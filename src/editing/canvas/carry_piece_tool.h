#pragma once

#include "catalog/piece_def.h"
#include "editing/canvas/carry_tool.h"
#include "editing/placing/inserting.h"

#include <optional>
#include <string>

namespace trassix {

/// A catalogue piece on its way to the plan; the preview stands where it would land.
class CarryPieceTool : public CarryTool {
 public:
  /// The definition is the catalogue's own.
  CarryPieceTool(ToolSite& site, const PieceDef& definition, int count, bool held);

  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  void posed() override;
  bool turnRound(int step) override;
  EditResult drop() override;

  EditResult dropFirst();

  /// Where the piece is while it joins nothing: it hangs by the end that was chosen.
  Pose hanging() const;
  Pose landing() const;
  /// The end of the carried piece that would join, -1 for none.
  std::int32_t joiningEnd() const;

  const PieceDef& definition_;
  int count_; ///< pieces in a row
  SnapResult snap_;
  std::optional<InsertSpot> insert_; ///< where it would go into finished track
};

} // namespace trassix
