#include "app/services/text_file.h"
#include "document/layout.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#ifndef _WIN32
#include "support/plain_user.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#endif

namespace trassix {
namespace {

namespace fs = std::filesystem;
using test::readText;
using test::TempFolder;
using test::writeText;

enum class Step { Create, OpenInPlace, Write, Cut, Flush, Close, Rename, Done };
constexpr Step kFailingSteps[] = {Step::Create, Step::Write, Step::Flush, Step::Close,
                                  Step::Rename};

std::string writeWith(FileOperations&& operations, const fs::path& path, std::string_view text,
                      FileReport* report = nullptr) {
  return replaceTextFile(
      path,
      [text](const auto& sink) {
        sink(text);
        return std::string();
      },
      operations, report);
}

/// Fails at one step, or ends the process there as a power cut would.
class FaultyOperations : public SystemFileOperations {
 public:
  explicit FaultyOperations(Step step, bool kill = false) : step_(step), kill_(kill) {}
  FaultyOperations(Step step, Step refused) : step_(step), refused_(refused) {}

  std::error_code create(const fs::path& file, const fs::path& replaced) override {
    if (refused_ == Step::Create)
      return std::make_error_code(std::errc::permission_denied);
    return fails(Step::Create) ? error() : SystemFileOperations::create(file, replaced);
  }
  std::error_code openInPlace(const fs::path& file) override {
    return fails(Step::OpenInPlace) ? error() : SystemFileOperations::openInPlace(file);
  }
  std::error_code cut() override {
    return fails(Step::Cut) ? error() : SystemFileOperations::cut();
  }
  std::error_code write(std::string_view bytes) override {
    if (step_ != Step::Write)
      return SystemFileOperations::write(bytes);
    static_cast<void>(SystemFileOperations::write(bytes.substr(0, bytes.size() / 2)));
    return fails(Step::Write) ? error() : std::error_code{};
  }
  std::error_code flush() override {
    return fails(Step::Flush) ? error() : SystemFileOperations::flush();
  }
  std::error_code close() override {
    const std::error_code result = SystemFileOperations::close();
    return fails(Step::Close) ? error() : result;
  }
  std::error_code rename(const fs::path& file, const fs::path& target) override {
    if (refused_ == Step::Rename)
      return std::make_error_code(std::errc::operation_not_permitted);
    const bool now = fails(Step::Rename);
    const std::error_code result = now ? error() : SystemFileOperations::rename(file, target);
    fails(Step::Done);
    return result;
  }

 private:
  bool fails(Step step) const {
    if (step == step_ && kill_)
      std::_Exit(9);
    return step == step_;
  }
  static std::error_code error() { return std::make_error_code(std::errc::no_space_on_device); }

