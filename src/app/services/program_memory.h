#pragma once

#include <cmath>
#include <concepts>
#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace trassix {

/// What the program remembers of its own from one run to the next: one file of JSON, in it a
/// section for each topic, in that values by name. Each call reads the file, so that programs that
/// run at the same time see each other's changes and write only their own; what another version
/// wrote stays. What is missing or damaged counts as not remembered.
class ProgramMemory {
 public:
  static constexpr std::string_view kFileName = "memory.json";
  using Section = nlohmann::json; ///< an object

  explicit ProgramMemory(std::filesystem::path file) : file_(std::move(file)) {}

  /// None when nothing is remembered. `problem` gets why the file cannot be read at all.
  std::optional<Section> recall(const std::string& topic, std::string* problem = nullptr) const;

  /// Lets `edit` change the section, which may be new, and writes the file if it did. The message
  /// is empty on success. A file that cannot be read is not replaced; of a damaged one a copy stays
  /// beside it.
  std::string remember(const std::string& topic, const std::function<void(Section&)>& edit) const;

 private:
  std::filesystem::path file_;
};

/// None when there is no such value, or one of another type or out of the type's range.
template <class Value>
std::optional<Value> valueIn(const ProgramMemory::Section& section, const std::string& name) {
  const auto found = section.find(name);
  if (found == section.end())
    return std::nullopt;
  if constexpr (std::same_as<Value, bool>) {
    if (found->is_boolean())
      return found->template get<bool>();
  } else if constexpr (std::integral<Value>) {
    if (found->is_number_unsigned() && std::in_range<Value>(found->template get<std::uint64_t>()))
      return static_cast<Value>(found->template get<std::uint64_t>());
    if (found->is_number_integer() && !found->is_number_unsigned() &&
        std::in_range<Value>(found->template get<std::int64_t>()))
      return static_cast<Value>(found->template get<std::int64_t>());
  } else if constexpr (std::floating_point<Value>) {
    if (found->is_number())
      return found->template get<Value>();
  } else if (found->is_string()) {
    return found->template get<std::string>();
  }
  return std::nullopt;
}

} // namespace trassix
