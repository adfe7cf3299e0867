#include "panels/elevation_form.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/elevation/way_handles.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "host/plan_preview.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace trassix {

namespace {

using Task = ElevationForm::Task;
using Field = ElevationForm::Field;
using Switch = ElevationForm::Switch;

constexpr std::size_t kMostTried = 24; // ends, for the longest way between two of them

std::string percentText(double slope) {
  return formatAngle(std::round(percentOf(slope) * 100) / 100);
}

bool liesIn(const TrainWay& way, const std::vector<std::int32_t>& pieces) {
  return std::ranges::all_of(way.stretches, [&pieces](const WayStretch& stretch) {
    return std::ranges::binary_search(pieces, stretch.piece);
  });
}

/// All ends of track that is joined to nothing else, each joint once.
std::vector<TrackEnd> innerEnds(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  std::vector<TrackEnd> ends;
  for (const std::int32_t id : pieces) {
    const PlacedPiece* piece = layout.findPiece(id);
    const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
    const std::size_t count = definition == nullptr ? 0 : definition->connectors.size();
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i)
      if (id < beyond(layout, {id, i}).piece)
        ends.push_back({id, i});
  }
  return ends;
}

} // namespace

ElevationForm::ElevationForm(const Layout& layout)
    : layout_(layout), units_(layout.settings().units), selected_(selectedPieces(layout)),
      ends_(outerEnds(layout, selected_)) {
  if (ends_.empty())
    ends_ = innerEnds(layout, selected_);
  switches_[static_cast<std::size_t>(Switch::Eased)] = true;
  chooseEnds();
  length_ = ways_.empty() ? 1000 : ways_[way_].length();
  texts_[index(Field::Length)] = formatLength(length_, units_);
  texts_[index(Field::Limit)] = percentText(limit_);
  compute();
}

void ElevationForm::chooseEnds() {
  if (ends_.empty())
    return;
  const std::size_t tried = std::min(ends_.size(), kMostTried);
  for (std::size_t i = 0; i < tried; ++i)
    if (beyond(layout_, ends_[i]).piece != -1) {
      from_ = i;
      break;
    }
  double longest = -1;
  for (std::size_t i = 0; i < tried; ++i) {
    const std::vector<TrainWay> found =
        i == from_ ? std::vector<TrainWay>() : trainWays(layout_, ends_[from_], ends_[i]);
    const auto own =
        std::ranges::find_if(found, [this](const TrainWay& way) { return liesIn(way, selected_); });
    if (own != found.end() && own->length() > longest) {
      longest = own->length();
      to_ = i;
    }
  }
  if (to_ == from_ && ends_.size() > 1)
    to_ = from_ == 0 ? 1 : 0;
  findWays();
}

void ElevationForm::findWays() {
  ways_.clear();
  way_ = 0;
  if (ends_.empty() || from_ == to_)
    return;
  ways_ = trainWays(layout_, ends_[from_], ends_[to_]);
  const auto own =
      std::ranges::find_if(ways_, [this](const TrainWay& way) { return liesIn(way, selected_); });
  if (own != ways_.end())
    way_ = static_cast<std::size_t>(own - ways_.begin());
}

void ElevationForm::setTask(Task task) {
  task_ = task;
  typed_.reset();
  problems_ = {};
  compute();
}

std::vector<std::string> ElevationForm::endNames() const {
  std::vector<std::string> names;
  for (const TrackEnd& end : ends_) {
    const PlacedPiece& piece = *layout_.findPiece(end.piece);
    const Point at = placeOf(piece, end.connector);
    const std::string height = formatLength(endHeight(layout_, end), units_);
    names.push_back(tr("%1% at x %2%, y %3%: %4% high",
                       {piece.cat, std::llround(at.x), std::llround(at.y), height}));
  }
  return names;
}

void ElevationForm::setFrom(std::size_t end) {
  from_ = end;
  findWays();
  compute();
}

void ElevationForm::setTo(std::size_t end) {
  to_ = end;
  findWays();
  compute();
}

void ElevationForm::turnRound() {
  std::swap(from_, to_);
  findWays();
  compute();
}

std::vector<std::string> ElevationForm::wayNames() const {
  std::vector<std::string> names;
  for (const TrainWay& way : ways_)
    names.push_back(trCount("%2%, %1% piece", "%2%, %1% pieces", way.stretches.size(),
                            {formatLength(way.length(), units_)}));
  return names;
}

void ElevationForm::setWay(std::size_t way) {
  way_ = way;
  compute();
}

bool ElevationForm::usesTo() const {
  return task_ == Task::Climb || task_ == Task::Grade || task_ == Task::Ease;
}

