#include "view3d/track_gl_canvas.h"

#include "document/layout.h"
#include "document/open_plan.h"
#include "editing/selection/finding.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "view3d/gl_calls.h"

#include <wx/dcclient.h>
#include <wx/translation.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace trassix {

namespace {

constexpr double kOrbitStep = 0.4;  // degrees a pixel
constexpr double kKeyTurn = 5;      // degrees
constexpr double kWheelZoom = 1.25; // a notch
constexpr int kClickPlay = 3;       // px
constexpr int kTick = 16;           // ms
constexpr int kRest = 150;          // ms without a new picture

/// Where within a pixel its samples are.
constexpr std::pair<double, double> kSamples[] = {
    {-0.125, -0.375}, {0.375, -0.125}, {-0.375, 0.125}, {0.125, 0.375}};

/// Whether there is any use in asking for a picture with smoothed edges.
bool& asksForSamples() {
  static bool asks = true;
  return asks;
}

/// The best kind of picture that the display has, from smoothed edges and shadows down to plain.
const wxGLAttributes* attributes() {
  struct Wish {
    int samples;
    int stencil;
    int depth;
  };
  const auto find = [](bool withSamples) -> std::unique_ptr<wxGLAttributes> {
    for (const Wish wish :
         {Wish{4, 8, 24}, Wish{2, 8, 24}, Wish{0, 8, 24}, Wish{0, 0, 24}, Wish{0, 0, 16}}) {
      if (wish.samples > 0 && !withSamples)
        continue;
      auto attributes = std::make_unique<wxGLAttributes>();
      attributes->PlatformDefaults().RGBA().DoubleBuffer().Depth(wish.depth);
      if (wish.stencil > 0)
        attributes->Stencil(wish.stencil);
      if (wish.samples > 0)
        attributes->SampleBuffers(1).Samplers(wish.samples);
      attributes->EndList();
      if (wxGLCanvas::IsDisplaySupported(*attributes))
        return attributes;
    }
    return nullptr;
  };
  static const auto best = find(true);
  static const auto plain = find(false);
  return asksForSamples() ? best.get() : plain.get();
}

} // namespace

class TrackGLCanvas::Follower : public PlanObserver {
 public:
  Follower(TrackGLCanvas& canvas, Workspace& workspace)
      : PlanObserver(workspace), canvas_(canvas) {}

  void planChanged() override { canvas_.Refresh(false); }
  void planReplaced() override { canvas_.planReplaced(); }
  void selectionChanged() override { canvas_.Refresh(false); }

 private:
  TrackGLCanvas& canvas_;
};

bool TrackGLCanvas::isPossible() {
  return attributes() != nullptr;
}

TrackGLCanvas::TrackGLCanvas(wxWindow* parent, Workspace& workspace, std::function<void()> told)
    : wxGLCanvas(parent, *attributes(), wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE, "view3D"),
      workspace_(workspace), follower_(std::make_unique<Follower>(*this, workspace)),
      told_(std::move(told)), context_(std::make_unique<wxGLContext>(this)), timer_(this),
      rest_(this) {
  camera_.yaw = 30;
  if (!context_->IsOK())
    problem_ = _("The display's driver refuses to draw with OpenGL.");
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
    wxPaintDC dc(this);
    paint();
  });
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    Refresh(false);
  });
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_UP,
                           wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP, wxEVT_MOTION, wxEVT_LEFT_DCLICK})
    Bind(type, &TrackGLCanvas::onMouse, this);
  Bind(wxEVT_MOUSEWHEEL, &TrackGLCanvas::onWheel, this);
  Bind(wxEVT_KEY_DOWN, &TrackGLCanvas::onKey, this);
  Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { drag_ = Drag::None; });
  Bind(
      wxEVT_TIMER, [this](wxTimerEvent&) { rideOn(); }, timer_.GetId());
  Bind(
      wxEVT_TIMER, [this](wxTimerEvent&) { paintSmoothed(); }, rest_.GetId());
}

