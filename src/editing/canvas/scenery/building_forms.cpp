#include "editing/canvas/scenery/scenery_drawing.h"

#include <array>
#include <cmath>

namespace trassix {

namespace {

using D = SceneryDrawing;
using B = SceneryBuild;

constexpr auto kStand = SceneryLayer::Standing;
constexpr auto kOver = SceneryLayer::Over;

/// A house with so many chimneys.
void house(D& d, const B& b, double h) {
  d.cast(h);
  d.gable(kWhole, b.roof);
  for (int i = 0; i < b.number; ++i)
    d.chimney({-0.5 + i * 0.8, i % 2 == 0 ? -0.2 : 0.25});
}

void hipHouse(D& d, const B& b, double h) {
  d.cast(h);
  d.hip(kWhole, b.roof);
  for (int i = 0; i < b.number; ++i)
    d.chimney({-0.4 + i * 0.7, -0.25});
}

/// A middle part between wings across it.
void station(D& d, const B& b, double h) {
  d.cast(h);
  const double wing = b.number > 2 ? 0.24 : 0.32;
  d.patch({-1, 0.78, 1, 1}, Material::Concrete);
  d.gable({-1, -0.72, 1, 0.72}, b.roof);
  d.gable({-1, -1, -1 + wing, 0.8}, b.roof, false);
  d.gable({1 - wing, -1, 1, 0.8}, b.roof, false);
  if (b.number > 1)
    d.gable({-0.2, -1, 0.2, 0.86}, b.roof, false);
  if (b.number > 2)
    d.cone({0, -0.1}, 0.3, Material::Slate);
  for (int i = 0; i < b.number * 2; ++i)
    d.chimney({-0.55 + i * 1.1 / (b.number * 2 - 1), -0.25});
}

void branchStation(D& d, const B& b, double h) {
  d.cast(h);
  d.gable({-1, -1, 0.3, 1}, b.roof);
  d.gable({0.3, -0.7, 1, 0.9}, b.roof);
  d.hatch({0.34, 0.2, 0.96, 0.9}, 5, false, Material::Ink);
  d.chimney({-0.5, -0.3});
}

void shelter(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, b.roof);
  d.slope({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}, b.roof, {0, 1});
  d.hatch(kWhole, b.number, false, Material::Ink);
  d.frame(kWhole);
}

void trainShed(D& d, const B& b, double h) {
  d.cast(h * 0.6);
  for (const double top : {-1.0, 0.0})
    d.barrel({-1, top, 1, top + 1}, Material::Glass, b.number);
  d.spanTrack();
}

void goodsShed(D& d, const B& b, double h) {
  d.cast(h);
  d.patch({-1, 0.45, 1, 1}, Material::Concrete);
  d.gable({-1, -1, 1, 0.6}, b.roof);
  d.hatch({-1, 0.62, 1, 1}, b.number, false, Material::Ink);
  d.frame(kWhole);
}

void ramp(D& d, const B&, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Stone);
  d.patch({-0.96, -0.9, 0.6, 0.9}, Material::Concrete);
  d.hatch({0.6, -1, 1, 1}, 5, false, Material::Ink);
  d.frame(kWhole);
}

void craneOver(D& d, const B& b, double h) {
  d.on(kOver);
  d.cast(h * 0.5, {-0.85, -0.2, 0.85, 0.2});
  d.patch({-1, -1, -0.75, 1}, Material::Metal);
  d.patch({0.75, -1, 1, 1}, Material::Metal);
  d.patch({-0.9, -0.22, 0.9, 0.22}, b.roof);
  d.hatch({-0.9, -0.22, 0.9, 0.22}, 9 + b.number, false, Material::Ink);
  d.patch({-0.3, -0.4, 0.1, 0.4}, Material::Metal, -0.4);
  for (int i = 0; i < b.number; ++i)
    d.frame({0.2 + 0.2 * i, -0.8, 0.36 + 0.2 * i, 0.8});
  d.frame({-0.9, -0.22, 0.9, 0.22});
}

void signalBox(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Wall);
  d.hip({-1, -1, 0.86, 1}, b.roof);
  d.hatch({0.86, -0.7, 1, 0.7}, 5, true, Material::Ink); // its stair
  if (b.number > 1)
    d.frame({-0.92, -0.86, 0.78, 0.86}, Material::Glass, 2);
}

