#pragma once

#include "host/workspace.h"
#include "view3d/scene/scene.h"

#include <wx/frame.h>
#include <wx/weakref.h>

#include <filesystem>
#include <string>

class wxChoice;
class wxSlider;

namespace trassix {

class TrackGLCanvas;

/// The window with the layout as it will stand in the room, beside the main window.
class View3DFrame : public wxFrame {
 public:
  View3DFrame(wxWindow* parent, Workspace& workspace);

  /// Null where the display has no GL, which the window says then.
  TrackGLCanvas* canvas() { return canvas_; }

  /// To the front with it, as it is.
  void showAgain();

  /// Writes the picture, so many times as large as in the window; tells when that fails.
  void writePicture(const std::filesystem::path& file, int times);
  /// Writes what is shown as glTF; tells when that fails.
  void writeGltf(const std::filesystem::path& file);

 private:
  struct Row;
  static const Row kRows[];

  void makeCanvas();
  void build();
  void run(const Row& row);
  void flip(bool SceneView::*which);
  void chooseLevels();
  void cut();
  void rideAlong();
  void passOn(int command);
  void savePicture();
  void askForPicture();
  void exportGltf();
  void write(const std::filesystem::path& file, const std::string& bytes);
  void follow();
  void place();
  void remember() const;
  double belowDecks();
  double speed() const;

  Workspace& workspace_;
  TrackGLCanvas* canvas_ = nullptr;
  wxSlider* height_ = nullptr;
  wxChoice* speed_ = nullptr;
  bool cutBefore_ = false; ///< at a height that the user knows
};

/// The 3D window that there is of a plan, or is not.
class View3DWindow {
 public:
  View3DWindow() = default;
  ~View3DWindow();
  View3DWindow(const View3DWindow&) = delete;
  View3DWindow& operator=(const View3DWindow&) = delete;

  /// Makes it, or brings the one that there is to the front.
  void show(wxWindow& parent, Workspace& workspace);
  View3DFrame* frame() { return frame_; }

 private:
  wxWeakRef<View3DFrame> frame_; ///< none when it was closed
};

} // namespace trassix
