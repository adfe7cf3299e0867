#include "ui/widgets/railway_scene.h"

#include <wx/graphics.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace trassix {

namespace {

// The scene is thought out in a frame of this size; y grows downwards, the horizon is at kHorizon.
constexpr double kWidth = 640.0;
constexpr double kHeight = 320.0;
constexpr double kHorizon = 168.0;

struct Palette {
  wxColour skyTop, skyLow, sun, farHill, nearHill, meadowFar, meadowNear, ballast, sleeper, rail,
      treeFar, treeNear, body, bodyShade, glass, roof;
};

const Palette& paletteFor(bool night) {
  static const Palette day{{96, 165, 214},  {253, 232, 200}, {255, 246, 214}, {150, 181, 190},
                           {112, 158, 128}, {147, 186, 104}, {96, 150, 74},   {168, 158, 146},
                           {104, 78, 60},   {92, 96, 104},   {66, 118, 92},   {44, 98, 66},
                           {200, 44, 40},   {150, 28, 30},   {214, 236, 246}, {92, 92, 98}};
  static const Palette dusk{{14, 20, 44},  {72, 70, 110},   {236, 236, 220}, {44, 54, 84},
                            {32, 50, 62},  {34, 60, 56},    {20, 44, 40},    {74, 72, 78},
                            {48, 40, 38},  {150, 156, 170}, {24, 46, 48},    {14, 34, 34},
                            {150, 36, 38}, {104, 24, 30},   {255, 226, 150}, {48, 48, 56}};
  return night ? dusk : day;
}

using Polygon = std::vector<wxPoint2DDouble>;

void fill(wxGraphicsContext& gc, const wxColour& colour, const Polygon& outline) {
  wxGraphicsPath path = gc.CreatePath();
  path.MoveToPoint(outline.front());
  for (const wxPoint2DDouble& point : outline) {
    path.AddLineToPoint(point);
  }
  path.CloseSubpath();
  gc.SetPen(*wxTRANSPARENT_PEN);
  gc.SetBrush(colour);
  gc.FillPath(path);
}

constexpr double kFocal = 330.0;

/// The ground as the onlooker sees it: distance ahead and offset to the right in metres, height
/// above the ground upwards.
wxPoint2DDouble project(double offset, double ahead, double height = 0.0) {
  constexpr double kEye = 7.0;
  return {kWidth / 2 + kFocal * offset / ahead, kHorizon + kFocal * (kEye - height) / ahead};
}

/// Centre line of the track by distance ahead, swinging to the right and back to the left.
struct Line {
  double offset;
  double slope; ///< change of offset with each metre ahead
};

Line lineAt(double ahead) {
  constexpr double kSwing = 21.0;
  constexpr double kPeriod = 30.0;
  const double phase = (ahead - 16.0) / kPeriod;
  return {-10.0 + kSwing * std::sin(phase), kSwing / kPeriod * std::cos(phase)};
}

/// A point beside the line: `side` metres square to it.
wxPoint2DDouble beside(double ahead, double side, double height = 0.0) {
  const Line line = lineAt(ahead);
  const double length = std::hypot(1.0, line.slope);
  return project(line.offset + side / length, ahead - side * line.slope / length, height);
}

/// Strip along the line between two sides.
Polygon strip(double fromSide, double toSide, double from, double to) {
  Polygon left;
  Polygon right;
  for (double ahead = from; ahead <= to; ahead *= 1.02) {
    left.push_back(beside(ahead, fromSide));
    right.push_back(beside(ahead, toSide));
  }
  left.insert(left.end(), right.rbegin(), right.rend());
  return left;
}

constexpr double kNearest = 12.0;
constexpr double kFarthest = 130.0;
constexpr double kSecondTrack = 4.6;

void paintTrack(wxGraphicsContext& gc, const Palette& colours, double centre) {
  constexpr double kHalfGauge = 0.75;
  fill(gc, colours.ballast, strip(centre - 1.9, centre + 1.9, kNearest, kFarthest));
  for (double ahead = kFarthest; ahead > kNearest; ahead -= 0.7) {
    fill(gc, colours.sleeper,
         {beside(ahead, centre - 1.35), beside(ahead, centre + 1.35),
          beside(ahead + 0.3, centre + 1.35), beside(ahead + 0.3, centre - 1.35)});
  }
  for (const double rail : {centre - kHalfGauge, centre + kHalfGauge}) {
    fill(gc, colours.rail, strip(rail - 0.08, rail + 0.08, kNearest, kFarthest));
  }
}

/// Upright wall along the line.
Polygon wall(double side, double from, double to, double foot, double top) {
  Polygon outline;
  constexpr int kSteps = 12;
  for (int i = 0; i <= kSteps; ++i) {
    outline.push_back(beside(from + (to - from) * i / kSteps, side, foot));
  }
  for (int i = kSteps; i >= 0; --i) {
    outline.push_back(beside(from + (to - from) * i / kSteps, side, top));
  }
  return outline;
}

/// Upright pane square to the line.
Polygon pane(double ahead, double fromSide, double toSide, double foot, double top) {
  return {beside(ahead, fromSide, foot), beside(ahead, toSide, foot), beside(ahead, toSide, top),
          beside(ahead, fromSide, top)};
}

/// A railcar that comes towards the onlooker, who sees its roof, its front and its right flank.
void paintRailcar(wxGraphicsContext& gc, const Palette& colours, double front, double rear) {
  constexpr double kSide = 1.45;
  constexpr double kFloor = 0.5;
  constexpr double kTop = 3.7;
  Polygon roof = wall(-kSide, front, rear, kTop, kTop + 0.25);
  const Polygon edge = wall(kSide, front, rear, kTop, kTop);
  std::copy(edge.begin(), edge.begin() + static_cast<std::ptrdiff_t>(edge.size() / 2),
            roof.begin());
  fill(gc, colours.roof, roof);
  fill(gc, colours.bodyShade, wall(kSide, front, rear, kFloor, kTop));
  constexpr int kWindows = 7;
  const double pitch = (rear - front) / kWindows;
  for (int i = 0; i < kWindows; ++i) {
    const double from = front + pitch * (i + 0.18);
    fill(gc, colours.glass, wall(kSide, from, from + pitch * 0.64, 2.05, 3.1));
  }
  fill(gc, colours.body, pane(front, -kSide, kSide, kFloor, kTop));
  fill(gc, colours.roof, pane(front, -kSide, kSide, kFloor - 0.2, kFloor + 0.25));
  fill(gc, colours.glass, pane(front, -1.2, -0.08, 2.05, 3.3));
  fill(gc, colours.glass, pane(front, 0.08, 1.2, 2.05, 3.3));
  gc.SetBrush(wxColour(255, 244, 196));
  for (const double lamp : {-1.0, 1.0}) {
    const wxPoint2DDouble centre = beside(front, lamp, 1.3);
    const double radius = 0.2 * kFocal / front;
    gc.DrawEllipse(centre.m_x - radius, centre.m_y - radius, 2 * radius, 2 * radius);
  }
}

void paintTree(wxGraphicsContext& gc, const wxColour& colour, double offset, double ahead,
               double height) {
  const double half = height * 0.24;
  for (int layer = 0; layer < 3; ++layer) {
    const double foot = height * (0.10 + 0.24 * layer);
    const double width = half * (1.0 - 0.24 * layer);
    fill(gc, colour,
         {project(offset - width, ahead, foot), project(offset + width, ahead, foot),
          project(offset, ahead, foot + height * 0.42)});
  }
}

void paintHills(wxGraphicsContext& gc, const wxColour& colour, double base, double rise,
                double period, double shift) {
  Polygon outline{{0.0, kHeight}};
  for (double x = 0.0; x <= kWidth; x += 8.0) {
    const double y = base - rise * (0.62 + 0.30 * std::sin(x / period + shift) +
                                    0.16 * std::sin(x / period * 2.3 + 2.0 * shift));
    outline.emplace_back(x, y);
  }
  outline.emplace_back(kWidth, kHeight);
  fill(gc, colour, outline);
}

void paintSky(wxGraphicsContext& gc, const Palette& colours, bool night) {
  gc.SetPen(*wxTRANSPARENT_PEN);
  gc.SetBrush(gc.CreateLinearGradientBrush(0, 0, 0, kHorizon, colours.skyTop, colours.skyLow));
  gc.DrawRectangle(0, 0, kWidth, kHeight);
  if (night) {
    gc.SetBrush(wxColour(255, 255, 255, 150));
    for (int star = 0; star < 60; ++star) {
      // Any spread without a visible pattern will do, as long as it is the same in every repaint.
      const double x = std::fmod(star * 137.508, kWidth);
      const double y = std::fmod(star * 61.803, kHorizon * 0.72);
      const double size = star % 7 == 0 ? 1.8 : 1.0;
      gc.DrawEllipse(x, y, size, size);
    }
  }
  gc.SetBrush(colours.sun);
  gc.DrawEllipse(478, 36, 46, 46);
}

/// Scales the scene's frame so that it covers `size`, cropping evenly.
void cover(wxGraphicsContext& gc, const wxSize& size) {
  const double scale = std::max(size.x / kWidth, size.y / kHeight);
  gc.Translate((size.x - kWidth * scale) / 2, (size.y - kHeight * scale) / 2);
  gc.Scale(scale, scale);
}

} // namespace

