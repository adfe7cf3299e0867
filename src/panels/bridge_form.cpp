#include "panels/bridge_form.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/supports/supports.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "panels/owned_stock.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kHighest = 10000; // mm
constexpr double kPlay = 0.005;    // mm
constexpr std::size_t kTried = 5;  // ways in, where there are many open ends

std::string percentText(double slope) {
  return formatFixed(percentOf(slope), 1);
}

} // namespace

BridgeForm::BridgeForm(const Layout& layout, const OwnedStock* owned)
    : layout_(layout), owned_(owned), units_(layout.settings().units), tasks_(bridgeTasks(layout)) {
  if (empty())
    return;
  task_ = tasks_.front();
  task_.clearance = proposedClearance(system(), false);
  // A chain that crosses nothing is more likely to go on, or to lie over a valley, and one that is
  // high enough to stay as it is.
  const auto stands = [this] { return ready() && !plan_.piers.empty(); };
  setWay(tasks_.size() - 1);
  if (stands() && !plan_.crossed.empty())
    return;
  for (std::size_t i = 0; i < std::min(tasks_.size(), kTried); ++i) {
    setWay(i);
    if (!plan_.crossed.empty() || stands())
      return;
  }
  setWay(0);
}

TrackSystem BridgeForm::system() const {
  return systemOf(layout_, task_);
}

std::vector<std::string> BridgeForm::wayNames() const {
  std::vector<std::string> names;
  for (const BridgeTask& task : tasks_)
    names.push_back(nameOf(layout_, task));
  return names;
}

void BridgeForm::setWay(std::size_t way) {
  if (way >= tasks_.size())
    return;
  way_ = way;
  task_.way = tasks_[way].way;
  task_.pieces = tasks_[way].pieces;
  task_.end = tasks_[way].end;
  compute();
}

std::vector<std::string> BridgeForm::spanNames() const {
  std::vector<std::string> names;
  for (const SpanKind kind : spanKinds(system()))
    names.push_back(nameOf(kind));
  return names;
}

std::size_t BridgeForm::span() const {
  const std::vector<SpanKind> kinds = spanKinds(system());
  const auto found = std::ranges::find(kinds, task_.span);
  return found == kinds.end() ? 0 : static_cast<std::size_t>(found - kinds.begin());
}

void BridgeForm::setSpan(std::size_t row) {
  const std::vector<SpanKind> kinds = spanKinds(system());
  if (row >= kinds.size())
    return;
  task_.span = kinds[row];
  compute();
}

std::vector<std::string> BridgeForm::pierNames() {
  return {tr("Series if it fits"), tr("Series only"), tr("Any height")};
}

void BridgeForm::setPiers(std::size_t row) {
  if (row > static_cast<std::size_t>(PierHeights::Any))
    return;
  task_.piers = static_cast<PierHeights>(row);
  compute();
}

void BridgeForm::setRampPieces(bool use) {
  task_.rampPieces = use;
  compute();
}

void BridgeForm::setWire(bool wire) {
  problems_[index(Field::Clearance)].clear();
  problems_[index(Field::DeckHeight)].clear();
  task_.clearance = proposedClearance(system(), wire);
  task_.deckHeight = 0;
  compute();
}

bool BridgeForm::wire() const {
  return task_.clearance >= proposedClearance(system(), true) - kPlay;
}

bool BridgeForm::uses(Field field) const {
  return field == Field::Clearance || task_.way != BridgeWay::AsItLies;
}

void BridgeForm::enter(Field field, std::string_view text) {
  texts_[index(field)] = text;
  problems_[index(field)].clear();
  const bool percent = field == Field::Limit;
  NumberInput input = percent
                          ? readGrade(text, "%", percentOf(kMostBridgeLimit))
                          : readLength(text, units_, field == Field::RampLength ? 0 : 1, kHighest);
  if (percent && input.good() && !(input.value >= percentOf(kLeastBridgeLimit)))
    input.problem = tr("A limit is at least %1% %%.", {percentText(kLeastBridgeLimit)});
  if (!input.good()) {
    problems_[index(field)] = input.problem;
    return;
  }
  switch (field) {
  case Field::Clearance:
    task_.clearance = input.value;
    task_.deckHeight = 0;
    problems_[index(Field::DeckHeight)].clear();
    break;
  case Field::DeckHeight:
    followDeck(input.value);
    problems_[index(Field::Clearance)].clear();
    break;
  case Field::Limit:
    task_.limit = input.value / 100;
    task_.rampLength = 0;
    problems_[index(Field::RampLength)].clear();
    break;
  case Field::RampLength:
    task_.rampLength = input.value;
    break;
  }
  typed_ = field;
  compute();
  typed_.reset();
}

