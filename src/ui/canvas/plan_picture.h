#pragma once

#include "editing/canvas/canvas.h"
#include "geometry/box.h"
#include "ui/canvas/gc_surface.h"

#include <wx/bitmap.h>

#include <cstdint>
#include <functional>

class wxDC;

namespace trassix {

/// The plan as it was drawn last, kept as a picture and once more with what is selected, so that a
/// click or something on the pointer costs only what it shows. When the plan is panned the pictures
/// move and only what comes into view is drawn; when it is zoomed the old one serves, scaled, until
/// there is time for a sharp one. Holds three bitmaps of the window's size.
class PlanPicture {
 public:
  explicit PlanPicture(Canvas& canvas) : canvas_(canvas) {}

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

  /// For what is drawn over the picture.
  GcTexts& texts() { return texts_; }

  /// Everything is drawn anew next time.
  void forget();

 private:
  /// One of the pictures, with what it shows.
  struct Layer {
    wxBitmap bitmap;
    Point origin; ///< of the view
    std::uint64_t stamp = 0;
    bool drawn = false;
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
  void drawScaled(wxDC& dc) const;
  /// What the window shows: without a selection the plan is enough.
  const Layer& top() const { return canvas_.anySelected() ? shown_ : plan_; }

  Canvas& canvas_;
  Window window_;
  Layer plan_;
  Layer shown_;
  wxBitmap spare_;
  mutable GcTexts texts_;
  ViewTransform drawnAs_;        ///< the view that the picture has
  std::uint64_t drawnStamp_ = 0; ///< and what of the plan, but for the view
  long drawingMs_ = 0;           ///< that the last whole picture took
};

} // namespace trassix
