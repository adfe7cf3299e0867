#include "ui/widgets/shopping_scene.h"

#include <wx/graphics.h>

#include <array>

namespace trassix {

namespace {

/// The scene is drawn in these units and scaled to the height of the window.
constexpr double kHeight = 110;
constexpr double kGround = 92;

struct Palette {
  wxColour sky, ground, rail, sleeper, glass, ink;
};

Palette paletteFor(bool night) {
  if (night)
    return {{32, 40, 66}, {44, 60, 52},    {150, 156, 168},
            {84, 72, 62}, {255, 214, 120}, {20, 24, 34}};
  return {{196, 224, 244}, {146, 186, 116}, {92, 98, 108},
          {122, 102, 82},  {222, 240, 250}, {52, 58, 66}};
}

void fillBox(wxGraphicsContext& gc, const wxColour& colour, double x, double y, double w, double h,
             double round = 0) {
  gc.SetPen(*wxTRANSPARENT_PEN);
  gc.SetBrush(wxBrush(colour));
  gc.DrawRoundedRectangle(x, y, w, h, round);
}

void fillDisc(wxGraphicsContext& gc, const wxColour& colour, double x, double y, double radius) {
  gc.SetPen(*wxTRANSPARENT_PEN);
  gc.SetBrush(wxBrush(colour));
  gc.DrawEllipse(x - radius, y - radius, 2 * radius, 2 * radius);
}

void drawShop(wxGraphicsContext& gc, const Palette& colours, double x, double width, double height,
              const wxColour& wall, const wxColour& awning) {
  const double top = kGround - 14 - height;
  fillBox(gc, wall, x, top, width, height);
  for (double window = x + 6; window + 10 < x + width; window += 17)
    fillBox(gc, colours.glass, window, top + 6, 10, 10, 1);
  fillBox(gc, colours.glass, x + 5, kGround - 36, width - 26, 18, 1);
  fillBox(gc, colours.ink, x + width - 16, kGround - 36, 11, 22, 1);
  for (int stripe = 0; stripe * 6 < width; ++stripe)
    fillBox(gc, stripe % 2 == 0 ? awning : wxColour(250, 250, 246), x + stripe * 6, kGround - 42,
            std::min(6.0, width - stripe * 6), 7);
}

void drawWheels(wxGraphicsContext& gc, const Palette& colours, std::initializer_list<double> at) {
  for (const double x : at) {
    fillDisc(gc, colours.ink, x, kGround - 5, 4.6);
    fillDisc(gc, colours.rail, x, kGround - 5, 1.8);
  }
}

void drawEngine(wxGraphicsContext& gc, const Palette& colours, double x) {
  const wxColour red(186, 40, 44);
  fillBox(gc, red, x, kGround - 32, 30, 24, 3);
  fillBox(gc, red, x + 26, kGround - 24, 40, 16, 3);
  fillBox(gc, colours.ink, x - 2, kGround - 35, 34, 4, 2);
  fillBox(gc, colours.glass, x + 5, kGround - 28, 9, 9, 1);
  fillBox(gc, colours.glass, x + 17, kGround - 28, 9, 9, 1);
  fillBox(gc, colours.ink, x + 48, kGround - 31, 6, 8, 1);
  fillDisc(gc, wxColour(255, 236, 160), x + 64, kGround - 19, 2.6);
  fillBox(gc, colours.ink, x, kGround - 10, 67, 3);
  drawWheels(gc, colours, {x + 10, x + 24, x + 44, x + 58});
}

/// A flat wagon with three parcels.
void drawWagon(wxGraphicsContext& gc, const Palette& colours, double x) {
  constexpr std::array<std::array<double, 4>, 3> kParcels{
      {{6, 16, 14, 14}, {23, 12, 18, 18}, {44, 18, 12, 12}}}; // from left, top; size
  fillBox(gc, colours.ink, x - 8, kGround - 9, 10, 2);
  fillBox(gc, wxColour(96, 84, 70), x, kGround - 12, 62, 5, 1);
  for (const auto& [left, top, width, height] : kParcels) {
    const double y = kGround - 42 + top;
    fillBox(gc, wxColour(206, 164, 108), x + left, y, width, height, 1);
    fillBox(gc, wxColour(236, 214, 170), x + left + width / 2 - 1.5, y, 3, height);
  }
  drawWheels(gc, colours, {x + 12, x + 50});
}

void drawTrack(wxGraphicsContext& gc, const Palette& colours, double width) {
  for (double x = 0; x < width; x += 9)
    fillBox(gc, colours.sleeper, x, kGround + 1, 5, 3);
  fillBox(gc, colours.rail, 0, kGround - 0.6, width, 1.8);
}

} // namespace

void paintShoppingScene(wxGraphicsContext& gc, const wxSize& size, bool night) {
  const Palette colours = paletteFor(night);
  const double scale = size.y / kHeight;
  const double width = size.x / scale;
  gc.PushState();
  gc.Scale(scale, scale);
  fillBox(gc, colours.sky, 0, 0, width, kHeight);
  fillDisc(gc, night ? wxColour(232, 234, 220) : wxColour(255, 226, 130), width - 60, 24, 11);
  fillBox(gc, colours.ground, 0, kGround - 16, width, kHeight);
  const double middle = width / 2;
  drawShop(gc, colours, middle - 280, 96, 46, {226, 198, 160}, {196, 62, 52});
  drawShop(gc, colours, middle - 172, 74, 58, {188, 206, 190}, {54, 110, 160});
  drawShop(gc, colours, middle - 86, 112, 40, {216, 176, 166}, {70, 128, 78});
  drawShop(gc, colours, middle + 40, 84, 54, {206, 200, 214}, {214, 148, 44});
  drawShop(gc, colours, middle + 136, 100, 44, {228, 212, 170}, {136, 70, 140});
  drawTrack(gc, colours, width);
  drawWagon(gc, colours, middle - 150);
  drawWagon(gc, colours, middle - 76);
  drawEngine(gc, colours, middle - 2);
  gc.PopState();
}

} // namespace trassix