void paintRailwayScene(wxGraphicsContext& gc, const wxSize& size, bool night) {
  const Palette& colours = paletteFor(night);
  gc.PushState();
  gc.SetAntialiasMode(wxANTIALIAS_DEFAULT);
  cover(gc, size);
  paintSky(gc, colours, night);
  paintHills(gc, colours.farHill, kHorizon + 4, 74, 96, 0.6);
  paintHills(gc, colours.nearHill, kHorizon + 6, 40, 70, 2.4);
  gc.SetBrush(
      gc.CreateLinearGradientBrush(0, kHorizon, 0, kHeight, colours.meadowFar, colours.meadowNear));
  gc.SetPen(*wxTRANSPARENT_PEN);
  gc.DrawRectangle(0, kHorizon, kWidth, kHeight - kHorizon);
  for (int tree = 0; tree < 30; ++tree) {
    const double ahead = 150.0 - tree * 2.6;
    const double spread = std::fmod(tree * 160.7, 260.0) - 130.0;
    if (std::abs(spread - lineAt(ahead).offset) > 14.0) {
      paintTree(gc, colours.treeFar, spread, ahead, 8.0 + tree % 4);
    }
  }
  paintTrack(gc, colours, kSecondTrack);
  paintTrack(gc, colours, 0.0);
  paintRailcar(gc, colours, 21.5, 42.0);
  paintTree(gc, colours.treeNear, 20.0, 27.0, 9.5);
  paintTree(gc, colours.treeNear, 18.4, 22.0, 7.5);
  paintTree(gc, colours.treeNear, -25.0, 33.0, 9.0);
  gc.PopState();
}

