// Names as lists show them.
#pragma once

#include <string_view>

namespace trassix {

/// The name without the article that most names begin with, for a list that shows the article
/// beside it: "24188 - 188.3mm" gives "188.3mm".
std::string_view nameAfterArticle(std::string_view name, std::string_view article);

} // namespace trassix
