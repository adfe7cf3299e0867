#include "document/text_file.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace trassix {
namespace {

namespace fs = std::filesystem;
using test::readText;
using test::TempFolder;
using test::writeText;

enum class Step { Create, Write, Flush, Close, Rename, Done };
constexpr Step kFailingSteps[] = {Step::Create, Step::Write, Step::Flush, Step::Close,
                                  Step::Rename};

std::string writeWith(FileOperations&& operations, const fs::path& path, std::string_view text) {
  return replaceTextFile(
      path,
      [text](const auto& sink) {
        sink(text);
        return std::string();
      },
      operations);
}

/// Fails at one step, or ends the process there as a power cut would.
class FaultyOperations : public SystemFileOperations {
 public:
  explicit FaultyOperations(Step step, bool kill = false) : step_(step), kill_(kill) {}

  std::error_code create(const fs::path& file, const fs::path& replaced) override {
    return fails(Step::Create) ? error() : SystemFileOperations::create(file, replaced);
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
  bool kill_;
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
  }
  const fs::path longest = folder.path() / (std::string(250, 'n') + ".txl");
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

TEST(TextFile, keepsLinksAndPermissions) {
  const TempFolder folder;
  const fs::path target = folder.path() / "plan.txl";
  writeText(target, "old");
  const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(target, mode);
  fs::create_symlink("plan.txl", folder.path() / "link");
  fs::create_symlink(folder.path() / "link", folder.path() / "second link");
  fs::create_symlink("nothing yet", folder.path() / "dangling");
  fs::create_symlink("loop", folder.path() / "loop");

  EXPECT_EQ(writeTextFile(folder.path() / "second link", "new"), "");
  EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
  EXPECT_TRUE(fs::is_symlink(folder.path() / "second link"));
  EXPECT_EQ(readText(target), "new");
  EXPECT_EQ(fs::status(target).permissions(), mode);

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
  fs::permissions(target, fs::perms::owner_read);
  fs::permissions(folder.path() / "locked", fs::perms::owner_read | fs::perms::owner_exec);
  const bool mightyUser = static_cast<bool>(std::ofstream(target, std::ios::app));
  const std::string fileLocked = writeTextFile(target, "new");
  fs::permissions(target, fs::perms::owner_all);
  const std::string folderLocked = writeTextFile(target, "new");
  fs::permissions(folder.path() / "locked", fs::perms::owner_all);
  if (mightyUser)
    GTEST_SKIP() << "this user may write anywhere";
  EXPECT_EQ(fileLocked, "Cannot open file: " + target.string());
  EXPECT_EQ(folderLocked, "Cannot open file: " + target.string());
  EXPECT_EQ(readText(target), "old");
}

#endif

} // namespace
} // namespace trassix
