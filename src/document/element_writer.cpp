#include "document/element_writer.h"

#include <algorithm>

namespace trassix {

namespace {

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
  endLine("\n");
}

void ElementWriter::open(std::string_view indent, std::string_view text) {
  append(indent);
  append(text);
}

std::string ElementWriter::finish() {
  handOver();
  return std::move(failure_);
}

void ElementWriter::handOver() {
  sink_(std::string_view(buffer_.data(), used_));
  used_ = 0;
}

void ElementWriter::grow(std::size_t space) {
  constexpr std::size_t kSmallest = 4096;
  buffer_.resize(std::max({kSmallest, buffer_.size() * 2, used_ + space}));
}

void ElementWriter::escaped(std::string_view value) {
  // Line ends become blanks: an element that is split over two lines could not be read back.
  constexpr std::string_view kSpecial = "&<>\"\r\n";
  for (;;) {
    const std::size_t special = value.find_first_of(kSpecial);
    append(value.substr(0, special));
    if (special == std::string_view::npos)
      return;
    append(escape(value[special]));
    value.remove_prefix(special + 1);
  }
}

void ElementWriter::fail(std::string_view name) {
  if (!failure_.empty())
    return;
  const std::string_view written(buffer_.data(), used_);
  const std::string_view element = written.substr(written.rfind('\n') + 1);
  failure_ = "Not a finite number: " + std::string(name) + " in ";
  failure_ += element.substr(element.find_first_not_of(' '));
}

} // namespace trassix
