#pragma once

#include "document/layout.h"
#include "document/record_kinds.h"
#include "editing/canvas/scenery/scenery_painter.h"
#include "editing/canvas/view_transform.h"
#include "plain_track.h"

#include <wx/graphics.h>

#include <map>
#include <string>
#include <vector>

namespace trassix::bench {

/// A text where the program's picture of a plan shows it.
struct ShownText {
  std::string text;
  Point centre;
  SizePx size;
  double radians = 0;
  TextStyle style;
};

/// The program's picture of a plan of H0 track on one level, drawn the plain way: background, grid,
/// then each piece in document order with its bed, sleepers, rails and joints, one call of the
/// toolkit each, whether it is in view or not, and the texts last. Scenery likewise, item by item
/// and mark by mark, however small. Shares nothing with the program's drawing but its rules of
/// looks: colours, widths, what scenery is made of, and what of track can be seen at which zoom.
class PlainDrawing {
 public:
  /// Where the texts stand is taken as found: choosing their places is no drawing.
  PlainDrawing(const Layout& layout, const ViewTransform& view, SizePx size,
               std::vector<ShownText> texts);

  void draw(wxGraphicsContext& context) const;
  /// Only the pieces with their joints, over what is there.
  void drawTrack(wxGraphicsContext& context) const;

 private:
  class Pencil;
  struct Standing {
    Pose pose;
    SceneryPicture picture;
  };

  void drawTrack(Pencil& pencil) const;
  void drawScenery(Pencil& pencil, SceneryLayer layer) const;

  const Layout& layout_;
  ViewTransform view_;
  SizePx size_;
  std::vector<ShownText> texts_;
  std::map<std::string, PlainTrack> tracks_; ///< by article
  std::vector<Standing> scenery_;
};

} // namespace trassix::bench
