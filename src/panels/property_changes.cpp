#include "panels/property_changes.h"

#include "document/limits.h"
#include "editing/joining/joining.h"
#include "editing/scenery/annotations.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "measures/measure_format.h"
#include "measures/measure_input.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kHighest = 10000;
constexpr double kSmallest = 1;
constexpr double kLargest = 100000;

/// What a scenery item measures when it is not scaled.
Footprint unscaledSize(const Layout& layout, SceneryItem item) {
  item.scalex = item.scaley = 1;
  return sceneryFootprint(layout, item);
}

bool movesIt(PropertyId id) {
  return id == PropertyId::X || id == PropertyId::Y || id == PropertyId::Heading;
}

double scaleTo(double size, double unscaled) {
  return std::clamp(size / unscaled, kSmallestScale, kLargestScale);
}

NumberInput readSize(const std::string& text, std::int32_t units, double unscaled) {
  return readLength(text, units, std::max(kSmallest, unscaled * kSmallestScale),
                    std::min(kLargest, unscaled * kLargestScale));
}

NumberInput readNumber(const Layout& layout, PropertyId id, const SelectedRecord& record,
                       const std::string& text) {
  const std::int32_t units = layout.settings().units;
  const auto* item = std::get_if<const SceneryItem*>(&record);
  switch (id) {
  case PropertyId::X:
  case PropertyId::Y:
    return readLength(text, units, -kFarthest, kFarthest);
  case PropertyId::Height:
    return readLength(text, units, -kHighest, kHighest);
  case PropertyId::Width:
    return readSize(text, units, unscaledSize(layout, **item).width);
  case PropertyId::Depth:
    return readSize(text, units, unscaledSize(layout, **item).depth);
  case PropertyId::Heading:
    return readHeading(text);
  case PropertyId::Opacity:
    return readPercent(text);
  default:
    return {};
  }
}

/// The number as the sheet shows it.
std::string textOf(PropertyId id, double number, std::int32_t units) {
  if (id == PropertyId::Heading)
    return formatAngle(number) + "\u00b0";
  if (id == PropertyId::Opacity)
    return formatAngle(number) + " %";
  return formatLength(number, units);
}

template <class Record>
void move(Record& record, PropertyId id, double value) {
  (id == PropertyId::X ? record.x : record.y) = value;
}

/// Sets one value of one record; each overload knows its own fields.
struct RecordEdit {
  Layout& layout;
  PropertyId id;
  double number;
  const PropertyValue& value;
  const std::function<bool(const Question&)>& confirm;

  const std::string& text() const { return std::get<std::string>(value); }

  ChangeResult operator()(std::monostate) const { return false; }
  ChangeResult operator()(const Measurement*) const { return false; }

  ChangeResult operator()(const PlacedPiece* piece) const {
    if (id == PropertyId::Height)
      return setTrackHeight(layout, piece->id, number);
    Pose pose = poseOf(*piece);
    if (id == PropertyId::Heading)
      pose.heading = number;
    else
      move(pose, id, number);
    const std::array<std::int32_t, 1> moved{piece->id};
    if (detachmentOf(layout, moved).opensGradedJoints &&
        !confirm({"Move", "This takes the selection apart from graded track. Go on?", true}))
      return false;
    return setPiecePose(layout, piece->id, pose);
  }

  ChangeResult operator()(const SceneryItem* item) const {
    SceneryItem wanted = *item;
    const Footprint size = unscaledSize(layout, *item);
    if (id == PropertyId::Heading)
      wanted.heading = number;
    else if (id == PropertyId::Width)
      wanted.scalex = scaleTo(number, size.width);
    else if (id == PropertyId::Depth)
      wanted.scaley = scaleTo(number, size.depth);
    else
      move(wanted, id, number);
    return replaceRecord(layout, wanted);
  }

  ChangeResult operator()(const Label* label) const {
    Label wanted = *label;
    if (id == PropertyId::Text)
      wanted.text = text();
    else
      move(wanted, id, number);
    return replaceRecord(layout, wanted);
  }

  ChangeResult operator()(const Shape* shape) const {
    Shape wanted = *shape;
    if (id == PropertyId::Text)
      wanted.label = text();
    else if (id == PropertyId::Height)
      wanted.height = number;
    else if (id == PropertyId::Opacity)
      wanted.a = static_cast<std::uint8_t>(std::lround(number * 255 / 100));
    else if (id == PropertyId::OutlineOnly)
      wanted.outline = std::get<bool>(value);
    else
      wanted.color = std::get<OwnColor>(value).value_or(shape->color);
    return replaceRecord(layout, wanted);
  }
};

std::optional<Notice> lockOf(const Layout& layout, PropertyId id, const SelectedRecord& record) {
  if (movesIt(id))
    return lockGuard(layout, "move");
  const auto* piece = std::get_if<const PlacedPiece*>(&record);
  if (id != PropertyId::Height || piece == nullptr)
    return std::nullopt;
  return lockGuard(layout, chainOf(layout, (*piece)->id), "lift");
}

ChangeResult setLevel(Layout& layout, std::size_t choice) {
  const auto& levels = layout.settings().levels;
  return choice < levels.size() ? setSelectedLevel(layout, levels[choice].id) : false;
}

PropertyAnswer answer(ChangeResult result) {
  return {result.changed, {}, std::move(result.refusal)};
}

} // namespace

PropertyAnswer setProperty(Layout& layout, PropertyId id, const PropertyValue& value,
                           const std::function<bool(const Question&)>& confirm) {
  const PropertySheet sheet = propertySheetOf(layout);
  const Property* shown = sheet.find(id);
  if (shown == nullptr || id == PropertyId::Fixed)
    return {};
  const SelectedRecord record = selectedRecord(layout);
  const bool onShape = std::holds_alternative<const Shape*>(record);
  if (id == PropertyId::Level)
    return answer(setLevel(layout, std::get<std::size_t>(value)));
  if (id == PropertyId::Color && !onShape)
    return {setSelectedColor(layout, std::get<OwnColor>(value)), {}, {}};

  double number = 0;
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (id == PropertyId::Text) {
      if (isBlank(*text) && !onShape)
        return {false, "A label needs a text.", {}};
    } else {
      const std::int32_t units = layout.settings().units;
      const NumberInput input = readNumber(layout, id, record, *text);
      if (!input.good())
        return {false, input.problem, {}};
      number = input.value;
      // What is shown is rounded: to enter it again must not move anything by the rest.
      if (*text == shown->value || textOf(id, number, units) == shown->value)
        return {};
    }
  }
  if (std::optional<Notice> refusal = lockOf(layout, id, record))
    return {false, {}, std::move(refusal)};
  return answer(std::visit(RecordEdit{layout, id, number, value, confirm}, record));
}

} // namespace trassix