void boxOverTrack(D& d, const B& b, double h) {
  d.cast(h * 0.6);
  d.hip(kWhole, b.roof);
  d.frame({-0.92, -0.88, 0.92, 0.88}, Material::Glass, 2);
  d.patch({-1, -1, -0.86, 1}, Material::Stone);
  d.patch({0.86, -1, 1, 1}, Material::Stone);
  d.spanTrack();
}

/// Track runs through; one roof for each road, with its smoke louvre.
void locoShed(D& d, const B& b, double h) {
  d.cast(h * 0.6);
  for (int i = 0; i < b.number; ++i) {
    const double top = -1 + 2.0 * i / b.number;
    const double bottom = top + 2.0 / b.number;
    d.gable({-1, top, 1, bottom}, b.roof);
    const double middle = (top + bottom) / 2;
    d.patch({-0.8, middle - 0.16 / b.number, 0.8, middle + 0.16 / b.number}, Material::Metal, 0.3);
  }
  d.spanTrack();
}

void worksHall(D& d, const B& b, double h) {
  d.cast(h * 0.6);
  d.gable({-1, -1, 1, 1}, b.roof);
  for (int i = 0; i < b.number; ++i) {
    const double left = -0.94 + i * 1.9 / b.number;
    d.patch({left, -0.5, left + 1.4 / b.number, -0.15}, Material::Glass, 0.3);
    d.patch({left, 0.15, left + 1.4 / b.number, 0.5}, Material::Glass, -0.2);
  }
  d.spanTrack();
}

/// Stalls in a fan: the doors at the narrow side, towards the turntable.
void roundhouse(D& d, const B& b, double h) {
  constexpr double kDoors = 0.44;
  const auto at = [](double t, double y) {
    return Point{(2 * t - 1) * (kDoors + (1 - kDoors) * (1 + y) / 2), y};
  };
  d.cast(h * 0.6, {at(0, -1), at(1, -1), at(1, 1), at(0, 1)});
  for (int i = 0; i < b.number; ++i) {
    const double from = static_cast<double>(i) / b.number;
    const double to = static_cast<double>(i + 1) / b.number;
    const double ridge = (from + to) / 2;
    d.area({at(from, -1), at(to, -1), at(to, 1), at(from, 1)}, b.roof);
    d.slope({at(from, -1), at(ridge, -1), at(ridge, 1), at(from, 1)}, b.roof, {-1, 0});
    d.slope({at(ridge, -1), at(to, -1), at(to, 1), at(ridge, 1)}, b.roof, {1, 0});
    d.line({at(ridge, -1), at(ridge, 1)}, Material::Ink);
    d.line({at(from, -1), at(to, -1), at(to, 1), at(from, 1), at(from, -1)}, Material::Ink);
    const Point smoke = at(ridge, 0.3);
    d.disc(smoke, 0.05, Material::Metal, -0.5);
  }
  d.spanTrack();
}

void waterTower(D& d, const B& b, double h) {
  d.cast(h, kWhole, true);
  d.cone({0, 0}, 1, b.roof, 12);
  d.disc({0, 0}, 0.16, Material::Metal);
}

void waterCrane(D& d, const B&, double h) {
  d.on(kOver);
  d.cast(h * 0.3, {-0.4, -1, 0.4, 1});
  d.disc({0, -0.7}, 0.9, Material::Stone);
  d.disc({0, -0.7}, 0.5, Material::Metal);
  d.patch({-0.18, -0.7, 0.18, 0.95}, Material::Metal, -0.4);
  d.disc({0, 0.9}, 0.28, Material::Red);
}

void coalStage(D& d, const B& b, double h) {
  d.cast(h, {-1, -0.7, 0.2, 0.7});
  d.patch(kWhole, Material::Concrete);
  for (int i = 0; i < b.number; ++i) {
    const double left = -0.94 + i * 1.2 / b.number;
    d.patch({left, -0.85, left + 1.1 / b.number, 0.85}, Material::Coal);
    d.frame({left, -0.85, left + 1.1 / b.number, 0.85});
  }
  d.cone({0.62, 0}, 0.4, Material::Slate);
  d.patch({-0.3, -0.06, 0.62, 0.06}, Material::Metal);
  d.frame(kWhole);
}