  Step step_;
  bool kill_ = false;
  Step refused_ = Step::Done; ///< by the folder, with a lack of rights
};

std::size_t filesIn(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

TEST(TextFile, keepsTheOldFileWhenAnyStepFails) {
  const TempFolder folder;
  const fs::path target = folder.path() / "plan.txl";
  writeText(target, "old");
  for (const Step step : kFailingSteps) {
    const std::string message = writeWith(FaultyOperations(step), target, "the new text");
    const bool opened = step != Step::Create;
    EXPECT_TRUE(message.starts_with((opened ? "Cannot write file: " : "Cannot open file: ") +
                                    target.string()))
        << message;
    EXPECT_EQ(readText(target), "old");
    EXPECT_EQ(filesIn(folder.path()), 1U) << "temporary file left behind";
  }
}

TEST(TextFile, writesInPlaceWhereOnlyTheFolderRefuses) {
  const TempFolder folder;
  const fs::path target = folder.path() / "plan.txl";
  for (const Step refused : {Step::Create, Step::Rename}) {
    for (const std::string old : {"old\r\n", "an old text that is longer than the new one\r\n"}) {
      writeText(target, old);
      for (const Step step :
           {Step::OpenInPlace, Step::Write, Step::Cut, Step::Flush, Step::Close}) {
        EXPECT_NE(writeWith(FaultyOperations(step, refused), target, "the new text"), "");
        std::string kept;
        EXPECT_EQ(readTextFile(target, kept), "");
        EXPECT_EQ(kept, old) << "put back";
      }
      FileReport report;
      EXPECT_EQ(writeWith(FaultyOperations(Step::Done, refused), target, "the new text", &report),
                "");
      EXPECT_EQ(report.way, WriteWay::InPlace);
      EXPECT_EQ(readText(target), "the new text");
      EXPECT_EQ(filesIn(folder.path()), 1U);
    }
  }
  EXPECT_NE(writeWith(FaultyOperations(Step::Done, Step::Create), folder.path() / "new", ""), "")
      << "there is nothing to write over";
}

TEST(TextFile, leftoversGoAfterADay) {
  const TempFolder folder;
  const auto age = [&folder](const char* name, int hours) {
    std::error_code ignored; // not every system sets the time of a folder
    fs::last_write_time(folder.path() / name,
                        fs::file_time_type::clock::now() - std::chrono::hours(hours), ignored);
  };
  for (const char* name : {".trassix-1.tmp", ".trassix-2.tmp", ".trassix-3.txl", "trassix-4.tmp"})
    writeText(folder.path() / name, "");
  fs::create_directory(folder.path() / ".trassix-5.tmp");
  for (const char* old : {".trassix-1.tmp", ".trassix-3.txl", "trassix-4.tmp", ".trassix-5.tmp"})
    age(old, 25);
  age(".trassix-2.tmp", 23);
  removeLeftovers(folder.path());
  EXPECT_EQ(filesIn(folder.path()), 4U);
  EXPECT_FALSE(fs::exists(folder.path() / ".trassix-1.tmp"));
}

#ifndef _WIN32 // where such a test starts anew in another temporary folder

TEST(TextFileDeathTest, keepsACompleteFileWhenKilledAtAnyStep) {
  for (const Step step :
       {Step::Create, Step::Write, Step::Flush, Step::Close, Step::Rename, Step::Done}) {
    const TempFolder folder;
    const fs::path target = folder.path() / "plan.txl";
    writeText(target, "old");
    EXPECT_EXIT(writeWith(FaultyOperations(step, true), target, "the new text"),
                testing::ExitedWithCode(9), "");
    EXPECT_EQ(readText(target), step == Step::Done ? "the new text" : "old");
  }
}

#endif

TEST(TextFile, writesAndReadsUnderAnyName) {
  const TempFolder folder;
  for (const char8_t* name : {u8"plan.txl", u8"Ein Plan für Süd-Gleis.txl", u8"計画.txl"}) {
    const fs::path target = folder.path() / name;
    for (const std::string text : {"", "one\ntwo\n", "three"}) {
      EXPECT_EQ(writeTextFile(target, text), "");
      std::string read;
      EXPECT_EQ(readTextFile(target, read), "");
      std::erase(read, '\r'); // which Windows puts at the ends of lines
      EXPECT_EQ(read, text);
    }
    EXPECT_EQ(writeBytes(target, "one\r\ntwo\n"), "");
    std::string read;
    EXPECT_EQ(readTextFile(target, read), "");
    EXPECT_EQ(read, "one\r\ntwo\n");
  }
  const fs::path longest = folder.path() / std::string(250, 'n').append(".txl");
  EXPECT_EQ(writeTextFile(longest, "text"), "");
}

TEST(TextFile, namesWhatItCannotOpen) {
  const TempFolder folder;
  std::string text = "untouched";
  fs::create_directory(folder.path() / "folder");
  for (const auto& [name, why] : {std::pair{"folder", std::errc::is_a_directory},
                                  {"missing/plan.txl", std::errc::no_such_file_or_directory},
                                  {"folder/", std::errc::is_a_directory}}) {
    const fs::path path = folder.path() / name;
    FileReport report;
    EXPECT_EQ(writeTextFile(path, "text", &report), "Cannot open file: " + path.string());
    EXPECT_EQ(report.reason, why) << path;
    report = {};
    EXPECT_EQ(readTextFile(path, text, &report), "Cannot open file: " + path.string());
    EXPECT_EQ(report.reason, why) << path;
  }
  EXPECT_EQ(readTextFile(folder.path() / "none", text).substr(0, 18), "Cannot open file: ");
  EXPECT_EQ(text, "untouched");
  EXPECT_EQ(filesIn(folder.path()), 1U);
}

#ifndef _WIN32

TEST(TextFile, keepsLinksPermissionsOwnerAndAttributes) {
  const TempFolder folder;
  const fs::path target = folder.path() / "plan.txl";
  writeText(target, "old");
  const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(target, mode);
  const bool given = chown(target.c_str(), 4321, 8765) == 0;
  const bool marked = setxattr(target.c_str(), "user.origin", "club", 4, 0) == 0;
  fs::create_symlink("plan.txl", folder.path() / "link");
  fs::create_symlink(folder.path() / "link", folder.path() / "second link");
  fs::create_symlink("nothing yet", folder.path() / "dangling");
  fs::create_symlink("loop", folder.path() / "loop");

  EXPECT_EQ(writeTextFile(folder.path() / "second link", "new"), "");
  EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
  EXPECT_TRUE(fs::is_symlink(folder.path() / "second link"));
  EXPECT_EQ(readText(target), "new");
  EXPECT_EQ(fs::status(target).permissions(), mode);
  struct stat found {};
  EXPECT_EQ(stat(target.c_str(), &found), 0);
  EXPECT_EQ(found.st_uid, given ? 4321U : geteuid());
  EXPECT_EQ(found.st_gid, given ? 8765U : getegid());
  std::string mark(4, ' ');
  EXPECT_EQ(getxattr(target.c_str(), "user.origin", mark.data(), 4), marked ? 4 : -1);
  EXPECT_EQ(mark, marked ? "club" : "    ");

  EXPECT_EQ(writeTextFile(folder.path() / "dangling", "new"), "");
  EXPECT_EQ(readText(folder.path() / "nothing yet"), "new");
  EXPECT_NE(writeTextFile(folder.path() / "loop", "new"), "");
}

TEST(TextFile, survivesAFullDisk) {
  const TempFolder folder;
  const fs::path target = folder.path() / "plan.txl";
  writeText(target, "old");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const std::string message = writeTextFile(target, std::string(5000, 'x'));
  setrlimit(RLIMIT_FSIZE, &before);
  static_cast<void>(std::signal(SIGXFSZ, handler));
  EXPECT_TRUE(message.starts_with("Cannot write file: ")) << message;
  EXPECT_EQ(readText(target), "old");
  EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST(TextFile, respectsWriteProtection) {
  const TempFolder folder;
  const fs::path target = folder.path() / "locked" / "plan.txl";
  writeText(target, "old");
  fs::permissions(folder.path(), fs::perms(0755));
  fs::permissions(folder.path() / "locked", fs::perms(0555));
  fs::permissions(target, fs::perms(0444));
  const auto save = [&target](FileReport* report) {
    const test::PlainUser plain;
    return replaceTextFile(
        target, [](const auto& sink) { return sink("new"), std::string(); }, report);
  };
  FileReport report;
  EXPECT_EQ(save(&report), "Cannot open file: " + target.string());
  EXPECT_EQ(readText(target), "old");
  fs::permissions(target, fs::perms(0666));
  EXPECT_EQ(save(&report), "");
  EXPECT_EQ(report.way, WriteWay::InPlace);
  EXPECT_EQ(readText(target), "new");
  fs::permissions(folder.path() / "locked", fs::perms::owner_all);
}

#endif

} // namespace
} // namespace trassix
