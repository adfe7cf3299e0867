#include "panels/purchase_list.h"

#include <algorithm>

namespace trassix {

namespace {

bool isUnreserved(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~';
}

std::string escaped(std::string_view text) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string result;
  for (const char c : text) {
    if (isUnreserved(c)) {
      result += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      result += {'%', kHex[byte / 16], kHex[byte % 16]};
    }
  }
  return result;
}

} // namespace

std::vector<PurchaseRow> purchaseList(const std::vector<TallyRow>& tally, const OwnedStock& owned) {
  std::vector<PurchaseRow> rows;
  rows.reserve(tally.size());
  for (const TallyRow& article : tally) {
    if (article.section != TallySection::Pieces)
      continue;
    const std::int32_t atHome = owned.count(article.article);
    rows.push_back(
        {article.article, article.name, article.sold, atHome, std::max(article.sold - atHome, 0)});
  }
  return rows;
}

std::string cartUrl(std::string_view host, const std::vector<PurchaseRow>& rows) {
  std::string query;
  for (const PurchaseRow& row : rows) {
    if (row.toBuy > 0) {
      query += query.empty() ? '?' : '&';
      query += escaped(row.article) + '=' + std::to_string(row.toBuy);
    }
  }
  return query.empty() ? std::string{} : "https://" + std::string(host) + "/cart/" + query;
}

} // namespace trassix