void bunker(D& d, const B& b, double h) {
  d.cast(h);
  d.flat({-1, -1, 1, 0.6}, b.roof);
  d.gable({-0.7, -0.8, 0.2, 0.3}, Material::Slate);
  for (int i = 0; i < b.number; ++i)
    d.patch({-0.9 + i * 0.5, 0.6, -0.6 + i * 0.5, 1}, Material::Metal);
  d.frame({-1, 0.6, 1, 1});
}

void sandTower(D& d, const B& b, double h) {
  d.cast(h, {-0.7, -0.7, 0.7, 0.7}, true);
  d.patch(kWhole, Material::Concrete);
  d.cone({0, 0}, 0.8, b.roof, 10);
  d.line({{0, 0}, {1, 1}}, Material::Metal, 2);
}

void ashPit(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Stone);
  d.patch({-0.96, -0.55, 0.96, 0.55}, Material::Coal);
  d.hatch({-0.96, -0.55, 0.96, 0.55}, b.number, false, Material::Metal, 1);
}

void fuelling(D& d, const B&, double h) {
  d.cast(h * 0.5, {-0.9, -0.9, 0.3, 0.9});
  d.patch(kWhole, Material::Concrete);
  d.barrel({-0.9, -0.8, 0.2, 0.0}, Material::Metal, 3);
  d.barrel({-0.9, 0.1, 0.2, 0.9}, Material::Metal, 3);
  d.flat({0.45, -0.4, 0.85, 0.4}, Material::Red);
  d.frame(kWhole);
}

void shell(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Rust);
  d.patch({-0.9, -0.88, 0.9, 0.88}, Material::Concrete);
  d.hatch({-0.9, -0.88, 0.9, 0.88}, b.number, false, Material::Wood, 3);
  d.line({{-1, 0}, {1, 0}}, Material::Wood, 3);
  d.frame(kWhole);
}

void timbered(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Wall);
  d.gable({-0.94, -1, 0.94, 1}, b.roof, false);
  d.gable({-0.94, -0.3, 0.94, 0.3}, b.roof);
  d.chimney({0.4, -0.6});
}

/// Steep to the street, flat on top, and a yard behind.
void townHouse(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, b.roof);
  d.slope({{-1, 1}, {1, 1}, {1, 0.6}, {-1, 0.6}}, b.roof, {0, 1});
  d.slope({{-1, -1}, {1, -1}, {1, -0.6}, {-1, -0.6}}, b.roof, {0, -1});
  d.patch({-1, -0.6, 1, 0.6}, Material::FlatRoof);
  for (int i = 0; i < b.number; ++i) {
    const double left = -0.8 + i * 1.6 / b.number;
    d.patch({left, 0.66, left + 0.9 / b.number, 0.9}, Material::Glass);
  }
  d.chimney({-0.6, 0});
  d.chimney({0.6, 0});
  d.frame(kWhole);
}

void cornerHouse(D& d, const B& b, double h) {
  d.cast(h);
  d.patch({-1, -1, 0.1, -0.1}, Material::Cobbles); // its yard
  d.gable({-1, -0.1, 1, 1}, b.roof);
  d.gable({-0.1, -1, 1, 0.45}, b.roof, false);
  d.cone({0.64, 0.64}, 0.36, Material::Slate);
  d.chimney({-0.5, 0.3});
  d.chimney({0.3, -0.6});
}

void flats(D& d, const B& b, double h) {
  d.cast(h);
  d.flat(kWhole, Material::FlatRoof);
  for (int i = 0; i < b.number; ++i) {
    const double x = -0.75 + i * 1.5 / (b.number - 1);
    d.patch({x - 0.1, -0.3, x + 0.1, 0.1}, Material::Concrete, -0.3);
    d.frame({x - 0.1, -0.3, x + 0.1, 0.1});
  }
}

void inn(D& d, const B& b, double h) {
  d.cast(h);
  d.patch({-1, 0.4, 1, 1}, Material::Cobbles);
  d.hip({-1, -1, 1, 0.5}, b.roof);
  d.gable({-0.3, -0.5, 0.3, 0.62}, b.roof, false);
  for (int i = 0; i < 5; ++i)
    d.disc({-0.8 + i * 0.4, 0.8}, 0.12, i % 2 == 0 ? Material::Red : Material::White);
  d.chimney({0.55, -0.4});
}

