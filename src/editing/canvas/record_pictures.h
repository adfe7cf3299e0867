// How records are drawn and called, kind by kind. Track and scenery, which are drawn level by
// level, the `LayoutPainter` draws itself.
#pragma once

#include "document/layout.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_theme.h"

#include <span>
#include <string>

namespace trassix {

/// A surface with a part of a plan on it.
struct PictureSite {
  Surface& surface;
  Box part; ///< px, of what is drawn
  const ViewTransform& view;
  const Layout& layout;
  const PlanTheme& theme;
  bool selection = true; ///< what is selected looks selected

  /// True when nothing within `reach` px of the points' box is drawn.
  bool isBeside(std::span<const Point> px, double reach) const;
};

/// How records are drawn that are not on the plan, such as those that hang on the pointer.
struct CarriedLook {
  PieceLook track;
  Stroke edge;
};

// One of each for every kind of record. What is carried lies where the record says.
void paintRecord(const PictureSite& site, const Shape& shape);
/// Without the texts of a helix that is drawn as a ring.
void paintRecord(const PictureSite& site, const Helix& helix);
void paintRecord(const PictureSite& site, const Tunnel& tunnel);
void paintRecord(const PictureSite& site, const Measurement& tape);
void paintRecord(const PictureSite& site, const Label& label);

// What makes it look selected, over its picture.
void paintSelected(const PictureSite& site, const Shape& shape);
void paintSelected(const PictureSite& site, const Tunnel& tunnel);
void paintSelected(const PictureSite& site, const SceneryItem& item);
void paintSelected(const PictureSite& site, const Measurement& tape);
void paintSelected(const PictureSite& site, const Label& label);

void paintCarried(const PictureSite& site, const Shape& shape, const CarriedLook& look);
void paintCarried(const PictureSite& site, const Helix& helix, const CarriedLook& look);
void paintCarried(const PictureSite& site, const Tunnel& tunnel, const CarriedLook& look);
void paintCarried(const PictureSite& site, const SceneryItem& item, const CarriedLook& look);
void paintCarried(const PictureSite& site, const PlacedPiece& piece, const CarriedLook& look);
void paintCarried(const PictureSite& site, const Measurement& tape, const CarriedLook& look);
void paintCarried(const PictureSite& site, const Label& label, const CarriedLook& look);

/// Article and name of a piece, the name or text of other things.
std::string nameOf(const Layout& layout, const Shape& shape);
std::string nameOf(const Layout& layout, const SceneryItem& item);
std::string nameOf(const Layout& layout, const PlacedPiece& piece);
std::string nameOf(const Layout& layout, const Measurement& tape);
std::string nameOf(const Layout& layout, const Label& label);

/// Draws a tape between two points with its length.
void paintTape(const PictureSite& site, Point from, Point to, bool selected);

/// Of the articles beside track, of this level or another.
TextStyle articleStyle(const PlanTheme& theme, bool faded);

/// The heading of a text along a line, so that it can be read; degrees.
double uprightAngle(double heading);

} // namespace trassix
