#include "editing/canvas/grade_painter.h"

#include "document/plan_content.h"
#include "editing/canvas/halo.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/record_pictures.h"
#include "editing/canvas/stamp_mixer.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/train_way.h"
#include "editing/helix/helix_rings.h"
#include "editing/selection/plan_index.h"
#include "editing/track/track_geometry.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace trassix {

namespace {

constexpr double kSameSlope = 1e-4;     ///< of neighbours, between which there is no knee
constexpr double kBeneathWidth = 0.55;  ///< of what lies beneath, to what lies on top
constexpr double kArrowPx = 5;          ///< half its length
constexpr double kArrowsApartPx = 44;   ///< at least
constexpr double kPercentApartPx = 150; ///< of the same text
constexpr double kPercentSize = 11;
/// Where a text is tried beside the track: side, and px farther out.
constexpr std::array<std::pair<double, double>, 6> kPlaces{
    {{1, 0}, {-1, 0}, {1, 5}, {-1, 5}, {1, 11}, {-1, 11}}};

double between(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

Point towards(Point from, double degrees, double px) {
  return {from.x + std::cos(toRadians(degrees)) * px, from.y + std::sin(toRadians(degrees)) * px};
}

} // namespace

std::string GradePainter::number(double mm) const {
  return formatAngle(std::round(mm / millimetresPer(layout_.settings().units) * 10) / 10);
}

namespace {

/// What lies higher comes later.
void keepGraded(std::vector<GradePainter::Track>& track) {
  std::erase_if(track, [](const auto& shown) { return !isGraded(*shown.piece); });
  std::ranges::stable_sort(track, {}, [](const auto& shown) { return shown.piece->z; });
}

} // namespace

void GradePainter::paintColors(std::vector<Track> track, const GradePlaces* places) {
  keepGraded(track);
  for (const Track& shown : track) {
    const auto [geometry, lines, details] = piecePainter_.shapeOf(*shown.definition);
    const double slope = slopeOf(*shown.piece);
    const Rgba color = theme_.gradeColor(slope);
    const double width = std::clamp(geometry.gauge * view_.zoom() * 0.55, 3.0, 10.0) *
                         (shown.beneath ? kBeneathWidth : 1);
    for (const auto& line : lines.centreLines) {
      const std::vector<Point>& px = piecePainter_.toScreen(line, poseOf(*shown.piece));
      if (shown.piece->sel)
        surface_.polyline(px, {theme_.selected, width + 5});
      surface_.polyline(px, {color, width});
      if (gradeBand(slope) == GradeBand::TooSteep)
        surface_.polyline(px, {theme_.paper, width * 0.5, Stroke::Style::Dashed});
    }
    if (places ? places->hasArrow(shown.piece->id) : takeArrow(shown))
      paintArrow(shown, color);
  }
}

bool GradePainter::takeArrow(const Track& track) {
  const TrackGeometry& geometry = trackGeometryOf(*track.definition);
  const Point at = view_.toScreen(toWorld(poseOf(*track.piece), geometry.labelSpot));
  if (geometry.mainLength * view_.zoom() < 2 * kArrowPx ||
      std::ranges::any_of(arrows_, [at](Point p) { return between(p, at) < kArrowsApartPx; }))
    return false;
  arrows_.push_back(at);
  return true;
}

void GradePainter::paintArrow(const Track& track, Rgba color) {
  const TrackGeometry& geometry = trackGeometryOf(*track.definition);
  const Pose pose = poseOf(*track.piece);
  const Point at = view_.toScreen(toWorld(pose, geometry.labelSpot));
  const double uphill =
      pose.heading + geometry.labelHeading + (slopeOf(*track.piece) < 0 ? 180 : 0);
  const Point tip = towards(at, uphill, kArrowPx + 2);
  const Point back = towards(at, uphill, -kArrowPx);
  const std::array<Point, 3> arrow{tip, towards(back, uphill + 90, kArrowPx),
                                   towards(back, uphill - 90, kArrowPx)};
  surface_.polygon(arrow, theme_.paper, Stroke{color, 1.5});
}

void GradePainter::paintTexts(std::span<const Track> track,
                              std::span<const TrackCrossing> crossings, ArticlePlaces& articles) {
  paintClearances(crossings);
  for (const Track& shown : track)
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(shown.definition->connectors.size());
         ++i)
      if (isKnee(shown, i))
        paintKnee(shown, i, articles);
  for (const Track& shown : track)
    if (isGraded(*shown.piece))
      paintPercent(shown, articles);
}

