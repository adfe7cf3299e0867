#include "editing/canvas/placing_choice.h"

#include "document/plan_content.h"
#include "editing/selection/open_ends.h"

namespace trassix {

std::optional<TrackEnd> PlacingChoice::end(const Layout& layout) const {
  const PlacedPiece* piece = end_ ? layout.findPiece(end_->piece) : nullptr;
  return piece != nullptr && piece->sel && isOpenEnd(*piece, end_->connector) ? end_ : std::nullopt;
}

std::optional<std::int32_t> PlacingChoice::way(std::string_view article) const {
  return article == article_ ? way_ : std::nullopt;
}

void PlacingChoice::chooseWay(std::string_view article, std::int32_t end) {
  article_ = article;
  way_ = end;
}

void PlacingChoice::takeUp(std::string_view article) {
  if (article == article_)
    return;
  article_ = article;
  way_.reset();
}

} // namespace trassix
