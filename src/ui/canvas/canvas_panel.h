#pragma once

#include "editing/canvas/canvas.h"
#include "host/workspace.h"
#include "ui/canvas/plan_picture.h"

#include <wx/panel.h>
#include <wx/timer.h>

namespace trassix {

class Welcome;

/// The plan in the middle of the main window: turns the toolkit's events into plain input for
/// `Canvas` and shows what it draws. The plan itself is kept as a picture, so that carrying
/// something over a large plan repaints only what moves.
class CanvasPanel : public wxPanel, private PlanObserver {
 public:
  CanvasPanel(wxWindow* parent, Workspace& workspace);

  Canvas& canvas() { return canvas_; }

  /// Shows the canvas's state after something outside changed it.
  void update();

  /// Takes something from another window whose mouse button is down.
  void drag(const Carried& what);
  /// Hangs something on the pointer, to be dropped by a click.
  void pickUp(const Carried& what);
  /// The same, but goes on from what is selected with a piece, if there is track.
  void use(const Carried& what);

  /// Where a point of the plan (mm) is shown.
  wxPoint onScreen(Point world) const;

 private:
  void planChanged() override { update(); }
  void planReplaced() override;
  void selectionChanged() override;
  void unitsChanged() override { update(); }
  void switchesChanged() override;
  void pictureChanged() override { update(); }
  void pointedChanged() override { Refresh(false); }
  void shown(const Box& part, bool inTheMiddle) override { canvas_.show(part, inTheMiddle); }

  PointerInput inputOf(const wxMouseEvent& event) const;
  /// Pixels of the window for one of the canvas, where the toolkit leaves a display's resolution to
  /// the program.
  double pixelScale() const;
  Point onCanvas(wxPoint px) const;
  PointerInput inputAt(Point px) const;
  PointerInput inputAtPointer() const;
  void tookUp();
  void onPaint(wxPaintEvent& event);
  void onMouse(wxMouseEvent& event);
  void onWheel(wxMouseEvent& event);
  void onKeyDown(wxKeyEvent& event);
  void onKeyUp(wxKeyEvent& event);
  void onCaptureLost(wxMouseCaptureLostEvent& event);
  void onActivate(wxActivateEvent& event);
  void onSize(wxSizeEvent& event);
  void syncCapture();
  void holdSpace(bool down);
  /// Keeps the plan scrolling while something carried rests at the edge.
  void watchEdge();

  /// True while the plan is empty and nothing is going on.
  bool invites();

  Canvas canvas_;
  Welcome* welcome_;
  PlanPicture picture_{canvas_};
  wxTimer sharpTimer_;
  double scaledTo_ = 0;  ///< the zoom of the last picture that was not sharp
  bool sharpen_ = false; ///< the next picture is to be sharp
  wxTimer edgeTimer_;
  CursorShape cursorShown_ = CursorShape::Arrow;
};

} // namespace trassix
