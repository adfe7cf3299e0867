#include "editing/canvas/plan_theme.h"

#include <cmath>
#include <utility>

namespace trassix {

namespace {

constexpr PlanTheme makeScreenTheme() {
  PlanTheme t{};
  t.desk = {232, 234, 237};
  t.board = {252, 250, 245};
  t.boardEdge = {150, 140, 122};
  t.gridFine = {60, 80, 110, 22};
  t.gridCoarse = {60, 80, 110, 52};
  t.ruler = {84, 94, 108};
  t.plate = {255, 255, 255, 215};
  t.bed = {203, 198, 187};
  t.bridgeBed = {176, 190, 204};
  t.rampBed = {214, 200, 160};
  t.pit = {168, 160, 148};
  t.bedEdge = {132, 126, 114, 180};
  t.sleeper = {122, 102, 82};
  t.rail = {52, 58, 66};
  t.farTrack = {74, 80, 90};
  t.farBeneath = {150, 150, 152};
  t.girder = {96, 112, 130};
  t.selected = {32, 108, 214};
  t.hover = {32, 108, 214, 120};
  t.snapped = {22, 140, 72};
  t.openEnd = {214, 82, 30};
  t.joinedEnd = {58, 128, 84};
  t.carriedBed = {170, 198, 236, 215};
  t.snappedBed = {150, 208, 172, 235};
  t.paper = {255, 255, 255};
  t.article = {40, 46, 56};
  t.label = {24, 30, 40};
  t.measure = {170, 40, 110};
  t.farArticle = {132, 136, 144};
  t.tunnel = {112, 104, 96};
  t.hill = {112, 104, 96, 40};
  t.gradeBands = {{{34, 146, 70}, {214, 138, 0}, {206, 42, 34}, {150, 12, 60}}};
  t.sceneryByCategory = {{{178, 108, 80},
                          {140, 140, 148},
                          {96, 100, 112},
                          {136, 134, 130},
                          {120, 136, 156},
                          {112, 104, 96},
                          {112, 122, 132},
                          {84, 146, 72},
                          {138, 168, 92},
                          {150, 140, 124},
                          {178, 108, 80}}};
  t.materials = {{
      {188, 122, 98},  // Tiles
      {134, 142, 152}, // Slate
      {176, 174, 168}, // FlatRoof
      {182, 206, 216}, // Glass
      {222, 208, 184}, // Wall
      {172, 164, 152}, // Stone
      {206, 204, 196}, // Concrete
      {168, 168, 170}, // Asphalt
      {196, 188, 176}, // Cobbles
      {200, 178, 142}, // Earth
      {164, 132, 98},  // Wood
      {130, 142, 154}, // Metal
      {160, 112, 84},  // Rust
      {92, 90, 92},    // Coal
      {196, 212, 158}, // Meadow
      {222, 210, 150}, // Crop
      {132, 168, 104}, // Leaf
      {166, 194, 130}, // Sunlit
      {94, 134, 104},  // Needle
      {166, 200, 222}, // Water
      {196, 60, 50},   // Red
      {250, 250, 248}, // White
      {226, 176, 60},  // Yellow
      {84, 80, 76},    // Ink
      {248, 248, 244}, // Paint
  }};
  t.shadow = {50, 46, 60, 52};
  return t;
}

constexpr std::uint8_t mix(int a, int b, int percent) {
  return static_cast<std::uint8_t>((a * (100 - percent) + b * percent) / 100);
}

constexpr Color towards(Color color, Color other, int percent) {
  return {mix(color.r, other.r, percent), mix(color.g, other.g, percent),
          mix(color.b, other.b, percent)};
}

constexpr PlanTheme makePaperTheme() {
  constexpr Color kWhite{255, 255, 255};
  PlanTheme t = makeScreenTheme();
  t.desk = t.board = t.plate = t.paper = {255, 255, 255};
  t.boardEdge = {60, 56, 50};
  t.gridFine = {60, 80, 110, 40};
  t.gridCoarse = {60, 80, 110, 90};
  t.ruler = {30, 34, 40};
  for (Color* bed : {&t.bed, &t.bridgeBed, &t.rampBed, &t.pit})
    *bed = towards(*bed, kWhite, 55);
  t.bedEdge = {90, 86, 78, 220};
  t.rail = {16, 18, 22};
  t.farTrack = {30, 34, 40};
  t.farBeneath = {110, 110, 112};
  t.article = t.label = {0, 0, 0};
  t.farArticle = {96, 98, 104};
  t.hill = {112, 104, 96, 14};
  for (Color& material : t.materials)
    material = towards(material, kWhite, 45);
  for (const Material dark : {Material::Ink, Material::Red, Material::Yellow, Material::Coal})
    t.materials[static_cast<std::size_t>(dark)] =
        makeScreenTheme().materials[static_cast<std::size_t>(dark)];
  t.shadow.a = 0;
  return t;
}

constexpr PlanTheme makeOutlineTheme() {
  PlanTheme t = makePaperTheme();
  t.hill.a = 0;
  t.fills = false;
  return t;
}

constexpr PlanTheme makeNightTheme() {
  PlanTheme t = makeScreenTheme();
  t.dark = true;
  t.desk = {24, 26, 29};
  t.board = {37, 39, 43};
  t.boardEdge = {128, 122, 108};
  t.gridFine = {170, 190, 220, 18};
  t.gridCoarse = {170, 190, 220, 44};
  t.ruler = {176, 186, 200};
  t.plate = {28, 30, 34, 215};
  t.bed = {78, 76, 72};
  t.bridgeBed = {70, 84, 100};
  t.rampBed = {98, 88, 60};
  t.pit = {56, 54, 52};
  t.bedEdge = {142, 138, 128, 180};
  t.sleeper = {120, 102, 84};
  t.rail = {206, 212, 220};
  t.farTrack = {186, 192, 202};
  t.farBeneath = {112, 114, 120};
  t.girder = {138, 160, 184};
  t.selected = {98, 168, 255};
  t.hover = {98, 168, 255, 130};
  t.snapped = {88, 206, 134};
  t.openEnd = {255, 138, 84};
  t.joinedEnd = {104, 196, 140};
  t.carriedBed = {52, 82, 122, 215};
  t.snappedBed = {40, 96, 62, 235};
  t.paper = {28, 30, 34};
  t.article = {216, 222, 230};
  t.label = {236, 240, 246};
  t.measure = {246, 132, 196};
  t.farArticle = {136, 142, 152};
  t.tunnel = {164, 154, 142};
  t.hill = {164, 154, 142, 30};
  t.gradeBands = {{{82, 196, 118}, {240, 176, 60}, {255, 104, 92}, {255, 96, 168}}};
  for (Rgba& color : t.sceneryByCategory)
    color = {mix(color.r, 255, 15), mix(color.g, 255, 15), mix(color.b, 255, 15), 255};
  for (Color& material : t.materials)
    material = towards(material, {16, 18, 24}, 46);
  const auto set = [&t](Material of, Color color) {
    t.materials[static_cast<std::size_t>(of)] = color;
  };
  set(Material::Ink, {190, 188, 184});
  set(Material::Red, {232, 92, 80});
  set(Material::White, {226, 228, 232});
  set(Material::Yellow, {226, 184, 84});
  set(Material::Paint, {190, 192, 192});
  set(Material::Coal, {20, 20, 22});
  t.shadow = {0, 0, 0, 90};
  return t;
}

} // namespace

namespace {

/// As the eye has it, to 255.
double lightness(Color c) {
  return 0.3 * c.r + 0.59 * c.g + 0.11 * c.b;
}

int percentOf(double part, double whole) {
  return static_cast<int>(std::lround(100 * part / whole));
}

} // namespace

Rgba PlanTheme::line(Color chosen) const {
  constexpr double kLeast = 150;
  const double light = lightness(chosen);
  return opaque(dark && light < kLeast
                    ? towards(chosen, {255, 255, 255}, percentOf(kLeast - light, 255 - light))
                    : chosen);
}

Rgba PlanTheme::area(Color chosen, std::uint8_t alpha) const {
  constexpr double kMost = 60;
  const double light = lightness(chosen);
  return opaque(dark && light > kMost ? towards(chosen, {0, 0, 0}, percentOf(light - kMost, light))
                                      : chosen,
                alpha);
}

const PlanTheme& screenTheme() {
  static constexpr PlanTheme kTheme = makeScreenTheme();
  return kTheme;
}

const PlanTheme& paperTheme() {
  static constexpr PlanTheme kTheme = makePaperTheme();
  return kTheme;
}

const PlanTheme& outlineTheme() {
  static constexpr PlanTheme kTheme = makeOutlineTheme();
  return kTheme;
}

const PlanTheme& nightTheme() {
  static constexpr PlanTheme kTheme = makeNightTheme();
  return kTheme;
}

} // namespace trassix
