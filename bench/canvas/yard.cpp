#include "canvas/yard.h"

#include "catalog/track_catalog.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"

#include <array>

namespace trassix::bench {

namespace {

/// Lays a winding track of straights, turnouts and curves, joined all along, on to the right.
void addRow(Layout& layout, Point from, int pieces) {
  struct Step {
    const char* article;
    std::int32_t enter;
  };
  static constexpr std::array<Step, 6> kSteps{
      {{"24172", 0}, {"24611", 0}, {"24130", 0}, {"24130", 1}, {"24130", 1}, {"24130", 0}}};
  WorldConnector front;
  front.x = from.x;
  front.y = from.y;
  std::int32_t before = -1;
  std::int32_t exit = -1;
  for (int i = 0; i < pieces; ++i) {
    const Step& step = kSteps[static_cast<std::size_t>(i) % kSteps.size()];
    const PieceDef& definition = *TrackCatalog::instance().find(step.article);
    const std::int32_t id =
        addPiece(layout, definition, AttachPose(definition, step.enter, front), 1, 0);
    if (before != -1)
      join(layout, id, step.enter, before, exit);
    before = id;
    exit = 1 - step.enter;
    front = ConnectorToWorld(*layout.findPiece(id), definition, exit);
  }
}

} // namespace

Layout yard(int rows, int piecesInRow) {
  Layout layout;
  layout.ensureLevel();
  for (int row = 0; row < rows; ++row)
    addRow(layout, {0, row * kRowGap}, piecesInRow);
  return layout;
}

} // namespace trassix::bench
