#include "panels/property_sheet.h"

#include "catalog/scenery_catalog.h"
#include "editing/joining/joining.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/content_box.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"
#include "panels/tally.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

std::string_view kindName(PieceKind kind) {
  constexpr std::array<std::string_view, 12> kNames{
      "Straight",    "Curve",         "Left turnout", "Right turnout", "Curved turnout",
      "Double slip", "Track end",     "Uncoupler",    "Crossing",      "",
      "Turntable",   "Curved turnout"};
  return kNames.at(static_cast<std::size_t>(kind));
}

template <class Records>
bool anySelected(const Records& records) {
  return std::ranges::any_of(records, [](const auto& record) { return record.sel; });
}

class SheetBuilder {
 public:
  explicit SheetBuilder(const Layout& layout) : layout_(layout), units_(layout.settings().units) {}

  PropertySheet sheet;

  Property& add(PropertyId id, std::string name, std::string value) {
    Property& row = sheet.rows.emplace_back();
    row.id = id;
    row.name = std::move(name);
    row.value = std::move(value);
    return row;
  }
  void fixed(std::string name, std::string value) {
    add(PropertyId::Fixed, std::move(name), std::move(value));
  }
  void fixed(std::string name, std::size_t count) { fixed(std::move(name), std::to_string(count)); }
  void length(PropertyId id, std::string name, double mm) {
    add(id, std::move(name), formatLength(mm, units_));
  }
  void position(double x, double y) {
    length(PropertyId::X, "Position x", x);
    length(PropertyId::Y, "Position y", y);
  }
  void heading(double degrees) {
    add(PropertyId::Heading, "Heading", formatAngle(degrees) + "\u00b0");
  }
  /// No level: the records are on several.
  void level(std::optional<std::int32_t> id) {
    const std::vector<Level>& levels = layout_.settings().levels;
    Property& row = add(PropertyId::Level, "Level", Property::kVarious);
    for (const Level& level : levels)
      row.choices.push_back(level.name);
    if (id) {
      const auto present = std::ranges::find(levels, *id, &Level::id);
      if (present != levels.end())
        row.chosen = static_cast<std::size_t>(present - levels.begin());
      row.value = row.chosen ? present->name : "Level " + std::to_string(*id);
    }
    const bool differ = std::ranges::any_of(
        levels, [&levels](const Level& level) { return level.height != levels.front().height; });
    if (differ && anySelected(layout_.pieces()))
      row.note = levelLiftsSelection(layout_) ? "The track is lifted with it."
                                              : "Joined to other track: it keeps its height.";
  }
  void color(OwnColor own) { add(PropertyId::Color, "Colour", own ? "own" : "none").color = own; }
  void extent(const std::string& name, const Box& box) {
    fixed(name, formatSize(box.maxX - box.minX, box.maxY - box.minY, units_));
  }

 private:
  const Layout& layout_;
  std::int32_t units_;
};

std::string gradeText(double degrees) {
  const double percent = std::round(std::sin(toRadians(degrees)) * 1000) / 10;
  return formatAngle(degrees) + "\u00b0 (" + formatAngle(percent) + " %)";
}

/// The ends by number, or how many where that tells as much or a turntable has too many to list.
std::string openEndsText(const PlacedPiece& piece, const PieceDef& definition) {
  constexpr std::size_t kMostListed = 4;
  const std::size_t ends = definition.connectors.size();
  std::string numbers;
  std::size_t count = 0;
  for (std::size_t i = 0; i < ends; ++i) {
    if (!piece.joint(i).open())
      continue;
    ++count;
    if (!numbers.empty())
      numbers += ", ";
    numbers += std::to_string(i + 1);
  }
  if (count == 0)
    return "none";
  if (count == ends || ends > kMostListed)
    return std::to_string(count) + " of " + std::to_string(ends);
  return "no. " + numbers;
}

bool isJoined(const PlacedPiece& piece) {
  return std::ranges::any_of(piece.joints, [](const Joint& joint) { return !joint.open(); });
}

