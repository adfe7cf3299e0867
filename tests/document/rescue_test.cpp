#include "app/services/file_listing.h"
#include "document/layout_writer.h"
#include "document/open_plan.h"
#include "document/rescue/rescue_schedule.h"
#include "document/rescue/rescue_session.h"
#include "document/rescue/version_store.h"
#include "support/random_plan.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <cmath>
#ifndef _WIN32
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace trassix::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

TEST(RescueSchedule, waitsForAPauseButNotForever) {
  constexpr int kNever = -1;
  const struct {
    milliseconds interval;
    bool again;    ///< there is a copy already, written at 0
    int changed;   ///< ms
    int inputEnds; ///< until then keys come without a pause
    int released;  ///< until then a mouse button is down
    int due;       ///< ms
  } cases[] = {{20s, false, 0, 0, 0, 750},         {20s, false, 0, 60'000, 0, 1500},
               {20s, false, 0, 1000, 0, 1250},     {20s, false, 0, 60'000, 7000, 7000},
               {20s, false, kNever, 0, 0, kNever}, {20s, true, 100, 0, 0, 18750},
               {20s, true, 100, 60'000, 0, 19500}, {20s, true, 30'000, 0, 0, 30'000},
               {200ms, false, 0, 60'000, 0, 150},  {200ms, true, 10, 60'000, 0, 150},
               {20s, true, 100, 0, 60'000, kNever}};
  for (const auto& c : cases) {
    const RescueSchedule::Time start{};
    RescueSchedule schedule(c.interval);
    if (c.again)
      schedule.copied(start);
    int due = kNever;
    for (int ms = 0; ms < 40'000 && due == kNever; ms += 5) {
      if (ms == c.changed)
        schedule.changed(start + milliseconds(ms));
      const auto lastInput =
          start + milliseconds(std::min(ms, c.inputEnds)) - 1h * (c.inputEnds == 0);
      if (schedule.due(start + milliseconds(ms), lastInput, ms < c.released))
        due = ms;
    }
    EXPECT_EQ(due, c.due) << (&c - cases);
  }
}

TEST(PlanOrigin, tellsOtherContentFromAnotherTime) {
  const TempFolder folder;
  const fs::path file = folder.path() / "plan.txl";
  OpenPlan plan;
  plan.layout() = randomPlan(1, 5);
  ASSERT_FALSE(plan.saveAs(file, "A").failed());
  const std::string text = readText(file);
  const auto turned = [&text] {
    std::string other = text;
    std::swap(other[200], other[201]);
    std::swap(other[300], other[301]);
    return other;
  }();
  const std::string windows = [&text] {
    std::string lines = text;
    for (std::size_t at = 0; (at = lines.find('\n', at)) != std::string::npos; at += 2)
      lines.insert(at, 1, '\r');
    return lines;
  }();
  const auto time = fs::last_write_time(file);
  for (const auto& [now, changed] : {std::pair{text, false}, {windows, false}, {turned, true}}) {
    writeText(file, now);
    fs::last_write_time(file, changed ? time : time + 1h);
    EXPECT_EQ(plan.origin().changedElsewhere(), changed);
    EXPECT_FALSE(plan.origin().gone());
  }
  fs::remove(file);
  EXPECT_TRUE(plan.origin().gone() && !plan.origin().changedElsewhere());
}

#ifndef _WIN32
TEST(RescueSession, isOfferedWhenItsProgramIsDead) {
  const TempFolder folder;
  const fs::path sessions = folder.path() / "new" / "rescue";
  const fs::path file = folder.path() / "Süd.txl";
  const Layout layout = randomPlan(1, 7);
  ASSERT_EQ(saveLayout(layout, file, "Süd"), "");
  const PlanOrigin origin{file, contentMarkOf(file), 5};
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t other = fork();
  if (other == 0) {
    RescueSession session(sessions);
    const bool good = session.belongTo(origin).empty() && session.write(layout, "Süd").empty();
    if (!good || write(ready[1], "", 1) != 1)
      _exit(1);
    pause();
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  RescueSession own(sessions);
  ASSERT_EQ(own.belongTo(origin), "");
  EXPECT_TRUE(findRescued(sessions, own).plans.empty()) << "it still runs";
  EXPECT_TRUE(openElsewhere(sessions, own, file));
  kill(other, SIGKILL);
  waitpid(other, nullptr, 0);
  EXPECT_FALSE(openElsewhere(sessions, own, file));
  EXPECT_TRUE(findRescued(sessions, own, folder.path() / "Other.txl").plans.empty());
  {
    const RescuedPlans found = findRescued(sessions, own, file);
    ASSERT_EQ(found.plans.size(), 1U);
    EXPECT_TRUE(found.plans[0].name == "Süd" && found.plans[0].pieces == 7 &&
                found.plans[0].origin == origin);
    EXPECT_THAT(found.plans[0].note(), testing::StartsWith("Changes to "));
    const pid_t third = fork(); // finds nothing to offer: this one does
    if (third == 0)
      _exit(findRescued(sessions, RescueSession(sessions)).plans.empty() ? 0 : 1);
    int status = 0;
    waitpid(third, &status, 0);
    EXPECT_EQ(status, 0);
    writeText(file, "other");
    fs::last_write_time(file, fs::file_time_type::clock::now() + 1h);
    EXPECT_THAT(found.plans[0].note(), testing::HasSubstr(" is newer: "));
    fs::remove(file);
    EXPECT_THAT(found.plans[0].note(), testing::HasSubstr(" is gone: "));
  }
  const fs::path copy = findRescued(sessions, own).plans.at(0).copy;
  const fs::path spare = copy.parent_path() / "plan-0.txl"; // the copy before
  const fs::path kept = copy.parent_path() / "plan-1.damaged";
  const std::string whole = readText(copy);
  for (const std::string& damaged : {whole.substr(0, whole.size() / 2), std::string()}) {
    writeText(spare, whole);
    writeText(copy, damaged);
    EXPECT_EQ(findRescued(sessions, own).plans.at(0).copy, spare);
    fs::remove(spare);
    EXPECT_EQ(findRescued(sessions, own).problems.size(), 1U);
    EXPECT_TRUE(findRescued(sessions, own).problems.empty()) << "told once";
    EXPECT_EQ(readText(kept), damaged);
    fs::remove(kept);
  }
  writeText(copy, whole);
  findRescued(sessions, own).plans.at(0).throwAway();
  fs::create_directory(sessions / "of a crash before the first copy");
  EXPECT_TRUE(findRescued(sessions, own).plans.empty());
  own.close();
  EXPECT_TRUE(fs::is_empty(sessions));
}
#endif

TEST(RescueSession, copiesAreWholeAlsoWhenThePlanShrinks) {
  const TempFolder folder;
  RescueSession session(folder.path());
  for (const int count : {9, 3, 4, 20, 0, 1, 2, 3, 4, 5, 6, 7}) {
    std::string text;
    writeLayout(randomPlan(1, count), "A", text);
    ASSERT_EQ(session.write(randomPlan(1, count), "A"), "");
    EXPECT_EQ(readText(session.copyFile()), text);
    const TempFolder left; // as if the program were killed now: a lock that lives may not be asked
    for (const fs::path& copy : filesIn(session.folder(), ".txl"))
      writeText(left.path() / "session" / copy.filename(), readText(copy));
    const RescuedPlans found = findRescued(left.path(), RescueSession(left.path()));
    EXPECT_EQ(found.plans.at(0).copy.filename(), session.copyFile().filename());
  }
  session.discard();
  EXPECT_FALSE(session.hasCopy());
}

/// The content of the versions, the latest first.
std::vector<std::string> kept(const VersionStore& store) {
  std::vector<std::string> texts;
  for (const auto& plan : store.plans())
    for (const auto& copy : plan.copies)
      texts.push_back(readText(copy));
  return texts;
}

FileResult written(const fs::path& file, const std::string& text) {
  FileResult result;
  result.message = writeTextFile(file, text, &result);
  return result;
}

TEST(VersionStore, keepsWhatWasThereBefore) {
  const TempFolder folder;
  const VersionStore store(folder.path() / "new" / "versions");
  const fs::path file = folder.path() / "Süd.txl";
  const auto save = [&](const std::string& text) {
    return store.replacing(file, [&] { return written(file, text); });
  };
  save("1");
  EXPECT_TRUE(store.plans().empty()) << "there was nothing before";
  save("2");
  save("2");
  EXPECT_EQ(kept(store), std::vector<std::string>{"1"}) << "nothing changed";
  EXPECT_EQ(fs::hard_link_count(file), 1U);
  store.replacing(file, [&] { return written(folder.path() / "no" / "such", "3"); });
  EXPECT_EQ(kept(store).size(), 1U) << "it was not saved";
  store.replacing(file, [&] { // as where the folder takes no new file
    writeText(file, "3");
    FileResult result;
    result.way = WriteWay::InPlace;
    return result;
  });
  EXPECT_THAT(kept(store), testing::UnorderedElementsAre("1", "2"));
#ifndef _WIN32
  const fs::path link = folder.path() / "link.txl"; // leads to a plan of its own
  writeText(folder.path() / "linked", "far");
  fs::create_symlink(folder.path() / "linked", link);
  store.replacing(link, [&] { return written(link, "new"); });
  EXPECT_THAT(kept(store), testing::UnorderedElementsAre("1", "2", "far"));
  fs::remove_all(store.plans().at(1).copies.at(0).parent_path());
#endif
  for (int i = 4; i < 60; ++i) {
    fs::last_write_time(file, fs::file_time_type::clock::now() - 1h * (60 - i));
    save(std::to_string(i));
  }
  EXPECT_EQ(kept(store).size(), VersionStore::kMostOfAPlan);

  const std::time_t now = std::time(nullptr);
  bool deletedKept = false;
  EXPECT_FALSE(store.remove(file, now, deletedKept));
  EXPECT_TRUE(deletedKept && !fs::exists(file) && store.plans().at(0).gone);
  EXPECT_EQ(kept(store).at(0), "59");
  EXPECT_TRUE(store.remove(file, now, deletedKept)) << "gone already";
  constexpr std::time_t kDay = 24 * 60 * 60;
  store.tidy(now + 29 * kDay);
  EXPECT_EQ(store.plans().size(), 1U);
  store.tidy(now + 31 * kDay);
  EXPECT_TRUE(store.plans().empty());

  const auto once = fs::file_time_type::clock::now();
  for (const char* const text : {"x", "y", "z"}) {
    save(text);
    fs::last_write_time(file, once); // as by a clock that only counts seconds
  }
  EXPECT_EQ(kept(store), (std::vector<std::string>{"y", "x"}));

  const VersionStore small(folder.path() / "small", 250);
  for (int i = 0; i < 6; ++i) {
    const fs::path plan = folder.path() / std::to_string(i);
    writeText(plan, std::string(100, static_cast<char>('a' + i)));
    fs::last_write_time(plan, fs::file_time_type::clock::now() - 1h * (6 - i));
    small.replacing(plan, [&] { return written(plan, "new"); });
  }
  EXPECT_THAT(kept(small),
              testing::UnorderedElementsAre(std::string(100, 'e'), std::string(100, 'f')));
  EXPECT_FALSE(
      store.replacing(folder.path() / "x", [&] { return written(folder.path() / "x", "y"); })
          .failed());
}

TEST(VersionStore, thinsByAge) {
  std::vector<double> ages; // of versions from each minute of a working day
  for (int minute = 0; minute < 480; ++minute) {
    for (double& age : ages)
      age += 60;
    ages.insert(ages.begin(), 0);
    if (ages.size() > VersionStore::kMostOfAPlan)
      ages.erase(ages.begin() + static_cast<std::ptrdiff_t>(leastMissed(ages)));
  }
  EXPECT_EQ(ages[1], 60);
  EXPECT_EQ(ages.back(), 479 * 60);
  for (const double age : {5., 10., 30., 60., 120., 240.}) // something near each
    EXPECT_TRUE(std::ranges::any_of(ages, [age](double a) {
      return std::abs(a - age * 60) <= 0.35 * age * 60;
    })) << age;
}

} // namespace
} // namespace trassix::test
