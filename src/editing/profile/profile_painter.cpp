#include "editing/profile/profile_painter.h"

#include "document/layout.h"
#include "editing/canvas/grid_steps.h"
#include "editing/canvas/plan_theme.h"
#include "editing/elevation/way_handles.h"
#include "editing/profile/label_room.h"
#include "editing/profile/profile_marks.h"
#include "geometry/pose.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kTextPx = 11;
constexpr double kAxisRowPx = 34;
constexpr double kHandlePx = 3.2;
constexpr double kKneePx = 5;

std::string number(double mm, std::int32_t units) {
  std::string text = formatBriefLength(mm, units);
  return text.substr(0, text.find(' '));
}

class Painter {
 public:
  Painter(Surface& surface, const ProfilePicture& picture)
      : surface_(surface), picture_(picture), plot_(picture.plot), content_(picture.content),
        units_(picture.layout.settings().units),
        labels_(surface, picture.size, plot_.low, {plot_.high.x, plot_.high.y + kAxisRowPx / 2},
                picture.theme.paper) {}

  void paint() {
    paintGround();
    if (content_.empty())
      return paintInvitation();
    paintAxes();
    paintLevels();
    paintRanges(surface_, picture_);
    paintTrack();
    paintMarks(surface_, picture_);
    paintCrossings(surface_, picture_);
    paintHandles();
    paintProblem();
    paintHeightInHand();
    paintClearances(labels_, picture_);
    paintGrades();
    paintHeightsOfKnees();
    paintNamesOfLevels();
    if (picture_.focused)
      paintFocus();
  }

 private:
  bool inView(double y) const { return y >= plot_.low.y && y <= plot_.high.y; }
  Point onTrack(std::size_t joint) const {
    return plot_.toScreen(content_.along[joint], heightOfJoint(picture_.way, joint));
  }

  void paintGround() {
    const std::array<Point, 4> all{{{0, 0},
                                    {picture_.size.width, 0},
                                    {picture_.size.width, picture_.size.height},
                                    {0, picture_.size.height}}};
    surface_.polygon(all, theme_.board, {});
    const std::size_t at = content_.stretchOf(picture_.pointedPiece);
    if (at == content_.way.stretches.size())
      return;
    const double from = std::max(plot_.toScreen(content_.along[at], 0).x, plot_.low.x);
    const double to = std::min(plot_.toScreen(content_.along[at + 1], 0).x, plot_.high.x);
    const std::array<Point, 4> band{
        {{from, plot_.low.y}, {to, plot_.low.y}, {to, plot_.high.y}, {from, plot_.high.y}}};
    if (from < to)
      surface_.polygon(band, Rgba{32, 108, 214, 36}, {});
  }

  void paintInvitation() {
    const TextStyle style{theme_.ruler, kTextPx + 1};
    const Point middle{picture_.size.width / 2, picture_.size.height / 2};
    surface_.text(tr("Select a piece of track to see the heights along its way"), middle, 0, style);
  }

  void paintFocus() {
    const double right = picture_.size.width - 1;
    const double low = picture_.size.height - 1;
    const std::array<Point, 4> frame{{{1, 1}, {right, 1}, {right, low}, {1, low}}};
    surface_.polygon(frame, {}, Stroke{theme_.selected, 1});
  }

  void paintAxes() {
    std::vector<Point> lines;
    const double rise = gridSteps(plot_.perRise, units_, 22).fine;
    for (double height = std::ceil(plot_.heightAt(plot_.high.y) / rise) * rise;
         height <= plot_.heightAt(plot_.low.y); height += rise) {
      const double y = plot_.toScreen(0, height).y;
      lines.insert(lines.end(), {{plot_.low.x, y}, {plot_.high.x, y}});
      const std::string text = number(height, units_);
      const double width = surface_.textSize(text, axisText_).width;
      surface_.text(text, {plot_.low.x - 6 - width / 2, y}, 0, axisText_);
    }
    const double step = gridSteps(plot_.perMm, units_, 84).fine;
    const double last = std::min(plot_.alongAt(plot_.high.x), content_.length());
    for (double along = std::ceil(plot_.from / step) * step; along <= last; along += step) {
      const double x = plot_.toScreen(along, 0).x;
      lines.insert(lines.end(), {{x, plot_.low.y}, {x, plot_.high.y}});
      surface_.text(formatBriefLength(along, units_), {x, plot_.high.y + kAxisRowPx}, 0, axisText_);
    }
    surface_.segments(lines, {theme_.gridFine, 1});
  }

