#include "editing/profile/profile_marks.h"

#include "document/layout.h"
#include "editing/canvas/plan_theme.h"
#include "editing/elevation/grades.h"
#include "editing/profile/profile_painter.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

using Kind = ProfileMark::Kind;

constexpr double kMarkRowPx = 11; ///< from the plot's lower edge to the middle of the marks
constexpr double kHillPx = 26;    ///< of a tunnel above its track
constexpr double kTextPx = 11;
constexpr double kLevelSlope = 0.0005; ///< reads as 0.0 %

/// The part of a mark that is in view, in steps of at most a few px along the track.
std::vector<Point> alongTrack(const ProfilePicture& picture, const ProfileMark& mark) {
  const ProfileScale& plot = picture.plot;
  std::vector<Point> points;
  const double from = std::max(mark.from, plot.from);
  const double to = std::min(mark.to, plot.alongAt(plot.high.x));
  if (from >= to)
    return points;
  const auto add = [&](double along) {
    points.push_back(plot.toScreen(along, heightAt(picture.way, picture.content, along)));
  };
  add(from);
  for (std::size_t i = picture.content.stretchAt(from) + 1; picture.content.along[i] < to; ++i)
    add(picture.content.along[i]);
  add(to);
  return points;
}

void paintHill(Surface& surface, const PlanTheme& theme, const std::vector<Point>& track) {
  std::vector<Point> hill = track;
  for (auto point = track.rbegin(); point != track.rend(); ++point)
    hill.push_back({point->x, point->y - kHillPx});
  surface.polygon(hill, withAlpha(theme.hill, 60), Stroke{theme.tunnel, 1});
}

void paintBridge(Surface& surface, const PlanTheme& theme, const std::vector<Point>& track,
                 double ground) {
  std::vector<Point> deck = track;
  for (auto point = track.rbegin(); point != track.rend(); ++point)
    deck.push_back({point->x, point->y + 5});
  surface.polygon(deck, opaque(theme.bridgeBed), Stroke{theme.bedEdge, 1});
  std::vector<Point> piers;
  for (const Point end : {track.front(), track.back()})
    piers.insert(piers.end(), {{end.x, end.y + 5}, {end.x, std::max(end.y + 5, ground)}});
  surface.segments(piers, {theme.bedEdge, 1.5});
}

struct SectionInView {
  Point own; ///< the way's track there, px
  Point other;
  double clearance = 0; ///< mm
  Rgba color;
};

std::vector<SectionInView> sectionsInView(const ProfilePicture& picture) {
  std::vector<SectionInView> sections;
  const ProfileScale& plot = picture.plot;
  for (const ProfileCrossing& known : picture.content.crossings) {
    const TrackCrossing crossing =
        picture.plan ? crossingAfter(picture.layout, known.crossing, *picture.plan)
                     : known.crossing;
    const double height = (known.over ? crossing.upper : crossing.lower).height;
    const Point at = plot.toScreen(known.along, height);
    const double own = heightAt(picture.way, picture.content, known.along);
    if (at.x >= plot.low.x && at.x <= plot.high.x)
      sections.push_back({plot.toScreen(known.along, own), at, crossing.clearance,
                          crossing.tooLow() ? picture.theme.gradeColor(GradeBand::Steep)
                                            : picture.theme.joinedEnd});
  }
  return sections;
}

/// Bed and rails as a saw would show them.
void paintSection(Surface& surface, const PlanTheme& theme, Point rails, Rgba color) {
  const auto box = [&](double left, double top, double right, double bottom, Rgba fill) {
    const std::array<Point, 4> corners{{{rails.x + left, rails.y + top},
                                        {rails.x + right, rails.y + top},
                                        {rails.x + right, rails.y + bottom},
                                        {rails.x + left, rails.y + bottom}}};
    surface.polygon(corners, fill, {});
  };
  box(-9, 2, 9, 5, opaque(theme.bed));
  box(-9, 5, 9, 6, color);
  box(-6, -2, -4, 2, theme.rail);
  box(4, -2, 6, 2, theme.rail);
}

} // namespace

