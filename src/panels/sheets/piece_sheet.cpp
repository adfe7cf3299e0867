#include "document/plan_content.h"
#include "editing/elevation/grade_edits.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "editing/track/routes.h"
#include "editing/tunnels/tunnel_facts.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

#include <array>
#include <cmath>

namespace trassix {

namespace {

std::string kindName(PieceKind kind) {
  constexpr std::array kNames{trLater("Straight"),       trLater("Curve"),
                              trLater("Left turnout"),   trLater("Right turnout"),
                              trLater("Curved turnout"), trLater("Double slip"),
                              trLater("Track end"),      trLater("Uncoupler"),
                              trLater("Crossing"),       "",
                              trLater("Turntable"),      trLater("Curved turnout")};
  return tr(kNames.at(static_cast<std::size_t>(kind)));
}

/// The ends by number, or how many where that tells as much or a turntable has too many to list.
std::string openEndsText(const PlacedPiece& piece, const PieceDef& definition) {
  constexpr std::size_t kMostListed = 4;
  const std::size_t ends = definition.connectors.size();
  std::string numbers;
  std::size_t count = 0;
  for (std::size_t i = 0; i < ends; ++i) {
    if (!piece.joint(i).open())
      continue;
    ++count;
    if (!numbers.empty())
      numbers += ", ";
    numbers += std::to_string(i + 1);
  }
  if (count == 0)
    return tr("none");
  if (count == ends || ends > kMostListed)
    return tr("%1% of %2%", {count, ends});
  return tr("no. %1%", {numbers});
}

/// Gives one part of the piece's pose the value.
auto posing(const PlacedPiece& piece, double Pose::*part) {
  return [id = piece.id, part](Layout& layout, double value, const Confirm& confirm) {
    const PlacedPiece* present = layout.findPiece(id);
    if (present == nullptr)
      return ChangeResult(false);
    if (std::optional<Notice> refusal = lockGuard(layout, "move"))
      return ChangeResult(std::move(*refusal));
    const std::array<std::int32_t, 1> moved{id};
    if (detachmentOf(layout, moved).opensGradedJoints &&
        !confirm(
            {tr("Move"), tr("This takes the selection apart from graded track. Go on?"), true}))
      return ChangeResult(false);
    Pose pose = poseOf(*present);
    pose.*part = value;
    return ChangeResult(setPiecePose(layout, id, pose));
  };
}

auto lifting(const PlacedPiece& piece) {
  return [id = piece.id](Layout& layout, double z, const Confirm&) {
    std::optional<Notice> refusal = lockGuard(layout, std::array{id}, "lift");
    return refusal ? ChangeResult(std::move(*refusal)) : setTrackHeight(layout, id, z);
  };
}

constexpr std::size_t kMostEnds = 4; // that have their heights in the panel

/// Gives the end this height by tilting the piece about its other one.
auto tilting(TrackEnd end) {
  return [end](Layout& layout, double height, const Confirm&) {
    return applyHeights(layout, planEndHeight(layout, end, height, EndRule::TiltPiece));
  };
}

auto grading(const PlacedPiece& piece) {
  return [id = piece.id](Layout& layout, double slope, const Confirm&) {
    GradeTask task = gradeOfPiece(layout, id, 1);
    task.slope = slope;
    return applyHeights(layout, planGrade(layout, task));
  };
}

void describeHeights(SheetBuilder& build, const PlacedPiece& piece, const PieceDef& definition) {
  const std::size_t ends = definition.connectors.size();
  for (std::int32_t i = 1; ends <= kMostEnds && i < static_cast<std::int32_t>(ends); ++i) {
    if (oppositeEnd(definition, i) == -1)
      continue;
    const double height = endHeight(piece, definition, i);
    build.endHeight(i + 1, height, tilting({piece.id, i}));
  }
  if (oppositeEnd(definition, 0) == -1)
    return;
  const double slope = slopeOf(piece);
  build.grade(slope, grading(piece)).note =
      tr("From end 1 to end 2; what hangs on the piece goes along.");
  const double resistance = curveResistance(definition, routesOf(definition).front());
  if (slope != 0 && resistance > 0)
    build.fixed(tr("With its curve"), gradeText(std::abs(slope) + resistance));
}

} // namespace

void describe(SheetBuilder& build, const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  build.sheet.title = definition != nullptr ? definition->name : piece.cat;
  build.fixed(tr("Article"), piece.cat);
  if (definition != nullptr) {
    build.fixed(tr("System"), std::string(systemShortName(definition->system)));
    build.fixed(tr("Kind"), kindName(definition->kind));
    if (definition->kind != PieceKind::Curve && definition->length > 0)
      build.fixedLength(tr("Length"), definition->length);
    if (definition->radius > 0)
      build.fixedLength(tr("Radius"), definition->radius);
    if (definition->angle != 0)
      build.fixed(tr("Angle"), formatAngle(std::abs(definition->angle)) + "\u00b0");
  }
  build.position({piece.x, piece.y}, posing(piece, &Pose::x), posing(piece, &Pose::y));
  build.heading(piece.heading, posing(piece, &Pose::heading));
  Property& height = build.height(piece.z, lifting(piece));
  if (!std::ranges::all_of(piece.joints, &Joint::open))
    height.note = tr("All track joined to it goes along.");
  if (takesGrade(piece))
    describeHeights(build, piece, *definition);
  else
    build.fixed(tr("Grade"), isGraded(piece) ? gradeText(slopeOf(piece)) : tr("none"));
  build.level(piece.level);
  build.trackColor(piece.hasColor ? OwnColor(piece.color) : std::nullopt);
  if (definition != nullptr)
    build.fixed(tr("Open ends"), openEndsText(piece, *definition));
  if (const Tunnel* tunnel = tunnelOver(build.layout, piece.id))
    describeTunnel(build, *tunnel);
}

} // namespace trassix
