#include "editing/canvas/helix_painter.h"

#include "editing/canvas/halo.h"
#include "editing/canvas/plan_theme.h"
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

constexpr double kGapPx = 6;
constexpr double kArrowFrom = 35; ///< degrees from the lower ends, the way it climbs
constexpr double kArrowTo = 70;
constexpr double kHeadPx = 6;

class HelixTexts {
 public:
  HelixTexts(const PictureSite& site, const HelixRing& ring)
      : site_(site), plan_(ring.plan),
        centre_(site.view.toScreen({plan_.centre.x, plan_.centre.y})) {
    const double zoom = site.view.zoom();
    const PieceDef& curve = *plan_.kit->inner;
    inner_ = (curve.radius - trackGeometryOf(curve).halfWidth) * zoom;
  }

  std::vector<ArticlePlaces::Place> paint() {
    paintName();
    const double turned = plan_.kit->turns * 360;
    const bool sameSide = std::abs(std::remainder(turned, 360)) < 1;
    paintHeight(tr("top %1%", {heightText(plan_.height + plan_.climb())}), turned, 0);
    paintHeight(tr("bottom %1%", {heightText(plan_.height)}), 0, sameSide ? 1 : 0);
    paintArrow();
    return std::move(places_);
  }

 private:
  void paintName() {
    const std::string turns =
        plan_.kit->turns == 1 ? tr("1 turn") : tr("%1% turns", {formatAngle(plan_.kit->turns)});
    for (const std::string& text : {plan_.kit->name, turns}) {
      const SizePx size = site_.surface.textSize(text, name_);
      if (std::hypot(size.width, size.height) / 2 <= inner_ - 1 && put(text, centre_, size, name_))
        return;
    }
  }

  /// Along the inner edge of the track, with what it means.
  void paintArrow() {
    const SizePx size = site_.surface.textSize(tr("up"), up_);
    const double radius = inner_ - kGapPx - kHeadPx;
    if (radius < 3 * kHeadPx ||
        !put(tr("up"), at((kArrowFrom + kArrowTo) / 2, radius - kGapPx - size.width / 2), size,
             up_))
      return;
    std::array<Point, 13> arc;
    for (std::size_t i = 0; i < arc.size(); ++i)
      arc[i] = at(kArrowFrom + (kArrowTo - kArrowFrom) * static_cast<double>(i) /
                                   static_cast<double>(arc.size() - 1),
                  radius);
    site_.surface.polyline(arc, {up_.color, 2});
    const double along = toRadians(headingAt(kArrowTo));
    const Point way{std::cos(along), std::sin(along)};
    const Point tip = arc.back();
    const auto corner = [&](double ahead, double aside) {
      return Point{tip.x + way.x * ahead - way.y * aside, tip.y + way.y * ahead + way.x * aside};
    };
    const std::array<Point, 3> head{corner(kHeadPx * 1.5, 0), corner(0, kHeadPx * 0.8),
                                    corner(0, -kHeadPx * 0.8)};
    site_.surface.polygon(head, up_.color, {});
  }

  /// Beside an end, inside the ring, after so many others.
  void paintHeight(const std::string& text, double turned, int line) {
    const SizePx size = site_.surface.textSize(text, height_);
    const double angle = toRadians(headingAt(turned));
    const double c = std::abs(std::cos(angle)) / 2;
    const double s = std::abs(std::sin(angle)) / 2;
    const double along = c * size.width + s * size.height; // half of it, as the track runs
    const double across = s * size.width + c * size.height;
    const double reach = inner_ - kGapPx / 2;
    if (reach > along)
      put(text, at(turned, std::sqrt(reach * reach - along * along) - across * (1 + 2 * line)),
          size, height_);
  }

  /// False where another text stands.
  bool put(const std::string& text, Point where, SizePx size, const TextStyle& style) {
    const ArticlePlaces::Place place{where, 0, size};
    if (std::ranges::any_of(places_, [&](const auto& other) { return place.overlaps(other); }))
      return false;
    paintTextWithHalo(site_.surface, text, where, 0, style, site_.theme.paper);
    places_.push_back(place);
    return true;
  }

  std::string heightText(double mm) const {
    return formatBriefLength(mm, site_.layout.settings().units);
  }

  /// Of trains that go up, so many degrees from the lower ends.
  double headingAt(double turned) const {
    return plan_.centre.heading + (plan_.hand == HelixHand::Right ? turned : -turned);
  }

  /// There, so many px from the centre.
  Point at(double turned, double radius) const {
    const double out = toRadians(headingAt(turned) + (plan_.hand == HelixHand::Right ? -90 : 90));
    return {centre_.x + std::cos(out) * radius, centre_.y + std::sin(out) * radius};
  }

  const PictureSite& site_;
  const HelixPlan& plan_;
  const TextStyle name_{site_.theme.label, 12, true};
  const TextStyle height_{site_.theme.label, 11, true};
  const TextStyle up_{site_.theme.measure, 11, true};
  std::vector<ArticlePlaces::Place> places_;
  Point centre_;
  double inner_; ///< px, of the free space in the middle
};

} // namespace

std::vector<ArticlePlaces::Place> paintHelixTexts(const PictureSite& site, const HelixRing& ring) {
  return HelixTexts(site, ring).paint();
}

} // namespace trassix