TrackGLCanvas::~TrackGLCanvas() {
  if (HasCapture())
    ReleaseMouse();
}

void TrackGLCanvas::leavePlan() {
  endRide();
  letGo();
  rest_.Stop();
  follower_.reset();
}

bool TrackGLCanvas::makeCurrent() {
  if (!problem_.empty() || toBeReplaced_ || !follower_ || !IsShownOnScreen() ||
      !SetCurrent(*context_))
    return false;
  if (renderer_)
    return true;
  const GlAbilities abilities = GlAbilities::ofContext();
  if (abilities.byProcessor && abilities.smooths && asksForSamples()) {
    asksForSamples() = false;
    toBeReplaced_ = true;
    told_();
    return false;
  }
  smooths_ = abilities.smooths;
  renderer_ = std::make_unique<SceneRenderer>(abilities);
  return true;
}

void TrackGLCanvas::planReplaced() {
  endRide();
  view_.levels.clear();
  fitted_ = false;
  Refresh(false);
}

void TrackGLCanvas::refreshScene() {
  const SceneChanges changes = keeper_.update(workspace_.layout());
  if (renderer_)
    renderer_->forget(changes);
  const wxSize size = GetClientSize();
  camera_.width = std::max(1.0, size.x * pixelScale());
  camera_.height = std::max(1.0, size.y * pixelScale());
  if (!fitted_ && !keeper_.scene().batches.empty()) {
    camera_.look(CameraView::Oblique, keeper_.scene().bounds());
    fitted_ = true;
    CallAfter(told_); // no longer that there is nothing
  }
}

const Scene& TrackGLCanvas::scene() {
  refreshScene();
  return keeper_.scene();
}

OrbitCamera TrackGLCanvas::shownCamera() const {
  OrbitCamera camera = camera_;
  if (ride_) {
    const RideView view = ride_->view(workspace_.layout());
    camera.standAt(view.eye, view.forward);
  }
  return camera;
}

void TrackGLCanvas::drawInto(const OrbitCamera& camera, const PictureTile& tile) {
  SceneRenderer::Look look;
  look.width = static_cast<int>(camera.width);
  look.height = static_cast<int>(camera.height);
  look.dark = ride_ ? ride_->view(workspace_.layout()).dark : 0;
  look.selection = !ride_;
  look.tile = tile;
  renderer_->draw(workspace_.layout(), keeper_.scene(), view_, camera, look);
  if (view_.labels && !ride_)
    labels_.draw(shownLabels(), camera, tile, pixelScale());
}

std::vector<SceneLabel> TrackGLCanvas::shownLabels() const {
  std::vector<SceneLabel> labels = keeper_.scene().labels;
  std::erase_if(labels, [this](const SceneLabel& label) {
    return view_.cut && label.at.z - kLabelHeight > *view_.cut;
  });
  return labels;
}

void TrackGLCanvas::paint() {
  if (!makeCurrent())
    return;
  refreshScene();
  drawInto(shownCamera(), {});
  SwapBuffers();
  if (!smooths_ && !ride_)
    rest_.StartOnce(kRest);
}

/// The pixels of a tile, row by row from below; with smoothed edges, whatever the driver does.
std::vector<unsigned char> TrackGLCanvas::smoothed(const OrbitCamera& camera, PictureTile tile) {
  const auto width = static_cast<int>(camera.width);
  const auto height = static_cast<int>(camera.height);
  std::vector<unsigned char> pixels(static_cast<std::size_t>(width) *
                                    static_cast<std::size_t>(height) * 3);
  glPixelStorei(GL_PACK_ALIGNMENT, 1);
  const auto read = [&] {
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
  };
  if (smooths_) {
    drawInto(camera, tile);
    read();
    return pixels;
  }
  std::vector<std::uint16_t> sums(pixels.size(), std::size(kSamples) / 2);
  for (const auto& [x, y] : kSamples) {
    tile.right = x / camera.width;
    tile.up = y / camera.height;
    drawInto(camera, tile);
    read();
    std::ranges::transform(sums, pixels, sums.begin(), [](std::uint16_t sum, unsigned char value) {
      return static_cast<std::uint16_t>(sum + value);
    });
  }
  std::ranges::transform(sums, pixels.begin(), [](std::uint16_t sum) {
    return static_cast<unsigned char>(sum / std::size(kSamples));
  });
  return pixels;
}

