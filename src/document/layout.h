#pragma once

#include "document/history.h"
#include "document/piece_index.h"
#include "document/plan_content.h"
#include "document/plan_settings.h"
#include "document/record_kinds.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace trassix {

/// The open document: what is on the plan, its settings, and its undo and redo history. Holds
/// storage and invariants only; what edits it are the topic functions in `editing/`.
///
/// Reading goes through the const accessors, writing through `edit()` and `editSettings()`,
/// selecting through `reselect()` and `select()`. Each stamps what it may have changed, so that
/// anything derived from a plan knows when it is out of date. References from `edit()` must not be
/// kept across other calls.
class Layout {
 public:
  Layout();
  Layout(const Layout& other);
  Layout(Layout&& other) noexcept;
  Layout& operator=(const Layout& other);
  Layout& operator=(Layout&& other) noexcept;
  ~Layout();

  const PlanContent& content() const { return content_; }
  const std::vector<PlacedPiece>& pieces() const { return content_.pieces; }
  const PlanSettings& settings() const { return settings_; }

  PlanContent& edit();
  PlanSettings& editSettings();

  /// Selects the records of which `chosen` is true, and no others.
  template <class Chosen>
  void reselect(Chosen chosen);
  /// Selects or deselects one record; nothing happens when there is none.
  void select(RecordKind kind, std::int32_t id, bool selected);

  /// Stamps change with every write access and are unique in the process: equal ones mean equal
  /// things, also between copies of a document. Of the records, whatever is selected:
  std::uint64_t contentStamp() const { return contentStamp_; }
  std::uint64_t settingsStamp() const { return settingsStamp_; }
  /// Of what is selected. Changes with the content as well, since what was selected may be gone.
  std::uint64_t selectionStamp() const { return std::max(selectionStamp_, contentStamp_); }
  /// Of content and settings.
  std::uint64_t documentStamp() const { return std::max(contentStamp_, settingsStamp_); }
  /// Of all of it.
  std::uint64_t revision() const { return std::max(selectionStamp_, documentStamp()); }

  /// Null when no piece has this id. The pointer is good until the next edit. Never a scan, in
  /// whatever order the ids stand; not to be called by two threads at once.
  const PlacedPiece* findPiece(std::int32_t id) const;
  /// The same for changing the piece, but never its id.
  PlacedPiece* editPiece(std::int32_t id);

  /// Null when no level has this id.
  const Level* findLevel(std::int32_t id) const;

  /// A piece on a level that is not in the list counts as visible.
  bool levelVisible(std::int32_t id) const;

  /// Height of a level in mm, 0 when there is no such level.
  double levelHeight(std::int32_t id) const;

  /// Creates "Level 1" (id 1) when the document has no level at all.
  void ensureLevel();

  /// Creates the level with this id, named after its number, when it is missing.
  void ensureLevel(std::int32_t id);

  /// An id for a new level that no level has and no record names, neither now nor after undo or
  /// redo: what is brought back must not come to stand on the new level.
  std::int32_t freeLevelId() const;

  /// No record has a larger id.
  static constexpr std::int32_t kLargestId = 2'000'000'000;

  /// The id the next new record receives; pieces, scenery, labels, shapes, tunnels and helices
  /// share the counter.
  std::int32_t nextPieceId() const { return nextPieceId_; }
  /// Beyond the largest id, which only a file from elsewhere can bring about, unused ones follow.
  std::int32_t takeId();
  void setNextPieceId(std::int32_t id);

  /// Records or replaces the run that starts at `anchor`, then makes the last run the current
  /// grade.
  void startGradeRun(std::int32_t anchor, std::int32_t connector, double degrees);

  void clearSelection() {
    reselect([](const auto&) { return false; });
  }

  /// Empties everything and forgets the history; ids start at 1 again.
  void clear();

  /// Remembers the document as it is, to be called once before it is changed. Edits use an
  /// `UndoScope`, which remembers only what turns out to be changed.
  void pushHistory();
  bool undo();
  bool redo();
  bool canUndo() const { return history_.canUndo(); }
  bool canRedo() const { return history_.canRedo(); }

 private:
  friend class UndoScope;
  static std::uint64_t newStamp();
  void stampContent();
  void stampArrangement();

  PlanContent content_;
  PlanSettings settings_;
  std::int32_t nextPieceId_ = 1;
  bool reusingIds_ = false; ///< the counter has started over and must pass over ids in use
  History history_;
  std::uint64_t contentStamp_ = 0;
  std::uint64_t settingsStamp_ = 0;
  std::uint64_t selectionStamp_ = 0;
  bool inEdit_ = false;           ///< an undo scope is open
  std::uint64_t arrangement_ = 0; ///< the stamp since which pieces kept their places in the list
  mutable PieceIndex index_;
};

template <class Chosen>
void Layout::reselect(Chosen chosen) {
  bool changed = false;
  forEachSelectable(content_, [&](auto& records) {
    for (auto& record : records) {
      const bool wanted = chosen(std::as_const(record));
      changed = changed || record.sel != wanted;
      record.sel = wanted;
    }
  });
  if (changed)
    selectionStamp_ = newStamp();
}

} // namespace trassix
