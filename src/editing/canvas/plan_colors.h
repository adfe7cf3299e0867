// The colours of the plan, in one place: a light sheet on which track stands out.
#pragma once

#include "catalog/scenery_catalog.h"
#include "editing/canvas/surface.h"
#include "editing/elevation/grades.h"

#include <array>
#include <cstdint>

namespace trassix::plan_colors {

inline constexpr Rgba kDesk{232, 234, 237};
inline constexpr Rgba kBoard{252, 250, 245};
inline constexpr Rgba kBoardEdge{150, 140, 122};
inline constexpr Rgba kGridFine{60, 80, 110, 22};
inline constexpr Rgba kGridCoarse{60, 80, 110, 52};
inline constexpr Rgba kRuler{84, 94, 108};

inline constexpr Color kBed{203, 198, 187};
inline constexpr Color kBridgeBed{176, 190, 204};
inline constexpr Color kRampBed{214, 200, 160};
inline constexpr Rgba kBedEdge{132, 126, 114, 180}; ///< as dark as half a line of full strength
inline constexpr Rgba kSleeper{122, 102, 82};
inline constexpr Rgba kRail{52, 58, 66};
inline constexpr Rgba kFarTrack{74, 80, 90};
inline constexpr Rgba kFarBeneath{150, 150, 152};

inline constexpr Rgba kSelected{32, 108, 214};
inline constexpr Rgba kHover{32, 108, 214, 120};
inline constexpr Rgba kGhost{32, 108, 214, 90};
inline constexpr Rgba kSnapped{22, 140, 72};

inline constexpr Rgba kOpenEnd{214, 82, 30};
inline constexpr Rgba kJoinedEnd{58, 128, 84};
inline constexpr Rgba kPaper{255, 255, 255};

inline constexpr Rgba kArticle{40, 46, 56};
inline constexpr Rgba kLabel{24, 30, 40};
inline constexpr Rgba kMeasure{170, 40, 110};
inline constexpr Rgba kFarArticle{132, 136, 144}; ///< of other levels than the active one
inline constexpr Rgba kTunnel{112, 104, 96};

/// Of track by how steep it is, as `GradeBand` counts.
inline constexpr std::array<Rgba, 4> kGradeBands{
    {{34, 146, 70}, {214, 138, 0}, {206, 42, 34}, {150, 12, 60}}};
inline constexpr Rgba gradeColor(GradeBand band) {
  return kGradeBands[static_cast<std::size_t>(band)];
}
inline Rgba gradeColor(double slope) {
  return gradeColor(gradeBand(slope));
}

/// By category, in its order.
inline constexpr std::array<Rgba, kSceneryCategoryCount> kSceneryByCategory{{{178, 108, 80},
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

/// Null for an item that the catalogue does not know.
inline Rgba sceneryColor(const SceneryDef* definition) {
  return kSceneryByCategory[static_cast<std::size_t>(definition ? definition->category
                                                                : SceneryCategory::Building)];
}

/// What lies on another level than the active one. Towards the sheet rather than transparent, so
/// that what lies below does not shine through.
constexpr Rgba faded(Rgba color) {
  const auto mix = [](int a, int b) { return static_cast<std::uint8_t>((a * 2 + b * 3) / 5); };
  return {mix(color.r, kBoard.r), mix(color.g, kBoard.g), mix(color.b, kBoard.b), color.a};
}

} // namespace trassix::plan_colors