/// What stands still is worth more time than what moves.
void TrackGLCanvas::paintSmoothed() {
  if (ride_ || drag_ != Drag::None || !makeCurrent())
    return;
  refreshScene();
  const OrbitCamera camera = shownCamera();
  const std::vector<unsigned char> pixels = smoothed(camera, {});
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glDisable(GL_LIGHTING);
  glDisable(GL_DEPTH_TEST);
  glRasterPos2f(-1, -1);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glDrawPixels(static_cast<int>(camera.width), static_cast<int>(camera.height), GL_RGB,
               GL_UNSIGNED_BYTE, pixels.data());
  glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  SwapBuffers();
}

wxImage TrackGLCanvas::picture(int times) {
  if (!makeCurrent())
    return {};
  refreshScene();
  const OrbitCamera camera = shownCamera();
  const auto width = static_cast<int>(camera.width);
  const auto height = static_cast<int>(camera.height);
  wxImage whole(width * times, height * times);
  for (int row = 0; row < times; ++row)
    for (int column = 0; column < times; ++column) {
      const std::vector<unsigned char> rows = smoothed(camera, {times, column, row});
      for (int y = 0; y < height; ++y) { // which come from below
        const auto from =
            static_cast<std::size_t>(height - 1 - y) * static_cast<std::size_t>(width);
        const auto to =
            static_cast<std::size_t>(row * height + y) * static_cast<std::size_t>(width * times) +
            static_cast<std::size_t>(column * width);
        std::copy_n(rows.data() + from * 3, static_cast<std::size_t>(width) * 3,
                    whole.GetData() + to * 3);
      }
    }
  return whole;
}

void TrackGLCanvas::setView(const SceneView& view) {
  view_ = view;
  Refresh(false);
}

void TrackGLCanvas::look(CameraView from) {
  endRide();
  camera_.look(from, scene().bounds());
  Refresh(false);
}

void TrackGLCanvas::fit() {
  endRide();
  camera_.fit(scene().bounds());
  Refresh(false);
}

OrbitCamera::Pixel TrackGLCanvas::pixelOf(wxPoint at) const {
  return {(at.x + 0.5) * pixelScale(), (at.y + 0.5) * pixelScale()};
}

std::optional<SceneHit> TrackGLCanvas::hitAt(OrbitCamera::Pixel pixel) {
  const OrbitCamera::Ray ray = shownCamera().ray(pixel);
  return hitOf(workspace_.layout(), scene(), view_, ray.origin, ray.direction);
}

/// What the pointer is over; beside the layout as far away as its middle.
Vec3 TrackGLCanvas::placeAt(OrbitCamera::Pixel pixel) {
  if (const auto hit = hitAt(pixel))
    return hit->at;
  const OrbitCamera::Ray ray = camera_.ray(pixel);
  const double share =
      dot(camera_.target - ray.origin, camera_.forward()) / dot(ray.direction, camera_.forward());
  return ray.origin + share * ray.direction;
}

void TrackGLCanvas::onMouse(wxMouseEvent& event) {
  if (event.LeftDClick()) {
    if (!ride_) {
      camera_.centre(placeAt(pixelOf(event.GetPosition())));
      Refresh(false);
    }
  } else if (event.ButtonDown()) {
    press(event);
  } else if (event.ButtonUp()) {
    release(event.GetPosition());
  } else if (drag_ != Drag::None) {
    move(event.GetPosition());
  }
}

