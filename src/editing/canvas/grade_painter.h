// Heights on the plan: grades in their colours, heights where the grade changes, clearances.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "editing/canvas/occupancy.h"
#include "editing/canvas/piece_painter.h"
#include "editing/elevation/crossings.h"

#include <span>
#include <string>
#include <vector>

namespace trassix {

class GradePainter {
 public:
  GradePainter(Surface& surface, SizePx size, const ViewTransform& view, const Layout& layout)
      : surface_(surface), size_(size), view_(view), layout_(layout), piecePainter_(surface, view),
        badges_(size) {}

  struct Track {
    const PlacedPiece* piece;
    const PieceDef* definition;
    bool beneath = false; ///< under a hill or a deck
  };

  /// Graded track in its colour, with arrows that point uphill; what lies higher over the rest.
  void paintColors(std::vector<Track> track);

  /// Clearances, heights at knees and open ends, then grades, as far as there is room for each:
  /// texts keep off `taken` and take what they need of it.
  void paintTexts(std::span<const Track> track, std::span<const TrackCrossing> crossings,
                  Occupancy& taken);

  void paintLegend();

 private:
  void paintArrow(const Track& track, Rgba color);
  void paintClearances(std::span<const TrackCrossing> crossings, Occupancy& taken);
  void paintKnee(const Track& track, std::int32_t connector, Occupancy& taken);
  void paintPercent(const Track& track, Occupancy& taken);
  bool isKnee(const Track& track, std::int32_t connector) const;
  void badge(const std::string& text, Point centre, bool tooLow);
  SizePx badgeSize(const std::string& text);
  std::string number(double mm) const;

  Surface& surface_;
  SizePx size_;
  const ViewTransform& view_;
  const Layout& layout_;
  PiecePainter piecePainter_;
  Occupancy badges_;
  std::vector<Point> arrows_; ///< px
  struct Told {
    Point at; ///< px
    std::string text;
  };
  std::vector<Told> told_;
};

} // namespace trassix
