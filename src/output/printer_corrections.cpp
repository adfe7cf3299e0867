#include "output/printer_corrections.h"

#include "app/services/program_memory.h"

namespace trassix {

namespace {

const std::string kTopic = "printers";

double shareIn(const ProgramMemory::Section& printer, const std::string& name) {
  const double share = valueIn<double>(printer, name).value_or(1);
  return share >= kSmallestCorrection && share <= kLargestCorrection ? share : 1;
}

} // namespace

PrinterCorrection PrinterCorrections::of(const std::string& printer) const {
  const auto printers = memory_.recall(kTopic);
  if (!printers || !printers->contains(printer) || !printers->at(printer).is_object())
    return {};
  return {shareIn(printers->at(printer), "x"), shareIn(printers->at(printer), "y")};
}

std::string PrinterCorrections::remember(const std::string& printer,
                                         const PrinterCorrection& correction) const {
  return memory_.remember(kTopic, [&](auto& printers) {
    if (correction == PrinterCorrection{})
      printers.erase(printer);
    else
      printers[printer] = {{"x", correction.x}, {"y", correction.y}};
  });
}

} // namespace trassix
