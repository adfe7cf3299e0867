#include <gtest/gtest.h>

#include <cstdio>

/// Runs one test a process, which is how CTest calls it; the toolkit is started by the test, so
/// that listing the tests needs no display.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!testing::GTEST_FLAG(list_tests) &&
      testing::GTEST_FLAG(filter).find_first_of("*:") != std::string::npos) {
    std::puts("Choose one test by --gtest_filter=SUITE.NAME, or run them all through ctest.");
    return 2;
  }
  return RUN_ALL_TESTS();
}
