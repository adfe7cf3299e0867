#include "panels/layout_form.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "panels/baseboard_shape.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kLongest = 100000; ///< mm that can be typed
constexpr double kLeastMeasure = 50;
constexpr double kFarthestFromEdge = 2000;
constexpr double kSameLength = 1e-6;
constexpr double kNotch = 3; ///< a new notch takes such a part of its side

BoardKind boardKindOf(LayoutForm::Table table) {
  switch (table) {
  case LayoutForm::Table::L:
    return BoardKind::L;
  case LayoutForm::Table::U:
    return BoardKind::U;
  case LayoutForm::Table::T:
    return BoardKind::T;
  default:
    return BoardKind::Rectangle;
  }
}

bool isShape(LayoutForm::Table table) {
  return table >= LayoutForm::Table::Rectangle && table <= LayoutForm::Table::Z;
}

/// Two parts that overlap in the middle, the upper one to the left.
Polygon zOutline(double w, double h, double step, double depth) {
  return {{0, 0}, {w - step, 0}, {w - step, h - depth}, {w, h - depth},
          {w, h}, {step, h},     {step, depth},         {0, depth}};
}

std::string zProblem(double w, double h, double step, double depth) {
  if (step >= w)
    return tr("The step must be less than the whole width.");
  if (depth >= h)
    return tr("%1% must be less than the whole depth.", {tr("Depth of each part")});
  if (2 * step >= w && 2 * depth <= h)
    return tr("The two parts do not hang together.");
  return {};
}

/// What a shape begins with, by the gauge: rooms for the sharpest radius all around.
std::array<double, LayoutForm::kMeasures> usualMeasures(LayoutForm::Table table, Gauge gauge) {
  const double scale = gauge == Gauge::Z ? 0.45 : gauge == Gauge::Gauge1 ? 3 : 1;
  std::array<double, LayoutForm::kMeasures> measures{2000, 1000, 0, 0};
  if (table == LayoutForm::Table::L)
    measures = {2400, 1800, 1150, 1400};
  else if (table == LayoutForm::Table::U)
    measures = {3000, 2500, 1200, 1200};
  else if (table == LayoutForm::Table::T)
    measures = {3000, 2400, 1200, 1200};
  else if (table == LayoutForm::Table::Z)
    measures = {3200, 2400, 1000, 1400};
  for (double& measure : measures)
    measure *= scale;
  return measures;
}

std::vector<std::string> lengthNames(const std::vector<double>& lengths, std::int32_t units) {
  std::vector<std::string> names;
  names.reserve(lengths.size());
  for (const double length : lengths)
    names.push_back(formatBriefLength(length, units));
  return names;
}

std::size_t rowOf(const std::vector<double>& lengths, double length) {
  for (std::size_t i = 0; i < lengths.size(); ++i)
    if (std::abs(lengths[i] - length) < 1e-6)
      return i;
  return 0;
}

double lengthOf(const Polygon& outline, std::size_t side) {
  const Point from = outline[side];
  const Point to = outline[(side + 1) % outline.size()];
  return std::hypot(to.x - from.x, to.y - from.y);
}

/// Of all but one; the first of several.
std::size_t longestSide(const Polygon& outline, std::size_t butFor) {
  std::size_t longest = butFor == 0 ? 1 : 0;
  for (std::size_t side = longest + 1; side < outline.size(); ++side)
    if (side != butFor && lengthOf(outline, side) > lengthOf(outline, longest) + kSameLength)
      longest = side;
  return longest;
}

} // namespace

LayoutForm::LayoutForm(const Layout& layout, TrackSystem system, PieceStock stock,
                       const std::optional<RememberedLayout>& remembered)
    : layout_(layout), units_(layout.settings().units),
      own_(withoutNeedlessCorners(layout.settings().baseboard)), sideLength_(lengthEntry(0)),
      distance_(lengthEntry(0)), usableLength_(lengthEntry(0)) {
  const std::vector<TrackSystem> known = systems();
  if (std::ranges::find(known, system) == known.end())
    system = known.front();
  LayoutTask task = usualLayoutTask(system, own_);
  table_ = mayUseOwn() ? Table::Own : Table::Usual;
  if (remembered && tableProblem(remembered->task.outline).empty()) {
    if (remembered->unchanged && std::ranges::find(known, remembered->task.system) != known.end()) {
      task = remembered->task;
      greeting_ = tr("These are the values this layout was made from.");
    } else {
      greeting_ = tr("The plan was changed since its layout was made: only the table was taken "
                     "over.");
    }
    if (!mayUseOwn()) {
      task.outline = remembered->task.outline;
      table_ = Table::Free;
    }
  }
  task.stock = std::move(stock);
  takeTask(task);
}

