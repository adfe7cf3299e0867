// A damaged plan that is loaded, made sound and edited stays sound: nothing crashes, every step can
// be undone exactly, one-sided joints are left alone, and what is saved can be loaded.
#include "catalog/track_catalog.h"
#include "damaged_plan.h"
#include "document/block.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/repairs.h"
#include "editing/autofill/autofill.h"
#include "editing/canvas/layout_painter.h"
#include "editing/elevation/grade_edits.h"
#include "editing/elevation/grade_runs.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/inserting.h"
#include "editing/placing/placing.h"
#include "editing/placing/swapping.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/content_box.h"
#include "editing/selection/moving.h"
#include "editing/selection/picking.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "panels/level_list.h"
#include "panels/property_sheet.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <unordered_set>

namespace trassix::fuzz {

namespace {

constexpr int kEdits = 25;

void require(bool condition, const char* rule) {
  if (condition)
    return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

template <class Records>
bool uniqueIds(const Records& records) {
  std::unordered_set<std::int32_t> met{-1};
  return std::ranges::all_of(records,
                             [&met](const auto& record) { return met.insert(record.id).second; });
}

template <class Records>
bool allInLimits(const Records& records) {
  return std::ranges::all_of(records, [](const auto& record) { return inLimits(record); });
}

void requireSound(const Layout& layout) {
  const PlanContent& content = layout.content();
  require(uniqueIds(content.pieces) && uniqueIds(content.scenery) && uniqueIds(content.labels) &&
              uniqueIds(content.shapes) && uniqueIds(content.tunnels) &&
              uniqueIds(content.helices) && uniqueIds(layout.settings().levels),
          "ids are unique");
  require(allInLimits(content.pieces) && allInLimits(content.scenery) &&
              allInLimits(content.labels) && allInLimits(content.shapes) &&
              allInLimits(layout.settings().levels) && inLimits(layout.settings().baseboard),
          "everything is within the limits");
  for (const PlacedPiece& piece : content.pieces)
    if (const PieceDef* definition = definitionOf(piece))
      require(piece.joints.size() <= definition->connectors.size(), "joints are at ends");
}

/// Piece, connector and what it says is joined there.
using OneSided = std::set<std::array<std::int32_t, 4>>;

OneSided oneSidedJoints(const Layout& layout) {
  OneSided found;
  for (const PlacedPiece& piece : layout.pieces())
    for (std::size_t i = 0; i < piece.joints.size(); ++i)
      if (const Joint joint = piece.joints[i];
          !joint.open() && joinedPiece(layout, piece, i) == nullptr)
        found.insert({piece.id, static_cast<std::int32_t>(i), joint.target, joint.tconn});
  return found;
}

/// Takes the picture and forgets it.
class Nowhere : public Surface {
 public:
  void polyline(std::span<const Point>, const Stroke&) override {}
  void polygon(std::span<const Point>, std::optional<Rgba>, std::optional<Stroke>) override {}
  void segments(std::span<const Point>, const Stroke&) override {}
  void circle(Point, double, std::optional<Rgba>, std::optional<Stroke>) override {}
  void text(std::string_view, Point, double, const TextStyle&) override {}
  SizePx textSize(std::string_view text, const TextStyle& style) override {
    return {static_cast<double>(text.size()) * style.size, style.size};
  }
};

class Session {
 public:
  Session(Layout& layout, Dice& dice) : layout_(layout), dice_(dice) {}

  void edit() {
    if (dice_.oneIn(10))
      return stepBack();
    select();
    const PlanContent before = layout_.content();
    const PlanSettings settings = layout_.settings();
    const OneSided oneSided = oneSidedJoints(layout_);
    swapped_ = -1;
    const bool changed = (this->*dice_.of(kKinds))();
    if (!changed)
      return require(layout_.content() == before && layout_.settings() == settings,
                     "an edit that does nothing changes nothing");
    for (const auto& joint : oneSidedJoints(layout_))
      require(oneSided.contains(joint) || joint[0] == swapped_, "no joint becomes one-sided");
    requireSound(layout_);
    const PlanContent after = layout_.content();
    require(layout_.undo() && layout_.content() == before && layout_.redo() &&
                layout_.content() == after,
            "undo and redo are exact");
  }

  /// What is drawn and found with the mouse and shown in the panels.
  void look() {
    constexpr double kZooms[] = {0.05, 0.4, 1.5, 20};
    const double zoom = dice_.of(kZooms);
    const Point at = place();
    const SizePx size{800, 600};
    const auto view =
        ViewTransform::ofScale(zoom, {size.width / 2 - at.x * zoom, size.height / 2 - at.y * zoom});
    const PlanIndex index(layout_);
    Nowhere surface;
    LayoutPainter(surface, size, view, {}).paint(layout_, index);
    picksAt(layout_, index, at, 1 / zoom);
    contentBox(layout_);
    propertySheetOf(layout_);
  }

 private:
  using Kind = bool (Session::*)();

  void stepBack() {
    for (std::size_t left = 1 + dice_.below(3); left > 0; --left)
      layout_.undo();
    if (dice_.oneIn(2))
      layout_.redo();
    requireSound(layout_);
  }

  /// Some records of all kinds, or one of one kind.
  void select() {
    layout_.clearSelection();
    PlanContent& content = layout_.edit();
    const std::size_t kind = dice_.below(10);
    const auto choose = [&](auto& records, std::size_t own) {
      if (kind == own && !records.empty())
        dice_.of(records).sel = true;
      for (auto& record : records)
        record.sel = record.sel || (kind >= 4 && dice_.oneIn(4));
    };
    choose(content.pieces, 0);
    choose(content.scenery, 1);
    choose(content.labels, 2);
    choose(content.shapes, 3);
  }

  std::int32_t piece() { return layout_.pieces().empty() ? 1 : dice_.of(layout_.pieces()).id; }
  std::string_view article() {
    constexpr std::string_view kArticles[] = {"24188", "24130", "24611", "24330", "24630",
                                              "74618", "74861", "2221",  "24922", "24071"};
    return dice_.of(kArticles);
  }
  double offset() { return static_cast<double>(dice_.below(61)) - 30; }
  /// Mostly near a piece, at times at the edge of what there can be.
  Point place() {
    constexpr double kEdges[] = {1e6, -1e6, 999'990, 1e9, 0};
    if (dice_.oneIn(8) || layout_.pieces().empty())
      return {dice_.of(kEdges), dice_.of(kEdges)};
    const PlacedPiece& near = dice_.of(layout_.pieces());
    const std::vector<WorldConnector> ends = definitionOf(near) == nullptr
                                                 ? std::vector<WorldConnector>{}
                                                 : WorldConnectorsOf(near, *definitionOf(near));
    if (ends.empty())
      return {near.x, near.y};
    const WorldConnector& end = dice_.of(ends);
    return {end.x + offset(), end.y + offset()};
  }
  Pose pose() {
    const Point at = place();
    return {at.x, at.y, static_cast<double>(dice_.below(24)) * 15};
  }

  bool move() {
    const PlacedPiece* from = layout_.findPiece(piece());
    const SnapIndex index(layout_);
    SelectionMove moving(layout_, from == nullptr ? Point{} : Point{from->x, from->y});
    if (dice_.oneIn(3))
      moving.turn(place(), offset());
    else
      moving.update(place(), !dice_.oneIn(4), index);
    return moving.commit(layout_).changed;
  }
  bool turn() { return rotateSelection(layout_, offset()).changed; }
  bool nudge() { return nudgeSelection(layout_, offset(), offset() * 1e5, false).changed; }
  bool clone() { return cloneAndExtend(layout_, piece()).changed(); }
  bool extend() { return extendSelected(layout_, article()).changed(); }
  bool drop() {
    const PieceDef& carried = *TrackCatalog::instance().find(article());
    const SnapIndex index(layout_);
    const Pose at = pose();
    if (const auto spot = findInsertSpot(layout_, index, carried, at))
      return insertPiece(layout_, carried.article, *spot).changed();
    return dropPiece(layout_, carried.article, at, index.findSnap(carried, at), dice_.oneIn(2))
        .changed();
  }
  bool scenery() {
    return dropScenery(layout_, dice_.oneIn(2) ? "74861" : "72886", pose()).changed();
  }
  bool swap() {
    if (dice_.oneIn(2)) // it tries the whole catalogue, at the cost of all other edits together
      return false;
    const std::int32_t id = piece();
    const std::vector<SwapFit> fits = swapFits(layout_, id);
    if (fits.empty())
      return false;
    swapped_ = id;
    return swapPiece(layout_, id, dice_.of(fits)).changed;
  }
  bool fill() {
    const auto found = solveAutofill(layout_, piece(), piece());
    return found && found->success() &&
           placeFill(layout_, *found->gap, dice_.of(found->candidates)).changed();
  }
  bool erase() { return dice_.oneIn(4) && deleteSelection(layout_); }
  bool duplicate() {
    Block block = blockFromSelection(layout_);
    centreBlock(block);
    return placeBlock(layout_, block, pose()).changed();
  }
  bool paste() {
    Block block;
    readBlock(damagedBlock(dice_), block);
    centreBlock(block);
    return placeBlock(layout_, block, pose()).changed();
  }
  bool levels() {
    LevelList list(layout_);
    constexpr const char* kHeights[] = {"0", "-80", "120", "10000", "1e9", "x"};
    const std::size_t at = dice_.below(list.size());
    if (dice_.oneIn(3))
      list.add();
    else if (dice_.oneIn(3))
      list.remove(at, dice_.oneIn(2) ? std::nullopt : std::optional((at + 1) % list.size()));
    list.enterHeight(dice_.below(list.size()), dice_.of(kHeights));
    list.setVisible(dice_.below(list.size()), !dice_.oneIn(3));
    return list.apply(layout_).changed;
  }
  bool property() {
    constexpr const char* kValues[] = {"0", "22.5", "1000000", "-1000000", "1e9", "600", "0.5", ""};
    const PropertySheet sheet = propertySheetOf(layout_);
    const Property& row = dice_.of(sheet.rows);
    const bool typed = row.editor == PropertyEditor::Text;
    if (!typed && row.editor != PropertyEditor::Choice)
      return false;
    const PropertyValue value =
        typed ? PropertyValue(std::string(dice_.of(kValues))) : PropertyValue(dice_.below(3));
    return row.edit(layout_, value, [](const Question&) { return true; }).changed;
  }
  TrackEnd end() { return {piece(), static_cast<std::int32_t>(dice_.below(4))}; }
  bool heights() {
    constexpr double kSlopes[] = {0, 0.02, -0.05, 0.9};
    const LoopRule rule = dice_.oneIn(2) ? LoopRule::Spread : LoopRule::Refuse;
    const TrainWay way = wayThrough(layout_, piece());
    GradeTask grade = gradeOfPiece(layout_, piece(), static_cast<std::int32_t>(dice_.below(3)));
    grade.slope = dice_.of(kSlopes);
    grade.open = dice_.oneIn(2);
    grade.loops = rule;
    grade.limit = 1;
    TargetTask target{way, offset()};
    target.limit = 1;
    target.loops = rule;
    switch (dice_.below(6)) {
    case 0:
      return applyHeights(layout_, planGrade(layout_, grade)).changed;
    case 1:
      return applyHeights(layout_, planTarget(layout_, target).heights).changed;
    case 2:
      return applyHeights(layout_, planEase(layout_, way, rule)).changed;
    case 3:
      return applyHeights(layout_, planRaise(layout_, piece(), offset() * 1e4)).changed;
    case 4:
      return endGradeHere(layout_, piece());
    default:
      return applyHeights(layout_,
                          planEndHeight(layout_, end(), offset(), EndRule::TiltPiece, rule))
          .changed;
    }
  }
  bool notes() {
    const Point at = place();
    return (dice_.oneIn(2) ? addLabel(layout_, at, "note")
                           : addMeasurement(layout_, at, place())) != -1;
  }
  static constexpr Kind kKinds[] = {&Session::move,    &Session::turn,      &Session::nudge,
                                    &Session::clone,   &Session::extend,    &Session::drop,
                                    &Session::drop,    &Session::swap,      &Session::fill,
                                    &Session::erase,   &Session::scenery,   &Session::paste,
                                    &Session::levels,  &Session::duplicate, &Session::notes,
                                    &Session::heights, &Session::property,  &Session::property};

  Layout& layout_;
  Dice& dice_;
  std::int32_t swapped_ = -1;
};

void run(Dice& dice) {
  Layout layout;
  std::string name;
  readLayout(damagedPlan(dice), layout, name); // of a refused one there is what was read
  makeSound(layout);
  requireSound(layout);
  Session session(layout, dice);
  for (int left = kEdits; left > 0; --left) {
    session.edit();
    if (left == kEdits / 2)
      session.look();
  }
  std::string saved;
  require(writeLayout(layout, name, saved).empty(), "what is there can be saved");
  Layout loaded;
  require(readLayout(saved, loaded, name).empty(), "what was saved can be loaded");
  require(loaded.pieces().size() == layout.pieces().size(), "all of it is there");
  require(!makeSound(loaded).any(), "nothing of it is damaged");
}

} // namespace

} // namespace trassix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  trassix::fuzz::Dice dice({data, size});
  trassix::fuzz::run(dice);
  return 0;
}
