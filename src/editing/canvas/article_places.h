#pragma once

#include "document/layout.h"
#include "editing/canvas/surface.h"
#include "editing/selection/plan_index.h"
#include "geometry/box.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace trassix {

/// Where articles stand beside their pieces: off the track and off one another. That depends on the
/// plan and the scale and not on what is in view, so that parts of a picture fit together. It is
/// worked out for what is looked at, and kept.
class ArticlePlaces {
 public:
  ArticlePlaces();
  ~ArticlePlaces();

  /// To be called before the places are asked for, which are then those of this plan. `index` is
  /// the plan's, `leftOut` sorted ids of pieces that are not there.
  void follow(const Layout& layout, const PlanIndex& index, double zoom,
              std::span<const std::int32_t> leftOut);

  struct Place {
    Point at; ///< of its centre, px from the plan's origin
    double angle = 0;
    SizePx size;

    bool overlaps(const Place& other) const;
  };
  using Visit = std::function<void(std::size_t position, const Place& place)>;

  /// Whether a box, turned by `degrees`, lies on no track; px from the plan's origin.
  bool isOffTrack(Point centre, SizePx box, double degrees);

  /// Those of pieces near the box (px from the plan's origin), with their positions in the plan, in
  /// its order.
  void visit(const Box& px, Surface& surface, const Visit& visitor);

 private:
  struct Data;
  std::unique_ptr<Data> data_;
};

} // namespace trassix
