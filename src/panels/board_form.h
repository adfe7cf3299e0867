#pragma once

#include "panels/baseboard_shape.h"
#include "panels/length_entry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;
struct Shape;

/// The baseboard while its dialog is open; the plan itself changes only by `apply`.
class BoardForm {
 public:
  /// The first four are those of `BoardKind`.
  enum class Choice : std::uint8_t { Rectangle, L, U, T, Free, None };
  static constexpr std::size_t kMeasures = 4;

  /// Begins with the present baseboard, or with the shape chosen last where there is none. The
  /// layout must outlive the form.
  explicit BoardForm(const Layout& layout);

  Choice choice() const { return choice_; }
  void choose(Choice choice);

  /// Turns the outline over left to right, or by a quarter to the right, where it lies. A
  /// rectangle's measures change places instead.
  void mirror();
  void turn();

  /// Measures in the order of `boardMeasureNames`; those without a name do not count.
  std::string measureName(std::size_t measure) const;
  const LengthEntry& measure(std::size_t measure) const { return measures_.at(measure); }
  void enter(std::size_t measure, std::string_view text) { measures_.at(measure).enter(text); }

  /// The selected shape can become a free outline. It is no shape any more then.
  bool shapeThere() const { return shape_ != nullptr; }
  void takeShape();

  std::int32_t units() const; ///< in which the plan shows lengths

  /// Why this is no baseboard, in one sentence; empty when it is one.
  std::string problem() const;

  /// The shape of the chosen kind; none for a free outline or no baseboard.
  std::optional<LastShape> shape() const;

  /// Corners on the plan. A shape goes where the present baseboard has its top left corner, or
  /// under what is on the plan. Empty for no baseboard and while there is a problem.
  std::vector<Point> outline() const;

  /// The shape of the chosen kind with its top left corner at the origin, and its measures there.
  std::vector<Point> drawnOutline() const;
  std::vector<BoardDimension> dimensions() const;

  /// One undo step. False and nothing changed when all is as it was or there is a problem.
  bool apply(Layout& layout) const;

 private:
  /// Which way round a shape lies: first turned over, then turned.
  struct Orientation {
    bool mirrored = false;
    int quarters = 0; ///< to the right
  };

  std::vector<Point> oriented(std::vector<Point> outline) const;
  Point orient(Point p) const;
  Point placeOf(const LastShape& shape) const;
  std::vector<Point> placed(const LastShape& shape) const;

  const Layout& layout_;
  const Shape* shape_; ///< the selected one
  Choice choice_ = Choice::Rectangle;
  std::vector<LengthEntry> measures_;
  Orientation orientation_;
  std::vector<Point> free_;
  bool shapeTaken_ = false;
};

} // namespace trassix