Point markPlace(const ProfileScale& plot, const ProfileMark& mark) {
  return {plot.toScreen((mark.from + mark.to) / 2, 0).x, plot.high.y + kMarkRowPx};
}

std::string slopeText(double slope) {
  return std::abs(slope) < kLevelSlope ? tr("level")
                                       : tr("%1% %%", {formatFixed(percentOf(slope), 1)});
}

void paintRanges(Surface& surface, const ProfilePicture& picture) {
  for (const ProfileMark& mark : picture.content.marks) {
    const std::vector<Point> track = alongTrack(picture, mark);
    if (track.size() < 2)
      continue;
    if (mark.kind == Kind::Tunnel)
      paintHill(surface, picture.theme, track);
    else if (mark.kind == Kind::Bridge)
      paintBridge(surface, picture.theme, track, picture.plot.high.y);
    else if (mark.kind == Kind::Helix)
      surface.polyline(track, {withAlpha(picture.theme.tunnel, 70), 12});
  }
}

void paintMarks(Surface& surface, const ProfilePicture& picture) {
  double before = -1e9;
  for (const ProfileMark& mark : picture.content.marks) {
    if (mark.kind != Kind::Turnout && mark.kind != Kind::Crossing)
      continue;
    const Point at = markPlace(picture.plot, mark);
    if (at.x < picture.plot.low.x || at.x > picture.plot.high.x || at.x - before < 6)
      continue;
    before = at.x;
    const Rgba color = mark.branches ? picture.theme.selected : picture.theme.ruler;
    surface.circle(at, kMarkRadiusPx, mark.branches ? picture.theme.paper : picture.theme.board,
                   Stroke{color, mark.branches ? 1.5 : 1.0});
    std::vector<Point> lines;
    if (mark.kind == Kind::Turnout)
      lines = {
          {at.x - 5, at.y + 2}, {at.x + 5, at.y + 2}, {at.x - 2, at.y + 2}, {at.x + 4, at.y - 4}};
    else
      lines = {
          {at.x - 4, at.y - 4}, {at.x + 4, at.y + 4}, {at.x - 4, at.y + 4}, {at.x + 4, at.y - 4}};
    surface.segments(lines, {color, 1.5});
  }
}

void paintCrossings(Surface& surface, const ProfilePicture& picture) {
  for (const SectionInView& section : sectionsInView(picture)) {
    surface.segments(std::array{section.own, section.other},
                     {section.color, 1.5, Stroke::Style::Dotted});
    if (picture.plot.holds(section.other))
      paintSection(surface, picture.theme, section.other, section.color);
  }
}

void paintClearances(LabelRoom& labels, const ProfilePicture& picture) {
  for (const SectionInView& section : sectionsInView(picture)) {
    const TextStyle style{section.color, kTextPx, true};
    const std::string text =
        formatLength(std::max(section.clearance, 0.0), picture.layout.settings().units);
    const double aside = labels.widthOf(text, style) / 2 + 8;
    const Point own = section.own;
    const Point other = section.other;
    if (picture.plot.holds(other))
      labels.block(other, 6);
    const double y =
        std::clamp((own.y + other.y) / 2, picture.plot.low.y + 8, picture.plot.high.y - 8);
    labels.paint(text,
                 {{other.x + aside, y},
                  {other.x - aside, y},
                  {other.x + aside + 6, other.y},
                  {other.x - aside - 6, other.y}},
                 style);
  }
}

std::vector<std::string> wrapped(Surface& surface, std::string_view text, const TextStyle& style,
                                 double width) {
  std::vector<std::string> lines{""};
  while (!text.empty()) {
    const std::size_t blank = std::min(text.find(' '), text.size());
    const std::string word(text.substr(0, blank));
    const std::string longer = lines.back().empty() ? word : lines.back() + " " + word;
    if (lines.back().empty() || surface.textSize(longer, style).width <= width)
      lines.back() = longer;
    else
      lines.push_back(word);
    text.remove_prefix(std::min(blank + 1, text.size()));
  }
  return lines;
}

} // namespace trassix
