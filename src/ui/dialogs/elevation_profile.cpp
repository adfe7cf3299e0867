#include "ui/dialogs/elevation_profile.h"

#include "editing/canvas/halo.h"
#include "measures/measure_format.h"
#include "ui/canvas/gc_surface.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

#include <algorithm>

namespace trassix {

namespace {

constexpr double kMargin = 14;    // px
constexpr double kHead = 26;      // px: room for the texts above
constexpr double kLeastSpan = 20; // mm that fill the picture at least
TextStyle textStyle() {
  return {systemTheme().ruler, 12, false};
}

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
  surface.polygon(sheet, systemTheme().board, std::nullopt);
  const TrainWay now = form_.wayNow();
  const TrainWay planned = form_.wayPlanned();
  const double length = now.length();
  if (length <= 0)
    return surface.text(toUtf8(_("No way between two ends")), {width / 2, height / 2}, 0,
                        textStyle());
  double low = now.stretches.front().from;
  double high = low;
  for (const TrainWay& way : {now, planned})
    for (const WayStretch& stretch : way.stretches) {
      low = std::min({low, stretch.from, stretch.to});
      high = std::max({high, stretch.from, stretch.to});
    }
  const double span = std::max(high - low, kLeastSpan);
  const double perMm = (height - kHead - kMargin) / span;
  const auto at = [&](double along, double z) {
    return Point{kMargin + along / length * (width - 2 * kMargin),
                 height - kMargin - (z - low) * perMm};
  };
  double along = 0;
  std::vector<Point> before{at(0, now.stretches.front().from)};
  for (const WayStretch& stretch : now.stretches)
    before.push_back(at(along += stretch.length, stretch.to));
  surface.polyline(before, {systemTheme().farArticle, 1.5, Stroke::Style::Dashed});
  along = 0;
  for (const WayStretch& stretch : planned.stretches) {
    const Point line[]{at(along, stretch.from), at(along + stretch.length, stretch.to)};
    along += stretch.length;
    surface.polyline(line, {systemTheme().gradeColor(stretch.slope()), 3});
  }
  const auto name = [&](double place, double z) {
    const std::string text = formatLength(z, units_);
    const double half = surface.textSize(text, textStyle()).width / 2 + 4;
    const Point end = at(place, z);
    paintTextWithHalo(surface, text, {std::clamp(end.x, half, width - half), end.y - 13}, 0,
                      textStyle(), systemTheme().paper);
  };
  name(0, planned.stretches.front().from);
  name(length, planned.stretches.back().to);
}

} // namespace trassix
