// Points, boxes and areas of the plan, in mm.
#pragma once

#include "geometry/box.h"

#include <string_view>
#include <vector>

namespace trassix {

/// Corners of a closed area; the last one is joined to the first.
using Polygon = std::vector<Point>;

/// In mm2, positive for corners that turn from +x towards +y.
double signedArea(const Polygon& polygon);

bool inside(const Polygon& polygon, Point at);
Point nearestOnEdge(Point at, Point a, Point b);
double distanceToEdge(Point at, Point a, Point b);

/// True for a point at most `tolerance` away from an edge of the area.
bool nearOutline(const Polygon& polygon, Point at, double tolerance);

/// True when the area and the box share a point.
bool touches(const Polygon& polygon, const Box& box);
bool liesIn(const Polygon& polygon, const Box& box);

/// Of the box around it; the origin for no corners.
Point topLeft(const Polygon& polygon);

/// Left to right, where it lies.
Polygon turnedOver(Polygon polygon);
/// By a quarter, with the top left corner of its box staying.
Polygon turnedRight(Polygon polygon);

/// Why these corners are no outline of an area, in one sentence; empty when they are. An outline
/// has three corners within the limits of a plan and neither crosses nor touches itself.
std::string outlineProblem(const Polygon& corners);

/// True when a line along these points crosses or touches itself or turns right back; its end may
/// lie on its beginning.
bool crossesItself(const std::vector<Point>& line);

} // namespace trassix