void paintPlanScene(wxGraphicsContext& gc, const wxSize& size, bool night) {
  const wxColour paper = night ? wxColour(32, 42, 58) : wxColour(246, 248, 250);
  const wxColour grid = night ? wxColour(52, 64, 84) : wxColour(218, 226, 234);
  const wxColour ink = night ? wxColour(196, 214, 236) : wxColour(44, 74, 110);
  gc.PushState();
  gc.SetAntialiasMode(wxANTIALIAS_DEFAULT);
  cover(gc, size);
  gc.SetPen(*wxTRANSPARENT_PEN);
  gc.SetBrush(paper);
  gc.DrawRectangle(0, 0, kWidth, kHeight);
  gc.SetPen(gc.CreatePen(wxGraphicsPenInfo(grid, 1.0)));
  for (double x = 0; x <= kWidth; x += 20) {
    gc.StrokeLine(x, 0, x, kHeight);
  }
  for (double y = 0; y <= kHeight; y += 20) {
    gc.StrokeLine(0, y, kWidth, y);
  }
  // An oval with a passing siding and a dimension line, drawn as ballast, then as its middle.
  const auto track = [&gc](double width, const wxColour& colour) {
    gc.SetBrush(*wxTRANSPARENT_BRUSH);
    gc.SetPen(gc.CreatePen(wxGraphicsPenInfo(colour, width)));
    gc.DrawRoundedRectangle(150, 70, 340, 160, 80);
    wxGraphicsPath siding = gc.CreatePath();
    siding.MoveToPoint(236, 230);
    siding.AddCurveToPoint(268, 230, 262, 202, 292, 202);
    siding.AddLineToPoint(348, 202);
    siding.AddCurveToPoint(378, 202, 372, 230, 404, 230);
    gc.StrokePath(siding);
  };
  track(15.0, ink);
  track(11.0, paper);
  track(2.5, ink);
  gc.SetPen(gc.CreatePen(wxGraphicsPenInfo(ink, 1.5)));
  gc.StrokeLine(150, 268, 490, 268);
  for (const double x : {150.0, 490.0}) {
    gc.StrokeLine(x, 258, x, 278);
  }
  gc.PopState();
}

} // namespace trassix
