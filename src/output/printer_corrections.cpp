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
  if (!printers)
    return {};
  for (const std::string& name : {printer, std::string()})
    if (printers->contains(name) && printers->at(name).is_object())
      return {shareIn(printers->at(name), "x"), shareIn(printers->at(name), "y")};
  return {};
}

std::string PrinterCorrections::remember(const std::string& printer,
                                         const PrinterCorrection& correction) const {
  return memory_.remember(kTopic, [&](auto& printers) {
    if (printer.empty() && correction == PrinterCorrection{})
      printers.erase(printer);
    else
      printers[printer] = {{"x", correction.x}, {"y", correction.y}};
  });
}

} // namespace trassix
