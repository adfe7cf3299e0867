#pragma once

#include "texts/texts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
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
  std::optional<Notice> remark = {}; ///< what the user should know of an edit that was done

  bool changed() const { return !placed.empty(); }
};

/// What an edit of records that are there did; without a refusal an unchanged plan means that there
/// was nothing to do.
struct ChangeResult {
  bool changed = false;
  std::optional<Notice> refusal;
  std::optional<Notice> remark = {}; ///< what the user should know of an edit that was done

  ChangeResult(bool didChange) : changed(didChange) {}
  ChangeResult(Notice reason) : refusal(std::move(reason)) {}
  explicit operator bool() const { return changed; }
};

/// The refusal of an edit that would take something out of the limits of a plan, see limits.h.
inline Notice beyondPlan() {
  return {tr("Edge of the Plan"),
          tr("A plan ends 1,000,000 mm from its origin, to all sides as well "
             "as above and below. This would lie beyond.")};
}

} // namespace trassix
