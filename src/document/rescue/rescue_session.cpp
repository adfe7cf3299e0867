#include "document/rescue/rescue_session.h"

#include "app/services/file_listing.h"
#include "app/services/local_time.h"
#include "app/services/program_memory.h"
#include "app/services/text_file.h"
#include "document/layout_writer.h"
#include "document/plan_file.h"
#include "texts/texts.h"

#include <algorithm>
#include <ctime>

namespace trassix {

namespace fs = std::filesystem;

namespace {

constexpr const char* kLock = "lock";
constexpr const char* kCopyEnd = ".txl";
constexpr const char* kDamagedEnd = ".damaged";
constexpr const char* kNote = "session.json";
constexpr const char* kTopic = "plan";

fs::path pathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

PlanOrigin originIn(const fs::path& session) {
  const auto note = ProgramMemory(session / kNote).recall(kTopic);
  if (!note)
    return {};
  return {pathOf(valueIn<std::string>(*note, "file").value_or("")),
          valueIn<std::string>(*note, "content").value_or(""),
          valueIn<std::int64_t>(*note, "since").value_or(0)};
}

/// Writes over a file that is not needed any more, under its temporary name, and leaves out to
/// flush the folder after the rename. A new file, an old one to delete and that flush would each
/// take the disk as long as the flush of the copy itself.
class CopyOperations : public SystemFileOperations {
 public:
  explicit CopyOperations(fs::path spare) : spare_(std::move(spare)) {}

  std::error_code create(const fs::path& file, const fs::path& /*replaced*/) override {
    std::error_code error;
    fs::rename(spare_, file, error);
    return error ? SystemFileOperations::create(file, {}) : openInPlace(file);
  }
  std::error_code flush() override {
    const std::error_code error = cut();
    return error ? error : SystemFileOperations::flush();
  }
  std::error_code rename(const fs::path& file, const fs::path& target) override {
    std::error_code error;
    fs::rename(file, target, error);
    return error;
  }

 private:
  fs::path spare_;
};

/// Copies are numbered: two may be written in one tick of the file system's clock.
fs::path copyOf(const fs::path& session, int number) {
  return session / ("plan-" + std::to_string(number) + kCopyEnd);
}

/// The latest first.
std::vector<fs::path> copiesIn(const fs::path& session) {
  std::vector<fs::path> copies = filesIn(session, kCopyEnd);
  std::ranges::sort(copies, std::greater(),
                    [](const fs::path& copy) { return std::pair(copy.native().size(), copy); });
  return copies;
}

bool holdsDamaged(const fs::path& session) {
  return !filesIn(session, kDamagedEnd).empty();
}

std::vector<fs::path> sessionsIn(const fs::path& folder, const fs::path& own) {
  std::vector<fs::path> sessions;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    // Opening the own lock's file once more would end the lock.
    if (entry->path() != own && entry->is_directory(error))
      sessions.push_back(entry->path());
  }
  std::ranges::sort(sessions);
  return sessions;
}

} // namespace

std::string RescueSession::open() {
  std::error_code error;
  if (!folder_.empty() && fs::exists(folder_ / kLock, error))
    return {};
  leave();
  fs::create_directories(sessions_, error);
  const std::string stem = localTimeText(std::time(nullptr), '.');
  constexpr int kAttempts = 100;
  for (int number = 1; number <= kAttempts; ++number) {
    const fs::path folder =
        sessions_ / (number == 1 ? stem : stem + " (" + std::to_string(number) + ")");
    if (!fs::create_directory(folder, error)) {
      if (error)
        break;
      continue;
    }
    HeldLock lock = HeldLock::take(folder / kLock);
    // Another program may have taken the folder for one that was left before it was locked.
    if (lock.state() == HeldLock::State::HeldByOther || !fs::exists(folder, error))
      continue;
    lock_ = std::move(lock);
    folder_ = folder;
    return origin_.file.empty() ? std::string() : belongTo(origin_);
  }
  return tr("The folder cannot be used: %1% (%2%)", {pathText(sessions_), error.message()});
}

