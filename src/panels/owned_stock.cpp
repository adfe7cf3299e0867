#include "panels/owned_stock.h"

#include "app/services/program_memory.h"
#include "app/services/text_file.h"
#include "catalog/track_catalog.h"
#include "texts/texts.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace trassix {

namespace {

constexpr std::string_view kBlanks = " \t\r";

/// Some editors begin a UTF-8 file with it.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

const std::string kTopic = "ownedStock";

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == std::string_view::npos
             ? std::string_view{}
             : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// The article under which the catalogue has it; an article it does not know stands for itself.
std::string canonical(std::string_view article) {
  const PieceDef* piece = TrackCatalog::instance().find(article);
  return piece != nullptr ? piece->article : std::string(article);
}

/// The article is all up to the last blank, the count what follows.
std::optional<std::pair<std::string, std::int32_t>> readLine(std::string_view line) {
  const std::size_t blank = line.find_last_of(kBlanks);
  if (blank == std::string_view::npos) {
    return std::nullopt;
  }
  const std::string_view number = line.substr(blank + 1);
  std::int32_t count = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), count);
  if (error != std::errc() || end != number.data() + number.size() || count < 0 ||
      count > OwnedStock::kMost) {
    return std::nullopt;
  }
  return std::pair(canonical(trimmed(line.substr(0, blank))), count);
}

} // namespace

std::int32_t OwnedStock::count(std::string_view article) const {
  const auto found = counts_.find(canonical(article));
  return found == counts_.end() ? 0 : found->second;
}

void OwnedStock::set(std::string_view article, std::int32_t count) {
  const std::string known = canonical(article);
  if (count > 0)
    counts_[known] = std::min(count, kMost);
  else
    counts_.erase(known);
  unsaved_.insert(known);
}

std::string OwnedStock::load(const ProgramMemory& memory, const std::filesystem::path& olderFile) {
  std::string problem;
  const auto section = memory.recall(kTopic, &problem);
  if (!problem.empty())
    return unreadable_ = problem;
  *this = {};
  if (!section)
    return takeOver(olderFile);
  for (const auto& entry : section->items()) {
    const std::int32_t more = valueIn<std::int32_t>(*section, entry.key()).value_or(0);
    if (more > 0)
      set(entry.key(), std::min(kMost, count(entry.key()) + std::min(more, kMost)));
  }
  unsaved_.clear();
  return {};
}

std::string OwnedStock::takeOver(const std::filesystem::path& olderFile) {
  std::error_code error;
  if (!std::filesystem::exists(olderFile, error) && !error)
    return {};
  std::string text;
  if (std::string message = readTextFile(olderFile, text); !message.empty())
    return unreadable_ = message;
  std::string message;
  std::string_view rest = text;
  if (rest.starts_with(kByteOrderMark))
    rest.remove_prefix(kByteOrderMark.size());
  for (int number = 1; !rest.empty(); ++number) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = trimmed(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.empty() || line.starts_with('#'))
      continue;
    if (const auto entry = readLine(line))
      set(entry->first, std::min(kMost, count(entry->first) + entry->second));
    else if (message.empty())
      message = tr("%1%, line %2%: an article and a count are expected, found \"%3%\"",
                   {pathText(olderFile), number, line});
  }
  return message;
}

std::string OwnedStock::save(const ProgramMemory& memory) {
  if (!unreadable_.empty())
    return unreadable_;
  std::string problem = memory.remember(kTopic, [this](ProgramMemory::Section& section) {
    for (const std::string& article : unsaved_) {
      for (auto entry = section.begin(); entry != section.end();)
        entry = canonical(entry.key()) == article ? section.erase(entry) : std::next(entry);
      if (const std::int32_t owned = count(article); owned > 0)
        section[article] = owned;
    }
  });
  if (problem.empty())
    unsaved_.clear();
  return problem;
}

} // namespace trassix
