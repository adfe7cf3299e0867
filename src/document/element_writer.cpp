#include "document/element_writer.h"

#include "document/number_text.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr std::size_t kLongestName = 16;

/// ` name="` at `out`; returns the end.
char* writeName(char* out, std::string_view name) {
  *out++ = ' ';
  out = std::copy(name.begin(), name.end(), out);
  *out++ = '=';
  *out++ = '"';
  return out;
}

std::string_view escape(char c) {
  switch (c) {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return "&gt;";
  case '"':
    return "&quot;";
  default:
    return " ";
  }
}

} // namespace

void ElementWriter::line(std::string_view indent, std::string_view text) {
  open(indent, text);
  text_ += '\n';
}

void ElementWriter::open(std::string_view indent, std::string_view text) {
  text_ += indent;
  text_ += text;
}

void ElementWriter::text(std::string_view name, std::string_view value) {
  text_ += ' ';
  text_ += name;
  text_ += "=\"";
  // Line ends become blanks: an element that is split over two lines could not be read back.
  constexpr std::string_view kSpecial = "&<>\"\r\n";
  for (;;) {
    const std::size_t special = value.find_first_of(kSpecial);
    text_ += value.substr(0, special);
    if (special == std::string_view::npos)
      break;
    text_ += escape(value[special]);
    value.remove_prefix(special + 1);
  }
  text_ += '"';
}

void ElementWriter::integer(std::string_view name, std::int32_t value) {
  char buffer[kLongestName + kIntegerSpace + 4];
  char* end = writeInteger(writeName(buffer, name), value);
  *end++ = '"';
  text_.append(buffer, end);
}

void ElementWriter::real(std::string_view name, double value) {
  if (!std::isfinite(value)) {
    fail(name);
    return;
  }
  char buffer[kLongestName + kRealSpace + 4];
  char* end = writeReal(writeName(buffer, name), value);
  *end++ = '"';
  text_.append(buffer, end);
}

void ElementWriter::flag(std::string_view name, bool value) {
  integer(name, value ? 1 : 0);
}

void ElementWriter::fail(std::string_view name) {
  if (!failure_.empty())
    return;
  const std::size_t element = text_.find_first_not_of(' ', text_.rfind('\n') + 1);
  failure_ = "Not a finite number: " + std::string(name) + " in " + text_.substr(element);
}

} // namespace trassix