void describe(SheetBuilder& build, const PlacedPiece* piece) {
  const PieceDef* definition = definitionOf(*piece);
  build.sheet.title = definition != nullptr ? definition->name : piece->cat;
  build.fixed("Article", piece->cat);
  if (definition != nullptr) {
    build.fixed("System", std::string(systemShortName(definition->system)));
    build.fixed("Kind", std::string(kindName(definition->kind)));
    if (definition->kind != PieceKind::Curve && definition->length > 0)
      build.length(PropertyId::Fixed, "Length", definition->length);
    if (definition->radius > 0)
      build.length(PropertyId::Fixed, "Radius", definition->radius);
    if (definition->angle != 0)
      build.fixed("Angle", formatAngle(std::abs(definition->angle)) + "\u00b0");
  }
  build.position(piece->x, piece->y);
  build.heading(piece->heading);
  build.length(PropertyId::Height, "Height", piece->z);
  if (isJoined(*piece))
    build.sheet.rows.back().note = "All track joined to it goes along.";
  build.fixed("Grade", isGraded(*piece) ? gradeText(piece->grade) : "none");
  build.level(piece->level);
  build.color(piece->hasColor ? OwnColor(piece->color) : std::nullopt);
  if (definition != nullptr)
    build.fixed("Open ends", openEndsText(*piece, *definition));
}

void describe(SheetBuilder& build, const SceneryItem* item, const Layout& layout) {
  const SceneryDef* definition = findScenery(item->item);
  build.sheet.title = definition != nullptr ? std::string(definition->name) : item->item;
  // The catalogue writes common nouns in small letters.
  if (char& first = build.sheet.title.front();
      definition != nullptr && first >= 'a' && first <= 'z')
    first = static_cast<char>(first - 'a' + 'A');
  if (definition != nullptr)
    build.fixed("Category", std::string(categoryName(definition->category)));
  const Footprint size = sceneryFootprint(layout, *item);
  build.position(item->x, item->y);
  build.heading(item->heading);
  build.length(PropertyId::Width, "Width", std::abs(size.width));
  build.length(PropertyId::Depth, "Depth", std::abs(size.depth));
  build.level(item->level);
}

void describe(SheetBuilder& build, const Label* label) {
  build.sheet.title = "Label";
  build.add(PropertyId::Text, "Text", label->text);
  build.position(label->x, label->y);
}

void describe(SheetBuilder& build, const Shape* shape) {
  build.sheet.title = "Shape";
  build.add(PropertyId::Text, "Label", shape->label);
  build.fixed("Corners", shape->points.size());
  build.color(shape->color);
  build.sheet.rows.back().mayBeNone = false;
  const double percent = std::round(shape->a * 100.0 / 255.0);
  build.add(PropertyId::Opacity, "Opacity", formatAngle(percent) + " %");
  build.add(PropertyId::OutlineOnly, "Outline only", shape->outline ? "yes" : "no").checked =
      shape->outline;
  build.length(PropertyId::Height, "Height", shape->height);
  build.level(shape->level);
}

void describe(SheetBuilder& build, const Measurement* tape) {
  build.sheet.title = "Measurement";
  build.length(PropertyId::Fixed, "Length",
               std::hypot(tape->to.x - tape->from.x, tape->to.y - tape->from.y));
}

void describePlan(SheetBuilder& build, const Layout& layout) {
  build.sheet.title = "Plan";
  const Tally tally = tallyOf(layout);
  build.fixed("Pieces", layout.pieces().size());
  build.length(PropertyId::Fixed, "Track length", tally.trackLength);
  build.fixed("Open ends", static_cast<std::size_t>(tally.openEnds));
  if (const std::optional<Box> box = contentBox(layout))
    build.extent("Extent", *box);
  if (!layout.content().scenery.empty())
    build.fixed("Scenery", layout.content().scenery.size());
  build.fixed("Levels", layout.settings().levels.size());
  const Level* active = layout.findLevel(layout.settings().activeLevel);
  if (active != nullptr)
    build.fixed("Active level", active->name);
}

