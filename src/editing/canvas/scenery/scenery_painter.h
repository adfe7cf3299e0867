#pragma once

#include "editing/canvas/plan_theme.h"
#include "editing/canvas/scenery/scenery_picture.h"
#include "editing/canvas/view_transform.h"
#include "geometry/pose.h"

#include <array>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;
struct SceneryItem;

/// Draws scenery from above: what looks alike at one go, details only as far as they can be seen.
class SceneryPainter {
 public:
  SceneryPainter(Surface& surface, const ViewTransform& view, const PlanTheme& theme)
      : surface_(surface), view_(view), theme_(theme) {}

  struct Item {
    std::shared_ptr<const SceneryPicture> picture;
    Pose pose;
    bool faded = false;   ///< on another level than the active one
    bool beneath = false; ///< under a higher deck
  };

  /// An item of a plan as it is drawn.
  static Item itemOf(const Layout& layout, const SceneryItem& item);

  /// A layer of all of them, with the shadows that fall on it.
  void paint(std::span<const Item> items, SceneryLayer layer);
  /// All layers of one.
  void paint(const Item& item);

 private:
  struct Style {
    Rgba color;
    double width = 0; ///< px of lines; areas have none
    bool dashed = false;
    bool upright = false; ///< of lines along the pixels, which the toolkit covers in another way

    bool operator==(const Style&) const = default;
  };
  struct Batch {
    Style style;
    PointRuns runs;
  };

  /// How an item lies on the surface.
  struct Place {
    explicit Place(const Item& item, const ViewTransform& view);
    Point px(Point local) const {
      return {at.x + local.x * c - local.y * s, at.y + local.x * s + local.y * c};
    }

    Point at;
    double c;
    double s;
  };

  void paintShadows(std::span<const Item> items, SceneryLayer layer);
  void add(Style style, const Place& place, std::span<const Point> local, bool closed);
  void gather(const Item& item, const Place& place, const SceneryMark& mark);
  void flush();
  Style styleOf(const Item& item, const SceneryMark& mark) const;
  PointRuns& runsOf(const Style& style);

  Surface& surface_;
  const ViewTransform& view_;
  const PlanTheme& theme_;
  std::vector<Batch> batches_; ///< keep their room
  std::size_t used_ = 0;
  std::vector<Point> run_;
};

/// With the light that falls on it when its item is turned by `heading`.
Rgba sceneryColor(const PlanTheme& theme, const SceneryMark& mark, double heading);
/// Where the shadows of an item end, which lie on one another; mm on the plan.
std::array<Point, 3> shadowTips(const SceneryPicture& picture);

/// How large things of a plan's gauge are, 1 in H0.
double sceneryUnit(TrackSystem system);
/// In the gauge for which the item has that size.
double sceneryUnit(const SceneryDef& item, const Footprint& size);

} // namespace trassix
