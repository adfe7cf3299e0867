#include "panels/helix_form.h"

#include "catalog/scenery_catalog.h"
#include "editing/helix/helix_edits.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kLeastTurns = 1;
constexpr double kMostTurns = 12;
constexpr double kHighest = 10000; // mm
constexpr double kWhole = 1e-4;    ///< what a rounded pitch takes from a number of half turns

double halves(double turns) {
  return std::clamp(turns / 2, kLeastTurns, kMostTurns);
}

} // namespace

HelixForm::HelixForm(const HelixWish& from, std::int32_t units)
    : wish_(from), units_(units), turns_(from.plan.kit->turns), pitch_(from.plan.pitch) {
  pitchEntered_ = std::abs(pitch_ - usualHelix(kit()).plan.pitch) > kPitchPlay;
  fillSizes(kit().tracks());
  compute();
}

std::vector<TrackSystem> HelixForm::systems() {
  std::vector<TrackSystem> systems;
  for (const HelixKit& kit : helixKits())
    if (std::ranges::find(systems, kit.system) == systems.end())
      systems.push_back(kit.system);
  return systems;
}

void HelixForm::fillSizes(std::size_t tracks) {
  sizes_ = helixSizes(kit().system);
  std::erase_if(sizes_, [tracks](const HelixKit* size) { return size->tracks() != tracks; });
  const auto chosen = std::ranges::find(sizes_, kit().radii, &HelixKit::radii);
  size_ = chosen == sizes_.end() ? 0 : static_cast<std::size_t>(chosen - sizes_.begin());
}

void HelixForm::take(const HelixKit& size) {
  if (gaugeOf(size.system) != gaugeOf(kit().system)) {
    pitchEntered_ = false;
    climb_ = 0; // heights of another scale say nothing
  }
  wish_.plan.kit = &size;
  problems_ = {};
  if (!pitchEntered_)
    pitch_ = usualHelix(size).plan.pitch;
  fillSizes(size.tracks());
  compute();
}

void HelixForm::setSystem(TrackSystem system) {
  const std::vector<const HelixKit*> all = helixSizes(system);
  const auto alike = std::ranges::find(all, tracks(), &HelixKit::tracks);
  if (!all.empty())
    take(alike == all.end() ? *all.front() : **alike);
}

std::vector<std::string> HelixForm::sizeNames() const {
  std::vector<std::string> names;
  for (const HelixKit* size : sizes_) {
    const std::string inner = formatBriefLength(size->inner->radius, units_);
    names.push_back(size->outer == nullptr
                        ? tr("%1%, %2%", {size->radii, inner})
                        : tr("%1%, %2% and %3%",
                             {size->radii, inner, formatBriefLength(size->outer->radius, units_)}));
  }
  return names;
}

void HelixForm::setSize(std::size_t size) {
  if (size < sizes_.size())
    take(*sizes_[size]);
}

bool HelixForm::mayHaveTwoTracks() const {
  return std::ranges::any_of(helixSizes(kit().system),
                             [](const HelixKit* size) { return size->tracks() == 2; });
}

void HelixForm::setTracks(std::size_t tracks) {
  if (tracks == this->tracks())
    return;
  const HelixKit* nearest = nullptr;
  for (const HelixKit* size : helixSizes(kit().system))
    if (size->tracks() == tracks &&
        (nearest == nullptr || std::abs(size->inner->radius - kit().inner->radius) <
                                   std::abs(nearest->inner->radius - kit().inner->radius)))
      nearest = size;
  if (nearest != nullptr)
    take(*nearest);
}

std::vector<std::string> HelixForm::turnNames() {
  std::vector<std::string> names;
  for (double turns = kLeastTurns; turns <= kMostTurns; turns += 0.5)
    names.push_back(turnsText(turns));
  return names;
}

std::size_t HelixForm::turns() const {
  return static_cast<std::size_t>(std::lround((kit().turns - kLeastTurns) * 2));
}

void HelixForm::setTurns(std::size_t row) {
  turns_ = std::clamp(kLeastTurns + static_cast<double>(row) / 2, kLeastTurns, kMostTurns);
  climb_ = 0;
  last_ = Entered::Turns;
  problems_ = {};
  compute();
}

void HelixForm::enter(Field field, std::string_view text) {
  texts_[index(field)] = text;
  problems_ = {};
  const NumberInput input = readLength(text, units_, 1, kHighest);
  if (!input.good()) {
    problems_[index(field)] = input.problem;
    return;
  }
  if (field == Field::Climb) {
    climb_ = input.value;
    last_ = Entered::Climb;
  } else {
    pitch_ = input.value;
    pitchEntered_ = true;
    last_ = Entered::Pitch;
  }
  compute();
}

void HelixForm::compute() {
  HelixPlan& plan = wish_.plan;
  double turns = turns_;
  plan.pitch = pitch_;
  if (last_ == Entered::Climb && climb_ > 0) {
    turns = halves(std::floor(2 * climb_ / pitch_ + kWhole));
    plan.pitch = climb_ / turns;
  } else if (climb_ > 0) {
    turns = halves(std::round(2 * climb_ / pitch_));
  }
  plan.kit = &withTurns(kit(), turns);
  if (last_ != Entered::Climb || climb_ <= 0)
    show(Field::Climb, plan.climb());
  if (last_ != Entered::Pitch || !pitchEntered_)
    show(Field::Pitch, plan.pitch);
}

void HelixForm::show(Field field, double value) {
  texts_[index(field)] = formatLength(value, units_);
}

std::string HelixForm::problem() const {
  for (const std::string& problem : problems_)
    if (!problem.empty())
      return problem;
  return helixProblem(wish_.plan, units_);
}

} // namespace trassix
