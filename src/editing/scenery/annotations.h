// Labels, measurements and free shapes: edits of one record each, one undo step each.
#pragma once

#include "document/layout.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace trassix {

/// Whether there is nothing in a text to be seen.
bool isBlank(std::string_view text);

/// Returns the new record's id; the record becomes the only selection. -1 and nothing added for a
/// blank text, or beyond the limits of a plan.
std::int32_t addLabel(Layout& layout, Point at, std::string_view text);

/// Returns the new record's id; the record becomes the only selection. -1 and nothing added beyond
/// the limits of a plan.
std::int32_t addMeasurement(Layout& layout, Point from, Point to);

/// What a new shape looks like before anybody changes it; on the active level, without points.
Shape usualShape(const Layout& layout);

/// A polygon; -1 and nothing added for what is no outline, see `outlineProblem`. It gets a new id.
std::int32_t addShape(Layout& layout, Shape shape);
/// The same for a usual shape.
std::int32_t addShape(Layout& layout, const std::vector<Point>& points);

/// False when there is no such label or the text is the same. A blank text removes the label.
bool editLabelText(Layout& layout, std::int32_t label, std::string_view text);

} // namespace trassix