/// The value that all records given share.
template <class Value>
class Common {
 public:
  void add(const Value& value) {
    same_ = same_ && (!value_ || *value_ == value);
    value_ = value;
  }
  bool any() const { return value_.has_value(); }
  std::optional<Value> get() const { return same_ ? value_ : std::nullopt; }

 private:
  std::optional<Value> value_;
  bool same_ = true;
};

template <class Records>
std::size_t countSelected(const Records& records) {
  return static_cast<std::size_t>(
      std::ranges::count_if(records, [](const auto& record) { return record.sel; }));
}

void describeSeveral(SheetBuilder& build, const Layout& layout) {
  const PlanContent& content = layout.content();
  build.sheet.title = "Selection";
  double length = 0;
  Common<std::string> article;
  Common<TrackSystem> system;
  Common<double> height;
  Common<OwnColor> color;
  Common<std::int32_t> level;
  for (const PlacedPiece& piece : content.pieces) {
    if (!piece.sel)
      continue;
    article.add(piece.cat);
    height.add(piece.z);
    color.add(piece.hasColor ? OwnColor(piece.color) : std::nullopt);
    level.add(piece.level);
    if (const PieceDef* definition = definitionOf(piece)) {
      system.add(definition->system);
      if (const auto& routes = routesOf(*definition); !routes.empty())
        length += routeLength(routes.front());
    }
  }
  const auto levelsOf = [&level](const auto& records) {
    for (const auto& record : records)
      if (record.sel)
        level.add(record.level);
  };
  levelsOf(content.scenery);
  levelsOf(content.shapes);

  const auto count = [&build](const char* name, const auto& records) {
    if (const std::size_t selected = countSelected(records); selected > 0)
      build.fixed(name, selected);
  };
  count("Pieces", content.pieces);
  count("Scenery", content.scenery);
  count("Labels", content.labels);
  count("Shapes", content.shapes);
  count("Measurements", content.measurements);
  if (article.any()) {
    build.length(PropertyId::Fixed, "Track length", length);
    build.fixed("Article", article.get().value_or(Property::kVarious));
    build.fixed("System",
                system.get() ? std::string(systemShortName(*system.get())) : Property::kVarious);
    if (height.get())
      build.length(PropertyId::Fixed, "Height", *height.get());
    else
      build.fixed("Height", Property::kVarious);
  }
  if (level.any())
    build.level(level.get());
  if (article.any()) {
    build.color(color.get().value_or(std::nullopt));
    if (!color.get())
      build.sheet.rows.back().value = Property::kVarious;
  }
}

} // namespace

const Property* PropertySheet::find(PropertyId id) const {
  const auto found = std::ranges::find(rows, id, &Property::id);
  return found == rows.end() ? nullptr : &*found;
}

SelectedRecord selectedRecord(const Layout& layout) {
  SelectedRecord result;
  int count = 0;
  const auto look = [&](const auto& records) {
    for (const auto& record : records) {
      if (record.sel) {
        result = &record;
        ++count;
      }
    }
  };
  const PlanContent& content = layout.content();
  look(content.pieces);
  look(content.scenery);
  look(content.labels);
  look(content.shapes);
  look(content.measurements);
  return count == 1 ? result : SelectedRecord{};
}

PropertySheet propertySheetOf(const Layout& layout) {
  SheetBuilder build(layout);
  const SelectedRecord record = selectedRecord(layout);
  if (const auto* item = std::get_if<const SceneryItem*>(&record))
    describe(build, *item, layout);
  else if (const auto* piece = std::get_if<const PlacedPiece*>(&record))
    describe(build, *piece);
  else if (const auto* label = std::get_if<const Label*>(&record))
    describe(build, *label);
  else if (const auto* shape = std::get_if<const Shape*>(&record))
    describe(build, *shape);
  else if (const auto* tape = std::get_if<const Measurement*>(&record))
    describe(build, *tape);
  else if (hasSelection(layout))
    describeSeveral(build, layout);
  else
    describePlan(build, layout);
  return build.sheet;
}

} // namespace trassix
