#pragma once

#include "editing/placing/placing.h"
#include "editing/track/track_end.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace trassix {

/// What the user chose for the next piece: where track goes on, and by which of its ends an article
/// lies. Choices are wishes; what has become impossible is passed over.
class PlacingChoice {
 public:
  /// The end of the plan that was pointed at, while it is open and its piece selected.
  std::optional<TrackEnd> end(const Layout& layout) const;
  void pointAt(TrackEnd end) { end_ = end; }

  /// The end by which the article lies; holds until another article is taken up.
  std::optional<std::int32_t> way(std::string_view article) const;
  void chooseWay(std::string_view article, std::int32_t end);
  void takeUp(std::string_view article);

  void forget() { *this = {}; }

  ExtensionWish wishFor(std::string_view article) const { return {end_, way(article)}; }

 private:
  std::optional<TrackEnd> end_;
  std::string article_;
  std::optional<std::int32_t> way_;
};

} // namespace trassix
