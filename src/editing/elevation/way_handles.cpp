#include "editing/elevation/way_handles.h"

#include "document/layout.h"
#include "document/records.h"
#include "editing/elevation/grade_edits.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>

namespace trassix {

namespace {

constexpr double kSameSlope = 1e-5;

bool takesGrade(const Layout& layout, const WayStretch& stretch) {
  const PlacedPiece* piece = layout.findPiece(stretch.piece);
  return piece != nullptr && takesGrade(*piece);
}

/// The part of a way between the knees beside a joint, over its joint 0 when it goes round.
struct Section {
  TrainWay way;
  std::size_t joint = 0; ///< the one in question, in this part
};

std::size_t numberOf(std::size_t joint, bool round, const TrainWay& way) {
  return round ? joint % way.stretches.size() : std::min(joint, way.stretches.size());
}

/// None when no other joint is kept.
std::optional<Section> sectionAbout(const Layout& layout, const TrainWay& way, std::size_t joint) {
  const bool round = goesRound(layout, way);
  std::vector<std::size_t> knees = kneesOn(layout, way);
  std::erase(knees, joint);
  if (knees.empty())
    return std::nullopt;
  const std::size_t count = way.stretches.size();
  const auto after = std::ranges::upper_bound(knees, joint);
  std::size_t first = 0;
  std::size_t last = count;
  if (after != knees.begin())
    first = *(after - 1);
  else if (round)
    first = knees.back();
  if (after != knees.end())
    last = *after;
  else if (round)
    last = knees.front();
  Section section;
  const auto take = [&](std::size_t from, std::size_t to) {
    for (std::size_t i = from; i != to; i = round && i + 1 == count ? 0 : i + 1)
      section.way.stretches.push_back(way.stretches[i]);
  };
  take(first, joint);
  section.joint = section.way.stretches.size();
  take(joint, last);
  return section;
}

} // namespace

bool goesRound(const Layout& layout, const TrainWay& way) {
  return !way.empty() && beyond(layout, way.end()) == way.start();
}

double heightOfJoint(const TrainWay& way, std::size_t joint) {
  return joint < way.stretches.size() ? way.stretches[joint].from : way.stretches.back().to;
}

std::vector<std::size_t> kneesOn(const Layout& layout, const TrainWay& way) {
  std::vector<std::size_t> knees;
  if (way.empty())
    return knees;
  const bool round = goesRound(layout, way);
  const std::size_t count = way.stretches.size();
  const auto differ = [&](const WayStretch& before, const WayStretch& after) {
    return std::abs(after.slope() - before.slope()) > kSameSlope ||
           takesGrade(layout, before) != takesGrade(layout, after);
  };
  for (std::size_t i = 0; i < count; ++i)
    if (i == 0 ? !round || differ(way.stretches.back(), way.stretches.front())
               : differ(way.stretches[i - 1], way.stretches[i]))
      knees.push_back(i);
  if (!round)
    knees.push_back(count);
  else if (knees.empty())
    knees.push_back(0);
  return knees;
}

HeightPlan planJointHeight(const Layout& layout, const TrainWay& way, std::size_t joint,
                           double height, LoopRule loops) {
  if (way.empty())
    return {};
  joint = numberOf(joint, goesRound(layout, way), way);
  const std::optional<Section> section = sectionAbout(layout, way, joint);
  if (!section)
    return planLiftAll(layout, way, joint, height);
  const std::size_t last = section->way.stretches.size();
  std::vector<Knee> knees;
  if (section->joint > 0)
    knees.push_back({0, heightOfJoint(section->way, 0)});
  knees.push_back({section->joint, height});
  if (section->joint < last)
    knees.push_back({last, heightOfJoint(section->way, last)});
  return planProfile(layout, section->way, heightsBetween(section->way, knees), loops);
}

HeightPlan planLiftAll(const Layout& layout, const TrainWay& way, std::size_t joint,
                       double height) {
  if (way.empty())
    return {};
  return planRaise(layout, way.stretches.front().piece, height - heightOfJoint(way, joint));
}

HeightPlan planWithoutKnee(const Layout& layout, const TrainWay& way, std::size_t joint,
                           LoopRule loops) {
  if (way.empty())
    return {};
  joint = numberOf(joint, goesRound(layout, way), way);
  const std::optional<Section> section = sectionAbout(layout, way, joint);
  const std::size_t last = section ? section->way.stretches.size() : 0;
  if (!section || section->joint == 0 || section->joint == last)
    return {};
  const Knee ends[] = {{0, heightOfJoint(section->way, 0)},
                       {last, heightOfJoint(section->way, last)}};
  return planProfile(layout, section->way, heightsBetween(section->way, ends), loops);
}

TrainWay wayAfter(const Layout& layout, const TrainWay& way, const HeightPlan& plan) {
  std::unordered_map<std::int32_t, const PieceHeight*> laid;
  for (const PieceHeight& height : plan.pieces)
    laid.emplace(height.piece, &height);
  TrainWay after = way;
  for (WayStretch& stretch : after.stretches) {
    const auto found = laid.find(stretch.piece);
    const PlacedPiece* piece = found == laid.end() ? nullptr : layout.findPiece(stretch.piece);
    if (piece == nullptr)
      continue;
    stretch.from += riseOfEnd(*piece, *found->second, stretch.enter);
    stretch.to += riseOfEnd(*piece, *found->second, stretch.leave);
  }
  return after;
}

} // namespace trassix