bool ElevationForm::uses(Field field) const {
  switch (field) {
  case Field::Height:
  case Field::Rise:
    return task_ != Task::Level && task_ != Task::Ease;
  case Field::Percent:
  case Field::Degrees:
    return task_ == Task::Grade || (task_ == Task::Climb && !isOn(Switch::SteepThenLevel));
  case Field::Length:
    return task_ == Task::Grade;
  case Field::Limit:
    return task_ == Task::Grade || task_ == Task::Climb;
  }
  return false;
}

bool ElevationForm::uses(Switch which) const {
  switch (which) {
  case Switch::Eased:
  case Switch::SteepThenLevel:
    return task_ == Task::Climb;
  case Switch::OpenRun:
    return task_ == Task::Grade;
  case Switch::PieceAlone:
    return task_ == Task::Grade && selected_.size() > 1;
  case Switch::TiltAlone:
    return task_ == Task::EndHeight;
  case Switch::Spread:
    return plan_.gap.has_value() || isOn(Switch::Spread);
  }
  return false;
}

double ElevationForm::read(Field field, std::string_view text) {
  const auto take = [&](const NumberInput& input) {
    problems_[index(field)] = input.problem;
    return input.value;
  };
  switch (field) {
  case Field::Length:
    return take(readLength(text, units_, 1, kFarthest));
  case Field::Percent:
    return take(readGrade(text, "%", 99)) / 100;
  case Field::Degrees:
    return GradeValue{take(readGrade(text, "\u00b0", 89)), GradeValue::Unit::Degrees}.slope();
  case Field::Limit: {
    const double limit = take(readGrade(text, "%", percentOf(kSteepestSlope))) / 100;
    if (problems_[index(field)].empty() && limit <= 0)
      problems_[index(field)] = tr("The limit has to be above 0 %.");
    return limit;
  }
  default:
    return take(readLength(text, units_, -kFarthest, kFarthest));
  }
}

void ElevationForm::enter(Field field, std::string_view text) {
  texts_[index(field)] = text;
  const double value = read(field, text);
  if (problems_[index(field)].empty()) {
    if (field == Field::Length)
      length_ = value;
    else if (field == Field::Limit)
      limit_ = value;
    else
      value_ = value;
  }
  if (field != Field::Length && field != Field::Limit) {
    for (const Field other : {Field::Height, Field::Rise, Field::Percent, Field::Degrees})
      if (other != field)
        problems_[index(other)].clear();
    typed_ = field;
  }
  if (problems_[index(field)].empty())
    compute();
}

void ElevationForm::set(Switch which, bool on) {
  switches_[static_cast<std::size_t>(which)] = on;
  if (which == Switch::SteepThenLevel && on && typed_ &&
      (*typed_ == Field::Percent || *typed_ == Field::Degrees))
    return enter(Field::Rise, std::string(text(Field::Rise)));
  compute();
}

TrackEnd ElevationForm::fromEnd() const {
  return ends_.empty() ? TrackEnd{} : ends_[from_];
}

double ElevationForm::startHeight() const {
  return endHeight(layout_, fromEnd());
}

LoopRule ElevationForm::loops() const {
  return isOn(Switch::Spread) ? LoopRule::Spread : LoopRule::Refuse;
}

std::vector<std::int32_t> ElevationForm::graded() const {
  return isOn(Switch::PieceAlone) ? std::vector{fromEnd().piece} : selected_;
}

void ElevationForm::compute() {
  plan_ = {};
  switch (task_) {
  case Task::Climb:
    return computeClimb();
  case Task::Grade:
    return computeGrade();
  case Task::Raise:
  case Task::EndHeight:
    return computeLift();
  case Task::Level:
    plan_ = planLevel(layout_, selected_, fromEnd(), loops());
    return;
  case Task::Ease:
    plan_ = planEase(layout_, wayNow(), loops());
    return;
  }
}

void ElevationForm::computeClimb() {
  TargetTask task;
  task.way = wayNow();
  task.eased = isOn(Switch::Eased);
  task.shape = isOn(Switch::SteepThenLevel) ? TargetTask::Shape::SteepThenLevel
                                            : TargetTask::Shape::OneGrade;
  task.limit = limit_;
  task.loops = loops();
  double rise = task.way.rise();
  if (typed_)
    rise = *typed_ == Field::Height ? value_ - startHeight()
           : *typed_ == Field::Rise ? value_
                                    : riseWith(layout_, task.way, value_, task.eased);
  task.height = startHeight() + rise;
  TargetPlan target = planTarget(layout_, task);
  plan_ = std::move(target.heights);
  follow(rise, target.slope);
}