void shop(D& d, const B& b, double h) {
  d.cast(h);
  d.gable({-1, -1, 1, 0.7}, b.roof);
  d.patch({-1, 0.7, 1, 1}, Material::White);
  for (int i = 0; i < 5; ++i)
    d.patch({-1 + i * 0.4, 0.7, -0.8 + i * 0.4, 1}, Material::Red);
  d.chimney({-0.5, -0.4});
  d.frame(kWhole);
}

void kiosk(D& d, const B& b, double h) {
  d.cast(h);
  d.pavilion(kWhole, b.roof);
  d.disc({0, 0}, 0.2, Material::White);
}

void fillingStation(D& d, const B&, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Asphalt);
  d.flat({-1, -1, 0.1, 0.1}, Material::White);
  d.flat({-0.6, -0.3, 0.9, 0.75}, Material::FlatRoof);
  d.patch({-0.6, 0.6, 0.9, 0.75}, Material::Red);
  d.frame(kWhole);
}

/// Nave, choir at the right and a tower at the left.
void church(D& d, const B& b, double h) {
  d.cast(h * 0.6, {-1, -0.6, 0.5, 0.6});
  const double tower = b.number == 1 ? 0.3 : 0.42;
  d.gable({-0.75, -0.8, 0.6, 0.8}, b.roof);
  const double choir = 1 - 0.62 / d.aspect();
  d.cone({choir, 0}, 0.62, b.roof, 10);
  if (b.number > 2)
    d.gable({-0.1, -1, 0.35, 1}, b.roof, false);
  const double reach = tower * 1.0;
  if (b.number == 1)
    d.cone({-0.4, 0}, tower, Material::Slate);
  else
    d.pavilion({-1, -reach, -1 + 2 * reach / d.aspect(), reach}, Material::Slate);
  d.strokes({{-0.96, 0}, {-0.96 + 1.6 * tower / d.aspect(), 0}}, Material::Yellow, 2, 3);
  for (int i = 1; i < b.number; ++i)
    d.patch({-0.3 + i * 0.2, 0.8, -0.22 + i * 0.2, 0.95}, Material::Stone);
}

void school(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Cobbles);
  d.hip({-1, -1, 1, 0.1}, b.roof);
  d.hip({-1, -1, -0.4, 1}, b.roof);
  d.patch({0.3, -0.58, 0.42, -0.3}, Material::Slate);
  d.frame(kWhole);
}

void townHall(D& d, const B& b, double h) {
  d.cast(h);
  d.patch({-0.5, 0.8, 0.5, 1}, Material::Stone);
  d.hip({-1, -1, 1, 0.8}, b.roof);
  d.gable({-0.28, -0.2, 0.28, 0.9}, b.roof, false);
  d.pavilion({-0.2, -0.36, 0.2, 0.2}, Material::Slate);
  d.disc({0, -0.08}, 0.09, Material::Yellow);
}

void fireStation(D& d, const B& b, double h) {
  d.cast(h * 0.7);
  d.patch({-1, 0.7, 1, 1}, Material::Asphalt);
  d.gable({-1, -1, 0.4, 0.7}, b.roof);
  for (int i = 0; i < b.number; ++i)
    d.patch({-0.9 + i * 0.42, 0.7, -0.6 + i * 0.42, 0.8}, Material::Red);
  d.pavilion({0.4, -0.9, 1, 0}, Material::Red);
  d.frame(kWhole);
}

void barn(D& d, const B& b, double h) {
  d.cast(h);
  d.gable(kWhole, b.roof);
  d.gable({-0.2, 0, 0.2, 1}, b.roof, false);
  d.hatch(kWhole, b.number, true, Material::Ink);
}

void farmHouse(D& d, const B& b, double h) {
  d.cast(h);
  d.hip({-1, -1, 1, 0.7}, b.roof);
  d.patch({-0.9, 0.72, 0.3, 1}, Material::Meadow);
  d.chimney({-0.3, -0.3});
  d.chimney({0.4, -0.3});
}

void mill(D& d, const B& b, double h) {
  d.on(SceneryLayer::Ground);
  d.patch({-1, 0.6, 1, 1}, Material::Water);
  d.on(kStand);
  d.cast(h, {-1, -1, 1, 0.6});
  d.gable({-1, -1, 1, 0.6}, b.roof);
  d.patch({-0.2, 0.62, 0.4, 0.9}, Material::Wood);
  d.hatch({-0.2, 0.62, 0.4, 0.9}, 6, false, Material::Ink);
  d.chimney({-0.6, -0.4});
}

