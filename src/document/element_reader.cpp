#include "document/element_reader.h"

#include "document/number_text.h"

#include <cstring>

namespace trassix {

namespace {

constexpr std::int32_t kLargestId = 2'000'000'000;

const char* findChar(const char* begin, const char* end, char c) {
  return static_cast<const char*>(std::memchr(begin, c, static_cast<std::size_t>(end - begin)));
}

/// A value in a message: short, and nothing that a message box could stumble over.
std::string excerpt(std::string_view value) {
  constexpr std::size_t kLongest = 40;
  std::string result(value.substr(0, kLongest));
  for (char& c : result) {
    if (c < ' ' || c > '~')
      c = '?';
  }
  return value.size() > kLongest ? result + "..." : result;
}

} // namespace

bool ElementReader::next() {
  if (rest_.empty())
    return false;
  const char* begin = rest_.data();
  const char* end = findChar(begin, begin + rest_.size(), '\n');
  const std::size_t length = end == nullptr ? rest_.size() : static_cast<std::size_t>(end - begin);
  line_ = rest_.substr(0, length);
  rest_.remove_prefix(end == nullptr ? length : length + 1);
  ++lineNumber_;
  quotesFound_ = false;

  tagCount_ = 0;
  end = begin + length;
  for (const char* tag = begin; (tag = findChar(tag, end, '<')) != nullptr; ++tag) {
    if (tagCount_ == kMostTags) {
      ++tagCount_;
      break;
    }
    tags_[tagCount_++] = tag;
  }
  return true;
}

bool ElementReader::has(std::string_view opening) const {
  if (tagCount_ > kMostTags)
    return line_.find(opening) != std::string_view::npos;
  const char* end = line_.data() + line_.size();
  for (std::size_t i = 0; i < tagCount_; ++i) {
    if (static_cast<std::size_t>(end - tags_[i]) >= opening.size() &&
        std::memcmp(tags_[i], opening.data(), opening.size()) == 0)
      return true;
  }
  return false;
}

void ElementReader::findQuotes() {
  quotesFound_ = true;
  quoteCount_ = 0;
  if (tagCount_ == 0)
    return;
  const char* end = line_.data() + line_.size();
  for (const char* c = tags_[0]; c != end; ++c) {
    if (*c != '"')
      continue;
    if (quoteCount_ == kMostQuotes) {
      ++quoteCount_;
      return;
    }
    quotes_[quoteCount_++] = c;
  }
}

std::string_view ElementReader::text(std::string_view name) {
  if (!quotesFound_)
    findQuotes();
  const auto opens = [this, name](const char* quote) {
    return static_cast<std::size_t>(quote - line_.data()) > name.size() && quote[-1] == '=' &&
           quote[-2] == name.back() &&
           std::memcmp(quote - 1 - name.size(), name.data(), name.size()) == 0;
  };
  const auto between = [](const char* open, const char* close) {
    return std::string_view(open + 1, static_cast<std::size_t>(close - open - 1));
  };
  if (quoteCount_ <= kMostQuotes) {
    for (std::size_t i = 0; i + 1 < quoteCount_; i += 2) {
      if (opens(quotes_[i]))
        return between(quotes_[i], quotes_[i + 1]);
    }
    return {};
  }
  const char* end = line_.data() + line_.size();
  const char* open = quotes_[0];
  const char* close = quotes_[1];
  while (open != nullptr && close != nullptr) {
    if (opens(open))
      return between(open, close);
    open = findChar(close + 1, end, '"');
    close = open == nullptr ? nullptr : findChar(open + 1, end, '"');
  }
  return {};
}

std::int32_t ElementReader::integer(std::string_view name) {
  const std::string_view value = text(name);
  std::int32_t number = 0;
  const NumberError error = readInteger(value, number);
  if (error != NumberError::None)
    fail(error == NumberError::Invalid ? "invalid stoi argument" : "stoi argument out of range",
         name, value);
  return number;
}

std::int32_t ElementReader::integer(std::string_view name, std::int32_t absent) {
  return text(name).empty() ? absent : integer(name);
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

double ElementReader::real(std::string_view name, double absent) {
  return text(name).empty() ? absent : real(name);
}

std::int32_t ElementReader::id(std::string_view name) {
  const std::int32_t value = integer(name);
  if (value > kLargestId)
    fail("id too large", name, text(name));
  return value;
}

void ElementReader::fail(std::string_view reason, std::string_view name, std::string_view value) {
  throw ReadFailure(std::string(reason) + " (line " + std::to_string(lineNumber_) + ", " +
                    std::string(name) + "=\"" + excerpt(value) + "\")");
}

} // namespace trassix
