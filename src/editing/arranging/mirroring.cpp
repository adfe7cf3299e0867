#include "editing/arranging/mirroring.h"

#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/joining/joining.h"
#include "editing/selection/record_body.h"
#include "editing/selection/selection.h"
#include "editing/track/mirror_twin.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <unordered_map>

namespace trassix {

namespace {

/// Of points, and of bodies that are alike on both sides of their y axis, as scenery is.
struct Reflection {
  MirrorLine line;

  Point operator()(Point p) const {
    const double angle = toRadians(line.heading);
    const Point along{std::cos(angle), std::sin(angle)};
    const Point from{p.x - line.on.x, p.y - line.on.y};
    const double share = from.x * along.x + from.y * along.y;
    return {line.on.x + 2 * share * along.x - from.x, line.on.y + 2 * share * along.y - from.y};
  }
  Pose operator()(const Pose& pose) const {
    const Point at = (*this)(Point{pose.x, pose.y});
    return {at.x, at.y, normaliseHeading(2 * line.heading + 180 - pose.heading)};
  }
  /// Of a frame; its y runs to the left then.
  Pose frame(const Pose& pose) const {
    const Point at = (*this)(Point{pose.x, pose.y});
    return {at.x, at.y, normaliseHeading(2 * line.heading - pose.heading)};
  }
};

Pose within(const Pose& frame, const Pose& pose) {
  const Point at = toWorld(frame, {pose.x, pose.y});
  return {at.x, at.y, normaliseHeading(frame.heading + pose.heading)};
}

/// Gives the twin the heights that the ends of the piece had; false when it cannot have them.
bool keepHeights(PlacedPiece& twin, const PlacedPiece& before, const PieceDef& definition,
                 const MirrorTwin& how) {
  if (before.grade == 0)
    return true;
  const auto first = std::ranges::find(how.ends, 0) - how.ends.begin();
  twin.z = endHeight(before, definition, static_cast<std::int32_t>(first));
  // The ways through a twin may differ in length by what its ends lie beside their places.
  const double play = kSameHeight + kTwinPlay * std::abs(std::sin(toRadians(before.grade)));
  for (const bool rev : {before.rev, !before.rev}) {
    twin.rev = rev;
    bool kept = true;
    for (std::size_t i = 0; i < how.ends.size(); ++i)
      kept = kept && std::abs(endHeight(twin, *how.definition, how.ends[i]) -
                              endHeight(before, definition, static_cast<std::int32_t>(i))) <= play;
    if (kept)
      return true;
  }
  return false;
}

/// A selected piece as it is after mirroring, but for its joints.
struct Mirrored {
  PlacedPiece piece;
  std::vector<std::int32_t> ends; ///< for each end before the one after
};

class Mirror {
 public:
  /// Empty when the piece has no twin.
  std::optional<Mirrored> of(const PlacedPiece& piece, const Reflection& reflection) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr)
      return {};
    const auto [known, isNew] = twins_.try_emplace(definition);
    if (isNew)
      known->second = mirrorTwins(*definition);
    for (const MirrorTwin& twin : known->second) {
      Mirrored result{piece, twin.ends};
      Pose pose = within(reflection.frame(poseOf(piece)), twin.pose);
      if (isStill(poseOf(piece), pose))
        pose = poseOf(piece); // and not a rounding beside it
      result.piece.cat = twin.definition->article;
      result.piece.x = pose.x;
      result.piece.y = pose.y;
      result.piece.heading = pose.heading;
      if (keepHeights(result.piece, piece, *definition, twin))
        return result;
    }
    return {};
  }

 private:
  std::map<const PieceDef*, std::vector<MirrorTwin>> twins_;
};

using MirroredById = std::unordered_map<std::int32_t, Mirrored>;

/// The joint slots of a piece by the ends that it has now; what it is joined to turns over as well.
JointTable movedJoints(const PlacedPiece& before, const MirroredById& all) {
  const auto endNow = [&all](std::int32_t piece, std::int32_t end) {
    const auto found = all.find(piece);
    return found == all.end() || end < 0 ||
                   end >= static_cast<std::int32_t>(found->second.ends.size())
               ? end
               : found->second.ends[static_cast<std::size_t>(end)];
  };
  JointTable joints;
  joints.resize(all.at(before.id).ends.size());
  for (std::size_t i = 0; i < std::min(before.joints.size(), joints.size()); ++i)
    if (const Joint joint = before.joints[i]; !joint.open())
      joints[static_cast<std::size_t>(endNow(before.id, static_cast<std::int32_t>(i)))] = {
          joint.target, endNow(joint.target, joint.tconn)};
  return joints;
}

void moveGradeRuns(PlanContent& content, const MirroredById& all) {
  bool moved = false;
  for (GradeRun& run : content.gradeRuns) {
    const auto found = all.find(run.anchor);
    if (found == all.end() || run.conn < 0 ||
        run.conn >= static_cast<std::int32_t>(found->second.ends.size()))
      continue;
    run.conn = found->second.ends[static_cast<std::size_t>(run.conn)];
    moved = true;
  }
  if (moved)
    content.mirrorLastGradeRun();
}

Notice withoutTwin(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  std::set<std::string> names;
  for (const std::int32_t id : pieces) {
    const PlacedPiece& piece = *layout.findPiece(id);
    const PieceDef* definition = definitionOf(piece);
    names.insert(definition == nullptr ? piece.cat : definition->name);
  }
  std::string lines;
  for (const std::string& name : names)
    lines.append("\n").append(name);
  return {tr("Mirror"), tr("No piece of the system is the mirror image of:%1%", {lines})};
}

