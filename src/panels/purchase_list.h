#pragma once

#include "panels/owned_stock.h"
#include "panels/tally.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// Counts are in articles as they are sold.
struct PurchaseRow {
  std::string article;
  std::string name; ///< empty for an article that is not in the catalogue
  std::int32_t needed = 0;
  std::int32_t owned = 0;
  std::int32_t toBuy = 0; ///< never below zero

  bool operator==(const PurchaseRow&) const = default;
};

/// A row for each article of the plan, in the order of the tally; none for what is no article.
std::vector<PurchaseRow> purchaseList(const std::vector<TallyRow>& tally, const OwnedStock& owned);

/// The address that puts what is to buy into the shop's cart,
/// "https://HOST/cart/?24188=3&24130=12"; empty when nothing is to buy. The query is escaped as RFC
/// 3986 asks for.
std::string cartUrl(std::string_view host, const std::vector<PurchaseRow>& rows);

} // namespace trassix