void BridgeForm::followDeck(double height) {
  task_.deckHeight = height;
  double room = kHighest;
  for (const CrossedThing& thing : plan_.crossed)
    if (thing.kind != CrossedThing::Kind::Water) // over which less will do
      room = std::min(room, height - kDeckThickness - thing.height);
  if (room == kHighest)
    return;
  task_.clearance = std::max(1.0, room);
  if (planBridge(layout_, task_).possible())
    return;
  // Where a frame has to carry the track, its beam takes of the room.
  BridgeTask framed = task_;
  framed.clearance = std::max(1.0, room - portalBeam(system()) + kDeckThickness);
  if (planBridge(layout_, framed).possible())
    task_ = framed;
}

void BridgeForm::compute() {
  plan_ = planBridge(layout_, task_);
  choices_ = {{tr("As entered"), task_, plan_}};
  choice_ = 0;
  ideas_.reset();
  follow();
}

void BridgeForm::follow() {
  const auto show = [this](Field field, const std::string& text) {
    if (typed_ != field && problems_[index(field)].empty())
      texts_[index(field)] = text;
  };
  show(Field::Clearance, formatLength(task_.clearance, units_));
  show(Field::Limit, percentText(task_.limit));
  double deck = plan_.deckHeight;
  if (!plan_.possible())
    for (const CrossedThing& thing : plan_.crossed)
      deck = std::max(deck, thing.height + thing.least + kDeckThickness);
  show(Field::DeckHeight, formatLength(deck, units_));
  double longest = task_.rampLength;
  for (const BridgeRamp& ramp : plan_.ramps)
    longest = std::max(longest, ramp.length());
  show(Field::RampLength, longest > 0 ? formatLength(longest, units_) : std::string());
}

bool BridgeForm::seekChoice() {
  if (!ideas_)
    ideas_ = bridgeIdeas(layout_, choices_.front().task);
  if (ideas_->empty())
    return false;
  BridgeChoice idea = std::move(ideas_->front());
  ideas_->erase(ideas_->begin());
  idea.plan = planBridge(layout_, idea.task);
  const auto alike = [&idea](const BridgeChoice& choice) {
    return choice.plan.possible() && builtAlike(choice.plan, idea.plan);
  };
  if (idea.plan.possible() && std::ranges::none_of(choices_, alike))
    choices_.push_back(std::move(idea));
  return !ideas_->empty();
}

std::vector<std::string> BridgeForm::choiceNames() const {
  std::vector<std::string> names;
  for (const BridgeChoice& choice : choices_) {
    double length = 0;
    for (const BridgeRamp& ramp : choice.plan.ramps)
      length = std::max(length, ramp.length());
    names.push_back(choice.plan.ramps.empty()
                        ? choice.name
                        : tr("%1%: ramp %2%, %3% %%", {choice.name, formatLength(length, units_),
                                                       percentText(choice.plan.steepest())}));
  }
  return names;
}

void BridgeForm::take(std::size_t choice) {
  if (choice >= choices_.size())
    return;
  choice_ = choice;
  task_ = choices_[choice].task;
  plan_ = choices_[choice].plan;
  problems_ = {};
  follow();
}

std::vector<BridgeFact> BridgeForm::facts() const {
  if (!plan_.possible())
    return {};
  std::vector<BridgeFact> facts = factsOf(plan_, units_);
  if (owned_ == nullptr)
    return facts;
  std::string text;
  for (const ArticleChange& article : plan_.articles)
    if (article.count > 0)
      text += (text.empty() ? "" : ", ") + article.article + ": " +
              std::to_string(owned_->count(article.article));
  if (!text.empty())
    facts.push_back({tr("At home"), text});
  return facts;
}

std::vector<std::string> BridgeForm::crossedNames() const {
  std::vector<std::string> names;
  for (const CrossedThing& thing : plan_.crossed)
    names.push_back(tr("%1% at x %2%, y %3% mm, %4%°",
                       {thing.name, std::llround(thing.at.x), std::llround(thing.at.y),
                        formatFixed(thing.angle, 1)}));
  return names;
}

std::string BridgeForm::problem() const {
  if (empty())
    return tr("Select the track that is to lead over, or a piece with an open end.");
  for (const Field field : {Field::Clearance, Field::DeckHeight, Field::Limit, Field::RampLength})
    if (uses(field) && !problems_[index(field)].empty())
      return problems_[index(field)];
  return plan_.refusal ? plan_.refusal->text : std::string();
}

Layout BridgeForm::built() const {
  Layout scratch; // without the history
  scratch.edit() = layout_.content();
  scratch.editSettings() = layout_.settings();
  scratch.setNextPieceId(layout_.nextPieceId());
  apply(scratch);
  return scratch;
}

EditResult BridgeForm::apply(Layout& layout) const {
  return ready() ? applyBridge(layout, task_) : EditResult{};
}

} // namespace trassix
