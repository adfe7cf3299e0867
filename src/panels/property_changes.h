// What the user enters in the properties panel becomes an edit of the plan.
#pragma once

#include "host/questions.h"
#include "panels/property_sheet.h"

#include <functional>
#include <optional>
#include <string>
#include <variant>

namespace trassix {

/// Text as typed, the place of a choice, a colour, or a check mark, as the property needs it.
using PropertyValue = std::variant<std::string, std::size_t, OwnColor, bool>;

struct PropertyAnswer {
  bool changed = false;
  std::string problem;           ///< why the value is refused, to be shown beside the field
  std::optional<Notice> refusal; ///< why the selection must not be changed at all
};

/// Gives the selection the value, as one undo step. `confirm` is asked before track comes apart
/// from a graded neighbour. Nothing changes when the value is refused or is what the sheet shows
/// already.
PropertyAnswer setProperty(Layout& layout, PropertyId id, const PropertyValue& value,
                           const std::function<bool(const Question&)>& confirm);

} // namespace trassix
