#include "editing/canvas/carry_block_tool.h"

#include "editing/canvas/layout_painter.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/placing/block_placing.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/picking.h"
#include "texts/texts.h"

namespace trassix {

EditResult CarryBlockTool::drop() {
  return placeBlock(site_.layout(), block_, pose());
}

namespace {

/// Draws the records of a block where they would land, as outlines.
class CarriedPainter {
 public:
  CarriedPainter(Surface& surface, const ViewTransform& view, const Layout& layout,
                 const RigidMotion& motion)
      : surface_(surface), view_(view), layout_(layout), motion_(motion) {}

  template <class Record>
  void paint(Record record) {
    moveRecord(record, motion_);
    draw(record);
  }

 private:
  void draw(const PlacedPiece& piece) {
    if (const PieceDef* definition = definitionOf(piece))
      PiecePainter(surface_, view_)
          .paint(trackGeometryOf(*definition), poseOf(piece), carriedLook(false));
  }
  void draw(const SceneryItem& item) { outline(sceneryOutline(layout_, item)); }
  void draw(const Shape& shape) { outline(shape.points); }
  void draw(const Label& label) {
    surface_.text(label.text, view_.toScreen({label.x, label.y}), 0,
                  {plan_colors::kSelected, labelTextSize(1 / view_.zoom()), true});
  }
  void draw(const Measurement& tape) {
    paintTape(surface_, view_, tape.from, tape.to, layout_.settings().units, true);
  }
  void outline(const std::vector<Point>& points) {
    surface_.polygon(view_.toScreen(points), {},
                     Stroke{plan_colors::kSelected, 1.5, Stroke::Style::Dashed});
  }

  Surface& surface_;
  const ViewTransform& view_;
  const Layout& layout_;
  RigidMotion motion_;
};

} // namespace

void CarryBlockTool::paint(Surface& surface) const {
  CarriedPainter painter(surface, site_.view, site_.layout(), {{}, pose()});
  forEachSelectable(block_.content, [&painter](const auto& records) {
    for (const auto& record : records)
      painter.paint(record);
  });
}

std::string CarryBlockTool::hint() const {
  std::set<std::int32_t> levels;
  forEachOnLevels(block_.content, [&levels](const auto& records) {
    for (const auto& record : records)
      levels.insert(record.level);
  });
  return hintOf({block_.name.empty() ? tr("Click to place the copy")
                                     : tr("Click to place %1%", {block_.name}),
                 site_.landingHint(levels), turningHint()});
}

} // namespace trassix
