#include "ui/wizards/bridge_side_view.h"

#include "editing/canvas/plan_theme.h"
#include "editing/profile/label_room.h"
#include "editing/profile/profile_marks.h"
#include "editing/profile/profile_scale.h"
#include "geometry/pose.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kMarginPx = 12;
constexpr double kHeadPx = 30; // room for texts above the track
constexpr double kFootPx = 16; // ground below the lowest place
constexpr double kTextPx = 11;
constexpr double kLeastRise = 40;      // mm that fill the height of a picture at least
constexpr double kBesideCrossing = 70; // mm that are shown of the way at both sides of it
constexpr double kLeastPierPx = 2;

/// Height of what stands over the deck, mm; negative where it hangs below.
double trussRise(SpanKind kind, double length) {
  switch (kind) {
  case SpanKind::Truss:
    return std::min(length / 4, 60.0);
  case SpanKind::Arch:
    return std::min(length / 5, 70.0);
  case SpanKind::Girder:
    return std::min(length / 12, 14.0);
  case SpanKind::Auto:
  case SpanKind::Deck:
    break;
  }
  return 0;
}

class SidePainter {
 public:
  SidePainter(Surface& surface, SizePx size, const BridgePlan& plan, const PlanTheme& theme,
              std::int32_t units)
      : surface_(surface), size_(size), plan_(plan), theme_(theme), units_(units),
        labels_(surface, size, {2, 2}, {size.width - 2, size.height - 2}, theme.board) {}

  void paint(BridgePart part) {
    whole_ = part == BridgePart::Whole;
    if (plan_.side.rails.size() < 2)
      return surface_.text(tr("Not possible as entered"), {size_.width / 2, size_.height / 2}, 0,
                           {theme_.farArticle, kTextPx + 1, false});
    chooseScale();
    paintGround();
    for (const CrossedThing& thing : plan_.crossed)
      paintCrossed(thing);
    for (const BridgePier& pier : plan_.piers)
      paintPier(pier);
    paintTrack();
    for (const BridgeSpan& span : plan_.spans)
      paintSpan(span);
    paintTexts();
  }

 private:
  using Rails = std::vector<SideView::Joint>;

  double heightAt(double along) const {
    const Rails& rails = plan_.side.rails;
    const auto next = std::ranges::lower_bound(rails, along, {}, &SideView::Joint::along);
    if (next == rails.begin())
      return rails.front().height;
    if (next == rails.end())
      return rails.back().height;
    const SideView::Joint& before = *(next - 1);
    const double share = (along - before.along) / std::max(next->along - before.along, 1e-9);
    return before.height + (next->height - before.height) * share;
  }

  /// The one with the least room to spare.
  const CrossedThing* tightest() const {
    const auto spare = [](const CrossedThing& thing) { return thing.clearance - thing.least; };
    const auto found = std::ranges::min_element(plan_.crossed, {}, spare);
    return found == plan_.crossed.end() ? nullptr : &*found;
  }

  double bottomOf(const CrossedThing& thing) const {
    return thing.height - (thing.kind == CrossedThing::Kind::Track ? plan_.side.railTop : 0);
  }