LengthEntry LayoutForm::lengthEntry(double mm) const {
  return {mm, units_, 0, kLongest};
}

void LayoutForm::takeTask(const LayoutTask& task) {
  task_ = task;
  distance_ = {task.distance, units_, 0, kFarthestFromEdge};
  distanceEntered_ = std::abs(task.distance - usualEdgeDistance(task.system)) > 1e-6;
  stationWish_ = task.station.value_or(StationWish{});
  station_ = task.station.has_value();
  usableEntered_ = station_;
  if (station_)
    usableLength_ = lengthEntry(stationWish_.usableLength);
  bridge_ = task.bridge.has_value();
  bridgeWish_ = task.bridge.value_or(BridgeWish{});
  stationSideSet_ = station_;
  bridgeSideSet_ = bridge_;
  if (table_ == Table::Own)
    task_.outline = own_;
  for (std::size_t i = 0; i < kMeasures; ++i)
    measures_.push_back({usualMeasures(Table::Rectangle, gaugeOf(task.system)).at(i), units_,
                         kLeastMeasure, kLongest});
  fillRadii();
  takeSides();
}

void LayoutForm::setSystem(TrackSystem system) {
  const std::vector<TrackSystem> known = systems();
  if (system == task_.system || std::ranges::find(known, system) == known.end())
    return;
  const bool otherGauge = gaugeOf(system) != gaugeOf(task_.system);
  task_.system = system;
  if (!distanceEntered_ || otherGauge) {
    distance_ = {usualEdgeDistance(system), units_, 0, kFarthestFromEdge};
    distanceEntered_ = false;
    task_.distance = distance_.mm();
  }
  if (otherGauge) {
    usableEntered_ = false;
    if (table_ == Table::Usual)
      setUsual(0);
    else if (isShape(table_))
      setTable(table_);
  }
  fillRadii();
  takeStation();
}

/// The radii nearest to the present ones.
void LayoutForm::fillRadii() {
  const bool two = task_.tracks() == 2 && trassix::mayHaveTwoTracks(task_.system);
  radii_ = cornerRadii(task_.system);
  if (two)
    std::erase_if(radii_, [this](double radius) {
      return trassix::outerRadii(task_.system, radius).empty();
    });
  const auto nearest = [](const std::vector<double>& radii, double wanted) {
    return *std::ranges::min_element(radii, {},
                                     [wanted](double radius) { return std::abs(radius - wanted); });
  };
  task_.radius = radii_.empty() ? 0 : nearest(radii_, task_.radius);
  outerRadii_ = trassix::outerRadii(task_.system, task_.radius);
  task_.secondRadius = two && !outerRadii_.empty() ? nearest(outerRadii_, task_.secondRadius) : 0;
}

void LayoutForm::takeStation() {
  if (!usableEntered_)
    usableLength_ = lengthEntry(usualStationLength(task_.system) / 3);
  const std::size_t sides = task_.outline.size();
  stationSideSet_ = stationSideSet_ && stationWish_.side < sides;
  bridgeSideSet_ = bridgeSideSet_ && bridgeWish_.side < sides;
  if (!stationSideSet_)
    stationWish_.side = longestSide(task_.outline, sides);
  if (!bridgeSideSet_)
    bridgeWish_.side = longestSide(task_.outline, stationWish_.side);
  stationWish_.usableLength = usableLength_.mm();
  if (!trassix::hasBridge(task_.system, bridgeWish_.form))
    for (const BridgeForm form : {BridgeForm::Arch, BridgeForm::Truss})
      if (trassix::hasBridge(task_.system, form))
        bridgeWish_.form = form;
  task_.station = hasStation() ? std::optional(stationWish_) : std::nullopt;
  task_.bridge = hasBridge() ? std::optional(bridgeWish_) : std::nullopt;
}

std::string LayoutForm::ownProblem() const {
  return layout_.settings().baseboard.empty() ? std::string() : tableProblem(own_);
}

void LayoutForm::setTable(Table table) {
  if (table == Table::Own && !mayUseOwn())
    return;
  table_ = table;
  if (isShape(table))
    for (std::size_t i = 0; i < kMeasures; ++i)
      measures_[i] = {usualMeasures(table, gaugeOf(task_.system)).at(i), units_, kLeastMeasure,
                      kLongest};
  takeTable();
}

void LayoutForm::setUsual(std::size_t row) {
  usual_ = row < usualTables(task_.system).size() ? row : 0;
  table_ = Table::Usual;
  takeTable();
}

std::vector<std::string> LayoutForm::usualNames() const {
  std::vector<std::string> names;
  for (const UsualTable& table : usualTables(task_.system))
    names.push_back(table.name);
  return names;
}