void sawmill(D& d, const B& b, double h) {
  d.cast(h, {-1, -1, 0.3, 1});
  d.patch(kWhole, Material::Earth);
  d.gable({-1, -1, 0.3, 0.4}, b.roof);
  for (int i = 0; i < b.number; ++i) {
    const double top = -0.9 + i * 1.8 / b.number;
    d.patch({0.42, top, 0.95, top + 1.4 / b.number}, Material::Wood, i % 2 == 0 ? 0.2 : -0.2);
    d.hatch({0.42, top, 0.95, top + 1.4 / b.number}, 3, true, Material::Ink);
  }
  d.frame(kWhole);
}

void factory(D& d, const B& b, double h) {
  d.cast(h);
  d.gable({-1, -1, 0.3, 1}, b.roof);
  d.flat({0.3, -1, 1, 0.5}, Material::FlatRoof);
  d.patch({0.3, 0.5, 1, 1}, Material::Cobbles);
  d.disc({0.65, -0.5}, 0.14, Material::Rust);
  d.disc({0.65, -0.5}, 0.07, Material::Coal);
  for (int i = 0; i < b.number; ++i)
    d.patch({-0.85 + i * 0.3, -0.12, -0.7 + i * 0.3, 0.12}, Material::Glass);
  d.frame(kWhole);
}

void sawTooths(D& d, const B& b, double h) {
  d.cast(h);
  d.sawTooth({-1, -1, 1, 0.55}, b.number);
  d.flat({-1, 0.55, 1, 1}, Material::FlatRoof);
}

void stack(D& d, const B& b, double h) {
  d.cast(h, kWhole, true);
  d.disc({0, 0}, 1, b.roof);
  d.disc({0, 0}, 0.78, b.roof, -0.4);
  d.disc({0, 0}, 0.5, Material::Coal);
  d.ring({0, 0}, 1);
}

void brewery(D& d, const B& b, double h) {
  d.cast(h);
  d.patch(kWhole, Material::Cobbles);
  d.gable({-1, -1, 1, 0.2}, b.roof);
  d.gable({-1, -1, -0.3, 1}, b.roof, false);
  d.flat({0.3, 0.1, 1, 1}, Material::FlatRoof);
  for (int i = 0; i < b.number; ++i)
    d.cone({0.05, 0.36 + 0.22 * i}, 0.12, Material::Metal);
  d.disc({0.75, -0.7}, 0.12, Material::Rust);
  d.disc({0.75, -0.7}, 0.06, Material::Coal);
  d.frame(kWhole);
}

void warehouse(D& d, const B& b, double h) {
  d.cast(h);
  for (int i = 0; i < b.number; ++i) {
    const double left = -1 + 2.0 * i / b.number;
    d.gable({left, -1, left + 2.0 / b.number, 0.8}, b.roof, false);
  }
  d.patch({-1, 0.8, 1, 1}, Material::Concrete);
}

void tank(D& d, const B&, double h) {
  d.cast(h, kWhole, true);
  d.disc({0, 0}, 1, Material::Metal, 0.3);
  d.disc({0, 0}, 0.86, Material::White, -0.2);
  d.ring({0, 0}, 1);
  d.patch({-0.08, -0.95, 0.08, 0}, Material::Metal);
}

void gasholder(D& d, const B& b, double h) {
  d.cast(h, kWhole, true);
  d.disc({0, 0}, 1, Material::Metal, -0.3);
  d.cone({0, 0}, 0.86, Material::Metal, b.number);
  for (int i = 0; i < b.number; ++i) {
    const double t = i * 6.283185307 / b.number;
    d.disc({0.93 * std::cos(t), 0.93 * std::sin(t)}, 0.06, Material::Rust);
  }
}

void silo(D& d, const B& b, double h) {
  d.cast(h);
  d.flat(kWhole, Material::Concrete);
  for (int i = 0; i < b.number; ++i)
    for (const double y : {-0.45, 0.45})
      d.cone({-0.66 + i * 1.32 / (b.number - 1), y}, 0.36, Material::Concrete, 12);
}

