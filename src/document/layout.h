#pragma once

#include "document/plan_settings.h"
#include "document/records_fwd.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace trassix {

class History;

/// The open document: what is on the plan, its settings, and its undo and redo history. Holds
/// storage and invariants only; what edits it are the topic functions in `editing/`.
///
/// What the records consist of is for those that work on them to include; whoever only hands a plan
/// on need not be compiled anew when a record changes.
///
/// Reading goes through the const accessors, writing through `edit()` and `editSettings()`,
/// selecting through `reselect()` and `select()`. Each stamps what it may have changed, so that
/// anything derived from a plan knows when it is out of date. References from `edit()` must not be
/// kept across other calls.
class Layout {
 public:
  Layout();
  Layout(const Layout& other);
  /// What was moved from can only be destroyed or assigned to.
  Layout(Layout&& other) noexcept;
  Layout& operator=(const Layout& other);
  Layout& operator=(Layout&& other) noexcept;
  ~Layout();

  const PlanContent& content() const;
  const std::vector<PlacedPiece>& pieces() const;
  std::size_t pieceCount() const;
  const PlanSettings& settings() const { return settings_; }

  PlanContent& edit();
  PlanSettings& editSettings();

  /// Selects the records of which `chosen` is true, and no others. Defined in
  /// `document/reselecting.h`.
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

  /// Whether track in tunnels shows on the plan. Like the visible levels a matter of looking at it,
  /// though no file holds it.
  bool coveredShown() const { return coveredShown_; }
  void showCovered(bool shown);
  /// Whether the piece lies in a tunnel.
  bool isCovered(std::int32_t piece) const;

  /// On no hidden level, and in no tunnel while what lies there does not show.
  bool pieceVisible(const PlacedPiece& piece) const;

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

  void clearSelection();

  /// Empties everything and forgets the history; ids start at 1 again.
  void clear();

  /// Remembers the document as it is, to be called once before it is changed. Edits use an
  /// `UndoScope`, which remembers only what turns out to be changed.
  void pushHistory();
  bool undo();
  bool redo();
  /// Whether the step undone last changed any record. One of levels or the baseboard does not,
  /// since those are not under undo.
  bool lastUndoShows() const;
  bool canUndo() const;
  bool canRedo() const;

 private:
  friend class UndoScope;
  static std::uint64_t newStamp();
  void stampContent();
  void stampArrangement();

  struct Store;
  /// Owns the records and what is kept of them; copied with the layout.
  class StoreOwner {
   public:
    StoreOwner();
    StoreOwner(const StoreOwner& other);
    StoreOwner(StoreOwner&& other) noexcept;
    StoreOwner& operator=(const StoreOwner& other);
    StoreOwner& operator=(StoreOwner&& other) noexcept;
    ~StoreOwner();
    Store* operator->() const { return store_.get(); }

   private:
    std::unique_ptr<Store> store_;
  };

  PlanContent& stored();
  History& history();

  StoreOwner store_;
  PlanSettings settings_;
  std::int32_t nextPieceId_ = 1;
  bool reusingIds_ = false; ///< the counter has started over and must pass over ids in use
  std::uint64_t contentStamp_ = 0;
  std::uint64_t settingsStamp_ = 0;
  std::uint64_t selectionStamp_ = 0;
  bool coveredShown_ = true;
  bool inEdit_ = false;           ///< an undo scope is open
  std::uint64_t arrangement_ = 0; ///< the stamp since which pieces kept their places in the list
};

} // namespace trassix