void ElevationForm::computeGrade() {
  GradeTask task;
  task.pieces = graded();
  task.start = fromEnd();
  if (!ways_.empty() && ways_[way_].start() == task.start)
    task.towards = ways_[way_].stretches.front().leave;
  task.open = isOn(Switch::OpenRun);
  task.limit = limit_;
  task.loops = loops();
  if (typed_ && (*typed_ == Field::Percent || *typed_ == Field::Degrees))
    task.slope = value_;
  else if (typed_)
    task.slope = (*typed_ == Field::Rise ? value_ : value_ - startHeight()) / length_;
  else if (!ways_.empty() && length_ > 0)
    task.slope = ways_[way_].rise() / ways_[way_].length();
  plan_ = planGrade(layout_, task);
  follow(task.slope * length_, task.slope);
}

void ElevationForm::computeLift() {
  const double rise = !typed_ ? 0 : *typed_ == Field::Rise ? value_ : value_ - startHeight();
  if (task_ == Task::Raise)
    plan_ = planRaise(layout_, fromEnd().piece, rise);
  else
    plan_ = planEndHeight(layout_, fromEnd(), startHeight() + rise,
                          isOn(Switch::TiltAlone) ? EndRule::TiltPiece : EndRule::LiftAll, loops());
  follow(rise, 0);
}

void ElevationForm::follow(double rise, double slope) {
  showFigure(Field::Height, formatLength(startHeight() + rise, units_));
  showFigure(Field::Rise, formatLength(rise, units_));
  if (std::abs(slope) < 1) {
    showFigure(Field::Percent, percentText(slope));
    showFigure(Field::Degrees, formatAngle(std::round(degreesOf(slope) * 100) / 100));
  }
}

void ElevationForm::showFigure(Field field, const std::string& text) {
  if (typed_ != field)
    texts_[index(field)] = text;
}

std::string ElevationForm::problem() const {
  if (selected_.empty())
    return tr("Select the track first.");
  for (std::size_t i = 0; i < kFields; ++i)
    if (uses(static_cast<Field>(i)) && !problems_[i].empty())
      return problems_[i];
  return plan_.refusal ? plan_.refusal->text : std::string();
}

bool ElevationForm::ready() const {
  return problem().empty() && (!plan_.pieces.empty() || plan_.run);
}

PlacedPiece ElevationForm::laid(const PlacedPiece& piece) const {
  PlacedPiece changed = piece;
  const auto height = std::ranges::find(plan_.pieces, piece.id, &PieceHeight::piece);
  if (height != plan_.pieces.end())
    lay(changed, *height);
  return changed;
}

TrainWay ElevationForm::wayPlanned() const {
  return wayAfter(layout_, wayNow(), plan_);
}

std::string ElevationForm::summary() const {
  if (!problem().empty())
    return {};
  if (!ready())
    return tr("The track lies so already.");
  const double steepest = steepestOf(layout_, plan_).slope;
  double felt = 0;
  for (const WayStretch& stretch : wayNow().stretches) {
    const PlacedPiece& piece = *layout_.findPiece(stretch.piece);
    felt = std::max(felt, std::abs(slopeOf(laid(piece))) +
                              curveResistance(*definitionOf(piece), stretch.enter, stretch.leave));
  }
  std::string text = trCount("%1% piece gets another height.", "%1% pieces get another height.",
                             plan_.pieces.size());
  if (steepest != 0)
    text.append(" ").append(tr("Steepest: %1% %%.", {percentText(std::abs(steepest))}));
  if (steepest != 0 && felt > std::abs(steepest) + 0.0005)
    text.append(" ").append(tr("In its curves a train feels up to %1% %%.", {percentText(felt)}));
  return text;
}

void ElevationForm::showOn(PlanPreview& preview) const {
  preview.show(picture());
}

PlanContent ElevationForm::picture() const {
  PlanContent picture;
  if (ends_.empty())
    return picture;
  const auto name = [&](const char* text, TrackEnd end, double side) {
    const PlacedPiece& piece = *layout_.findPiece(end.piece);
    const Point at = placeOf(piece, end.connector);
    const double height = endHeight(laid(piece), *definitionOf(piece), end.connector);
    Label label;
    label.text = tr(text, {formatLength(height, units_)});
    label.x = at.x;
    label.y = at.y + side * 2.2 * trackHalfWidth(definitionOf(piece)->system);
    picture.labels.push_back(label);
  };
  if (usesTo() && !ways_.empty())
    for (const WayStretch& stretch : ways_[way_].stretches) {
      picture.pieces.push_back(laid(*layout_.findPiece(stretch.piece)));
      picture.pieces.back().sel = false;
    }
  name(trLater("From: %1%"), ends_[from_], -1); // above the track
  if (usesTo() && from_ != to_)
    name(trLater("To: %1%"), ends_[to_], 1);
  return picture;
}

} // namespace trassix
