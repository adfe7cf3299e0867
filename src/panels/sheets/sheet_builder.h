// What the properties panel shows of each kind of record has a source here, which makes each row
// together with its edit.
#pragma once

#include "document/layout.h"
#include "document/record_kinds.h"
#include "editing/records_by_id.h"
#include "editing/selection/property_edits.h"
#include "measures/measure_input.h"
#include "panels/property_sheet.h"
#include "texts/texts.h"

namespace trassix {

/// A slope as a text: "2.5 %".
std::string gradeText(double slope);

/// Puts the rows of a sheet together.
class SheetBuilder {
 public:
  using NumberEdit = std::function<ChangeResult(Layout&, double, const Confirm&)>;
  using TextEdit = std::function<PropertyAnswer(Layout&, const std::string&)>;
  using ColorEdit = std::function<ChangeResult(Layout&, const OwnColor&)>;
  using CheckEdit = std::function<ChangeResult(Layout&, bool)>;

  explicit SheetBuilder(const Layout& layout);

  PropertySheet sheet;
  const Layout& layout;
  const std::int32_t units;

  void fixed(std::string name, std::string value);
  void fixed(std::string name, std::size_t count) { fixed(std::move(name), std::to_string(count)); }
  void fixedLength(std::string name, double mm);

  Property& text(std::string name, std::string value, TextEdit edit);
  /// Refuses what lies beyond `least` and `most` (mm).
  Property& length(std::string_view key, std::string name, double mm, double least, double most,
                   NumberEdit edit);
  void position(Point at, NumberEdit setX, NumberEdit setY);
  void heading(double degrees, NumberEdit edit);
  Property& height(double mm, NumberEdit edit);
  /// `number` from 1 on.
  Property& endHeight(std::int32_t number, double mm, NumberEdit edit);
  /// A slope, rise over length, shown and entered in percent or with the sign of degrees.
  Property& grade(double slope, NumberEdit edit);
  void percent(std::string_view key, std::string name, double share, NumberEdit edit);
  void check(std::string_view key, std::string name, bool checked, CheckEdit edit);
  void color(OwnColor color, ColorEdit edit);
  /// Of the selected pieces, which need not have any. Empty: theirs differ.
  void trackColor(std::optional<OwnColor> color);
  /// Of all that is selected. Empty: they are on several.
  void level(std::optional<std::int32_t> id);

  static std::string various();

 private:
  Property& add(std::string_view key, std::string name, std::string value, PropertyEditor editor);
  /// A number as text, and back.
  struct NumberText {
    std::function<NumberInput(const std::string&)> read;
    std::function<std::string(double)> show;
  };
  Property& number(std::string_view key, std::string name, double value, NumberText text,
                   NumberEdit edit);
};

// One for each kind of record that can be selected alone, and what several are counted as.
void describe(SheetBuilder& build, const PlacedPiece& piece);
void describe(SheetBuilder& build, const SceneryItem& item);
void describe(SheetBuilder& build, const Label& label);
void describe(SheetBuilder& build, const Shape& shape);
void describe(SheetBuilder& build, const Measurement& tape);

template <class Record>
constexpr const char* kCountedAs = nullptr;
template <>
inline constexpr const char* kCountedAs<PlacedPiece> = trLater("Pieces");
template <>
inline constexpr const char* kCountedAs<SceneryItem> = trLater("Scenery");
template <>
inline constexpr const char* kCountedAs<Label> = trLater("Labels");
template <>
inline constexpr const char* kCountedAs<Shape> = trLater("Shapes");
template <>
inline constexpr const char* kCountedAs<Measurement> = trLater("Measurements");

/// What covers a piece, or has a scenery item for a portal.
void describeTunnel(SheetBuilder& build, const Tunnel& tunnel);

/// The helix whose track is all that is selected.
void describeHelix(SheetBuilder& build, const Helix& helix);

/// For other selections and for none.
void describeSeveral(SheetBuilder& build);
void describePlan(SheetBuilder& build);

/// The edit that puts a copy of the record in its place, changed by `change`.
template <class Record, class Change>
auto replacing(const Record& record, Change change) {
  return
      [id = record.id, change](Layout& layout, const auto& value, const auto&...) -> ChangeResult {
        const auto* present = recordWithId(recordsOf<std::vector<Record>>(layout.content()), id);
        if (present == nullptr)
          return false;
        Record wanted = *present;
        change(wanted, value);
        return replaceRecord(layout, wanted);
      };
}

template <class Record, class Field>
auto setting(const Record& record, Field Record::*field) {
  return replacing(record, [field](Record& wanted, const auto& value) { wanted.*field = value; });
}

} // namespace trassix