/// The outline stays as it was while measures make none.
void LayoutForm::takeTable() {
  const std::array<double, kMeasures> m{measures_[0].mm(), measures_[1].mm(), measures_[2].mm(),
                                        measures_[3].mm()};
  Polygon outline;
  if (table_ == Table::Own) {
    task_.outline = own_;
  } else if (table_ == Table::Usual) {
    outline = usualTables(task_.system).at(usual_).outline;
  } else if (table_ == Table::Z) {
    if (zProblem(m[0], m[1], m[2], m[3]).empty())
      outline = zOutline(m[0], m[1], m[2], m[3]);
  } else if (isShape(table_)) {
    const LastShape shape{static_cast<std::int32_t>(boardKindOf(table_)), m[0], m[1], m[2], m[3]};
    if (boardProblem(shape, units_).empty())
      outline = boardOutline(shape);
  }
  if (!outline.empty()) {
    // Where the plan has its baseboard.
    const Point corner = own_.empty() ? Point{}
                                      : Point{std::ranges::min(own_, {}, &Point::x).x,
                                              std::ranges::min(own_, {}, &Point::y).y};
    for (Point& p : outline)
      p = {p.x + corner.x, p.y + corner.y};
    task_.outline = std::move(outline);
  }
  takeSides();
}

/// What goes by the sides of the outline.
void LayoutForm::takeSides() {
  if (measuredSide_ >= task_.outline.size())
    measuredSide_ = 0;
  sideLength_ = {lengthOf(task_.outline, measuredSide_), units_, kLeastMeasure, kLongest};
  sideFits_ = true;
  takeStation();
}

void LayoutForm::setOutline(const Polygon& outline) {
  task_.outline = outline;
  table_ = Table::Free;
  takeSides();
}

void LayoutForm::mirror() {
  setOutline(turnedOver(task_.outline));
}

void LayoutForm::turn() {
  setOutline(turnedRight(task_.outline));
}

void LayoutForm::setMeasuredSide(std::size_t side) {
  measuredSide_ = side;
  takeSides();
}

