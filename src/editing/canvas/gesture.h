#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/selection/moving.h"

#include <string>

namespace trassix {

/// A drag of the select tool. It exists only during the drag and touches nothing until it is
/// dropped, so that destroying it cancels it.
class Gesture {
 public:
  explicit Gesture(ToolSite& site) : site_(site) {}
  virtual ~Gesture() = default;

  virtual void drag(const PointerInput& input) = 0;
  virtual void drop() = 0;
  virtual std::span<const std::int32_t> lifted() const { return {}; }
  virtual std::optional<CarriedBody> body() const { return std::nullopt; }
  virtual void paintBody(Surface&) const {}
  virtual void paint(Surface& surface) const = 0;
  virtual std::string hint() const = 0;
  virtual CursorShape cursor() const { return CursorShape::Arrow; }

 protected:
  ToolSite& site_;
};

/// Spans a box: from left to right it takes what lies in it altogether, from right to left whatever
/// it touches. Shift adds to the selection.
class RubberBandGesture : public Gesture {
 public:
  RubberBandGesture(ToolSite& site, const PointerInput& from);

  void drag(const PointerInput& input) override;
  void drop() override;
  void paint(Surface& surface) const override;
  std::string hint() const override;

 private:
  bool encloses() const { return to_.world.x >= from_.world.x; }

  PointerInput from_;
  PointerInput to_;
};

/// Carries the selection, or with `turning` turns it freely, as one rigid body.
class MoveGesture : public Gesture {
 public:
  MoveGesture(ToolSite& site, const PointerInput& from, bool turning);

  void drag(const PointerInput& input) override;
  void drop() override;
  std::span<const std::int32_t> lifted() const override { return move_.pieces(); }
  std::optional<CarriedBody> body() const override;
  void paintBody(Surface& surface) const override;
  void paint(Surface& surface) const override;
  std::string hint() const override;
  CursorShape cursor() const override { return turning_ ? CursorShape::Rotate : CursorShape::Move; }

 private:
  bool allowed();

  PointerInput from_;
  bool turning_;
  Point centre_; ///< of a turn
  double turned_ = 0;
  SelectionMove move_;
};

} // namespace trassix
