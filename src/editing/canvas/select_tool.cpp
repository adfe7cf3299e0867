#include "editing/canvas/select_tool.h"

#include "document/piece_lines.h"
#include "document/plan_content.h"
#include "editing/canvas/helix_command.h"
#include "editing/canvas/hover.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/selection_commands.h"
#include "editing/canvas/selection_menu.h"
#include "editing/canvas/tunnel_command.h"
#include "editing/helix/helix_edits.h"
#include "editing/placing/placing.h"
#include "editing/selection/selection.h"
#include "editing/tunnels/tunnel_facts.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kNudge = 10.0; ///< mm
constexpr double kFineNudge = 1.0;

/// An open end that the pointer is over, or that was chosen to go on from: larger than it is drawn
/// with the track.
void paintEnd(Surface& surface, const ToolSite& site, TrackEnd end, bool chosen) {
  const auto at = endAt(site.layout(), end);
  const PieceDef* definition = at ? definitionOf(*site.layout().findPiece(end.piece)) : nullptr;
  if (definition == nullptr)
    return;
  const Point px = site.view.toScreen({at->x, at->y});
  const double radius = std::max(5.0, endReach(*definition, site.mm(1)) * site.view.zoom());
  surface.circle(px, radius, chosen ? site.theme().selected : site.theme().paper,
                 Stroke{chosen ? site.theme().paper : site.theme().hover, 2});
  if (!chosen)
    return;
  // An arrow the way the track will lead.
  const double heading = toRadians(at->heading);
  const Point along{std::cos(heading), std::sin(heading)};
  const auto spot = [&](double forward, double aside) {
    return Point{px.x + along.x * forward - along.y * aside,
                 px.y + along.y * forward + along.x * aside};
  };
  const std::array<Point, 3> head{spot(radius + 12, 0), spot(radius + 3, -5), spot(radius + 3, 5)};
  surface.polygon(head, site.theme().selected, Stroke{site.theme().paper, 1});
}

std::string lockedByTunnel() {
  return tr("Locked by its tunnel: \"Remove Tunnel\" leaves the track as it lies");
}

} // namespace

std::vector<Pick> SelectTool::picksAt(Point world) {
  return trassix::picksAt(site_.layout(), site_.planIndex(), world, site_.mm(1));
}

CornerEditor& SelectTool::corners() {
  corners_.edit(outlinedSelection(site_.layout()));
  return corners_;
}

bool SelectTool::anySelected(const std::vector<Pick>& picks) const {
  return std::ranges::any_of(picks,
                             [this](const Pick& pick) { return isSelected(site_.layout(), pick); });
}

void SelectTool::press(const PointerInput& input) {
  pressed_ = input;
}

void SelectTool::hover(const PointerInput& input) {
  if (corners().hover(input))
    site_.workspace.repaint();
  std::vector<Pick> picks = picksAt(input.world);
  const std::optional<TrackEnd> end =
      openEndNear(site_.layout(), site_.planIndex(), input.world, site_.mm(1));
  const bool same = picks == under_ && end == pointed_;
  under_ = std::move(picks);
  pointed_ = end;
  tellPointed();
  if (same)
    return;
  site_.workspace.repaint();
}

void SelectTool::drag(const PointerInput& input) {
  if (!gesture_)
    startGesture(pressed_);
  gesture_->drag(input);
}

void SelectTool::startGesture(const PointerInput& input) {
  gesture_ = corners().grab(input);
  if (gesture_)
    return;
  const std::vector<Pick> picks = picksAt(input.world);
  if (picks.empty() && !(input.alt && hasSelection(site_.layout()))) {
    gesture_ = std::make_unique<RubberBandGesture>(site_, input);
    return;
  }
  if (!picks.empty() && !anySelected(picks))
    select(picks.front());
  gesture_ = std::make_unique<MoveGesture>(site_, input, input.alt || input.shift);
}

