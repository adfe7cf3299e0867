#include "editing/canvas/carry_piece_tool.h"

#include "document/plan_content.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/selection_commands.h"
#include "editing/elevation/inheritance.h"
#include "editing/placing/placing.h"
#include "editing/placing/runs.h"
#include "editing/placing/ways.h"
#include "editing/selection/open_ends.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

namespace trassix {

namespace {

TrackSystem systemOf(const PieceDef& definition, std::int32_t end) {
  return definition.connectorSystem(static_cast<std::size_t>(end));
}

/// The snap with another end of the piece, if that mates.
SnapResult joinedBy(const Layout& layout, const PieceDef& definition, std::int32_t end,
                    const SnapResult& snap) {
  const auto target = endAt(layout, {snap.target, snap.targetConnector});
  if (!target || systemOf(definition, end) != systemOf(definition, snap.newConnector))
    return snap;
  SnapResult other = snap;
  other.newConnector = end;
  other.pose = AttachPose(definition, end, *target);
  return other;
}

} // namespace

CarryPieceTool::CarryPieceTool(ToolSite& site, const PieceDef& definition, int count, bool held)
    : CarryTool(site, held), definition_(definition), count_(count) {
  site_.choice.takeUp(definition.article);
}

Pose CarryPieceTool::hanging() const {
  const std::optional<std::int32_t> way = site_.choice.way(definition_.article);
  return way ? hangingBy(definition_, *way, pose()) : pose();
}

void CarryPieceTool::posed() {
  snap_ = {};
  insert_.reset();
  if (!site_.workspace.switches().snap)
    return;
  snap_ = site_.snapIndex().findSnap(definition_, hanging());
  if (!snap_.snapped)
    insert_ = findInsertSpot(site_.layout(), site_.snapIndex(), definition_, hanging());
  else if (const auto way = site_.choice.way(definition_.article))
    snap_ = joinedBy(site_.layout(), definition_, *way, snap_);
}

bool CarryPieceTool::turnRound(int step) {
  const std::int32_t joining = joiningEnd();
  const std::int32_t present =
      joining != -1 ? joining : site_.choice.way(definition_.article).value_or(0);
  const std::optional<TrackSystem> system =
      joining == -1 ? std::nullopt : std::optional(systemOf(definition_, joining));
  const std::int32_t next = wayAfter(definition_, present, step, system);
  if (next == -1 || next == present)
    return false;
  site_.choice.chooseWay(definition_.article, next);
  return true;
}

EditResult CarryPieceTool::drop() {
  const ExtensionWish wish{{}, site_.choice.way(definition_.article)};
  return placeRun(site_.layout(), definition_.article, count_, wish, [this] { return dropFirst(); })
      .result;
}

EditResult CarryPieceTool::dropFirst() {
  if (insert_) {
    const double slope = insertedSlope(site_.layout(), definition_, *insert_).value_or(0);
    return maySteepen(site_, tr("Insert Piece"), slope)
               ? insertPiece(site_.layout(), definition_.article, *insert_)
               : EditResult();
  }
  const EditResult result = dropPiece(site_.layout(), definition_.article, hanging(), snap_,
                                      site_.workspace.switches().snap);
  if (result.changed() && wantsSmallTrackView(site_.layout()))
    site_.resetViewForSmall();
  return result;
}

Pose CarryPieceTool::landing() const {
  return insert_ ? insert_->pose : snap_.snapped ? snap_.pose : hanging();
}

std::int32_t CarryPieceTool::joiningEnd() const {
  return insert_ ? insert_->enter : snap_.snapped ? snap_.newConnector : -1;
}

void CarryPieceTool::paint(Surface& surface) const {
  const Pose at = landing();
  const std::int32_t joining = joiningEnd();
  PiecePainter(surface, site_.view, site_.theme())
      .paint(definition_, at, carriedLook(site_.theme(), joining != -1));
  for (const WorldConnector& end : WorldConnectorsOf(pieceAt(at), definition_)) {
    const bool joins = end.index == joining;
    surface.circle(site_.view.toScreen({end.x, end.y}), joins ? 6 : 3.5,
                   joins ? site_.theme().snapped : site_.theme().paper,
                   Stroke{joins ? site_.theme().paper : site_.theme().selected, 2});
  }
}

std::string CarryPieceTool::hint() const {
  const Layout& layout = site_.layout();
  const PlacedPiece* joined = layout.findPiece(insert_ ? insert_->piece : snap_.target);
  const std::string landing =
      site_.landingHint({joined != nullptr ? joined->level : dropLevel(layout)});
  const char* what = insert_ ? trLater("Let go to insert %1% here: the shorter side makes room")
                     : snap_.snapped ? trLater("Let go to join %1%")
                                     : trLater("Click or let go to place %1%");
  const bool hasWays = waysOf(definition_).size() > 1;
  const std::string article =
      count_ > 1 ? tr("%1% \u00d7 %2%", {count_, definition_.article}) : definition_.article;
  std::vector<EndContact> meetings;
  if (snap_.snapped)
    meetings = site_.snapIndex().findMeetings(landedEnds(layout, definition_, snap_), {});
  std::string grade;
  if (const auto slope = insert_ ? insertedSlope(layout, definition_, *insert_) : std::nullopt)
    grade = tr("It gets a grade of %1% %%", {formatFixed(percentOf(*slope), 1)});
  return hintOf({tr(what, {article}), grade, missText(meetings, layout.settings().units), landing,
                 hasWays ? tr("F: other way round") : std::string(), turningHint()});
}

} // namespace trassix
