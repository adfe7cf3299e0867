#include "ui/dialogs/elevation_profile.h"

#include "editing/canvas/halo.h"
#include "editing/canvas/plan_colors.h"
#include "measures/measure_format.h"
#include "ui/canvas/gc_surface.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

#include <algorithm>

namespace trassix {

namespace {

namespace colors = plan_colors;

constexpr double kMargin = 14;    // px
constexpr double kHead = 26;      // px: room for the texts above
constexpr double kLeastSpan = 20; // mm that fill the picture at least
constexpr TextStyle kText{colors::kRuler, 12, false};

} // namespace

ElevationProfile::ElevationProfile(wxWindow* parent, const wxSize& size, const ElevationForm& form,
                                   std::int32_t units)
    : PicturePanel(parent, size,
                   [this](wxGraphicsContext& context, const wxSize& painted, bool) {
                     paint(context, painted);
                   }),
      form_(form), units_(units) {
  SetName("elevationProfile");
}

void ElevationProfile::paint(wxGraphicsContext& context, const wxSize& size) const {
  GcSurface surface(context);
  const auto width = static_cast<double>(size.x);
  const auto height = static_cast<double>(size.y);
  const Point sheet[]{{0, 0}, {width, 0}, {width, height}, {0, height}};
  surface.polygon(sheet, colors::kBoard, std::nullopt);
  const std::vector<ElevationForm::ProfilePoint> points = form_.profile();
  if (points.empty() || points.back().along <= 0)
    return surface.text(toUtf8(_("No way between two ends")), {width / 2, height / 2}, 0, kText);
  double low = points.front().before;
  double high = low;
  for (const auto& point : points) {
    low = std::min({low, point.before, point.after});
    high = std::max({high, point.before, point.after});
  }
  const double span = std::max(high - low, kLeastSpan);
  const double perMm = (height - kHead - kMargin) / span;
  const auto at = [&](double along, double z) {
    return Point{kMargin + along / points.back().along * (width - 2 * kMargin),
                 height - kMargin - (z - low) * perMm};
  };
  std::vector<Point> before;
  for (const auto& point : points)
    before.push_back(at(point.along, point.before));
  surface.polyline(before, {colors::kFarArticle, 1.5, Stroke::Style::Dashed});
  for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
    const auto& from = points[i];
    const auto& to = points[i + 1];
    const double run = to.along - from.along;
    const double slope = run > 0 ? (to.after - from.after) / run : 0;
    const Point line[]{at(from.along, from.after), at(to.along, to.after)};
    surface.polyline(line, {colors::gradeColor(slope), 3});
  }
  const auto name = [&](const ElevationForm::ProfilePoint& point) {
    const std::string text = formatLength(point.after, units_);
    const double half = surface.textSize(text, kText).width / 2 + 4;
    const Point end = at(point.along, point.after);
    paintTextWithHalo(surface, text, {std::clamp(end.x, half, width - half), end.y - 13}, 0, kText);
  };
  name(points.front());
  name(points.back());
}

} // namespace trassix
