#include "editing/canvas/scenery/scenery_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace trassix {

namespace {

using D = SceneryDrawing;
using B = SceneryBuild;

constexpr double kTurn = 6.283185307;

/// The same number for the same seed, from 0 to 1.
double chance(std::uint32_t seed) {
  seed = (seed ^ 61U) ^ (seed >> 16U);
  seed *= 9U;
  seed ^= seed >> 4U;
  seed *= 0x27d4eb2dU;
  seed ^= seed >> 15U;
  return (seed % 1000U) / 1000.0;
}

/// A round outline with so many bulges.
std::vector<Point> lobed(Point centre, double radius, int lobes, double depth, double aspect = 1) {
  std::vector<Point> outline;
  const int points = lobes * 6;
  for (int i = 0; i < points; ++i) {
    const double t = kTurn * i / points;
    const double r = radius * (1 - depth * std::pow(std::abs(std::cos(t * lobes / 2)), 3));
    outline.push_back({centre.x + r * std::cos(t), centre.y + r * std::sin(t) * aspect});
  }
  return outline;
}

void closed(D& d, std::vector<Point> outline, Material material, double width = 0) {
  outline.push_back(outline.front());
  d.line(outline, material, width);
}

void broadleaf(D& d, const B& b, double h) {
  d.cast(h * 0.7, {-0.8, -0.8, 0.8, 0.8}, true);
  const std::vector<Point> crown = lobed({0, 0}, 1, b.number, 0.16);
  d.area(crown, b.roof, -0.15);
  d.area(lobed({-0.06, -0.06}, 0.74, b.number, 0.2), b.roof, 0.12);
  d.area(lobed({-0.18, -0.18}, 0.42, b.number - 2, 0.24), Material::Sunlit);
  closed(d, crown, Material::Needle);
}

void fruitTree(D& d, const B& b, double h) {
  broadleaf(d, b, h);
  for (int i = 0; i < 7; ++i) {
    const double t = kTurn * i / 7 + 0.3;
    d.disc({0.6 * std::cos(t), 0.6 * std::sin(t)}, 0.1, Material::Red);
  }
}

/// Boughs in a star around the tip, the next ones between them.
void conifer(D& d, const B& b, double h) {
  d.cast(h * 0.5, {-0.7, -0.7, 0.7, 0.7}, true);
  const auto star = [&](double outer, double inner, double turned) {
    std::vector<Point> outline;
    for (int i = 0; i < 2 * b.number; ++i) {
      const double t = kTurn * (i + turned) / (2 * b.number);
      const double r = i % 2 == 0 ? outer : inner;
      outline.push_back({r * std::cos(t), r * std::sin(t)});
    }
    return outline;
  };
  d.area(star(1, 0.68, 0), Material::Needle, -0.15);
  d.area(star(0.7, 0.46, 1), Material::Needle, 0.1);
  d.area(star(0.4, 0.24, 0), Material::Needle, 0.35);
  d.disc({0, 0}, 0.08, Material::Sunlit);
}

void poplar(D& d, const B& b, double h) {
  d.cast(h * 0.7, {-0.8, -0.8, 0.8, 0.8}, true);
  d.disc({0, 0}, 1, b.roof, -0.1);
  d.disc({-0.1, -0.1}, 0.66, b.roof, 0.15);
  d.disc({-0.2, -0.2}, 0.3, Material::Sunlit);
  d.ring({0, 0}, 1, Material::Needle);
}

void bush(D& d, const B& b, double h) {
  d.cast(h * 0.5, {-0.8, -0.8, 0.8, 0.8}, true);
  d.area(lobed({0, 0}, 1, b.number, 0.3), Material::Leaf);
  d.area(lobed({-0.15, -0.15}, 0.5, b.number, 0.3), Material::Sunlit);
}

/// Bushes in a row, grown together.
void hedge(D& d, const B& b, double h) {
  d.cast(h * 0.5);
  d.patch({-1, -0.8, 1, 0.8}, Material::Leaf, -0.1);
  for (int i = 0; i < b.number; ++i) {
    const double x = -1 + (2 * i + 1.0) / b.number;
    d.ellipse({std::max(x - 1.1 / b.number, -1.0), -1, std::min(x + 1.1 / b.number, 1.0), 1},
              Material::Leaf, i % 2 == 0 ? 0.1 : -0.1);
  }
}

void logs(D& d, const B&, double h) {
  d.cast(h);
  d.patch({-0.7, -1, 1, 1}, Material::Wood, -0.2);
  for (const double y : {-0.66, 0.0, 0.66}) {
    d.patch({-0.7, y - 0.3, 0.9, y + 0.3}, Material::Wood);
    d.disc({0.85, y}, 0.3, Material::Earth, 0.4);
  }
  d.disc({-0.85, 0}, 0.3, Material::Wood, 0.3);
}

/// Crowns of both kinds, each one in its place wherever the forest lies.
void forest(D& d, const B& b, double h) {
  d.cast(h * 0.3);
  d.patch(kWhole, Material::Needle, -0.25);
  const int rows = b.number;
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < rows; ++column) {
      const auto seed = static_cast<std::uint32_t>(row * 31 + column * 7 + 5);
      const double step = 2.0 / rows;
      const double size = step * (0.52 + 0.16 * chance(seed));
      const auto within = [size](double at) { return std::clamp(at, size - 1, 1 - size); };
      const Point at{within(-1 + (column + 0.3 + 0.4 * chance(seed + 97)) * step),
                     within(-1 + (row + 0.3 + 0.4 * chance(seed + 193)) * step)};
      const bool broad = chance(seed + 11) > 0.45;
      const Material leaves = broad ? Material::Leaf : Material::Needle;
      d.area(lobed(at, size, broad ? 7 : 9, broad ? 0.16 : 0.34), leaves, -0.05);
      d.area(lobed({at.x - size * 0.12, at.y - size * 0.12}, size * 0.55, broad ? 6 : 9,
                   broad ? 0.2 : 0.4),
             leaves, 0.25);
    }
}

