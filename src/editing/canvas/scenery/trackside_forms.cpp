#include "editing/canvas/scenery/scenery_drawing.h"

#include <array>
#include <cmath>

namespace trassix {

namespace {

using D = SceneryDrawing;
using B = SceneryBuild;

constexpr auto kGround = SceneryLayer::Ground;
constexpr auto kOver = SceneryLayer::Over;

// Signals and masts are symbols: as on a track diagram, where they stand.

/// A mast with so many lamps beside one another, on its base.
void lightSignal(D& d, const B& b, double) {
  d.on(kOver);
  d.patch(b.roof == Material::Metal ? kWhole : Patch{-0.7, -1, 0.7, 1}, b.roof);
  d.frame(b.roof == Material::Metal ? kWhole : Patch{-0.7, -1, 0.7, 1});
  d.patch({-0.85, -0.3, 0.85, 0.3}, Material::Coal);
  static constexpr std::array kLamps{Material::Red, Material::Meadow, Material::Yellow,
                                     Material::White};
  for (int i = 0; i < b.number % 10; ++i) {
    const double x = b.number % 10 == 1 ? 0 : -0.55 + i * 1.1 / (b.number % 10 - 1);
    d.disc({x, 0}, 0.22, kLamps[static_cast<std::size_t>(i + b.number / 10) % kLamps.size()]);
  }
  d.strokes({{0, 0.3}, {0, 1}}, Material::Ink, 1.5, 2);
}

/// A mast with its arms out to the side, or the disc of a distant signal.
void semaphore(D& d, const B& b, double) {
  d.on(kOver);
  d.patch({-0.8, -1, 0.8, 1}, b.number > 0 ? b.roof : Material::Stone);
  d.frame({-0.8, -1, 0.8, 1});
  d.disc({0, 0.5}, 0.3, Material::Metal, -0.5);
  d.strokes({{0, 0.5}, {0, -0.8}}, Material::Ink, 1.5, 2);
  for (int i = 0; i < b.number; ++i) {
    const double y = -0.8 + i * 0.45;
    d.patch({-0.1, y, 0.9, y + 0.24}, Material::Red);
    d.patch({0.5, y + 0.05, 0.8, y + 0.19}, Material::White);
  }
  if (b.number == 0) {
    d.disc({0, -0.4}, 0.62, Material::White);
    d.disc({0, -0.4}, 0.48, b.roof);
  }
}

void shuntDisc(D& d, const B& b, double) {
  d.on(kOver);
  d.patch({-0.8, -0.9, 0.8, 0.9}, Material::Stone);
  d.disc({0, -0.1}, 0.8, Material::White);
  d.patch({-0.6, -0.24, 0.6, 0.04}, Material::Coal);
  for (int i = 0; i < b.number; ++i)
    d.frame({-0.8, 0.6, 0.8, 0.9});
}

/// Posts at both ends and a lattice between them, with lamps where it carries signals.
void spanning(D& d, const B& b, double h) {
  d.on(kOver);
  d.cast(h * 0.3, {-1, -0.4, 1, 0.4});
  d.patch({-1, -0.45, 1, 0.45}, b.roof);
  d.hatch({-1, -0.45, 1, 0.45}, 18, false, Material::Ink);
  d.frame({-1, -0.45, 1, 0.45});
  for (const double x : {-1.0, 1.0}) {
    const double in = x - std::copysign(d.across(8), x);
    d.patch({std::min(x, in), -1, std::max(x, in), 1}, Material::Stone);
  }
  for (int i = 0; i < b.number; ++i) {
    const double x = -0.5 + i * 1.0;
    d.patch({x - d.across(4), -0.9, x + d.across(4), 0.9}, Material::Coal);
    d.disc({x, -0.4}, 0.24, Material::Red);
    d.disc({x, 0.4}, 0.24, Material::Meadow);
  }
}

void board(D& d, const B&, double) {
  d.on(kOver);
  d.patch(kWhole, Material::White);
  d.frame(kWhole);
  d.patch({-0.6, -0.4, 0.6, 0.4}, Material::Ink);
}

void bufferStop(D& d, const B& b, double) {
  d.on(kOver);
  d.patch({-1, -0.75, 0.7, -0.45}, Material::Wood);
  d.patch({-1, 0.45, 0.7, 0.75}, Material::Wood);
  d.patch({0.45, -1, 0.8, 1}, Material::Red);
  d.patch({0.8, -0.65, 1, -0.35}, Material::Metal, -0.3);
  d.patch({0.8, 0.35, 1, 0.65}, Material::Metal, -0.3);
  for (int i = 0; i < b.number; ++i)
    d.line({{-1, -0.6}, {0.45, 0.6}}, Material::Wood, 2);
  d.frame({0.45, -1, 0.8, 1});
}

/// Road across the track, planks between its rails and beside them, barriers at the corners.
void levelCrossing(D& d, const B& b, double) {
  const int tracks = b.number % 10;
  const double half = std::min(0.5, d.across(38));
  d.on(kGround);
  d.patch({-half, -1, half, 1}, Material::Asphalt);
  d.strokes({{-half, -1}, {-half, 1}, {half, -1}, {half, 1}}, Material::Paint, 1, 3);
  d.strokes({{0, -1}, {0, -0.6}, {0, 0.6}, {0, 1}}, Material::Paint, 1.5, 3);
  d.on(kOver);
  for (int i = 0; i < tracks; ++i) {
    const double y = tracks == 1 ? 0 : d.deep(i == 0 ? -38.75 : 38.75);
    for (const double side : {-18.0, -6.4, 9.8}) {
      const double deep = side == -6.4 ? 12.8 : 8.2;
      d.patch({-half, y + d.deep(side), half, y + d.deep(side + deep)}, Material::Wood);
      d.hatch({-half, y + d.deep(side), half, y + d.deep(side + deep)}, 2 + b.number / 10, true,
              Material::Ink);
    }
  }
  const double arm = std::min(0.95, half + d.across(10));
  for (const double y : {-0.72, 0.72}) {
    const double x = std::copysign(arm, y);
    d.disc({x, y}, 0.05, Material::Coal);
    for (int i = 0; i < 4; ++i)
      d.strokes({{x * (1 - i * 0.3), y}, {x * (1 - (i + 1) * 0.3), y}},
                i % 2 == 0 ? Material::Red : Material::White, 2.2, 3);
  }
}

void barrier(D& d, const B&, double) {
  d.on(kOver);
  d.patch({-1, -1, -0.7, 1}, Material::Coal);
  for (int i = 0; i < 6; ++i)
    d.patch({-0.7 + i * 0.28, -0.3, -0.42 + i * 0.28, 0.3},
            i % 2 == 0 ? Material::Red : Material::White);
  d.frame({-0.7, -0.3, 1, 0.3});
}

void mast(D& d, const B& b, double) {
  d.on(kOver);
  d.patch({-1, -1, 1, -0.1}, Material::Concrete);
  d.patch({-0.45, -0.8, 0.45, -0.3}, b.roof);
  d.strokes({{0, -0.5}, {0, 1}}, Material::Ink, 1.2, 2);
  for (int i = 0; i < b.number; ++i)
    d.strokes({{-0.6, 0.9 - i * 0.4}, {0.6, 0.9 - i * 0.4}}, Material::Ink, 1.2, 2);
  d.frame({-1, -1, 1, -0.1});
}

void towerMast(D& d, const B&, double h) {
  d.on(kOver);
  d.cast(h * 0.2, {-0.6, -0.6, 0.6, 0.6});
  d.patch(kWhole, Material::Concrete);
  d.frame({-0.6, -0.6, 0.6, 0.6});
  d.line({{-0.6, -0.6}, {0.6, 0.6}}, Material::Ink, 1);
  d.line({{0.6, -0.6}, {-0.6, 0.6}}, Material::Ink, 1);
}

/// The light it gives, faintly, and its head.
void lamp(D& d, const B& b, double) {
  d.on(kOver);
  d.disc({0, 0}, 1, Material::Yellow, 0.7);
  d.ring({0, 0}, 1);
  for (int i = 0; i < b.number; ++i) {
    const double t = i * 6.283185307 / b.number;
    d.disc({0.6 * std::cos(t), 0.6 * std::sin(t)}, 0.24, Material::White);
  }
  d.disc({0, 0}, 0.3, Material::Coal);
}

void pole(D& d, const B&, double) {
  d.on(kOver);
  d.patch({-0.9, -0.25, 0.9, 0.25}, Material::Wood);
  d.strokes({{0, -1}, {0, 1}}, Material::Wood, 1.6, 2);
  for (const double y : {-0.8, -0.45, 0.45, 0.8})
    d.disc({0, y}, 0.5, Material::White);
}

void platform(D& d, const B& b, double h) {
  d.on(kGround);
  d.cast(h);
  d.patch(kWhole, Material::Concrete);
  const double edge = d.deep(2.5);
  const double strip = d.deep(5);
  const auto side = [&](double out, double sign) {
    d.patch({-1, std::min(out, out - sign * edge), 1, std::max(out, out - sign * edge)},
            Material::Stone, 0.6);
    d.strokes({{-1, out - sign * strip}, {1, out - sign * strip}}, Material::White, 1, 2.5);
  };
  side(1, 1);
  if (b.number > 0)
    side(-1, -1);
  if (b.number > 1) {
    d.hatch({-1, -0.8, 1, 0.8}, 7, true, Material::Cobbles);
    for (const double x : {-0.6, 0.0, 0.6})
      d.patch({x - 0.1, -0.1, x + 0.1, 0.1}, Material::Wood);
  }
  d.hatch(kWhole, 5, false, Material::Cobbles);
  d.frame(kWhole);
}

void platformRoof(D& d, const B& b, double h) {
  d.cast(h * 0.5);
  d.gable(kWhole, b.roof);
  d.hatch(kWhole, 8, false, Material::Ink);
  d.spanTrack();
}

void stairs(D& d, const B& b, double) {
  d.on(kOver);
  d.patch(kWhole, Material::Stone);
  d.patch({-0.9, -0.75, 0.96, 0.75}, Material::Coal, 0.5);
  d.hatch({-0.9, -0.75, 0.96, 0.75}, b.number, false, Material::White, 0.8);
  d.frame(kWhole);
}

void footbridge(D& d, const B&, double h) {
  d.on(kOver);
  d.cast(h * 0.4, {-0.8, -0.4, 0.8, 0.4});
  d.patch({-1, -0.9, -0.72, 0.9}, Material::Wood);
  d.hatch({-1, -0.9, -0.72, 0.9}, 7, true, Material::Ink);
  d.patch({0.72, -0.9, 1, 0.9}, Material::Wood);
  d.hatch({0.72, -0.9, 1, 0.9}, 7, true, Material::Ink);
  d.patch({-0.9, -0.45, 0.9, 0.45}, Material::Metal);
  d.patch({-0.9, -0.3, 0.9, 0.3}, Material::Wood, 0.3);
  d.frame({-0.9, -0.45, 0.9, 0.45});
}

void roadBridge(D& d, const B&, double h) {
  d.on(kOver);
  d.cast(h * 0.4);
  d.patch(kWhole, Material::Stone);
  d.patch({-1, -0.82, 1, 0.82}, Material::Asphalt);
  d.strokes({{-0.9, 0}, {-0.6, 0}, {-0.3, 0}, {0, 0}, {0.3, 0}, {0.6, 0}}, Material::Paint, 1.5, 3);
  d.line({{-1, -0.82}, {1, -0.82}}, Material::Ink);
  d.line({{-1, 0.82}, {1, 0.82}}, Material::Ink);
  d.frame(kWhole);
}

// Bridges carry the track: their deck lies under it, what rises at the sides over it.

void deck(D& d, Material material) {
  d.on(kGround);
  d.patch(kWhole, material);
  d.on(kOver);
}

void girders(D& d, const B& b, double h) {
  d.on(kGround);
  d.cast(h * 2);
  deck(d, Material::Metal);
  for (const double side : {-1.0, 0.86}) {
    d.patch({-1, side, 1, side + 0.14}, b.roof);
    d.hatch({-1, side, 1, side + 0.14}, b.number, false, Material::Ink);
    d.frame({-1, side, 1, side + 0.14});
  }
}

void truss(D& d, const B& b, double h) {
  d.on(kGround);
  d.cast(h);
  deck(d, Material::Metal);
  for (const double side : {-1.0, 0.84}) {
    d.patch({-1, side, 1, side + 0.16}, b.roof);
    d.frame({-1, side, 1, side + 0.16});
  }
  std::vector<Point> bars;
  for (int i = 0; i < b.number; ++i) {
    const double from = -1 + 2.0 * i / b.number;
    const double to = from + 2.0 / b.number;
    bars.insert(bars.end(), {{from, -0.84}, {to, 0.84}, {from, 0.84}, {to, -0.84}});
    bars.insert(bars.end(), {{to, -0.84}, {to, 0.84}});
  }
  d.strokes(bars, Material::Metal, 1.6, 6);
}

/// The bow seen from above swells towards the middle.
void bow(D& d, const B& b, double h) {
  d.on(kGround);
  d.cast(h);
  deck(d, Material::Metal);
  for (const double side : {-1.0, 1.0}) {
    std::vector<Point> outline{{-1, side}, {1, side}};
    for (int i = 0; i <= 12; ++i) {
      const double x = 1 - i / 6.0;
      outline.push_back({x, side * (0.94 - 0.16 * (1 - x * x))});
    }
    d.area(outline, b.roof, side * 0.2);
    d.line({{-1, side * 0.94}, {1, side * 0.94}}, Material::Ink);
  }
  d.hatch({-0.8, -0.8, 0.8, 0.8}, b.number, false, Material::Metal, 1.6);
}

void viaduct(D& d, const B& b, double h) {
  d.on(kGround);
  d.cast(h);
  deck(d, Material::Stone);
  for (const double side : {-1.0, 0.86}) {
    d.patch({-1, side, 1, side + 0.14}, Material::Stone, 0.4);
    d.hatch({-1, side, 1, side + 0.14}, 20, false, Material::Ink);
    d.frame({-1, side, 1, side + 0.14});
  }
  d.on(kGround);
  d.hatch(kWhole, b.number, false, Material::Ink, 3);
}

void pier(D& d, const B&, double h) {
  d.on(kGround);
  d.cast(h * 0.5);
  d.patch(kWhole, Material::Stone);
  d.patch({-0.85, -0.7, 0.85, 0.7}, Material::Stone, 0.4);
  d.hatch({-0.85, -0.7, 0.85, 0.7}, 4, false, Material::Ink);
  d.frame(kWhole);
}

void deckTruss(D& d, const B& b, double h) {
  d.on(kGround);
  d.cast(h);
  d.patch(kWhole, Material::Metal);
  std::vector<Point> bars;
  for (int i = 0; i < b.number; ++i) {
    const double from = -1 + 2.0 * i / b.number;
    bars.insert(bars.end(), {{from, -1}, {from + 1.0 / b.number, 1}});
    bars.insert(bars.end(), {{from + 1.0 / b.number, 1}, {from + 2.0 / b.number, -1}});
  }
  d.strokes(bars, Material::Ink, 1.2, 6);
  d.on(kOver);
  d.line({{-1, -0.95}, {1, -0.95}}, b.roof, 2);
  d.line({{-1, 0.95}, {1, 0.95}}, b.roof, 2);
}

/// A wall with a dark mouth for each track; the track goes in at the front.
void portal(D& d, const B& b, double h) {
  d.on(kOver);
  d.cast(h * 0.4);
  d.patch(kWhole, b.roof);
  d.patch({-1, 0.3, 1, 1}, b.roof, 0.4);
  for (int i = 0; i < b.number; ++i) {
    const double x = b.number == 1 ? 0 : -0.45 + 0.9 * i;
    const double half = d.across(29);
    d.patch({x - half, 0.3, x + half, 1}, Material::Coal);
  }
  d.hatch({-1, -1, 1, 0.3}, b.roof == Material::Stone ? 14 : 6, false, Material::Ink);
  d.frame(kWhole);
}

void wall(D& d, const B&, double h) {
  d.cast(h * 0.5);
  d.patch(kWhole, Material::Stone);
  d.patch({-1, -0.2, 1, 1}, Material::Stone, 0.4);
  d.hatch(kWhole, 16, false, Material::Ink);
  d.frame(kWhole);
}

void turntable(D& d, const B& b, double) {
  d.on(kGround);
  d.disc({0, 0}, 1, Material::Concrete);
  d.disc({0, 0}, 0.93, Material::Earth, -0.5);
  d.ring({0, 0}, 0.84, Material::Metal, 1.5);
  d.ring({0, 0}, 1);
  const double half = d.deep(b.number);
  d.patch({-0.92, -half, 0.92, half}, Material::Wood);
  d.hatch({-0.92, -half, 0.92, half}, 38, false, Material::Ink, 0.8);
  d.frame({-0.92, -half, 0.92, half}, Material::Metal, 3);
  d.strokes(
      {{-0.92, -d.deep(8.25)}, {0.92, -d.deep(8.25)}, {-0.92, d.deep(8.25)}, {0.92, d.deep(8.25)}},
      Material::Ink, 1, 4);
  d.flat({-0.5, -half - 0.12, -0.3, -half}, Material::Slate);
}

constexpr std::array kForms{
    B{"sig.light.home", lightSignal, 3, Material::Concrete},
    B{"sig.light.distant", lightSignal, 22, Material::Concrete},
    B{"sig.light.shunt", lightSignal, 31, Material::Concrete},
    B{"sig.light.shunthi", lightSignal, 2, Material::Concrete},
    B{"sig.sem.home", semaphore, 1, Material::Stone},
    B{"sig.sem.distant", semaphore, 0, Material::Yellow},
    B{"sig.sem.shunt", shuntDisc},
    B{"sig.gantry2", spanning, 2, Material::Metal},
    B{"board.limit", board},
    B{"bufferstop", bufferStop},
    B{"xing.single", levelCrossing, 1},
    B{"xing.double", levelCrossing, 2},
    B{"barrier.half", barrier},
    B{"mast.line", mast, 1, Material::Metal},
    B{"mast.tower", towerMast},
    B{"mast.portal4", spanning, 0, Material::Metal},
    B{"lamp.street", lamp, 0},
    B{"lamp.yard", lamp, 4},
    B{"pole.telegraph", pole},
    B{"plat.side", platform, 0},
    B{"plat.island77", platform, 1},
    B{"plat.island155", platform, 2},
    B{"plat.roof", platformRoof, 0, Material::FlatRoof},
    B{"underpass", stairs, 9},
    B{"footbridge", footbridge},
    B{"br.road", roadBridge},
    B{"br.girder", girders, 11, Material::Metal},
    B{"br.truss", truss, 5, Material::Metal},
    B{"br.arch", bow, 12, Material::Metal},
    B{"br.viaduct", viaduct, 4},
    B{"br.pier", pier},
    B{"br.deck", deckTruss, 9, Material::Metal},
    B{"tun.single", portal, 1, Material::Concrete},
    B{"tun.double", portal, 2, Material::Stone},
    B{"tun.oldstone", portal, 1, Material::Stone},
    B{"wall.retain", wall},
    B{"74861", turntable, 22},
    B{"7286", turntable, 19},
    B{"7161", girders, 7, Material::Rust},
    B{"7162", truss, 4, Material::Rust},
    B{"7163", bow, 9, Material::Rust},
    B{"7192", levelCrossing, 11},
    B{"7190", bufferStop, 1},
    B{"7039", semaphore, 1, Material::FlatRoof},
    B{"7036", semaphore, 0, Material::Red},
    B{"7040", semaphore, 2, Material::FlatRoof},
    B{"7042", shuntDisc, 1},
    B{"7187", lightSignal, 22, Material::Metal},
    B{"7188", lightSignal, 2, Material::Metal},
    B{"76371", lightSignal, 32, Material::Metal},
    B{"76372", lightSignal, 31, Material::Metal},
    B{"76391", lightSignal, 12, Material::Metal},
    B{"76393", lightSignal, 3, Material::Metal},
    B{"76395", lightSignal, 4, Material::Metal},
    B{"74101", mast, 2, Material::Metal},
    B{"7009", mast, 2, Material::Rust},
};

} // namespace

std::span<const SceneryBuild> tracksideForms() {
  return kForms;
}

} // namespace trassix
