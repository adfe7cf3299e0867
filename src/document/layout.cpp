#include "document/layout.h"

#include "document/history.h"
#include "document/piece_index.h"
#include "document/record_kinds.h"
#include "document/reselecting.h"

#include <algorithm>
#include <atomic>
#include <set>
#include <string>
#include <unordered_set>

namespace trassix {

namespace {

constexpr Color kFirstLevelColor{180, 200, 220};

bool inUse(const PlanContent& content, std::int32_t id) {
  bool found = false;
  forEachKind(content, [&](const auto& records) {
    found = found || std::ranges::any_of(records, [id](const auto& r) { return r.id == id; });
  });
  return found;
}

std::unordered_set<std::int32_t> usedIds(const PlanContent& content) {
  std::unordered_set<std::int32_t> used;
  forEachKind(content, [&used](const auto& records) {
    for (const auto& record : records)
      used.insert(record.id);
  });
  return used;
}

} // namespace

struct Layout::Store {
  PlanContent content;
  History history;
  PieceIndex index;
  std::vector<std::int32_t> covered; ///< sorted ids, as of the stamp
  std::uint64_t coveredStamp = 0;
};

Layout::StoreOwner::StoreOwner() : store_(std::make_unique<Store>()) {}
Layout::StoreOwner::StoreOwner(const StoreOwner& other)
    : store_(std::make_unique<Store>(*other.store_)) {}
Layout::StoreOwner::StoreOwner(StoreOwner&&) noexcept = default;
Layout::StoreOwner& Layout::StoreOwner::operator=(const StoreOwner& other) {
  return *this = StoreOwner(other);
}
Layout::StoreOwner& Layout::StoreOwner::operator=(StoreOwner&&) noexcept = default;
Layout::StoreOwner::~StoreOwner() = default;

Layout::Layout() = default;
Layout::Layout(const Layout&) = default;
Layout::Layout(Layout&&) noexcept = default;
Layout& Layout::operator=(const Layout&) = default;
Layout& Layout::operator=(Layout&&) noexcept = default;
Layout::~Layout() = default;

const PlanContent& Layout::content() const {
  return store_->content;
}

const std::vector<PlacedPiece>& Layout::pieces() const {
  return store_->content.pieces;
}

std::size_t Layout::pieceCount() const {
  return store_->content.pieces.size();
}

PlanContent& Layout::stored() {
  return store_->content;
}

History& Layout::history() {
  return store_->history;
}

PlanContent& Layout::edit() {
  stampArrangement();
  return store_->content;
}

PlanSettings& Layout::editSettings() {
  settingsStamp_ = newStamp();
  return settings_;
}

const PlacedPiece* Layout::findPiece(std::int32_t id) const {
  return id == -1 ? nullptr : store_->index.find(store_->content.pieces, id, arrangement_);
}

PlacedPiece* Layout::editPiece(std::int32_t id) {
  const PlacedPiece* piece = findPiece(id);
  if (piece == nullptr)
    return nullptr;
  stampContent();
  return &store_->content.pieces[static_cast<std::size_t>(piece - store_->content.pieces.data())];
}

const Level* Layout::findLevel(std::int32_t id) const {
  const auto it = std::find_if(settings_.levels.begin(), settings_.levels.end(),
                               [id](const Level& level) { return level.id == id; });
  return it == settings_.levels.end() ? nullptr : &*it;
}

bool Layout::levelVisible(std::int32_t id) const {
  const Level* level = findLevel(id);
  return level == nullptr || level->visible;
}

void Layout::showCovered(bool shown) {
  if (std::exchange(coveredShown_, shown) != shown)
    settingsStamp_ = newStamp();
}

bool Layout::isCovered(std::int32_t piece) const {
  const std::vector<Tunnel>& tunnels = content().tunnels;
  if (tunnels.empty())
    return false;
  std::vector<std::int32_t>& covered = store_->covered;
  if (store_->coveredStamp != contentStamp_) {
    covered.clear();
    for (const Tunnel& tunnel : tunnels)
      covered.insert(covered.end(), tunnel.covers.begin(), tunnel.covers.end());
    std::ranges::sort(covered);
    store_->coveredStamp = contentStamp_;
  }
  return std::ranges::binary_search(covered, piece);
}

bool Layout::pieceVisible(const PlacedPiece& piece) const {
  return levelVisible(piece.level) && (coveredShown_ || !isCovered(piece.id));
}

double Layout::levelHeight(std::int32_t id) const {
  const Level* level = findLevel(id);
  return level == nullptr ? 0 : level->height;
}

void Layout::ensureLevel() {
  if (!settings_.levels.empty())
    return;
  Level level;
  level.id = 1;
  level.name = "Level 1";
  level.color = kFirstLevelColor;
  editSettings().levels.push_back(level);
  settings_.activeLevel = level.id;
}

void Layout::ensureLevel(std::int32_t id) {
  if (findLevel(id) != nullptr)
    return;
  Level level;
  level.id = id;
  level.name = "Level " + std::to_string(id);
  editSettings().levels.push_back(level);
}

std::int32_t Layout::freeLevelId() const {
  std::set<std::int32_t> used;
  for (const Level& level : settings_.levels)
    used.insert(level.id);
  const auto collect = [&used](const PlanContent& content) {
    forEachOnLevels(content, [&used](const auto& records) {
      for (const auto& record : records)
        used.insert(record.level);
    });
  };
  collect(content());
  store_->history.visit(collect);
  const std::int32_t largest = used.empty() ? 0 : std::max(0, *used.rbegin());
  if (largest < kLargestId)
    return largest + 1;
  std::int32_t id = 1;
  while (used.contains(id))
    ++id;
  return id;
}

std::int32_t Layout::takeId() {
  if (nextPieceId_ > kLargestId) {
    nextPieceId_ = 1;
    reusingIds_ = true;
  }
  // The first ids in use are mostly followed by many more.
  if (reusingIds_ && inUse(content(), nextPieceId_))
    for (const auto used = usedIds(content()); used.contains(nextPieceId_);)
      ++nextPieceId_;
  return nextPieceId_++;
}

void Layout::setNextPieceId(std::int32_t id) {
  nextPieceId_ = id;
  reusingIds_ = false;
}

void Layout::startGradeRun(std::int32_t anchor, std::int32_t connector, double degrees) {
  PlanContent& content = edit();
  const auto run =
      std::find_if(content.gradeRuns.begin(), content.gradeRuns.end(),
                   [anchor](const GradeRun& candidate) { return candidate.anchor == anchor; });
  if (run != content.gradeRuns.end())
    *run = {degrees, anchor, connector};
  else
    content.gradeRuns.push_back({degrees, anchor, connector});
  content.mirrorLastGradeRun();
}

void Layout::select(RecordKind kind, std::int32_t id, bool selected) {
  const auto set = [this, selected](auto& record) {
    if (std::exchange(record.sel, selected) != selected)
      selectionStamp_ = newStamp();
  };
  if (kind == RecordKind::Piece) { // of which there are many
    if (const PlacedPiece* piece = findPiece(id))
      set(store_->content.pieces[static_cast<std::size_t>(piece - store_->content.pieces.data())]);
    return;
  }
  forEachSelectable(stored(), [&](auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    if (Record::kKind != kind)
      return;
    if (const auto found = std::ranges::find(records, id, &Record::id); found != records.end())
      set(*found);
  });
}

void Layout::clear() {
  store_->content = {};
  editSettings() = {};
  setNextPieceId(1);
  store_->history.clear();
  stampArrangement();
}

void Layout::pushHistory() {
  history().push(history().snapshot(content()));
}

bool Layout::lastUndoShows() const {
  return store_->history.redoChanges(content());
}

bool Layout::canUndo() const {
  return store_->history.canUndo();
}

bool Layout::canRedo() const {
  return store_->history.canRedo();
}

void Layout::clearSelection() {
  reselect([](const auto&) { return false; });
}

bool Layout::undo() {
  if (!history().undo(stored()))
    return false;
  stampArrangement();
  return true;
}

bool Layout::redo() {
  if (!history().redo(stored()))
    return false;
  stampArrangement();
  return true;
}

std::uint64_t Layout::newStamp() {
  static std::atomic<std::uint64_t> last{0};
  return ++last;
}

void Layout::stampContent() {
  contentStamp_ = newStamp();
}

void Layout::stampArrangement() {
  stampContent();
  arrangement_ = contentStamp_;
}

} // namespace trassix
