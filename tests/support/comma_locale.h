#pragma once

#include <clocale>
#include <cstdlib>
#include <locale>

namespace trassix::test {

/// While it lives, and when asked for, numbers of the C and C++ libraries have a decimal comma and
/// grouped digits.
class CommaLocale {
 public:
  explicit CommaLocale(bool wanted) {
    if (!wanted)
      return;
    std::locale::global(std::locale(std::locale::classic(), new Commas));
#ifndef _WIN32
    setenv("LOCPATH", TRASSIX_TEST_LOCALES, 1); // where the build has made one
#endif
    inTheSystem_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
#ifndef _WIN32
    unsetenv("LOCPATH");
#endif
  }
  ~CommaLocale() {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

  bool inTheSystem() const {
    return inTheSystem_;
  }

 private:
  struct Commas : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  bool inTheSystem_ = false;
};

} // namespace trassix::test