void TrackGLCanvas::press(const wxMouseEvent& event) {
  SetFocus();
  if (ride_ || drag_ != Drag::None)
    return;
  drag_ = event.LeftDown() && !event.ShiftDown() ? Drag::Orbit : Drag::Pan;
  moved_ = !event.LeftDown();
  last_ = pressed_ = event.GetPosition();
  about_ = placeAt(pixelOf(last_));
  CaptureMouse();
}

void TrackGLCanvas::move(wxPoint to) {
  const wxPoint far = to - pressed_;
  if (!moved_ && std::max(std::abs(far.x), std::abs(far.y)) <= FromDIP(kClickPlay))
    return;
  moved_ = true;
  const wxPoint by = to - last_;
  last_ = to;
  if (drag_ == Drag::Orbit)
    camera_.orbit(about_, -kOrbitStep * by.x, kOrbitStep * by.y);
  else
    camera_.pan(about_, by.x * pixelScale(), by.y * pixelScale());
  Refresh(false);
}

void TrackGLCanvas::release(wxPoint at) {
  const bool click = drag_ == Drag::Orbit && !moved_;
  letGo();
  if (click)
    select(pixelOf(at));
}

void TrackGLCanvas::letGo() {
  drag_ = Drag::None;
  if (HasCapture())
    ReleaseMouse();
}

void TrackGLCanvas::select(OrbitCamera::Pixel pixel) {
  const auto hit = hitAt(pixel);
  std::vector<Pick> picks;
  if (hit && hit->key.isRecord())
    picks.push_back({hit->key.kind, hit->key.id});
  selectThese(workspace_.layout(), picks);
  workspace_.selectionChanged();
}

/// Not so far away that nothing is left to be seen.
void TrackGLCanvas::zoom(Vec3 at, double factor) {
  constexpr double kFarthest = 8; // of the scene's size
  const Scene::Bounds bounds = scene().bounds();
  const double farthest =
      std::max(kFarthest * lengthOf(bounds.most - bounds.least), camera_.distance);
  camera_.zoom(at, std::max(factor, camera_.distance / farthest));
}

void TrackGLCanvas::onWheel(wxMouseEvent& event) {
  if (ride_ || event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL)
    return;
  const double notches =
      static_cast<double>(event.GetWheelRotation()) / std::max(event.GetWheelDelta(), 1);
  zoom(placeAt(pixelOf(event.GetPosition())), std::pow(kWheelZoom, notches));
  Refresh(false);
}

void TrackGLCanvas::onKey(wxKeyEvent& event) {
  if (ride_ ? rideKey(event.GetKeyCode()) : lookKey(event)) {
    Refresh(false);
    told_();
  } else {
    event.Skip();
  }
}

bool TrackGLCanvas::lookKey(const wxKeyEvent& event) {
  struct Step {
    int key;
    double x;
    double y;
  };
  static constexpr Step kSteps[] = {
      {WXK_LEFT, -1, 0}, {WXK_RIGHT, 1, 0}, {WXK_UP, 0, 1}, {WXK_DOWN, 0, -1}};
  const int key = event.GetKeyCode();
  if (event.ControlDown() || event.AltDown())
    return false;
  if (const auto* step = std::ranges::find(kSteps, key, &Step::key); step != std::end(kSteps)) {
    if (event.ShiftDown())
      camera_.pan(camera_.target, -step->x * camera_.width / 20, step->y * camera_.height / 20);
    else
      camera_.orbit(camera_.target, kKeyTurn * step->x, kKeyTurn * step->y);
    return true;
  }
  for (const auto& [plain, onPad, factor] :
       {std::tuple('+', WXK_NUMPAD_ADD, kWheelZoom), {'-', WXK_NUMPAD_SUBTRACT, 1 / kWheelZoom}})
    if (key == plain || key == onPad || (key == '=' && plain == '+')) {
      zoom(camera_.target, factor);
      return true;
    }
  // The menu's keys without a modifier do not come through where the toolkit types with them.
  static constexpr CameraView kViews[] = {CameraView::Top, CameraView::Front, CameraView::Side,
                                          CameraView::Oblique};
  for (const int first : {static_cast<int>('1'), static_cast<int>(WXK_NUMPAD1)})
    if (key >= first && key < first + static_cast<int>(std::size(kViews))) {
      look(kViews[key - first]);
      return true;
    }
  return false;
}