void SelectTool::release(const PointerInput& input, bool dragged) {
  if (gesture_) {
    // Kept here while it works: it may put a question, during which other events arrive.
    const std::unique_ptr<Gesture> ending = std::move(gesture_);
    ending->drag(input);
    ending->drop();
  } else if (!dragged) {
    click(input);
  }
}

void SelectTool::select(const Pick& pick) {
  Layout& layout = site_.layout();
  layout.clearSelection();
  if (const std::int32_t helix = helixUnder(layout, pick); helix != -1)
    selectHelix(layout, helix);
  else
    setSelected(layout, pick, true);
  site_.workspace.selectionChanged();
}

void SelectTool::toggle(const Pick& pick) {
  Layout& layout = site_.layout();
  const bool selected = !isSelected(layout, pick);
  setSelected(layout, pick, selected);
  if (const std::int32_t helix = helixUnder(layout, pick); helix != -1)
    for (const std::int32_t piece : piecesOfHelix(layout, helix))
      layout.select(RecordKind::Piece, piece, selected);
}

void SelectTool::click(const PointerInput& input) {
  Layout& layout = site_.layout();
  if (corners().click(input))
    return;
  if (!input.ctrl)
    if (const auto end = openEndNear(layout, site_.planIndex(), input.world, site_.mm(1)))
      return chooseEnd(*end);
  const std::vector<Pick> picks = picksAt(input.world);
  if (input.ctrl) {
    if (picks.empty())
      return;
    toggle(picks.front());
    site_.workspace.selectionChanged();
    return;
  }
  if (picks.empty()) {
    if (!hasSelection(layout))
      return;
    layout.clearSelection();
    site_.workspace.selectionChanged();
    return;
  }
  // A further click on the same spot goes on to what lies below.
  const auto selected = std::find_if(
      picks.begin(), picks.end(), [&layout](const Pick& pick) { return isSelected(layout, pick); });
  // A helix has track above track, all of which is selected.
  const auto below = std::find_if(
      selected, picks.end(), [&layout](const Pick& pick) { return !isSelected(layout, pick); });
  if (selected == picks.end())
    select(picks.front());
  else
    select(below == picks.end() ? picks.front() : *below);
}

void SelectTool::chooseEnd(TrackEnd end) {
  site_.choice.pointAt(end);
  select({RecordKind::Piece, end.piece});
}

bool SelectTool::goToOpenEnd(int step) {
  Layout& layout = site_.layout();
  std::optional<TrackEnd> from = site_.choice.end(layout);
  if (const std::vector<std::int32_t> selected = selectedPieces(layout); !from && !selected.empty())
    from = TrackEnd{selected.back(), step > 0 ? -1 : kMostConnectors};
  const std::optional<TrackEnd> end = openEndAfter(layout, from, step);
  if (!end)
    return false;
  chooseEnd(*end);
  const WorldConnector at = *endAt(layout, *end);
  site_.view.reveal({at.x, at.y, at.x, at.y}, site_.size.width, site_.size.height);
  site_.workspace.repaint();
  return true;
}

bool SelectTool::flipSelected(int step) {
  Layout& layout = site_.layout();
  const std::vector<std::int32_t> selected = selectedPieces(layout);
  if (selected.size() != 1)
    return false;
  const bool again = flip_.piece == selected.front() && flippedTo_ == layout.revision();
  const std::optional<Flip> how = flipOf(layout, selected.front(), step, again ? flip_.to : -1);
  if (!how) {
    site_.workspace.setHint(tr("This piece lies the same way round by all its ends"));
    return true;
  }
  if (refuseLocked(site_, "flip"))
    return true;
  if (how->opens > 0 &&
      !site_.questions().confirm({tr("Flip"),
                                  trCount("This opens %1% joint that does not fit any more. Go on?",
                                          "This opens %1% joints that do not fit any more. Go on?",
                                          static_cast<std::uint64_t>(how->opens)),
                                  true}))
    return true;
  const ChangeResult flipped = flip(layout, *how);
  flip_ = *how;
  flippedTo_ = layout.revision();
  site_.report(flipped);
  return true;
}

