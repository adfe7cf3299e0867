#pragma once

#include <wx/gdicmn.h>

class wxGraphicsContext;

namespace trassix {

/// A railcar on a double curve through hills, painted over the whole of `size` and cropped at the
/// sides where the shape differs. Vectors only, so it is crisp at any scale. By day under a light
/// desktop theme, by night under a dark one.
void paintRailwayScene(wxGraphicsContext& gc, const wxSize& size, bool night);

/// The same line as a plan on squared paper: the sober counterpart of the scene.
void paintPlanScene(wxGraphicsContext& gc, const wxSize& size, bool night);

} // namespace trassix
