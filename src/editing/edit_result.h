#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// Something to tell the user in a message box. Texts in UTF-8; the window layer shows them.
struct Notice {
  enum class Icon : std::uint8_t { Information, Warning, Error };

  std::string title;
  std::string text;
  Icon icon = Icon::Information;

  bool operator==(const Notice&) const = default;
};

/// What an edit did. `placed` names the new records, the chief one first; nothing placed and no
/// refusal means that there was nothing to do and the document is untouched.
struct EditResult {
  std::vector<std::int32_t> placed;
  std::optional<Notice> refusal;

  bool changed() const { return !placed.empty(); }
};

} // namespace trassix
