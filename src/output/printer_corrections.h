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

/// What was measured on the pages of each printer, by its name; the nameless one is the system's
/// usual printer.
class PrinterCorrections {
 public:
  explicit PrinterCorrections(const ProgramMemory& memory) : memory_(memory) {}

  /// True lengths for a printer that was never measured.
  PrinterCorrection of(const std::string& printer) const;
  /// The message is empty on success.
  std::string remember(const std::string& printer, const PrinterCorrection& correction) const;

 private:
  const ProgramMemory& memory_;
};

} // namespace trassix
