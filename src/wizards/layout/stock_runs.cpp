#include "wizards/layout/stock_runs.h"

#include <algorithm>
#include <numeric>

namespace trassix {

namespace {

constexpr long kTries = 20'000;

struct Article {
  const PieceDef* piece = nullptr;
  Micrometres length = 0;
  std::int32_t left = 0;
};

class Sharing {
 public:
  Sharing(std::vector<Article> articles, const std::vector<Micrometres>& lengths)
      : articles_(std::move(articles)), lengths_(lengths), order_(lengths.size()),
        runs_(lengths.size()) {
    // The longest stretches first: what is left does for short ones.
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    std::ranges::stable_sort(order_, std::greater<>(), [&](std::size_t i) { return lengths[i]; });
  }

  bool share() { return lengths_.empty() || fill(0, 0, lengths_[order_[0]]); }
  std::vector<std::vector<const PieceDef*>> take() { return std::move(runs_); }

 private:
  bool fill(std::size_t stretch, std::size_t article, Micrometres left) {
    if (--tries_ < 0)
      return false;
    if (left == 0) {
      const std::size_t next = stretch + 1;
      return next == order_.size() || fill(next, 0, lengths_[order_[next]]);
    }
    for (std::size_t i = article; i < articles_.size(); ++i) {
      Article& own = articles_[i];
      if (own.left == 0 || own.length > left)
        continue;
      --own.left;
      runs_[order_[stretch]].push_back(own.piece);
      if (fill(stretch, i, left - own.length))
        return true;
      runs_[order_[stretch]].pop_back();
      ++own.left;
    }
    return false;
  }

  std::vector<Article> articles_; ///< longest first
  const std::vector<Micrometres>& lengths_;
  std::vector<std::size_t> order_;
  std::vector<std::vector<const PieceDef*>> runs_;
  long tries_ = kTries;
};

} // namespace

PieceStock missingFrom(const PieceStock& stock, const PieceStock& needed) {
  PieceStock missing;
  for (const auto& [article, count] : needed) {
    const auto own = stock.find(article);
    const std::int32_t there = own == stock.end() ? 0 : own->second;
    if (count > there)
      missing[article] = count - there;
  }
  return missing;
}

std::optional<std::vector<std::vector<const PieceDef*>>>
runsFromStock(TrackSystem system, const PieceStock& stock,
              const std::vector<Micrometres>& lengths) {
  std::vector<Article> articles;
  for (const PlainStraight& straight : plainStraights(system))
    if (const auto own = stock.find(straight.piece->article); own != stock.end() && own->second > 0)
      articles.push_back({straight.piece, toMicrometres(straight.length), own->second});
  Sharing sharing(std::move(articles), lengths);
  if (!sharing.share())
    return std::nullopt;
  return sharing.take();
}

} // namespace trassix
