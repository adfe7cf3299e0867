// The colours of the plan, in one place for each ground it is drawn on.
#pragma once

#include "catalog/piece_def.h"
#include "catalog/scenery_catalog.h"
#include "editing/canvas/surface.h"
#include "editing/elevation/grades.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace trassix {

/// What scenery looks like from above is made of.
enum class Material : std::uint8_t {
  Tiles,
  Slate,
  FlatRoof,
  Glass,
  Wall,
  Stone,
  Concrete,
  Asphalt,
  Cobbles,
  Earth,
  Wood,
  Metal,
  Rust,
  Coal,
  Meadow,
  Crop,
  Leaf,
  Sunlit, ///< side of leaves
  Needle,
  Water,
  Red,
  White,
  Yellow,
  Ink,   ///< fine lines
  Paint, ///< lines on roads
};

inline constexpr std::size_t kMaterialCount = 25;

struct PlanTheme {
  // The sheet.
  Rgba desk, board, boardEdge, gridFine, gridCoarse, ruler;
  Rgba plate; ///< under what lies over the plan, as the scale bar
  // Track.
  Color bed, bridgeBed, rampBed, pit;
  Rgba bedEdge; ///< as dark as half a line of full strength
  Rgba sleeper, rail, farTrack;
  Rgba farBeneath; ///< from afar, under a hill or a deck
  Rgba girder;
  // What the user works with.
  Rgba selected, hover, snapped, openEnd, joinedEnd;
  Rgba carriedBed, snappedBed;
  Rgba paper; ///< halos, and the inside of marks
  // Texts and what they are about.
  Rgba article, label, measure;
  Rgba farArticle; ///< of other levels than the active one
  Rgba tunnel;
  Rgba hill;                      ///< inside its edge
  std::array<Rgba, 4> gradeBands; ///< of track by how steep it is, as `GradeBand` counts
  std::array<Rgba, kSceneryCategoryCount> sceneryByCategory; ///< in its order
  std::array<Color, kMaterialCount> materials;
  Rgba shadow;       ///< of what is high; none at alpha 0
  bool fills = true; ///< off, beds and scenery are outlines
  bool dark = false; ///< the sheet, under light lines

  Rgba gradeColor(GradeBand band) const { return gradeBands[static_cast<std::size_t>(band)]; }
  Rgba gradeColor(double slope) const { return gradeColor(gradeBand(slope)); }
  /// Null for an item that the catalogue does not know.
  Rgba sceneryColor(const SceneryDef* definition) const {
    return sceneryByCategory[static_cast<std::size_t>(definition ? definition->category
                                                                 : SceneryCategory::Building)];
  }
  Color bedOf(const PieceDef& piece) const {
    return piece.kind == PieceKind::Turntable ? pit
           : piece.ramp                       ? rampBed
           : piece.bridge                     ? bridgeBed
                                              : bed;
  }
  Color material(Material of) const { return materials[static_cast<std::size_t>(of)]; }

  // A colour that the user chose on some sheet, as it does on this one: for lines that stand out
  // from it, and for areas that rails and texts stand out from.
  Rgba line(Color chosen) const;
  Rgba area(Color chosen, std::uint8_t alpha = 255) const;

  /// What lies on another level than the active one. Towards the sheet rather than transparent, so
  /// that what lies below does not shine through.
  Rgba faded(Rgba color) const {
    const auto mix = [](int a, int b) { return static_cast<std::uint8_t>((a * 2 + b * 3) / 5); };
    return {mix(color.r, board.r), mix(color.g, board.g), mix(color.b, board.b), color.a};
  }
};

/// A light sheet on which track stands out.
const PlanTheme& screenTheme();
/// On white, in fine dark lines and light tints.
const PlanTheme& paperTheme();
/// The same with nothing filled, which spares ink.
const PlanTheme& outlineTheme();
/// For dark desktops.
const PlanTheme& nightTheme();

} // namespace trassix
