#include "panels/piece_names.h"

namespace trassix {

std::string_view nameAfterArticle(std::string_view name, std::string_view article) {
  constexpr std::string_view kDash = "- ";
  if (article.empty() || !name.starts_with(article) ||
      !name.substr(article.size()).starts_with(' '))
    return name;
  name.remove_prefix(article.size() + 1);
  if (name.starts_with(kDash))
    name.remove_prefix(kDash.size());
  return name;
}

} // namespace trassix
