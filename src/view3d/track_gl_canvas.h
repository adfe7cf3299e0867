#pragma once

#include "host/workspace.h"
#include "view3d/label_painter.h"
#include "view3d/scene/orbit_camera.h"
#include "view3d/scene/scene_keeper.h"
#include "view3d/scene/track_ride.h"
#include "view3d/scene_renderer.h"

#include <wx/glcanvas.h>
#include <wx/image.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace trassix {

/// The picture of the layout in the room: follows the plan, is looked around in with mouse and
/// keys, and selects what is clicked.
class TrackGLCanvas : public wxGLCanvas {
 public:
  /// `told` is called when there is another hint, a ride begins or ends, or it is to be replaced.
  TrackGLCanvas(wxWindow* parent, Workspace& workspace, std::function<void()> told);
  ~TrackGLCanvas() override;

  /// From now on the plan may go.
  void leavePlan();

  /// Whether this display can show GL at all, so that a canvas can be made.
  static bool isPossible();
  /// Smoothing its edges costs more than it is worth here; one made in its place does not.
  bool isToBeReplaced() const { return toBeReplaced_; }
  /// Why it shows nothing all the same; empty when it does.
  const wxString& problem() const { return problem_; }

  const SceneView& view() const { return view_; }
  void setView(const SceneView& view);
  const OrbitCamera& camera() const { return camera_; }
  void look(CameraView from);
  void fit(); ///< all of it, from where it is looked at

  /// From the selected piece; false where there is no track selected to ride on.
  bool startRide(double kilometresPerHour);
  void endRide();
  bool isRiding() const { return ride_.has_value(); }
  /// It stands until it is told to go on.
  void haltRide(bool halted);
  void setRideSpeed(double kilometresPerHour) { speed_ = kilometresPerHour; }
  const TrackRide* ride() const { return ride_ ? &*ride_ : nullptr; }

  /// What mouse and keys do now.
  wxString hint() const;

  /// The scene as it is now.
  const Scene& scene();
  /// What is at a pixel of the picture.
  std::optional<SceneHit> hitAt(OrbitCamera::Pixel pixel);
  /// The picture, so many times as large as the window's; not Ok where the driver gives none.
  wxImage picture(int times);
  /// Pixels of the picture for one of the mouse's.
  double pixelScale() const { return GetContentScaleFactor(); }
  const SceneRenderer* renderer() const { return renderer_.get(); }

 private:
  enum class Drag : std::uint8_t { None, Orbit, Pan };

  class Follower;

  void planReplaced();
  bool makeCurrent();
  void refreshScene();
  void paint();
  void drawInto(const OrbitCamera& camera, const PictureTile& tile);
  std::vector<unsigned char> smoothed(const OrbitCamera& camera, PictureTile tile);
  void paintSmoothed();
  OrbitCamera shownCamera() const;
  std::vector<SceneLabel> shownLabels() const;
  OrbitCamera::Pixel pixelOf(wxPoint at) const;
  Vec3 placeAt(OrbitCamera::Pixel pixel);
  void zoom(Vec3 at, double factor);

  void onMouse(wxMouseEvent& event);
  void onWheel(wxMouseEvent& event);
  void onKey(wxKeyEvent& event);
  bool rideKey(int key);
  bool lookKey(const wxKeyEvent& event);
  void press(const wxMouseEvent& event);
  void move(wxPoint to);
  void release(wxPoint at);
  void select(OrbitCamera::Pixel pixel);
  void rideOn();
  void letGo();

  Workspace& workspace_;
  std::unique_ptr<Follower> follower_;
  std::function<void()> told_;
  wxString problem_;
  bool toBeReplaced_ = false;
  bool smooths_ = false; ///< the driver does, while it draws
  std::unique_ptr<wxGLContext> context_;
  std::unique_ptr<SceneRenderer> renderer_; ///< made when the context is there
  LabelPainter labels_;
  SceneKeeper keeper_;
  SceneView view_;
  OrbitCamera camera_;
  bool fitted_ = false; ///< until something was to be seen

  Drag drag_ = Drag::None;
  bool moved_ = false; ///< since the button was pressed, so that it is no click
  wxPoint last_;
  wxPoint pressed_;
  Vec3 about_;

  std::optional<TrackRide> ride_;
  double speed_ = 60; ///< of the prototype, in km/h
  int direction_ = 1; ///< 0: it stands
  wxTimer timer_;
  wxTimer rest_; ///< until nothing has moved for a while
  wxStopWatch clock_;
  long lastTick_ = 0;
};

} // namespace trassix