SizePx GradePainter::badgeSize(const std::string& text) {
  const SizePx words = surface_.textSize(text, heightText_);
  return {words.width + 10, words.height + 4};
}

/// Between the two tracks, as which its upper and lower edge stand.
void GradePainter::badge(const std::string& text, Point centre, bool tooLow) {
  const SizePx box = badgeSize(text);
  const double x = box.width / 2;
  const double y = box.height / 2;
  const std::array<Point, 4> outline{{{centre.x - x, centre.y - y},
                                      {centre.x + x, centre.y - y},
                                      {centre.x + x, centre.y + y},
                                      {centre.x - x, centre.y + y}}};
  const Rgba red = theme_.gradeColor(kSteepestSlope);
  const Rgba edge = tooLow ? red : theme_.label;
  surface_.polygon(outline, tooLow ? red : theme_.paper, Stroke{edge, 1});
  surface_.segments(outline, {edge, 2.5});
  surface_.text(text, centre, 0, {tooLow ? theme_.paper : theme_.label, 11, true});
}

void GradePainter::paintClearances(std::span<const TrackCrossing> crossings) {
  // They lie on the track, which their own map does not know; what is too low comes first.
  for (const bool tooLow : {true, false})
    for (const TrackCrossing& crossing : crossings) {
      const PlacedPiece* lower = layout_.findPiece(crossing.lower.piece);
      const PlacedPiece* upper = layout_.findPiece(crossing.upper.piece);
      if (crossing.tooLow() != tooLow || lower == nullptr || upper == nullptr ||
          !layout_.pieceVisible(*lower) || !layout_.pieceVisible(*upper))
        continue;
      const Point at = view_.toScreen(crossing.at);
      const std::string text = number(crossing.clearance);
      const SizePx box = badgeSize(text);
      if (!badges_.isFree(at, box, 0))
        continue;
      badges_.take(at, box, 0);
      taken_.take(at, box, 0);
      badge(text, at, tooLow);
    }
}

bool GradePainter::isKnee(const Track& track, std::int32_t connector) const {
  const double here = slopeOut(*track.piece, *track.definition, connector);
  const TrackEnd other = beyond(layout_, {track.piece->id, connector});
  if (other.piece == -1)
    return here != 0;
  if (other.piece < track.piece->id)
    return false; // the joint is the other piece's
  const PlacedPiece& next = *layout_.findPiece(other.piece);
  const double there = -slopeOut(next, *definitionOf(next), other.connector);
  return std::abs(here - there) > kSameSlope;
}

void GradePainter::paintKnee(const Track& track, std::int32_t connector, ArticlePlaces& articles) {
  const WorldConnector end = ConnectorToWorld(*track.piece, *track.definition, connector);
  const Point at = view_.toScreen({end.x, end.y});
  if (!badges_.isFree(at, {6, 6}, 0))
    return;
  const std::string text = number(endHeight(*track.piece, *track.definition, connector));
  const SizePx box = surface_.textSize(text, heightText_);
  const double away = trackGeometryOf(*track.definition).halfWidth * view_.zoom() + 2;
  for (const auto& [side, farther] : kPlaces) {
    const double across = end.heading + 90 * side;
    const double reach = away + farther + std::abs(std::cos(toRadians(across))) * box.width / 2 +
                         std::abs(std::sin(toRadians(across))) * box.height / 2;
    const Point place = towards(at, across, reach);
    const SizePx slim{box.width + 2, box.height - 2};
    if (!taken_.isFree(place, slim, 0) || !articles.isOffTrack(place, slim, 0))
      continue;
    taken_.take(place, {box.width + 4, box.height}, 0);
    surface_.circle(at, 3, theme_.paper, Stroke{theme_.label, 1.5});
    paintTextWithHalo(surface_, text, place, 0, heightText_, theme_.paper);
    return;
  }
}

void GradePainter::paintPercent(const Track& track, ArticlePlaces& articles) {
  const TrackGeometry& geometry = trackGeometryOf(*track.definition);
  const double slope = slopeOf(*track.piece);
  const std::string text = formatFixed(std::abs(percentOf(slope)), 1) + " %";
  const Pose pose = poseOf(*track.piece);
  const Point spot = view_.toScreen(toWorld(pose, geometry.labelSpot));
  if (std::ranges::any_of(told_, [&](const Told& told) {
        return told.text == text && between(told.at, spot) < kPercentApartPx;
      }))
    return;
  const TextStyle style{theme_.gradeColor(slope), kPercentSize, true};
  const SizePx box = surface_.textSize(text, style);
  const double heading = pose.heading + geometry.labelHeading;
  const double angle = uprightAngle(heading);
  const double away = geometry.halfWidth * view_.zoom() + box.height / 2 + 1;
  for (const auto& [side, farther] : kPlaces) {
    const Point place = towards(spot, heading + 90 * side, away + farther);
    const SizePx slim{box.width, box.height - 4};
    if (!taken_.isFree(place, slim, angle) || !articles.isOffTrack(place, slim, angle))
      continue;
    taken_.take(place, box, angle);
    told_.push_back({spot, text});
    paintTextWithHalo(surface_, text, place, angle, style, theme_.paper);
    return;
  }
}

