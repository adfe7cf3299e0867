// Heights on the plan: grades in their colours, heights where the grade changes, clearances.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "editing/canvas/article_places.h"
#include "editing/canvas/kept_drawing.h"
#include "editing/canvas/occupancy.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_theme.h"
#include "editing/elevation/crossings.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace trassix {

class GradePlaces;
class HelixRings;

class GradePainter {
 public:
  GradePainter(Surface& surface, const ViewTransform& view, const Layout& layout,
               const PlanTheme& theme)
      : surface_(surface), view_(view), layout_(layout), theme_(theme),
        piecePainter_(surface, view, theme) {}

  struct Track {
    const PlacedPiece* piece;
    const PieceDef* definition;
    bool beneath = false; ///< under a hill or a deck
  };

  /// Graded track in its colour, with arrows that point uphill; what lies higher over the rest.
  /// Where there are `places`, arrows stand as they say, else where there is room among this track.
  void paintColors(std::vector<Track> track, const GradePlaces* places = nullptr);

  /// In a window of this size.
  void paintLegend(SizePx size);

 private:
  friend GradePlaces;

  /// Clearances, heights at knees and open ends, then grades, as far as there is room for each off
  /// the track.
  void paintTexts(std::span<const Track> track, std::span<const TrackCrossing> crossings,
                  ArticlePlaces& articles);
  bool takeArrow(const Track& track);
  void paintArrow(const Track& track, Rgba color);
  void paintClearances(std::span<const TrackCrossing> crossings);
  void paintKnee(const Track& track, std::int32_t connector, ArticlePlaces& articles);
  void paintPercent(const Track& track, ArticlePlaces& articles);
  bool isKnee(const Track& track, std::int32_t connector) const;
  void badge(const std::string& text, Point centre, bool tooLow);
  SizePx badgeSize(const std::string& text);
  std::string number(double mm) const;

  Surface& surface_;
  const ViewTransform& view_;
  const Layout& layout_;
  const PlanTheme& theme_;
  const TextStyle heightText_{theme_.label, 11, true};
  PiecePainter piecePainter_;
  OpenOccupancy badges_;
  OpenOccupancy taken_;       ///< by texts
  std::vector<Point> arrows_; ///< px
  struct Told {
    Point at; ///< px
    std::string text;
  };
  std::vector<Told> told_;
};

/// Where what tells of grades stands on a plan. That depends on the plan and the scale and not on
/// what is in view, so that parts of a picture fit together.
class GradePlaces {
 public:
  struct Plan {
    const Layout& layout;
    const PlanIndex& index;
    const HelixRings& rings;
    std::span<const std::int32_t> leftOut; ///< sorted ids of pieces that are not there
    std::span<const TrackCrossing> crossings;
    std::span<const ArticlePlaces::Place> others; ///< texts, px from the plan's origin
    const PlanTheme& theme;
  };
  /// To be called before all else. `articles` follow the same plan.
  void follow(Surface& surface, const Plan& plan, double zoom, ArticlePlaces& articles);

  bool hasArrow(std::int32_t piece) const;
  /// Whether no text stands there, px from the plan's origin.
  bool isFree(Point centre, SizePx box, double degrees) const {
    return taken_.isFree(centre, box, degrees);
  }
  /// Draws the texts near the part of the surface on which the plan's origin is at `origin`.
  void paint(Surface& surface, Point origin, const Box& part) const {
    texts_.drawOn(surface, origin, part);
  }

 private:
  std::uint64_t stamp_ = 0;
  std::vector<std::int32_t> arrows_; ///< sorted ids
  OpenOccupancy taken_;
  KeptDrawing texts_;
};

} // namespace trassix
