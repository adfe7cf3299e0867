#include "editing/canvas/canvas_tools.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/board_corners_tool.h"
#include "editing/canvas/carry_block_tool.h"
#include "editing/canvas/carry_helix_tool.h"
#include "editing/canvas/carry_piece_tool.h"
#include "editing/canvas/carry_scenery_tool.h"
#include "editing/canvas/measure_tool.h"
#include "editing/canvas/polygon_tool.h"
#include "editing/canvas/select_tool.h"

namespace trassix {

std::unique_ptr<CanvasTool> makeTool(ToolMode mode, ToolSite& site) {
  switch (mode) {
  case ToolMode::Measure:
    return std::make_unique<MeasureTool>(site);
  case ToolMode::Polygon:
    return std::make_unique<PolygonTool>(site);
  case ToolMode::BoardCorners:
    return std::make_unique<BoardCornersTool>(site);
  case ToolMode::Select:
    break;
  }
  return std::make_unique<SelectTool>(site);
}

namespace {

struct CarryToolMaker {
  ToolSite& site;
  bool held;
  const CarryTool* before;

  std::unique_ptr<CarryTool> operator()(const CarriedPiece& piece) const {
    const PieceDef* definition = TrackCatalog::instance().find(piece.article);
    if (definition == nullptr)
      return nullptr;
    auto carry = std::make_unique<CarryPieceTool>(site, *definition, piece.count, held);
    // Another piece taken up in place of one that hangs on the pointer lies as that was turned.
    if (dynamic_cast<const CarryPieceTool*>(before) != nullptr)
      carry->keepHeading(*before);
    return carry;
  }
  std::unique_ptr<CarryTool> operator()(const CarriedScenery& item) const {
    const SceneryDef* definition = findScenery(item.key);
    if (definition == nullptr)
      return nullptr;
    return std::make_unique<CarrySceneryTool>(site, *definition, held);
  }
  std::unique_ptr<CarryTool> operator()(const SharedBlock& block) const {
    if (isEmpty(*block))
      return nullptr;
    return std::make_unique<CarryBlockTool>(site, block, held);
  }
  std::unique_ptr<CarryTool> operator()(const HelixWish& helix) const {
    return std::make_unique<CarryHelixTool>(site, helix, held);
  }
};

} // namespace

std::unique_ptr<CarryTool> makeCarryTool(ToolSite& site, const Carried& what, bool held,
                                         const CarryTool* before) {
  return std::visit(CarryToolMaker{site, held, before}, what);
}

} // namespace trassix
