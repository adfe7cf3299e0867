#include "catalog/track_catalog.h"

#include "catalog/builtin/ranges.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace trassix {

TrackCatalog::TrackCatalog() : positions_(8) {
  positions_.max_load_factor(1.0F);
}

TrackCatalog& TrackCatalog::instance() {
  static TrackCatalog catalog;
  if (!catalog.built_) {
    addBuiltinRanges(catalog);
    catalog.built_ = true;
  }
  return catalog;
}

const PieceDef* TrackCatalog::at(std::int32_t index) const {
  return index >= 0 && index < count() ? &definitions_[static_cast<std::size_t>(index)] : nullptr;
}

const PieceDef* TrackCatalog::find(std::string_view article) const {
  const auto found = positions_.find(article);
  return found == positions_.end() ? nullptr : at(found->second);
}

void TrackCatalog::add(PieceDef definition) {
  positions_[definition.article] = count();
  for (const Connector& end : definition.connectors)
    farthestEnd_ = std::max(farthestEnd_, std::hypot(end.x, end.y));
  definitions_.push_back(std::move(definition));
}

void TrackCatalog::alias(const std::string& aliasArticle, const std::string& existingArticle) {
  const std::int32_t position = positions_[existingArticle];
  positions_[aliasArticle] = position;
}

} // namespace trassix