void SelectTool::doubleClick(const PointerInput& input) {
  if (corners().doubleClick(input))
    return;
  Layout& layout = site_.layout();
  const std::vector<Pick> picks = picksAt(input.world);
  const auto first = [&picks](RecordKind kind) -> const Pick* {
    const auto found = std::find_if(picks.begin(), picks.end(),
                                    [kind](const Pick& pick) { return pick.kind == kind; });
    return found == picks.end() ? nullptr : &*found;
  };
  const Pick* piece = first(RecordKind::Piece);
  if (input.alt) {
    if (piece)
      selectChain(site_, piece->id);
    return;
  }
  if (const Pick* label = first(RecordKind::Label); label && !piece) {
    askLabelText(site_, label->id);
    return;
  }
  if (const Pick* shape = first(RecordKind::Shape)) {
    editShape(site_, shape->id);
    return;
  }
  if (!piece)
    return;
  if (const std::int32_t helix = helixUnder(layout, *piece); helix != -1)
    runEditHelix(site_, helix);
  else
    site_.reportExtension(cloneAndExtend(layout, piece->id));
}

bool SelectTool::mayLeave(Point step) {
  SelectionMove move(site_.layout(), {});
  move.update(step, false, site_.snapIndex());
  return mayLeaveGrades(site_, move, tr("Move"));
}

bool SelectTool::nudge(const KeyInput& input) {
  Point step;
  switch (input.key) {
  case Key::Left:
    step = {-1, 0};
    break;
  case Key::Right:
    step = {1, 0};
    break;
  case Key::Up:
    step = {0, -1};
    break;
  case Key::Down:
    step = {0, 1};
    break;
  default:
    return false;
  }
  Layout& layout = site_.layout();
  if (!hasSelection(layout))
    return false;
  if (refuseMoving(site_, "move"))
    return true;
  const bool continued = nudgedTo_ == layout.revision();
  const double length = input.shift ? kFineNudge : kNudge;
  if (!continued && !mayLeave({step.x * length, step.y * length}))
    return true;
  const ChangeResult nudged = nudgeSelection(layout, step.x * length, step.y * length, continued);
  if (nudged)
    nudgedTo_ = layout.revision();
  site_.report(nudged);
  return true;
}

bool SelectTool::key(const KeyInput& input) {
  if (input.key == Key::Escape) {
    site_.choice.forget();
    if (!hasSelection(site_.layout()))
      return false;
    site_.layout().clearSelection();
    site_.workspace.selectionChanged();
    return true;
  }
  switch (input.key) {
  case Key::Copy:
    return copySelection(site_);
  case Key::Cut:
    cutSelection(site_);
    return true;
  case Key::Paste:
    site_.carry(pastedBlock(site_));
    return true;
  case Key::Duplicate:
    duplicateSelection(site_);
    return true;
  case Key::Backspace:
    return corners().removeChosen();
  case Key::F:
    return flipSelected(input.shift ? -1 : 1);
  case Key::Tab:
    return goToOpenEnd(input.shift ? -1 : 1);
  default:
    return nudge(input);
  }
}

void SelectTool::tellPointed() {
  const Pick* pick = hovered();
  site_.workspace.point(pick && pick->kind == RecordKind::Piece ? pick->id : -1);
}

void SelectTool::cancel() {
  gesture_.reset();
  under_.clear();
  tellPointed();
  pointed_.reset();
  corners_.leave();
}

void SelectTool::leave() {
  if (under_.empty() && !pointed_)
    return;
  under_.clear();
  pointed_.reset();
  tellPointed();
  site_.workspace.repaint();
}

std::span<const std::int32_t> SelectTool::lifted() const {
  return gesture_ ? gesture_->lifted() : std::span<const std::int32_t>();
}