  void chooseScale() {
    const Rails& rails = plan_.side.rails;
    double from = rails.front().along;
    double to = rails.back().along;
    const CrossedThing* thing = tightest();
    if (!whole_ && thing != nullptr) {
      from = thing->along - thing->halfWidth - kBesideCrossing;
      to = thing->along + thing->halfWidth + kBesideCrossing;
    } else if (!whole_ && !plan_.spans.empty()) {
      from = plan_.spans.front().from - kBesideCrossing;
      to = plan_.spans.back().to + kBesideCrossing;
    }
    plot_.low = {kMarginPx, kHeadPx};
    plot_.high = {size_.width - kMarginPx, size_.height - kFootPx};
    double low = std::min(heightAt(from), heightAt(to));
    double high = std::max(heightAt(from), heightAt(to));
    for (const SideView::Joint& joint : rails)
      if (joint.along > from && joint.along < to) {
        low = std::min(low, joint.height);
        high = std::max(high, joint.height);
      }
    for (const BridgePier& pier : plan_.piers)
      if (pier.along >= from && pier.along <= to)
        low = std::min(low, pier.foot);
    for (const CrossedThing& crossed : plan_.crossed)
      if (crossed.along >= from && crossed.along <= to)
        low = std::min(low, bottomOf(crossed));
    for (const BridgeSpan& span : plan_.spans)
      if (span.to > from && span.from < to)
        high = std::max(high, heightAt(span.from) +
                                  (whole_ ? 0 : trussRise(span.kind, span.to - span.from)));
    const double rise = std::max(high + plan_.side.railTop - low, kLeastRise);
    plot_.perMm = plot_.width() / std::max(to - from, 1.0);
    plot_.perRise = plot_.depth() / rise;
    if (!whole_)
      plot_.perMm = plot_.perRise = std::min(plot_.perMm, plot_.perRise);
    plot_.from = (from + to) / 2 - plot_.width() / plot_.perMm / 2;
    // What is low stands on the lower edge.
    plot_.middle = low + plot_.depth() / plot_.perRise / 2;
  }

  Point at(double along, double height) const { return plot_.toScreen(along, height); }

  /// Corners in mm; an outline only where one is given.
  void box(double from, double to, double low, double high, Rgba fill,
           std::optional<Stroke> outline = {}) const {
    const std::array<Point, 4> corners{at(from, high), at(to, high), at(to, low), at(from, low)};
    surface_.polygon(corners, fill, outline);
  }

  /// Where piers stand; from one to the next it is as the picture needs it.
  void paintGround() {
    const double left = plot_.alongAt(0);
    const double right = plot_.alongAt(size_.width);
    std::vector<Point> line;
    double height = plan_.piers.empty() ? plot_.heightAt(plot_.high.y) : plan_.piers.front().foot;
    line.push_back(at(left, height));
    for (const BridgePier& pier : plan_.piers) {
      if (std::abs(pier.foot - height) > 0.5)
        line.push_back(at(pier.along - pier.depth, height));
      height = pier.foot;
      line.push_back(at(pier.along - (line.empty() ? 0 : pier.depth / 2), height));
    }
    line.push_back(at(right, height));
    std::vector<Point> area = line;
    area.push_back({size_.width, size_.height});
    area.push_back({0, size_.height});
    surface_.polygon(area, theme_.hill, {});
    surface_.polyline(line, {theme_.tunnel, 1});
  }

  void paintCrossed(const CrossedThing& thing) {
    const double half = std::max(thing.halfWidth, 2 / plot_.perMm);
    const double from = thing.along - half;
    const double to = thing.along + half;
    switch (thing.kind) {
    case CrossedThing::Kind::Track:
      return paintLowerTrack(thing);
    case CrossedThing::Kind::Road:
      return box(from, to, thing.height - 3 / plot_.perRise, thing.height,
                 opaque(theme_.material(Material::Asphalt)));
    case CrossedThing::Kind::Water:
      return box(from, to, thing.height - 5 / plot_.perRise, thing.height,
                 opaque(theme_.material(Material::Water)));
    }
  }

  /// Bed and rails as a saw would show them, and what has to stay free about them.
  void paintLowerTrack(const CrossedThing& thing) {
    const double bottom = bottomOf(thing);
    const double aslant = std::max(std::sin(toRadians(thing.angle)), 0.2);
    const double bed = std::max(20 * scale() / aslant, 3 / plot_.perMm);
    const double gauge = std::max(8 * scale() / aslant, 1.5 / plot_.perMm);
    box(thing.along - thing.halfWidth, thing.along + thing.halfWidth, thing.height,
        thing.height + thing.least, withAlpha(room(thing), 28),
        Stroke{withAlpha(room(thing), 150), 1, Stroke::Style::Dotted});
    box(thing.along - bed, thing.along + bed, bottom, (bottom + thing.height) / 2,
        opaque(theme_.bed), Stroke{theme_.bedEdge, 1});
    const double rail = std::max(1.2 * scale(), 0.8 / plot_.perMm);
    for (const double side : {-gauge, gauge})
      box(thing.along + side - rail, thing.along + side + rail, (bottom + thing.height) / 2,
          thing.height, theme_.rail);
  }

