// Walks over a text as XML, line by line, and beside it follows what `readLayout` takes from each
// line, which it finds by plain search. What the first sees and the second does not take is unread.
#include "document/unread_part.h"

#include "document/element_reader.h"
#include "document/layout_reader.h"
#include "measures/number_text.h"
#include "texts/texts.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <set>
#include <vector>

namespace trassix {

namespace {

/// The elements of the format with their attributes in the order in which they are written.
struct Element {
  std::string_view name;
  std::string_view attributes; ///< each between blanks; empty: only holds others
  bool once = false;           ///< another one would replace it
};

constexpr Element kElements[] = {
    {"piece", " id cat x y heading z grade rev free level helix sel color "},
    {"joint", " conn target tconn "},
    {"sceneryitem", " id item x y heading scalex scaley level sel "},
    {"pt", " x y "},
    {"vertex", " x y "},
    {"v", " x y "},
    {"label", " id x y text "},
    {"shape", " id r g b a outline level height label "},
    {"covers", " piece "},
    {"tunnel", " id portalA portalB anchorA anchorB "},
    {"helix", " id cx cy heading variant bottomR1 bottomR2 topR1 topR2 "},
    {"run", " deg anchor conn "},
    {"level", " id name visible height trackcolor r g b "},
    {"levels", " active ", true},
    {"lastshape", " id w_mm h_mm w2_mm h2_mm ", true},
    {"layout", " name version units ", true},
    {"grade_runs", ""},
    {"pieces", ""},
    {"scenery", ""},
    {"baseboard", ""},
    {"labels", ""},
    {"shapes", ""},
    {"tunnels", ""},
    {"helices", ""},
};

enum class Section : std::uint8_t { Outside, Pieces, Scenery, Levels, Baseboard, Shape };

/// A text that the reader looks for in the lines of a section, in its order, and where it goes on.
struct Opening {
  Section in;
  std::string_view text;
  Section next;
  std::string_view after; ///< the element that must have come before, if any
};

constexpr Opening kOpenings[] = {
    {Section::Outside, "<layout ", Section::Outside, ""},
    {Section::Outside, "<run ", Section::Outside, ""},
    {Section::Outside, "<pieces>", Section::Pieces, ""},
    {Section::Outside, "<levels ", Section::Levels, ""},
    {Section::Outside, "<scenery>", Section::Scenery, ""},
    {Section::Outside, "<baseboard>", Section::Baseboard, ""},
    {Section::Outside, "<lastshape", Section::Outside, ""},
    {Section::Outside, "<label ", Section::Outside, ""},
    {Section::Outside, "<shape ", Section::Shape, ""},
    {Section::Outside, "<tunnel ", Section::Outside, ""},
    {Section::Outside, "<covers ", Section::Outside, "tunnel"},
    {Section::Outside, "<helix ", Section::Outside, ""},
    {Section::Pieces, "</pieces>", Section::Outside, ""},
    {Section::Pieces, "</block>", Section::Outside, ""},
    {Section::Pieces, "</layout>", Section::Outside, ""},
    {Section::Pieces, "<piece ", Section::Pieces, ""},
    {Section::Pieces, "<joint ", Section::Pieces, "piece"},
    {Section::Scenery, "</scenery>", Section::Outside, ""},
    {Section::Scenery, "<sceneryitem ", Section::Scenery, ""},
    {Section::Levels, "</levels>", Section::Outside, ""},
    {Section::Levels, "<level ", Section::Levels, ""},
    {Section::Levels, "<pt ", Section::Levels, "level"},
    {Section::Baseboard, "</baseboard>", Section::Outside, ""},
    {Section::Baseboard, "<vertex ", Section::Baseboard, ""},
    {Section::Shape, "</shape", Section::Outside, ""},
    {Section::Shape, "<v ", Section::Shape, ""},
};

constexpr std::string_view kBlanks = " \t\r";

const Element* findElement(std::string_view name) {
  const auto* found = std::ranges::find(kElements, name, &Element::name);
  return found == std::end(kElements) ? nullptr : found;
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
    taken_ = {};
    if (line_.find('<') == std::string_view::npos)
      return;
    for (const Opening& opening : kOpenings) {
      if (opening.in != section_ || line_.find(opening.text) == std::string_view::npos)
        continue;
      const std::string_view name = opening.text.substr(1, opening.text.find_last_not_of(" >"));
      if (name == "pieces")
        seen_.erase("piece");
      if (opening.after.empty() || seen_.contains(opening.after)) {
        taken_ = name;
        seen_.insert(name);
      }
      section_ = opening.next;
      return;
    }
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
    const Element* element = findElement(name);
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
      const std::size_t found = placeOf(*element, attribute.name(), place);
      ordered = ordered && found != std::string_view::npos;
      place = ordered ? found : place;
      attributes_.push_back(attribute);
    }
    check(*element, ordered);
  }

  void check(const Element& element, bool ordered) {
    if (element.name == "layout")
      checkVersion();
    // What only holds others loses nothing by itself.
    if (element.attributes.empty() && attributes_.empty())
      return;
    // The second one on a line, or one that the reader has not looked for here.
    if (taken_ != element.name)
      return report(element.name);
    taken_ = {};
    if (element.once && !singles_.insert(element.name).second)
      return report(element.name);
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
      if (placeOf(element, attribute.name(), 0) == std::string_view::npos)
        return report(element.name, attribute.name());
    }
    for (const Attribute& attribute : attributes_) {
      const bool withBlank = element.name == "level" && attribute.spelled == " r";
      const std::string_view searched = attribute.spelled.substr(withBlank ? 0 : 1);
      const auto first = std::ranges::find_if(attributes_, [searched](const Attribute& other) {
        return other.spelled.ends_with(searched);
      });
      if (first->spelled != attribute.spelled)
        return report(element.name, attribute.name());
    }
  }

  /// Where an attribute stands in the element's list from there on; npos when it does not.
  static std::size_t placeOf(const Element& element, std::string_view name, std::size_t from) {
    const std::string_view list = element.attributes;
    std::size_t place = list.find(name, from);
    while (place != std::string_view::npos &&
           (list[place - 1] != ' ' || list[place + name.size()] != ' '))
      place = list.find(name, place + 1);
    return place;
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
  Section section_ = Section::Outside;
  std::string_view taken_;     ///< the element that the reader takes from the line
  std::string_view skippedTo_; ///< the end of a comment or instruction that is open
  std::vector<Attribute> attributes_;
  std::set<std::string_view> seen_; ///< what the reader has taken
  std::set<std::string_view> singles_;
  std::string unread_;
};

} // namespace

std::string unreadPart(std::string_view text) {
  if (!isWholeLayout(text))
    return tr("it does not hold a whole layout");
  return UnreadSearch(text).firstUnread();
}

} // namespace trassix
