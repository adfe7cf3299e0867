// What pictures in dialogs and the help draw of plans and boards.
#pragma once

#include "editing/canvas/view_transform.h"
#include "panels/baseboard_shape.h"

#include <span>

class wxGraphicsContext;
class wxSize;

namespace trassix {

class Layout;
class Surface;

/// Shows these corners (mm) whole, in the middle of a picture of this size, with so many px around.
ViewTransform viewOfOutline(std::span<const Point> corners, const wxSize& size, double margin,
                            double mostZoom = ViewTransform::kMaxZoom);

/// Draws a measure beside the board's edge; its text stays inside a picture of this size.
void paintDimension(Surface& surface, const BoardDimension& dimension, const ViewTransform& view,
                    const wxSize& size);

/// All of a plan, without what only counts while one works on it.
void paintSmallPlan(wxGraphicsContext& context, const wxSize& size, const Layout& plan);

} // namespace trassix
