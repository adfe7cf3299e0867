#include "document/rescue/version_store.h"

#include "app/services/file_listing.h"
#include "app/services/local_time.h"
#include "app/services/program_memory.h"
#include "document/file_names.h"
#include "document/plan_origin.h"

#include <algorithm>
#include <tuple>

namespace trassix {

namespace fs = std::filesystem;

namespace {

constexpr const char* kNote = "plan.json";
constexpr const char* kTopic = "plan";
constexpr const char* kCopyEnd = ".txl";

fs::path pathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

/// The latest first. Where the clock of the files only counts seconds the numbers of names tell
/// which came later.
std::vector<fs::path> copiesIn(const fs::path& planFolder) {
  std::vector<std::tuple<fs::file_time_type, std::size_t, fs::path>> dated;
  std::error_code error;
  for (const fs::path& copy : filesIn(planFolder, kCopyEnd))
    dated.emplace_back(fs::last_write_time(copy, error), copy.native().size(), copy);
  std::ranges::sort(dated, std::greater());
  std::vector<fs::path> copies;
  copies.reserve(dated.size());
  for (auto& [when, length, copy] : dated)
    copies.push_back(std::move(copy));
  return copies;
}

std::vector<fs::path> planFolders(const fs::path& folder) {
  std::vector<fs::path> folders;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error))
    if (entry->is_directory(error))
      folders.push_back(entry->path());
  return folders;
}

void removeWhenEmpty(const fs::path& planFolder) {
  std::error_code error;
  if (copiesIn(planFolder).empty())
    fs::remove_all(planFolder, error);
}

/// Writes which plan the folder belongs to and, when it was deleted, since when.
void note(const fs::path& planFolder, const fs::path& file, std::time_t deleted) {
  // What cannot be noted shows as a plan that cannot be listed; its copies stay.
  ProgramMemory(planFolder / kNote).remember(kTopic, [&](auto& plan) {
    plan = {{"file", pathText(file)}};
    if (deleted != 0)
      plan["deleted"] = deleted;
  });
}

fs::path unusedCopy(const fs::path& planFolder, std::time_t when) {
  const std::string stem = localTimeText(when, '.');
  fs::path unused = planFolder / (stem + kCopyEnd);
  std::error_code error;
  for (int number = 2; fs::exists(unused, error); ++number)
    unused = planFolder / (stem + " (" + std::to_string(number) + ")" + kCopyEnd);
  return unused;
}

} // namespace

std::size_t leastMissed(const std::vector<double>& ages) {
  std::size_t least = ages.size() - 1;
  double smallest = 0;
  for (std::size_t i = 1; i + 1 < ages.size(); ++i) {
    const double gap = (ages[i + 1] - ages[i - 1]) / std::max(ages[i + 1], 1.0);
    if (i == 1 || gap < smallest) {
      smallest = gap;
      least = i;
    }
  }
  return least;
}

fs::path VersionStore::folderOf(const fs::path& file) const {
  std::error_code error;
  const fs::path absolute = fs::weakly_canonical(file, error);
  const std::string path = pathText(error ? file : absolute);
  const std::string name = asFileName(pathText(file.stem())) + ' ' + contentMark(path);
  return folder_ / pathOf(name);
}

VersionStore::Kept VersionStore::keep(const fs::path& file) const {
  Kept kept{file, {}, {}};
  std::error_code error;
  const fs::path real = fs::canonical(file, error); // a link to a symbolic link would keep nothing
  if (error || !fs::is_regular_file(real, error) || !readTextFile(real, kept.text).empty())
    return kept;
  const fs::path planFolder = folderOf(file);
  fs::create_directories(planFolder, error);
  note(planFolder, file, 0);
  const fs::path copy = unusedCopy(planFolder, writtenAt(real));
  fs::create_hard_link(real, copy, error);
  if (error) {
    if (!writeBytes(copy, kept.text).empty())
      return kept;
    fs::last_write_time(copy, fs::last_write_time(real, error), error);
  }
  kept.copy = copy;
  return kept;
}