/// Ends of track where the selection hangs on the rest; all its open ends where it does not.
std::vector<WorldConnector> outerEnds(const Layout& layout, std::span<const std::int32_t> pieces) {
  std::vector<WorldConnector> joined;
  std::vector<WorldConnector> open;
  for (const std::int32_t id : pieces) {
    const PlacedPiece& piece = *layout.findPiece(id);
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr)
      continue;
    for (const WorldConnector& end : WorldConnectorsOf(piece, *definition)) {
      if (end.free)
        open.push_back(end);
      else if (!containsId(pieces, piece.joint(static_cast<std::size_t>(end.index)).target))
        joined.push_back(end);
    }
  }
  return joined.empty() ? open : joined;
}

/// The line along the end on which the most of the others lie.
std::optional<MirrorLine> lineAlongTrack(const Layout& layout) {
  const std::vector<WorldConnector> ends = outerEnds(layout, selectedPieces(layout));
  std::optional<MirrorLine> best;
  std::ptrdiff_t most = -1;
  for (const WorldConnector& end : ends) {
    const MirrorLine line{{end.x, end.y}, end.heading};
    const std::ptrdiff_t kept = std::ranges::count_if(ends, [&line](const WorldConnector& other) {
      const Point image = Reflection{line}(Point{other.x, other.y});
      const double turned = headingDifference(other.heading, line.heading);
      return std::hypot(image.x - other.x, image.y - other.y) <= kClosingDistance &&
             std::min(turned, 180 - turned) <= kClosingFacing / 2;
    });
    if (kept > most) {
      most = kept;
      best = line;
    }
  }
  return best;
}

/// The middle of the ends of track, outlines of bodies and places of notes: of points that a
/// mirror turns into each other, so that mirroring twice leaves all where it was.
std::optional<Point> middleOfSelection(const Layout& layout) {
  std::optional<Box> box;
  const auto add = [&box](Point p) {
    const Box old = box.value_or(Box{p.x, p.y, p.x, p.y});
    box = Box{std::min(old.minX, p.x), std::min(old.minY, p.y), std::max(old.maxX, p.x),
              std::max(old.maxY, p.y)};
  };
  forEachSelectable(layout.content(), [&](const auto& records) {
    for (const auto& record : records) {
      if (!record.sel)
        continue;
      if constexpr (std::remove_cvref_t<decltype(record)>::kKind == RecordKind::Piece) {
        if (const PieceDef* definition = definitionOf(record))
          for (const WorldConnector& end : WorldConnectorsOf(record, *definition))
            add({end.x, end.y});
        else
          add({record.x, record.y});
      } else {
        std::ranges::for_each(bodyOf(layout, record, 0).outline, add);
      }
    }
  });
  if (!box)
    return {};
  return Point{(box->minX + box->maxX) / 2, (box->minY + box->maxY) / 2};
}

} // namespace

std::optional<MirrorLine> mirrorLine(const Layout& layout, MirrorWay way) {
  if (way == MirrorWay::AcrossTrack)
    return lineAlongTrack(layout);
  const std::optional<Point> middle = middleOfSelection(layout);
  if (!middle)
    return {};
  return MirrorLine{*middle, way == MirrorWay::LeftToRight ? 90.0 : 0.0};
}

std::vector<std::int32_t> selectedWithoutTwin(const Layout& layout) {
  Mirror mirror;
  std::vector<std::int32_t> without;
  for (const std::int32_t id : selectedPieces(layout))
    if (!mirror.of(*layout.findPiece(id), {}))
      without.push_back(id);
  return without;
}

bool selectsMoreThan(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  return anySelectable(layout.content(), [&pieces](const auto& record) {
    constexpr bool kPiece = std::remove_cvref_t<decltype(record)>::kKind == RecordKind::Piece;
    return record.sel && !(kPiece && containsId(pieces, record.id));
  });
}

ChangeResult mirrorSelection(Layout& layout, const MirrorLine& line, bool leaveOut) {
  if (std::optional<Notice> locked = lockGuard(layout, "mirror"))
    return *locked;
  const std::vector<std::int32_t> without = selectedWithoutTwin(layout);
  if (!without.empty() && !leaveOut)
    return withoutTwin(layout, without);
  UndoScope step(layout);
  for (const std::int32_t id : without)
    layout.select(RecordKind::Piece, id, false);
  const std::vector<std::int32_t> pieces = selectedPieces(layout);
  detach(layout, pieces);
  const Reflection reflection{line};
  Mirror mirror;
  MirroredById mirrored;
  for (const std::int32_t id : pieces)
    mirrored.emplace(id, *mirror.of(*layout.findPiece(id), reflection));
  bool fits = true;
  forEachSelectable(layout.edit(), [&](auto& records) {
    for (auto& record : records) {
      if (!record.sel)
        continue;
      if constexpr (std::remove_cvref_t<decltype(record)>::kKind == RecordKind::Piece) {
        JointTable joints = movedJoints(record, mirrored);
        record = mirrored.at(record.id).piece;
        record.joints = std::move(joints);
      } else {
        moveRecord(record, reflection);
      }
      fits = fits && inLimits(record);
    }
  });
  if (!fits)
    return beyondPlan();
  moveGradeRuns(layout.edit(), mirrored);
  closeMeetingEnds(layout, pieces);
  return step.keep();
}

} // namespace trassix
