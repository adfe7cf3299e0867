#pragma once

#include "editing/canvas/layout_painter.h"
#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "output/page_set.h"

namespace trassix {

/// Pages are drawn in the pixels of a display, 96 to an inch, in fractions where these matter: so
/// lines and texts come out as they look in the window. The origin is the paper's corner.
inline constexpr double kPxPerMm = 96 / 25.4;

/// Draws a page of the set.
void paintPage(Surface& surface, const PageSet& set, std::size_t page);

/// How a plan is painted that goes on paper, but for its crossings.
PaintOptions paintOptionsOf(const PrintOptions& options);

/// The feet of the plan's supports, with their heights where there is room.
void paintSupports(Surface& surface, const PrintedPlan& plan, const ViewTransform& view);

/// Where the plan lies on a page, mm to px of the page.
ViewTransform viewOf(const PageSet& set, const Page& page);

/// What of the page shows the plan, px.
Box pictureOf(const PageSet& set, const Page& page);

/// "1:1", "1:12.5"
std::string scaleText(double millimetresPerMm);

} // namespace trassix