void LayoutForm::enterSideLength(std::string_view text) {
  sideLength_.enter(text);
  if (!sideLength_.problem().empty())
    return;
  const std::size_t end = (measuredSide_ + 1) % task_.outline.size();
  const Point from = task_.outline[measuredSide_];
  const Point to = task_.outline[end];
  const double share = sideLength_.mm() / lengthOf(task_.outline, measuredSide_);
  sideFits_ = takeCorner(end, {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
}

std::string LayoutForm::measureName(std::size_t measure) const {
  if (!isShape(table_))
    return {};
  if (table_ == Table::Z) {
    const std::array<std::string, kMeasures> names{
        tr("Width"), tr("Depth"), tr("Step at each side"), tr("Depth of each part")};
    return names.at(measure);
  }
  return boardMeasureNames(boardKindOf(table_)).at(measure);
}

void LayoutForm::enterMeasure(std::size_t measure, std::string_view text) {
  measures_.at(measure).enter(text);
  takeTable();
}

bool LayoutForm::dragCorner(std::size_t corner, Point to) {
  const bool dragged = takeCorner(corner, to);
  if (dragged)
    takeSides();
  return dragged;
}

bool LayoutForm::takeCorner(std::size_t corner, Point to) {
  Polygon& outline = task_.outline;
  const std::size_t n = outline.size();
  if (corner >= n)
    return false;
  Polygon dragged = outline;
  const std::size_t before = (corner + n - 1) % n;
  const std::size_t after = (corner + 1) % n;
  const bool level = std::abs(outline[before].y - outline[corner].y) <
                     std::abs(outline[before].x - outline[corner].x);
  (level ? dragged[before].y : dragged[before].x) = level ? to.y : to.x;
  (level ? dragged[after].x : dragged[after].y) = level ? to.x : to.y;
  dragged[corner] = to;
  if (!tableProblem(dragged).empty())
    return false;
  outline = std::move(dragged);
  table_ = Table::Free;
  return true;
}

bool LayoutForm::addCorners(std::size_t side) {
  Polygon& outline = task_.outline;
  const std::size_t n = outline.size();
  if (side >= n || n + 2 > kMostTableCorners)
    return false;
  // A notch at the side's end, a part of its length and of the next side's.
  const Point from = outline[side];
  const Point at = outline[(side + 1) % n];
  const Point to = outline[(side + 2) % n];
  const Point first{at.x + (from.x - at.x) / kNotch, at.y + (from.y - at.y) / kNotch};
  const Point last{at.x + (to.x - at.x) / kNotch, at.y + (to.y - at.y) / kNotch};
  Polygon notched;
  for (std::size_t i = 0; i < n; ++i) {
    if (i != (side + 1) % n) {
      notched.push_back(outline[i]);
      continue;
    }
    notched.push_back(first);
    notched.push_back({first.x + last.x - at.x, first.y + last.y - at.y});
    notched.push_back(last);
  }
  if (!tableProblem(notched).empty())
    return false;
  setOutline(notched);
  return true;
}

std::vector<std::string> LayoutForm::sideNames() const {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < task_.outline.size(); ++i)
    names.push_back(tableSideName(task_.outline, i));
  return names;
}

void LayoutForm::enterDistance(std::string_view text) {
  distance_.enter(text);
  distanceEntered_ = true;
  task_.distance = distance_.mm();
}

void LayoutForm::setTracks(int tracks) {
  if (tracks == this->tracks() || (tracks == 2 && !mayHaveTwoTracks()))
    return;
  task_.secondRadius = tracks == 2 ? task_.radius + 1 : 0;
  fillRadii();
}

std::vector<std::string> LayoutForm::radiusNames() const {
  return lengthNames(radii_, units_);
}

std::vector<std::string> LayoutForm::outerRadiusNames() const {
  return lengthNames(outerRadii_, units_);
}

std::size_t LayoutForm::radius() const {
  return rowOf(radii_, task_.radius);
}

void LayoutForm::setRadius(std::size_t row) {
  if (row >= radii_.size())
    return;
  task_.radius = radii_[row];
  fillRadii();
}

std::size_t LayoutForm::outerRadius() const {
  return rowOf(outerRadii_, task_.secondRadius);
}

void LayoutForm::setOuterRadius(std::size_t row) {
  if (task_.tracks() == 2 && row < outerRadii_.size())
    task_.secondRadius = outerRadii_[row];
}

std::string LayoutForm::tracksProblem() const {
  return mayHaveTwoTracks() ? std::string()
                            : tr("No two radii of this track system make two tracks.");
}

void LayoutForm::setStation(bool on) {
  station_ = on;
  takeStation();
}

std::string LayoutForm::stationProblem() const {
  return mayHaveStation() ? std::string()
                          : tr("There are no pieces for a station in this track system.");
}

void LayoutForm::setStationSide(std::size_t side) {
  stationWish_.side = side;
  stationSideSet_ = true;
  takeStation();
}

void LayoutForm::setSidings(int sidings) {
  stationWish_.sidings = std::clamp(sidings, 1, kMostSidings);
  takeStation();
}

void LayoutForm::enterUsableLength(std::string_view text) {
  usableLength_.enter(text);
  usableEntered_ = true;
  takeStation();
}

bool LayoutForm::mayHaveBridge() const {
  return trassix::hasBridge(task_.system, BridgeForm::Arch) ||
         trassix::hasBridge(task_.system, BridgeForm::Truss);
}

void LayoutForm::setBridge(bool on) {
  bridge_ = on;
  takeStation();
}

std::string LayoutForm::bridgeProblem() const {
  return mayHaveBridge() ? std::string()
                         : tr("There are no pieces for a bridge in this track system.");
}

void LayoutForm::setBridgeSide(std::size_t side) {
  bridgeWish_.side = side;
  bridgeSideSet_ = true;
  takeStation();
}

void LayoutForm::setBridgeForm(BridgeForm form) {
  bridgeWish_.form = form;
  takeStation();
}

void LayoutForm::setOwnStockOnly(bool only) {
  task_.ownStockOnly = only;
}

void LayoutForm::setPreference(LayoutPreference preference) {
  task_.preference = preference;
}

std::string LayoutForm::problem() const {
  if (isShape(table_)) {
    for (std::size_t i = 0; i < kMeasures; ++i)
      if (!measureName(i).empty() && !measures_[i].problem().empty())
        return measureName(i) + ": " + measures_[i].problem();
    const std::array<double, kMeasures> m{measures_[0].mm(), measures_[1].mm(), measures_[2].mm(),
                                          measures_[3].mm()};
    std::string problem =
        table_ == Table::Z
            ? zProblem(m[0], m[1], m[2], m[3])
            : boardProblem({static_cast<std::int32_t>(boardKindOf(table_)), m[0], m[1], m[2], m[3]},
                           units_);
    if (!problem.empty())
      return problem;
  }
  if (std::string problem = tableProblem(task_.outline); !problem.empty())
    return problem;
  if (table_ == Table::Free && !sideLength_.problem().empty())
    return sideLength_.problem();
  if (table_ == Table::Free && !sideFits_)
    return tr("With a side of this length the outline would cross itself.");
  if (!distance_.problem().empty())
    return distance_.problem();
  return hasStation() ? usableLength_.problem() : std::string();
}

} // namespace trassix