void pond(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.ellipse(kWhole, Material::Meadow);
  const auto shore = [&](double size) {
    std::vector<Point> outline;
    for (int i = 0; i < 48; ++i) {
      const double t = kTurn * i / 48;
      const double r = size * (0.93 + 0.05 * std::sin(3 * t + 1) + 0.02 * std::sin(5 * t));
      outline.push_back({r * std::cos(t), r * std::sin(t)});
    }
    return outline;
  };
  d.area(shore(1), Material::Water);
  closed(d, shore(1), Material::Metal);
  for (int i = 1; i <= b.number; ++i) // as on maps, closer to one another at the shore
    closed(d, shore(1 - 0.07 * i - 0.02 * i * i), Material::Water, 0);
  std::vector<Point> waves;
  for (int i = 0; i < 9; ++i) {
    const auto seed = static_cast<std::uint32_t>(i * 13 + 3);
    const double x = -0.45 + 0.8 * chance(seed);
    const double y = -0.5 + i * 0.12;
    waves.insert(waves.end(), {{x - 0.1, y}, {x + 0.1, y}});
  }
  d.strokes(waves, Material::White, 1, 6);
}

void field(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Crop);
  d.patch({-1, -1, 0, 1}, Material::Meadow);
  d.hatch({0, -1, 1, 1}, b.number, true, Material::Earth, 1);
  std::vector<Point> grass;
  for (int i = 0; i < 40; ++i) {
    const auto seed = static_cast<std::uint32_t>(i * 17 + 1);
    const double x = -0.96 + 0.9 * chance(seed);
    const double y = -0.9 + 1.8 * chance(seed + 71);
    grass.insert(grass.end(), {{x, y}, {x + 0.008, y - 0.05}, {x, y}, {x - 0.008, y - 0.05}});
  }
  d.strokes(grass, Material::Leaf, 0.8, 4);
  d.line({{0, -1}, {0, 1}}, Material::Leaf, 1.5);
}

