#pragma once

#include "catalog/scenery_catalog.h"
#include "editing/canvas/carry_tool.h"

#include <string>

namespace trassix {

/// A scenery item on its way to the plan.
class CarrySceneryTool : public CarryTool {
 public:
  /// The definition is the catalogue's own.
  CarrySceneryTool(ToolSite& site, const SceneryDef& definition, bool held)
      : CarryTool(site, held), definition_(definition) {}

  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  EditResult drop() override;

  const SceneryDef& definition_;
};

} // namespace trassix
