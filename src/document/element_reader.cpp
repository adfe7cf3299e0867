#include "document/element_reader.h"

#include "document/layout.h"
#include "document/limits.h"
#include "measures/number_text.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace trassix {

namespace {

const char* findChar(const char* begin, const char* end, char c) {
  return static_cast<const char*>(std::memchr(begin, c, static_cast<std::size_t>(end - begin)));
}

/// The top bit of each byte of the word that is `c`.
std::uint64_t bytesThatAre(char c, std::uint64_t word) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  constexpr std::uint64_t kLow = 0x7f7f7f7f7f7f7f7f;
  word ^= kEach * static_cast<unsigned char>(c);
  return ~(((word & kLow) + kLow) | word | kLow);
}

/// Calls `visit` with every one of these characters until it returns false. They follow one another
/// closely: looking at eight characters at once is faster than a call of memchr for each.
template <char... C, class Visit>
void visitChars(const char* begin, const char* end, Visit visit) {
  if constexpr (std::endian::native == std::endian::little) {
    for (; end - begin >= 8; begin += 8) {
      std::uint64_t word = 0;
      std::memcpy(&word, begin, sizeof word);
      for (std::uint64_t found = (bytesThatAre(C, word) | ...); found != 0; found &= found - 1) {
        if (!visit(begin + std::countr_zero(found) / 8))
          return;
      }
    }
  }
  for (; begin != end; ++begin) {
    if (((*begin == C) || ...) && !visit(begin))
      return;
  }
}

std::string_view between(const char* open, const char* close) {
  return {open + 1, static_cast<std::size_t>(close - open - 1)};
}

std::uint64_t letterBit(char c) {
  return std::uint64_t{1} << (static_cast<unsigned char>(c) % 64U);
}

} // namespace

std::string excerpt(std::string_view value) {
  constexpr std::size_t kLongest = 40;
  std::string result(value.substr(0, kLongest));
  for (char& c : result) {
    if (c < ' ' || c > '~')
      c = '?';
  }
  return value.size() > kLongest ? result + "..." : result;
}

bool ElementReader::next() {
  if (rest_.empty())
    return false;
  const char* begin = rest_.data();
  const char* end = nullptr;
  tagCount_ = 0;
  visitChars<'<', '\n'>(begin, begin + rest_.size(), [this, &end](const char* found) {
    if (*found == '\n')
      end = found;
    else if (tagCount_ < kMostTags)
      tags_[tagCount_++] = found;
    else
      tagCount_ = kMostTags + 1;
    return end == nullptr;
  });
  const std::size_t length = end == nullptr ? rest_.size() : static_cast<std::size_t>(end - begin);
  line_ = rest_.substr(0, length);
  rest_.remove_prefix(end == nullptr ? length : length + 1);
  ++lineNumber_;
  attributesFound_ = false;
  return true;
}

void ElementReader::findAttributes() {
  attributesFound_ = true;
  attributeCount_ = 0;
  expected_ = 0;
  attributes_[0].earlierEnds = 0;
  if (tagCount_ == 0)
    return;
  const char* open = nullptr;
  visitChars<'"'>(tags_[0], line_.data() + line_.size(), [this, &open](const char* quote) {
    if (open == nullptr) {
      open = quote;
      return true;
    }
    if (attributeCount_ == kMostAttributes) {
      ++attributeCount_;
      return false;
    }
    Attribute& attribute = attributes_[attributeCount_++];
    attribute.open = open;
    attribute.close = quote;
    attributes_[attributeCount_].earlierEnds =
        attribute.earlierEnds | (open - tags_[0] < 2 ? 0 : letterBit(open[-2]));
    open = nullptr;
    return true;
  });
}

bool ElementReader::nameEndsAt(const char* open, std::string_view name) const {
  if (open[-1] != '=' || static_cast<std::size_t>(open - line_.data()) <= name.size())
    return false;
  const char* c = open - 1;
  for (std::size_t i = name.size(); i-- > 0;) {
    if (*--c != name[i])
      return false;
  }
  return true;
}

std::string_view ElementReader::text(std::string_view name) {
  if (!attributesFound_)
    findAttributes();
  if (attributeCount_ > kMostAttributes)
    return searchLine(name);
  const std::uint64_t letter = letterBit(name.back());
  if ((attributes_[attributeCount_].earlierEnds & letter) == 0)
    return {};
  std::size_t i = (attributes_[expected_].earlierEnds & letter) == 0 ? expected_ : 0;
  for (; i < attributeCount_; ++i) {
    if (nameEndsAt(attributes_[i].open, name)) {
      expected_ = i + 1;
      return between(attributes_[i].open, attributes_[i].close);
    }
  }
  return {};
}

std::string_view ElementReader::searchLine(std::string_view name) const {
  const char* end = line_.data() + line_.size();
  const char* open = tags_[0];
  for (;;) {
    open = findChar(open, end, '"');
    const char* close = open == nullptr ? nullptr : findChar(open + 1, end, '"');
    if (close == nullptr)
      return {};
    if (nameEndsAt(open, name))
      return between(open, close);
    open = close + 1;
  }
}

std::int32_t ElementReader::integer(std::string_view name) {
  return toInteger(name, text(name));
}

std::int32_t ElementReader::integer(std::string_view name, std::int32_t absent) {
  const std::string_view value = text(name);
  return value.empty() ? absent : toInteger(name, value);
}

std::int32_t ElementReader::toInteger(std::string_view name, std::string_view value) const {
  std::int32_t number = 0;
  const NumberError error = readInteger(value, number);
  if (error != NumberError::None)
    fail(error == NumberError::Invalid ? "invalid stoi argument" : "stoi argument out of range",
         name, value);
  return number;
}

double ElementReader::length(std::string_view name) {
  const double mm = real(name);
  if (!isLength(mm))
    fail("length out of range", name, text(name));
  return mm;
}

double ElementReader::length(std::string_view name, double absent) {
  return text(name).empty() ? absent : length(name);
}

double ElementReader::scale(std::string_view name) {
  const double scale = real(name);
  if (!isScale(scale))
    fail("scale out of range", name, text(name));
  return scale;
}

double ElementReader::real(std::string_view name) {
  const std::string_view value = text(name);
  double number = 0;
  const NumberError error = readReal(value, number);
  if (error != NumberError::None)
    fail(error == NumberError::Invalid ? "invalid stod argument" : "stod argument out of range",
         name, value);
  return number;
}

std::int32_t ElementReader::id(std::string_view name) {
  const std::int32_t value = integer(name);
  if (value > Layout::kLargestId)
    fail("id too large", name, text(name));
  return value;
}

void ElementReader::fail(std::string_view reason, std::string_view name,
                         std::string_view value) const {
  throw ReadFailure(std::string(reason) + " (line " + std::to_string(lineNumber_) + ", " +
                    std::string(name) + "=\"" + excerpt(value) + "\")");
}

} // namespace trassix