  void paintLevels() {
    for (const Level& level : picture_.layout.settings().levels) {
      const double y = plot_.toScreen(0, level.height).y;
      if (!inView(y))
        continue;
      const std::array<Point, 2> line{{{plot_.low.x, y}, {plot_.high.x, y}}};
      surface_.polyline(line, {levelLine_, 1, Stroke::Style::Dashed});
    }
  }

  void paintNamesOfLevels() {
    for (const Level& level : picture_.layout.settings().levels) {
      const double y = plot_.toScreen(0, level.height).y;
      const double half = labels_.widthOf(level.name, axisText_) / 2 + 4;
      const Point left{plot_.low.x + half, y - 8};
      const Point right{plot_.high.x - half, y - 8};
      if (inView(y))
        labels_.paint(
            level.name,
            {right, left, {right.x, y + 8}, {left.x, y + 8}, {(left.x + right.x) / 2, y - 8}},
            axisText_);
    }
  }

  void paintTrack() {
    const std::vector<WayStretch>& stretches = picture_.way.stretches;
    std::vector<Point> line;
    // Neighbours of one colour are one line.
    for (std::size_t i = 0; i < stretches.size(); ++i) {
      const Point from = plot_.toScreen(content_.along[i], stretches[i].from);
      const Point to = plot_.toScreen(content_.along[i + 1], stretches[i].to);
      if (to.x < plot_.low.x || from.x > plot_.high.x)
        continue;
      const Rgba color = theme_.gradeColor(gradeBand(stretches[i].slope()));
      if (line.empty())
        line.push_back(clipped(from, to, from));
      line.push_back(clipped(from, to, to));
      if (gradeBand(stretches[i].slope()) == GradeBand::TooSteep)
        hatch(from, to);
      const bool ends = i + 1 == stretches.size() || to.x > plot_.high.x ||
                        theme_.gradeColor(gradeBand(stretches[i + 1].slope())) != color;
      if (!ends)
        continue;
      surface_.polyline(line, {color, 3});
      line.clear();
    }
  }

  /// The end of the line, or where it leaves the plot at its sides.
  Point clipped(Point from, Point to, Point end) const {
    const double x = std::clamp(end.x, plot_.low.x, plot_.high.x);
    return {x, to.x > from.x ? from.y + (to.y - from.y) * (x - from.x) / (to.x - from.x) : end.y};
  }

  void hatch(Point from, Point to) {
    std::vector<Point> strokes;
    for (double x = std::max(from.x, plot_.low.x) + 3; x < std::min(to.x, plot_.high.x); x += 6) {
      const double y = from.y + (to.y - from.y) * (x - from.x) / (to.x - from.x);
      strokes.insert(strokes.end(), {{x - 2, y + 6}, {x + 2, y - 6}});
    }
    surface_.segments(strokes, {theme_.gradeColor(GradeBand::TooSteep), 1});
  }

  /// Grade and length between knees, along the track.
  void paintGrades() {
    const std::size_t count = picture_.way.stretches.size();
    std::vector<std::size_t> borders = picture_.knees;
    if (borders.empty() || borders.front() != 0)
      borders.insert(borders.begin(), 0);
    if (borders.back() != count)
      borders.push_back(count);
    for (std::size_t k = 0; k + 1 < borders.size(); ++k)
      paintGrade(borders[k], borders[k + 1]);
  }

  void paintGrade(std::size_t first, std::size_t last) {
    const Point whole[] = {onTrack(first), onTrack(last)};
    const Point from = clipped(whole[0], whole[1], whole[0]);
    const Point to = clipped(whole[0], whole[1], whole[1]);
    const double room = std::hypot(to.x - from.x, to.y - from.y) - 14;
    if (to.x <= plot_.low.x || from.x >= plot_.high.x || room < 20)
      return;
    const double length = content_.along[last] - content_.along[first];
    const double slope = picture_.way.stretches[first].slope();
    const std::string grade = slopeText(slope);
    const TextStyle style{theme_.article, kTextPx, true};
    std::string text = grade + " \u00b7 " + formatLength(length, units_);
    if (labels_.widthOf(text, style) > room)
      text = grade;
    if (labels_.widthOf(text, style) > room)
      return;
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    const double slack = std::max(room - labels_.widthOf(text, style), 0.0) / 2;
    const auto place = [&](double forward, double px) {
      return Point{(from.x + to.x) / 2 + std::cos(angle) * forward + std::sin(angle) * px,
                   (from.y + to.y) / 2 + std::sin(angle) * forward - std::cos(angle) * px};
    };
    labels_.paint(text,
                  {place(0, 12), place(-slack, 12), place(slack, 12), place(0, -12),
                   place(-slack, -12), place(slack, -12)},
                  style, toDegrees(angle));
  }

