// Walks over a text as XML, line by line, and beside it follows what `readLayout` takes from each
// line, which it finds by plain search. What the first sees and the second does not take is unread.
#include "document/unread_part.h"

#include "document/element_reader.h"
#include "document/layout_reader.h"
#include "document/plan_format.h"
#include "measures/number_text.h"
#include "texts/texts.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace trassix {

namespace {

constexpr std::string_view kBlanks = " \t\r";

const Element* findElement(std::string_view name) {
  for (int section = 0; section <= static_cast<int>(Section::Nowhere); ++section)
    for (const Element& element : elementsOf(static_cast<Section>(section)))
      if (element.name() == name)
        return &element;
  return nullptr;
}

bool startsName(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool aboveOne(std::string_view version) {
  double number = 1;
  return !version.empty() && (readReal(version, number) != NumberError::None || number > 1);
}

/// An attribute as it stands in a tag. `spelled` is its name with the blank before it, which the
/// reader needs to tell a level's `r` from the end of another name.
struct Attribute {
  std::string_view spelled;
  std::string_view value;

  std::string_view name() const { return spelled.substr(1); }
};

class UnreadSearch {
 public:
  explicit UnreadSearch(std::string_view text) : rest_(text) {}

  std::string firstUnread() {
    while (unread_.empty() && nextLine()) {
      follow();
      look();
    }
    return unread_;
  }

 private:
  bool nextLine() {
    if (rest_.empty())
      return false;
    line_ = rest_.substr(0, rest_.find('\n'));
    rest_.remove_prefix(std::min(rest_.size(), line_.size() + 1));
    ++number_;
    return true;
  }

  /// What the reader takes from the line.
  void follow() {
    taken_ = line_.find('<') == std::string_view::npos
                 ? nullptr
                 : walk_.next([this](std::string_view opening) {
                     return line_.find(opening) != std::string_view::npos;
                   });
  }

  /// What there is in the line.
  void look() {
    std::string_view text = line_;
    for (;;) {
      if (!skippedTo_.empty()) {
        const std::size_t end = text.find(skippedTo_);
        if (end == std::string_view::npos)
          return;
        text.remove_prefix(end + skippedTo_.size());
        skippedTo_ = {};
      }
      text.remove_prefix(std::min(text.find('<'), text.size()));
      if (text.size() < 2 || !unread_.empty())
        return;
      if (text.starts_with("<!"))
        skippedTo_ = text.starts_with("<!--") ? "-->" : ">";
      else if (text[1] == '?')
        skippedTo_ = "?>";
      text.remove_prefix(1);
      if (startsName(text[0]))
        lookAtTag(text);
    }
  }

  /// Takes a tag from the text, which begins with its name.
  void lookAtTag(std::string_view& text) {
    const std::string_view name = text.substr(0, text.find_first_of(" \t\r/>"));
    const Element* element =
        taken_ != nullptr && taken_->name() == name ? taken_ : findElement(name);
    text.remove_prefix(name.size());
    if (element == nullptr)
      return report(name);
    bool ordered = true;
    attributes_.clear();
    std::size_t place = 0;
    while (!endOfTag(text)) {
      Attribute attribute;
      if (!takeAttribute(text, attribute))
        return report(name);
      place = ordered ? placeOf(*element, attribute.name(), place) : place;
      ordered = place != element->attributes.size();
      attributes_.push_back(attribute);
    }
    check(*element, ordered);
  }

  void check(const Element& element, bool ordered) {
    if (element.name() == "layout")
      checkVersion();
    // What only holds others loses nothing by itself.
    if (element.attributes.empty() && attributes_.empty())
      return;
    // The second one on a line, or one that the reader has not looked for here.
    if (taken_ != &element)
      return report(element.name());
    taken_ = nullptr;
    if (element.rule == Element::Rule::Once && !singles_.insert(&element).second)
      return report(element.name());
    if (!ordered)
      checkAttributes(element);
  }

  void checkVersion() {
    for (const Attribute& attribute : attributes_) {
      if (attribute.name() == "version" && aboveOne(attribute.value) && unread_.empty())
        unread_ = tr("version %1%", {excerpt(attribute.value)});
    }
  }

  /// Attributes in another order than that of the format, which the reader may mix up.
  void checkAttributes(const Element& element) {
    for (const Attribute& attribute : attributes_) {
      if (placeOf(element, attribute.name(), 0) == element.attributes.size())
        return report(element.name(), attribute.name());
    }
    for (const Attribute& attribute : attributes_) {
      const bool apart = element.attributes[placeOf(element, attribute.name(), 0)].apart;
      const std::string_view searched = attribute.spelled.substr(apart ? 0 : 1);
      const auto first = std::ranges::find_if(attributes_, [searched](const Attribute& other) {
        return other.spelled.ends_with(searched);
      });
      if (first->spelled != attribute.spelled)
        return report(element.name(), attribute.name());
    }
  }

  /// Where an attribute stands among the element's, from there on; their number when it does not.
  static std::size_t placeOf(const Element& element, std::string_view name, std::size_t from) {
    const std::vector<AttributeName>& all = element.attributes;
    while (from < all.size() && all[from].name != name)
      ++from;
    return from;
  }

  /// Goes over the end of a tag if it is there.
  static bool endOfTag(std::string_view& text) {
    const std::size_t end = text.find_first_not_of(kBlanks);
    if (end == std::string_view::npos || (text[end] != '>' && !text.substr(end).starts_with("/>")))
      return false;
    text.remove_prefix(text.find('>', end) + 1);
    return true;
  }

  /// False for anything but a blank, a name, `="`, a value and `"`, all on this line.
  static bool takeAttribute(std::string_view& text, Attribute& attribute) {
    const std::size_t name = text.find_first_not_of(kBlanks);
    const std::size_t open = text.find("=\"");
    if (name == std::string_view::npos || name == 0 || open == std::string_view::npos)
      return false;
    const std::size_t close = text.find('"', open + 2);
    attribute.spelled = text.substr(name - 1, open - name + 1);
    if (close == std::string_view::npos || name >= open ||
        attribute.spelled.find_first_of(" \t\r\"'<>=/", 1) != std::string_view::npos)
      return false;
    attribute.value = text.substr(open + 2, close - open - 2);
    text.remove_prefix(close + 1);
    return true;
  }

  void report(std::string_view element, std::string_view attribute = {}) {
    if (!unread_.empty())
      return;
    unread_ = attribute.empty()
                  ? tr("line %1%, <%2%>", {number_, excerpt(element)})
                  : tr("line %1%, %2% of <%3%>", {number_, excerpt(attribute), excerpt(element)});
  }

  std::string_view rest_;
  std::string_view line_;
  std::size_t number_ = 0;
  PlanWalk walk_;
  const Element* taken_ = nullptr; ///< what the reader takes from the line
  std::string_view skippedTo_;     ///< the end of a comment or instruction that is open
  std::vector<Attribute> attributes_;
  std::set<const Element*> singles_; ///< met, of those that come once
  std::string unread_;
};

} // namespace

std::string unreadPart(std::string_view text) {
  if (!isWholeLayout(text))
    return tr("it does not hold a whole layout");
  return UnreadSearch(text).firstUnread();
}

} // namespace trassix
