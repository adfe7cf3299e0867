// The attributes of an element, named once: a function `fields(line, record)` goes over them in the
// order of the file, and its line reads them into the record, writes them or lists their names.
#pragma once

#include "document/element_reader.h"
#include "document/element_writer.h"

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace trassix {

/// How an attribute is read; what each refuses is said at the `ElementReader`.
inline constexpr auto kInteger = [](ElementReader& r, std::string_view n) { return r.integer(n); };
inline constexpr auto kId = [](ElementReader& r, std::string_view n) { return r.id(n); };
inline constexpr auto kByte = [](ElementReader& r, std::string_view n) { return r.byte(n); };
inline constexpr auto kLength = [](ElementReader& r, std::string_view n) { return r.length(n); };
inline constexpr auto kAngle = [](ElementReader& r, std::string_view n) { return r.angle(n); };
inline constexpr auto kScale = [](ElementReader& r, std::string_view n) { return r.scale(n); };
inline constexpr auto kFlag = [](ElementReader& r, std::string_view n) { return r.flag(n); };
inline constexpr auto kText = [](ElementReader& r, std::string_view n) { return r.text(n); };
/// With the blank before the name, where an earlier name ends like it.
inline constexpr auto kByteApart = [](ElementReader& r, std::string_view n) {
  return r.byte(std::string(" ").append(n));
};

/// The record as `fields` gets it from the line.
template <class Line, class Record>
using In = std::conditional_t<Line::kFills, Record, const Record>;

struct ReadFields {
  static constexpr bool kFills = true;
  ElementReader& reader;

  void operator()(std::string_view name, auto& value, auto how) { value = how(reader, name); }
};

struct WriteFields {
  static constexpr bool kFills = false;
  ElementWriter& writer;

  template <std::size_t N, class Value>
  void operator()(const char (&name)[N], const Value& value, auto) {
    if constexpr (std::same_as<Value, bool>)
      writer.flag(name, value);
    else if constexpr (std::integral<Value>)
      writer.integer(name, value);
    else if constexpr (std::floating_point<Value>)
      writer.real(name, value);
    else
      writer.text(name, value);
  }
};

struct AttributeName {
  std::string_view name;
  bool apart = false; ///< see `kByteApart`
};

struct ListFields {
  static constexpr bool kFills = false;
  std::vector<AttributeName> names;

  template <class How>
  void operator()(std::string_view name, const auto&, How) {
    names.push_back({name, std::same_as<How, std::remove_cv_t<decltype(kByteApart)>>});
  }
};

} // namespace trassix
