#include "editing/canvas/recording_surface.h"
#include "editing/canvas/scenery/scenery_painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace trassix::test {
namespace {

const std::array<const PlanTheme*, 4> kThemes{&screenTheme(), &paperTheme(), &outlineTheme(),
                                              &nightTheme()};

/// All that is drawn, as numbers.
class Trace : public RecordingSurface {
 public:
  std::vector<double> drawn;

  void polyline(std::span<const Point> points, const Stroke& stroke) override {
    keep(points, stroke.color);
  }
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke>) override {
    keep(points, fill.value_or(Rgba{}));
  }

 private:
  void keep(std::span<const Point> points, Rgba color) {
    drawn.insert(drawn.end(), {1.0 * color.r, 1.0 * color.g, 1.0 * color.b, 1.0 * color.a});
    for (const Point& p : points)
      drawn.insert(drawn.end(), {p.x, p.y});
  }
};

std::vector<double> traceOf(const SceneryDef& item, const Footprint& size, const PlanTheme& theme,
                            double zoom) {
  Trace trace;
  const ViewTransform view = ViewTransform::ofScale(zoom, {300, 300});
  SceneryPainter(trace, view, theme).paint({sceneryPictureOf(item, size, 1), {0, 0, 30}});
  return trace.drawn;
}

TEST(SceneryPainter, NoTwoItemsLookTheSameEvenInOneSize) {
  for (const PlanTheme* theme : kThemes) {
    std::map<std::vector<double>, std::string_view> known;
    for (const SceneryDef& item : sceneryItems()) {
      const auto [other, isNew] =
          known.try_emplace(traceOf(item, {120, 90, 60}, *theme, 4), item.key);
      // Without fills those differ that differ in more than what they are made of.
      EXPECT_TRUE(isNew || !theme->fills) << item.key << " as " << other->second;
      EXPECT_GT(other->first.size(), 12u) << item.key;
    }
  }
}

TEST(SceneryPainter, EveryItemStaysWithinItsFootprint) {
  for (const SceneryDef& item : sceneryItems()) {
    const Footprint size = item.footprint(TrackSystem::KTrack);
    const SceneryPicture picture = deriveSceneryPicture(item, size, 1);
    for (const SceneryMark& mark : picture.marks)
      for (const Point& p : mark.points) {
        EXPECT_LE(std::abs(p.x), size.width / 2 + 1e-6) << item.key;
        EXPECT_LE(std::abs(p.y), size.depth / 2 + 1e-6) << item.key;
      }
  }
}

TEST(SceneryPainter, DetailsOfLessThanTwoPixelsAreLeftOut) {
  for (const char* key : {"forest", "road.carpark", "br.truss"}) {
    const SceneryDef& item = *findScenery(key);
    const Footprint size = item.footprint(TrackSystem::CTrack);
    EXPECT_LT(traceOf(item, size, screenTheme(), 0.05).size() * 4,
              traceOf(item, size, screenTheme(), 4).size())
        << key;
    EXPECT_FALSE(traceOf(item, size, screenTheme(), 0.01).empty()) << key;
  }
}

double luminance(Rgba color) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.r / 255.0) + 0.7152 * linear(color.g / 255.0) +
         0.0722 * linear(color.b / 255.0);
}

double contrast(Rgba a, Rgba b) {
  const auto [low, high] = std::minmax({luminance(a), luminance(b)});
  return (high + 0.05) / (low + 0.05);
}

TEST(PlanTheme, WhatHasToBeReadStandsOutFromItsGround) {
  for (const PlanTheme* theme : kThemes) {
    for (const Rgba& color : {theme->label, theme->article, theme->rail, theme->farTrack})
      EXPECT_GE(contrast(color, theme->board), 7);
    for (const Rgba& color : {theme->ruler, theme->measure, theme->selected, theme->openEnd,
                              theme->joinedEnd, theme->snapped, theme->farArticle})
      EXPECT_GE(contrast(color, theme->board), 3.2);
    EXPECT_GE(contrast(theme->label, theme->plate), 7);
    EXPECT_GE(contrast(theme->rail, opaque(theme->bed)), 4);
  }
  for (const Color chosen :
       {Color{0, 0, 0}, {255, 255, 255}, {0, 0, 255}, {200, 0, 0}, {0, 255, 0}}) {
    EXPECT_GE(contrast(nightTheme().line(chosen), nightTheme().board), 3.2);
    EXPECT_GE(contrast(nightTheme().rail, nightTheme().area(chosen)), 4);
    EXPECT_EQ(paperTheme().line(chosen), opaque(chosen));
  }
}

} // namespace
} // namespace trassix::test
