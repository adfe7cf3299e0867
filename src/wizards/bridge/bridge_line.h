// The way that a bridge leads along, measured along it in mm.
#pragma once

#include "editing/elevation/train_way.h"
#include "editing/track/routes.h"
#include "geometry/pose.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace trassix {

class Layout;

/// Stays as it was laid out: a change of the plan asks for a new one. Joints go by number: joint i
/// is where stretch i begins.
class BridgeLine {
 public:
  BridgeLine() = default;
  BridgeLine(const Layout& layout, TrainWay way);

  const TrainWay& way() const { return way_; }
  std::size_t stretches() const { return way_.stretches.size(); }
  const std::vector<double>& joints() const { return joints_; }
  double length() const { return joints_.back(); }

  /// Direction of travel included; beyond its ends the way goes straight on.
  Pose poseAt(double along) const;
  double heightAt(double along) const;
  std::size_t stretchAt(double along) const;
  std::size_t lastJointUpTo(double along) const;  ///< 0 before the way
  std::size_t firstJointFrom(double along) const; ///< the last one behind it

  /// The stretch through a piece along this route, or the whole number of stretches.
  std::size_t stretchThrough(std::int32_t piece, std::int32_t from, std::int32_t to) const;

 private:
  struct Laid {
    Pose frame;
    std::vector<RoutePoint> line;
    bool backwards = false;
  };

  TrainWay way_;
  std::vector<double> joints_;
  std::vector<Laid> laid_;
};

} // namespace trassix
