// Looking for things on the plan by what they are called.
#pragma once

#include "editing/selection/picking.h"
#include "geometry/box.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

struct Found {
  Pick record;
  std::string text; ///< for a list: what it is, and on which of several levels
};

/// Pieces by article and name, scenery by name, labels by their text, each of which has to hold all
/// words of `wanted` in any case. What is on a hidden level is passed over, hidden track in tunnels
/// is not; without a word nothing is found. Labels come first, then scenery and pieces, each in
/// document order.
std::vector<Found> findOnPlan(const Layout& layout, std::string_view wanted);

/// The pieces on visible levels that count as this article, under whatever number they were placed.
std::vector<Pick> piecesOfArticle(const Layout& layout, std::string_view article);

/// Selects these and nothing else but the rest of helices. The box that they lie in, none when
/// there are none.
std::optional<Box> selectThese(Layout& layout, std::span<const Pick> records);

} // namespace trassix