void SelectTool::contextMenu(const PointerInput& input) {
  const std::vector<Pick> picks = picksAt(input.world);
  if (!picks.empty() && !anySelected(picks))
    select(picks.front());
  std::vector<MenuRow> rows = corners().menu(input.world);
  if (!rows.empty())
    rows.push_back({});
  std::ranges::move(selectionMenu(site_, picks, input.world), std::back_inserter(rows));
  site_.questions().popupMenu(rows);
}

std::optional<CarriedBody> SelectTool::body() const {
  return gesture_ ? gesture_->body() : std::nullopt;
}

void SelectTool::paintBody(Surface& surface) const {
  if (gesture_)
    gesture_->paintBody(surface);
}

void SelectTool::paint(Surface& surface) const {
  if (gesture_)
    return gesture_->paint(surface);
  if (outlinedSelection(site_.layout()))
    corners_.paint(surface);
  if (const Pick* pick = hovered(); pick && !pointed_ && !isSelected(site_.layout(), *pick))
    paintHover(surface, site_, *pick);
  if (!hovered())
    paintPointed(surface, site_, site_.workspace.pointed());
  const std::optional<TrackEnd> chosen = site_.choice.end(site_.layout());
  if (chosen)
    paintEnd(surface, site_, *chosen, true);
  if (pointed_ && pointed_ != chosen)
    paintEnd(surface, site_, *pointed_, false);
}

std::string SelectTool::hint() const {
  if (gesture_)
    return gesture_->hint();
  const Layout& layout = site_.layout();
  if (std::string corner = corners_.hint(); !corner.empty() && outlinedSelection(layout))
    return corner;
  if (pointed_)
    return hintOf({tr("Open end"), tr("Click: track goes on from here"), tr("Drag: move"),
                   tr("Right-click: more")});
  const Pick* pick = hovered();
  const std::string name = pick ? nameOf(layout, *pick) : std::string();
  if (!name.empty()) {
    const auto below = [this] {
      return !anySelected(under_) ? tr("Click: select")
             : under_.size() > 1  ? tr("Click: what lies below")
                                  : std::string();
    };
    const auto doubleClick = [pick, &layout]() -> std::string {
      switch (pick->kind) {
      case RecordKind::Piece:
        return helixUnder(layout, *pick) != -1 ? tr("Double-click: edit the helix")
                                               : tr("Double-click: extend");
      case RecordKind::Label:
        return tr("Double-click: edit the text");
      case RecordKind::Shape:
        return tr("Double-click: edit");
      default:
        return {};
      }
    };
    const bool onTrack = pick->kind == RecordKind::Piece;
    const bool locked =
        onTrack ? layout.isCovered(pick->id)
                : pick->kind == RecordKind::Scenery && tunnelOfPortal(layout, pick->id) != nullptr;
    return hintOf({name, below(), locked ? lockedByTunnel() : tr("Drag: move"), doubleClick(),
                   tr("Right-click: more"),
                   onTrack ? tr("Alt+double-click or right-click: joined track") : std::string()});
  }
  if (!tunnelChoiceNow(layout).present.empty())
    return hintOf({lockedByTunnel(), tr("Esc: deselect")});
  if (hasSelection(layout))
    return hintOf({tr("Drag: move"), tr("Alt+drag or Shift+drag: turn"),
                   tr("Ctrl+wheel: turn 15\u00b0 (Shift: 5\u00b0)"),
                   tr("Arrows: nudge (Shift: finer)"), tr("Del: delete"), tr("Esc: deselect")});
  return hintOf({tr("Drag: select in a box"), tr("Wheel: zoom"), tr("Ctrl+drag or Space+drag: pan"),
                 tr("Right-click: menu")});
}

CursorShape SelectTool::cursor() const {
  return gesture_ ? gesture_->cursor() : CursorShape::Arrow;
}

} // namespace trassix