void VersionStore::settle(const Kept& kept, bool replaced, WriteWay way) const {
  if (kept.copy.empty())
    return;
  std::string text;
  std::error_code error;
  const fs::path planFolder = kept.copy.parent_path();
  if (!replaced || (readTextFile(kept.file, text).empty() && text == kept.text)) {
    fs::remove(kept.copy, error);
    return removeWhenEmpty(planFolder);
  }
  // The copy may be the file itself, by another name.
  if (way == WriteWay::InPlace && fs::equivalent(kept.file, kept.copy, error))
    writeBytes(kept.copy, kept.text);
  thin(planFolder);
  limitSize();
}

std::error_code VersionStore::remove(const fs::path& file, std::time_t now, bool& kept) const {
  const Kept before = keep(file);
  std::error_code error;
  if (!fs::remove(file, error) && !error)
    error = std::make_error_code(std::errc::no_such_file_or_directory);
  kept = !error && !before.copy.empty();
  settle(before, !error, WriteWay::Replaced);
  if (kept)
    note(before.copy.parent_path(), file, now);
  return error;
}

void VersionStore::thin(const fs::path& planFolder) const {
  std::error_code error;
  std::vector<fs::path> copies = copiesIn(planFolder);
  const auto now = fs::file_time_type::clock::now();
  while (copies.size() > kMostOfAPlan) {
    std::vector<double> ages;
    ages.reserve(copies.size());
    for (const fs::path& copy : copies)
      ages.push_back(std::chrono::duration<double>(now - fs::last_write_time(copy, error)).count());
    const auto gone = copies.begin() + static_cast<std::ptrdiff_t>(leastMissed(ages));
    fs::remove(*gone, error);
    copies.erase(gone);
  }
}

void VersionStore::limitSize() const {
  struct Stored {
    fs::file_time_type when;
    fs::path copy;
    std::uintmax_t bytes;
  };
  std::vector<Stored> all;
  std::uintmax_t bytes = 0;
  std::error_code error;
  for (const fs::path& planFolder : planFolders(folder_))
    for (const fs::path& copy : filesIn(planFolder, kCopyEnd)) {
      const std::uintmax_t size = fs::file_size(copy, error);
      all.push_back({fs::last_write_time(copy, error), copy, error ? 0 : size});
      bytes += all.back().bytes;
    }
  std::ranges::sort(all, {}, &Stored::when);
  for (auto oldest = all.begin(); bytes > mostBytes_ && oldest != all.end(); ++oldest) {
    fs::remove(oldest->copy, error);
    removeWhenEmpty(oldest->copy.parent_path());
    bytes -= oldest->bytes;
  }
}

void VersionStore::tidy(std::time_t now) const {
  for (const fs::path& planFolder : planFolders(folder_)) {
    const auto plan = ProgramMemory(planFolder / kNote).recall(kTopic);
    const auto deleted = plan ? valueIn<std::int64_t>(*plan, "deleted") : std::nullopt;
    std::error_code error;
    if (deleted && *deleted + kKeptAfterDelete < now)
      fs::remove_all(planFolder, error);
    else
      removeLeftovers(planFolder);
  }
  limitSize();
}

std::vector<VersionStore::Plan> VersionStore::plans() const {
  std::vector<Plan> plans;
  for (const fs::path& planFolder : planFolders(folder_)) {
    const auto noted = ProgramMemory(planFolder / kNote).recall(kTopic);
    const fs::path file =
        pathOf(noted ? valueIn<std::string>(*noted, "file").value_or("") : std::string());
    std::error_code error;
    Plan plan{file, !fs::exists(file, error), copiesIn(planFolder)};
    if (!plan.copies.empty())
      plans.push_back(std::move(plan));
  }
  std::ranges::sort(plans, {}, [](const Plan& plan) { return plan.file.stem(); });
  return plans;
}

VersionStore::Version VersionStore::versionIn(const fs::path& copy) {
  constexpr std::string_view kPiece = "<piece ";
  Version version{copy, writtenAt(copy)};
  std::string text;
  readTextFile(copy, text);
  for (std::size_t at = 0; (at = text.find(kPiece, at)) != std::string::npos; at += kPiece.size())
    ++version.pieces;
  return version;
}

} // namespace trassix
