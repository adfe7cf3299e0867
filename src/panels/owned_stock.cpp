#include "panels/owned_stock.h"

#include "app/services/text_file.h"
#include "catalog/track_catalog.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace trassix {

namespace {

constexpr std::string_view kBlanks = " \t\r";

/// Some editors begin a UTF-8 file with it.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view kHeading = "# Track that is at home already: article and count.";

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
  if (count > 0) {
    counts_[known] = std::min(count, kMost);
  } else {
    counts_.erase(known);
  }
}

std::string OwnedStock::load(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error) && !error) {
    *this = {};
    return {};
  }
  std::string text;
  if (std::string message = readTextFile(file, text); !message.empty()) {
    unreadable_ = message;
    return message;
  }
  OwnedStock read;
  std::string message;
  std::string_view rest = text;
  if (rest.starts_with(kByteOrderMark)) {
    rest.remove_prefix(kByteOrderMark.size());
  }
  for (int number = 1; !rest.empty(); ++number) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = trimmed(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const bool remark = line.empty() || line.starts_with('#');
    const auto entry = remark ? std::nullopt : readLine(line);
    if (entry) {
      read.set(entry->first, std::min(kMost, read.count(entry->first) + entry->second));
      read.lines_.push_back({{}, entry->first});
      continue;
    }
    read.lines_.push_back({std::string(line), {}});
    if (!remark && message.empty()) {
      message = pathText(file) + ", line " + std::to_string(number) +
                ": an article and a count are expected, found \"" + std::string(line) + "\"";
    }
  }
  *this = std::move(read);
  return message;
}

std::string OwnedStock::save(const std::filesystem::path& file) const {
  if (!unreadable_.empty()) {
    return unreadable_;
  }
  std::string text;
  if (lines_.empty()) {
    text = std::string(kHeading) + '\n';
  }
  auto unwritten = counts_;
  const auto write = [&](const std::string& article) {
    if (const auto entry = unwritten.extract(article)) {
      text += article + ' ' + std::to_string(entry.mapped()) + '\n';
    }
  };
  for (const Line& line : lines_) {
    if (line.article.empty()) {
      text += line.text + '\n';
    } else {
      write(line.article);
    }
  }
  while (!unwritten.empty()) {
    write(std::string(unwritten.begin()->first));
  }
  return writeTextFile(file, text);
}

} // namespace trassix
