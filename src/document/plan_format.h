// What a plan file consists of, in one table, which the reader, the writer and the search for what
// would not be read walk.
#pragma once

#include "document/element_fields.h"
#include "document/layout.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// Where in a file a reader is; in each section it looks for other elements.
enum class Section : std::uint8_t {
  Outside,
  Pieces,
  Scenery,
  Levels,
  Baseboard,
  Vertices,
  Nowhere
};

/// What a file is read into.
struct PlanParts {
  PlanContent& content;
  PlanSettings& settings;
  std::string& name;
};

/// An element, or the end of one, as the lines of a section are searched for it.
struct Element {
  enum class Rule : std::uint8_t {
    None,
    Once,   ///< another one would replace it
    Part,   ///< belongs to an element of the row before, counts only after one
    Afresh, ///< no part in the section that it opens belongs to what came before it
  };

  std::string_view opening;                                       ///< the text that is looked for
  Section next;                                                   ///< where the reader goes on
  void (*take)(ElementReader& reader, PlanParts& plan) = nullptr; ///< null: nothing to take
  std::vector<AttributeName> attributes = {};                     ///< in the order of the file
  Rule rule = Rule::None;

  std::string_view name() const;
};

/// In the order in which the reader looks for them; in `Nowhere` those that it passes over.
const std::vector<Element>& elementsOf(Section section);

/// Follows which element is taken from each line.
class PlanWalk {
 public:
  /// The first element of the section whose opening the line `has`; null when there is none or it
  /// does not count here.
  template <class Has>
  const Element* next(Has has) {
    for (const Element& element : *elements_)
      if (has(element.opening))
        return enter(element) ? &element : nullptr;
    return nullptr;
  }

 private:
  bool enter(const Element& element);

  Section section_ = Section::Outside;
  const std::vector<Element>* elements_ = &elementsOf(Section::Outside);
  std::array<std::uint32_t, static_cast<std::size_t>(Section::Nowhere)> met_{}; ///< bits for rows
};

/// A part of the file, which may be empty.
using WritePart = void (*)(ElementWriter& writer, const Layout& layout);

/// All below the first line, in the order of the file.
std::span<const WritePart> writtenParts();

} // namespace trassix
