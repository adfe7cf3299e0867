// What the properties panel shows of the selection, or of the plan when nothing is selected.
#pragma once

#include "document/layout.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace trassix {

enum class PropertyId : std::uint8_t {
  Fixed, ///< only shown
  X,
  Y,
  Heading,
  Height,
  Level,
  Color,
  Text,
  Width,
  Depth,
  Opacity,
  OutlineOnly,
};

/// No colour: the piece has none of its own. Only the colour of a shape is never empty.
using OwnColor = std::optional<Color>;

/// Names and values in English, UTF-8; lengths in the plan's unit.
struct Property {
  /// Of a property whose values differ in the selection.
  static constexpr const char* kVarious = "various";

  PropertyId id = PropertyId::Fixed;
  std::string name;
  std::string value;                 ///< as text; also of choices and colours
  std::vector<std::string> choices;  ///< not empty for a choice; names may be alike
  std::optional<std::size_t> chosen; ///< none when the values differ or none of the choices is it
  std::string note;                  ///< what else a new value brings about, one sentence
  OwnColor color;
  bool mayBeNone = true; ///< of a colour
  bool checked = false;

  bool operator==(const Property&) const = default;
};

struct PropertySheet {
  std::string title;
  std::vector<Property> rows;

  const Property* find(PropertyId id) const;
  bool operator==(const PropertySheet&) const = default;
};

PropertySheet propertySheetOf(const Layout& layout);

/// The one record that is selected. Null when nothing or more than one record is.
using SelectedRecord = std::variant<std::monostate, const PlacedPiece*, const SceneryItem*,
                                    const Label*, const Shape*, const Measurement*>;
SelectedRecord selectedRecord(const Layout& layout);

} // namespace trassix
