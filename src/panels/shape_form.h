#pragma once

#include "document/plan_settings.h"
#include "document/shape.h"
#include "panels/length_entry.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// A shape while its dialog is open.
class ShapeForm {
 public:
  ShapeForm(const Layout& layout, const Shape& shape);

  Shape shape; ///< what has no rules is edited here

  int opacityPercent() const;
  /// An opacity that is shown already stays exactly as it is.
  void setOpacity(int percent);

  const LengthEntry& height() const { return height_; }
  void enterHeight(std::string_view text);

  std::vector<std::string> levelNames() const;
  /// Position among the names.
  std::size_t level() const;
  void setLevel(std::size_t position) { shape.level = levels_.at(position).id; }

  std::string problem() const { return height_.problem(); }

 private:
  std::vector<Level> levels_;
  LengthEntry height_;
};

/// A rectangle of exact size that is going to be placed, with the edges along the axes.
class RectangleForm : public ShapeForm {
 public:
  /// `centre` on the plan in mm.
  RectangleForm(const Layout& layout, Point centre);

  const LengthEntry& width() const { return width_; }
  const LengthEntry& depth() const { return depth_; }
  void enterWidth(std::string_view text) { width_.enter(text); }
  void enterDepth(std::string_view text) { depth_.enter(text); }

  /// Why it cannot be placed, in one sentence; empty when it can.
  std::string problem() const;

  /// One undo step; the rectangle is the only selection then. False while there is a problem.
  bool place(Layout& layout) const;

 private:
  std::vector<Point> corners() const;

  Point centre_;
  LengthEntry width_;
  LengthEntry depth_;
};

} // namespace trassix
