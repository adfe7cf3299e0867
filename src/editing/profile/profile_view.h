#pragma once

#include "editing/canvas/surface.h"
#include "editing/profile/profile_scale.h"

namespace trassix {

struct ProfileContent;

/// Which part of a profile is in view. Its heights stay where they are while something is pulled,
/// and are fitted again when that is done.
class ProfileView {
 public:
  void resize(SizePx size) { size_ = size; }
  SizePx size() const { return size_; }
  /// How many times heights are drawn larger than distances; 0 for as it fits.
  void setExaggeration(double times) { exaggeration_ = times; }
  double exaggeration() const { return exaggeration_; }

  ProfileScale scale() const;

  /// The whole way.
  void showAll();
  /// Brings all heights into view, at the distances that are in view.
  void fit(const ProfileContent& content);
  /// Distances only; what is at `x` px stays there.
  void zoom(const ProfileContent& content, double x, double factor);
  void pan(const ProfileContent& content, Point px);
  void keepInView(const ProfileContent& content, double along);
  /// What is pulled beyond the edge takes the picture along.
  void follow(double height);

 private:
  double shown() const { return plot_.width() / plot_.perMm; }
  void begin(const ProfileContent& content, double from);

  SizePx size_;
  ProfileScale plot_;
  double exaggeration_ = 0;
  double zoom_ = 1; ///< times that the whole way is wider than the plot
};

} // namespace trassix
