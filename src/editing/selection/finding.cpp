#include "editing/selection/finding.h"

#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "editing/helix/helix_edits.h"
#include "editing/selection/any_record.h"
#include "editing/selection/selection.h"
#include "editing/track/short_name.h"
#include "texts/texts.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace trassix {

namespace {

/// Only ASCII letters are taken as alike in both cases.
std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower;
}

class Finder {
 public:
  Finder(const Layout& layout, std::string_view wanted) : layout_(layout) {
    std::istringstream words(lowerCase(wanted));
    for (std::string word; words >> word;)
      words_.push_back(word);
  }

  std::vector<Found> find() {
    if (words_.empty())
      return {};
    for (const Label& label : layout_.content().labels)
      if (holds(label.text))
        found_.push_back({{RecordKind::Label, label.id}, label.text});
    for (const SceneryItem& item : layout_.content().scenery)
      if (const SceneryDef* definition = findScenery(item.item))
        add(item, RecordKind::Scenery, std::string(definition->name),
            item.item + ' ' + std::string(definition->name));
    for (const PlacedPiece& piece : layout_.pieces()) {
      const Names& names = namesOf(piece.cat);
      if (names.wanted)
        add(piece, RecordKind::Piece, names.shown, names.shown, true);
    }
    return std::move(found_);
  }

 private:
  struct Names {
    std::string shown;
    bool wanted = false;
  };

  bool holds(const std::string& text) const {
    return std::ranges::all_of(words_, [lower = lowerCase(text)](const std::string& word) {
      return lower.find(word) != std::string::npos;
    });
  }

  template <class Record>
  void add(const Record& record, RecordKind kind, std::string shown, const std::string& searched,
           bool known = false) {
    if (!layout_.levelVisible(record.level) || !(known || holds(searched)))
      return;
    const Level* level =
        layout_.settings().levels.size() > 1 ? layout_.findLevel(record.level) : nullptr;
    if (level != nullptr)
      shown += ", " + level->name;
    found_.push_back({{kind, record.id}, std::move(shown)});
  }

  const Names& namesOf(const std::string& article) {
    const auto [entry, added] = names_.try_emplace(article);
    if (added) {
      const PieceDef* piece = TrackCatalog::instance().find(article);
      Names& names = entry->second;
      names.shown = article;
      if (piece != nullptr)
        names.shown += "  " + nameInList(*piece, layout_.settings().units);
      names.wanted = holds(names.shown + (piece != nullptr ? ' ' + piece->name : ""));
    }
    return entry->second;
  }

  const Layout& layout_;
  std::vector<std::string> words_;
  std::map<std::string, Names> names_; ///< by article as it was placed
  std::vector<Found> found_;
};

} // namespace

std::vector<Found> findOnPlan(const Layout& layout, std::string_view wanted) {
  return Finder(layout, wanted).find();
}

std::vector<Pick> piecesOfArticle(const Layout& layout, std::string_view article) {
  const PieceDef* wanted = TrackCatalog::instance().find(article);
  std::vector<Pick> picks;
  for (const PlacedPiece& piece : layout.pieces()) {
    const bool same = wanted != nullptr ? TrackCatalog::instance().find(piece.cat) == wanted
                                        : piece.cat == article;
    if (same && layout.levelVisible(piece.level))
      picks.push_back({RecordKind::Piece, piece.id});
  }
  return picks;
}

std::optional<Box> selectThese(Layout& layout, std::span<const Pick> records) {
  layout.clearSelection();
  for (const Pick& record : records)
    setSelected(layout, record, true);
  selectWholeHelices(layout);
  std::optional<Box> box = selectionBox(layout);
  for (const Label& label : layout.content().labels)
    if (label.sel)
      box = box ? Box{std::min(box->minX, label.x), std::min(box->minY, label.y),
                      std::max(box->maxX, label.x), std::max(box->maxY, label.y)}
                : Box{label.x, label.y, label.x, label.y};
  return box;
}

} // namespace trassix
