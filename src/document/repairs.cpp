#include "document/repairs.h"

#include "catalog/track_catalog.h"
#include "document/block.h"
#include "document/piece_pairs.h"
#include "document/record_kinds.h"
#include "texts/texts.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace trassix {

namespace {

/// Ids from the one after `last` on that no record has.
class FreshIds {
 public:
  explicit FreshIds(std::int32_t last = 0) : last_(last) {}

  void use(std::int32_t id) { used_.insert(id); }
  template <class Records>
  void useAll(const Records& records) {
    for (const auto& record : records)
      use(record.id);
  }

  std::int32_t take() {
    do
      last_ = last_ < Layout::kLargestId ? last_ + 1 : 1;
    while (!used_.insert(last_).second);
    return last_;
  }
  std::int32_t last() const { return last_; }

 private:
  std::unordered_set<std::int32_t> used_;
  std::int32_t last_;
};

template <class Records>
std::size_t renumber(Records& records, FreshIds& fresh) {
  std::unordered_set<std::int32_t> met{-1};
  std::size_t count = 0;
  for (auto& record : records) {
    if (met.insert(record.id).second)
      continue;
    record.id = fresh.take();
    ++count;
  }
  return count;
}

std::size_t renumberRecords(Layout& layout) {
  FreshIds fresh(layout.nextPieceId() - 1);
  forEachKind(layout.content(), [&fresh](const auto& records) { fresh.useAll(records); });
  std::size_t count = 0;
  forEachKind(layout.edit(), [&](auto& records) { count += renumber(records, fresh); });
  // Once they have started over, ids in use are to be passed over by those to come as well.
  const std::int32_t next = fresh.last() + 1;
  layout.setNextPieceId(next < layout.nextPieceId() ? Layout::kLargestId + 1 : next);
  return count;
}

std::size_t renumberLevels(Layout& layout) {
  PlanSettings& settings = layout.editSettings();
  const auto visitLevels = [&](auto visit) {
    const auto visitAll = [&visit](auto& records) {
      for (auto& record : records)
        visit(record.level);
    };
    forEachOnLevels(layout.edit(), visitAll);
    visit(settings.activeLevel);
  };
  FreshIds fresh;
  fresh.useAll(settings.levels);
  visitLevels([&fresh](std::int32_t level) { fresh.use(level); });
  const auto nameless = std::ranges::find(settings.levels, -1, &Level::id);
  const std::size_t count = renumber(settings.levels, fresh);
  if (nameless != settings.levels.end())
    visitLevels([&nameless](std::int32_t& level) { level = level == -1 ? nameless->id : level; });
  return count;
}

/// Ids must be unique by now.
std::size_t openBeyondEnds(std::vector<PlacedPiece>& pieces) {
  std::unordered_map<std::int32_t, PlacedPiece*> byId;
  for (PlacedPiece& piece : pieces)
    byId.emplace(piece.id, &piece);
  std::size_t opened = 0;
  for (PlacedPiece& piece : pieces) {
    const PieceDef* definition = TrackCatalog::instance().find(piece.cat);
    if (definition == nullptr || piece.joints.size() <= definition->connectors.size())
      continue;
    for (std::size_t i = definition->connectors.size(); i < piece.joints.size(); ++i) {
      const Joint joint = piece.joints[i];
      if (joint.open())
        continue;
      ++opened;
      const auto other = byId.find(joint.target);
      const auto end = static_cast<std::size_t>(joint.tconn);
      if (other != byId.end() &&
          other->second->joint(end) == Joint{piece.id, static_cast<std::int32_t>(i)})
        other->second->joints[end] = {};
    }
    piece.joints.resize(definition->connectors.size());
  }
  return opened;
}

/// A plan makes the levels that its records name, and no level can have the id -1.
std::size_t replaceLevel(std::int32_t& level, std::int32_t instead = 1) {
  return std::exchange(level, level == -1 ? instead : level) == -1 ? 1 : 0;
}

std::size_t putOnALevel(PlanContent& content) {
  std::size_t count = 0;
  forEachOnLevels(content, [&count](auto& records) {
    for (auto& record : records)
      count += replaceLevel(record.level);
  });
  return count;
}

} // namespace

Repairs makeSound(Layout& layout) {
  Repairs repairs;
  repairs.renumbered = renumberRecords(layout) + renumberLevels(layout);
  PlanContent& content = layout.edit();
  repairs.opened = openBeyondEnds(content.pieces);
  repairs.relevelled = putOnALevel(content);
  PlanSettings& settings = layout.editSettings();
  repairs.relevelled +=
      replaceLevel(settings.activeLevel, settings.levels.empty() ? 1 : settings.levels.front().id);
  if (repairs.any())
    content.pairs = pairsOfRuns(layout.pieces());
  return repairs;
}

Repairs makeSound(Block& block) {
  PlanContent& content = block.content;
  FreshIds fresh;
  forEachKind(content, [&fresh](const auto& records) { fresh.useAll(records); });
  Repairs repairs;
  forEachKind(content, [&](auto& records) { repairs.renumbered += renumber(records, fresh); });
  repairs.opened = openBeyondEnds(content.pieces);
  repairs.relevelled = putOnALevel(content);
  if (repairs.any())
    content.pairs = pairsOfRuns(content.pieces);
  return repairs;
}

std::string describeRepairs(const Repairs& repairs) {
  if (!repairs.any())
    return {};
  const std::string none;
  return joinTexts(
      {tr("This file was damaged in places, which were mended."),
       repairs.opened == 0
           ? none
           : trCount("A joint at an end that its piece does not have was opened.",
                     "%1% joints at ends that their pieces do not have were opened.",
                     repairs.opened),
       repairs.renumbered == 0
           ? none
           : trCount("A record without a number of its own got a new one.",
                     "%1% records without numbers of their own got new ones.", repairs.renumbered),
       repairs.relevelled == 0 ? none
                               : tr("What stood on a level that cannot be was put on another.")},
      " ");
}

} // namespace trassix
