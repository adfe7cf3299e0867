#include "panels/sheets/sheet_builder.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/elevation/grades.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kHighest = 10000;

/// How angles and shares are shown.
auto withUnit(const char* unit) {
  return [unit](double value) { return formatAngle(value) + unit; };
}

/// An edit that needs nothing but the value.
template <class Value, class Edit>
PropertyEdit taking(Edit edit) {
  return [edit = std::move(edit)](Layout& layout, const PropertyValue& value, const Confirm&) {
    return PropertyAnswer(edit(layout, std::get<Value>(value)));
  };
}

} // namespace

std::string gradeText(double slope) {
  return formatAngle(std::round(percentOf(slope) * 10) / 10) + " %";
}

SheetBuilder::SheetBuilder(const Layout& shown) : layout(shown), units(shown.settings().units) {}

std::string SheetBuilder::various() {
  return tr("various");
}

Property& SheetBuilder::add(std::string_view key, std::string name, std::string value,
                            PropertyEditor editor) {
  Property& row = sheet.rows.emplace_back();
  row.key = key;
  row.name = std::move(name);
  row.value = std::move(value);
  row.editor = editor;
  return row;
}

void SheetBuilder::fixed(std::string name, std::string value) {
  add("fixed", std::move(name), std::move(value), PropertyEditor::None);
}

void SheetBuilder::fixedLength(std::string name, double mm) {
  fixed(std::move(name), formatLength(mm, units));
}

Property& SheetBuilder::text(std::string name, std::string value, TextEdit edit) {
  Property& row = add("text", std::move(name), std::move(value), PropertyEditor::Text);
  row.edit = taking<std::string>(std::move(edit));
  return row;
}

Property& SheetBuilder::number(std::string_view key, std::string name, double value,
                               NumberText text, NumberEdit edit) {
  Property& row = add(key, std::move(name), text.show(value), PropertyEditor::Text);
  row.edit = [text = std::move(text), edit = std::move(edit),
              shown = row.value](Layout& plan, const PropertyValue& entered,
                                 const Confirm& confirm) -> PropertyAnswer {
    const auto& typed = std::get<std::string>(entered);
    const NumberInput input = text.read(typed);
    if (!input.good())
      return {false, input.problem};
    // What is shown is rounded: to enter it again must not move anything by the rest.
    if (typed == shown || text.show(input.value) == shown)
      return false;
    return edit(plan, input.value, confirm);
  };
  return row;
}

Property& SheetBuilder::length(std::string_view key, std::string name, double mm, double least,
                               double most, NumberEdit edit) {
  const auto read = [unit = units, least, most](const std::string& typed) {
    return readLength(typed, unit, least, most);
  };
  const auto show = [unit = units](double value) { return formatLength(value, unit); };
  return number(key, std::move(name), mm, {read, show}, std::move(edit));
}

void SheetBuilder::position(Point at, NumberEdit setX, NumberEdit setY) {
  length("x", tr("Position x"), at.x, -kFarthest, kFarthest, std::move(setX));
  length("y", tr("Position y"), at.y, -kFarthest, kFarthest, std::move(setY));
}

void SheetBuilder::heading(double degrees, NumberEdit edit) {
  number("heading", tr("Heading"), degrees, {readHeading, withUnit("\u00b0")}, std::move(edit));
}

Property& SheetBuilder::height(double mm, NumberEdit edit) {
  return length("height", tr("Height"), mm, -kHighest, kHighest, std::move(edit));
}

Property& SheetBuilder::endHeight(std::int32_t number, double mm, NumberEdit edit) {
  return length("endHeight", tr("Height of end %1%", {number}), mm, -kHighest, kHighest,
                std::move(edit));
}

Property& SheetBuilder::grade(double slope, NumberEdit edit) {
  const auto read = [](const std::string& typed) {
    if (typed.find("\u00b0") == std::string::npos) {
      NumberInput input = readGrade(typed, "%", 99);
      input.value /= 100;
      return input;
    }
    NumberInput input = readGrade(typed, "\u00b0", 89);
    input.value = GradeValue{input.value, GradeValue::Unit::Degrees}.slope();
    return input;
  };
  return number("grade", tr("Grade"), slope, {read, gradeText}, std::move(edit));
}

void SheetBuilder::percent(std::string_view key, std::string name, double share, NumberEdit edit) {
  number(key, std::move(name), share, {readPercent, withUnit(" %")}, std::move(edit));
}

void SheetBuilder::check(std::string_view key, std::string name, bool checked, CheckEdit edit) {
  Property& row = add(key, std::move(name), checked ? tr("yes") : tr("no"), PropertyEditor::Check);
  row.checked = checked;
  row.edit = taking<bool>(std::move(edit));
}

void SheetBuilder::color(OwnColor color, ColorEdit edit) {
  Property& row = add("color", tr("Colour"), color ? tr("own") : tr("none"), PropertyEditor::Color);
  row.color = color;
  row.edit = taking<OwnColor>(std::move(edit));
}

void SheetBuilder::trackColor(std::optional<OwnColor> common) {
  color(common.value_or(std::nullopt), setSelectedColor);
  Property& row = sheet.rows.back();
  row.mayBeNone = true;
  row.isNone = common && !*common;
  if (!common)
    row.value = various();
}

void SheetBuilder::level(std::optional<std::int32_t> id) {
  const std::vector<Level>& levels = layout.settings().levels;
  Property& row = add("level", tr("Level"), various(), PropertyEditor::Choice);
  for (const Level& level : levels)
    row.choices.push_back(level.name);
  if (id) {
    const auto present = std::ranges::find(levels, *id, &Level::id);
    if (present != levels.end())
      row.chosen = static_cast<std::size_t>(present - levels.begin());
    row.value = row.chosen ? present->name : tr("Level %1%", {*id});
  }
  // To choose from one is no choice, unless what there is now is none of the levels.
  if (levels.size() == 1 && row.chosen)
    row.editor = PropertyEditor::None;
  row.edit = taking<std::size_t>([](Layout& plan, std::size_t choice) -> ChangeResult {
    const auto& now = plan.settings().levels;
    return choice < now.size() ? setSelectedLevel(plan, now[choice].id) : false;
  });
  const bool differ = std::ranges::any_of(
      levels, [&levels](const Level& level) { return level.height != levels.front().height; });
  if (differ && std::ranges::any_of(layout.pieces(), &PlacedPiece::sel))
    row.note = levelLiftsSelection(layout) ? tr("The track is lifted with it.")
                                           : tr("Joined to other track: it keeps its height.");
}

} // namespace trassix
