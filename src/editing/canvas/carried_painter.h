#pragma once

#include "editing/canvas/record_pictures.h"
#include "geometry/pose.h"

#include <vector>

namespace trassix {

/// Draws records that are not on the plan, such as those that hang on the pointer or that a dialog
/// offers: track as it would lie, everything else as outlines.
class CarriedPainter {
 public:
  /// `layout` is the plan under them, `fits` whether they are where they belong.
  CarriedPainter(Surface& surface, const ViewTransform& view, const Layout& layout,
                 const PlanTheme& theme, bool fits);

  /// The records where the motion brings them.
  void paint(const PlanContent& records, const RigidMotion& motion = {});
  /// What is selected on the plan, likewise.
  void paintSelection(const RigidMotion& motion);

 private:
  void paintOne(const auto& record, const RigidMotion& motion);
  void paintTrack();

  PictureSite site_;
  CarriedLook look_;
  PiecePainter piecePainter_;
  std::vector<PiecePainter::Piece> track_; ///< of one kind, to be drawn at one go
};

} // namespace trassix
