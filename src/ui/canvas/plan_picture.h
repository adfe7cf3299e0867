#pragma once

#include "editing/canvas/canvas.h"
#include "geometry/box.h"
#include "ui/canvas/gc_surface.h"

#include <wx/bitmap.h>

#include <cstddef>
#include <cstdint>
#include <functional>

class wxDC;

namespace trassix {

/// The plan as it was drawn last, kept as a picture and once more with what is selected, so that a
/// click or something on the pointer costs only what it shows. When the plan is panned the pictures
/// move and only what comes into view is drawn; when it is zoomed the old one serves, scaled, until
/// there is time for a sharp one. What is carried as one body has a picture of its own. All bitmaps
/// together hold at most four times the window's pixels.
class PlanPicture {
 public:
  /// A picture that takes no longer than `quickMs` is drawn anew even in a hurry.
  explicit PlanPicture(Canvas& canvas, long quickMs = 12) : canvas_(canvas), quickMs_(quickMs) {}

  /// What a window shows: its size in the toolkit's units, display pixels for one of them, and
  /// units for a pixel of the canvas.
  struct Window {
    wxSize size;
    double contentScale = 1;
    double pixelScale = 1;

    bool operator==(const Window&) const = default;
  };

  /// Draws the picture. `hurried`: an older one at another scale will do. Returns whether that was
  /// taken, so that a sharp one has to follow.
  bool draw(wxDC& dc, const Window& window, bool hurried);

  /// Draws what is carried, over the picture; false when nothing is, or no picture of it is kept:
  /// while it turns, or when it is larger than the window.
  bool drawBody(wxDC& dc);

  /// Pixels of all bitmaps.
  std::size_t keptPixels() const;

  /// For what is drawn over the picture.
  GcTexts& texts() { return texts_; }

  /// Everything is drawn anew next time.
  void forget();

 private:
  /// One of the pictures, with what it shows.
  struct Layer {
    wxBitmap bitmap;
    ViewTransform view;
    std::uint64_t stamp = 0; ///< of what it shows, but for the view
    bool drawn = false;

    bool shows(std::uint64_t what) const { return drawn && stamp == what; }
  };
  struct Body {
    wxBitmap bitmap;
    std::uint64_t stamp = 0;
    Point at;         ///< where it was drawn, px
    wxPoint corner;   ///< and the bitmap's corner then, in the toolkit's units
    bool fits = true; ///< into a bitmap that may be kept
  };
  using PaintPart = std::function<void(wxDC& dc, const Box& part)>;

  void renewPlan();
  void renewShown();
  /// Brings the layer to the view's origin, by moving it when `stamp` says that nothing else has
  /// changed. `part` in the toolkit's units.
  void renew(Layer& layer, std::uint64_t stamp, const PaintPart& paint);
  bool moveBy(Layer& layer, wxPoint by, const PaintPart& paint);
  /// Draws on a part of a bitmap.
  template <class Paint>
  void paintOn(wxDC& dc, const Box& part, Paint paint) const;
  void drawScaled(wxDC& dc, const Layer& layer) const;
  void renewBody(Point at);

  Canvas& canvas_;
  long quickMs_;
  Window window_;
  Layer plan_;
  Layer shown_;
  wxBitmap spare_;
  Body body_;
  mutable GcTexts texts_;
  long drawingMs_ = 0; ///< that the last whole picture took
};

} // namespace trassix
