#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace trassix {

/// Ends a load. Never leaves the functions that read a whole file.
class ReadFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A value from a file as a message shows it: short, and nothing that a message box could stumble
/// over.
std::string excerpt(std::string_view value);

/// Walks over the lines of a plan file and takes elements and attributes from the current one by
/// plain search: this is no XML parser, and an element stands on one line. Texts come as they are
/// in the file, nothing is decoded.
///
/// The conversions throw a `ReadFailure` that names the standard conversion failure and the place.
class ElementReader {
 public:
  /// The text must outlive the reader.
  explicit ElementReader(std::string_view text) : rest_(text) {}

  /// Goes to the next line; false after the last one.
  bool next();

  /// True when the line has this text somewhere, which must begin with '<'.
  bool has(std::string_view opening) const {
    if (tagCount_ > kMostTags)
      return line_.find(opening) != std::string_view::npos;
    for (std::size_t i = 0; i < tagCount_; ++i) {
      const std::string_view tag(tags_[i], line_.data() + line_.size());
      if (tag.size() >= opening.size() && tag[1] == opening[1] && tag.starts_with(opening))
        return true;
    }
    return false;
  }

  /// The line from its '<' on; empty when it has none or more than one.
  std::string_view onlyTag() const {
    return tagCount_ == 1 ? std::string_view(tags_[0], line_.data() + line_.size())
                          : std::string_view();
  }

  /// The value after the first `name="` that opens a quote; empty when there is none or the quote
  /// is not closed. The end of a longer name counts as well: `x` also finds `scalex`, so that the
  /// order of attributes matters. What looks like an attribute inside a value is none.
  std::string_view text(std::string_view name);

  std::int32_t integer(std::string_view name);
  /// `absent` when the text is empty.
  std::int32_t integer(std::string_view name, std::int32_t absent);
  /// Lengths in mm and scales outside the limits of a plan fail as well.
  double length(std::string_view name);
  double length(std::string_view name, double absent);
  double scale(std::string_view name);
  double angle(std::string_view name) { return real(name); }
  /// True for exactly "1".
  bool flag(std::string_view name) { return text(name) == "1"; }
  /// The low eight bits of an integer.
  std::uint8_t byte(std::string_view name) { return static_cast<std::uint8_t>(integer(name)); }
  /// The id of a record, which must leave room for the ids of new records.
  std::int32_t id(std::string_view name);

  /// Throws with the reason, the line number, the attribute and its value.
  [[noreturn]] void fail(std::string_view reason, std::string_view name,
                         std::string_view value) const;

 private:
  /// An opening quote with what helps to compare the name before it.
  struct Attribute {
    const char* open;
    const char* close;
    std::uint64_t earlierEnds; ///< a bit for each last letter of the names before this one
  };

  std::int32_t toInteger(std::string_view name, std::string_view value) const;
  double real(std::string_view name);
  void findAttributes();
  bool nameEndsAt(const char* open, std::string_view name) const;
  std::string_view searchLine(std::string_view name) const;

  /// Lines of ours have fewer attributes and one '<'; longer ones are searched afresh each time.
  static constexpr std::size_t kMostAttributes = 20;
  static constexpr std::size_t kMostTags = 4;

  std::string_view rest_;
  std::string_view line_;
  std::size_t lineNumber_ = 0;
  std::array<const char*, kMostTags> tags_{}; ///< every '<' of the line
  std::size_t tagCount_ = 0;                  ///< more than kMostTags: search the line
  std::array<Attribute, kMostAttributes + 1> attributes_{}; ///< one more to hold the last ends
  std::size_t attributeCount_ = 0; ///< more than kMostAttributes: search the line
  std::size_t expected_ = 0;       ///< the one after the one found last
  bool attributesFound_ = false;
};

} // namespace trassix
