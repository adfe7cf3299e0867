#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trassix {

/// Puts together the text of a plan file, one element on each line: opening text, attributes in the
/// order of the calls, end. Attribute names are short literals.
class ElementWriter {
 public:
  /// A whole line without attributes.
  void line(std::string_view indent, std::string_view text);

  void open(std::string_view indent, std::string_view text);
  void text(std::string_view name, std::string_view value);
  void integer(std::string_view name, std::int32_t value);
  void real(std::string_view name, double value);
  void flag(std::string_view name, bool value);
  void endEmpty() { text_ += "/>\n"; }
  void endParent() { text_ += ">\n"; }

  /// Why the text must not be saved: the first number in it that was not finite. Empty otherwise.
  const std::string& failure() const { return failure_; }

  std::string take() { return std::move(text_); }

 private:
  void fail(std::string_view name);

  std::string text_;
  std::string failure_;
};

} // namespace trassix
