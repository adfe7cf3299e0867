#pragma once

#include "document/layout.h"
#include "editing/canvas/article_places.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "editing/selection/plan_index.h"
#include "geometry/box.h"

#include <cstdint>
#include <optional>
#include <span>

namespace trassix {

class GradePlaces;
class HelixRings;
struct TrackCrossing;

struct PaintOptions {
  bool grid = true;
  bool labels = true; ///< article labels and join dots
  bool rails = true;
  bool grades = false;                      ///< grades, heights and clearances
  bool scaleBar = true;                     ///< and the legend of the grades
  bool desk = true;                         ///< fill the background; off for printing
  std::span<const std::int32_t> leftOut;    ///< sorted ids of pieces that are drawn elsewhere
  std::span<const TrackCrossing> crossings; ///< of the plan, to be shown with the grades
  std::optional<Box> part;                  ///< px, what of the surface is to be drawn: all of it
  ArticlePlaces* articles = nullptr;        ///< kept between pictures of a plan
  GradePlaces* gradePlaces = nullptr;       ///< likewise
  bool levelsAlike = false;                 ///< else all but the active one are faded
  bool selection = true;                    ///< what is selected looks selected
  const PlanTheme* theme = &screenTheme();
};

/// Draws a plan on any surface: screen, printer, image or a recording. Knows nothing of windows or
/// tools; what lies outside the surface is not drawn.
class LayoutPainter {
 public:
  LayoutPainter(Surface& surface, SizePx size, const ViewTransform& view,
                const PaintOptions& options);

  void paint(const Layout& layout, const PlanIndex& index);
  // Over the plan, what stays where it is in the window.
  void paintScaleBar(std::int32_t units);
  void paintLegend(const Layout& layout);
  /// Over a plan drawn without it.
  void paintSelection(const Layout& layout, const PlanIndex& index);

 private:
  struct Visible;

  void paintGrid(std::int32_t units);
  void paintBoard(const Layout& layout);
  /// Level by level, for what is higher hides what is below.
  void paintTrackAndScenery(const Layout& layout, const PlanIndex& index);
  std::vector<std::size_t> selectedTrack(const Layout& layout, const PlanIndex& index) const;
  std::vector<Visible> visibleTrack(const Layout& layout, const PlanIndex& index,
                                    const HelixRings& rings,
                                    std::span<const std::size_t> positions);
  bool isLeftOut(std::int32_t piece) const;
  bool isFaded(const Layout& layout, std::int32_t level) const;
  void paintUnknown(const PlacedPiece& piece);
  class SceneryOfLevels;
  void paintJoinDots(const Layout& layout, std::span<const Visible> pieces);
  /// What lies on the rings of helices; returns the places of its texts, px.
  std::vector<ArticlePlaces::Place> paintOnRings(const Layout& layout, const HelixRings& rings);
  /// Articles, and what is told of grades, off which they keep; all of them off other texts.
  void paintTexts(const Layout& layout, const PlanIndex& index, const HelixRings& rings,
                  std::span<const Visible> pieces, std::vector<ArticlePlaces::Place> others);
  /// Of what is drawn, in mm, with so many px around it.
  Box shownBox(double marginPx) const;

  Surface& surface_;
  SizePx size_;
  Box part_; ///< px
  const ViewTransform& view_;
  PaintOptions options_;
  const PlanTheme& theme_;
};

} // namespace trassix
