#include "app/services/program_memory.h"
#include "output/printer_corrections.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace trassix::test {
namespace {

TEST(PrinterCorrections, whatNobodyMeasuredIsAsTheNamelessOne) {
  const TempFolder folder;
  const ProgramMemory memory(folder.path() / "memory.json");
  const PrinterCorrections corrections(memory);
  EXPECT_EQ(corrections.of("Büro"), PrinterCorrection{});
  EXPECT_EQ(corrections.remember("", {0.99, 1.01}), "");
  EXPECT_EQ(corrections.of("Büro"), (PrinterCorrection{0.99, 1.01}));
  EXPECT_EQ(corrections.remember("Büro", {1, 1}), "");
  EXPECT_EQ(corrections.of("Büro"), PrinterCorrection{});
  EXPECT_EQ(corrections.remember("", {7, 1}), "") << "which no printer does";
  EXPECT_EQ(corrections.of("other"), PrinterCorrection{});
}

} // namespace
} // namespace trassix::test
