#pragma once

#include <string>

namespace trassix {

class ProgramMemory;

/// How long a hundred millimetres come out of a printer, as shares of what they should be.
struct PrinterCorrection {
  double x = 1;
  double y = 1;

  bool operator==(const PrinterCorrection&) const = default;
};

/// No printer is trusted to be further off.
inline constexpr double kSmallestCorrection = 0.9;
inline constexpr double kLargestCorrection = 1.1;

/// What was measured on the pages of each printer, by its name. The nameless one is whichever the
/// user had in mind before any was chosen: it stands for all that were never measured.
class PrinterCorrections {
 public:
  explicit PrinterCorrections(const ProgramMemory& memory) : memory_(memory) {}

  /// True lengths when nothing was measured.
  PrinterCorrection of(const std::string& printer) const;
  /// The message is empty on success.
  std::string remember(const std::string& printer, const PrinterCorrection& correction) const;

 private:
  const ProgramMemory& memory_;
};

} // namespace trassix
