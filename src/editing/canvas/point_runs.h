#pragma once

#include "geometry/point.h"

#include <cstddef>
#include <span>
#include <vector>

namespace trassix {

/// Lines or outlines that are drawn at one go because they look alike.
class PointRuns {
 public:
  bool empty() const { return ends_.empty(); }
  std::size_t size() const { return ends_.size(); }

  /// Room for a run of so many points; good until the next call.
  std::span<Point> add(std::size_t count) {
    points_.resize(points_.size() + count);
    ends_.push_back(points_.size());
    return std::span(points_).last(count);
  }

  std::span<const Point> operator[](std::size_t run) const {
    const std::size_t from = run == 0 ? 0 : ends_[run - 1];
    return std::span(points_).subspan(from, ends_[run] - from);
  }

  /// Keeps its room.
  void clear() {
    points_.clear();
    ends_.clear();
  }

 private:
  std::vector<Point> points_;
  std::vector<std::size_t> ends_; ///< of each run, in `points_`
};

} // namespace trassix