void ruin(D& d, const B&, double h) {
  d.cast(h * 0.4);
  d.patch(kWhole, Material::Earth);
  d.patch({-0.8, -0.75, 0.85, 0.8}, Material::Meadow);
  const std::array<Patch, 5> walls{{{-1, -1, 0.9, -0.84},
                                    {-1, -1, -0.88, 0.7},
                                    {0.78, -1, 0.9, 0.1},
                                    {-1, 0.84, -0.2, 1},
                                    {0.1, 0.84, 0.9, 1}}};
  for (const Patch& wall : walls) {
    d.patch(wall, Material::Stone);
    d.frame(wall);
  }
  d.disc({0.74, -0.7}, 0.3, Material::Stone);
  d.disc({0.74, -0.7}, 0.19, Material::Coal, 0.4);
  d.ring({0.74, -0.7}, 0.3);
  d.cone({-0.7, 0.7}, 0.26, Material::Slate);
}

constexpr std::array kForms{
    B{"stn.shelter", shelter, 3, Material::Wood},
    B{"stn.small", branchStation, 0, Material::Tiles},
    B{"stn.medium", station, 1, Material::Tiles},
    B{"stn.large", station, 3, Material::Slate},
    B{"stn.terminus_hall", trainShed, 14},
    B{"goods.shed", goodsShed, 12, Material::Tiles},
    B{"goods.ramp", ramp},
    B{"goods.gantry", craneOver, 0, Material::Yellow},
    B{"box.ground", signalBox, 1, Material::Tiles},
    B{"box.tall", signalBox, 2, Material::Slate},
    B{"box.bridge", boxOverTrack, 0, Material::Slate},
    B{"keeper.house", house, 1, Material::Tiles},
    B{"shed.loco1", locoShed, 1, Material::Tiles},
    B{"shed.loco2", locoShed, 2, Material::Slate},
    B{"shed.loco3", locoShed, 3, Material::Slate},
    B{"works.hall", worksHall, 8, Material::FlatRoof},
    B{"water.tower", waterTower, 0, Material::Slate},
    B{"water.crane", waterCrane},
    B{"coal.stage", coalStage, 3},
    B{"coal.bunker", bunker, 4, Material::Concrete},
    B{"sand.tower", sandTower, 0, Material::Metal},
    B{"ash.pit", ashPit, 16},
    B{"diesel.pump", fuelling},
    B{"house.detached", hipHouse, 1, Material::Tiles},
    B{"house.two", house, 2, Material::Tiles},
    B{"house.shell", shell, 9},
    B{"house.timber", timbered, 0, Material::Tiles},
    B{"house.row", townHouse, 3, Material::Slate},
    B{"house.corner", cornerHouse, 0, Material::Tiles},
    B{"house.block", flats, 3},
    B{"inn", inn, 0, Material::Tiles},
    B{"shop", shop, 0, Material::Tiles},
    B{"kiosk", kiosk, 0, Material::Wood},
    B{"bus.shelter", shelter, 2, Material::Glass},
    B{"filling.old", fillingStation},
    B{"church.chapel", church, 1, Material::Slate},
    B{"church.village", church, 2, Material::Tiles},
    B{"church.town", church, 3, Material::Slate},
    B{"school", school, 0, Material::Tiles},
    B{"townhall", townHall, 0, Material::Tiles},
    B{"fire.station", fireStation, 3, Material::Slate},
    B{"farm.house", farmHouse, 0, Material::Tiles},
    B{"farm.barn", barn, 6, Material::Wood},
    B{"mill", mill, 0, Material::Tiles},
    B{"sawmill", sawmill, 4, Material::Wood},
    B{"factory.small", factory, 4, Material::Slate},
    B{"factory.large", sawTooths, 7},
    B{"chimney", stack, 0, Material::Rust},
    B{"brewery", brewery, 3, Material::Tiles},
    B{"warehouse", warehouse, 4, Material::Slate},
    B{"tank", tank},
    B{"gasholder", gasholder, 10},
    B{"silo", silo, 3},
    B{"castle.ruin", ruin},
    B{"8970", branchStation, 0, Material::Slate},
    B{"8960", station, 2, Material::Tiles},
    B{"8971", goodsShed, 7, Material::Slate},
    B{"8972", craneOver, 3, Material::Red},
    B{"72886", roundhouse, 3, Material::Slate},
    B{"8983", roundhouse, 3, Material::Tiles},
};

} // namespace

std::span<const SceneryBuild> buildingForms() {
  return kForms;
}

} // namespace trassix
