#include "app/services/diagnostic_log.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace trassix::test {
namespace {

namespace fs = std::filesystem;

TEST(LogFile, WritesOverNothingButALog) {
  struct Case {
    const char* place; ///< what stands where the log goes
    void (*put)(const fs::path& log, const fs::path& precious);
    bool logsInOwnFolder;
  };
  for (const Case& c :
       {Case{"link", [](auto&log, auto&to) { fs::create_symlink(to, log); }, true},
        {"second name", [](auto&log, auto&of) { fs::create_hard_link(of, log); }, true},
        {"pipe", [](auto&log, auto&) { EXPECT_EQ(mkfifo(log.c_str(), 0600), 0); }, false},
        {"folder", [](auto&log, auto&) { fs::create_directory(log); }, false}}) {
    for (const bool shared : {false, true}) {
      const TempFolder folder;
      writeText(folder.path() / "precious", "precious");
      c.put(folder.path() / DiagnosticLog::kFileName, folder.path() / "precious");
      DiagnosticLog::open({folder.path(), shared});
      DiagnosticLog::write("a line");
      DiagnosticLog::close();
      EXPECT_EQ(readText(folder.path() / "precious") == "precious", shared || !c.logsInOwnFolder)
          << c.place;
    }
  }
}

} // namespace
} // namespace trassix::test
