#pragma once

#include "catalog/piece_def.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace trassix {

/// The registry of piece definitions in registration order, which the palette and the tallies
/// follow. Owns every definition; pointers handed out stay valid for the life of the process once
/// it is built. The first `instance()` call builds it and must come from one thread; afterwards it
/// is only read, from any thread.
class TrackCatalog {
 public:
  /// The process-wide registry with the built-in content.
  static TrackCatalog& instance();

  /// An empty registry of its own, for tests of the registry itself.
  TrackCatalog();

  std::int32_t count() const { return static_cast<std::int32_t>(definitions_.size()); }

  /// Null when `index` is outside 0 .. count() - 1.
  const PieceDef* at(std::int32_t index) const;

  /// Exact, case-sensitive look-up of an article number or alias; null on a miss.
  const PieceDef* find(std::string_view article) const;

  /// In mm: no piece has an end that lies farther from where the piece lies.
  double farthestEnd() const { return farthestEnd_; }

  /// Appends a definition. An article that is already known keeps its older record in the sequence
  /// and is found as the newer one.
  void add(PieceDef definition);

  /// Makes `find(aliasArticle)` yield the record of `existingArticle`.
  void alias(const std::string& aliasArticle, const std::string& existingArticle);

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>{}(text);
    }
  };

  std::vector<PieceDef> definitions_;
  std::unordered_map<std::string, std::int32_t, TextHash, std::equal_to<>> positions_;
  double farthestEnd_ = 0;
  bool built_ = false;
};

} // namespace trassix
