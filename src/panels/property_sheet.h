// What the properties panel shows of the selection, or of the plan when nothing is selected, and
// how it is edited. What kinds of records have to show stands in sheets/.
#pragma once

#include "document/color.h"
#include "host/questions.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace trassix {

class Layout;

/// No colour: the piece has none of its own. Only the colour of a shape is never empty.
using OwnColor = std::optional<Color>;

/// Text as typed, the place of a choice, a colour, or a check mark, as the row's editor needs it.
using PropertyValue = std::variant<std::string, std::size_t, OwnColor, bool>;
enum class PropertyEditor : std::uint8_t { None, Text, Choice, Color, Check };

/// A refusal says why the selection must not be changed at all, a problem why the value cannot be
/// taken, to be shown beside the field.
struct PropertyAnswer : ChangeResult {
  using ChangeResult::ChangeResult;
  PropertyAnswer(ChangeResult result, std::string why = {})
      : ChangeResult(std::move(result)), problem(std::move(why)) {}

  std::string problem;
};

/// Asked before something is lost.
using Confirm = std::function<bool(const Question&)>;

/// Gives the selection the value, as one undo step. Nothing changes when the value is refused or is
/// what the row shows already.
using PropertyEdit = std::function<PropertyAnswer(Layout&, const PropertyValue&, const Confirm&)>;

/// Texts in UTF-8; lengths in the plan's unit.
struct Property {
  std::string_view key = "fixed"; ///< of its control, for tests and accessibility tools
  std::string name;
  std::string value; ///< as text; also of choices and colours
  PropertyEditor editor = PropertyEditor::None;
  PropertyEdit edit;                 ///< none of what is only shown
  std::vector<std::string> choices;  ///< names may be alike
  std::optional<std::size_t> chosen; ///< none when the values differ or none of the choices is it
  std::string note;                  ///< what else a new value brings about, one sentence
  OwnColor color;
  bool mayBeNone = false; ///< of a colour
  bool isNone = false;
  bool checked = false;
};

struct PropertySheet {
  std::string title;
  std::vector<Property> rows;
};
PropertySheet propertySheetOf(const Layout& layout);

} // namespace trassix