void GradePlaces::follow(Surface& surface, const Plan& plan, double zoom, ArticlePlaces& articles) {
  const Layout& layout = plan.layout;
  StampMixer mixer(layout.documentStamp(), zoom);
  for (const std::int32_t id : plan.leftOut)
    mixer.add(static_cast<std::uint64_t>(id));
  mixer.add(std::uint64_t{reinterpret_cast<std::uintptr_t>(&plan.theme)});
  if (stamp_ == mixer.stamp())
    return;
  stamp_ = mixer.stamp();
  constexpr double kAll = 1e9; // mm
  std::vector<GradePainter::Track> track;
  for (const std::size_t position : plan.index.inBox({-kAll, -kAll, kAll, kAll}, false)) {
    const PlacedPiece& piece = layout.pieces()[position];
    if (const PieceDef* definition = plan.index.definition(position);
        definition != nullptr && !std::ranges::binary_search(plan.leftOut, piece.id) &&
        !plan.rings.hide(piece))
      track.push_back({&piece, definition});
  }
  const ViewTransform fromOrigin = ViewTransform::ofScale(zoom, {});
  texts_.clear();
  texts_.measureLike(surface);
  GradePainter painter(texts_, fromOrigin, layout, plan.theme);
  for (const ArticlePlaces::Place& other : plan.others)
    painter.taken_.take(other.at, other.size, other.angle);
  painter.paintTexts(track, plan.crossings, articles);
  taken_ = std::move(painter.taken_);
  keepGraded(track);
  arrows_.clear();
  for (const GradePainter::Track& graded : track)
    if (painter.takeArrow(graded))
      arrows_.push_back(graded.piece->id);
  std::ranges::sort(arrows_);
}

bool GradePlaces::hasArrow(std::int32_t piece) const {
  return std::ranges::binary_search(arrows_, piece);
}

void GradePainter::paintLegend(SizePx size) {
  constexpr double kRow = 17;
  constexpr double kSample = 34;
  constexpr double kEdge = 8;
  const char* unit = unitName(layout_.settings().units);
  const std::array<std::string, 6> texts{
      tr("up to %1% %%", {formatAngle(percentOf(kComfortableSlope))}),
      tr("up to %1% %%", {formatAngle(percentOf(kCautionSlope))}),
      tr("up to %1% %%", {formatAngle(percentOf(kSteepestSlope))}),
      tr("above %1% %%", {formatAngle(percentOf(kSteepestSlope))}),
      tr("height, %1%", {unit}),
      tr("clearance, %1%", {unit})};
  const TextStyle style{theme_.label, 11, false};
  double wide = 0;
  for (const std::string& text : texts)
    wide = std::max(wide, surface_.textSize(text, style).width);
  const double right = size.width - 12;
  const double bottom = size.height - 12;
  const double left = right - wide - kSample - 3 * kEdge;
  const double top = bottom - kRow * static_cast<double>(texts.size()) - kEdge;
  const std::array<Point, 4> ground{{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
  surface_.polygon(ground, theme_.plate, Stroke{theme_.gridCoarse, 1});
  const double middle = left + kEdge + kSample / 2;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const double y = top + kEdge / 2 + kRow * (static_cast<double>(i) + 0.5);
    const std::array<Point, 2> line{{{left + kEdge, y}, {left + kEdge + kSample, y}}};
    if (i < theme_.gradeBands.size())
      surface_.polyline(line, {theme_.gradeBands[i], 5});
    if (i + 1 == theme_.gradeBands.size())
      surface_.polyline(line, {theme_.paper, 2.5, Stroke::Style::Dashed});
    if (i == 4) {
      surface_.circle({middle - 10, y}, 3, theme_.paper, Stroke{theme_.label, 1.5});
      surface_.text("45", {middle + 5, y}, 0, heightText_);
    }
    if (i == 5)
      badge("60", {middle, y}, false);
    const double half = surface_.textSize(texts[i], style).width / 2;
    surface_.text(texts[i], {left + 2 * kEdge + kSample + half, y}, 0, style);
  }
}

} // namespace trassix
