#pragma once

#include "document/history.h"
#include "document/piece_index.h"
#include "document/plan_content.h"
#include "document/records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

/// What belongs to a document but is not under undo.
struct PlanSettings {
  std::vector<Level> levels;
  std::int32_t activeLevel = 1;
  std::vector<Point> baseboard; ///< outline polygon
  LastShape lastShape;
  std::int32_t units = 0; ///< 0 mm, 1 cm, 2 inches: how lengths are shown

  bool operator==(const PlanSettings&) const = default;
};

/// The open document: what is on the plan, its settings, and its undo and redo history. Holds
/// storage and invariants only; what edits it are the topic functions in `editing/`.
///
/// Reading goes through the const accessors, writing through `edit()` and `editSettings()`, which
/// stamp a new revision, so that anything derived from a plan knows when it is out of date.
/// References from `edit()` must not be kept across other calls.
class Layout {
 public:
  const PlanContent& content() const { return content_; }
  const std::vector<PlacedPiece>& pieces() const { return content_.pieces; }
  const PlanSettings& settings() const { return settings_; }

  PlanContent& edit();
  PlanSettings& editSettings();

  /// Changes with every write access and is unique in the process: equal revisions mean equal
  /// content, also between copies of a document.
  std::uint64_t revision() const { return revision_; }

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

  void clearSelection();

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
  void stamp();
  void stampArrangement();

  PlanContent content_;
  PlanSettings settings_;
  std::int32_t nextPieceId_ = 1;
  bool reusingIds_ = false; ///< the counter has started over and must pass over ids in use
  History history_;
  std::uint64_t revision_ = 0;
  bool inEdit_ = false;           ///< an undo scope is open
  std::uint64_t arrangement_ = 0; ///< the last revision in which pieces may have changed places
  mutable PieceIndex index_;
};

} // namespace trassix