  /// Rail tops are as high as a gauge is large.
  double scale() const { return plan_.side.railTop > 0 ? plan_.side.railTop / 10 : 1; }

  Rgba room(const CrossedThing& thing) const {
    return thing.clearance < thing.least - 0.05 ? theme_.gradeColor(GradeBand::Steep)
                                                : theme_.joinedEnd;
  }

  void paintPier(const BridgePier& pier) {
    const double half = std::max(pier.depth, kLeastPierPx / plot_.perMm) / 2;
    const Rgba stone = opaque(theme_.material(Material::Stone));
    const Stroke edge{theme_.bedEdge, 1};
    if (pier.portal) {
      const double beam = std::min(8.0, pier.height() / 4);
      box(pier.along - half, pier.along + half, pier.foot, pier.head - beam, withAlpha(stone, 90),
          Stroke{theme_.bedEdge, 1, Stroke::Style::Dashed});
      return box(pier.along - half, pier.along + half, pier.head - beam, pier.head, stone, edge);
    }
    box(pier.along - half, pier.along + half, pier.foot, pier.head, stone, edge);
    if (pier.stack.shim > 0)
      box(pier.along - half, pier.along + half,
          pier.head - std::max(pier.stack.shim, 2 / plot_.perRise), pier.head,
          theme_.gradeColor(GradeBand::Caution));
  }

  void paintTrack() {
    const Rails& rails = plan_.side.rails;
    const double top = plan_.side.railTop;
    for (std::size_t i = 0; i + 1 < rails.size(); ++i) {
      const SideView::Joint& a = rails[i];
      const SideView::Joint& b = rails[i + 1];
      const std::array<Point, 4> bed{at(a.along, a.height), at(b.along, b.height),
                                     at(b.along, b.height + top), at(a.along, a.height + top)};
      const double slope = (b.height - a.height) / std::max(b.along - a.along, 1.0);
      surface_.polygon(bed, opaque(theme_.bed), {});
      surface_.polyline(std::array{bed[3], bed[2]}, {theme_.gradeColor(slope), 3});
    }
  }

  void paintSpan(const BridgeSpan& span) {
    const double height = heightAt(span.from);
    const double other = heightAt(span.to);
    const double deck = plan_.side.deck;
    const std::array<Point, 4> plate{at(span.from, height), at(span.to, other),
                                     at(span.to, other - deck), at(span.from, height - deck)};
    surface_.polygon(plate, opaque(theme_.bridgeBed), Stroke{theme_.girder, 1});
    const double length = span.to - span.from;
    // As flat as it is, however much larger heights are drawn.
    const double rise = trussRise(span.kind, length) * plot_.perMm / plot_.perRise;
    if (rise <= 0)
      return;
    const auto base = [&](double share) { return height + (other - height) * share; };
    const Stroke line{theme_.girder, whole_ ? 1.0 : 1.5};
    std::vector<Point> chord;
    constexpr int kFields = 8;
    for (int i = 0; i <= kFields; ++i) {
      const double share = static_cast<double>(i) / kFields;
      double over = rise;
      if (span.kind == SpanKind::Arch)
        over = rise * 4 * share * (1 - share);
      else if (span.kind == SpanKind::Truss && (i == 0 || i == kFields))
        over = 0;
      chord.push_back(at(span.from + length * share, base(share) + over));
      if (span.kind != SpanKind::Girder && i > 0 && i < kFields)
        surface_.polyline(std::array{chord.back(), at(span.from + length * share, base(share))},
                          line);
    }
    surface_.polyline(chord, line);
  }

  // Texts.

  void paintTexts() {
    for (const CrossedThing& thing : plan_.crossed)
      paintClearance(thing);
    if (whole_)
      for (const BridgeRamp& ramp : plan_.ramps)
        paintRampText(ramp);
    else
      for (const BridgeSpan& span : plan_.spans)
        paintSpanText(span);
    for (const BridgePier& pier : plan_.piers)
      paintPierHeight(pier);
  }