std::string RescueSession::belongTo(const PlanOrigin& origin) {
  origin_ = origin;
  if (folder_.empty() && origin.file.empty())
    return {};
  if (std::string problem = open(); !problem.empty())
    return problem;
  return ProgramMemory(folder_ / kNote).remember(kTopic, [&origin](auto& note) {
    note = ProgramMemory::Section::object();
    if (!origin.file.empty())
      note = {
          {"file", pathText(origin.file)}, {"content", origin.content}, {"since", origin.since}};
  });
}

std::string RescueSession::write(const Layout& layout, std::string_view name) {
  if (std::string problem = open(); !problem.empty())
    return problem;
  const fs::path next = copyOf(folder_, written_ + 1);
  CopyOperations operations(copyOf(folder_, written_ - 1));
  std::string problem = replaceTextFile(
      next, [&](const auto& sink) { return writeLayout(layout, name, sink); }, operations);
  if (!problem.empty())
    return problem;
  copy_ = next;
  ++written_;
  return {};
}

bool RescueSession::hasCopy() const {
  std::error_code error;
  return !copy_.empty() && fs::exists(copy_, error);
}

void RescueSession::discard() {
  std::error_code error;
  if (hasCopy())
    for (const int number : {written_ - 1, written_})
      fs::remove(copyOf(folder_, number), error);
  copy_.clear();
}

void RescueSession::leave() {
  folder_.clear();
  copy_.clear();
  lock_ = {};
}

void RescueSession::close() {
  const fs::path folder = folder_;
  leave();
  std::error_code error;
  if (!folder.empty())
    fs::remove_all(folder, error);
}

std::string RescuedPlan::note() const {
  if (origin.file.empty())
    return tr("This plan was never saved.");
  if (origin.gone())
    return tr("The file of this plan is gone: %1%", {pathText(origin.file)});
  if (!origin.changedElsewhere())
    return tr("Changes to %1%", {pathText(origin.file)});
  const std::time_t written = writtenAt(origin.file);
  return written > when
             ? tr("The file of this plan is newer: it was saved at %1%.", {localTimeText(written)})
             : tr("The file of this plan holds something else by now, saved at %1%.",
                  {localTimeText(written)});
}

void RescuedPlan::throwAway() {
  claim = {};
  std::error_code error;
  fs::remove_all(session, error);
}

RescuedPlans findRescued(const fs::path& sessions, const RescueSession& own, const fs::path& file) {
  RescuedPlans found;
  for (const fs::path& session : sessionsIn(sessions, own.folder())) {
    RescuedPlan rescued;
    rescued.session = session;
    rescued.claim = HeldLock::take(session / kLock);
    if (rescued.claim.state() == HeldLock::State::HeldByOther)
      continue;
    rescued.origin = originIn(session);
    if (!file.empty() && (rescued.origin.file.empty() || !sameFile(rescued.origin.file, file)))
      continue;
    if (rescued.readCopy(found.problems))
      found.plans.push_back(std::move(rescued));
    else if (rescued.claim.held() && !holdsDamaged(session))
      rescued.throwAway();
  }
  std::ranges::stable_sort(found.plans, std::greater(), &RescuedPlan::when);
  return found;
}

bool RescuedPlan::readCopy(std::vector<std::string>& problems) {
  std::vector<fs::path> damaged;
  for (const fs::path& latest : copiesIn(session)) {
    const PlanFile plan = readPlanFile(latest);
    if (plan.whole()) {
      copy = latest;
      name = plan.name;
      pieces = plan.layout.pieceCount();
      when = writtenAt(copy);
      return true;
    }
    damaged.push_back(latest);
  }
  for (const fs::path& file : damaged) {
    const std::string time = localTimeText(writtenAt(file));
    std::error_code error;
    fs::rename(file, fs::path(file).replace_extension(kDamagedEnd), error);
    problems.push_back(tr("A rescue copy of %1% cannot be read and is left out: %2%",
                          {time, pathText(fs::path(file).replace_extension(kDamagedEnd))}));
  }
  return false;
}

bool openElsewhere(const fs::path& sessions, const RescueSession& own, const fs::path& file) {
  return std::ranges::any_of(sessionsIn(sessions, own.folder()), [&file](const fs::path& session) {
    const fs::path other = originIn(session).file;
    return !other.empty() && sameFile(other, file) &&
           HeldLock::take(session / kLock).state() == HeldLock::State::HeldByOther;
  });
}

} // namespace trassix