bool TrackGLCanvas::rideKey(int key) {
  switch (key) {
  case WXK_ESCAPE:
    endRide();
    return true;
  case WXK_LEFT:
    ride_->choose(RideBranch::Left);
    break;
  case WXK_RIGHT:
    ride_->choose(RideBranch::Right);
    break;
  case WXK_UP:
    direction_ = 1;
    ride_->choose(RideBranch::Straight);
    break;
  case WXK_DOWN:
    direction_ = -1;
    break;
  case WXK_SPACE:
    direction_ = direction_ == 0 ? 1 : 0;
    break;
  default:
    return false;
  }
  return true;
}

bool TrackGLCanvas::startRide(double kilometresPerHour) {
  const std::vector<std::int32_t> pieces = selectedPieces(workspace_.layout());
  if (pieces.empty())
    return false;
  TrackRide ride(workspace_.layout(), pieces.front());
  if (ride.isOver(workspace_.layout()))
    return false;
  letGo();
  ride_ = ride;
  view_.levels[workspace_.layout().findPiece(pieces.front())->level] = true;
  speed_ = kilometresPerHour;
  direction_ = 1;
  clock_.Start();
  lastTick_ = 0;
  timer_.Start(kTick);
  SetFocus();
  Refresh(false);
  told_();
  return true;
}

void TrackGLCanvas::haltRide(bool halted) {
  if (!ride_)
    return;
  if (halted)
    return timer_.Stop();
  lastTick_ = clock_.Time();
  timer_.Start(kTick);
}

void TrackGLCanvas::endRide() {
  if (!ride_)
    return;
  timer_.Stop();
  ride_.reset();
  Refresh(false);
  told_();
}

void TrackGLCanvas::rideOn() {
  const trassix::Layout& layout = workspace_.layout();
  const PlacedPiece* piece = ride_ ? layout.findPiece(ride_->piece()) : nullptr;
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  if (definition == nullptr || ride_->isOver(layout))
    return endRide();
  constexpr long kLongest = 250; // ms: where painting takes longer, it goes slower instead
  const long now = clock_.Time();
  const double seconds = static_cast<double>(std::min(now - lastTick_, kLongest)) / 1000;
  lastTick_ = now;
  if (direction_ == 0)
    return;
  const RideBranch chosen = ride_->chosen();
  if (!ride_->advance(layout, direction_ * seconds * modelSpeed(definition->system, speed_)))
    direction_ = 0;
  if (direction_ == 0 || ride_->chosen() != chosen)
    told_();
  Refresh(false);
}

wxString TrackGLCanvas::hint() const {
  if (!ride_ && keeper_.scene().batches.empty())
    return _("There is nothing on the plan yet.");
  if (!ride_)
    return _("Drag: turn    Shift+drag or middle button: move    Wheel: zoom    Click: select    "
             "Double-click: into the middle    Home: all");
  const wxString keys = _("Up, down: forwards, backwards    Space: stop    Left, right: where to "
                          "go at the next turnout    Esc: end of the ride");
  if (direction_ == 0)
    return _("The train stands.") + "    " + keys;
  if (ride_->chosen() == RideBranch::Straight)
    return keys;
  return (ride_->chosen() == RideBranch::Left ? _("Next turnout: left")
                                              : _("Next turnout: right")) +
         "    " + keys;
}

} // namespace trassix
