#include "editing/selection/record_body.h"

#include "catalog/helix_kits.h"
#include "document/plan_content.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"

#include <algorithm>
#include <string_view>

namespace trassix {

namespace {

/// Of the label font, as shares of its size: mean advance, and half the height with the frame.
constexpr double kLabelAdvance = 0.62;
constexpr double kLabelHalfHeight = 0.85;

/// Of a text in UTF-8, whose letters may take several bytes.
double letterCount(std::string_view text) {
  return static_cast<double>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

Polygon boxAround(Point middle, double halfWidth, double halfHeight) {
  return {{middle.x - halfWidth, middle.y - halfHeight},
          {middle.x + halfWidth, middle.y - halfHeight},
          {middle.x + halfWidth, middle.y + halfHeight},
          {middle.x - halfWidth, middle.y + halfHeight}};
}

} // namespace

double labelTextSize(double mmPerPx) {
  constexpr double kFull = 13;
  constexpr double kFromAfar = 9;
  constexpr double kFullFromZoom = 0.2;
  return std::clamp(kFull / (mmPerPx * kFullFromZoom), kFromAfar, kFull);
}

RecordBody bodyOf(const Layout&, const Shape& shape, double) {
  return {shape.points, true, !shape.outline};
}

RecordBody bodyOf(const Layout&, const Helix& helix, double) {
  const double half = helixHalfSize(helix.variant);
  return {boxAround({helix.cx, helix.cy}, half, half)};
}

RecordBody bodyOf(const Layout&, const Tunnel&, double) {
  return {};
}

RecordBody bodyOf(const Layout& layout, const SceneryItem& item, double) {
  return {sceneryOutline(layout, item)};
}

RecordBody bodyOf(const Layout&, const Measurement& tape, double) {
  return {{tape.from, tape.to}, true, false};
}

RecordBody bodyOf(const Layout&, const Label& label, double mmPerPx) {
  const Point at{label.x, label.y};
  if (mmPerPx <= 0)
    return {{at}};
  const double size = labelTextSize(mmPerPx);
  return {boxAround(at, (letterCount(label.text) * size * kLabelAdvance / 2 + 5) * mmPerPx,
                    size * kLabelHalfHeight * mmPerPx)};
}

std::vector<Polygon> bedsOf(const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr)
    return {{{piece.x, piece.y}}};
  const PoseFrame frame(poseOf(piece));
  std::vector<Polygon> beds = trackGeometryOf(*definition).beds;
  for (Polygon& bed : beds)
    std::ranges::transform(bed, bed.begin(), frame);
  return beds;
}

} // namespace trassix
