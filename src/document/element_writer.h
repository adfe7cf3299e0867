#pragma once

#include "measures/number_text.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace trassix {

/// Takes a text in parts.
using TextSink = std::function<void(std::string_view)>;

/// Puts together the text of a plan file, one element on each line: opening text, attributes in the
/// order of the calls, end. Attribute names are literals, so that they are copied without a call.
class ElementWriter {
 public:
  /// Hands over whole lines, the last ones in `finish`.
  explicit ElementWriter(TextSink sink) : sink_(std::move(sink)) {}

  /// A whole line without attributes.
  void line(std::string_view indent, std::string_view text);

  void open(std::string_view indent, std::string_view text);

  template <std::size_t N>
  void text(const char (&name)[N], std::string_view value) {
    use(startAttribute(name, 0));
    escaped(value);
    append("\"");
  }

  template <std::size_t N>
  void integer(const char (&name)[N], std::int32_t value) {
    endAttribute(writeInteger(startAttribute(name, kIntegerSpace), value));
  }

  template <std::size_t N>
  void real(const char (&name)[N], double value) {
    if (std::isfinite(value))
      endAttribute(writeReal(startAttribute(name, kRealSpace), value));
    else
      fail(name);
  }

  template <std::size_t N>
  void flag(const char (&name)[N], bool value) {
    char* out = startAttribute(name, 1);
    *out++ = value ? '1' : '0';
    endAttribute(out);
  }

  void endEmpty() { endLine("/>\n"); }
  void endParent() { endLine(">\n"); }

  /// Call it once, at the end. Returns why the text must not be kept: the first number in it that
  /// was not finite. Empty when all is well.
  std::string finish();

 private:
  /// At least `space` bytes at the end of the text; `use` tells how far they were used.
  char* room(std::size_t space) {
    if (buffer_.size() - used_ < space)
      grow(space);
    return buffer_.data() + used_;
  }
  void use(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.data()); }

  template <std::size_t N>
  char* startAttribute(const char (&name)[N], std::size_t valueSpace) {
    constexpr std::size_t kLength = N - 1;
    char* out = room(kLength + valueSpace + 4);
    *out++ = ' ';
    std::memcpy(out, name, kLength);
    out += kLength;
    *out++ = '=';
    *out++ = '"';
    return out;
  }
  void endAttribute(char* out) {
    *out++ = '"';
    use(out);
  }

  void append(std::string_view text) {
    char* out = room(text.size());
    std::memcpy(out, text.data(), text.size());
    use(out + text.size());
  }

  void endLine(std::string_view end) {
    append(end);
    if (used_ >= kPart)
      handOver();
  }

  void grow(std::size_t space);
  void handOver();
  void escaped(std::string_view value);
  void fail(std::string_view name);

  static constexpr std::size_t kPart = std::size_t{1} << 16U;

  TextSink sink_;
  std::string buffer_; ///< the text not yet handed over and room for more
  std::size_t used_ = 0;
  std::string failure_;
};

} // namespace trassix