  void paintHandles() {
    for (const ProfileHandle& handle : picture_.handles) {
      const bool pointed = handle.joint == picture_.pointedJoint;
      const bool chosen = handle.joint == picture_.chosenJoint;
      const double radius = (handle.knee ? kKneePx : kHandlePx) + (pointed || chosen ? 1.5 : 0);
      if (!inView(handle.px.y))
        continue;
      if (chosen)
        surface_.circle(handle.px, radius + 4, {}, Stroke{theme_.selected, 2});
      surface_.circle(handle.px, radius, pointed || chosen ? theme_.selected : theme_.paper,
                      Stroke{pointed || chosen ? theme_.paper : theme_.rail, 1.5});
    }
  }

  bool inHand(const ProfileHandle& handle) const {
    return handle.joint == (picture_.pointedJoint ? picture_.pointedJoint : picture_.chosenJoint);
  }

  void paintHeight(const ProfileHandle& handle, const TextStyle& style) {
    if (!inView(handle.px.y))
      return;
    const std::string text = formatLength(heightOfJoint(picture_.way, handle.joint), units_);
    const double half = labels_.widthOf(text, style) / 2 + 2;
    const double x = std::clamp(handle.px.x, plot_.low.x + half, plot_.high.x - half);
    const double y = handle.px.y;
    labels_.paint(text, {{x, y + 16}, {x, y - 16}, {x + half + 8, y + 14}, {x - half - 8, y + 14}},
                  style);
  }
  void paintHeightInHand() {
    for (const ProfileHandle& handle : picture_.handles) {
      if (handle.knee)
        labels_.block(handle.px, kKneePx);
      if (inHand(handle))
        paintHeight(handle, {theme_.selected, kTextPx + 1, true});
    }
  }
  void paintHeightsOfKnees() {
    for (const ProfileHandle& handle : picture_.handles)
      if (handle.knee && !inHand(handle))
        paintHeight(handle, {theme_.ruler, kTextPx});
  }

  void paintProblem() {
    if (picture_.problem.empty())
      return;
    constexpr double kLinePx = kTextPx + 4;
    const Rgba red = theme_.gradeColor(GradeBand::Steep);
    const TextStyle style{red, kTextPx, true};
    const std::vector<std::string> lines =
        wrapped(surface_, picture_.problem, style, plot_.width() - 20);
    double half = 0;
    for (const std::string& line : lines)
      half = std::max(half, labels_.widthOf(line, style) / 2 + 8);
    const double middle = (plot_.low.x + plot_.high.x) / 2;
    const double bottom = plot_.low.y + kLinePx * static_cast<double>(lines.size()) + 2;
    const std::array<Point, 4> plate{{{middle - half, plot_.low.y},
                                      {middle + half, plot_.low.y},
                                      {middle + half, bottom},
                                      {middle - half, bottom}}};
    surface_.polygon(plate, theme_.paper, Stroke{red, 1});
    double y = plot_.low.y + kLinePx / 2 + 1;
    for (const std::string& line : lines) {
      labels_.paint(line, {{middle, y}}, style);
      y += kLinePx;
    }
  }

  Surface& surface_;
  const ProfilePicture& picture_;
  const PlanTheme& theme_ = picture_.theme;
  const TextStyle axisText_{theme_.ruler, kTextPx};
  const Rgba levelLine_ = withAlpha(theme_.ruler, 130);
  const ProfileScale& plot_;
  const ProfileContent& content_;
  std::int32_t units_;
  LabelRoom labels_;
};

} // namespace

void paintProfile(Surface& surface, const ProfilePicture& picture) {
  Painter(surface, picture).paint();
}

} // namespace trassix
