// Elements as `ElementWriter` puts them on a line, read in one pass.
#pragma once

#include "measures/number_text.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace trassix {

/// Goes over an element from its '<'. Each call is false, and the line is to be read otherwise,
/// unless it goes on with just what the call names, in the form in which it is written. So what was
/// gone over to the end is what an `ElementReader` finds there by searching.
class WrittenLine {
 public:
  explicit WrittenLine(std::string_view line) : at_(line.data()), end_(at_ + line.size()) {}

  template <std::size_t N>
  bool skip(const char (&text)[N]) {
    if (!goesOn(text))
      return false;
    at_ += N - 1;
    return true;
  }

  template <std::size_t N>
  bool integer(const char (&name)[N], std::int32_t& value) {
    return startValue(name) && (at_ = takeInteger(at_, end_, value)) != nullptr && skip("\"");
  }

  template <std::size_t N>
  bool real(const char (&name)[N], double& value) {
    return startValue(name) && (at_ = takeReal(at_, end_, value)) != nullptr && skip("\"");
  }

  template <std::size_t N>
  bool flag(const char (&name)[N], bool& value) {
    if (!startValue(name))
      return false;
    value = goesOn("1");
    return (value || goesOn("0")) && ++at_ != end_ && skip("\"");
  }

  template <std::size_t N>
  bool text(const char (&name)[N], std::string& value) {
    if (!startValue(name))
      return false;
    const char* start = at_;
    while (at_ != end_ && *at_ != '"')
      ++at_;
    value.assign(start, at_);
    return skip("\"");
  }

  /// Whether the next attribute has this name.
  template <std::size_t N>
  bool isNext(const char (&name)[N]) const {
    constexpr std::size_t kLength = N - 1;
    return static_cast<std::size_t>(end_ - at_) > kLength + 2 && *at_ == ' ' &&
           std::memcmp(at_ + 1, name, kLength) == 0 &&
           std::memcmp(at_ + 1 + kLength, "=\"", 2) == 0;
  }

  bool atEnd() const { return at_ == end_; }

 private:
  template <std::size_t N>
  bool goesOn(const char (&text)[N]) const {
    return static_cast<std::size_t>(end_ - at_) >= N - 1 && std::memcmp(at_, text, N - 1) == 0;
  }

  template <std::size_t N>
  bool startValue(const char (&name)[N]) {
    if (!isNext(name))
      return false;
    at_ += N + 2;
    return true;
  }

  const char* at_;
  const char* end_;
};

} // namespace trassix