  bool inView(Point px) const { return px.x >= 0 && px.x <= size_.width; }

  /// A dimension from the rails, or the surface, to the underside.
  void paintClearance(const CrossedThing& thing) {
    const Point foot = at(thing.along, thing.height);
    if (!inView(foot))
      return;
    const Point head = at(thing.along, thing.height + thing.clearance);
    const Stroke line{room(thing), 1};
    const std::array<Point, 6> ends{foot,
                                    head,
                                    {foot.x - 3, foot.y},
                                    {foot.x + 3, foot.y},
                                    {head.x - 3, head.y},
                                    {head.x + 3, head.y}};
    surface_.segments(ends, line);
    const TextStyle style{room(thing), kTextPx + (whole_ ? 0 : 1), true};
    const std::string text = formatLength(thing.clearance, units_);
    const double aside = labels_.widthOf(text, style) / 2 + 6;
    const double middle = (foot.y + head.y) / 2;
    labels_.paint(text,
                  {{foot.x + aside, middle},
                   {foot.x - aside, middle},
                   {foot.x + aside, middle + 14},
                   {foot.x - aside, middle + 14},
                   {foot.x, size_.height - 8}},
                  style);
  }

  void paintRampText(const BridgeRamp& ramp) {
    const double middle = (ramp.from + ramp.to) / 2;
    const Point over = at(middle, heightAt(middle) + plan_.side.railTop);
    const std::string text =
        tr("%1% over %2%", {slopeText(ramp.steepest), formatLength(ramp.length(), units_)});
    const TextStyle style{theme_.gradeColor(ramp.steepest), kTextPx, true};
    labels_.paint(text, {{over.x, over.y - 22}, {over.x, over.y - 36}, {over.x, 10}}, style);
  }

  void paintSpanText(const BridgeSpan& span) {
    const double middle =
        (std::max(span.from, plot_.alongAt(0)) + std::min(span.to, plot_.alongAt(size_.width))) / 2;
    const Point over = at(middle, heightAt(middle));
    if (!inView(over))
      return;
    const std::string length = formatLength(span.to - span.from, units_);
    const std::string text =
        span.article.empty() ? tr("deck %1%", {length}) : tr("%1% %2%", {span.article, length});
    labels_.paint(text, {{over.x, kHeadPx / 2 - 4}, {over.x, kHeadPx / 2 + 9}},
                  {theme_.article, kTextPx, false});
  }

  /// Without a unit, in mm or inches as the plan counts, so that neighbours find room.
  void paintPierHeight(const BridgePier& pier) {
    const Point head = at(pier.along, pier.head);
    if (!inView(head))
      return;
    const Point foot = at(pier.along, pier.foot);
    const TextStyle style{pier.stack.shim > 0 ? theme_.gradeColor(GradeBand::Caution)
                                              : theme_.ruler,
                          kTextPx - 1, false};
    const std::string text =
        formatFixed(pier.height() / millimetresPer(units_), units_ == kMillimetres ? 1 : 2);
    const double length = labels_.widthOf(text, style);
    const double x = foot.x + 7;
    const double over = at(pier.along, heightAt(pier.along) + plan_.side.railTop).y;
    labels_.paint(text,
                  {{x, foot.y - length / 2 - 1},
                   {x - 14, foot.y - length / 2 - 1},
                   {foot.x, over - length / 2 - 3},
                   {foot.x, foot.y + length / 2 + 1}},
                  style, -90);
  }

  Surface& surface_;
  SizePx size_;
  const BridgePlan& plan_;
  const PlanTheme& theme_;
  std::int32_t units_;
  LabelRoom labels_;
  ProfileScale plot_;
  bool whole_ = true;
};

} // namespace

void paintBridgeSide(Surface& surface, SizePx size, const BridgePlan& plan, BridgePart part,
                     const PlanTheme& theme, std::int32_t units) {
  const std::array<Point, 4> sheet{
      {{0, 0}, {size.width, 0}, {size.width, size.height}, {0, size.height}}};
  surface.polygon(sheet, theme.board, {});
  SidePainter(surface, size, plan, theme, units).paint(part);
}

} // namespace trassix
