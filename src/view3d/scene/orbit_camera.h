// Looking at a scene. Angles in degrees, lengths in mm, places on the screen in pixels from its top
// left corner.
#pragma once

#include "view3d/scene/scene.h"

#include <array>
#include <cstdint>
#include <optional>

namespace trassix {

/// Column by column, as GL takes them.
using Matrix4 = std::array<double, 16>;

Matrix4 product(const Matrix4& a, const Matrix4& b);

/// What of the scene is in view.
class ViewVolume {
 public:
  /// From the projection times the view.
  explicit ViewVolume(const Matrix4& all);

  /// False only for boxes none of which is in view.
  bool meets(Vec3 least, Vec3 most) const;

 private:
  struct Plane {
    Vec3 inwards;
    double offset = 0;
  };
  std::array<Plane, 6> planes_;
};

enum class CameraView : std::uint8_t { Top, Front, Side, Oblique };

/// A point that is looked at from a distance. A plain value.
struct OrbitCamera {
  Vec3 target;
  double yaw = 0;    ///< 0 looks along +y, positive turns anticlockwise seen from above
  double pitch = 35; ///< 90 looks straight down
  double distance = 2000;
  bool orthographic = false; ///< as large as perspective shows what is at the target
  double width = 800;        ///< of the window
  double height = 600;

  Vec3 forward() const;
  Vec3 right() const;
  Vec3 up() const;
  Vec3 eye() const { return target - distance * forward(); }

  Matrix4 view() const;
  /// Depths from near to far as GL has them, -1 to 1.
  Matrix4 projection(const Scene::Bounds& bounds) const;

  struct Pixel {
    double x = 0;
    double y = 0;
  };
  /// None behind the eye.
  std::optional<Pixel> project(Vec3 at) const;
  struct Ray {
    Vec3 origin;
    Vec3 direction; ///< of length 1
  };
  Ray ray(Pixel pixel) const;

  /// How large a pixel is at this place.
  double mmPerPixel(Vec3 at) const;
  /// How small a pixel is at most within a box, as if it were straight ahead.
  double mmPerPixel(Vec3 least, Vec3 most) const;

  /// Turns everything about a point, which stays where it is on the screen. Leaves the view from
  /// above as a perspective one.
  void orbit(Vec3 about, double byYaw, double byPitch);
  /// What is at `at` moves by so many pixels.
  void pan(Vec3 at, double dx, double dy);
  /// Nearer for factors above 1; `at` stays where it is on the screen.
  void zoom(Vec3 at, double factor);
  /// Puts a point into the middle.
  void centre(Vec3 at) { target = at; }
  /// All of it is in view, from where it is looked at.
  void fit(const Scene::Bounds& bounds);
  /// From this place into this direction.
  void standAt(Vec3 eye, Vec3 forward);
  /// Looks from one of the sides, at all of it. The top view is orthographic.
  void look(CameraView from, const Scene::Bounds& bounds);
};

} // namespace trassix
