// Texts and lines of measures, which have to be read on any ground.
#pragma once

#include "editing/canvas/surface.h"

namespace trassix {

/// The text, centred and turned as on the surface, with an edge in the colour
/// of the ground around its letters.
void paintTextWithHalo(Surface& surface, std::string_view text, Point centre, double degrees,
                       const TextStyle& style, Rgba ground = {255, 255, 255});

/// Separate lines with such an edge along them.
void paintLinesWithHalo(Surface& surface, std::span<const Point> ends, const Stroke& stroke,
                        Rgba ground = {255, 255, 255});

} // namespace trassix
