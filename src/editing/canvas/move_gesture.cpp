#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "editing/canvas/carried_painter.h"
#include "editing/canvas/gesture.h"
#include "editing/canvas/meetings.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/selection_commands.h"
#include "editing/elevation/inheritance.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// A chain that hangs on one joint turns about that joint, anything else about its middle.
Point turningCentre(const Layout& layout) {
  const std::vector<std::int32_t> selected = selectedPieces(layout);
  std::optional<Point> joint;
  int joints = 0;
  for (const std::int32_t id : selected) {
    const PlacedPiece* piece = layout.findPiece(id);
    const PieceDef* definition = TrackCatalog::instance().find(piece->cat);
    for (std::size_t i = 0; definition && i < definition->connectors.size(); ++i) {
      const std::int32_t other = piece->joint(i).target;
      if (other == -1 || std::binary_search(selected.begin(), selected.end(), other))
        continue;
      const WorldConnector end = ConnectorToWorld(*piece, *definition, static_cast<int>(i));
      joint = Point{end.x, end.y};
      ++joints;
    }
  }
  if (joints == 1)
    return *joint;
  const std::optional<Box> box = selectionBox(layout);
  return box ? Point{(box->minX + box->maxX) / 2, (box->minY + box->maxY) / 2} : Point{};
}

double bearing(Point from, Point to) {
  return std::atan2(to.y - from.y, to.x - from.x) * 180 / kPi;
}

} // namespace

MoveGesture::MoveGesture(ToolSite& site, const PointerInput& from, bool turning)
    : Gesture(site), from_(from), turning_(turning), move_(site.layout(), from.world) {
  if (turning_)
    centre_ = turningCentre(site.layout());
}

void MoveGesture::drag(const PointerInput& input) {
  if (turning_) {
    turned_ = std::remainder(bearing(centre_, input.world) - bearing(centre_, from_.world), 360.0);
    if (input.shift)
      turned_ = std::round(turned_ / 15) * 15;
    move_.turn(centre_, turned_);
  } else {
    move_.update(input.world, site_.workspace.switches().snap, site_.snapIndex());
  }
  site_.workspace.repaint();
}

bool MoveGesture::allowed() {
  return !refuseMoving(site_, turning_ ? "rotate" : "move") &&
         mayLeaveGrades(site_, move_, turning_ ? tr("Rotate") : tr("Move"));
}

void MoveGesture::drop() {
  if (allowed())
    site_.report(move_.commit(site_.layout()));
  site_.workspace.repaint();
}

std::optional<CarriedBody> MoveGesture::body() const {
  return CarriedBody{move_.moved(Pose{from_.world.x, from_.world.y, 0}), from_.world,
                     move_.snap().has_value()};
}

void MoveGesture::paintBody(Surface& surface) const {
  CarriedPainter(surface, site_.view, site_.layout(), site_.theme(), move_.snap().has_value())
      .paintSelection(move_.motion());
}

void MoveGesture::paint(Surface& surface) const {
  if (turning_)
    surface.circle(site_.view.toScreen(centre_), 4, site_.theme().selected,
                   Stroke{site_.theme().paper, 1.5});
  paintMeetings(surface, site_.view, site_.theme(), move_.meetings(site_.snapIndex()));
}

std::string MoveGesture::hint() const {
  if (turning_)
    return hintOf({tr("Turned by %1%\u00b0", {std::lround(turned_)}),
                   tr("Shift: steps of 15\u00b0"), tr("Let go to keep"), tr("Esc: as it was")});
  if (!move_.snap())
    return hintOf({tr("Let go to place the selection here"), tr("Esc: as it was")});
  const Layout& layout = site_.layout();
  const std::int32_t level = layout.findPiece(move_.snap()->target)->level;
  const bool stays = layout.findPiece(move_.snappingPiece())->level == level;
  const std::vector<EndContact> meetings = move_.meetings(site_.snapIndex());
  return hintOf({tr("Let go to join"),
                 joiningEnds(meetings) > 1 ? meetingsHint(meetings) : std::string(),
                 missText(meetings, layout.settings().units),
                 stays ? std::string() : site_.landingHint({level}), tr("Esc: as it was")});
}

} // namespace trassix