/// With its middle line, and edge lines on main roads.
void road(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Asphalt);
  std::vector<Point> dashes;
  for (int i = 0; i < b.number; ++i) {
    const double x = -1 + (2 * i + 0.5) / b.number;
    dashes.insert(dashes.end(), {{x, 0}, {x + 1.0 / b.number, 0}});
  }
  d.strokes(dashes, Material::Paint, 1.6, 10);
  if (b.number > 8)
    d.strokes({{-1, -0.86}, {1, -0.86}, {-1, 0.86}, {1, 0.86}}, Material::Paint, 1.2, 6);
  d.strokes({{-1, -1}, {1, -1}, {-1, 1}, {1, 1}}, Material::Ink, 0, 8);
}

void farmTrack(D& d, const B&, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Earth);
  d.patch({-1, -0.25, 1, 0.25}, Material::Meadow);
  d.strokes({{-1, -1}, {1, -1}, {-1, 1}, {1, 1}}, Material::Rust, 0, 2);
}

void pavement(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Concrete);
  d.hatch(kWhole, b.number, false, Material::Cobbles);
  d.hatch(kWhole, 1, true, Material::Cobbles);
  d.patch({-1, 0.8, 1, 1}, Material::Stone, 0.4);
  d.strokes({{-1, -1}, {1, -1}, {-1, 1}, {1, 1}}, Material::Ink, 0, 8);
}

/// Setts laid in fans.
void square(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Cobbles);
  const double step = 2.0 / b.number;
  for (int row = 0; row < b.number; ++row)
    for (int column = 0; column < b.number; ++column) {
      std::vector<Point> arc;
      for (int i = 0; i <= 6; ++i) {
        const double t = kTurn / 2 * i / 6;
        arc.push_back({-1 + (column + 0.5 - 0.5 * std::cos(t)) * step,
                       -1 + (row + 1 - 0.8 * std::sin(t)) * step});
      }
      d.line(arc, Material::Stone);
    }
  d.frame(kWhole, Material::Stone, 2);
}

void carPark(D& d, const B& b, double) {
  d.on(SceneryLayer::Ground);
  d.patch(kWhole, Material::Asphalt);
  static constexpr std::array kPaints{Material::Red, Material::White, Material::Metal,
                                      Material::Water, Material::Needle};
  for (const double side : {-1.0, 0.3}) {
    d.hatch({-1, side, 1, side + 0.7}, b.number - 1, false, Material::Paint, 1.2);
    for (int i = 0; i < b.number; ++i) {
      const auto seed = static_cast<std::uint32_t>(i * 5 + (side > 0 ? 77 : 2));
      if (chance(seed) < 0.4)
        continue;
      const double x = -1 + (2 * i + 1.0) / b.number;
      const Material paint = kPaints[seed % kPaints.size()];
      const double half = 0.62 / b.number;
      d.patch({x - half, side + 0.08, x + half, side + 0.6}, paint, -0.1);
      d.patch({x - half * 0.8, side + 0.22, x + half * 0.8, side + 0.46}, paint, 0.4);
    }
  }
  d.frame(kWhole);
}

constexpr std::array kForms{
    B{"road.minor", road, 6},
    B{"road.main", road, 9},
    B{"road.track", farmTrack},
    B{"road.path", pavement, 20},
    B{"road.square", square, 10},
    B{"road.carpark", carPark, 8},
    B{"tree.bush", bush, 5},
    B{"tree.hedge", hedge, 28},
    B{"tree.broad.s", broadleaf, 6, Material::Leaf},
    B{"tree.broad.m", broadleaf, 7, Material::Leaf},
    B{"tree.broad.l", broadleaf, 9, Material::Leaf},
    B{"tree.broad.xl", broadleaf, 11, Material::Leaf},
    B{"tree.fir.s", conifer, 7},
    B{"tree.fir.m", conifer, 8},
    B{"tree.fir.l", conifer, 9},
    B{"tree.fir.xl", conifer, 10},
    B{"tree.fir.max", conifer, 12},
    B{"tree.poplar", poplar, 0, Material::Leaf},
    B{"tree.fruit", fruitTree, 5, Material::Sunlit},
    B{"tree.palmstump", logs},
    B{"forest", forest, 6},
    B{"pond", pond, 3},
    B{"field", field, 14},
};

} // namespace

std::span<const SceneryBuild> groundForms() {
  return kForms;
}

} // namespace trassix
